#pragma once

#include <cstdint>

namespace orv::accounting {

/// The five classes of ledger account. Zero stands for an account that has not been classed.
enum class AccountTypes : std::int32_t
{
  Unknown = 0,
  Asset = 1,
  Expense = 2,
  Income = 3,
  Liability = 4,
  Equity = 5,
};

} // namespace orv::accounting
