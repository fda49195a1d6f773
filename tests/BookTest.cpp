#include "Book.hpp"

#include "BookReader.hpp"
#include "Terminal.hpp"
#include "support/Log.hpp"
#include "support/Testing.hpp"

#include <QTemporaryDir>

using namespace testing;

namespace {

std::string run(Book& book, QByteArray const& line)
{
  return execute(book, toWords(toText(line))).toStdString();
}

// What is listed once the lines are carried out.
std::string listed(Book& book, std::initializer_list<char const*> lines)
{
  for (auto const* const line : lines) {
    run(book, line);
  }
  return run(book, "list");
}

void refuses(Book& book, QByteArray const& line, std::string const& start)
{
  EXPECT_THAT([&] { run(book, line); }, ThrowsMessage<std::exception>(StartsWith(start)))
      << line.toStdString();
}

void write(QString const& name, QByteArray const& content)
{
  QFile file(name);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

QByteArray statementOf(QByteArray const& id, QByteArray const& amount)
{
  return "<STMTRS><CURDEF>CAD<BANKACCTFROM><ACCTID>" + id +
         "<ACCTTYPE>SAVINGS</BANKACCTFROM><LEDGERBAL><BALAMT>" + amount +
         "<DTASOF>20260131</LEDGERBAL></STMTRS>";
}

} // namespace

TEST(BookReader, SplitsALineIntoWords)
{
  auto const words = [](char const* line) { return toWords(toText(line)); };
  EXPECT_THAT(words("a  b#c\té\u00a0e # f\r"), ElementsAre("a", "b#c", "é\u00a0e"));
  EXPECT_THAT(words("\"a\t b\" \"\" 1=\"Credit Card\" \"\\\"\\\\\\x#\" \\x \u200f"),
              ElementsAre("a  b", "", "1=Credit Card", R"("\\x#)", R"(\x)", "\u200f"));
}

TEST(BookReader, ReadsAmountsExactly)
{
  std::tuple<char const*, char const*, qint64> const rows[]{
      {"-0.05", "EUR", -5},
      {"-5", "EUR", -500},
      {"7", "KWD", 7000},
      {"20.5000", "CAD", 2050},
      {"2050.00", "ISK", 2050},
      {"-92233720368547758.08", "CAD", std::numeric_limits<qint64>::min()},
  };
  for (auto const& [amount, currency, minorUnits] : rows) {
    EXPECT_EQ(toAmount(amount, currency).minorUnits, minorUnits) << amount;
  }
}

TEST(Book, RefusesLinesAndStaysAsItWas)
{
  Book book;
  auto const before = listed(book, {"bank Elm 1=Loan", "reconcile 1 2026-01-31 -5 CAD"});
  std::pair<QByteArray, char const*> const refusals[] = {
      {"bank \"b", "A quoted word does not end"},
      {"bank \xC3", "The line is not UTF-8 text"},
      {QByteArray("bank a\0b", 8),
       "The line contains the character \\u{0}, which cannot be shown."},
      {"# my book\rbank a\r", "The line contains the character \\u{D}, which"},
      {"fly", "There is no command 'fly'; help shows"},
      {"help A", "There is no command 'A'"},
      {"remove Elm 1 2", "The command is written: remove NAME [NUMBER]."},
      {"close", "The command is written: close NAME."},
      {"bank Oak Tree 2=Loan", "The command is written: bank NAME [NUMBER=KIND ...]."},
      {"update Elm 2 = Loan", "The command is written: update NAME"},
      {"identifier 1 \" \"", "The command is written: identifier NUMBER IDENTIFIER."},
      {"bank Oak 2=Loan 2=Goal", "The account number 2 is given twice."},
      {"add Elm 2 Checking", "'Checking' is no kind of account; the kinds are: Chequeing, \"Cred"},
      {"find 4294967296", "'4294967296' is not an account number"},
      {"reconcile 2 2026-01-31 1 CAD", "No bank holds the account number 2"},
      {"reconcile 1 2026/02/28 1 CAD", "'2026/02/28' is not a date such as 2026-01-31."},
      {"reconcile 1 2026-01-31- 1 CAD", "'2026-01-31-' is not a date such as 2026-01-31."},
      {"reconcile 1 2026-02-28 1 cad", "'1 cad' is not an amount such as -1250.50 CAD."},
      {"reconcile 1 2026-02-28 .5 CAD", "'.5 CAD' is not an amount such as"},
      {"reconcile 1 2026-02-28 20.505 CAD", "'20.505 CAD' is not an amount such as"},
      {"reconcile 1 2026-01-30 1 CAD", "There is an issue with the bank 'Elm'. The last"},
      {"reconcile 1 2026-02-28 1 EUR", "The balance of the account number 1 is kept in CAD, not"},
  };
  for (auto const& [line, start] : refusals) {
    refuses(book, line, start);
  }
  EXPECT_EQ(listed(book, {}), before);
  EXPECT_EQ(run(book, "bank Oak"), ""); // and shows nothing of what was shown before
}

TEST(Book, KeepsBalancesWithTheirAccounts)
{
  Book book;
  EXPECT_EQ(
      listed(book, {"bank Elm 1=Loan 2=Goal 3=Savings 4=Goal", "reconcile 1 2026-01-31 -5.25 CAD",
                    "reconcile 2 2026-01-31 6.25 CAD", "reconcile 3 2026-01-31 7.25 CAD",
                    "rename Elm \"Big Elm\"", "add \"Big Elm\" 1 \"Credit Card\""}),
      "Bank     State  Account  Kind         Class        Balance  Reconciled\n"
      "-------  -----  -------  -----------  ---------  ---------  ----------\n"
      "Big Elm  open         1  Credit Card  liability  -5.25\u00a0CAD  2026-01-31\n"
      "Big Elm  open         2  Goal         asset       6.25\u00a0CAD  2026-01-31\n"
      "Big Elm  open         3  Savings      asset       7.25\u00a0CAD  2026-01-31\n"
      "Big Elm  open         4  Goal         asset\n");
  refuses(book, "find 5", "No bank holds the account number 5");

  EXPECT_THAT(listed(book, {"bank Oak", "update \"Big Elm\" 1=Loan 2=Goal", "add Oak 3 Goal",
                            "remove \"Big Elm\" 2", "add Oak 2 Goal"}),
              Not(AnyOf(HasSubstr("6.25"), HasSubstr("7.25"))));
  EXPECT_THAT(listed(book, {"close \"Big Elm\""}),
              HasSubstr("closed        1  Loan  liability  -5.25"));
  EXPECT_THAT(listed(book, {"open \"Big Elm\"", "remove \"Big Elm\"", "add Oak 1 Loan"}),
              Not(AnyOf(HasSubstr("Elm"), HasSubstr("5.25"))));
}

TEST(Book, KeepsToTheIdentifierOfAnAccount)
{
  QTemporaryDir const folder;
  write(folder.filePath("all"), "<OFX>" + statementOf("A-1", "5") + statementOf("A-2", "6") +
                                    statementOf("A\u001b3", "7") + "</OFX>");
  write(folder.filePath("one"), "<OFX>" + statementOf("A-1", "8") + "</OFX>");
  Book book{QDir(folder.path())};
  listed(book, {"bank Elm 1=Savings 2=Goal", "bank Oak 3=Savings"});
  refuses(book, "statement all",
          "No account is bound to A-1, A-2, A\\u{1B}3. Bind one: statement NUMBER");
  EXPECT_EQ(run(book, "statement 1 one"),
            "1 (Savings): took the statement of A-1, dated 2026-01-31, with a balance of "
            "8.00\u00a0CAD.\n");
  refuses(book, "statement 1 all A-2", "The account number 1 is bound to 'A-1', not to 'A-2'");
  refuses(book, "statement 2 one", "'A-1' is bound to another account of the bank, 1.");
  EXPECT_THAT(run(book, "statement 1 all"), HasSubstr("A-1")); // among several, the one bound to
  run(book, "identifier 2 A-2");
  EXPECT_THAT(run(book, "statement all"),
              AllOf(HasSubstr("1 (Savings)"), HasSubstr("2 (Goal)"),
                    HasSubstr("\nNo account is bound to A\\u{1B}3. Bind one:")));

  auto const before = listed(book, {"identifier 3 A-1"});
  refuses(book, "statement all", "Accounts of several banks are bound to 'A-1'.");
  run(book, "add Oak 3 Goal"); // of another kind, and so without an identifier
  listed(book, {"reconcile 2 2026-02-28 9 CAD", "rename Elm Ash", "close Ash"});
  auto const late = run(book, "print");
  refuses(book, "statement all", "There is an issue with the bank 'Ash'. The last");
  EXPECT_EQ(run(book, "print"), late); // with what came before the one that is late
  listed(book, {"open Ash", "update Ash 1=Savings", "add Ash 2 Goal", "remove Ash 1"});
  EXPECT_THAT(run(book, "print"), Not(HasSubstr("identifier")));

  for (auto const* const name : {"missing", "."}) {
    refuses(book, QByteArray("statement 2 ") + name, folder.path().toStdString());
  }
}

TEST(Book, WarnsOfTheFuture)
{
  Book book;
  takeMessages();
  listed(book, {"bank Elm 1=Loan", "reconcile 1 2026-01-31 1 CAD", "reconcile 1 9999-12-31 1 CAD"});
  auto const messages = takeMessages();
  ASSERT_EQ(messages.size(), 1);
  EXPECT_TRUE(messages[0].contains("9999-12-31 of the account number 1 lies in the future"))
      << messages[0].toStdString();
}

TEST(Book, PrintsWhatMakesItAgain)
{
  Book book;
  listed(book, {R"(bank "x \"\\u{41}" 1=Loan "2=Credit Card")", R"(bank "#")", "bank a#b\\",
                "close a#b\\", "add a#b\\ 3 Savings", "identifier 1 \"A B\"",
                "reconcile 1 2026-01-31 -0.05 CAD", "reconcile 3 2026-01-31 2050 ISK"});
  auto const printed = run(book, "print");
  Book again;
  for (auto const& line : QByteArray::fromStdString(printed).split('\n')) {
    run(again, line);
  }
  EXPECT_EQ(run(again, "print"), printed);
  EXPECT_EQ(run(again, "list"), run(book, "list"));
  EXPECT_EQ(printed, R"(bank "#"
bank "a#b\\" 3=Savings
bank "x \"\\u{41}" 1=Loan "2=Credit Card"
identifier 1 "A B"
reconcile 1 2026-01-31 -0.05 CAD
reconcile 3 2026-01-31 2050 ISK
close "a#b\\"
)");
}

TEST(Terminal, ObeysNothingThatABookSays)
{
  Book book;
  for (auto const* const code : {"\u001b", "\u202e", "\u2028"}) {
    refuses(book, QByteArray("# ") + code, "The line contains the character \\u{");
  }
}

TEST(Terminal, AlignsByTheWidthOfCharacters)
{
  EXPECT_EQ(
      toTable({{"A", "B"}, {"日本", "1"}, {"e\u0301", "22"}, {"👩\u200d🌾", "3"}, {"xyz"}}, "lr"),
      "A      B\n"
      "----  --\n"
      "日本   1\n"
      "e\u0301     22\n"
      "👩\u200d🌾   3\n"
      "xyz\n");
}
