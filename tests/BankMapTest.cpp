#include "support/Refusal.hpp"

#include <banking/BankMap.hpp>

using namespace orv::banking;
using orv::accounting::AccountNumber;

static_assert(!std::is_convertible_v<std::map<BankName, Bank>, BankMap>);

namespace {

constexpr auto loan = BankAccountTypes::Loan;

// Names with placeholders in them, so that a text filled twice shows.
BankName const elm("Elm %2");
BankName const oak("Oak %1");
BankName const pine("Pine");
BankName const none("None");
AccountNumber const one(1);
AccountNumber const two(2);

template <typename... Numbers>
Bank bank(BankName const& name, Numbers const&... numbers)
{
  return Bank(name, {{numbers, loan}...}, false);
}

Bank closed(BankName const& name)
{
  return Bank(name, {}, true);
}

BankMap banks(Bank const& underElm, Bank const& underOak)
{
  return BankMap({{elm, underElm}, {oak, underOak}, {pine, closed(pine)}});
}

} // namespace

TEST(BankMap, RefusesToBreakItsRules)
{
  Refusal<BankMap> const refusals[] = {
      {[](auto&) { banks(bank(oak, one), bank(oak, one)); }, "Elm %2",
       "The key name does not match the value name, Oak %1."},
      {[](auto&) { banks(bank(elm, one), bank(pine, one)); }, "Elm %2",
       "The account '1' is associated with the bank 'Oak %1' and cannot be used again."},
      {[](auto& map) { map.bank(none); }, "None", "Failed to locate a bank by that name."},
      {[](auto& map) { map.close(none); }, "None", "Cannot close a bank that does not exist."},
      {[](auto& map) { map.open(none); }, "None", "Cannot open a bank that does not exist."},
      {[](auto& map) { map.add(none, one, loan); }, "None",
       "Cannot add the account number, 1, as the bank that does not exist."},
      {[](auto& map) { map.add(elm, two, loan); }, "Elm %2",
       "Cannot add the account number, 2, as the bank 'Oak %1' is already associated with that "
       "number."},
      {[](auto& map) { map.remove(none, one); }, "None",
       "Cannot remove the account number, 1, as the bank that does not exist."},
      {[](auto& map) { map.add(closed(elm)); }, "Elm %2",
       "Cannot add a bank that is already closed."},
      {[](auto& map) { map.add(bank(elm, two)); }, "Elm %2",
       "Cannot add a bank that already exists."},
      {[](auto& map) { map.add(bank(none, two)); }, "None",
       "The account '2' is already associated with the bank 'Oak %1' and cannot be added again."},
      {[](auto& map) { map.remove(none); }, "None", "Cannot remove a bank that does not exist."},
      {[](auto& map) { map.rename(none, elm); }, "None",
       "Cannot rename to 'Elm %2' when the bank does not exist."},
      {[](auto& map) { map.rename(pine, oak); }, "Pine",
       "Cannot rename to 'Oak %1' as it already exists."},
      {[](auto& map) { map.rename(pine, BankName()); }, "Pine",
       "Cannot rename to an empty bank name."},
      {[](auto& map) { map.rename(pine, none); }, "Pine",
       "Cannot rename a bank when it is closed."},
      {[](auto& map) { map.update(closed(none)); }, "None",
       "Cannot update a bank that does not exist."},
      {[](auto& map) { map.update(closed(pine)); }, "Pine", "Cannot update to a closed bank."},
      {[](auto& map) { map.update(bank(pine, one)); }, "Pine",
       "Cannot update a bank that is closed."},
      {[](auto& map) { map.update(bank(elm, one, two)); }, "Elm %2",
       "Cannot update the account number, 2, as the bank 'Oak %1' is already associated with that "
       "number."},
  };
  expectRefusals(banks(bank(elm, one), bank(oak, two)), refusals);
}
