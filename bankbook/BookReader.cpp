#include "BookReader.hpp"

#include <QFileInfo>
#include <QStringDecoder>

#include <cerrno>
#include <utility>

using mintar::Money;

QString toText(QByteArrayView line)
{
  line.chop(line.endsWith('\r') ? 1 : 0);
  QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  QString const text = decode(line);
  refuseIf(decode.hasError(), BookError::tr("The line is not UTF-8 text; save the book as UTF-8."));
  return toPlain(text);
}

QStringList toWords(QString const& line)
{
  QStringList words;
  bool inWord = false;
  bool inQuotes = false;
  for (qsizetype i = 0; i < line.size() && (inWord || line[i] != u'#'); ++i) {
    refuseIf(!inWord && QStringView(u"“”„‟«»").contains(line[i]),
             BookError::tr("%1 is not a straight double quote."), QString(line[i]));
    auto const wasInWord = std::exchange(inWord, inQuotes || line[i] != u' ');
    if (inWord && !wasInWord) {
      words += QString();
    }
    if (line[i] == u'"') {
      inQuotes = !inQuotes;
      refuseIf(!inQuotes && i + 1 < line.size() && line[i + 1] != u' ',
               BookError::tr("A blank is missing behind the quote that ends '%1'."), words.last());
    } else if (inWord) {
      auto const pair = QStringView(line).mid(i, 2);
      i += inQuotes && (pair == u"\\\"" || pair == u"\\\\") ? 1 : 0;
      words.last() += line[i];
    }
  }
  refuseIf(inQuotes, BookError::tr("A quoted word does not end; close it with a straight quote."));
  return words;
}

orv::banking::BankName toBankName(QString const& word)
{
  refuseIf(shown(word) != word, BookError::tr("The name '%1' has more than 100 characters."), word);
  return orv::banking::BankName(word);
}

orv::accounting::AccountNumber toAccountNumber(QString const& word)
{
  // Qt's conversions take signs, spaces and other digits, too.
  static QRegularExpression const digits(QStringLiteral("^[0-9]+$"));
  bool fits = false;
  auto const integer = word.toUInt(&fits);
  refuseIf(!fits || !digits.match(word).hasMatch(),
           BookError::tr("'%1' is not an account number such as 1010."), word);
  return orv::accounting::AccountNumber(integer);
}

orv::banking::BankAccountTypes toKind(QString const& word)
{
  try {
    return orv::banking::toBankAccountTypes(word);
  } catch (std::logic_error const&) { // whose text is for programmers
    throw BookError(filled(BookError::tr("'%1' is no kind of account; the kinds are: Chequeing, "
                                         "\"Credit Card\", Loan, Savings, Goal."),
                           word));
  }
}

QDate toDate(QString const& word)
{
  auto const day = QDate::fromString(word, Qt::ISODate); // which takes more forms than one
  refuseIf(!day.isValid() || day.toString(Qt::ISODate) != word,
           BookError::tr("'%1' is not a date such as 2026-01-31."), word);
  return day;
}

bool isCurrency(QString const& word)
{
  static QRegularExpression const form(QStringLiteral("^[A-Z]{3}$"));
  return form.match(word).hasMatch();
}

Money toMoney(QString const& amount, QString const& currency)
{
  static QRegularExpression const form(QStringLiteral("^(-?)([0-9]+)(?:\\.([0-9]+))?$"));
  static QRegularExpression const wrongSign(QStringLiteral("^([+−–(]|--)|[-−–)]$"));
  refuseIf(!isCurrency(currency), BookError::tr("'%1' is not a currency such as CAD."), currency);
  refuseIf(amount.contains(wrongSign),
           BookError::tr("The sign of '%1' is wrong; only what you owe has one, -."), amount);
  auto const parts = form.match(amount);
  refuseIf(!parts.hasMatch(),
           BookError::tr("'%1' is not an amount such as -1250.50, with a point before decimals and "
                         "nothing between thousands."),
           amount);
  mintar::Currency const known(currency);
  refuseIf(parts.captured(3).size() > known.decimals(),
           BookError::tr("'%1' has more decimals than %2, which has %3; nothing stands "
                         "between thousands."),
           amount, currency, QString::number(known.decimals()));
  auto const money = exactMoney(parts, known);
  refuseIf(!money, BookError::tr("'%1' is too large."), amount);
  return *money;
}

std::optional<Money> exactMoney(QRegularExpressionMatch const& parts,
                                mintar::Currency const& currency)
{
  auto const places = currency.decimals();
  auto const decimals = parts.captured(3);
  auto const beyond = decimals.mid(places); // what the currency has not
  auto const digits = parts.captured(2) + decimals.leftJustified(places, u'0', true);
  bool fits = false;
  Money const money(currency, (parts.captured(1) + u'0' + digits).toLongLong(&fits));
  return fits && beyond.count(u'0') == beyond.size() ? std::optional(money) : std::nullopt;
}

QString pathOf(QDir const& folder, QString const& fileName)
{
  // To Qt, a colon in front means a resource.
  return folder.filePath(fileName.startsWith(u':') ? QStringLiteral("./") + fileName : fileName);
}

QByteArray contentOf(QFile& file, QString const& name)
{
  auto const isOpen = file.isOpen() || file.open(QIODevice::ReadOnly);
  auto content = isOpen ? file.readAll() : QByteArray();
  // Of a folder, each system has its own difficulty, and Qt its own words.
  auto const reason = QFileInfo(file).isDir() ? qt_error_string(EISDIR) : file.errorString();
  refuseIf(file.error() != QFile::NoError, BookError::tr("%1 cannot be read: %2"), name, reason);
  return content;
}
