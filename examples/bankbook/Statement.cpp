#include "Statement.hpp"

#include "BookReader.hpp"
#include "OfxReader.hpp"

#include <QRegularExpression>

using enum orv::banking::BankAccountTypes;

namespace {

// The kinds of account that a type of OFX stands for. A goal is money set aside.
QList<orv::banking::BankAccountTypes> toKinds(QString const& type)
{
  static QHash<QString, QList<orv::banking::BankAccountTypes>> const kinds{
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
auto readValue(OfxValues const& values, QString const& element, Read&& read)
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

Statement toStatement(OfxValues const& values)
{
  auto const currency = readValue(values, "CURDEF", [](QString const& value) {
    return toAmount("0", value).currency.isoCode();
  });
  return {readValue(values, "ACCTID", [](QString const& value) { return value; }),
          readValue(values, "LEDGERBAL/BALAMT",
                    [&](QString const& value) { return toAmount(bookAmount(value), currency); }),
          readValue(values, "LEDGERBAL/DTASOF",
                    [](QString const& value) { return toDate(bookDate(value)); })};
}

} // namespace

Statement readStatement(QByteArray const& content, QString const& accountId,
                        orv::banking::AccountNumberBankType const& account)
{
  QStringList accountIds;
  QString otherType; // of a statement of the account, for another kind
  QList<Statement> statements;
  for (auto const& values : readOfx(content)) {
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

QStringList StatementFile::accountIds() const
{
  QStringList ids;
  for (auto const& v : readOfx(content_)) ids += v.value("ACCTID").simplified();
  ids.removeDuplicates();
  return ids;
}
