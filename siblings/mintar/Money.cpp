#include <mintar/Money.hpp>

#include <QDebug>
#include <QLocale>
#include <QString>

#include <algorithm>
#include <ostream>
#include <string>

namespace mintar {

namespace {

// The amount without its sign, in the locale's digits.
QString magnitude(QLocale const& locale, qint64 minorUnits, int decimals)
{
  auto whole =
      minorUnits < 0 ? 0 - static_cast<quint64>(minorUnits) : static_cast<quint64>(minorUnits);
  QString fraction;
  for (int i = 0; i < decimals; ++i, whole /= 10) {
    fraction.prepend(locale.toString(whole % 10));
  }
  return fraction.isEmpty() ? locale.toString(whole)
                            : locale.toString(whole) + locale.decimalPoint() + fraction;
}

// How the locale arranges an amount (%1) and a currency symbol (%2). Qt formats only whole numbers
// without rounding them to floating point, so one is formatted and taken out again: all from its
// first digit to its last, as the formats of Windows and macOS write "1.00". A regular expression
// would match nothing, without an error, if memory ran out.
QString arrangement(QLocale const& locale, bool negative)
{
  QString const symbol(QChar(0x00A4));
  auto text = locale.toCurrencyString(negative ? -1 : 1, symbol).toStdU32String();
  auto const isDigit = [](char32_t character) { return QChar::isDigit(character); };
  auto const first = std::find_if(text.begin(), text.end(), isDigit);
  auto const last = std::find_if(text.rbegin(), text.rend(), isDigit).base();
  text.replace(first, last, U"%1");
  return QString::fromStdU32String(text).replace(symbol, QStringLiteral("%2"));
}

QString symbolFor(QLocale const& locale, QString const& isoCode)
{
  return locale.currencySymbol(QLocale::CurrencyIsoCode) == isoCode ? locale.currencySymbol()
                                                                    : isoCode;
}

} // namespace

QString presentationText(Money const& money)
{
  auto const& isoCode = money.currency().isoCode();
  if (isoCode.isEmpty()) {
    return {};
  }
  QLocale const locale;
  auto const amount = magnitude(locale, money.minorUnits(), money.currency().decimals());
  auto const symbol = symbolFor(locale, isoCode);
  auto format = arrangement(locale, money.minorUnits() < 0);
  if (symbol == isoCode) {
    // Letters do not touch digits; a locale that keeps its symbol apart has its own space already.
    QChar const noBreakSpace(0x00A0);
    format
        .replace(QStringLiteral("%2%1"), QStringLiteral("%2") + noBreakSpace + QStringLiteral("%1"))
        .replace(QStringLiteral("%1%2"),
                 QStringLiteral("%1") + noBreakSpace + QStringLiteral("%2"));
  }
  return format.arg(amount, symbol);
}

std::ostream& operator<<(std::ostream& stream, Money const& money)
{
  return stream << presentationText(money).toStdString();
}

} // namespace mintar

QT_BEGIN_NAMESPACE

QDebug operator<<(QDebug debug, mintar::Money const& money)
{
  return debug << presentationText(money);
}

QT_END_NAMESPACE
