#include "ByHand.hpp"

#include <QDebug>
#include <QMessageLogger>
#include <QObject>

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

using namespace orv::banking;
using orv::accounting::AccountNumber;

namespace byhand {

namespace {

constexpr std::array kinds{"Unknown", "Chequeing", "Credit Card", "Loan", "Savings", "Goal"};

bool haveShared(Accounts const& few, Accounts const& many)
{
  return std::any_of(few.begin(), few.end(),
                     [&](auto const& account) { return many.contains(account.first); });
}

bool haveShared(Bank const& lhs, Bank const& rhs)
{
  return lhs.accounts.size() < rhs.accounts.size() ? haveShared(lhs.accounts, rhs.accounts)
                                                   : haveShared(rhs.accounts, lhs.accounts);
}

} // namespace

bool keepRules(::Banks const& banks)
{
  for (auto const& [name, bank] : banks) {
    if (name != bank.name()) {
      return false;
    }
    for (auto const& [number, type] : bank.accounts()) {
      if (number == AccountNumber::invalid_) {
        return false;
      }
      for (auto const& [otherName, other] : banks) {
        if (&other != &bank && other.accounts().contains(number)) {
          return false;
        }
      }
    }
  }
  return true;
}

std::optional<Bank> find(Banks const& banks, AccountNumber number)
{
  for (auto const& [name, bank] : banks) {
    if (bank.accounts.contains(number)) {
      return bank;
    }
  }
  return std::nullopt;
}

bool add(Banks& banks, BankName const& name, AccountNumber number, BankAccountTypes type)
{
  auto const entry = banks.find(name);
  if (entry == banks.end()) {
    return false;
  }
  for (auto const& [otherName, other] : banks) {
    if (other.accounts.contains(number) && &other != &entry->second) {
      return false;
    }
  }
  QMessageLogger(nullptr, 0, nullptr).info()
      << "Adding account number" << std::to_string(number.integer()).c_str() << "which is"
      << QObject::tr(kinds.at(static_cast<std::size_t>(type))) << "to"
      << QString("Financial Institution Name: (" + name.institution() + ')');
  entry->second.accounts.insert_or_assign(number, type);
  return true;
}

bool add(Banks& banks, Bank&& bank)
{
  auto const place = banks.lower_bound(bank.name);
  if (place != banks.end() && place->first == bank.name) {
    return false;
  }
  for (auto const& [otherName, other] : banks) {
    if (haveShared(other, bank)) {
      return false;
    }
  }
  auto const name = bank.name;
  banks.emplace_hint(place, name, std::move(bank));
  return true;
}

bool update(Banks& banks, Bank&& bank)
{
  auto const entry = banks.find(bank.name);
  if (entry == banks.end()) {
    return false;
  }
  for (auto const& [otherName, other] : banks) {
    if (&other != &entry->second && haveShared(other, bank)) {
      return false;
    }
  }
  entry->second = std::move(bank);
  return true;
}

void write(std::ostream& stream, Banks const& banks)
{
  std::vector<std::string> texts;
  for (auto const* const kind : kinds) {
    texts.push_back(QObject::tr(kind).toStdString());
  }
  stream << "Bank Map (" << std::boolalpha;
  char const* separator = "";
  for (auto const& [name, bank] : banks) {
    auto const text = name.institution().toStdString();
    stream << separator << "Financial Institution Name: (" << text
           << ")=>Bank: (Financial Institution Name: (" << text << ")), Account Numbers: (";
    char const* accountSeparator = "";
    for (auto const& [number, type] : bank.accounts) {
      stream << accountSeparator << std::to_string(number.integer()) << "=>"
             << texts[static_cast<std::size_t>(type)];
      accountSeparator = ", ";
    }
    stream << "), Is Closed: " << bank.isClosed << ')';
    separator = ", ";
  }
  stream << ')';
}

} // namespace byhand
