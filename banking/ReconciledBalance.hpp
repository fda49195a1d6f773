#pragma once

#include <banking/Export.hpp>
#include <mintar/Money.hpp>

#include <QDate>
#include <QTypeInfo>

class QDebug;

namespace orv::banking {

/// A balance and the date on which it occurred.
///
/// This is plain data: nothing is checked. Like an assignment of `mintar::Money`, an assignment
/// that would change the currency throws `std::invalid_argument`.
///
/// \snippet snippets.cpp ReconciledBalance
struct ReconciledBalance
{
  /// The amount of money.
  mintar::Money balance;

  /// The date on which the account had this balance.
  QDate occurredOn;
};

/// Writes the balance and the date to a debug stream: `Balance (…), Occurred On (…)`.
///
/// The five parts are written one by one, so the stream puts a space after each unless told
/// `nospace()`. The amount and the date are as `QDebug` writes them.
/// \relatesalso ReconciledBalance
ORV_BANKING_EXPORT QDebug operator<<(QDebug debug, ReconciledBalance const& balance);

} // namespace orv::banking

Q_DECLARE_TYPEINFO(orv::banking::ReconciledBalance, Q_RELOCATABLE_TYPE);
