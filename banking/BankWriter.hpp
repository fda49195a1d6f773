#pragma once

#include <banking/Bank.hpp>

#include <QString>

#include <map>
#include <ostream>
#include <string>

namespace orv::banking {

// Writes the stream form of banks. Accounts are many and kinds few, so that each kind is translated
// once for all banks that one writer writes.
class BankWriter
{
public:
  explicit BankWriter(std::ostream& stream) : stream_(stream) {}

  void write(Bank const& bank)
  {
    stream_ << "Bank: (" << bank.name() << "), Account Numbers: (";
    char const* separator = "";
    for (auto const& [number, type] : bank.accounts()) {
      stream_ << separator << number << "=>" << text(type);
      separator = ", ";
    }
    stream_ << "), Is Closed: " << std::boolalpha << bank.isClosed() << ')';
  }

private:
  std::string const& text(BankAccountTypes type)
  {
    auto const [kind, isNew] = kinds_.try_emplace(type);
    if (isNew) {
      kind->second = presentationText(type).toStdString();
    }
    return kind->second;
  }

  std::ostream& stream_;
  std::map<BankAccountTypes, std::string> kinds_;
};

} // namespace orv::banking
