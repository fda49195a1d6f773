#pragma once

#include <banking/BankAccount.hpp>
#include <banking/Export.hpp>
#include <mintar/Money.hpp>

#include <QDate>

#include <iosfwd>
#include <optional>

namespace orv::banking {

/// A bank account with the balance and the date of its last reconciliation, which never moves back in
/// time.
class ORV_BANKING_EXPORT ReconciledBankAccount
{
public:
  /// An empty `BankAccount`, no amount, never reconciled.
  ReconciledBankAccount() = default;

  /// Takes all three as they are; without a date the account has never been reconciled.
  ReconciledBankAccount(BankAccount bankAccount, mintar::Money balance,
                        std::optional<QDate> reconciledOn);

  /// Zero in the given currency, never reconciled.
  ReconciledBankAccount(BankAccount bankAccount, mintar::Currency const& currency);

  /// A copy or a move takes over the whole balance, whatever its currency. A moved-from account keeps
  /// its date.
  /// @{
  ReconciledBankAccount(ReconciledBankAccount const& other) noexcept;
  ReconciledBankAccount(ReconciledBankAccount&& other) noexcept;
  ReconciledBankAccount& operator=(ReconciledBankAccount const& other) noexcept;
  ReconciledBankAccount& operator=(ReconciledBankAccount&& other) noexcept;
  /// @}
  ~ReconciledBankAccount() = default;

  /// The account as the bank holds it. The references that this and the next two give are valid while
  /// this account lives; assigning to it or reconciling it changes what they refer to.
  BankAccount const& bankAccount() const noexcept { return bankAccount_; }

  /// The balance that the bank reported last.
  mintar::Money const& balance() const noexcept { return balance_; }

  /// The date of the last reconciliation, if any.
  std::optional<QDate> const& reconciledOn() const noexcept { return reconciledOn_; }

  /// Records that the bank reported `balance` on `date`. The first reconciliation takes any date, a
  /// later one the same date or a later one; an invalid date is earlier than every valid one.
  ///
  /// Throws, with nothing changed, `BankError` "The last reconciled date, %1, cannot be updated to be
  /// in the past, %2." with both dates as the user's locale writes them, and whatever
  /// `mintar::Money::operator=` throws for a change of currency.
  void reconcile(QDate const& date, mintar::Money const& balance);

private:
  BankAccount bankAccount_;
  mintar::Money balance_;
  std::optional<QDate> reconciledOn_;
};

/// Writes "Bank Account: (", the bank account, "), Balance: (", the balance, ") Reconciled On: (", the
/// date in ISO 8601 or "<optional-value-not-set>", and ")". Throws `std::logic_error` as
/// `BankAccountTypes` says.
ORV_BANKING_EXPORT std::ostream& operator<<(std::ostream& stream,
                                            ReconciledBankAccount const& account);

/// Writes the text that the standard stream gets, as one `QString`, or nothing where that throws.
ORV_BANKING_EXPORT QDebug operator<<(QDebug debug, ReconciledBankAccount const& account);

} // namespace orv::banking
