#pragma once

#include <mintar/Export.hpp>

#include <QString>
#include <QTypeInfo>

#include <utility>

namespace mintar {

/// A currency, known by its ISO 4217 code.
class MINTAR_EXPORT Currency
{
public:
  /// Creates the currency with this code, for example "CAD". The code is not checked.
  explicit Currency(QString isoCode) noexcept : isoCode_(std::move(isoCode)) {}

  /// Returns the code, exactly as it was given.
  ///
  /// The reference is valid as long as this currency exists. It shows later assignments.
  [[nodiscard]] QString const& isoCode() const noexcept { return isoCode_; }

  /// Returns how many decimals an amount in this currency has: 0 for JPY, 3 for KWD, 2 for most.
  [[nodiscard]] int decimals() const noexcept;

  /// Returns whether both codes are equal. Letter case matters.
  friend bool operator==(Currency const& lhs, Currency const& rhs) noexcept
  {
    return lhs.isoCode_ == rhs.isoCode_;
  }

private:
  QString isoCode_;
};

} // namespace mintar

QT_BEGIN_NAMESPACE

Q_DECLARE_TYPEINFO(mintar::Currency, Q_RELOCATABLE_TYPE);

QT_END_NAMESPACE
