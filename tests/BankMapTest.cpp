#include "support/Testing.hpp"

namespace {

BankName const none("None");
BankName const small(elm.institution().toLower());

Bank bank(BankName const& name, auto... numbers)
{
  return Bank(name, {{AccountNumber(static_cast<unsigned int>(numbers)), Loan}...}, false);
}

Bank closed(BankName const& name, auto... numbers)
{
  return Bank(name, bank(name, numbers...).accounts(), true);
}

BankMap banks(Bank const& underElm, Bank const& underOak, Bank const& underPine)
{
  return BankMap({{elm, underElm}, {oak, underOak}, {pine, underPine}});
}

} // namespace

// Where a row breaks two rules, the first one is reported, and of several numbers and banks those
// that the headers name.
TEST(BankMap, RefusesToBreakItsRules)
{
  auto map = banks(bank(elm, 9), bank(oak, 100, 300), closed(pine, 3));
  EXPECT_REFUSAL(banks(bank(oak, 9), bank(oak, 9), {}), elm,
                 "The key name does not match the value name, Oak %1.");
  EXPECT_REFUSAL(banks(bank(elm), bank(oak), closed(BankName("pine"))), pine,
                 "The key name does not match the value name, pine.");
  EXPECT_REFUSAL(banks(bank(elm, 9, 100), bank(pine, 100), bank(pine, 9)), elm,
                 "The account '9' is associated with the bank 'Pine' and cannot be used again.");
  EXPECT_REFUSAL(
      banks(bank(elm, 100), bank(oak, 100), bank(pine, 100)), elm,
      "The account '100' is associated with the bank 'Oak %1' and cannot be used again.");
  EXPECT_REFUSAL(map.bank(none), none, "Failed to locate a bank by that name.");
  EXPECT_REFUSED(map, map.close(none), none, "Cannot close a bank that does not exist.");
  EXPECT_REFUSED(map, map.open(none), none, "Cannot open a bank that does not exist.");
  EXPECT_REFUSED(map, map.add(none, hundred, noKind), none,
                 "Cannot add the account number, 100, as the bank that does not exist.");
  EXPECT_REFUSED(map, map.add(elm, hundred, noKind), elm,
                 "Cannot add the account number, 100, as the bank 'Oak %1' is already associated "
                 "with that number.");
  EXPECT_REFUSED(map, map.remove(none, hundred), none,
                 "Cannot remove the account number, 100, as the bank that does not exist.");
  EXPECT_REFUSED(map, map.add(closed(elm, 3)), elm, "Cannot add a bank that is already closed.");
  EXPECT_REFUSED(map, map.add(bank(elm, 3)), elm, "Cannot add a bank that already exists.");
  EXPECT_REFUSED(map, map.add(bank(none, 3, 100, 300)), none,
                 "The account '100' is already associated with the bank 'Oak %1' and cannot be "
                 "added again.");
  EXPECT_REFUSED(map, map.remove(none), none, "Cannot remove a bank that does not exist.");
  EXPECT_REFUSED(map, map.rename(none, elm), none,
                 "Cannot rename to 'Elm  <€> %2' when the bank does not exist.");
  EXPECT_REFUSED(map, map.rename(pine, oak), pine,
                 "Cannot rename to 'Oak %1' as it already exists.");
  EXPECT_REFUSED(map, map.rename(pine, {}), pine, "Cannot rename to an empty bank name.");
  EXPECT_REFUSED(map, map.rename(pine, none), pine, "Cannot rename a bank when it is closed.");
  EXPECT_REFUSED(map, map.update(closed(none)), none, "Cannot update a bank that does not exist.");
  EXPECT_REFUSED(map, map.update(closed(pine, 9)), pine, "Cannot update to a closed bank.");
  EXPECT_REFUSED(map, map.update(bank(pine, 9)), pine, "Cannot update a bank that is closed.");
  EXPECT_REFUSED(map, map.update(bank(elm, 3, 100)), elm,
                 "Cannot update the account number, 3, as the bank 'Pine' is already associated "
                 "with that number.");
  BankMap odd({{BankName(), Bank()}, {elm, bank(elm)}});
  EXPECT_REFUSED(odd, odd.rename(elm, {}), elm, "Cannot rename to '' as it already exists.");
  // What the registry leaves to the bank is logged.
  EXPECT_REFUSED(map, map.close(pine), pine, "Cannot close a bank that is already closed.", 1);
  EXPECT_REFUSED(map, map.remove(elm, hundred), elm,
                 "The account '100' is not associated with the financial institution.", 1);
  EXPECT_REFUSED(map, map.add(oak, hundred, Unknown), oak,
                 "Cannot add an account type of a financial institution that is unknown.", 1);
}

TEST(BankMap, AcceptsArgumentsThatReferIntoIt)
{
  BankMap map({{elm, bank(elm, 9)}});
  auto const& held = map.bank(elm);
  auto const account = held.accounts().begin(); // which stays where it is
  map.add(bank(oak));
  map.remove(oak);
  EXPECT_EQ(&map.bank(elm), &held);
  map.close(held.name());
  map.add(held.name(), hundred, Loan);
  map.remove(held.name(), hundred);
  map.open(held.name());
  EXPECT_EQ(account, held.accounts().begin());
  map.remove(held.name(), account->first);
  map.rename(held.name(), pine);
  map.remove(held.name());
  EXPECT_EQ(map, BankMap());
}

TEST(BankMap, ListsAndWritesItsBanksInNameOrder)
{
  BankMap const map({{{}, Bank()}, {small, closed(small)}, {elm, bank(elm, 3)}});
  EXPECT_THAT(map.names(), testing::ElementsAre(BankName(), elm, small));
  EXPECT_EQ(streamed(map),
            "Bank Map (Financial Institution Name: ()=>" + streamed(Bank()) +
                ", Financial Institution Name: (Elm  <€> %2)=>" + streamed(map.bank(elm)) +
                ", Financial Institution Name: (elm  <€> %2)=>" + streamed(map.bank(small)) + ")");
  EXPECT_EQ(streamed(BankMap()), "Bank Map ()");
}

TEST(BankMap, EqualsOneOfEqualBanksUnderTheSameNames)
{
  BankMap const one({{elm, bank(elm, 9)}});
  EXPECT_EQ(one, BankMap({{elm, bank(elm, 9)}}));
  expectUnequal(one, BankMap());
  expectUnequal(one, BankMap({{elm, bank(elm, 9)}, {oak, bank(oak)}}));
  expectUnequal(one, BankMap({{elm, closed(elm, 9)}}));
  expectUnequal(one, BankMap({{small, bank(small, 9)}}));
}
