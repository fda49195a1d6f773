#pragma once

#include <accounting/AccountNumber.hpp>
#include <banking/Bank.hpp>
#include <banking/BankAccountTypes.hpp>
#include <banking/BankError.hpp>
#include <banking/BankName.hpp>
#include <banking/Export.hpp>

#include <iosfwd>
#include <map>
#include <optional>
#include <set>

namespace orv::banking {

/// The registry of all banks, in the order of their names.
///
/// Use one for each set of books. Construct it from all banks that were stored, then change it. It
/// is a value: copy it, change the copy, and move that back if everything succeeded.
///
/// **Rules.** Each bank is registered under its own name, no bank holds the invalid account number,
/// and no two banks hold the same account number. At most one default-constructed bank can be
/// registered, under the name `BankName()`. The text of each error names the bank that is passed;
/// for `rename`, that is `from`. `open`, `close`, and `add` and `remove` of an account number first
/// check the rules of the registry, then call the bank, which logs the call and checks its own
/// rules.
///
/// **Lifetime.** A reference or an iterator to a bank is valid until that bank is removed or
/// renamed, or the registry is assigned to, moved, swapped or destroyed. After any other change it
/// refers to the bank as it is then. An end iterator stays valid until the registry is assigned to,
/// moved, swapped or destroyed. Arguments may refer into the registry:
/// `banks.remove(banks.bank(n).name())`.
///
/// **Complexity.** Numbers have no index: to find who holds one, the registry asks one bank after
/// the other. B is the number of banks, N that of all accounts, A that of the accounts of the
/// largest bank, and M that of the bank passed. Copying, comparing and writing take O(B + N), and a
/// member function without a complexity at most O(log B).
///
/// Threads, memory, languages, logs and the other conventions of all types are described in the
/// page `conventions.md`, which is installed in `share/doc/orv-banking`.
///
/// \snippet snippets.cpp BankMap
class ORV_BANKING_EXPORT BankMap
{
public:
  /// @{
  /// The types of a range of pairs of a name and a bank. Banks cannot be changed through them.
  using value_type = std::map<BankName, Bank>::value_type;
  using size_type = std::map<BankName, Bank>::size_type;
  using difference_type = std::map<BankName, Bank>::difference_type;
  using reference = value_type const&;
  using const_reference = value_type const&;
  using iterator = std::map<BankName, Bank>::const_iterator;
  using const_iterator = std::map<BankName, Bank>::const_iterator;
  /// @}

  /// Creates a registry without banks.
  BankMap() = default;

  /// Creates a registry of these banks, closed ones included.
  ///
  /// Prefer it to repeated `add`, which visits every bank each time. Each bank goes through all
  /// checks before the next, in the order of the keys.
  ///
  /// \throws BankError if the key of a bank is not its name; the error names the key
  /// \throws BankError if a bank holds the invalid number, which `Bank` itself does not allow
  /// \throws BankError if a bank shares numbers with later banks; the error names the bank, the
  ///          smallest shared number, and the next bank that holds this number
  ///
  /// Complexity: O(B + N), with temporary memory for the N numbers.
  explicit BankMap(std::map<BankName, Bank> banks);

  /// Returns an iterator to the first bank: `for (auto const& [name, bank] : banks)`.
  [[nodiscard]] const_iterator begin() const noexcept { return banks_.begin(); }

  /// Returns the iterator behind the last bank.
  [[nodiscard]] const_iterator end() const noexcept { return banks_.end(); }

  /// Returns how many banks there are.
  [[nodiscard]] size_type size() const noexcept { return banks_.size(); }

  /// Returns whether there is no bank.
  [[nodiscard]] bool empty() const noexcept { return banks_.empty(); }

  /// Returns whether a bank of this name is registered. Letter case matters.
  [[nodiscard]] bool hasBank(BankName const& name) const noexcept;

  /// Returns a copy of the bank, open or closed, that holds the account number, or nothing.
  ///
  /// Complexity: O(B log A), and the copy.
  [[nodiscard]] std::optional<Bank> find(accounting::AccountNumber const& number) const;

  /// Returns the names of all banks.
  ///
  /// Complexity: O(B).
  [[nodiscard]] std::set<BankName> names() const;

  /// Returns the bank of this name.
  ///
  /// \throws BankError if there is no such bank
  [[nodiscard]] Bank const& bank(BankName const& name) const;

  /// Closes the bank of this name. Logged if there is such a bank.
  ///
  /// \throws BankError if there is no such bank
  /// \throws BankError if the bank is closed already
  void close(BankName const& name);

  /// Opens the bank of this name. Logged if there is such a bank.
  ///
  /// \throws BankError if there is no such bank
  /// \throws BankError if the bank is open already
  void open(BankName const& name);

  /// Adds an account to the bank of this name, or changes its kind if the bank holds the number
  /// already. Logged if the bank exists and no other bank holds `number`.
  ///
  /// \throws BankError if there is no such bank
  /// \throws BankError if another bank holds `number`; the error names that one too
  /// \throws std::logic_error if `type` is not one of the enumerators
  /// \throws BankError if `number` is invalid
  /// \throws BankError if `type` is `Unknown`
  ///
  /// Complexity: O(B log A).
  void add(BankName const& name, accounting::AccountNumber const& number, BankAccountTypes type);

  /// Removes an account from the bank of this name. Logged if there is such a bank.
  ///
  /// \throws BankError if there is no such bank
  /// \throws std::logic_error if a kind that the bank holds is not one of the enumerators
  /// \throws BankError if the bank does not hold `number`
  ///
  /// Complexity: O(log B + A), because of the log message.
  void remove(BankName const& name, accounting::AccountNumber const& number);

  /// Adds a bank under its name. Not logged.
  ///
  /// \throws BankError if the bank is closed
  /// \throws BankError if a bank of its name is registered already
  /// \throws BankError if a registered bank holds one of its numbers; the error names the first
  ///          such bank and the smallest number that the two share
  ///
  /// Complexity: O(B M log A).
  void add(Bank bank);

  /// Removes the bank of this name, open or closed, with all its accounts. Not logged.
  ///
  /// \throws BankError if there is no such bank
  ///
  /// Complexity: O(log B + A).
  void remove(BankName const& name);

  /// Renames a bank. Its accounts stay the same. Not logged.
  ///
  /// A `BankAccount`, `ReconciledBankAccount` or copy of the bank that the program holds keeps the
  /// old name. Renaming a bank to its own name is an error.
  ///
  /// \throws BankError if there is no bank of the name `from`
  /// \throws BankError if there is a bank of the name `to`
  /// \throws BankError if `to` is empty
  /// \throws BankError if the bank is closed
  ///
  /// Complexity: O(log B), however many accounts there are. Nothing is allocated.
  void rename(BankName const& from, BankName const& to);

  /// Replaces the registered bank of the same name. Not logged.
  ///
  /// Numbers that `bank` drops become free for other banks.
  ///
  /// \throws BankError if no bank of its name is registered
  /// \throws BankError if `bank` is closed
  /// \throws BankError if the registered bank is closed
  /// \throws BankError if another bank holds one of its numbers; the error names the smallest such
  ///          number and its holder
  ///
  /// Complexity: O(B M log A).
  void update(Bank bank);

private:
  std::map<BankName, Bank> banks_;
};

/// Returns whether both registries hold equal banks.
/// \relatesalso BankMap
ORV_BANKING_EXPORT bool operator==(BankMap const& lhs, BankMap const& rhs);

/// Returns the opposite of `==`. \relatesalso BankMap
inline bool operator!=(BankMap const& lhs, BankMap const& rhs)
{
  return !(lhs == rhs);
}

/// Writes "Bank Map (…=>…, …=>…)", with what `<<` writes of each name and bank.
///
/// If there are banks, the stream is left in `std::boolalpha` mode.
/// \relatesalso BankMap
ORV_BANKING_EXPORT std::ostream& operator<<(std::ostream& stream, BankMap const& banks);

} // namespace orv::banking
