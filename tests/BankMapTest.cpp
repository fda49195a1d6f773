#include "support/LogRecorder.hpp"
#include "support/Printing.hpp"
#include "support/Refusal.hpp"

#include <banking/BankMap.hpp>

#include <gmock/gmock.h>
#include <type_traits>

using namespace orv::banking;
using orv::accounting::AccountNumber;
using testing::ElementsAre;
using testing::IsEmpty;

static_assert(std::is_nothrow_move_constructible_v<BankMap>);
static_assert(!std::is_convertible_v<std::map<BankName, Bank>, BankMap>);

namespace {

constexpr auto loan = BankAccountTypes::Loan;
constexpr auto savings = BankAccountTypes::Savings;

// Names with placeholders in them, so that a text filled twice shows.
BankName const elm("Elm %2");
BankName const oak("Oak %1");
BankName const pine("Pine");
BankName const none("None");

Bank bank(BankName const& name, std::initializer_list<unsigned int> numbers, bool isClosed = false)
{
  std::map<AccountNumber, BankAccountTypes> accounts;
  for (auto const number : numbers) {
    accounts.emplace(number, savings);
  }
  return Bank(name, accounts, isClosed);
}

std::map<BankName, Bank> byName(std::initializer_list<Bank> banks)
{
  std::map<BankName, Bank> map;
  for (auto const& bank : banks) {
    map.emplace(bank.name(), bank);
  }
  return map;
}

// Elm and Oak are open, Pine is closed.
BankMap threeBanks()
{
  return BankMap(byName({bank(elm, {100, 200}), bank(oak, {150, 300}), bank(pine, {50}, true)}));
}

} // namespace

TEST(BankMap, RefusesBanksThatBreakItsRules)
{
  QString const keyText("The key name does not match the value name, %1.");
  QString const sharedText(
      "The account '%1' is associated with the bank '%2' and cannot be used again.");
  auto const construct = [](std::map<BankName, Bank> const& banks) {
    return [=](int&) { BankMap const map(banks); };
  };
  Refusal<int> const refusals[] = {
      {"key and name differ in letter case",
       construct({{BankName("Alpha"), bank(BankName("alpha"), {})}}),
       "Alpha",
       keyText,
       {"alpha"}},
      {"shared with a later bank",
       construct(byName({bank(elm, {100, 200}), bank(oak, {300}), bank(pine, {100})})),
       "Elm %2",
       sharedText,
       {"100", "Pine"}},
      {"smallest shared number first, first other holder",
       construct(byName({bank(elm, {5, 9, 7}), bank(oak, {9, 8}), bank(pine, {7, 9})})),
       "Elm %2",
       sharedText,
       {"7", "Pine"}},
      {"earlier bank first",
       construct(byName({bank(elm, {1}), bank(oak, {9}), bank(pine, {9})})),
       "Oak %1",
       sharedText,
       {"9", "Pine"}},
      {"numbers of an earlier bank before the key of a later one",
       construct({{elm, bank(elm, {100})}, {oak, bank(pine, {100})}}),
       "Elm %2",
       sharedText,
       {"100", "Oak %1"}},
      {"key before the numbers of the same bank",
       construct({{elm, bank(pine, {100})}, {oak, bank(oak, {100})}}),
       "Elm %2",
       keyText,
       {"Pine"}},
  };
  int unused = 0;
  for (auto const& refusal : refusals) {
    expectRefused(refusal, unused);
  }
}

TEST(BankMap, RefusesChangesThatBreakItsRules)
{
  auto const close = [](BankName const& name) { return [=](BankMap& map) { map.close(name); }; };
  auto const open = [](BankName const& name) { return [=](BankMap& map) { map.open(name); }; };
  auto const addNumber = [](BankName const& name, unsigned int number) {
    return [=](BankMap& map) { map.add(name, AccountNumber(number), loan); };
  };
  auto const removeNumber = [](BankName const& name, unsigned int number) {
    return [=](BankMap& map) { map.remove(name, AccountNumber(number)); };
  };
  auto const add = [](Bank const& bank) { return [=](BankMap& map) { map.add(bank); }; };
  auto const update = [](Bank const& bank) { return [=](BankMap& map) { map.update(bank); }; };
  auto const rename = [](BankName const& from, BankName const& to) {
    return [=](BankMap& map) { map.rename(from, to); };
  };
  Refusal<BankMap> const refusals[] = {
      {"bank", [](BankMap& map) { map.bank(none); }, "None",
       "Failed to locate a bank by that name."},
      {"close", close(none), "None", "Cannot close a bank that does not exist."},
      {"close closed", close(pine), "Pine", "Cannot close a bank that is already closed."},
      {"open", open(none), "None", "Cannot open a bank that does not exist."},
      {"open open", open(elm), "Elm %2", "Cannot open a bank that is already opened."},
      {"add number, missing before taken",
       addNumber(none, 100),
       "None",
       "Cannot add the account number, %1, as the bank that does not exist.",
       {"100"}},
      {"add number, taken",
       addNumber(elm, 300),
       "Elm %2",
       "Cannot add the account number, %1, as the bank '%2' is already associated with that "
       "number.",
       {"300", "Oak %1"}},
      {"add number, invalid", addNumber(elm, 0), "Elm %2",
       "Cannot add an account number of a financial institution that is invalid."},
      {"remove number",
       removeNumber(none, 100),
       "None",
       "Cannot remove the account number, %1, as the bank that does not exist.",
       {"100"}},
      {"remove number of another bank",
       removeNumber(elm, 300),
       "Elm %2",
       "The account '%1' is not associated with the financial institution.",
       {"300"}},
      {"add, closed before taken", add(bank(elm, {300}, true)), "Elm %2",
       "Cannot add a bank that is already closed."},
      {"add, taken before shared", add(bank(elm, {300})), "Elm %2",
       "Cannot add a bank that already exists."},
      {"add, first bank before smaller number",
       add(bank(none, {50, 150, 200, 300})),
       "None",
       "The account '%1' is already associated with the bank '%2' and cannot be added again.",
       {"200", "Elm %2"}},
      {"add, smallest number, few against many",
       add(bank(none, {300, 150, 1, 2, 3})),
       "None",
       "The account '%1' is already associated with the bank '%2' and cannot be added again.",
       {"150", "Oak %1"}},
      {"remove", [](BankMap& map) { map.remove(none); }, "None",
       "Cannot remove a bank that does not exist."},
      {"rename, missing before taken",
       rename(none, elm),
       "None",
       "Cannot rename to '%1' when the bank does not exist.",
       {"Elm %2"}},
      {"rename to itself",
       rename(elm, elm),
       "Elm %2",
       "Cannot rename to '%1' as it already exists.",
       {"Elm %2"}},
      {"rename, taken before closed",
       rename(pine, oak),
       "Pine",
       "Cannot rename to '%1' as it already exists.",
       {"Oak %1"}},
      {"rename, empty before closed", rename(pine, BankName()), "Pine",
       "Cannot rename to an empty bank name."},
      {"rename closed", rename(pine, none), "Pine", "Cannot rename a bank when it is closed."},
      {"update, missing before closed", update(bank(none, {}, true)), "None",
       "Cannot update a bank that does not exist."},
      {"update to closed, before closed", update(bank(pine, {100}, true)), "Pine",
       "Cannot update to a closed bank."},
      {"update closed, before shared", update(bank(pine, {100})), "Pine",
       "Cannot update a bank that is closed."},
      {"update, smaller number before first bank",
       update(bank(oak, {300, 200, 50, 1})),
       "Oak %1",
       "Cannot update the account number, %1, as the bank '%2' is already associated with that "
       "number.",
       {"50", "Pine"}},
  };
  auto subject = threeBanks();
  LogRecorder const recorder;
  for (auto const& refusal : refusals) {
    expectRefused(refusal, subject);
    EXPECT_EQ(subject, threeBanks()) << refusal.name;
  }
}

TEST(BankMap, AnswersQuestions)
{
  auto const banks = threeBanks();
  EXPECT_TRUE(banks.hasBank(elm));
  EXPECT_FALSE(banks.hasBank(BankName("elm %2")));
  EXPECT_EQ(&banks.bank(elm), &banks.bank(elm));
  EXPECT_EQ(banks.bank(pine), bank(pine, {50}, true));
  EXPECT_EQ(banks.find(AccountNumber(300)), bank(oak, {150, 300}));
  EXPECT_EQ(banks.find(AccountNumber(301)), std::nullopt);
  EXPECT_THAT(banks.names(), ElementsAre(elm, oak, pine));

  auto const letters =
      BankMap(byName({bank(BankName("b"), {}), bank(BankName("A"), {}), bank(BankName("a"), {})}));
  EXPECT_THAT(letters.names(), ElementsAre(BankName("A"), BankName("a"), BankName("b")));
  EXPECT_NE(letters, banks);

  BankMap const empty(std::map<BankName, Bank>{});
  EXPECT_THAT(empty.names(), IsEmpty());
  EXPECT_EQ(empty, BankMap());
  EXPECT_NE(empty, banks);
  EXPECT_EQ(streamed(empty), "Bank Map ()");
}

TEST(BankMap, StreamsItsBanksInOrder)
{
  auto const entry = [](BankName const& name, char const* text) {
    return filled("Financial Institution Name: (%1)=>Bank: (Financial Institution Name: (%1)), "
                  "Account Numbers: (%2)",
                  {name.institution(), text});
  };
  EXPECT_EQ(streamed(threeBanks()),
            "Bank Map (" + entry(elm, "100=>Savings, 200=>Savings), Is Closed: false") + ", " +
                entry(oak, "150=>Savings, 300=>Savings), Is Closed: false") + ", " +
                entry(pine, "50=>Savings), Is Closed: true") + ")");
}

TEST(BankMap, ChangesBanksInPlace)
{
  LogRecorder const recorder;
  auto banks = threeBanks();
  auto const copy = banks;
  auto const& stored = banks.bank(elm);
  banks.close(elm);
  EXPECT_EQ(stored, bank(elm, {100, 200}, true));
  banks.add(elm, AccountNumber(400), savings);
  banks.remove(elm, AccountNumber(100));
  EXPECT_EQ(stored, bank(elm, {200, 400}, true));
  banks.open(elm);
  banks.add(elm, AccountNumber(200), loan);
  EXPECT_EQ(stored, Bank(elm, {{AccountNumber(200), loan}, {AccountNumber(400), savings}}, false));
  EXPECT_EQ(LogRecorder::take().size(), 5);
  EXPECT_EQ(copy, threeBanks());
}

TEST(BankMap, AddsReplacesAndRemovesWholeBanks)
{
  LogRecorder const recorder;
  auto banks = threeBanks();
  banks.add(bank(none, {1, 400}));
  EXPECT_EQ(banks.bank(none), bank(none, {1, 400}));

  // A dropped number is free for another bank, a number kept or new is taken over.
  auto const& stored = banks.bank(elm);
  banks.update(Bank(elm, {{AccountNumber(200), loan}, {AccountNumber(99), savings}}, false));
  EXPECT_EQ(stored, Bank(elm, {{AccountNumber(200), loan}, {AccountNumber(99), savings}}, false));
  EXPECT_THAT(LogRecorder::take(), IsEmpty());
  banks.add(oak, AccountNumber(100), savings);

  banks.remove(pine);
  EXPECT_FALSE(banks.hasBank(pine));
  banks.add(oak, AccountNumber(50), savings);
  EXPECT_EQ(banks.bank(oak), bank(oak, {50, 100, 150, 300}));
}

TEST(BankMap, RenamesABankWithAllItHolds)
{
  LogRecorder const recorder;
  for (auto const* const to : {"elm %2", "A", "Zed %1", " Elm %2"}) {
    auto banks = threeBanks();
    // The names may be those that the registry itself holds.
    banks.rename(banks.bank(elm).name(), BankName(to));
    EXPECT_FALSE(banks.hasBank(elm));
    EXPECT_EQ(banks.bank(BankName(to)), bank(BankName(to), {100, 200}));
    EXPECT_EQ(banks.names(), (std::set<BankName>{BankName(to), oak, pine}));
  }
  EXPECT_THAT(LogRecorder::take(), IsEmpty());
}
