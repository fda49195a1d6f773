#pragma once

#include <banking/Export.hpp>
#include <mintar/Money.hpp>

#include <QDate>

class QDebug;

namespace orv::banking {

/// A balance and the date on which it occurred.
struct ReconciledBalance
{
  /// The amount.
  mintar::Money balance;

  /// The date.
  QDate occurredOn;
};

/// Writes "Balance (", the balance, "), Occurred On (", the date and ")", each as `QDebug` writes it:
/// in space mode a space follows each of the five.
ORV_BANKING_EXPORT QDebug operator<<(QDebug debug, ReconciledBalance const& balance);

} // namespace orv::banking
