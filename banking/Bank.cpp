#include "DebugBridge.hpp"

#include <banking/Bank.hpp>
#include <banking/BankError.hpp>

#include <QMessageLogger>
#include <QObject>

#include <algorithm>
#include <ostream>
#include <utility>

namespace orv::banking {

namespace {

// The explicit context names Qt's default category and no place in the source, in every build type.
QDebug info()
{
  return QMessageLogger(nullptr, 0, nullptr).info();
}

bool isInvalid(accounting::AccountNumber const& number)
{
  return number.integer() == accounting::AccountNumber::invalid_;
}

} // namespace

Bank::Bank(BankName name, std::map<accounting::AccountNumber, BankAccountTypes> accounts,
           bool isClosed)
    : accounts_(std::move(accounts)), isClosed_(isClosed), name_(std::move(name))
{
  if (name_.isEmpty()) {
    throw BankError(BankName(),
                    QObject::tr("The name of a financial institution cannot be empty."));
  }
  auto const anyAccount = [this](auto const& isRefused) {
    return std::any_of(accounts_.begin(), accounts_.end(), isRefused);
  };
  if (anyAccount([](auto const& account) { return isInvalid(account.first); })) {
    throw BankError(
        name_,
        QObject::tr("The bank account number of a financial institution cannot be invalid."));
  }
  if (anyAccount([](auto const& account) { return account.second == BankAccountTypes::Unknown; })) {
    throw BankError(
        name_, QObject::tr("The bank account type of a financial institution cannot be unknown."));
  }
}

void Bank::close()
{
  info() << "Closing" << name_;
  if (isClosed_) {
    throw BankError(name_, QObject::tr("Cannot close a bank that is already closed."));
  }
  isClosed_ = true;
}

void Bank::open()
{
  info() << "Opening" << name_;
  if (!isClosed_) {
    throw BankError(name_, QObject::tr("Cannot open a bank that is already opened."));
  }
  isClosed_ = false;
}

void Bank::add(accounting::AccountNumber const& number, BankAccountTypes type)
{
  info() << "Adding account number" << number << "which is" << type << "to" << name_;
  if (isInvalid(number)) {
    throw BankError(
        name_,
        QObject::tr("Cannot add an account number of a financial institution that is invalid."));
  }
  if (type == BankAccountTypes::Unknown) {
    throw BankError(
        name_,
        QObject::tr("Cannot add an account type of a financial institution that is unknown."));
  }
  accounts_.insert_or_assign(number, type);
}

void Bank::remove(accounting::AccountNumber const& number)
{
  info() << "Removing account number" << number << "from" << *this;
  if (accounts_.erase(number) == 0) {
    throw BankError(
        name_, QObject::tr("The account '%1' is not associated with the financial institution.")
                   .arg(accounting::presentationText(number)));
  }
}

bool operator==(Bank const& lhs, Bank const& rhs)
{
  return lhs.isClosed() == rhs.isClosed() && lhs.name() == rhs.name() &&
         lhs.accounts() == rhs.accounts();
}

std::ostream& operator<<(std::ostream& stream, Bank const& bank)
{
  stream << "Bank: (" << bank.name() << "), Account Numbers: (";
  char const* separator = "";
  for (auto const& [number, type] : bank.accounts()) {
    stream << separator << number << "=>" << type;
    separator = ", ";
  }
  return stream << "), Is Closed: " << std::boolalpha << bank.isClosed() << ')';
}

QDebug operator<<(QDebug debug, Bank const& bank)
{
  return writeStreamForm(debug, bank);
}

} // namespace orv::banking
