#include <banking/BankError.hpp>
#include <banking/BankMap.hpp>

#include <QObject>
#include <QString>

#include <algorithm>
#include <cstddef>
#include <exception>
#include <iterator>
#include <memory_resource>
#include <ostream>
#include <unordered_set>
#include <utility>

namespace orv::banking {

namespace {

using accounting::AccountNumber;

// The first bank that holds the number, or `last`.
template <typename Iterator>
Iterator holder(AccountNumber const& number, Iterator first, Iterator last)
{
  return std::find_if(first, last,
                      [&](auto const& entry) { return entry.second.accounts().contains(number); });
}

// The account numbers that break a rule: those that several banks hold, and the invalid one. One
// pass with a set of those seen takes as long as a copy of the map, as the set has its memory in
// few pieces: in one for each number, it takes twice that. QSet ends the program if memory runs
// out.
std::set<AccountNumber> refusedNumbers(std::map<BankName, Bank> const& banks)
{
  std::size_t count = 0;
  for (auto const& [name, bank] : banks) {
    count += bank.accounts().size();
  }
  std::pmr::monotonic_buffer_resource memory;
  std::pmr::unordered_set<unsigned int> seen(count, &memory);
  std::set<AccountNumber> refused;
  for (auto const& [name, bank] : banks) {
    for (auto const& [number, type] : bank.accounts()) {
      if (!seen.insert(number.integer()).second || number == AccountNumber::invalid_) {
        refused.insert(number);
      }
    }
  }
  return refused;
}

// The smallest account number that both banks hold.
std::optional<AccountNumber> firstCommonNumber(Bank const& lhs, Bank const& rhs)
{
  auto const lhsIsSmaller = lhs.accounts().size() < rhs.accounts().size();
  auto const& few = lhsIsSmaller ? lhs.accounts() : rhs.accounts();
  auto const& many = lhsIsSmaller ? rhs.accounts() : lhs.accounts();
  for (auto const& [number, type] : few) {
    if (many.contains(number)) {
      return number;
    }
  }
  return std::nullopt;
}

// An account number, and the bank that holds it.
struct HeldNumber
{
  AccountNumber number;
  BankName holder;
};

// The smallest account number of the bank that a bank of another name holds.
std::optional<HeldNumber> firstHeldByAnother(Bank const& bank,
                                             std::map<BankName, Bank> const& banks)
{
  std::optional<HeldNumber> first;
  for (auto const& [name, other] : banks) {
    if (name == bank.name()) {
      continue;
    }
    auto const number = firstCommonNumber(bank, other);
    if (number && (!first || *number < first->number)) {
      first = HeldNumber{*number, name};
    }
  }
  return first;
}

} // namespace

BankMap::BankMap(std::map<BankName, Bank> banks) : banks_(std::move(banks))
{
  auto const refused = refusedNumbers(banks_);
  for (auto entry = banks_.cbegin(); entry != banks_.cend(); ++entry) {
    auto const& [name, bank] = *entry;
    if (name != bank.name()) {
      throw BankError(name, QObject::tr("The key name does not match the value name, %1.")
                                .arg(bank.name().institution()));
    }
    if (refused.empty()) {
      continue; // as nearly always, without another walk of the accounts
    }
    for (auto const& [number, type] : bank.accounts()) {
      if (number == AccountNumber::invalid_) { // which Bank refuses too
        throw BankError(name, QObject::tr("A default account cannot be associated with a bank."));
      }
      if (refused.contains(number)) {
        // No earlier bank holds it, or the walk would have ended there.
        auto const other = holder(number, std::next(entry), banks_.cend());
        throw BankError(
            name, QObject::tr(
                      "The account '%1' is associated with the bank '%2' and cannot be used again.")
                      .arg(presentationText(number), other->first.institution()));
      }
    }
  }
}

bool BankMap::hasBank(BankName const& name) const noexcept
{
  return banks_.contains(name);
}

std::optional<Bank> BankMap::find(AccountNumber const& number) const
{
  auto const found = holder(number, banks_.begin(), banks_.end());
  return found == banks_.end() ? std::nullopt : std::optional(found->second);
}

std::set<BankName> BankMap::names() const
{
  std::set<BankName> names;
  for (auto const& [name, bank] : banks_) {
    names.emplace_hint(names.end(), name);
  }
  return names;
}

Bank const& BankMap::bank(BankName const& name) const
{
  try {
    return banks_.at(name);
  } catch (std::exception const& cause) {
    throw BankError(name, QObject::tr("Failed to locate a bank by that name."), cause);
  }
}

void BankMap::close(BankName const& name)
{
  auto const entry = banks_.find(name);
  if (entry == banks_.end()) {
    throw BankError(name, QObject::tr("Cannot close a bank that does not exist."));
  }
  entry->second.close();
}

void BankMap::open(BankName const& name)
{
  auto const entry = banks_.find(name);
  if (entry == banks_.end()) {
    throw BankError(name, QObject::tr("Cannot open a bank that does not exist."));
  }
  entry->second.open();
}

void BankMap::add(BankName const& name, AccountNumber const& number, BankAccountTypes type)
{
  auto const entry = banks_.find(name);
  if (entry == banks_.end()) {
    throw BankError(
        name, QObject::tr("Cannot add the account number, %1, as the bank that does not exist.")
                  .arg(presentationText(number)));
  }
  auto const found = holder(number, banks_.begin(), banks_.end());
  if (found != banks_.end() && found != entry) {
    throw BankError(name, QObject::tr("Cannot add the account number, %1, as the bank '%2' is "
                                      "already associated with that number.")
                              .arg(presentationText(number), found->first.institution()));
  }
  entry->second.add(number, type);
}

void BankMap::remove(BankName const& name, AccountNumber const& number)
{
  auto const entry = banks_.find(name);
  if (entry == banks_.end()) {
    throw BankError(
        name, QObject::tr("Cannot remove the account number, %1, as the bank that does not exist.")
                  .arg(presentationText(number)));
  }
  entry->second.remove(number);
}

void BankMap::add(Bank bank)
{
  auto const name = bank.name();
  if (bank.isClosed()) {
    throw BankError(name, QObject::tr("Cannot add a bank that is already closed."));
  }
  if (hasBank(name)) {
    throw BankError(name, QObject::tr("Cannot add a bank that already exists."));
  }
  for (auto const& [otherName, other] : banks_) {
    if (auto const shared = firstCommonNumber(other, bank)) {
      throw BankError(name, QObject::tr("The account '%1' is already associated with the bank '%2' "
                                        "and cannot be added again.")
                                .arg(presentationText(*shared), presentationText(otherName)));
    }
  }
  banks_.try_emplace(name, std::move(bank));
}

void BankMap::remove(BankName const& name)
{
  if (banks_.erase(name) == 0) {
    throw BankError(name, QObject::tr("Cannot remove a bank that does not exist."));
  }
}

void BankMap::rename(BankName const& from, BankName const& to)
{
  auto const entry = banks_.find(from);
  if (entry == banks_.end()) {
    throw BankError(
        from,
        QObject::tr("Cannot rename to '%1' when the bank does not exist.").arg(to.institution()));
  }
  if (hasBank(to)) {
    throw BankError(
        from, QObject::tr("Cannot rename to '%1' as it already exists.").arg(to.institution()));
  }
  if (to.isEmpty()) {
    throw BankError(from, QObject::tr("Cannot rename to an empty bank name."));
  }
  if (entry->second.isClosed()) {
    throw BankError(from, QObject::tr("Cannot rename a bank when it is closed."));
  }
  // Moving the node allocates nothing, so nothing can fail from here on.
  auto node = banks_.extract(entry);
  node.mapped().name_ = to;
  node.key() = to;
  banks_.insert(std::move(node));
}

void BankMap::update(Bank bank)
{
  auto const& name = bank.name();
  auto const entry = banks_.find(name);
  if (entry == banks_.end()) {
    throw BankError(name, QObject::tr("Cannot update a bank that does not exist."));
  }
  if (bank.isClosed()) {
    throw BankError(name, QObject::tr("Cannot update to a closed bank."));
  }
  if (entry->second.isClosed()) {
    throw BankError(name, QObject::tr("Cannot update a bank that is closed."));
  }
  if (auto const held = firstHeldByAnother(bank, banks_)) {
    throw BankError(name, QObject::tr("Cannot update the account number, %1, as the bank '%2' is "
                                      "already associated with that number.")
                              .arg(presentationText(held->number), held->holder.institution()));
  }
  entry->second = std::move(bank);
}

bool operator==(BankMap const& lhs, BankMap const& rhs)
{
  return std::ranges::equal(lhs, rhs);
}

std::ostream& operator<<(std::ostream& stream, BankMap const& banks)
{
  stream << "Bank Map (";
  char const* separator = "";
  for (auto const& [name, bank] : banks) {
    stream << separator << name << "=>" << bank;
    separator = ", ";
  }
  return stream << ')';
}

} // namespace orv::banking
