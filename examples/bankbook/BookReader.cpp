#include "BookReader.hpp"

#include "BookError.hpp"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringDecoder>

namespace {

struct BookReader
{
  Q_DECLARE_TR_FUNCTIONS(BookReader)
};

bool matches(QString const& word, char const* pattern)
{
  return QRegularExpression(QRegularExpression::anchoredPattern(QLatin1String(pattern)))
      .match(word)
      .hasMatch();
}

bool isBlank(QChar c)
{
  return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n';
}

} // namespace

QString toText(QByteArrayView line)
{
  QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  QString text = decode(line);
  if (decode.hasError()) {
    throw BookError(BookReader::tr("The line is not UTF-8 text."));
  }
  return text;
}

QStringList toWords(QString const& line)
{
  QStringList words;
  QString word;
  bool inWord = false;
  bool inQuotes = false;
  for (qsizetype i = 0; i < line.size(); ++i) {
    auto const c = line[i];
    if (inQuotes) {
      auto const next = i + 1 < line.size() ? line[i + 1] : QChar();
      if (c == u'"') {
        inQuotes = false;
      } else if (c == u'\\' && (next == u'"' || next == u'\\')) {
        word += next;
        ++i;
      } else {
        word += c;
      }
    } else if (isBlank(c)) {
      if (inWord) {
        words += word;
        word.clear();
        inWord = false;
      }
    } else if (c == u'#' && !inWord) {
      break;
    } else {
      inWord = true;
      if (c == u'"') {
        inQuotes = true;
      } else {
        word += c;
      }
    }
  }
  if (inQuotes) {
    throw BookError(BookReader::tr("A quoted word does not end."));
  }
  if (inWord) {
    words += word;
  }
  return words;
}

orv::accounting::AccountNumber toAccountNumber(QString const& word)
{
  bool fits = false;
  auto const integer = word.toUInt(&fits);
  if (!fits || !matches(word, "[0-9]+")) {
    throw BookError(BookReader::tr("'%1' is not an account number.").arg(word));
  }
  return orv::accounting::AccountNumber(integer);
}

QDate toDate(QString const& word)
{
  auto const date = QDate::fromString(word, QStringLiteral("yyyy-MM-dd"));
  if (!date.isValid()) {
    throw BookError(BookReader::tr("'%1' is not a date such as 2026-01-31.").arg(word));
  }
  return date;
}

mintar::Money toMoney(QString const& amount, QString const& currency)
{
  if (!matches(currency, "[A-Z]{3}")) {
    throw BookError(BookReader::tr("'%1' is not a currency code such as CAD.").arg(currency));
  }
  mintar::Currency const known(currency);
  auto const point = amount.indexOf(u'.');
  auto const decimals = point < 0 ? 0 : amount.size() - point - 1;
  bool fits = false;
  // In minor units: without the point, and with the decimals that were left out.
  auto const minorUnits = (QString(amount).remove(u'.') +
                           QString(qMax<qsizetype>(0, known.decimals() - decimals), QChar(u'0')))
                              .toLongLong(&fits);
  if (!fits || decimals > known.decimals() || !matches(amount, "-?[0-9]+(\\.[0-9]+)?")) {
    throw BookError(BookReader::tr("'%1' is not an amount of %2.").arg(amount, currency));
  }
  return {known, minorUnits};
}
