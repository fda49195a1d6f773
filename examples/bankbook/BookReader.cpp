#include "BookReader.hpp"

#include <QStringDecoder>

#include <algorithm>
#include <utility>

using enum orv::banking::BankAccountTypes;

namespace {

// Qt's conversions take signs, spaces and other digits, too.
bool isAll(QStringView text, QChar first, QChar last)
{
  return !text.isEmpty() &&
         std::all_of(text.begin(), text.end(), [&](QChar c) { return c >= first && c <= last; });
}

} // namespace

QString toText(QByteArrayView line)
{
  if (line.contains('\0')) {
    throw BookError(BookError::tr("The line contains a NUL character."));
  }
  QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  QString text = decode(line);
  if (decode.hasError()) {
    throw BookError(BookError::tr("The line is not UTF-8 text."));
  }
  return text;
}

QStringList toWords(QString const& line)
{
  QStringList words;
  QString word;
  bool inWord = false;
  bool inQuotes = false;
  for (qsizetype i = 0; i < line.size() && (inWord || line[i] != u'#'); ++i) {
    auto const c = line[i];
    auto const isBlank = c == u' ' || c == u'\t' || c == u'\r' || c == u'\n';
    if (inWord && isBlank && !inQuotes) {
      words += std::exchange(word, {});
    }
    inWord = inQuotes || !isBlank;
    if (c == u'"') {
      inQuotes = !inQuotes;
    } else if (inWord) {
      auto const next = i + 1 < line.size() ? line[i + 1] : QChar();
      auto const isEscape = inQuotes && c == u'\\' && (next == u'"' || next == u'\\');
      word += isEscape ? next : c;
      i += isEscape ? 1 : 0;
    }
  }
  if (inQuotes) {
    throw BookError(BookError::tr("A quoted word does not end."));
  }
  return inWord ? words << word : words;
}

orv::accounting::AccountNumber toAccountNumber(QString const& word)
{
  bool fits = false;
  auto const integer = word.toUInt(&fits);
  if (!fits || !isAll(word, u'0', u'9')) {
    throw BookError(BookError::tr("'%1' is not an account number.").arg(word));
  }
  return orv::accounting::AccountNumber(integer);
}

orv::banking::BankAccountTypes toKind(QString const& word)
{
  try {
    return orv::banking::toBankAccountTypes(word);
  } catch (std::logic_error const&) { // whose text is for programmers
    throw BookError(BookError::tr("'%1' is no kind of account; the kinds are: %2.")
                        .arg(word, kindsOfAccount()));
  }
}

QString kindsOfAccount()
{
  QStringList kinds;
  for (auto const kind : {Chequeing, CreditCard, Loan, Savings, Goal}) {
    kinds += presentationText(kind);
  }
  return kinds.join(QStringLiteral(", "));
}

QDate toDate(QString const& word)
{
  auto const date = QDate::fromString(word, Qt::ISODate);
  // Qt takes other separators, too, and a time.
  if (!date.isValid() || word.size() != 10 || !isAll(QString(word).remove(u'-'), u'0', u'9')) {
    throw BookError(BookError::tr("'%1' is not a date such as 2026-01-31.").arg(word));
  }
  return date;
}

Amount toAmount(QString const& amount, QString const& currency)
{
  if (currency.size() != 3 || !isAll(currency, u'A', u'Z')) {
    throw BookError(BookError::tr("'%1' is not a currency code such as CAD.").arg(currency));
  }
  mintar::Currency const known(currency);
  auto const point = amount.indexOf(u'.');
  auto const whole = amount.left(point); // all of it where there is no point
  auto const decimals = point < 0 ? QString() : amount.mid(point + 1);
  auto const beyond = QStringView(decimals).mid(known.decimals()); // what the currency has not
  auto const minorUnits = whole + decimals.leftJustified(known.decimals(), u'0', true);
  bool fits = false;
  Amount const result{known, minorUnits.toLongLong(&fits)};
  if (!fits || !isAll(whole.mid(whole.startsWith(u'-') ? 1 : 0), u'0', u'9') ||
      (point >= 0 && !isAll(decimals, u'0', u'9')) || beyond.count(u'0') != beyond.size()) {
    throw BookError(
        BookError::tr("'%1' is not an amount of %2 such as -1250.50.").arg(amount, currency));
  }
  return result;
}
