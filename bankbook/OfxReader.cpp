#include "OfxReader.hpp"

#include "BookReader.hpp"

#include <foundation/Date.hpp>

#include <QStringDecoder>
#include <QXmlStreamReader>

#include <utility>

using enum orv::banking::BankAccountTypes;
using orv::foundation::presentationText; // of a date

namespace {

// The next tag, past comments, sections, elements like <X/>, and a < that stands for itself; or the
// start of a comment or a section that does not end.
QRegularExpressionMatch nextTag(QRegularExpressionMatchIterator& parts)
{
  QRegularExpressionMatch part;
  do {
    part = parts.hasNext() ? parts.next() : QRegularExpressionMatch();
  } while (part.hasMatch() && part.capturedLength(2) == 0);
  return part;
}

QString toValue(QStringView latin1)
{
  auto const bytes = latin1.toLatin1();
  QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  QString text = decode(bytes);
  text = decode.hasError() ? latin1.toString() : text;
  text.replace("&nbsp;", " ");
  QXmlStreamReader xml("<v>" + text + "</v>");
  xml.readNextStartElement();
  auto const value = xml.readElementText();
  // In SGML, an ampersand may also stand for itself.
  return (xml.hasError() ? text : value).simplified();
}

// What is read of a statement, by element. The elements of its balance are named like
// LEDGERBAL/BALAMT.
using Values = QMap<QString, QString>;

// Throws where the bank reports an error.
void checkStatus(Values const& values)
{
  refuseIf(values["SEVERITY"].toUpper() == u"ERROR", BookError::tr("The bank reports an error: %1"),
           values.value("MESSAGE", values["CODE"]));
}

// Throws where a value is missing or cannot be read, in the bank's own spelling.
orv::banking::ReconciledBalance toBalance(Values const& values)
{
  // An amount has a point or a comma; a date begins with the day, whatever time and zone follow.
  static QRegularExpression const amountForm(
      QStringLiteral("^(?:\\+|(-))?(?=[.,]?[0-9])([0-9]*)(?:[.,]([0-9]+))?$"));
  static QRegularExpression const dateForm(QStringLiteral("^([0-9]{8})(?:[0-9]{2}){0,3}(?![0-9])"));
  checkStatus(values);
  toPlain(QStringList(values.values()).join(u' '));
  mintar::Currency const currency(values["CURDEF"]);
  auto const amount = amountForm.match(values["LEDGERBAL/BALAMT"]);
  refuseIf(amount.captured(3).size() == 3 && currency.decimals() != 3,
           BookError::tr("The statement's BALAMT '%1' has three decimals, or thousands."),
           amount.captured());
  auto const balance = amount.hasMatch() ? exactMoney(amount, currency) : std::nullopt;
  auto const digits = dateForm.match(values["LEDGERBAL/DTASOF"]).captured(1);
  auto const day = QDate::fromString(digits, "yyyyMMdd");
  auto const require = [&](QString const& element, bool isReadable) {
    refuseIf(!isReadable, BookError::tr("The statement's %1 cannot be read: '%2'."), element,
             values[element]);
  };
  require("ACCTID", !values["ACCTID"].isEmpty());
  require("CURDEF", isCurrency(currency.isoCode()));
  require("LEDGERBAL/BALAMT", balance.has_value());
  require("LEDGERBAL/DTASOF", day.isValid());
  return {*balance, day};
}

} // namespace

QList<orv::banking::BankAccountTypes> kindsOf(Identifier const& identifier)
{
  // A goal is money set aside.
  static QMap<QString, QList<orv::banking::BankAccountTypes>> const kinds{
      {"CHECKING", {Chequeing}},      {"SAVINGS", {Savings, Goal}},        {"CREDITLINE", {Loan}},
      {"MONEYMRKT", {Savings, Goal}}, {"CREDITCARD", {CreditCard}},        {"CD", {Savings, Goal}},
      {"INVESTMENT", {Unknown}},      {"CMA", {Chequeing, Savings, Goal}},
  };
  return kinds.value(identifier.section(u' ', 1, 1));
}

Statements readOfx(QByteArray const& bytes)
{
  // A comment or a section ends before another one begins; a tag may have a namespace.
  static QRegularExpression const form(
      QStringLiteral("<!--(?:(?!-->|<!--).)*+-->|<!\\[(?:(?!\\]\\]>|<!\\[).)*+\\]\\]>|(?|"
                     "<(/?)(?:[A-Z][^\\s/:<>]*+:)?+([A-Z][^\\s/<>]*+)[^<>]*+(?<!/)>|"
                     "<()(!--|!\\[))"),
      QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
  // The elements that hold others, whose tags tell whether the file is whole. All others are
  // values: in SGML they may do without end tags, and some banks mistype them.
  static QRegularExpression const holder(QStringLiteral(
      "^(?:OFX|SIGNONMSGSRSV1|SONRS|FI|STATUS|(?:BANK|CREDITCARD|INVSTMT)MSGSRSV1|"
      "(?:CC|INV)?STMT(?:TRN)?RS|(?:BANK|CC|INV)ACCTFROM|(?:BANK|CC)ACCTTO|BANKTRANLIST|STMTTRN|"
      "(?:EXTD)?PAYEE|(?:ORIG)?CURRENCY|IMAGEDATA|LEDGERBAL|AVAILBAL|BALLIST|BAL)$"));
  static QRegularExpression const wanted(QStringLiteral(
      "^/OFX/(?:.*/)?(?|STATUS/(CODE|SEVERITY|MESSAGE)|"
      "(?:(?:CC)?STMTRS/(?:(?:BANK|CC)ACCTFROM/)?|INVSTMTRS/INVACCTFROM/)"
      "(CURDEF|B(?:ANK|RANCH|ROKER)ID|ACCT(?:ID|TYPE|KEY)|LEDGERBAL/(?:BALAMT|DTASOF)))$"));
  // Where all that may stand is known, text in any other element has been torn from a value.
  static QRegularExpression const narrow(QStringLiteral("STMTRS/(?:LEDGERBAL|[A-Z]+ACCTFROM)/$"));
  static QRegularExpression const empty(QStringLiteral("^$"));
  QList<Values> statements;
  Values status;      // which the bank gives the statement that follows
  QString path(u'/'); // of the elements that hold the tag
  QString open;       // the value before the tag, if no other tag stands between
  bool isOfx = false;
  bool isDamaged = false;
  auto const content = QString::fromLatin1(bytes);
  auto parts = form.globalMatch(content);
  for (auto tag = nextTag(parts), next = tag; tag.hasMatch() && !isDamaged; tag = next) {
    next = nextTag(parts);
    auto const end = tag.capturedEnd();
    auto const text = QStringView(content).mid(end, next.capturedStart() - end);
    auto const name = tag.captured(2).toUpper();
    auto const isEnd = tag.capturedLength(1) > 0;
    auto const step = name + u'/';
    auto const value = wanted.match(path + name).captured(1);
    auto const before = std::exchange(open, QString());
    if (name.startsWith(u'!')) {
      isDamaged = true;
    } else if (holder.match(name).hasMatch() && isEnd) {
      isDamaged = !path.endsWith(u'/' + step);
      path.chop(step.size());
    } else if (holder.match(name).hasMatch()) {
      auto const isStatement = step.endsWith(u"STMTRS/");
      // No whole file is deeper: in one that is, each step would take longer than the last.
      isDamaged = path.size() > 200 || (isStatement && path.contains("STMTRS/")) ||
                  (step == u"OFX/" && std::exchange(isOfx, true));
      path += step;
      if (isStatement && path.startsWith(u"/OFX/")) {
        statements += status;
        if (name != u"STMTRS") {
          statements.last()["ACCTTYPE"] = name == u"CCSTMTRS" ? "CREDITCARD" : "INVESTMENT";
        }
      } else if (name == u"STATUS") {
        status.clear();
      }
    } else if (!value.isEmpty() && !isEnd) {
      auto& values = path.endsWith(u"/STATUS/") ? status : statements.last();
      isDamaged = values.contains(value); // What is said twice is damaged.
      values[value] = value == u"ACCTTYPE" ? toValue(text).toUpper() : toValue(text);
      open = name;
    } else if (!value.isEmpty() || !before.isEmpty() || narrow.match(path).hasMatch()) {
      isDamaged = (!value.isEmpty() && before != name) || !toValue(text).isEmpty();
    }
  }
  refuseIf(isDamaged || path != u"/",
           BookError::tr("The file is cut short, damaged, or several files in one."));
  refuseIf(bytes.trimmed().isEmpty(), BookError::tr("The file is empty."));
  auto const isUtf16 = bytes.contains(QByteArray("O\0F\0X", 5));
  toPlain(isUtf16 ? QString(QChar(0)) : QString()); // which says how to save it
  refuseIf(!isOfx,
           BookError::tr("The file is not OFX; download the statement as OFX, QFX or Money, "
                         "not as PDF, CSV or QIF."));
  Statements result;
  for (auto const& values : statements) {
    QStringList whole{values["ACCTID"], values["ACCTTYPE"], values["BANKID"]};
    whole.replaceInStrings(QStringLiteral(" "), QString()).replaceInStrings(empty, "-");
    auto& [latest, fault] = result[whole.join(u' ')];
    try {
      auto const next = toBalance(values);
      refuseIf(next.occurredOn == latest.occurredOn && !(next.balance == latest.balance),
               BookError::tr("The file has two balances of %1: %2 and %3."),
               presentationText(next.occurredOn), presentationText(latest.balance),
               presentationText(next.balance));
      latest = next.occurredOn > latest.occurredOn ? next : latest;
    } catch (BookError const& error) {
      fault = error.what();
    }
  }
  if (result.isEmpty()) {
    checkStatus(status);
    throw BookError(BookError::tr("The file has no statement of a bank account or a credit card."));
  }
  return result;
}
