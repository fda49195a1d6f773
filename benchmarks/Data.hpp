#pragma once

#include <banking/Bank.hpp>

#include <array>
#include <map>
#include <vector>

struct Size
{
  char const* name;
  int banks;
  int accountsEach;
};

constexpr std::array<Size, 4> sizes{{
    {"household", 5, 4},
    {"firm", 100, 25},
    {"country", 4'500, 10},
    {"continent", 12'000, 10},
}};

using Accounts = std::map<orv::accounting::AccountNumber, orv::banking::BankAccountTypes>;
using Banks = std::map<orv::banking::BankName, orv::banking::Bank>;

/// Open banks in no order, with names as real ones have them: 44 characters at the median and up to
/// 205, half of them with letters beyond ASCII. The numbers are shuffled over the banks. Each call gives
/// the same, in memory of its own.
std::vector<orv::banking::Bank> makeBanks(int banks, int accountsEach);

/// As many accounts, with numbers from `firstFreeNumber` on, which no bank of `makeBanks` holds.
Accounts makeFreeAccounts(unsigned int count);
constexpr unsigned int firstFreeNumber = 10'000'000;

/// The banks by name. What is filled by the same loop lies in memory alike.
template <typename Bank>
std::map<orv::banking::BankName, Bank> byName(std::vector<orv::banking::Bank> const& banks)
{
  std::map<orv::banking::BankName, Bank> map;
  for (auto const& bank : banks) {
    map.emplace(bank.name(), bank);
  }
  return map;
}
