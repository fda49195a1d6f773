#include <banking/BankError.hpp>
#include <banking/BankName.hpp>

#include <QObject>
#include <QString>

namespace orv::banking {

BankError::BankError(BankName const& bank, QString const& message, std::exception const& cause)
    : Error(
          QObject::tr("There is an issue with the bank '%1'. %2").arg(bank.institution(), message),
          cause)
{
}

} // namespace orv::banking
