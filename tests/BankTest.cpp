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
using testing::IsEmpty;

static_assert(std::is_nothrow_move_assignable_v<Bank>);

namespace {

using Accounts = std::map<AccountNumber, BankAccountTypes>;

constexpr auto loan = BankAccountTypes::Loan;
constexpr auto savings = BankAccountTypes::Savings;
constexpr auto unknown = BankAccountTypes::Unknown;

Bank bank(Accounts accounts = {}, bool isClosed = false)
{
  return Bank(BankName("Acme %1 %2"), std::move(accounts), isClosed);
}

} // namespace

TEST(Bank, RefusesToBreakItsRules)
{
  QString const name("Acme %1 %2");
  auto const make = [](Accounts const& accounts) { return [=](Bank&) { bank(accounts); }; };
  auto const add = [](unsigned int number, BankAccountTypes type) {
    return [=](Bank& bank) { bank.add(AccountNumber(number), type); };
  };
  QString const noNumber(
      "Cannot add an account number of a financial institution that is invalid.");
  Refusal<Bank> const refusals[] = {
      {"no name comes first",
       [](Bank&) {
         Bank(BankName(), {{AccountNumber(), unknown}}, true);
       },
       "", "The name of a financial institution cannot be empty."},
      {"numbers come before types", make({{AccountNumber(0), loan}, {AccountNumber(1), unknown}}),
       name, "The bank account number of a financial institution cannot be invalid."},
      {"unknown type", make({{AccountNumber(1), loan}, {AccountNumber(2), unknown}}), name,
       "The bank account type of a financial institution cannot be unknown."},
      {"add invalid and unknown", add(0, unknown), name, noNumber},
      {"add invalid", add(0, loan), name, noNumber},
      {"add unknown", add(7, unknown), name,
       "Cannot add an account type of a financial institution that is unknown."},
      {"remove a number not held",
       [](Bank& bank) { bank.remove(AccountNumber(9)); },
       name,
       "The account '%1' is not associated with the financial institution.",
       {"9"}},
  };
  for (auto const isClosed : {false, true}) {
    auto const before = bank({{AccountNumber(7), savings}}, isClosed);
    auto subject = before;
    LogRecorder const recorder;
    for (auto const& refusal : refusals) {
      expectRefused(refusal, subject);
      EXPECT_EQ(subject, before) << refusal.name;
    }
    expectRefused<Bank>(isClosed ? Refusal<Bank>{"close", [](Bank& bank) { bank.close(); }, name,
                                                 "Cannot close a bank that is already closed."}
                                 : Refusal<Bank>{"open", [](Bank& bank) { bank.open(); }, name,
                                                 "Cannot open a bank that is already opened."},
                        subject);
    EXPECT_EQ(subject, before);
  }
}

TEST(Bank, LogsEachChangeWhetherRefusedOrNot)
{
  LogRecorder const recorder;
  auto acme = bank({{AccountNumber(5), loan}});
  EXPECT_THAT(LogRecorder::take(), IsEmpty());
  QString const name("\"Financial Institution Name: (Acme %1 %2)\"");

  acme.close();
  EXPECT_TRUE(acme.isClosed());
  EXPECT_ANY_THROW(acme.close());
  acme.open();
  EXPECT_FALSE(acme.isClosed());
  EXPECT_ANY_THROW(acme.open());
  EXPECT_THAT(LogRecorder::take(), ElementsAre("Closing " + name, "Closing " + name,
                                               "Opening " + name, "Opening " + name));

  acme.add(AccountNumber(7), savings);
  EXPECT_ANY_THROW(acme.add(AccountNumber(0), unknown));
  EXPECT_THAT(LogRecorder::take(),
              ElementsAre("Adding account number 7 which is \"Savings\" to " + name,
                          "Adding account number 0 which is \"Unknown\" to " + name));

  auto const before = "\"" + streamed(acme) + "\"";
  EXPECT_ANY_THROW(acme.remove(AccountNumber(9)));
  acme.remove(AccountNumber(7));
  EXPECT_THAT(LogRecorder::take(), ElementsAre("Removing account number 9 from " + before,
                                               "Removing account number 7 from " + before));
}

TEST(Bank, ChangesItsAccountsOpenOrClosed)
{
  for (auto const isClosed : {false, true}) {
    LogRecorder const recorder;
    auto acme = bank({{AccountNumber(5), loan}}, isClosed);
    acme.add(AccountNumber(4294967295U), savings);
    acme.add(AccountNumber(5), savings);
    EXPECT_EQ(acme,
              bank({{AccountNumber(5), savings}, {AccountNumber(4294967295U), savings}}, isClosed));
    acme.remove(AccountNumber(5));
    EXPECT_EQ(acme.accounts(), (Accounts{{AccountNumber(4294967295U), savings}}));
    EXPECT_EQ(acme.isClosed(), isClosed);
    EXPECT_EQ(acme.name(), BankName("Acme %1 %2"));
  }
}

TEST(Bank, DiffersByStateNameNumberAndKind)
{
  auto const acme = bank({{AccountNumber(5), loan}});
  EXPECT_EQ(acme, Bank(acme));
  for (auto const& other : {bank({{AccountNumber(5), loan}}, true),
                            bank({{AccountNumber(5), savings}}), bank({{AccountNumber(6), loan}}),
                            bank({{AccountNumber(5), loan}, {AccountNumber(6), loan}}),
                            Bank(BankName("acme %1 %2"), acme.accounts(), false)}) {
    EXPECT_NE(acme, other) << streamed(other).toStdString();
  }
  Bank const none;
  EXPECT_TRUE(none.name().isEmpty());
  EXPECT_FALSE(none.isClosed());
  EXPECT_THAT(none.accounts(), IsEmpty());
}

TEST(Bank, StreamsItsAccountsInOrderAndStaysInBoolalpha)
{
  std::ostringstream stream;
  stream << bank() << true;
  EXPECT_EQ(stream.str(), "Bank: (Financial Institution Name: (Acme %1 %2)), Account Numbers: (), "
                          "Is Closed: false)true");
  auto const acme = bank({{AccountNumber(20), loan}, {AccountNumber(3), savings}}, true);
  EXPECT_EQ(streamed(acme), "Bank: (Financial Institution Name: (Acme %1 %2)), Account Numbers: "
                            "(3=>Savings, 20=>Loan), Is Closed: true)");
  EXPECT_EQ(debuggedPlainly(acme), streamed(acme));
}
