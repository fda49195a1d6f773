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
/// Each bank is registered under its own name, no bank holds the invalid account number, and no two
/// banks hold the same account number. A change that would break one of these rules throws
/// `BankError`, which names the bank that the call is about. A change that throws leaves the
/// registry unchanged, also if memory runs out.
///
/// `open`, `close`, and adding and removing an account number are passed on to the bank, which logs
/// them and applies its own rules. Nothing else is logged. The page
/// [Refusals](docs/refusals.md) has the words of each error.
///
/// Names and numbers that are passed may be references into the registry.
///
/// The registry does not check that a bank has a name: `add(Bank())` registers a bank under the
/// empty name. A bank passed with `std::move` is moved from even if the call throws; do not add it
/// again.
///
/// Several threads may read the same registry. While one thread changes it, no other may use it.
///
/// The complexities below use three letters: B is the number of banks, A the number of accounts of
/// the bank that has most, and N the number of accounts of all banks. There is no index from
/// account numbers to banks: to find who holds a number, the registry asks bank after bank.
///
/// \snippet snippets.cpp BankMap
class ORV_BANKING_EXPORT BankMap
{
public:
  /// Creates a registry without banks.
  BankMap() = default;

  /// Creates a registry of these banks, closed ones included.
  ///
  /// Fill a registry this way: adding banks one by one asks all earlier banks for each, so its
  /// time grows with the square of B. The banks are checked in the order of their keys, each in the
  /// order of the lines below.
  ///
  /// \throws BankError if the key of a bank is not its name; the error names the key
  /// \throws BankError if a bank holds the invalid number; this cannot happen as long as no bank
  ///         accepts it
  /// \throws BankError if later banks hold one of its numbers too; the error names this bank, and
  ///         tells the smallest such number and the key of the next bank that holds it
  ///
  /// Complexity: O(B + N), with temporary memory for the N numbers.
  explicit BankMap(std::map<BankName, Bank> banks);

  /// @{
  /// The types of a range of banks, which are pairs of a name and a bank. None of them changes a bank.
  using value_type = std::map<BankName, Bank>::value_type;
  using size_type = std::map<BankName, Bank>::size_type;
  using difference_type = std::map<BankName, Bank>::difference_type;
  using reference = value_type const&;
  using const_reference = value_type const&;
  using iterator = std::map<BankName, Bank>::const_iterator;
  using const_iterator = std::map<BankName, Bank>::const_iterator;
  /// @}

  /// Returns an iterator to the first bank in name order.
  ///
  /// With `end` it serves loops over all banks: `for (auto const& [name, bank] : banks)`.
  ///
  /// An iterator is valid until its bank is removed or renamed, or the registry is assigned to,
  /// moved from or destroyed. Other changes of the bank show through it, `update` included.
  [[nodiscard]] const_iterator begin() const noexcept { return banks_.begin(); }

  /// Returns the iterator behind the last bank. It is valid until the registry is assigned to,
  /// moved from or destroyed.
  [[nodiscard]] const_iterator end() const noexcept { return banks_.end(); }

  /// Returns how many banks there are.
  [[nodiscard]] size_type size() const noexcept { return banks_.size(); }

  /// Returns whether there is no bank.
  [[nodiscard]] bool empty() const noexcept { return banks_.empty(); }

  /// Returns whether a bank of this name is registered. Letter case matters.
  ///
  /// Complexity: O(log B).
  [[nodiscard]] bool hasBank(BankName const& name) const noexcept;

  /// Returns a copy of the bank that holds the account number, or nothing.
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
  ///
  /// The reference is valid until the bank is removed or renamed, or the registry is assigned to,
  /// moved from or destroyed. Other changes of the bank show through it, `update` included.
  ///
  /// Complexity: O(log B).
  [[nodiscard]] Bank const& bank(BankName const& name) const;

  /// Closes the bank of this name.
  ///
  /// \throws BankError if there is no such bank
  /// \throws BankError if the bank is closed already
  ///
  /// Complexity: O(log B).
  void close(BankName const& name);

  /// Opens the bank of this name.
  ///
  /// \throws BankError if there is no such bank
  /// \throws BankError if the bank is open already
  ///
  /// Complexity: O(log B).
  void open(BankName const& name);

  /// Adds an account to the bank of this name, or changes its kind if the bank holds the number
  /// already.
  ///
  /// The bank may be closed.
  ///
  /// \throws BankError if there is no such bank
  /// \throws BankError if another bank holds `number`; the error tells which
  /// \throws std::logic_error if `type` is not one of the enumerators
  /// \throws BankError if `number` is invalid
  /// \throws BankError if `type` is `Unknown`
  ///
  /// Complexity: O(B log A).
  void add(BankName const& name, accounting::AccountNumber const& number, BankAccountTypes type);

  /// Removes an account from the bank of this name.
  ///
  /// The bank may be closed.
  ///
  /// \throws BankError if there is no such bank
  /// \throws std::logic_error if a kind that the bank holds is not one of the enumerators
  /// \throws BankError if the bank does not hold `number`
  ///
  /// Complexity: O(log B + A).
  void remove(BankName const& name, accounting::AccountNumber const& number);

  /// Adds a bank under its name.
  ///
  /// \throws BankError if the bank is closed
  /// \throws BankError if a bank of its name is registered already
  /// \throws BankError if a registered bank holds one of its account numbers; the error tells the
  ///         first such bank and the smallest number that the two share
  ///
  /// Complexity: O(B a log A), where a is the number of accounts of `bank`.
  void add(Bank bank);

  /// Removes the bank of this name with all its accounts. The bank may be closed.
  ///
  /// \throws BankError if there is no such bank
  ///
  /// Complexity: O(log B + A).
  void remove(BankName const& name);

  /// Renames a bank. Its accounts stay the same.
  ///
  /// A `ReconciledBankAccount` keeps the name that it was created with.
  ///
  /// \throws BankError if there is no bank of the name `from`
  /// \throws BankError if there is a bank of the name `to`
  /// \throws BankError if `to` is empty
  /// \throws BankError if the bank is closed
  ///
  /// All these errors name the bank `from`.
  ///
  /// Complexity: O(log B), however many accounts there are.
  void rename(BankName const& from, BankName const& to);

  /// Replaces the registered bank of the same name.
  ///
  /// Other banks may then hold the account numbers that `bank` no longer has.
  ///
  /// \throws BankError if no bank of its name is registered
  /// \throws BankError if `bank` is closed
  /// \throws BankError if the registered bank is closed
  /// \throws BankError if another bank holds one of its account numbers; the error tells the
  ///         smallest such number and the bank that holds it
  ///
  /// Complexity: O(B a log A), where a is the number of accounts of `bank`.
  void update(Bank bank);

  /// Returns whether both registries hold equal banks.
  ///
  /// Complexity: O(B + N).
  friend bool operator==(BankMap const& lhs, BankMap const& rhs)
  {
    return lhs.banks_ == rhs.banks_;
  }

private:
  std::map<BankName, Bank> banks_;
};

/// Writes the names and banks, in UTF-8.
///
/// For example, `Bank Map (Financial Institution Name: (Elm)=>Bank: (Financial Institution Name:
/// (Elm)), Account Numbers: (), Is Closed: false))`. A comma and a space separate the banks. If
/// there are banks, the stream is left in `std::boolalpha` mode.
///
/// \throws std::logic_error if a kind is not one of the enumerators; the text before that kind has
///         been written
///
/// Complexity: O(B + N).
/// \relatesalso BankMap
ORV_BANKING_EXPORT std::ostream& operator<<(std::ostream& stream, BankMap const& banks);

} // namespace orv::banking
