#pragma once

#include <mintar/Currency.hpp>
#include <mintar/Export.hpp>

#include <QString>
#include <QTypeInfo>
#include <QtGlobal>

#include <iosfwd>
#include <utility>

QT_FORWARD_DECLARE_CLASS(QDebug)

namespace mintar {

/// An exact amount of money: a whole number of minor units of a currency, such as cents.
///
/// An amount whose currency has an empty code is one without a currency. Copying, moving and
/// assigning never throw, whatever the currencies are.
class MINTAR_EXPORT Money
{
public:
  /// Creates the amount zero without a currency.
  Money() noexcept : currency_(QString()) {}

  /// Creates the amount zero in this currency.
  explicit Money(Currency const& currency) noexcept : currency_(currency) {}

  /// Creates an amount from minor units: 1250 of CAD is twelve dollars and fifty cents.
  Money(Currency const& currency, qint64 minorUnits) noexcept
      : currency_(currency), minorUnits_(minorUnits)
  {
  }

  /// Returns the currency, which has an empty code if the amount has none.
  ///
  /// The reference is valid as long as this amount exists. It shows later assignments.
  [[nodiscard]] Currency const& currency() const noexcept { return currency_; }

  /// Returns the amount in minor units of its currency.
  [[nodiscard]] qint64 minorUnits() const noexcept { return minorUnits_; }

  /// Replaces the amount and the currency, as `=` does.
  Money& assign(Money const& other) noexcept { return *this = other; }

  /// Replaces the amount and the currency, as `=` does, and moves from `other`.
  Money& assign(Money&& other) noexcept { return *this = std::move(other); }

  /// Returns whether amounts and currencies are equal.
  friend bool operator==(Money const& lhs, Money const& rhs) noexcept
  {
    return lhs.minorUnits_ == rhs.minorUnits_ && lhs.currency_ == rhs.currency_;
  }

private:
  Currency currency_;
  qint64 minorUnits_ = 0;
};

/// Returns the amount as the user's locale, `QLocale()`, shows money, for instance "$1,250.50".
///
/// The locale's own currency has its symbol, every other currency its ISO 4217 code. The text of an
/// amount without a currency is empty.
/// \relatesalso Money
[[nodiscard]] MINTAR_EXPORT QString presentationText(Money const& money);

/// Writes the presentation text of the amount in UTF-8.
/// \relatesalso Money
MINTAR_EXPORT std::ostream& operator<<(std::ostream& stream, Money const& money);

} // namespace mintar

QT_BEGIN_NAMESPACE

Q_DECLARE_TYPEINFO(mintar::Money, Q_RELOCATABLE_TYPE);

/// Writes the presentation text of the amount to a debug stream, as one `QString`.
/// \relatesalso mintar::Money
MINTAR_EXPORT QDebug operator<<(QDebug debug, mintar::Money const& money);

QT_END_NAMESPACE
