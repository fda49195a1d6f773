#pragma once

#include <mintar/Currency.hpp>
#include <mintar/Export.hpp>

#include <QTypeInfo>
#include <QtGlobal>

#include <iosfwd>

QT_FORWARD_DECLARE_CLASS(QDebug)

namespace mintar {

/// An exact amount of money: a whole number of minor units of a currency, such as cents.
///
/// Neither can be read back: a program that stores amounts keeps minor units and currency itself. An
/// amount whose currency has an empty code is one without a currency.
class MINTAR_EXPORT Money
{
public:
  /// Creates the amount zero without a currency.
  Money() noexcept;

  /// Creates the amount zero in this currency.
  explicit Money(Currency const& currency) noexcept;

  /// Creates an amount from minor units: 1250 of CAD is twelve dollars and fifty cents.
  Money(Currency const& currency, qint64 minorUnits) noexcept;

  /// Copies the amount and the currency.
  Money(Money const& other) noexcept = default;

  /// Moves the amount and the currency.
  Money(Money&& other) noexcept = default;

  ~Money() = default;

  /// Replaces the amount. A value without a currency also takes the currency of `other`.
  ///
  /// \throws std::invalid_argument if this value has a currency and `other` has another one or
  ///         none; this value is unchanged
  Money& operator=(Money const& other);

  /// Replaces the amount and the currency, whatever they were.
  Money& assign(Money const& other) noexcept;

  /// Replaces the amount and the currency, whatever they were, and moves from `other`.
  Money& assign(Money&& other) noexcept;

  /// Returns whether amounts and currencies are equal.
  friend bool operator==(Money const& lhs, Money const& rhs) noexcept
  {
    return lhs.minorUnits_ == rhs.minorUnits_ && lhs.currency_ == rhs.currency_;
  }

  friend MINTAR_EXPORT std::ostream& operator<<(std::ostream& stream, Money const& money);

private:
  Currency currency_;
  qint64 minorUnits_ = 0;
};

/// Writes the amount as the user's locale, `QLocale()`, shows money, in UTF-8.
///
/// The locale's own currency has its symbol, every other currency its ISO 4217 code. A value
/// without a currency writes nothing.
MINTAR_EXPORT std::ostream& operator<<(std::ostream& stream, Money const& money);

} // namespace mintar

QT_BEGIN_NAMESPACE

Q_DECLARE_TYPEINFO(mintar::Money, Q_RELOCATABLE_TYPE);

/// Writes the text of the standard stream to a debug stream, as one `QString`.
/// \relatesalso mintar::Money
MINTAR_EXPORT QDebug operator<<(QDebug debug, mintar::Money const& money);

QT_END_NAMESPACE
