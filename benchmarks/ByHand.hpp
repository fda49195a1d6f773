#pragma once

#include "Data.hpp"

#include <algorithm>
#include <array>
#include <ostream>
#include <string>

/// The registry as loops over a map of banks: they walk, search and store what each operation must.
struct ByHand
{
  std::optional<Bank> find(AccountNumber number) const
  {
    auto const holds = [=](auto const& it) { return it.second.accounts().contains(number); };
    auto const holder = std::ranges::find_if(banks, holds);
    return holder == banks.end() ? std::nullopt : std::optional(holder->second);
  }

  std::set<BankName> names() const
  {
    std::set<BankName> names;
    for (auto const& [name, bank] : banks) {
      names.emplace_hint(names.end(), name);
    }
    return names;
  }

  void add(BankName const& name, AccountNumber number, BankAccountTypes type)
  {
    if (!find(number)) {
      banks.at(name).add(number, type);
    }
  }

  void remove(BankName const& name, AccountNumber number) { banks.at(name).remove(number); }

  void add(Bank bank)
  {
    auto const sharesNumber = [&bank](auto const& entry) {
      auto const sides =
          std::ranges::minmax(entry.second.accounts(), bank.accounts(), {}, std::ranges::size);
      auto const isShared = [&](auto const& it) { return sides.max.contains(it.first); };
      return std::ranges::any_of(sides.min, isShared) && entry.first != bank.name();
    };
    if (std::ranges::none_of(banks, sharesNumber)) {
      banks.insert_or_assign(bank.name(), std::move(bank));
    }
  }

  void update(Bank bank) { add(std::move(bank)); }
  void remove(BankName const& name) { banks.erase(name); }

  bool operator==(ByHand const& other) const
  {
    return std::ranges::equal(banks, other.banks, [](auto const& lhs, auto const& rhs) {
      return lhs.first == rhs.first && lhs.second.name() == rhs.second.name() &&
             lhs.second.isClosed() == rhs.second.isClosed() &&
             lhs.second.accounts() == rhs.second.accounts();
    });
  }

  friend std::ostream& operator<<(std::ostream& stream, ByHand const& registry)
  {
    std::array<std::string, 6> kinds;
    for (std::size_t i = 0; i < kinds.size(); ++i) {
      kinds.at(i) = presentationText(static_cast<BankAccountTypes>(i)).toStdString();
    }
    for (auto const& [name, bank] : registry.banks) {
      stream << ", " << name << "=>Bank: (" << name << "), Account Numbers: (";
      for (auto const& [number, type] : bank.accounts()) {
        stream << ", " << number.integer() << "=>" << kinds.at(static_cast<std::size_t>(type));
      }
      stream << "), Is Closed: " << std::boolalpha << bank.isClosed() << ')';
    }
    return stream;
  }

  Banks banks;
};
