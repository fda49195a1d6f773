#include "Book.hpp"

#include "BookReader.hpp"
#include "Terminal.hpp"
#include "support/Testing.hpp"

using namespace testing;

namespace {

// What is listed once the lines are carried out.
std::string listed(Book& book, std::initializer_list<char const*> lines)
{
  for (auto const* const line : lines) {
    book.execute(line);
  }
  return book.execute("list").toStdString();
}

} // namespace

TEST(BookReader, SplitsALineIntoWords)
{
  auto const words = [](char const* line) { return toWords(toText(line)); };
  EXPECT_THAT(words("a  b#c\té\u00a0e # f\r\n"), ElementsAre("a", "b#c", "é\u00a0e"));
  EXPECT_THAT(words(R"("a  b" "" 1="Credit Card" "\"\\\x#")"),
              ElementsAre("a  b", "", "1=Credit Card", R"("\\x#)"));
}

TEST(BookReader, ReadsAmountsExactly)
{
  auto const shown = [](char const* amount, char const* currency) {
    return streamed(toAmount(amount, currency).money());
  };
  EXPECT_EQ(shown("-0.05", "EUR"), "-0.05\u00a0EUR");
  EXPECT_EQ(shown("20.5000", "CAD"), "20.50\u00a0CAD");
  EXPECT_EQ(shown("7", "KWD"), "7.000\u00a0KWD");
  EXPECT_EQ(shown("2050.00", "JPY"), "2050\u00a0JPY");
  EXPECT_EQ(shown("-92233720368547758.08", "CAD"), "-92233720368547758.08\u00a0CAD");
}

TEST(Book, RefusesLinesAndStaysAsItWas)
{
  Book book;
  auto const before = listed(book, {"bank Elm 1=Loan", "reconcile 1 2026-01-31 -5 CAD"});
  std::pair<QByteArray, char const*> const refusals[] = {
      {"bank \"b", "A quoted word does not end."},
      {"bank \xC3", "The line is not UTF-8 text."},
      {QByteArray("bank a\0b", 8), "The line contains a NUL character."},
      {"fly", "There is no command 'fly'."},
      {"remove Elm 1 2", "The command is written: remove NAME [NUMBER]"},
      {"bank Oak 2=Loan 2=Goal", "The account number 2 is given twice."},
      {"add Elm 2 Checking", "'Checking' is no kind of account; the kinds are: Chequeing, Cred"},
      {"find 4294967296", "'4294967296' is not an account number."},
      {"reconcile 2 2026-01-31 1 CAD", "No bank holds the account number 2."},
      {"reconcile 1 2026/02/28 1 CAD", "'2026/02/28' is not a date such as 2026-01-31."},
      {"reconcile 1 2026-01-31- 1 CAD", "'2026-01-31-' is not a date such as 2026-01-31."},
      {"reconcile 1 2026-02-28 1 cad", "'cad' is not a currency code such as CAD."},
      {"reconcile 1 2026-02-28 .5 CAD", "'.5' is not an amount of CAD such as -1250.50."},
      {"reconcile 1 2026-01-30 1 CAD", "There is an issue with the bank 'Elm'. The last"},
      {"reconcile 1 2026-02-28 1 EUR", "The balance of the account number 1 is not kept in EUR."},
  };
  for (auto const& refusal : refusals) {
    EXPECT_THAT([&] { book.execute(refusal.first); },
                ThrowsMessage<std::exception>(StartsWith(refusal.second)));
  }
  EXPECT_EQ(listed(book, {}), before);
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
  EXPECT_EQ(book.execute("find 5"), "No bank holds the account number 5.\n");

  EXPECT_THAT(listed(book, {"bank Oak", "update \"Big Elm\" 1=Loan 2=Goal", "add Oak 3 Goal",
                            "remove \"Big Elm\" 2", "add Oak 2 Goal"}),
              Not(AnyOf(HasSubstr("6.25"), HasSubstr("7.25"))));
  EXPECT_THAT(listed(book, {"close \"Big Elm\""}),
              HasSubstr("closed        1  Loan  liability  -5.25"));
  EXPECT_THAT(listed(book, {"open \"Big Elm\"", "remove \"Big Elm\"", "add Oak 1 Loan"}),
              Not(AnyOf(HasSubstr("Elm"), HasSubstr("5.25"))));
}

TEST(Terminal, ObeysNothingThatABookSays)
{
  Book book;
  EXPECT_THAT(listed(book, {"bank \"\u001b[2J\u202e\u2028é\u0301\" 1=Goal"}),
              HasSubstr("\n--------------------------  -----  -------  ----  -----  -------  "
                        "----------\n\\u{1B}[2J\\u{202E}\\u{2028}é\u0301  open         1"));
  EXPECT_EQ(book.execute("find 1"), "\\u{1B}[2J\\u{202E}\\u{2028}é\u0301: 1 (Goal)\n");
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
