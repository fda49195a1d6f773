#include "support/Refusal.hpp"

#include <banking/Bank.hpp>

using namespace orv::banking;
using orv::accounting::AccountNumber;

namespace {

constexpr auto unknown = BankAccountTypes::Unknown;
AccountNumber const none;
AccountNumber const three(3);
BankName const name("Acme %1 %2");
std::map<AccountNumber, BankAccountTypes> const invalid{{none, unknown}};
std::map<AccountNumber, BankAccountTypes> const ofUnknownType{{three, unknown}};

} // namespace

TEST(Bank, RefusesToBreakItsRules)
{
  Refusal<Bank> const refusals[] = {
      {[](auto&) { Bank(BankName(), invalid, true); }, "",
       "The name of a financial institution cannot be empty."},
      {[](auto&) { Bank(name, invalid, true); }, "Acme %1 %2",
       "The bank account number of a financial institution cannot be invalid."},
      {[](auto&) { Bank(name, ofUnknownType, true); }, "Acme %1 %2",
       "The bank account type of a financial institution cannot be unknown."},
      {[](auto& bank) { bank.close(); }, "Acme %1 %2",
       "Cannot close a bank that is already closed."},
      {[](auto&) { Bank(name, {}, false).open(); }, "Acme %1 %2",
       "Cannot open a bank that is already opened."},
      {[](auto& bank) { bank.add(none, unknown); }, "Acme %1 %2",
       "Cannot add an account number of a financial institution that is invalid."},
      {[](auto& bank) { bank.add(three, unknown); }, "Acme %1 %2",
       "Cannot add an account type of a financial institution that is unknown."},
      {[](auto& bank) { bank.remove(three); }, "Acme %1 %2",
       "The account '3' is not associated with the financial institution."},
  };
  expectRefusals(Bank(name, {}, true), refusals);
}

TEST(Bank, StreamsItsAccountsInOrderAndStaysInBoolalpha)
{
  constexpr auto loan = BankAccountTypes::Loan;
  Bank const acme(name, {{AccountNumber(20), loan}, {three, BankAccountTypes::Savings}}, true);
  std::ostringstream stream;
  stream << acme << true;
  EXPECT_EQ(stream.str(), "Bank: (Financial Institution Name: (Acme %1 %2)), Account Numbers: "
                          "(3=>Savings, 20=>Loan), Is Closed: true)true");
  EXPECT_EQ(debuggedPlainly(acme), streamed(acme));
}
