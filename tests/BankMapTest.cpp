#include "support/Refusal.hpp"

static_assert(!std::is_convertible_v<std::map<BankName, Bank>, BankMap>);
static_assert(noexcept(std::declval<BankMap const&>().hasBank(BankName())));

namespace {

BankName const none("None");

Bank bank(BankName const& name, auto... numbers)
{
  return Bank(name, {{AccountNumber(static_cast<unsigned int>(numbers)), Loan}...}, false);
}

Bank closed(BankName const& name, auto... numbers)
{
  return Bank(name, {{AccountNumber(static_cast<unsigned int>(numbers)), Loan}...}, true);
}

BankMap banks(Bank const& underElm, Bank const& underOak, Bank const& underPine)
{
  return BankMap({{elm, underElm}, {oak, underOak}, {pine, underPine}});
}

} // namespace

// Where two rules are broken, the first is told, and of several numbers and banks those that count.
TEST(BankMap, RefusesToBreakItsRules)
{
  Refusal<BankMap> const refusals[] = {
      {[](auto&) { banks(bank(oak, 9), bank(oak, 9), {}); }, elm,
       "The key name does not match the value name, Oak %1."},
      {[](auto&) { banks(bank(elm, 9, 16909060), bank(pine, 16909060), bank(pine, 9)); }, elm,
       "The account '9' is associated with the bank 'Pine' and cannot be used again."},
      {[](auto&) { banks(bank(elm, 16909060), bank(oak, 16909060), bank(pine, 16909060)); }, elm,
       "The account '16909060' is associated with the bank 'Oak %1' and cannot be used again."},
      {[](auto& map) { return map.bank(none); }, none, "Failed to locate a bank by that name."},
      {[](auto& map) { map.close(none); }, none, "Cannot close a bank that does not exist."},
      {[](auto& map) { map.open(none); }, none, "Cannot open a bank that does not exist."},
      {[](auto& map) { map.add(none, some, Unknown); }, none,
       "Cannot add the account number, 16909060, as the bank that does not exist."},
      {[](auto& map) { map.add(elm, some, Unknown); }, elm,
       "Cannot add the account number, 16909060, as the bank 'Oak %1' is already associated with "
       "that number."},
      {[](auto& map) { map.remove(none, some); }, none,
       "Cannot remove the account number, 16909060, as the bank that does not exist."},
      {[](auto& map) { map.add(closed(elm, 3)); }, elm,
       "Cannot add a bank that is already closed."},
      {[](auto& map) { map.add(bank(elm, 3)); }, elm, "Cannot add a bank that already exists."},
      {[](auto& map) { map.add(bank(none, 3, 16909060, 168496141)); }, none,
       "The account '16909060' is already associated with the bank 'Oak %1' and cannot be added "
       "again."},
      {[](auto& map) { map.remove(none); }, none, "Cannot remove a bank that does not exist."},
      {[](auto& map) { map.rename(none, elm); }, none,
       "Cannot rename to 'Elm %2' when the bank does not exist."},
      {[](auto& map) { map.rename(pine, oak); }, pine,
       "Cannot rename to 'Oak %1' as it already exists."},
      {[](auto& map) { map.rename(pine, {}); }, pine, "Cannot rename to an empty bank name."},
      {[](auto& map) { map.rename(pine, none); }, pine, "Cannot rename a bank when it is closed."},
      {[](auto& map) { map.update(closed(none)); }, none,
       "Cannot update a bank that does not exist."},
      {[](auto& map) { map.update(closed(pine, 9)); }, pine, "Cannot update to a closed bank."},
      {[](auto& map) { map.update(bank(pine, 9)); }, pine, "Cannot update a bank that is closed."},
      {[](auto& map) { map.update(bank(elm, 3, 16909060)); }, elm,
       "Cannot update the account number, 3, as the bank 'Pine' is already associated with that "
       "number."},
  };
  expectRefusals(banks(bank(elm, 9), bank(oak, 16909060, 168496141), closed(pine, 3)), refusals);
}

TEST(BankMap, TellsItsBanksInNameOrder)
{
  BankMap const map({{oak, bank(oak)}, {elm, bank(elm, 3)}});
  EXPECT_THAT(map.names(), testing::ElementsAre(elm, oak));
  EXPECT_EQ(streamed(map),
            "Bank Map (Financial Institution Name: (Elm %2)=>" + streamed(map.bank(elm)) +
                ", Financial Institution Name: (Oak %1)=>" + streamed(map.bank(oak)) + ")");
}
