#include "DebugBridge.hpp"

#include <banking/BankAccount.hpp>

#include <ostream>

namespace orv::banking {

QString presentationText(BankAccount const& account, foundation::LocaleAware localeAware)
{
  auto const numberAndKind = presentationText(account.accountNumberBankType, localeAware);
  return QStringLiteral("%1: %2").arg(presentationText(account.bankName), numberAndKind);
}

std::ostream& operator<<(std::ostream& stream, BankAccount const& account)
{
  return stream << "Bank (" << account.bankName << "), Account Type ("
                << account.accountNumberBankType << ')';
}

QDebug operator<<(QDebug debug, BankAccount const& account)
{
  return writeStreamForm(debug, account);
}

} // namespace orv::banking
