#pragma once

#include <banking/BankMap.hpp>

using namespace orv::banking;
using orv::accounting::AccountNumber;
using Banks = std::map<BankName, Bank>;

/// Open banks, with names and account numbers from `first` on. Each call makes the same ones, in
/// memory of their own.
inline Banks makeBanks(qint64 count, qint64 accountsEach, unsigned int first = 100'000)
{
  // A multiple of a prime, modulo their count: neither names nor numbers come in order.
  auto const spread = [first](auto i, auto n) { return first + unsigned(i * 7'919 % n); };
  Banks banks;
  for (qint64 i = 0; i < count; ++i) {
    std::map<AccountNumber, BankAccountTypes> accounts;
    for (auto j = i * accountsEach; j < (i + 1) * accountsEach; ++j) {
      accounts.emplace(spread(j, count * accountsEach), BankAccountTypes(j % 5 + 1));
    }
    BankName const name(QString("Credit Union of County %1").arg(spread(i, count)));
    banks.emplace(name, Bank(name, std::move(accounts), false));
  }
  return banks;
}
