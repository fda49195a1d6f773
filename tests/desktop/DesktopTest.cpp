// The window, and the books, store and session behind it.

#include "Session.hpp"
#include "Window.hpp"
#include "support/Testing.hpp"

#include <QAbstractItemModelTester>
#include <QTest>
#include <QtWidgets>

namespace {

class DesktopTest : public testing::Test
{
protected:
  DesktopTest()
  {
    session_.change([](Books& books) {
      books.banks = BankMap({{elm, Bank(elm, {{hundred, Loan}, {AccountNumber(20), Goal}}, false)},
                             {pine, Bank(pine, {}, true)}});
      reconcile(books, hundred, {Money(Currency("CAD"), -123456), march});
    });
  }

  static QString text(Session const& session)
  {
    auto text = streamed(session.books().banks);
    for (auto const& [number, last] : session.books().balances) {
      text += presentationText(number) + debugged(last).front();
    }
    return text + session.problems().join(u'\n');
  }

  // What a program reads that opens the file now.
  QString inFile() const { return text(Session(path_)); }

  // Writes to the file as another program does, which knows nothing of foreign keys.
  QVariant execute(QString const& statement) const
  {
    auto database = QSqlDatabase::addDatabase(u"QSQLITE"_s);
    database.setDatabaseName(path_);
    EXPECT_TRUE(database.open());
    QSqlQuery query(database);
    EXPECT_TRUE(query.exec(statement));
    return query.next() ? query.value(0) : QVariant();
  }

  // Types into the dialogs that come, a text into each, and keeps what message boxes say. Any more dialogs
  // are given up.
  void type(QStringList const& texts)
  {
    QTimer::singleShot(0, qApp, [=, this] {
      if (auto* const dialog = QApplication::activeModalWidget(); dialog != nullptr) {
        EXPECT_TRUE(QTest::qWaitFor([=] { return dialog->focusWidget() != nullptr; }));
        auto const* const box = qobject_cast<QMessageBox*>(dialog);
        messages_ += box != nullptr ? QStringList(box->text()) : QStringList();
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
  QStringList messages_{};
};

TEST_F(DesktopTest, ChangesAreInTheFile)
{
  auto const before = inFile();
  auto const id = u"SELECT id FROM banks WHERE closed = 0"_s;
  auto const elmsId = execute(id);
  session_.change([](Books& books) { books.banks.rename(elm, oak); });
  EXPECT_EQ(execute(id), elmsId);
  session_.change([](Books& books) { books.banks.remove(oak, hundred); });
  EXPECT_TRUE(session_.books().balances.empty());
  EXPECT_EQ(inFile(), text(session_));
  session_.undo();
  session_.undo();
  EXPECT_EQ(inFile(), before);
  session_.redo();
  EXPECT_EQ(inFile(), text(session_));
  EXPECT_EQ(inFile(), QString(before).replace(elm.institution(), oak.institution()));
  session_.change([](Books& books) { books.banks.open(pine); });
  EXPECT_FALSE(session_.canRedo());
}

TEST_F(DesktopTest, AWriteThatFailsChangesNothing)
{
  execute(u"CREATE TRIGGER fails BEFORE DELETE ON banks BEGIN SELECT RAISE(ABORT, 'full'); END"_s);
  session_.reload();
  auto const before = inFile();
  EXPECT_THROW(session_.change([](Books& books) { // the deletion of a bank is written last
    books.banks.remove(elm, hundred);
    books.banks.remove(pine);
  }),
               UserError);
  EXPECT_EQ(text(session_), before);
  EXPECT_EQ(inFile(), before);
  EXPECT_FALSE(session_.canUndo());
}

TEST_F(DesktopTest, AnotherWindowsWorkStays)
{
  Session other(path_);
  other.change([](Books& books) { books.banks.open(pine); });
  auto const theirs = inFile();
  EXPECT_THROW(session_.change([](Books& books) { books.banks.rename(elm, oak); }), UserError);
  EXPECT_EQ(inFile(), theirs);
  session_.reload();
  session_.change([](Books& books) { books.banks.rename(elm, oak); });
  EXPECT_FALSE(Session(path_).books().banks.bank(pine).isClosed());
}

TEST_F(DesktopTest, RowsThatBreakARuleAreToldAndStay)
{
  execute(u"INSERT INTO banks (name, closed) VALUES (' ', 0)"_s);
  execute(u"INSERT INTO accounts (number, bank, kind, currency, minor_units, occurred_on) VALUES "
          "(-1, 1, 'Loan', NULL, NULL, NULL), (7, 1, 'Mortgage', NULL, NULL, NULL), "
          "(8, 9, 'Loan', NULL, NULL, NULL), (9, 1, 'Loan', 'cad', 1, '2026-01-01'), "
          "(10, 1, 'Loan', 'CAD', 1.5, '2026-01-01'), (11, 1, 'Loan', 'CAD', 1, '2026-1-1')"_s);
  session_.reload();
  EXPECT_EQ(session_.problems().join(u'\n'),
            "Account -1: '-1' is not an account number.\nAccount 7: 'Mortgage' is not a kind of "
            "account.\n"
            "Account 8: There is an issue with the bank ''. The name of a financial institution "
            "cannot be empty.\n"
            "Account 9: 'cad' is not a currency such as CAD.\n"
            "Account 10: '1.5' and '2026-01-01' are not an amount and a date.\n"
            "Account 11: '1' and '2026-1-1' are not an amount and a date.\n"
            "Bank  : There is an issue with the bank ''. The name of a financial institution "
            "cannot be empty.");
  auto const before = inFile();
  EXPECT_THROW(session_.change([](Books& books) { books.banks.rename(elm, oak); }), UserError);
  EXPECT_EQ(inFile(), before);
  EXPECT_EQ(text(session_), before);
}

TEST_F(DesktopTest, ReadsAmountsAsTheyAreTyped)
{
  auto const read = [](char const* locale, QString const& text) {
    QLocale::setDefault(QLocale(QString::fromUtf8(locale)));
    return toMoney(text, Currency("CAD")).minorUnits();
  };
  EXPECT_EQ(read("en_CA", "-1,234.5"), -123450);
  EXPECT_EQ(read("fr_FR", "1 234,05"), 123405);
  EXPECT_EQ(read("es_ES", "1.234"), 123400);
  for (auto const* const locale :
       {"ar_EG", "de_CH", "de_DE", "en_CA", "en_IN", "fr_CA", "he_IL", "sv_SE"}) {
    QLocale::setDefault(QLocale(QString::fromUtf8(locale)));
    for (auto const units : {std::numeric_limits<qint64>::min(), qint64(5), qint64(123456789)}) {
      auto const shown = presentationText(Money(Currency("CAD"), units));
      EXPECT_EQ(read(locale, shown), units) << locale; // what is shown can be typed
    }
    EXPECT_EQ(toDate(orv::foundation::presentationText(march)), march) << locale;
  }
  for (auto const* const text :
       {"", "-", "1.5", "1,", ",5", "1,505", "1e5", "--1", "(1", "92233720368547758,08"}) {
    EXPECT_THROW(read("de_DE", text), UserError) << text;
  }
  QLocale::setDefault(QLocale(u"en_CA"_s));
}

TEST_F(DesktopTest, TheWindowKeepsToTheRules)
{
  auto const window = newWindow(path_);
  auto* const view = window->findChild<QTreeView*>();
  QAbstractItemModelTester const tester(view->model(),
                                        QAbstractItemModelTester::FailureReportingMode::Fatal);
  auto const command = [&](QString const& text) {
    auto const actions = window->findChildren<QAction*>();
    return *std::ranges::find(actions, text,
                              [](auto* action) { return action->text().remove(u'&'); });
  };
  auto const give = [&](QString const& text, QStringList const& typed = {}) {
    type(typed);
    command(text)->trigger();
    QCoreApplication::processEvents();
  };
  auto const selected = [&] { return view->currentIndex().data().toString(); };
  window->show();
  EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));

  give("New…", {"Yew\r"});
  EXPECT_EQ(selected(), "Yew");
  auto const before = inFile();
  give("New…", {"Yew\r", "\r", "\x1b"});
  EXPECT_EQ(messages_.join(u'\n'),
            "There is an issue with the bank 'Yew'. Cannot add a bank that already exists.");
  EXPECT_EQ(inFile(), before);

  view->setCurrentIndex(view->model()->index(0, 0));
  EXPECT_EQ(selected(), elm.institution());
  messages_.clear();
  give("Rename…", {"\r"}); // the same name is no change
  EXPECT_EQ(messages_.join(u'\n'), "");
  give("Rename…", {"Zelkova\r"});
  EXPECT_EQ(selected(), "Zelkova");
  EXPECT_EQ(view->currentIndex().row(), 2);
  EXPECT_TRUE(view->isExpanded(view->currentIndex()));
  give("Undo");
  EXPECT_EQ(inFile(), before);
  EXPECT_EQ(selected(), elm.institution());
  give("Redo");
  EXPECT_EQ(selected(), "Zelkova");

  messages_.clear();
  give("Add…", {"100\r", "\x1b", "\x1b"});
  EXPECT_EQ(messages_.join(u'\n'), "The bank holds account 100 as Loan. Change it to Chequeing?");
  view->setCurrentIndex(view->model()->index(1, 0, view->currentIndex()));
  messages_.clear();
  give("Reconcile…", {"-1,000.50\t\t2026-3-30\r", "\r", "\x1b"});
  EXPECT_THAT(messages_.join(u'\n').toStdString(),
              testing::HasSubstr("cannot be updated to be in the past"));
  give("Reconcile…", {"-1,000.50\t\t2026-3-31\r"});
  EXPECT_EQ(view->currentIndex().siblingAtColumn(2).data().toString(),
            presentationText(Money(Currency("CAD"), -100050)));
  EXPECT_TRUE(command("Rename…")->isEnabled());
  give("Close");
  EXPECT_FALSE(command("Rename…")->isEnabled());
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
