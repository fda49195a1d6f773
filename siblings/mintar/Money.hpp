#pragma once

#include <mintar/Currency.hpp>
#include <mintar/Export.hpp>

#include <QTypeInfo>
#include <QtGlobal>

#include <iosfwd>

class QDebug;

namespace mintar {

/// An exact amount of money: a whole number of its currency's minor units, never floating point.
class MINTAR_EXPORT Money
{
public:
  /// No amount and no currency.
  Money() noexcept;

  /// Zero in the given currency.
  explicit Money(Currency const& currency) noexcept;

  /// For instance 1250 of CAD for twelve dollars and fifty cents.
  Money(Currency const& currency, qint64 minorUnits) noexcept;

  /// The whole value.
  /// @{
  Money(Money const& other) noexcept = default;
  Money(Money&& other) noexcept = default;
  /// @}
  ~Money() = default;

  /// Replaces the amount, and the currency where there was none yet. Throws `std::invalid_argument`
  /// when `other` is in another currency or in none, with nothing changed.
  Money& operator=(Money const& other);

  /// Replaces the whole value, whatever the currencies are.
  /// @{
  Money& assign(Money const& other) noexcept;
  Money& assign(Money&& other) noexcept;
  /// @}

  /// Equal when amount and currency are.
  friend bool operator==(Money const& lhs, Money const& rhs) noexcept
  {
    return lhs.minorUnits_ == rhs.minorUnits_ && lhs.currency_ == rhs.currency_;
  }

  friend MINTAR_EXPORT std::ostream& operator<<(std::ostream& stream, Money const& money);

private:
  Currency currency_;
  qint64 minorUnits_ = 0;
};

/// Writes the amount as the user's locale (`QLocale()`) shows money, in UTF-8: with the locale's own
/// currency symbol where the currency is the locale's own, with the ISO 4217 code elsewhere. Writes
/// nothing for a value without a currency.
MINTAR_EXPORT std::ostream& operator<<(std::ostream& stream, Money const& money);

} // namespace mintar

Q_DECLARE_TYPEINFO(mintar::Money, Q_RELOCATABLE_TYPE);

/// Writes the text that the standard stream gets, as one `QString`.
MINTAR_EXPORT QDebug operator<<(QDebug debug, mintar::Money const& money);
