#include <foundation/Date.hpp>

#include <QDate>
#include <QLocale>
#include <QString>

#include <cstdlib>
#include <ostream>

namespace {

// Qt::ISODate gives no text for years outside 1 to 9999.
QString isoText(QDate const& date)
{
  if (!date.isValid()) {
    return {};
  }
  auto const year = date.year() < 0 ? date.year() + 1 : date.year();
  QString const digits = QString::number(std::abs(year)).rightJustified(4, u'0') +
                         date.toString(QStringLiteral("-MM-dd"));
  return year < 0 ? u'-' + digits : year > 9999 ? u'+' + digits : digits;
}

} // namespace

namespace orv::foundation {

QString presentationText(QDate const& date)
{
  QLocale const locale;
  // The C locale's own short form differs between releases of Qt.
  if (locale.language() == QLocale::C) {
    return isoText(date);
  }
  auto format = locale.dateFormat(QLocale::ShortFormat);
  if (!format.contains(QStringLiteral("yyyy"))) {
    format.replace(QStringLiteral("yy"), QStringLiteral("yyyy"));
  }
  return locale.toString(date, format);
}

} // namespace orv::foundation

QT_BEGIN_NAMESPACE

std::ostream& operator<<(std::ostream& stream, QDate const& date)
{
  return stream << isoText(date).toStdString();
}

QT_END_NAMESPACE
