#include <accounting/AccountNumber.hpp>

#include <QDebug>
#include <QString>

#include <ostream>
#include <string>

namespace orv::accounting {

QString presentationText(AccountNumber const& number)
{
  return QString::number(number.integer());
}

std::ostream& operator<<(std::ostream& stream, AccountNumber const& number)
{
  return stream << std::to_string(number.integer());
}

QDebug operator<<(QDebug debug, AccountNumber const& number)
{
  return debug << std::to_string(number.integer()).c_str();
}

} // namespace orv::accounting
