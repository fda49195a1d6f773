#pragma once

#include <accounting/AccountNumber.hpp>
#include <banking/BankAccountTypes.hpp>
#include <banking/BankName.hpp>
#include <banking/Export.hpp>

#include <iosfwd>
#include <map>

class QDebug;

namespace orv::banking {

/// A bank: its name, its accounts with their kinds, and whether it is open or closed.
///
/// A bank has a name, no invalid account number and no account of the kind `Unknown`. A
/// default-constructed bank has no name. A moved-from bank is for assigning to and destroying only.
///
/// A change that would break a rule throws `BankError`, which names this bank; the page
/// [Refusals](docs/refusals.md) has the words. A change that throws leaves the bank unchanged, also if
/// memory runs out.
///
/// Each change is logged before it is checked, so a refused change is logged too. The messages are
/// info messages of Qt's default category; see [Log messages](docs/log-messages.md). A message
/// handler must not throw.
///
/// Several threads may read the same bank. While one thread changes it, no other may use it.
///
/// \snippet snippets.cpp Bank
class ORV_BANKING_EXPORT Bank
{
public:
  /// Creates an open bank without a name and without accounts.
  Bank() = default;

  /// Creates a bank from its name, its accounts and its state. Nothing is logged.
  ///
  /// A kind that is not one of the enumerators is accepted here; writing or logging the bank then
  /// throws.
  ///
  /// \throws BankError if `name` is empty; the name of the bank in the error is empty
  /// \throws BankError if an account number is invalid
  /// \throws BankError if a kind is `Unknown`
  ///
  /// Complexity: linear in the number of accounts.
  Bank(BankName name, std::map<accounting::AccountNumber, BankAccountTypes> accounts,
       bool isClosed);

  /// Returns the account numbers with their kinds, the smallest number first.
  ///
  /// The reference is valid as long as this bank exists. Later changes show through it.
  [[nodiscard]] std::map<accounting::AccountNumber, BankAccountTypes> const&
  accounts() const noexcept
  {
    return accounts_;
  }

  /// Returns whether the bank is closed. A closed bank can still add and remove accounts.
  [[nodiscard]] bool isClosed() const noexcept { return isClosed_; }

  /// Returns the name.
  ///
  /// The reference is valid as long as this bank exists. Later changes show through it.
  [[nodiscard]] BankName const& name() const noexcept { return name_; }

  /// Closes the bank.
  ///
  /// \throws BankError if the bank is closed already
  void close();

  /// Opens the bank.
  ///
  /// \throws BankError if the bank is open already
  void open();

  /// Adds an account, or changes its kind if the bank holds the number already.
  ///
  /// \throws std::logic_error if `type` is not one of the enumerators; the log message then ends
  ///         before the kind
  /// \throws BankError if `number` is invalid
  /// \throws BankError if `type` is `Unknown`
  ///
  /// Complexity: logarithmic in the number of accounts.
  void add(accounting::AccountNumber const& number, BankAccountTypes type);

  /// Removes an account.
  ///
  /// \throws std::logic_error if a kind that the bank holds is not one of the enumerators
  /// \throws BankError if the bank does not hold `number`
  ///
  /// Complexity: linear in the number of accounts, because the log message shows them all.
  void remove(accounting::AccountNumber const& number);

private:
  // The bank map alone renames banks: it keeps their names apart.
  friend class BankMap;

  std::map<accounting::AccountNumber, BankAccountTypes> accounts_;
  bool isClosed_ = false;
  BankName name_;
};

/// Returns whether the states, the names and the accounts with their kinds are equal.
///
/// Complexity: linear in the number of accounts.
/// \relatesalso Bank
ORV_BANKING_EXPORT bool operator==(Bank const& lhs, Bank const& rhs);

/// Writes the fields with their labels, in UTF-8.
///
/// For example, `Bank: (Financial Institution Name: (Elm)), Account Numbers: (100=>Loan,
/// 200=>Savings), Is Closed: false)`, with this last parenthesis. Kinds are in the user's language. The stream is left in
/// `std::boolalpha` mode.
///
/// \throws std::logic_error if a kind is not one of the enumerators; the text before that kind has
///         been written
///
/// Complexity: linear in the number of accounts.
/// \relatesalso Bank
ORV_BANKING_EXPORT std::ostream& operator<<(std::ostream& stream, Bank const& bank);

/// Writes the text of the standard stream to a debug stream, as one `QString`.
///
/// \throws std::logic_error if a kind is not one of the enumerators; nothing has been written
/// \relatesalso Bank
ORV_BANKING_EXPORT QDebug operator<<(QDebug debug, Bank const& bank);

} // namespace orv::banking
