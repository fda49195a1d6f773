#include "support/LogRecorder.hpp"
#include "support/Printing.hpp"
#include "support/Refusal.hpp"

#include <banking/Bank.hpp>

#include <gmock/gmock.h>
#include <sstream>
#include <type_traits>

using namespace orv::banking;
using orv::accounting::AccountNumber;
using testing::ElementsAre;

static_assert(std::is_nothrow_move_assignable_v<Bank>);

namespace {

constexpr auto loan = BankAccountTypes::Loan;
constexpr auto savings = BankAccountTypes::Savings;
constexpr auto unknown = BankAccountTypes::Unknown;
AccountNumber const none;
AccountNumber const three(3);
BankName const name("Acme %1 %2");

} // namespace

TEST(Bank, RefusesToBreakItsRules)
{
  Refusal<Bank> const refusals[] = {
      {[](Bank&) {
         Bank(BankName(), {{none, unknown}}, true);
       },
       "", "The name of a financial institution cannot be empty."},
      {[](Bank&) {
         Bank(name, {{none, loan}, {three, unknown}}, true);
       },
       "Acme %1 %2", "The bank account number of a financial institution cannot be invalid."},
      {[](Bank&) {
         Bank(name, {{three, unknown}}, true);
       },
       "Acme %1 %2", "The bank account type of a financial institution cannot be unknown."},
      {[](Bank& bank) { bank.close(); }, "Acme %1 %2",
       "Cannot close a bank that is already closed."},
      {[](Bank&) { Bank(name, {}, false).open(); }, "Acme %1 %2",
       "Cannot open a bank that is already opened."},
      {[](Bank& bank) { bank.add(none, unknown); }, "Acme %1 %2",
       "Cannot add an account number of a financial institution that is invalid."},
      {[](Bank& bank) { bank.add(three, unknown); }, "Acme %1 %2",
       "Cannot add an account type of a financial institution that is unknown."},
      {[](Bank& bank) { bank.remove(three); }, "Acme %1 %2",
       "The account '3' is not associated with the financial institution."},
  };
  Bank subject(name, {}, true);
  LogRecorder const recorder;
  for (auto const& refusal : refusals) {
    expectRefused(refusal, subject);
    EXPECT_EQ(subject, Bank(name, {}, true)) << refusal.message.toStdString();
  }
}

TEST(Bank, LogsItsChanges)
{
  LogRecorder const recorder;
  Bank acme(name, {}, true);
  acme.open();
  acme.add(three, savings);
  acme.remove(three);
  acme.close();
  EXPECT_THAT(LogRecorder::take(),
              ElementsAre("Opening \"Financial Institution Name: (Acme %1 %2)\"",
                          "Adding account number 3 which is \"Savings\" to \"Financial Institution "
                          "Name: (Acme %1 %2)\"",
                          "Removing account number 3 from \"Bank: (Financial Institution Name: "
                          "(Acme %1 %2)), Account Numbers: (3=>Savings), Is Closed: false)\"",
                          "Closing \"Financial Institution Name: (Acme %1 %2)\""));
}

TEST(Bank, StreamsItsAccountsInOrderAndStaysInBoolalpha)
{
  std::ostringstream stream;
  stream << Bank(name, {}, false) << true;
  EXPECT_EQ(stream.str(), "Bank: (Financial Institution Name: (Acme %1 %2)), Account Numbers: (), "
                          "Is Closed: false)true");
  Bank const acme(name, {{AccountNumber(20), loan}, {three, savings}}, true);
  EXPECT_EQ(streamed(acme), "Bank: (Financial Institution Name: (Acme %1 %2)), Account Numbers: "
                            "(3=>Savings, 20=>Loan), Is Closed: true)");
  EXPECT_EQ(debuggedPlainly(acme), streamed(acme));
}
