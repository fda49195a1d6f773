#pragma once

#include <accounting/Export.hpp>

#include <QString>

#include <iosfwd>

QT_FORWARD_DECLARE_CLASS(QDebug)

namespace orv::accounting {

/// The program's own number of an account in its ledger, not the one that a bank uses.
///
/// Numbers are equal if their integers are equal, and are ordered by their integers. There is no
/// hash.
class ORV_ACCOUNTING_EXPORT AccountNumber
{
public:
  /// The integer of the invalid number, which no account has.
  static constexpr unsigned int invalid_ = 0;

  /// Creates the invalid number.
  AccountNumber() noexcept = default;

  /// Creates the number with this integer; `invalid_` makes the invalid number.
  explicit AccountNumber(unsigned int integer) noexcept : integer_(integer) {}

  /// Returns the number as an integer.
  [[nodiscard]] unsigned int integer() const noexcept { return integer_; }

  /// Returns whether the number has this integer, for example `number == AccountNumber::invalid_`.
  bool operator==(unsigned int const& integer) const noexcept { return integer_ == integer; }

private:
  unsigned int integer_ = invalid_;
};

/// Returns whether both integers are equal.
/// \relatesalso AccountNumber
inline bool operator==(AccountNumber const& lhs, AccountNumber const& rhs) noexcept
{
  return lhs.integer() == rhs.integer();
}

/// Returns whether the integer of `lhs` is smaller.
/// \relatesalso AccountNumber
inline bool operator<(AccountNumber const& lhs, AccountNumber const& rhs) noexcept
{
  return lhs.integer() < rhs.integer();
}

/// Returns the decimal digits of the number, the same in every locale: a number identifies, it does
/// not count.
/// \relatesalso AccountNumber
[[nodiscard]] ORV_ACCOUNTING_EXPORT QString presentationText(AccountNumber const& number);

/// Writes the decimal digits of the number, whatever the number format of the stream.
/// \relatesalso AccountNumber
ORV_ACCOUNTING_EXPORT std::ostream& operator<<(std::ostream& stream, AccountNumber const& number);

/// Writes the decimal digits of the number to a debug stream, without quotes.
/// \relatesalso AccountNumber
ORV_ACCOUNTING_EXPORT QDebug operator<<(QDebug debug, AccountNumber const& number);

} // namespace orv::accounting
