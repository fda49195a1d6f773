#include "DebugBridge.hpp"

#include <banking/BankError.hpp>
#include <banking/BankName.hpp>

#include <QObject>

#include <ostream>
#include <utility>

namespace orv::banking {

BankName::BankName(QString institution) : institution_(std::move(institution))
{
  if (institution_.trimmed().isEmpty()) {
    throw BankError(BankName(),
                    QObject::tr("The name of a financial institution cannot be empty."));
  }
}

QString presentationText(BankName const& name)
{
  return name.institution();
}

std::ostream& operator<<(std::ostream& stream, BankName const& name)
{
  return stream << "Financial Institution Name: (" << name.institution().toStdString() << ')';
}

QDebug operator<<(QDebug debug, BankName const& name)
{
  return writeStreamForm(debug, name);
}

} // namespace orv::banking
