#include "BookReader.hpp"

#include "Terminal.hpp"

#include <QFileInfo>
#include <QRegularExpression>
#include <QStringDecoder>

#include <algorithm>
#include <cerrno>
#include <utility>

namespace {

// Qt's conversions take signs, spaces and other digits, too. A regular expression takes five times as long.
bool isAll(QStringView text, QChar first, QChar last)
{
  return !text.isEmpty() &&
         std::all_of(text.begin(), text.end(), [&](QChar c) { return c >= first && c <= last; });
}

} // namespace

QString toText(QByteArrayView line)
{
  line.chop(line.endsWith('\n') ? 1 : 0);
  line.chop(line.endsWith('\r') ? 1 : 0);
  QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  QString text = decode(line);
  if (decode.hasError()) {
    throw BookError(BookError::tr("The line is not UTF-8 text; save the book as UTF-8."));
  }
  text.replace(u'\t', u' ');
  for (auto const c : text.toStdU32String()) {
    if (!isPrintable(c)) {
      throw BookError(BookError::tr("The line contains the character %1, which cannot be shown.")
                          .arg(printable(QString::fromUcs4(&c, 1))));
    }
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
    if (inWord && !inQuotes && c == u' ') {
      words += std::exchange(word, {});
    }
    inWord = inQuotes || c != u' ';
    if (c == u'"') {
      inQuotes = !inQuotes;
    } else if (inWord) {
      auto const next = i + 1 < line.size() ? line[i + 1] : QChar();
      auto const isEscape = inQuotes && c == u'\\' && (next == u'"' || next == u'\\');
      i += isEscape ? 1 : 0;
      word += isEscape ? next : c;
    }
  }
  if (inQuotes) {
    throw BookError(BookError::tr("A quoted word does not end; close it with a double quote."));
  }
  return inWord ? words << word : words;
}

QString toLine(QStringList const& words)
{
  static QRegularExpression const plain(QStringLiteral("^[^ #\"\\\\]+$"));
  auto written = words;
  for (auto& word : written) {
    if (!plain.match(word).hasMatch()) {
      word.replace(u'\\', QStringLiteral("\\\\")).replace(u'"', QStringLiteral("\\\""));
      word = u'"' + word + u'"';
    }
  }
  return written.join(u' ') + u'\n';
}

orv::accounting::AccountNumber toAccountNumber(QString const& word)
{
  bool fits = false;
  auto const integer = word.toUInt(&fits);
  if (!fits || !isAll(word, u'0', u'9')) {
    throw BookError(BookError::tr("'%1' is not an account number such as 1010.").arg(word));
  }
  return orv::accounting::AccountNumber(integer);
}

orv::banking::BankAccountTypes toKind(QString const& word)
{
  try {
    return orv::banking::toBankAccountTypes(word);
  } catch (std::logic_error const&) { // whose text is for programmers
    throw BookError(BookError::tr("'%1' is no kind of account; the kinds are: Chequeing, "
                                  "\"Credit Card\", Loan, Savings, Goal.")
                        .arg(word));
  }
}

QDate toDate(QString const& word)
{
  auto const date = QDate::fromString(word, Qt::ISODate);
  if (!date.isValid() || word.size() != 10 || !isAll(QString(word).remove(u'-'), u'0', u'9')) {
    throw BookError(BookError::tr("'%1' is not a date such as 2026-01-31.").arg(word));
  }
  return date;
}

Amount toAmount(QString const& amount, QString const& currency)
{
  mintar::Currency const known(currency);
  auto const places = known.decimals();
  auto const point = amount.indexOf(u'.');
  auto const whole = amount.left(point); // all of it where there is no point
  auto const decimals = point < 0 ? QString() : amount.mid(point + 1);
  auto const beyond = QStringView(decimals).mid(places); // what the currency has not
  bool fits = false;
  auto const minorUnits = (whole + decimals.leftJustified(places, u'0', true)).toLongLong(&fits);
  if (!fits || !isAll(whole.mid(whole.startsWith(u'-') ? 1 : 0), u'0', u'9') ||
      (point >= 0 && !isAll(decimals, u'0', u'9')) || beyond.count(u'0') != beyond.size() ||
      currency.size() != 3 || !isAll(currency, u'A', u'Z')) {
    throw BookError(
        BookError::tr("'%1' is not an amount such as -1250.50 CAD.").arg(amount + u' ' + currency));
  }
  return {known, minorUnits, amount};
}

BookError unreadable(QFile const& file, QString const& name)
{
  // Of a folder, each system has its own difficulty, and Qt its own words.
  auto const reason = QFileInfo(file).isDir() ? qt_error_string(EISDIR) : file.errorString();
  return BookError(BookError::tr("%1 cannot be read: %2").arg(name, reason));
}
