#include "support/Log.hpp"
#include "support/Refusal.hpp"

std::map<AccountNumber, BankAccountTypes> const invalid{{AccountNumber(), Loan}, {some, Unknown}};
std::map<AccountNumber, BankAccountTypes> const unknown{{AccountNumber(1), Loan}, {some, Unknown}};
std::map<AccountNumber, BankAccountTypes> const loan{{some, Loan}};

// Where two rules are broken, the first is told.
TEST(Bank, RefusesToBreakItsRules)
{
  Refusal<Bank> const refusals[] = {
      {[](auto&) { Bank({}, invalid, true); }, BankName(),
       "The name of a financial institution cannot be empty."},
      {[](auto&) { Bank(elm, invalid, true); }, elm,
       "The bank account number of a financial institution cannot be invalid."},
      {[](auto&) { Bank(elm, unknown, true); }, elm,
       "The bank account type of a financial institution cannot be unknown."},
      {[](auto& bank) { bank.close(); }, elm, "Cannot close a bank that is already closed."},
      {[](auto&) { Bank(elm, {}, false).open(); }, elm,
       "Cannot open a bank that is already opened."},
      {[](auto& bank) { bank.add(AccountNumber(), Unknown); }, elm,
       "Cannot add an account number of a financial institution that is invalid."},
      {[](auto& bank) { bank.add(some, Unknown); }, elm,
       "Cannot add an account type of a financial institution that is unknown."},
      {[](auto& bank) { bank.remove(some); }, elm,
       "The account '16909060' is not associated with the financial institution."},
  };
  expectRefusals(Bank(elm, {}, true), refusals);
}

TEST(Bank, LogsWhatItIsAskedBeforeItDoesIt)
{
  Bank bank(BankName("É"), {{some, Loan}}, false);
  takeMessages();
  bank.close();
  EXPECT_THROW(bank.close(), BankError);
  bank.open();
  bank.add(some, Goal);
  auto const before = streamed(bank);
  bank.remove(some);
  EXPECT_EQ(takeMessages().replaceInStrings("\"Financial Institution Name: (É)\"", "É"),
            QStringList({"Closing É", "Closing É", "Opening É",
                         "Adding account number 16909060 which is \"Goal\" to É",
                         "Removing account number 16909060 from \"" + before + "\""}));
}

TEST(Bank, WritesItsAccountsInAnyFormatAndStaysInBoolalpha)
{
  Bank const bank(elm, {{AccountNumber(4294967295U), Loan}, {AccountNumber(9), Goal}, {some, Loan}},
                  true);
  QString const text("Bank: (Financial Institution Name: (Elm %2)), Account Numbers: (9=>Goal, "
                     "16909060=>Loan, 4294967295=>Loan), Is Closed: true)");
  expectWritten(bank, text);
  std::ostringstream stream;
  stream << std::hex << std::showpos << bank << false;
  EXPECT_EQ(stream.str(), text.toStdString() + "false");
}

TEST(Bank, EqualsOneOfTheSameNameAccountsAndState)
{
  EXPECT_EQ(Bank(elm, loan, true), Bank(elm, loan, true));
  EXPECT_NE(Bank(elm, loan, true), Bank(oak, loan, true));
  EXPECT_NE(Bank(elm, loan, true), Bank(elm, {{some, Goal}}, true));
  EXPECT_NE(Bank(elm, loan, true), Bank(elm, loan, false));
}
