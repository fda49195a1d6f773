#include "Book.hpp"

#include "BookError.hpp"
#include "BookReader.hpp"
#include "support/Printing.hpp"
#include "support/Refusal.hpp"

#include <banking/BankError.hpp>

#include <gmock/gmock.h>

using mintar::Currency;
using mintar::Money;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace {

std::string listed(Book& book)
{
  return book.execute("list").toStdString();
}

} // namespace

TEST(BookReader, SplitsALineIntoWords)
{
  auto const words = [](char const* line) { return toWords(toText(line)); };
  EXPECT_THAT(words(""), testing::IsEmpty());
  EXPECT_THAT(words(" \t # \"not read"), testing::IsEmpty());
  EXPECT_THAT(words("a  b#c\td # e\r\n"), ElementsAre("a", "b#c", "d"));
  EXPECT_THAT(words(R"("a  b" "" 1="Credit Card" "\"\\\x#")"),
              ElementsAre("a  b", "", "1=Credit Card", R"("\\x#)"));
  EXPECT_THAT(words("Épargne\u00a0B"), ElementsAre(QStringLiteral("Épargne\u00a0B")));
  expectThrows<BookError>("A quoted word does not end.", [&] { words("a \"b"); });
  expectThrows<BookError>("The line is not UTF-8 text.", [&] { words("bank \xC3"); });
}

TEST(BookReader, ReadsAmountsExactly)
{
  EXPECT_EQ(toMoney("-12.5", "CAD"), Money(Currency("CAD"), -1250));
  EXPECT_EQ(toMoney("0.05", "EUR"), Money(Currency("EUR"), 5));
  EXPECT_EQ(toMoney("7", "KWD"), Money(Currency("KWD"), 7000));
  EXPECT_EQ(toMoney("-92233720368547758.08", "CAD"),
            Money(Currency("CAD"), std::numeric_limits<qint64>::min()));
  for (auto const* const amount : {"", ".", "1.", ".5", "+1", "--1", "1.234", "1,5", "1 0",
                                   "92233720368547758.08", "1e3", "1.2.3"}) {
    expectThrows<BookError>(QStringLiteral("'") + amount + "' is not an amount of CAD.",
                            [&] { toMoney(amount, "CAD"); });
  }
  expectThrows<BookError>("'cad' is not a currency code such as CAD.", [] { toMoney("1", "cad"); });
}

TEST(Book, RefusesLinesAndStaysAsItWas)
{
  Book book;
  book.execute("bank Elm 1=Loan");
  book.execute("reconcile 1 2026-01-31 -5 CAD");
  auto const before = listed(book);
  for (auto const& [line, text] : {
           std::pair("fly", "There is no command 'fly'."),
           std::pair("open", "The command is written: open NAME"),
           std::pair("list all", "The command is written: list"),
           std::pair("remove Elm 1 2", "The command is written: remove NAME [NUMBER]"),
           std::pair("bank Oak 2=Loan 2=Goal", "The account number 2 is given twice."),
           std::pair("bank Oak 2", "Failed to convert from the weak value '' to another type for "
                                   "'N3orv7banking16BankAccountTypesE'."),
           std::pair("find -1", "'-1' is not an account number."),
           std::pair("find 4294967296", "'4294967296' is not an account number."),
           std::pair("reconcile 2 2026-01-31 1 CAD", "No bank holds the account number 2."),
           std::pair("reconcile 1 2026-02-30 1 CAD",
                     "'2026-02-30' is not a date such as 2026-01-31."),
           std::pair("reconcile 1 2026-02-28 1 EUR",
                     "The balance of the account number 1 is not kept in EUR."),
           std::pair("rename Oak \" \"",
                     "There is an issue with the bank ''. The name of a financial "
                     "institution cannot be empty."),
           std::pair("update Elm 0=Goal", "There is an issue with the bank 'Elm'. The bank account "
                                          "number of a financial institution cannot be invalid."),
       }) {
    SCOPED_TRACE(line);
    try {
      book.execute(line);
      ADD_FAILURE() << "not refused";
    } catch (std::exception const& refusal) {
      EXPECT_STREQ(refusal.what(), text);
    }
  }
  EXPECT_EQ(listed(book), before);
}

TEST(Book, KeepsBalancesWithTheirBank)
{
  Book book;
  EXPECT_EQ(book.execute("  # nothing"), "");
  book.execute("bank Elm 1=Loan 2=Goal 3=Savings");
  book.execute("reconcile 1 2026-01-31 -5.25 CAD");
  book.execute("reconcile 2 2026-01-31 6.25 CAD");
  book.execute("reconcile 3 2026-01-31 7.25 CAD");
  EXPECT_EQ(book.execute("find 1"), "Elm: 1 (Loan)\n");
  EXPECT_EQ(book.execute("find 4"), "No bank holds the account number 4.\n");

  book.execute("rename Elm \"Big Elm\"");
  book.execute("add \"Big Elm\" 1 \"Credit Card\"");
  EXPECT_EQ(listed(book),
            "Bank     State  Account  Kind         Class        Balance  Reconciled\n"
            "-------  -----  -------  -----------  ---------  ---------  -----------\n"
            "Big Elm  open         1  Credit Card  liability  -5.25\u00a0CAD  31 Jan 2026\n"
            "Big Elm  open         2  Goal         asset       6.25\u00a0CAD  31 Jan 2026\n"
            "Big Elm  open         3  Savings      asset       7.25\u00a0CAD  31 Jan 2026\n");
  expectThrows<orv::banking::BankError>(
      "There is an issue with the bank 'Big Elm'. The last reconciled date, 31 Jan 2026, cannot be "
      "updated to be in the past, 30 Jan 2026.",
      [&] { book.execute("reconcile 1 2026-01-30 1 CAD"); });

  book.execute("bank Oak");
  book.execute("update \"Big Elm\" 1=Loan 2=Goal");
  EXPECT_THAT(listed(book), Not(HasSubstr("7.25")));
  book.execute("add Oak 3 Goal");
  book.execute("remove \"Big Elm\" 2");
  EXPECT_THAT(listed(book), Not(HasSubstr("6.25")));
  book.execute("close \"Big Elm\"");
  EXPECT_THAT(listed(book), HasSubstr("closed        1  Loan  liability  -5.25\u00a0CAD"));
  book.execute("open \"Big Elm\"");
  book.execute("remove \"Big Elm\"");
  book.execute("add Oak 1 Loan");
  EXPECT_EQ(listed(book), "Bank  State  Account  Kind  Class      Balance  Reconciled\n"
                          "----  -----  -------  ----  ---------  -------  ----------\n"
                          "Oak   open         1  Loan  liability\n"
                          "Oak   open         3  Goal  asset\n");
  EXPECT_EQ(
      book.execute("print"),
      "Bank Map (Financial Institution Name: (Oak)=>Bank: (Financial Institution Name: (Oak)), "
      "Account Numbers: (1=>Loan, 3=>Goal), Is Closed: false))\n");
}
