#pragma once

#include <banking/BankError.hpp>
#include <banking/BankMap.hpp>

#include <algorithm>

using namespace orv::banking;
using orv::accounting::AccountNumber;

/// What a registry of banks does: what each change requires, in no order, and what it leaves. One
/// error stands for all.
struct Model
{
  std::map<BankName, Bank> banks;

  explicit Model(std::map<BankName, Bank> const& drawn = {})
  {
    for (auto const& [name, bank] : drawn) {
      put(bank, true);
    }
  }

  void add(Bank const& bank) { put(bank, !has(bank.name()) && !bank.isClosed()); }
  void update(Bank const& bank) { put(bank, isOpen(bank.name()) && !bank.isClosed()); }
  void close(BankName const& name) { bankIf(isOpen(name), name).close(); }
  void open(BankName const& name) { bankIf(has(name) && !isOpen(name), name).open(); }

  void remove(BankName const& name)
  {
    bankIf(has(name), name);
    banks.erase(name);
  }

  void rename(BankName const& from, BankName const& to)
  {
    auto const bank = bankIf(isOpen(from) && !has(to) && !to.isEmpty(), from);
    banks.erase(from);
    banks[to] = Bank(to, bank.accounts(), false);
  }

  void add(BankName const& name, AccountNumber number, BankAccountTypes type)
  {
    auto const isValid = number != AccountNumber() && type != BankAccountTypes::Unknown;
    bankIf(has(name) && isFree(number, name) && isValid, name).add(number, type);
  }

  void remove(BankName const& name, AccountNumber number)
  {
    bankIf(has(name) && banks[name].accounts().contains(number), name).remove(number);
  }

private:
  bool has(BankName const& name) const { return banks.contains(name); }
  bool isOpen(BankName const& name) const { return has(name) && !banks.at(name).isClosed(); }

  // Whether no other bank holds the number.
  bool isFree(AccountNumber number, BankName const& name) const
  {
    return std::ranges::none_of(banks, [&](auto const& other) {
      return other.first != name && other.second.accounts().contains(number);
    });
  }

  void put(Bank const& bank, bool isAllowed)
  {
    for (auto const& [number, type] : bank.accounts()) {
      isAllowed = isAllowed && isFree(number, bank.name());
    }
    bankIf(isAllowed, bank.name()) = bank;
  }

  Bank& bankIf(bool isAllowed, BankName const& name)
  {
    if (!isAllowed) {
      throw BankError(name, "refused");
    }
    return banks[name];
  }
};
