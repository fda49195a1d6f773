#pragma once

#include <banking/Export.hpp>
#include <mintar/Money.hpp>

#include <QDate>
#include <QTypeInfo>

QT_FORWARD_DECLARE_CLASS(QDebug)

namespace orv::banking {

/// An account's balance on a date, for instance an entry of its history.
///
/// It is plain data: nothing is checked. Keep one for each account number to store what was
/// reconciled last: the registry knows the bank and the kind of the account.
///
/// \snippet snippets.cpp ReconciledBalance
struct ReconciledBalance
{
  /// The amount of money.
  mintar::Money balance;

  /// The date on which the account had this balance.
  QDate occurredOn;
};

/// Writes `Balance ( … ), Occurred On ( … )`, with what `QDebug <<` writes of the amount and date.
///
/// The five parts are written one by one, each followed by a space unless `nospace()` is set.
/// \relatesalso ReconciledBalance
ORV_BANKING_EXPORT QDebug operator<<(QDebug debug, ReconciledBalance const& balance);

} // namespace orv::banking

QT_BEGIN_NAMESPACE

Q_DECLARE_TYPEINFO(orv::banking::ReconciledBalance,
                   QTypeInfo<mintar::Money>::isRelocatable ? Q_RELOCATABLE_TYPE : Q_COMPLEX_TYPE);

QT_END_NAMESPACE
