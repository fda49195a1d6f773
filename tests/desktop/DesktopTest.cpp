// The window, and what is behind it: books, their database, and undo.

#include "Window.hpp"
#include "support/Testing.hpp"

#include <QAbstractItemModelTester>
#include <QTest>

namespace {

Currency const cad("CAD");

auto const renameElm = [](Books& books) { books.banks.rename(elm, oak); };
auto const removeMuch = [](Books& books) {
  books.banks.remove(elm, hundred);
  books.banks.remove(pine); // is written last
};

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
  }

  // What a program reads that opens the file now.
  Books inFile() const { return Session(path_).books(); }

  void expectRefused(char const* why, auto const& call)
  {
    auto const before = session_.books();
    EXPECT_THAT(call, testing::ThrowsMessage<UserError>(testing::HasSubstr(why)));
    EXPECT_EQ(session_.books(), before);
    EXPECT_EQ(inFile(), before);
  }

  // Types into the dialogs that come, a text into each, and keeps what they say.
  void type(QStringList const& texts)
  {
    QTimer::singleShot(0, qApp, [=, this] {
      if (auto* const dialog = QApplication::activeModalWidget(); dialog != nullptr) {
        EXPECT_TRUE(QTest::qWaitFor([=] { return dialog->focusWidget() != nullptr; }));
        auto const* const box = qobject_cast<QMessageBox*>(dialog);
        said_ += box != nullptr ? box->text() : dialog->windowTitle();
        type(texts.mid(1));
        for (auto const character : texts.value(0, u"\x1b"_s)) {
          QTest::keyClick(dialog->focusWidget(), character.toLatin1());
        }
      }
    });
  }

  QTemporaryDir const folder_{};
  QString const path_ = folder_.filePath(u"household.books"_s);
  Session session_{path_};
  QSqlDatabase const file_ = QSqlDatabase::database(QSqlDatabase::connectionNames().value(0));
  QStringList said_{};
};

TEST_F(DesktopTest, ChangesAreInTheFileAndCanBeUndone)
{
  auto const before = session_.books();
  session_.change(renameElm);
  session_.change([](Books&) {}); // nothing to undo
  EXPECT_EQ(inFile(), session_.books());
  EXPECT_EQ(inFile().banks.find(hundred).value().name(), oak);
  QSqlQuery id(u"SELECT name FROM banks WHERE id = 1"_s, file_);
  EXPECT_TRUE(id.next() && id.value(0) == oak.institution()); // one update, not another row
  session_.undo();
  EXPECT_EQ(inFile(), before);
  session_.redo();
  EXPECT_TRUE(inFile().banks.hasBank(oak));
  session_.undo();
  session_.change(removeMuch);
  EXPECT_FALSE(session_.canRedo());
  EXPECT_TRUE(session_.books().balances.empty());
  EXPECT_EQ(inFile(), session_.books());
}

TEST_F(DesktopTest, AWriteThatFailsChangesNothing)
{
  session_.change(removeMuch);
  session_.undo();
  QSqlQuery(u"CREATE TRIGGER fails BEFORE DELETE ON banks BEGIN SELECT RAISE(ABORT, 'full'); END"_s,
            file_);
  expectRefused("full", [&] { session_.redo(); });
  expectRefused("full", [&] { session_.change(removeMuch); });
  expectRefused("full", [&] { session_.undo(); });
}

TEST_F(DesktopTest, AnotherWindowsWorkStays)
{
  Session other(path_);
  session_.change(renameElm);
  EXPECT_THROW(other.change(removeMuch), UserError);
  EXPECT_EQ(inFile(), session_.books());
  other.reload();
  other.change([](Books& books) { books.banks.remove(pine); });
  EXPECT_EQ(inFile(), other.books());
}

TEST_F(DesktopTest, RowsThatBreakARuleAreToldAndStay)
{
  for (auto const* const table : {"accounts", "banks"}) { // made without the rules of the schema
    QSqlQuery(u"CREATE TABLE copy AS SELECT * FROM %1"_s.arg(table), file_);
    QSqlQuery(u"DROP TABLE %1"_s.arg(table), file_);
    QSqlQuery(u"ALTER TABLE copy RENAME TO %1"_s.arg(table), file_);
  }
  QSqlQuery(u"INSERT INTO banks VALUES (3, ' ', 0), (4, 'Pine', 0)"_s, file_);
  QSqlQuery(u"INSERT INTO accounts VALUES (-1, 1, 'Loan', NULL, NULL, NULL), "
            "(7, 1, 'Mortgage', NULL, NULL, NULL), (8, 9, 'Loan', NULL, NULL, NULL), "
            "(9, 1, 'Loan', 'cad', 1, '2026-01-01'), (10, 1, 'Loan', 'CAD', 1.5, '2026-01-01'), "
            "(11, 1, 'Loan', 'CAD', 1, '2026-1-1'), (12, 1, 'Loan', NULL, 1, NULL), "
            "(100, 2, 'Loan', NULL, NULL, NULL)"_s,
            file_);
  session_.reload();
  EXPECT_EQ(session_.books().problems.size(), 10);
  EXPECT_EQ(session_.books().banks.find(hundred).value().name(), elm);
  expectRefused("would be lost", [&] { session_.change(removeMuch); });
  EXPECT_EQ(Window(path_).findChild<QTextEdit*>()->toPlainText().section(u'\n', 2, 2),
            "7: 'Mortgage' is not a kind of account.");
}

TEST_F(DesktopTest, ReadsExactlyWhatIsTyped)
{
  Money const amount(cad, std::numeric_limits<qint64>::min());
  for (auto const* const name : {"ar_EG", "de_CH", "en_CA", "fr_CA", "he_IL", "sv_SE"}) {
    ScopedLocale const locale{QLocale(QString::fromUtf8(name))};
    EXPECT_EQ(toMoney(presentationText(amount), cad), amount) << name; // as it is shown
    EXPECT_EQ(toDate(orv::foundation::presentationText(march)), march) << name;
  }
  ScopedLocale const german{QLocale(u"de_DE"_s)};
  for (auto const* const text : {"-1.234,5", "-1 234,50", "-1234,50 CAD", "(1'234,50)"}) {
    EXPECT_EQ(toMoney(text, cad), Money(cad, -123450)) << text;
  }
  for (auto const* const text :
       {"", "1 €", "1.5", ",5", "1,505", "1e5", "(1", "1,5,0", "92233720368547758,08"}) {
    EXPECT_THROW(toMoney(text, cad), UserError) << text;
  }
  EXPECT_EQ(toDate("31.3.2026"), march);
  EXPECT_THROW(toDate("31.3.26"), UserError);
}

TEST_F(DesktopTest, TheWindowKeepsToTheRules)
{
  Window window(path_);
  auto* const view = window.findChild<QTreeView*>();
  auto const row = [&](int place) { return view->model()->index(place, 0); };
  QAbstractItemModelTester const tester(view->model(),
                                        QAbstractItemModelTester::FailureReportingMode::Fatal);
  window.show();
  auto const press = [&](QKeySequence const& keys, QStringList const& texts = {}) {
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    said_.clear();
    type(texts);
    QTest::keySequence(view, keys);
    QCoreApplication::processEvents();
    return said_.join(u'|').toStdString();
  };
  auto const selected = [&] { return view->currentIndex().data().toString(); };

  press(QKeySequence::New, {"Yew\r"});
  EXPECT_EQ(selected(), "Yew");
  auto const before = inFile();
  EXPECT_THAT(press(QKeySequence::New, {"Yew\r", "\r"}),
              testing::EndsWith("already exists.|New Bank"));
  EXPECT_EQ(inFile(), before);
  view->collapse(row(0));
  press(Qt::Key_F2, {"ash\r"});
  EXPECT_EQ(selected(), "ash");
  EXPECT_EQ(view->model()->rowCount(), 3);
  EXPECT_EQ(view->currentIndex(), row(0)); // in the order of people
  EXPECT_TRUE(view->isExpanded(row(0)) && !view->isExpanded(row(1)));
  press(QKeySequence::Undo);
  EXPECT_EQ(inFile(), before);

  view->setCurrentIndex(row(0));
  EXPECT_EQ(press(Qt::Key_Insert, {"100\r", "\x1b"}),
            "Add Account|The bank holds account 100 already. Change its kind to Chequeing?"
            "|Add Account");
  view->setCurrentIndex(row(0).model()->index(1, 0, row(0)));
  EXPECT_THAT(press(Qt::CTRL | Qt::Key_R, {"5\t\t2026-3-30\r", "\r"}),
              testing::HasSubstr("cannot be updated to be in the past"));
  EXPECT_THAT(press(Qt::CTRL | Qt::Key_R, {"5\t\t2999-3-30\r", "\r"}),
              testing::HasSubstr("in the future"));
  press(Qt::CTRL | Qt::Key_R, {"-1,000.50\t\t2026-3-31\r"});
  EXPECT_EQ(inFile().last(hundred).balance, Money(cad, -100050));
  EXPECT_EQ(selected(), "100");
  view->setCurrentIndex(row(1));
  EXPECT_EQ(press(Qt::Key_F2), ""); // greyed, as the bank is closed
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
