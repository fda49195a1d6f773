#include "support/Refusal.hpp"

#include <QFile>
#include <QLoggingCategory>
#include <QRegularExpression>

using Accounts = std::map<AccountNumber, BankAccountTypes>;

// Where two rules are broken, the first is told.
TEST(Bank, RefusesToBreakItsRules)
{
  Accounts const invalid{{AccountNumber(), Loan}, {hundred, Unknown}};
  Accounts const unknown{{AccountNumber(1), Loan}, {hundred, Unknown}};
  Bank const bank(elm, {}, true);
  Bank const open;
  EXPECT_REFUSED(bank, Bank({}, invalid, true), {},
                 "The name of a financial institution cannot be empty.");
  EXPECT_REFUSED(bank, Bank(elm, invalid, true), elm,
                 "The bank account number of a financial institution cannot be invalid.");
  EXPECT_REFUSED(bank, Bank(elm, unknown, true), elm,
                 "The bank account type of a financial institution cannot be unknown.");
  EXPECT_REFUSED(bank, bank.close(), elm, "Cannot close a bank that is already closed.", 1);
  Bank const odd(BankName("<É>&  \n"), {}, true);
  EXPECT_REFUSED(odd, odd.close(), odd.name(), "Cannot close a bank that is already closed.", 1);
  QLocale::setDefault(QLocale("de_DE"));
  EXPECT_REFUSED(bank, bank.remove(AccountNumber(4294967295U)), elm,
                 "The account '4294967295' is not associated with the financial institution.", 1);
  QLocale::setDefault(QLocale::c());
  EXPECT_REFUSED(open, open.open(), {}, "Cannot open a bank that is already opened.", 1);
  EXPECT_REFUSED(bank, bank.add(AccountNumber(), Unknown), elm,
                 "Cannot add an account number of a financial institution that is invalid.", 1);
  EXPECT_REFUSED(bank, bank.add(hundred, Unknown), elm,
                 "Cannot add an account type of a financial institution that is unknown.", 1);
  EXPECT_REFUSED(bank, bank.remove(hundred), elm,
                 "The account '100' is not associated with the financial institution.", 1);
}

// In English but for the kinds, with the bank as it is before the change, as the page for users
// quotes them. A value that is no kind ends a message early.
TEST(Bank, LogsWhatItIsAsked)
{
  ScopedTranslator const translator;
  Bank bank(BankName("Elm"), {{hundred, Loan}}, true);
  takeMessages();
  bank.open();
  bank.add(hundred, Loan);
  EXPECT_THROW(bank.add(hundred, noKind), std::logic_error);
  QLoggingCategory::setFilterRules("default.info=false");
  EXPECT_THROW(bank.add(hundred, noKind), std::logic_error);
  QLoggingCategory::setFilterRules("");
  EXPECT_THROW(Bank(elm, {{hundred, noKind}}, false).remove(hundred), std::logic_error);
  bank.remove(hundred);
  bank.close();
  auto messages = takeMessages();
  QString const name("\"Financial Institution Name: (Elm)\"");
  EXPECT_EQ(
      messages,
      QStringList({"Opening " + name, "Adding account number 100 which is \"~Loan\" to " + name,
                   "Adding account number 100 which is", "Removing account number 100 from",
                   "Removing account number 100 from \"Bank: (Financial Institution Name: "
                   "(Elm)), Account Numbers: (100=>~Loan), Is Closed: false)\"",
                   "Closing " + name}));

  QFile page(ORV_BANKING_LOG_PAGE);
  EXPECT_TRUE(page.open(QIODevice::ReadOnly));
  auto const quotes = QString(page.readAll())
                          .simplified()
                          .split('`')
                          .filter(QRegularExpression("^(Opening|Closing|Adding|Removing) "));
  EXPECT_THAT(quotes, testing::UnorderedElementsAreArray(messages.replaceInStrings("~", "")));
}

TEST(Bank, WritesItsAccountsInAnyFormatAndStaysInBoolalpha)
{
  AccountNumber const largest(4294967295U);
  expectWritten(Bank(elm, {{largest, Loan}, {AccountNumber(9), Goal}, {hundred, Loan}}, true),
                "Bank: (Financial Institution Name: (Elm  € %2)), Account Numbers: (9=>Goal, "
                "100=>Loan, 4294967295=>Loan), Is Closed: true)");
  std::ostringstream stream;
  stream << Bank() << false;
  EXPECT_EQ(stream.str(), "Bank: (Financial Institution Name: ()), Account Numbers: (), Is Closed: "
                          "false)false");
}

TEST(Bank, ChangesOneAccountThoughItIsClosed)
{
  Bank bank(elm, {{AccountNumber(1), Loan}, {hundred, Loan}, {AccountNumber(200), Loan}}, true);
  bank.add(hundred, Goal);
  bank.remove(AccountNumber(1));
  bank.open();
  bank.close();
  EXPECT_EQ(bank, Bank(elm, {{hundred, Goal}, {AccountNumber(200), Loan}}, true));
}

TEST(Bank, EqualsOneOfTheSameNameAccountsAndState)
{
  Accounts const loan{{hundred, Loan}};
  EXPECT_NE(Bank(elm, loan, true), Bank(oak, loan, true));
  EXPECT_NE(Bank(elm, loan, true), Bank(elm, {{hundred, Goal}}, true));
  EXPECT_NE(Bank(elm, loan, true), Bank(elm, {{AccountNumber(1), Loan}}, true));
  EXPECT_NE(Bank(elm, loan, true), Bank(elm, loan, false));
}
