#include "BookReader.hpp"

#include "Terminal.hpp"

#include <QFileInfo>
#include <QStringDecoder>

#include <algorithm>
#include <cerrno>
#include <utility>

using enum orv::banking::BankAccountTypes;

namespace {

// Qt's conversions take signs, spaces and other digits, too.
bool isAll(QStringView text, QChar first, QChar last)
{
  return !text.isEmpty() &&
         std::all_of(text.begin(), text.end(), [&](QChar c) { return c >= first && c <= last; });
}

// The character that a quoted word goes on with, and how much of `rest` stands for it. A backslash that
// begins none of the escapes stands for itself.
std::pair<QString, qsizetype> quotedCharacter(QStringView rest)
{
  if (rest.startsWith(u"\\\"") || rest.startsWith(u"\\\\")) {
    return {rest.sliced(1, 1).toString(), 2};
  }
  auto const end = rest.startsWith(u"\\u{") ? rest.first(qMin(rest.size(), 10)).indexOf(u'}') : -1;
  bool isCode = false;
  char32_t const code = end < 0 ? 0 : rest.sliced(3, end - 3).toUInt(&isCode, 16);
  if (isCode && code > 0 && code <= QChar::LastValidCodePoint && !QChar::isSurrogate(code)) {
    return {QString::fromUcs4(&code, 1), end + 1};
  }
  return {rest.first(1).toString(), 1};
}

} // namespace

QString toText(QByteArrayView line)
{
  line.chop(line.endsWith('\r') ? 1 : 0);
  if (line.contains('\0')) {
    throw BookError(BookError::tr("The line contains a NUL character."));
  }
  if (line.contains('\r')) {
    throw BookError(
        BookError::tr("The line contains a carriage return; lines end with a line feed."));
  }
  QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  QString text = decode(line);
  if (decode.hasError()) {
    throw BookError(BookError::tr("The line is not UTF-8 text; save the book as UTF-8."));
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
    auto const isBlank = c == u' ' || c == u'\t';
    if (inWord && isBlank && !inQuotes) {
      words += std::exchange(word, {});
    }
    inWord = inQuotes || !isBlank;
    if (c == u'"') {
      inQuotes = !inQuotes;
    } else if (inQuotes) {
      auto const [character, length] = quotedCharacter(QStringView(line).sliced(i));
      word += character;
      i += length - 1;
    } else if (inWord) {
      word += c;
    }
  }
  if (inQuotes) {
    throw BookError(BookError::tr("A quoted word does not end; close it with a double quote."));
  }
  return inWord ? words << word : words;
}

QString writtenWord(QString const& word)
{
  auto quoted = word;
  quoted.replace(u'\\', QStringLiteral("\\\\")).replace(u'"', QStringLiteral("\\\""));
  quoted = printable(quoted);
  auto const isPlain =
      !word.isEmpty() && quoted == word && !word.contains(u' ') && !word.startsWith(u'#');
  return isPlain ? word : u'"' + quoted + u'"';
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
    QStringList kinds;
    for (auto const known : {Chequeing, CreditCard, Loan, Savings, Goal}) {
      kinds += presentationText(known);
    }
    throw BookError(BookError::tr("'%1' is no kind of account; the kinds are: %2.")
                        .arg(word, kinds.join(QStringLiteral(", "))));
  }
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

QString writtenAmount(Amount const& amount)
{
  auto const decimals = amount.currency.decimals();
  auto const sign = amount.minorUnits < 0 ? QStringLiteral("-") : QString();
  auto const digits =
      QString::number(amount.minorUnits).mid(sign.size()).rightJustified(decimals + 1, u'0');
  return sign + digits.chopped(decimals) + (decimals > 0 ? QStringLiteral(".") : QString()) +
         digits.right(decimals) + u' ' + amount.currency.isoCode();
}

BookError unreadable(QFile const& file, QString const& name)
{
  // Of a folder, each system has its own difficulty, and Qt its own words.
  auto const reason = QFileInfo(file).isDir() ? qt_error_string(EISDIR) : file.errorString();
  return BookError(BookError::tr("%1 cannot be read: %2").arg(name, reason));
}
