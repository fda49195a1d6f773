#pragma once

#include <accounting/Export.hpp>

#include <iosfwd>

class QDebug;
class QString;

namespace orv::accounting {

/// The number of a ledger account. Numbers compare and order by their integer.
class ORV_ACCOUNTING_EXPORT AccountNumber
{
public:
  /// The integer of the number that no account has.
  static constexpr unsigned int invalid_ = 0;

  /// The invalid number.
  AccountNumber() noexcept = default;

  /// The number of that integer; `invalid_` gives the invalid number.
  explicit AccountNumber(unsigned int integer) noexcept : integer_(integer) {}

  /// The integer that the number is.
  unsigned int integer() const noexcept { return integer_; }

  /// True when the number is of that integer.
  bool operator==(unsigned int const& integer) const noexcept { return integer_ == integer; }

private:
  unsigned int integer_ = invalid_;
};

/// Equal when the integers are.
inline bool operator==(AccountNumber const& lhs, AccountNumber const& rhs) noexcept
{
  return lhs.integer() == rhs.integer();
}

/// The order of the integers.
inline bool operator<(AccountNumber const& lhs, AccountNumber const& rhs) noexcept
{
  return lhs.integer() < rhs.integer();
}

/// The decimal digits of the number, the same in every locale: a number identifies, it does not
/// count.
ORV_ACCOUNTING_EXPORT QString presentationText(AccountNumber const& number);

/// Writes the decimal digits of the number, whatever the stream's number format is.
ORV_ACCOUNTING_EXPORT std::ostream& operator<<(std::ostream& stream, AccountNumber const& number);

/// Writes the decimal digits of the number, unquoted.
ORV_ACCOUNTING_EXPORT QDebug operator<<(QDebug debug, AccountNumber const& number);

} // namespace orv::accounting
