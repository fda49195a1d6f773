#include <foundation/Date.hpp>

#include <QDate>
#include <QLocale>
#include <QString>

#include <ostream>

namespace orv::foundation {

QString presentationText(QDate const& date)
{
  return QLocale().toString(date, QLocale::ShortFormat);
}

} // namespace orv::foundation

std::ostream& operator<<(std::ostream& stream, QDate const& date)
{
  return stream << date.toString(Qt::ISODate).toStdString();
}
