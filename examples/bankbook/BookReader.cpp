#include "BookReader.hpp"

#include "BookError.hpp"

#include <QCoreApplication>
#include <QStringDecoder>

#include <algorithm>
#include <stdexcept>

using orv::banking::BankAccountTypes;

namespace {

struct BookReader
{
  Q_DECLARE_TR_FUNCTIONS(BookReader)
};

bool isDigit(QChar c)
{
  return c >= u'0' && c <= u'9';
}

// Whether there are characters and all are digits from 0 to 9. Qt's conversions take signs and spaces, too.
bool isDigits(QStringView text)
{
  return !text.isEmpty() && std::all_of(text.begin(), text.end(), isDigit);
}

bool isCurrencyCode(QStringView text)
{
  return text.size() == 3 &&
         std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'A' && c <= u'Z'; });
}

bool isBlank(QChar c)
{
  return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n';
}

} // namespace

QString toText(QByteArrayView line)
{
  if (line.contains('\0')) {
    throw BookError(BookReader::tr("The line contains a NUL character."));
  }
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
  if (!fits || !isDigits(word)) {
    throw BookError(BookReader::tr("'%1' is not an account number.").arg(word));
  }
  return orv::accounting::AccountNumber(integer);
}

BankAccountTypes toKind(QString const& word)
{
  try {
    return orv::banking::toBankAccountTypes(word);
  } catch (std::logic_error const&) { // whose text is for programmers
    throw BookError(BookReader::tr("'%1' is no kind of account; the kinds are: %2.")
                        .arg(word, kindsOfAccount()));
  }
}

QString kindsOfAccount()
{
  QStringList kinds;
  for (auto const kind :
       {BankAccountTypes::Chequeing, BankAccountTypes::CreditCard, BankAccountTypes::Loan,
        BankAccountTypes::Savings, BankAccountTypes::Goal}) {
    kinds += presentationText(kind);
  }
  return kinds.join(QStringLiteral(", "));
}

QDate toDate(QString const& word)
{
  auto const date = QDate::fromString(word, Qt::ISODate);
  if (!date.isValid() || date.toString(Qt::ISODate) != word) { // Qt takes other separators, too
    throw BookError(BookReader::tr("'%1' is not a date such as 2026-01-31.").arg(word));
  }
  return date;
}

mintar::Money toMoney(QString const& amount, QString const& currency)
{
  if (!isCurrencyCode(currency)) {
    throw BookError(BookReader::tr("'%1' is not a currency code such as CAD.").arg(currency));
  }
  mintar::Currency const known(currency);
  auto const point = amount.indexOf(u'.');
  auto const whole = amount.left(point); // all of it where there is no point
  auto const decimals = point < 0 ? QString() : amount.mid(point + 1);
  auto const minorUnits = whole + decimals.leftJustified(known.decimals(), u'0');
  bool fits = false;
  mintar::Money const money(known, minorUnits.toLongLong(&fits));
  if (!fits || !isDigits(whole.startsWith(u'-') ? whole.mid(1) : whole) ||
      (point >= 0 && !isDigits(decimals)) || decimals.size() > known.decimals()) {
    throw BookError(BookReader::tr("'%1' is not an amount of %2.").arg(amount, currency));
  }
  return money;
}
