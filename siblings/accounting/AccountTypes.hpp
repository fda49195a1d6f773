#pragma once

#include <cstdint>

namespace orv::accounting {

/// The class of a ledger account: one of five, or `Unknown` for an account that has not been
/// classed.
enum class AccountTypes : std::int32_t
{
  Unknown = 0,   ///< Not classed.
  Asset = 1,     ///< What the owner has, such as money in an account.
  Expense = 2,   ///< What the owner spends money on.
  Income = 3,    ///< Where the owner gets money from.
  Liability = 4, ///< What the owner owes, such as a loan.
  Equity = 5,    ///< What would remain if all liabilities were paid.
};

} // namespace orv::accounting
