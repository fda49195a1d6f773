#include "DebugBridge.hpp"

#include <banking/BankError.hpp>
#include <banking/ReconciledBankAccount.hpp>
#include <foundation/Date.hpp>

#include <QObject>

#include <ostream>
#include <utility>

namespace orv::banking {

// Copies and moves set the balance with Money::assign: the assignment of an installed money library
// may refuse a change of currency, and its constructors do not promise not to throw.

ReconciledBankAccount::ReconciledBankAccount(BankAccount bankAccount, mintar::Money balance,
                                             std::optional<QDate> reconciledOn)
    : bankAccount_(std::move(bankAccount)), reconciledOn_(reconciledOn)
{
  balance_.assign(std::move(balance));
}

ReconciledBankAccount::ReconciledBankAccount(BankAccount bankAccount,
                                             mintar::Currency const& currency)
    : ReconciledBankAccount(std::move(bankAccount), mintar::Money(currency), std::nullopt)
{
}

ReconciledBankAccount::ReconciledBankAccount(ReconciledBankAccount const& other) noexcept
    : bankAccount_(other.bankAccount_), reconciledOn_(other.reconciledOn_)
{
  balance_.assign(other.balance_);
}

ReconciledBankAccount::ReconciledBankAccount(ReconciledBankAccount&& other) noexcept
    : bankAccount_(std::move(other.bankAccount_)), reconciledOn_(other.reconciledOn_)
{
  balance_.assign(std::move(other.balance_));
}

ReconciledBankAccount& ReconciledBankAccount::operator=(ReconciledBankAccount const& other) noexcept
{
  if (this != &other) {
    bankAccount_ = other.bankAccount_;
    reconciledOn_ = other.reconciledOn_;
    balance_.assign(other.balance_);
  }
  return *this;
}

ReconciledBankAccount& ReconciledBankAccount::operator=(ReconciledBankAccount&& other) noexcept
{
  if (this != &other) {
    bankAccount_ = std::move(other.bankAccount_);
    reconciledOn_ = other.reconciledOn_;
    balance_.assign(std::move(other.balance_));
  }
  return *this;
}

void ReconciledBankAccount::reconcile(QDate const& date, mintar::Money const& balance)
{
  if (reconciledOn_ && *reconciledOn_ > date) {
    throw BankError(
        bankAccount_.bankName,
        QObject::tr("The last reconciled date, %1, cannot be updated to be in the past, %2.")
            .arg(foundation::presentationText(*reconciledOn_), foundation::presentationText(date)));
  }
  balance_ = balance; // may throw, so it comes before the date
  reconciledOn_ = date;
}

std::ostream& operator<<(std::ostream& stream, ReconciledBankAccount const& account)
{
  stream << "Bank Account: (" << account.bankAccount() << "), Balance: (" << account.balance()
         << ") Reconciled On: (";
  if (account.reconciledOn()) {
    stream << *account.reconciledOn();
  } else {
    stream << "<optional-value-not-set>";
  }
  return stream << ')';
}

QDebug operator<<(QDebug debug, ReconciledBankAccount const& account)
{
  return writeStreamForm(debug, account);
}

} // namespace orv::banking
