#pragma once

#include "Data.hpp"

#include <iosfwd>
#include <optional>

/// What each operation of the registry cannot avoid, as loops over the same standard maps.
namespace byhand {

struct Bank
{
  explicit Bank(orv::banking::Bank const& bank)
      : accounts(bank.accounts()), isClosed(bank.isClosed()), name(bank.name())
  {
  }

  Accounts accounts;
  bool isClosed = false;
  orv::banking::BankName name;

  bool operator==(Bank const& other) const = default;
};

using Banks = std::map<orv::banking::BankName, Bank>;

/// The rules of the registry's constructor to the letter: each number is searched in each other bank.
bool keepRules(::Banks const& banks);

std::optional<Bank> find(Banks const& banks, orv::accounting::AccountNumber number);

/// Writes the log message as well: the same text to the same logger.
bool add(Banks& banks, orv::banking::BankName const& name, orv::accounting::AccountNumber number,
         orv::banking::BankAccountTypes type);

bool add(Banks& banks, Bank&& bank);
bool update(Banks& banks, Bank&& bank);

/// The stream form of the registry. Each kind is translated once.
void write(std::ostream& stream, Banks const& banks);

} // namespace byhand
