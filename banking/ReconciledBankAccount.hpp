#pragma once

#include <banking/BankAccount.hpp>
#include <banking/Export.hpp>
#include <mintar/Money.hpp>

#include <QDate>
#include <QTypeInfo>

#include <iosfwd>
#include <optional>

namespace orv::banking {

/// A bank account with the balance and the date of its last reconciliation.
///
/// To reconcile an account is to record the balance that the bank reported on a date. A
/// reconciliation never moves back in time.
///
/// The account does not know the registry of banks. If its bank is renamed there, replace the
/// account by one with the new name and the same balance and date; the main page shows how.
///
/// Several threads may read the same account. While one thread changes it, no other may use it.
///
/// \snippet snippets.cpp ReconciledBankAccount
class ORV_BANKING_EXPORT ReconciledBankAccount
{
public:
  /// Creates an account without a bank, a number, a kind or an amount. It has never been
  /// reconciled.
  ReconciledBankAccount() = default;

  /// Creates an account that was last reconciled as given. Nothing is checked.
  ///
  /// Without a date, the account has never been reconciled.
  ReconciledBankAccount(BankAccount bankAccount, mintar::Money balance,
                        std::optional<QDate> reconciledOn);

  /// Creates an account with the balance zero in this currency. It has never been reconciled.
  ReconciledBankAccount(BankAccount bankAccount, mintar::Currency const& currency);

  /// Copies the account, its balance and its date.
  ReconciledBankAccount(ReconciledBankAccount const& other) noexcept;

  /// Moves the account and its balance, and copies its date.
  ReconciledBankAccount(ReconciledBankAccount&& other) noexcept;

  /// Copies the account, its balance and its date. The currency may change.
  ReconciledBankAccount& operator=(ReconciledBankAccount const& other) noexcept;

  /// Moves the account and its balance, and copies its date. The currency may change.
  ReconciledBankAccount& operator=(ReconciledBankAccount&& other) noexcept;

  ~ReconciledBankAccount() = default;

  /// Returns the bank, the number and the kind of the account.
  ///
  /// The reference is valid as long as this account exists. Later changes show through it.
  [[nodiscard]] BankAccount const& bankAccount() const noexcept { return bankAccount_; }

  /// Returns the balance of the last reconciliation, or else the balance given at construction.
  ///
  /// The reference is valid as long as this account exists. Later changes show through it.
  [[nodiscard]] mintar::Money const& balance() const noexcept { return balance_; }

  /// Returns the date of the last reconciliation, or nothing.
  ///
  /// The reference is valid as long as this account exists. Later changes show through it.
  [[nodiscard]] std::optional<QDate> const& reconciledOn() const noexcept { return reconciledOn_; }

  /// Records the balance that the bank reported on a date.
  ///
  /// The first reconciliation accepts any date, a later one the same date or a later one. An
  /// invalid date is earlier than every valid date. The date is checked before the currency.
  ///
  /// \throws BankError if `date` is earlier than the last date; the error tells the last date, then
  ///         `date`, and the account is unchanged
  /// \throws std::invalid_argument if the account has a currency and `balance` has another one or
  ///         none; the account is unchanged
  void reconcile(QDate const& date, mintar::Money const& balance);

private:
  BankAccount bankAccount_;
  mintar::Money balance_;
  std::optional<QDate> reconciledOn_;
};

/// Writes the fields with their labels, in UTF-8.
///
/// The text is `Bank Account: (…), Balance: (…) Reconciled On: (2026-10-31)`, with the account,
/// then the balance as the user's locale shows it, then the date in ISO 8601 or
/// `<optional-value-not-set>`.
///
/// \throws std::logic_error if the kind is not one of the enumerators; the text before the kind has
///         been written
/// \relatesalso ReconciledBankAccount
ORV_BANKING_EXPORT std::ostream& operator<<(std::ostream& stream,
                                            ReconciledBankAccount const& account);

/// Writes the text of the standard stream to a debug stream, as one `QString`.
///
/// \throws std::logic_error if the kind is not one of the enumerators; nothing has been written
/// \relatesalso ReconciledBankAccount
ORV_BANKING_EXPORT QDebug operator<<(QDebug debug, ReconciledBankAccount const& account);

} // namespace orv::banking

Q_DECLARE_TYPEINFO(orv::banking::ReconciledBankAccount, Q_RELOCATABLE_TYPE);
