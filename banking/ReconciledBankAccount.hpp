#pragma once

#include <banking/BankAccount.hpp>
#include <banking/BankError.hpp>
#include <banking/Export.hpp>
#include <mintar/Money.hpp>

#include <QDate>
#include <QTypeInfo>

#include <iosfwd>
#include <optional>

namespace orv::banking {

/// A bank account with the balance and the date of its last reconciliation.
///
/// To reconcile an account is to record the balance that the bank reported for a date. A
/// reconciliation never moves back in time.
///
/// The account is independent of every registry: later changes of a registry do not change it. A
/// program with a registry keeps a `ReconciledBalance` for each account number, and makes a
/// `ReconciledBankAccount` only to call `reconcile`. A moved-from account still has its date,
/// number and kind.
///
/// \snippet snippets.cpp ReconciledBankAccount
class ORV_BANKING_EXPORT ReconciledBankAccount
{
public:
  /// Creates an account without a bank, an amount or a date. Its number is
  /// `accounting::AccountNumber()` and its kind `Unknown`.
  ReconciledBankAccount() = default;

  /// Creates an account that was last reconciled on this date or, if there is no date, never.
  /// Nothing is checked.
  ReconciledBankAccount(BankAccount bankAccount, mintar::Money balance,
                        std::optional<QDate> reconciledOn);

  /// Creates an account with the balance zero in this currency. It has never been reconciled.
  ReconciledBankAccount(BankAccount bankAccount, mintar::Currency const& currency);

  /// @{
  /// Copies or moves the account and its balance, and copies its date.
  ReconciledBankAccount(ReconciledBankAccount const& other) noexcept;
  ReconciledBankAccount(ReconciledBankAccount&& other) noexcept;
  ReconciledBankAccount& operator=(ReconciledBankAccount const& other) noexcept;
  ReconciledBankAccount& operator=(ReconciledBankAccount&& other) noexcept;
  /// @}
  ~ReconciledBankAccount() = default;

  /// Returns the bank, the number and the kind of the account.
  [[nodiscard]] BankAccount const& bankAccount() const noexcept { return bankAccount_; }

  /// Returns the balance of the last reconciliation, or else the balance given at construction.
  [[nodiscard]] mintar::Money const& balance() const noexcept { return balance_; }

  /// Returns the date of the last reconciliation, or nothing.
  [[nodiscard]] std::optional<QDate> const& reconciledOn() const noexcept { return reconciledOn_; }

  /// Records the balance that the bank reported for a date. Not logged.
  ///
  /// The first reconciliation accepts any date, even an invalid one. Each further one accepts the
  /// same date or a later one. An invalid date is earlier than every valid date. The currency may
  /// change.
  ///
  /// \throws BankError if `date` is earlier than the last date
  void reconcile(QDate const& date, mintar::Money const& balance);

private:
  BankAccount bankAccount_;
  mintar::Money balance_;
  std::optional<QDate> reconciledOn_;
};

/// Writes "Bank Account: (…), Balance: (…) Reconciled On: (2026-10-31)".
///
/// The balance is written as the user's locale shows it, the date in ISO 8601 or as
/// `<optional-value-not-set>`.
/// \relatesalso ReconciledBankAccount
ORV_BANKING_EXPORT std::ostream& operator<<(std::ostream& stream,
                                            ReconciledBankAccount const& account);

/// Writes the same text as one `QString`. \relatesalso ReconciledBankAccount
ORV_BANKING_EXPORT QDebug operator<<(QDebug debug, ReconciledBankAccount const& account);

} // namespace orv::banking

QT_BEGIN_NAMESPACE

Q_DECLARE_TYPEINFO(orv::banking::ReconciledBankAccount,
                   QTypeInfo<mintar::Money>::isRelocatable ? Q_RELOCATABLE_TYPE : Q_COMPLEX_TYPE);

QT_END_NAMESPACE
