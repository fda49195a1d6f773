#pragma once

#include <accounting/AccountNumber.hpp>
#include <banking/BankAccountTypes.hpp>
#include <banking/BankError.hpp>
#include <banking/BankName.hpp>
#include <banking/Export.hpp>

#include <iosfwd>
#include <map>

namespace orv::banking {

/// A bank: its name, its accounts with their kinds, and whether it is open or closed.
///
/// Use it to describe a bank for a `BankMap`, or to change several things of one bank at once: copy
/// it from the registry, change the copy, and pass that to `BankMap::update`. The copy and the
/// registered bank must both be open.
///
/// No bank holds the invalid account number or an account of the kind `Unknown`. A closed bank
/// still adds and removes accounts. Only a default-constructed bank has no name; its calls work,
/// with an empty name in messages.
///
/// \snippet snippets.cpp Bank
class ORV_BANKING_EXPORT Bank
{
public:
  /// Creates an open bank without a name and without accounts.
  Bank() = default;

  /// Creates a bank from its name, its accounts and its state. Nothing is logged.
  ///
  /// \throws BankError if `name` is empty
  /// \throws BankError if an account number is invalid
  /// \throws BankError if a kind is `Unknown`
  Bank(BankName name, std::map<accounting::AccountNumber, BankAccountTypes> accounts,
       bool isClosed);

  /// Returns the account numbers with their kinds, the smallest number first.
  ///
  /// An iterator is valid until its number is removed, the bank is assigned to, moved, swapped or
  /// destroyed, or a registry updates or renames the bank.
  [[nodiscard]] std::map<accounting::AccountNumber, BankAccountTypes> const&
  accounts() const noexcept
  {
    return accounts_;
  }

  /// Returns whether the bank is closed.
  [[nodiscard]] bool isClosed() const noexcept { return isClosed_; }

  /// Returns the name.
  [[nodiscard]] BankName const& name() const noexcept { return name_; }

  /// Closes the bank. Logged.
  ///
  /// \throws BankError if the bank is closed already
  void close();

  /// Opens the bank. Logged.
  ///
  /// \throws BankError if the bank is open already
  void open();

  /// Adds an account, or changes its kind if the bank holds the number already. Logged.
  ///
  /// \throws std::logic_error if `type` is not one of the enumerators
  /// \throws BankError if `number` is invalid
  /// \throws BankError if `type` is `Unknown`
  void add(accounting::AccountNumber const& number, BankAccountTypes type);

  /// Removes an account. Logged; the message shows all accounts before the removal.
  ///
  /// \throws std::logic_error if a kind that the bank holds is not one of the enumerators
  /// \throws BankError if the bank does not hold `number`
  ///
  /// Complexity: linear in the number of accounts, because of the log message.
  void remove(accounting::AccountNumber const& number);

private:
  // The bank map alone renames banks: it keeps their names apart.
  friend class BankMap;

  std::map<accounting::AccountNumber, BankAccountTypes> accounts_;
  bool isClosed_ = false;
  BankName name_;
};

/// Returns whether the names, the states and the accounts with their kinds are equal.
/// \relatesalso Bank
ORV_BANKING_EXPORT bool operator==(Bank const& lhs, Bank const& rhs);

/// Returns the opposite of `==`. \relatesalso Bank
inline bool operator!=(Bank const& lhs, Bank const& rhs)
{
  return !(lhs == rhs);
}

/// Writes "Bank: (Financial Institution Name: (Elm)), Account Numbers: (100=>Loan, 200=>Goal), Is
/// Closed: false)".
///
/// The last parenthesis has no opening one. The stream is left in `std::boolalpha` mode.
/// \relatesalso Bank
ORV_BANKING_EXPORT std::ostream& operator<<(std::ostream& stream, Bank const& bank);

/// Writes the same text as one `QString`. \relatesalso Bank
ORV_BANKING_EXPORT QDebug operator<<(QDebug debug, Bank const& bank);

} // namespace orv::banking
