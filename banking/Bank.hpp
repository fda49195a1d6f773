#pragma once

#include <accounting/AccountNumber.hpp>
#include <banking/BankAccountTypes.hpp>
#include <banking/BankName.hpp>
#include <banking/Export.hpp>

#include <iosfwd>
#include <map>

class QDebug;

namespace orv::banking {

/// A bank: its name, the ledger account numbers held there with their kinds, and whether it is open.
///
/// Every bank but a default-constructed or moved-from one has a name, no invalid account number and no
/// account of the kind `Unknown`. A change that would break a rule throws `BankError`, which names this
/// bank, and leaves the bank as it was. Each change first writes one info message to Qt's default logging
/// category, whether it is then refused or not.
///
/// A change for which there is no memory throws `std::bad_alloc` and leaves the bank as it was, too;
/// its message may end early. Qt calls the message handler where an exception ends the program: a
/// handler must not throw, and with Qt's own, which needs memory for every message, a full memory ends
/// the program.
class ORV_BANKING_EXPORT Bank
{
public:
  /// An open bank without a name and without accounts; nothing is checked.
  Bank() = default;

  /// Takes the three as they are, a kind that has no name included; logs nothing. Throws `BankError`, the first that applies of
  /// - "The name of a financial institution cannot be empty.", for an empty bank name;
  /// - "The bank account number of a financial institution cannot be invalid.";
  /// - "The bank account type of a financial institution cannot be unknown.".
  ///
  /// Linear in the number of accounts.
  Bank(BankName name, std::map<accounting::AccountNumber, BankAccountTypes> accounts,
       bool isClosed);

  /// The kind of each account number held here, smallest number first. The reference is valid while
  /// this bank lives; changes of the bank show in it.
  std::map<accounting::AccountNumber, BankAccountTypes> const& accounts() const noexcept
  {
    return accounts_;
  }

  /// True for a closed bank. Its accounts may change all the same.
  bool isClosed() const noexcept { return isClosed_; }

  /// The reference is valid while this bank lives; assigning to the bank changes the name.
  BankName const& name() const noexcept { return name_; }

  /// Logs "Closing" and the name. Throws `BankError` "Cannot close a bank that is already closed.".
  void close();

  /// Logs "Opening" and the name. Throws `BankError` "Cannot open a bank that is already opened.".
  void open();

  /// Holds `number` as an account of the kind `type` from now on, in place of the kind that it had, if
  /// any. A closed bank takes it as well. Logs "Adding account number", the number, "which is", the
  /// kind, "to", and the name. Throws `BankError`, the first that applies of
  /// - "Cannot add an account number of a financial institution that is invalid.";
  /// - "Cannot add an account type of a financial institution that is unknown.";
  ///
  /// and `std::logic_error` as `BankAccountTypes` says. Logarithmic in the number of accounts.
  void add(accounting::AccountNumber const& number, BankAccountTypes type);

  /// Lets go of `number`; a closed bank does so as well. Logs "Removing account number", the number,
  /// "from", and the whole bank as it was, which makes the cost linear in the number of accounts.
  /// Throws `BankError` "The account '%1' is not associated with the financial institution." with the
  /// number, and `std::logic_error` as `BankAccountTypes` says where a kind held here is none.
  void remove(accounting::AccountNumber const& number);

private:
  // The bank map alone names banks anew, where it also keeps the names apart.
  friend class BankMap;

  std::map<accounting::AccountNumber, BankAccountTypes> accounts_;
  bool isClosed_ = false;
  BankName name_;
};

/// True when both are open or both are closed, and names and accounts are equal. Linear in the number
/// of accounts.
ORV_BANKING_EXPORT bool operator==(Bank const& lhs, Bank const& rhs);

/// Writes "Bank: (", the name, "), Account Numbers: (", the accounts as number=>kind, separated by
/// ", ", "), Is Closed: ", true or false, and ")". The stream stays in `std::boolalpha`. Throws
/// `std::logic_error` as `BankAccountTypes` says, when the text before the kind has been written.
/// Linear in the number of accounts.
ORV_BANKING_EXPORT std::ostream& operator<<(std::ostream& stream, Bank const& bank);

/// Writes the text that the standard stream gets, as one `QString`, or nothing where that throws.
ORV_BANKING_EXPORT QDebug operator<<(QDebug debug, Bank const& bank);

} // namespace orv::banking
