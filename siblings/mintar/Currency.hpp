#pragma once

#include <mintar/Export.hpp>

#include <QString>
#include <QTypeInfo>

#include <utility>

namespace mintar {

/// A currency, known by its ISO 4217 code. Currencies are equal when their codes are.
class MINTAR_EXPORT Currency
{
public:
  /// Takes the code as it is, for instance "CAD"; the code is not looked up anywhere.
  explicit Currency(QString isoCode) noexcept : isoCode_(std::move(isoCode)) {}

  /// The code as it was given. The reference is valid while this currency lives and is not assigned
  /// to.
  QString const& isoCode() const noexcept { return isoCode_; }

  /// How many decimals an amount in this currency has: 0 for JPY, 3 for KWD, 2 for most.
  int decimals() const noexcept;

  /// Equal when the codes are.
  friend bool operator==(Currency const& lhs, Currency const& rhs) noexcept
  {
    return lhs.isoCode_ == rhs.isoCode_;
  }

private:
  QString isoCode_;
};

} // namespace mintar

Q_DECLARE_TYPEINFO(mintar::Currency, Q_RELOCATABLE_TYPE);
