// The window, and what is behind it: books, their database, and undo.

#include "Window.hpp"
#include "support/Testing.hpp"

#include <QAbstractItemModelTester>
#include <QTest>

namespace {

Currency const cad("CAD");

class DesktopTest : public testing::Test
{
protected:
  DesktopTest()
  {
    session_.change([](Books& books) {
      books.banks = BankMap({{elm, Bank(elm, {{hundred, Loan}, {AccountNumber(20), Goal}}, false)},
                             {pine, Bank(pine, {}, true)}});
      reconcile(books, hundred, {Money(cad, -123456), march});
    });
    session_.reload();
    other_.setDatabaseName(path_);
    other_.open();
  }

  static QString text(Books const& books)
  {
    auto text = streamed(books.banks) + books.problems.join(u'\n');
    for (auto const& [number, last] : books.balances) {
      text += debugged(number, last).front();
    }
    return text;
  }

  // What a program reads that opens the file now.
  QString inFile() const { return text(Session(path_).books()); }

  void expectRefused(std::string const& why)
  {
    auto const before = inFile();
    auto const held = text(session_.books());
    auto const change = [&] {
      session_.change([](Books& books) { // the deletion of a bank is written last
        books.banks.remove(elm, hundred);
        books.banks.remove(pine);
      });
    };
    EXPECT_THAT(change, testing::ThrowsMessage<UserError>(testing::HasSubstr(why)));
    EXPECT_EQ(inFile(), before);
    EXPECT_EQ(text(session_.books()), held);
    EXPECT_FALSE(session_.canUndo());
  }

  // Types into the dialogs that come, a text into each, and keeps what message boxes say.
  void type(QStringList const& texts)
  {
    QTimer::singleShot(0, qApp, [=, this] {
      if (auto* const dialog = QApplication::activeModalWidget(); dialog != nullptr) {
        EXPECT_TRUE(QTest::qWaitFor([=] { return dialog->focusWidget() != nullptr; }));
        auto const* const box = qobject_cast<QMessageBox*>(dialog);
        said_ += box != nullptr ? box->text() : QString();
        type(texts.mid(1));
        for (auto const c : texts.value(0, u"\x1b"_s)) {
          QTest::keyClick(dialog->focusWidget(), c.toLatin1());
        }
      }
    });
  }

  QTemporaryDir const folder_{};
  QString const path_ = folder_.filePath(u"household.books"_s);
  Session session_{path_};
  QSqlDatabase other_ = QSqlDatabase::addDatabase(u"QSQLITE"_s, path_); // knows no foreign keys
  QString said_{};
};

TEST_F(DesktopTest, ChangesAreInTheFileAndCanBeUndone)
{
  auto const before = inFile();
  auto const renamed = QString(before).replace(elm.institution(), oak.institution());
  session_.change([](Books& books) { books.banks.rename(elm, oak); });
  EXPECT_EQ(inFile(), renamed);
  session_.undo();
  EXPECT_EQ(inFile(), before);
  session_.redo();
  EXPECT_EQ(inFile(), renamed);
  QSqlQuery id(u"SELECT id FROM banks WHERE closed = 0"_s, other_);
  EXPECT_TRUE(id.next() && id.value(0) == 1); // one update, not another row
  id.finish();
  session_.undo();
  session_.change([](Books& books) { books.banks.remove(elm, hundred); });
  EXPECT_FALSE(session_.canRedo());
  EXPECT_TRUE(session_.books().balances.empty());
  EXPECT_EQ(inFile(), text(session_.books()));
}

TEST_F(DesktopTest, AWriteThatFailsChangesNothing)
{
  QSqlQuery(u"CREATE TRIGGER fails BEFORE DELETE ON banks BEGIN SELECT RAISE(ABORT, 'full'); END"_s,
            other_);
  session_.reload();
  expectRefused("full");
}

TEST_F(DesktopTest, AnotherWindowsWorkStays)
{
  Session(path_).change([](Books& books) { books.banks.rename(elm, oak); });
  expectRefused("Another window");
  session_.reload();
  session_.change([](Books& books) { books.banks.remove(pine); });
  EXPECT_EQ(inFile(), text(session_.books()));
}

TEST_F(DesktopTest, RowsThatBreakARuleAreToldAndStay)
{
  QSqlQuery(u"INSERT INTO banks (name, closed) VALUES (' ', 0)"_s, other_);
  QSqlQuery(u"INSERT INTO accounts VALUES (-1, 1, 'Loan', NULL, NULL, NULL), "
            "(7, 1, 'Mortgage', NULL, NULL, NULL), (8, 9, 'Loan', NULL, NULL, NULL), "
            "(9, 1, 'Loan', 'cad', 1, '2026-01-01'), (10, 1, 'Loan', 'CAD', 1.5, '2026-01-01'), "
            "(11, 1, 'Loan', 'CAD', 1, '2026-1-1')"_s,
            other_);
  session_.reload();
  QStringList told;
  for (auto const& problem : session_.books().problems) {
    told += problem.section(u':', 0, 0);
  }
  EXPECT_EQ(told.join(u'|'),
            "Account -1|Account 7|Account 8|Account 9|Account 10|Account 11|Bank  ");
  EXPECT_EQ(session_.books().problems[1], "Account 7: 'Mortgage' is not a kind of account.");
  expectRefused("would be lost");
}

TEST_F(DesktopTest, ReadsExactlyWhatIsTyped)
{
  for (auto const* const name : {"ar_EG", "de_CH", "de_DE", "en_CA", "fr_CA", "he_IL", "sv_SE"}) {
    ScopedLocale const locale{QLocale(QString::fromUtf8(name))};
    for (auto const units : {std::numeric_limits<qint64>::min(), qint64(5), qint64(123456789)}) {
      Money const amount(cad, units);
      EXPECT_EQ(toMoney(presentationText(amount), cad), amount) << name; // as it is shown
    }
    EXPECT_EQ(toDate(orv::foundation::presentationText(march)), march) << name;
  }
  ScopedLocale const german{QLocale(u"de_DE"_s)};
  for (auto const* const text : {"-1.234,5", "-1 234,50", "-1234,50 CAD", "(1'234,50)"}) {
    EXPECT_EQ(toMoney(text, cad), Money(cad, -123450)) << text;
  }
  for (auto const* const text :
       {"", "-", "1.5", ",5", "1,505", "1e5", "--1", "(1", "1,5,0", "92233720368547758,08"}) {
    EXPECT_THROW(toMoney(text, cad), UserError) << text;
  }
  EXPECT_EQ(toDate("31.3.2026"), march);
  EXPECT_THROW(toDate("31.3.26"), UserError);
}

TEST_F(DesktopTest, TheWindowKeepsToTheRules)
{
  Window window(path_);
  auto* const view = window.findChild<QTreeView*>();
  auto* const model = view->model();
  QAbstractItemModelTester const tester(model,
                                        QAbstractItemModelTester::FailureReportingMode::Fatal);
  window.show();
  auto const press = [&](QKeySequence const& keys, QStringList const& texts = {}) {
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    said_.clear();
    type(texts);
    QTest::keySequence(view, keys);
    QCoreApplication::processEvents();
    return said_;
  };
  auto const selected = [&] { return view->currentIndex().data().toString(); };

  press(QKeySequence::New, {"Yew\r"});
  EXPECT_EQ(selected(), "Yew");
  auto const before = inFile();
  EXPECT_EQ(press(QKeySequence::New, {"Yew\r", "\r"}),
            "There is an issue with the bank 'Yew'. Cannot add a bank that already exists.");
  EXPECT_EQ(inFile(), before);

  view->setCurrentIndex(model->index(0, 0));
  EXPECT_EQ(press(Qt::Key_F2, {"\r"}), ""); // the same name is no change
  press(Qt::Key_F2, {"Zelkova\r"});
  EXPECT_EQ(selected(), "Zelkova");
  EXPECT_EQ(view->currentIndex(), model->index(2, 0));
  EXPECT_TRUE(view->isExpanded(view->currentIndex()));
  press(QKeySequence::Undo);
  EXPECT_EQ(inFile(), before);
  EXPECT_EQ(selected(), elm.institution());

  EXPECT_EQ(press(Qt::Key_Insert, {"100\r", "\x1b"}),
            "The bank holds account 100 already. Change its kind to Chequeing?");
  view->setCurrentIndex(model->index(1, 0, view->currentIndex()));
  EXPECT_THAT(press(Qt::CTRL | Qt::Key_R, {"5\t\t2026-3-30\r", "\r"}).toStdString(),
              testing::HasSubstr("cannot be updated to be in the past"));
  press(Qt::CTRL | Qt::Key_R, {"-1,000.50\t\t2026-3-31\r"});
  EXPECT_EQ(toMoney(view->currentIndex().siblingAtColumn(2).data().toString(), cad),
            Money(cad, -100050));
  view->setCurrentIndex(model->index(1, 0));
  EXPECT_EQ(selected(), pine.institution());
  EXPECT_EQ(press(Qt::Key_F2, {"Zelkova\r", "\r"}), ""); // greyed, as the bank is closed
}

} // namespace

int main(int argc, char** argv)
{
  QApplication const application(argc, argv);
  QLocale::setDefault(QLocale(u"en_CA"_s));
  QLoggingCategory::defaultCategory()->setEnabled(QtInfoMsg, false);
  testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}
