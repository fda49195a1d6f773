#include <foundation/Date.hpp>

#include <QDate>
#include <QLocale>
#include <QString>

#include <ostream>

namespace orv::foundation {

QString presentationText(QDate const& date)
{
  QLocale const locale;
  // The C locale's own short form differs between releases of Qt.
  return locale.language() == QLocale::C ? date.toString(Qt::ISODate)
                                         : locale.toString(date, QLocale::ShortFormat);
}

} // namespace orv::foundation

std::ostream& operator<<(std::ostream& stream, QDate const& date)
{
  return stream << date.toString(Qt::ISODate).toStdString();
}
