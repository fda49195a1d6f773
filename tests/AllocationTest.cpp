#include "support/Allocations.hpp"

#include <banking/BankMap.hpp>
#include <banking/ReconciledBankAccount.hpp>

#include <QString>

#include <functional>
#include <gmock/gmock.h>
#include <tuple>

using namespace orv::banking;
using orv::accounting::AccountNumber;

TEST(Allocation, TakesPlaceOnlyWhereACopyIsGiven)
{
  constexpr auto savings = BankAccountTypes::Savings;
  BankName const elm("Elm");
  BankName const oak("Oak");
  BankName const pine("Pine");
  BankName const other("Other");
  Bank bank(oak, {{AccountNumber(1), savings}, {AccountNumber(2), savings}}, false);
  BankMap banks(std::map<BankName, Bank>{{elm, Bank(elm, {}, false)}, {oak, bank}});
  BankMap const equal(banks);
  std::map<AccountNumber, BankAccountTypes> accounts{{AccountNumber(3), savings}};
  std::map<BankName, Bank> map{{oak, bank}};
  Bank added(pine, {{AccountNumber(4), savings}}, false);
  ReconciledBankAccount account({elm, {AccountNumber(1), savings}}, mintar::Currency("CAD"));
  mintar::Money const dollars(mintar::Currency("CAD"), 7);
  QString const plainTexts[] = {"Chequeing", "Credit Card", "Loan", "Savings", "Goal", "Unknown"};

  // The first three show that allocations by the standard library and by Qt are seen.
  std::tuple<char const*, long, std::function<void()>> const cases[] = {
      {"number to text", 1, [] { presentationText(AccountNumber(1)); }},
      {"find, one node for each account", 2, [&] { banks.find(AccountNumber(2)); }},
      {"names, one node for each name", 2, [&] { banks.names(); }},
      {"construct, two lists of the numbers", 2, [&] { BankMap const taken(std::move(map)); }},
      {"construct a bank", 0, [&] { Bank const taken(oak, std::move(accounts), false); }},
      {"find, absent", 0, [&] { banks.find(AccountNumber(3)); }},
      {"hasBank", 0, [&] { banks.hasBank(elm) && banks.hasBank(other); }},
      {"bank and accessors", 0,
       [&] {
         auto const& found = banks.bank(oak);
         found.accounts().contains(AccountNumber(1)) && found.isClosed() && found.name().isEmpty();
         account.balance() == mintar::Money() && account.bankAccount().bankName.isEmpty() &&
             account.reconciledOn();
       }},
      {"reconcile", 0, [&] { account.reconcile(QDate(2026, 3, 31), dollars); }},
      {"==", 0,
       [&] {
         EXPECT_TRUE(banks == equal && banks.bank(oak) == bank && banks.bank(elm) != Bank());
       }},
      {"add a bank, its node", 1, [&] { banks.add(std::move(added)); }},
      {"rename", 0, [&] { banks.rename(oak, other), banks.rename(other, oak); }},
      {"kinds", 0,
       [&] {
         for (auto const& text : plainTexts) {
           auto const type = toBankAccountTypes(text);
           isAssetAccount(type), isLiabilityAccount(type), toAccountTypes(type);
           toNonLocalisedText(type);
         }
       }},
      {"moves", 0,
       [&] {
         banks = BankMap(std::move(banks));
         bank = Bank(std::move(bank));
         account = ReconciledBankAccount(std::move(account));
       }},
  };
  for (auto const& [operation, expected, call] : cases) {
    auto const before = Allocations::made;
    call();
    auto const seen = Allocations::made - before;
    EXPECT_EQ(seen, expected) << operation;
  }
}
