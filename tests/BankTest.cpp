#include "support/Testing.hpp"

#include <QFile>
#include <QLoggingCategory>

using Accounts = std::map<AccountNumber, BankAccountTypes>;

// Where a row breaks two rules, the first one is reported.
TEST(Bank, RefusesToBreakItsRules)
{
  Accounts const invalid{{AccountNumber(), Loan}, {hundred, Unknown}};
  Accounts const unknown{{AccountNumber(1), Loan}, {hundred, Unknown}};
  Bank bank(elm, {}, true);
  Bank open;
  EXPECT_REFUSAL(Bank({}, invalid, true), {},
                 "The name of a financial institution cannot be empty.");
  EXPECT_REFUSAL(Bank(elm, invalid, true), elm,
                 "The bank account number of a financial institution cannot be invalid.");
  EXPECT_REFUSAL(Bank(elm, unknown, true), elm,
                 "The bank account type of a financial institution cannot be unknown.");
  EXPECT_REFUSED(bank, bank.close(), elm, "Cannot close a bank that is already closed.", 1);
  ScopedLocale const german(QLocale("de_DE")); // which groups digits of other numbers
  EXPECT_REFUSED(bank, bank.remove(AccountNumber(4294967295U)), elm,
                 "The account '4294967295' is not associated with the financial institution.", 1);
  EXPECT_REFUSED(open, open.open(), {}, "Cannot open a bank that is already opened.", 1);
  EXPECT_REFUSED(bank, bank.add(AccountNumber(), Unknown), elm,
                 "Cannot add an account number of a financial institution that is invalid.", 1);
  EXPECT_REFUSED(bank, bank.add(hundred, Unknown), elm,
                 "Cannot add an account type of a financial institution that is unknown.", 1);
}

// The messages are in English except for the kinds, and quoted in the page for users. A kind
// outside the enumeration ends a message early.
TEST(Bank, LogsEachCallBeforeItsChange)
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
  auto const quotes = QString(page.readAll()).simplified().split('`');
  EXPECT_THAT(quotes, testing::IsSupersetOf(messages.replaceInStrings("~", "")));
}

TEST(Bank, WritesItsAccountsInOrderAndLeavesBoolalphaSet)
{
  AccountNumber const largest(4294967295U);
  expectWritten(Bank(elm, {{largest, Loan}, {AccountNumber(9), Goal}, {hundred, Loan}}, true),
                "Bank: (Financial Institution Name: (Elm  <€> %2)), Account Numbers: (9=>Goal, "
                "100=>Loan, 4294967295=>Loan), Is Closed: true)");
  std::ostringstream stream;
  stream << Bank() << false;
  EXPECT_EQ(stream.str(), "Bank: (Financial Institution Name: ()), Account Numbers: (), Is Closed: "
                          "false)false");
}

TEST(Bank, AddsAndRemovesAccountsWhileClosed)
{
  Bank bank(elm, {{AccountNumber(1), Loan}, {AccountNumber(200), Loan}}, true);
  bank.add(hundred, Loan);
  bank.add(hundred, Goal);
  bank.remove(AccountNumber(1));
  EXPECT_EQ(bank, Bank(elm, {{hundred, Goal}, {AccountNumber(200), Loan}}, true));
}

TEST(Bank, EqualsOneOfTheSameNameAccountsAndState)
{
  Accounts const loan{{hundred, Loan}};
  Bank const bank(elm, loan, true);
  EXPECT_EQ(bank, Bank(elm, loan, true));
  expectUnequal(bank, Bank(oak, loan, true));
  expectUnequal(bank, Bank(BankName(elm.institution().toLower()), loan, true));
  expectUnequal(bank, Bank(elm, {{hundred, Goal}}, true));
  expectUnequal(bank, Bank(elm, {{AccountNumber(1), Loan}}, true));
  expectUnequal(bank, Bank(elm, {}, true)); // whose accounts begin the other's
  expectUnequal(bank, Bank(elm, {{hundred, Loan}, {AccountNumber(200), Loan}}, true));
  expectUnequal(bank, Bank(elm, loan, false));
}
