#pragma once

#include <accounting/AccountNumber.hpp>
#include <banking/Bank.hpp>
#include <banking/BankAccountTypes.hpp>
#include <banking/BankName.hpp>
#include <banking/Export.hpp>

#include <iosfwd>
#include <map>
#include <optional>
#include <set>

namespace orv::banking {

/// The registry of all banks, in the order of their names.
///
/// Every bank stands under its own name, no bank holds the invalid account number, and no account
/// number is held at two banks. A change that would break a rule throws `BankError` and leaves the
/// registry as it was; the errors of the `Bank` that is changed pass through. The messages are those
/// in quotes; their placeholders stand for account numbers and bank names. `std::bad_alloc` leaves the
/// registry as it was, too. A bank that is moved into a call is gone even where the call is refused.
///
/// Below, B is the number of banks, A the number of accounts of one bank and N the number of accounts of
/// all banks. There is no index of account numbers: what asks for the holder of a number visits the
/// banks.
class ORV_BANKING_EXPORT BankMap
{
public:
  /// A registry without banks.
  BankMap() = default;

  /// Takes the banks. Throws `BankError` for the first broken rule, bank by bank in name order and,
  /// within a bank, the key first, then number by number:
  /// - "The key name does not match the value name, %1.", for the key, with the name of the bank;
  /// - "A default account cannot be associated with a bank.", for the bank that holds the invalid
  ///   number;
  /// - "The account '%1' is associated with the bank '%2' and cannot be used again.", for the first
  ///   holder of the number, with the next holder.
  ///
  /// O(B + N), with two temporary lists of the N numbers.
  explicit BankMap(std::map<BankName, Bank> banks);

  /// Iterates over the banks, each a pair of its name and itself.
  using const_iterator = std::map<BankName, Bank>::const_iterator;

  /// The first bank in name order. The iterator is valid until its bank is removed or renamed or the
  /// registry is destroyed.
  [[nodiscard]] const_iterator begin() const noexcept { return banks_.begin(); }

  /// The end of the banks.
  [[nodiscard]] const_iterator end() const noexcept { return banks_.end(); }

  /// O(log B).
  bool hasBank(BankName const& name) const noexcept;

  /// A copy of the bank that holds `number`, if any. O(B log A), and the copy.
  std::optional<Bank> find(accounting::AccountNumber const& number) const;

  /// The names of all banks. O(B).
  std::set<BankName> names() const;

  /// The bank of that name. The reference is valid until that bank is removed or renamed or the
  /// registry is destroyed; changes of the bank, `update` included, show in it. Throws `BankError`
  /// "Failed to locate a bank by that name.", with the failure of the lookup as its cause. O(log B).
  Bank const& bank(BankName const& name) const;

  /// Closes the bank. Throws `BankError` "Cannot close a bank that does not exist." and as
  /// `Bank::close` does. O(log B).
  void close(BankName const& name);

  /// Opens the bank. Throws `BankError` "Cannot open a bank that does not exist." and as `Bank::open`
  /// does. O(log B).
  void open(BankName const& name);

  /// Adds an account number to the bank, or changes its kind where the bank holds it already. Throws
  /// `BankError`, the first that applies of
  /// - "Cannot add the account number, %1, as the bank that does not exist.";
  /// - "Cannot add the account number, %1, as the bank '%2' is already associated with that number.";
  ///
  /// and as `Bank::add` does. O(B log A).
  void add(BankName const& name, accounting::AccountNumber const& number, BankAccountTypes type);

  /// Removes an account number from the bank. Throws `BankError` "Cannot remove the account number,
  /// %1, as the bank that does not exist." and as `Bank::remove` does. O(log B + A).
  void remove(BankName const& name, accounting::AccountNumber const& number);

  /// Adds a bank under its name. Throws `BankError`, the first that applies of
  /// - "Cannot add a bank that is already closed.";
  /// - "Cannot add a bank that already exists.";
  /// - "The account '%1' is already associated with the bank '%2' and cannot be added again.", with
  ///   the first bank that shares a number and the smallest number that it shares.
  ///
  /// O(B a log A) with a and A the accounts of whichever bank of a pair has fewer and more. So to build
  /// a registry bank by bank costs O(B) times as much as to construct it from all banks at once.
  void add(Bank bank);

  /// Removes the bank and with it all its account numbers. Throws `BankError` "Cannot remove a bank
  /// that does not exist.". O(log B + A).
  void remove(BankName const& name);

  /// Gives the bank `from` the name `to`; its accounts stay. Throws `BankError` for the bank `from`,
  /// the first that applies of
  /// - "Cannot rename to '%1' when the bank does not exist.";
  /// - "Cannot rename to '%1' as it already exists.";
  /// - "Cannot rename to an empty bank name.";
  /// - "Cannot rename a bank when it is closed.".
  ///
  /// Both names may refer into the registry. O(log B), however many accounts there are.
  void rename(BankName const& from, BankName const& to);

  /// Replaces the bank of the same name. Throws `BankError`, the first that applies of
  /// - "Cannot update a bank that does not exist.";
  /// - "Cannot update to a closed bank.";
  /// - "Cannot update a bank that is closed.";
  /// - "Cannot update the account number, %1, as the bank '%2' is already associated with that
  ///   number.", with the smallest such number.
  ///
  /// O(B a log A) with a and A as for `add`.
  void update(Bank bank);

  /// Equal when the banks are. O(B + N).
  friend bool operator==(BankMap const& lhs, BankMap const& rhs)
  {
    return lhs.banks_ == rhs.banks_;
  }

private:
  // The first bank from `first` on that holds the number, or the end.
  const_iterator holder(accounting::AccountNumber const& number, const_iterator first) const;

  std::map<BankName, Bank> banks_;
};

/// Writes "Bank Map (", the banks as name=>bank, separated by ", ", and ")". The stream stays in
/// `std::boolalpha` where there are banks. Throws as the operator of `Bank` does. O(B + N).
ORV_BANKING_EXPORT std::ostream& operator<<(std::ostream& stream, BankMap const& banks);

} // namespace orv::banking
