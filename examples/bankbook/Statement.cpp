#include "Statement.hpp"

#include "BookReader.hpp"

#include <QHash>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>

using orv::banking::BankAccountTypes;

namespace {

struct Tag
{
  QString name; // in capital letters, without a namespace
  bool isEnd = false;
  qsizetype begin = 0;
  qsizetype end = 0; // where the text up to the next tag begins
};

// What a statement says, by element; the elements of its balance are named like LEDGERBAL/BALAMT.
using Values = QHash<QString, QString>;

// The tags up to the first </OFX>.
QList<Tag> tagsIn(QString const& content)
{
  // Comments, sections and instructions, where tags are none, and tags. What follows a + is not given up
  // again, so that the time is linear.
  static QRegularExpression const markup(
      QStringLiteral("<!--(?:.*?-->|.*+)|<!\\[(?:.*?\\]\\]>|.*+)|<[!?][^>]*+|"
                     "<(/?)(?:[A-Z][^\\s/:<>]*+:)?+([A-Z][^\\s/<>]*+)[^<>]*+>"),
      QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
  QList<Tag> tags;
  for (auto const& match : markup.globalMatch(content)) {
    auto const name = match.captured(2).toUpper();
    auto const isEnd = match.capturedLength(1) > 0;
    if (!name.isEmpty()) {
      tags += {name, isEnd, match.capturedStart(), match.capturedEnd()};
    }
    if (isEnd && name == u"OFX") {
      break;
    }
  }
  return tags;
}

QString valueOf(QString text)
{
  text.replace("&nbsp;", " ");
  QXmlStreamReader xml("<v>" + text + "</v>");
  xml.readNextStartElement();
  auto const value = xml.readElementText();
  return xml.hasError() ? text : value; // in SGML, an ampersand may also stand for itself
}

// What each statement in the file says. Throws where the file is not one whole OFX file.
QList<Values> valuesIn(QString const& content)
{
  auto const tags = tagsIn(content);
  auto const starts = std::count_if(
      tags.begin(), tags.end(), [](auto const& tag) { return tag.name == u"OFX" && !tag.isEnd; });
  if (starts != 1 || content.indexOf(u"<OFX>", tags.last().end, Qt::CaseInsensitive) >= 0) {
    throw BookError(starts == 0 ? BookError::tr("The file is not an OFX file.")
                                : BookError::tr("The file is several OFX files in one."));
  }

  // Backwards, as it takes the end tag to tell an element that holds others from one that holds a value
  // and may do without.
  QList<Values> statements;
  QStringList parents; // of the tag, the outermost first
  qsizetype depth = 0; // of what stands directly in the statement that the tag is in, if any
  for (auto i = tags.size() - 1; i >= 0; --i) {
    auto const& [name, isEnd, begin, end] = tags[i];
    auto const isStatement = name == u"STMTRS" || name == u"CCSTMTRS";
    auto const hasEnd = isEnd || parents.endsWith(name);
    if ((!hasEnd && (isStatement || name == u"OFX")) || (isEnd && isStatement && depth > 0)) {
      throw BookError(BookError::tr("The file is cut short or damaged."));
    }
    if (isEnd) {
      parents += name;
    } else if (hasEnd) {
      parents.removeLast();
    }
    if (isStatement) {
      depth = isEnd ? parents.size() : 0;
      if (isEnd) {
        statements.prepend(name == u"STMTRS" ? Values() : Values{{"ACCTTYPE", "CREDITCARD"}});
      }
    } else if (depth > 0 && !isEnd && parents.size() <= depth + 1 &&
               (!hasEnd || tags[i + 1].isEnd)) {
      auto const text = content.mid(end, tags[i + 1].begin - end);
      auto const place = (parents.mid(depth) << name).join(u'/');
      statements.first()[place.section("ACCTFROM/", -1)].prepend(valueOf(text) + u' ');
    }
  }
  return statements;
}

// The kinds of account that a type of OFX stands for. A goal is money set aside.
QList<BankAccountTypes> toKinds(QString const& type)
{
  using enum BankAccountTypes;
  static QHash<QString, QList<BankAccountTypes>> const kinds{
      {"CHECKING", {Chequeing}},      {"SAVINGS", {Savings, Goal}},
      {"MONEYMRKT", {Savings, Goal}}, {"CD", {Savings, Goal}},
      {"CREDITLINE", {Loan}},         {"CMA", {Chequeing, Savings, Goal}},
      {"CREDITCARD", {CreditCard}},
  };
  auto const found = kinds.find(type.toUpper());
  return found != kinds.end() ? *found : throw BookError(type);
}

// An amount of OFX as a book has it: without a plus, with a point for a comma, and a digit before it.
QString bookAmount(QString const& amount)
{
  static QRegularExpression const plus(QStringLiteral("^\\+(?!-)"));
  static QRegularExpression const barePoint(QStringLiteral("(?<![0-9])(?=\\.)"));
  return QString(amount).remove(plus).replace(u',', u'.').replace(barePoint, QStringLiteral("0"));
}

// The day that a date of OFX begins with, whatever time and zone follow.
QString bookDate(QString const& date)
{
  static QRegularExpression const day(
      QStringLiteral("^([0-9]{4})([0-9]{2})([0-9]{2})([0-9]{2}){0,3}(?![0-9]).*$"));
  return QString(date).replace(day, QStringLiteral("\\1-\\2-\\3"));
}

// What `read` makes of a value. Throws with the element and the value where it is missing or unreadable.
template <typename Read>
auto readValue(Values const& values, QString const& element, Read&& read)
{
  auto const value = values.value(element).simplified();
  if (value.isEmpty()) {
    throw BookError(BookError::tr("The statement has no %1.").arg(element));
  }
  try {
    return read(value);
  } catch (BookError const&) {
    throw BookError(BookError::tr("The statement's %1 '%2' cannot be read.").arg(element, value));
  }
}

Statement toStatement(Values const& values)
{
  auto const currency =
      readValue(values, "CURDEF", [](QString const& value) { return toMoney("0", value), value; });
  return {readValue(values, "ACCTID", [](QString const& value) { return value; }), currency,
          readValue(values, "LEDGERBAL/BALAMT",
                    [&](QString const& value) { return toMoney(bookAmount(value), currency); }),
          readValue(values, "LEDGERBAL/DTASOF",
                    [](QString const& value) { return toDate(bookDate(value)); })};
}

} // namespace

Statement readStatement(QByteArray const& content, QString const& accountId,
                        orv::banking::AccountNumberBankType const& account)
{
  auto const start = content.left(4);
  if (start.contains('\0') || start.startsWith("\xFF\xFE") || start.startsWith("\xFE\xFF")) {
    throw BookError(BookError::tr("The file is in UTF-16 or UTF-32, which cannot be read."));
  }
  QStringList accountIds;
  QString otherType; // of a statement of the account, for another kind
  QList<Statement> statements;
  for (auto const& values : valuesIn(QString::fromUtf8(content))) {
    accountIds += values.value("ACCTID").simplified();
    if (!accountId.isEmpty() && accountIds.last() != accountId) {
      continue;
    }
    if (!readValue(values, "ACCTTYPE", &toKinds).contains(account.bankAccountType)) {
      otherType = values.value("ACCTTYPE").simplified();
    } else if (auto const statement = toStatement(values); !statements.contains(statement)) {
      statements += statement;
    }
  }
  if (statements.size() == 1) {
    return statements.first();
  }
  auto const ids = accountIds.join(", ");
  throw BookError(
      accountIds.isEmpty()
          ? BookError::tr("The file has no statement of a bank account or a credit card.")
      : !statements.isEmpty()
          ? BookError::tr("The file has statements that differ, of the accounts: %1.").arg(ids)
      : otherType.isEmpty()
          ? BookError::tr("The file has no statement of the account '%1', but of: %2.")
                .arg(accountId, ids)
          : BookError::tr("The account %1 is not of the kind that the statement is for, '%2'.")
                .arg(presentationText(account, orv::foundation::LocaleAware::Yes), otherType));
}
