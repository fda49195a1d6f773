#include "Statement.hpp"

#include <QRegularExpression>

using enum orv::banking::BankAccountTypes;

namespace {

// The kinds of account that a type of OFX stands for. A goal is money set aside.
QList<orv::banking::BankAccountTypes> toKinds(QString const& type)
{
  static QMap<QString, QList<orv::banking::BankAccountTypes>> const kinds{
      {"CHECKING", {Chequeing}},      {"SAVINGS", {Savings, Goal}},
      {"MONEYMRKT", {Savings, Goal}}, {"CD", {Savings, Goal}},
      {"CREDITLINE", {Loan}},         {"CMA", {Chequeing, Savings, Goal}},
      {"CREDITCARD", {CreditCard}},
  };
  return kinds.value(type.toUpper());
}

// An amount of OFX as a book has it: without a plus, with a point for a comma, and a digit before it.
QString bookAmount(QString const& amount)
{
  static QRegularExpression const plus(QStringLiteral("^\\+(?!-)"));
  static QRegularExpression const barePoint(QStringLiteral("(?<![0-9])(?=\\.)"));
  return QString(amount).remove(plus).replace(u',', u'.').replace(barePoint, QStringLiteral("0"));
}

// The day that a date of OFX begins with, whatever time and zone follow.
QDate readDate(QString const& date)
{
  static QRegularExpression const day(
      QStringLiteral("^([0-9]{4})([0-9]{2})([0-9]{2})([0-9]{2}){0,3}(?![0-9]).*$"));
  return toDate(QString(date).replace(day, QStringLiteral("\\1-\\2-\\3")));
}

QString valueOf(OfxValues const& values, QString const& element)
{
  auto const value = values.value(element);
  if (value.isEmpty()) {
    throw BookError(BookError::tr("The statement has no %1.").arg(element));
  }
  return value;
}

} // namespace

QString firstTen(QStringList const& accountIds)
{
  auto const first = accountIds.mid(0, 10).join(QStringLiteral(", "));
  return accountIds.size() > 10 ? first + QStringLiteral(", …") : first;
}

Statements toStatements(QByteArray const& content)
{
  Statements statements;
  for (auto const& values : readOfx(content)) {
    statements[valueOf(values, "ACCTID")] += values;
  }
  if (statements.isEmpty()) {
    throw BookError(BookError::tr("The file has no statement of a bank account or a credit card."));
  }
  return statements;
}

Statement statementFor(orv::banking::AccountNumberBankType const& account,
                       Statements const& statements, QString const& accountId)
{
  Statements found;  // for the kind of account
  QString otherType; // of a statement for another kind
  for (auto const& id : accountId.isEmpty() ? statements.keys() : QStringList(accountId)) {
    for (auto const& values : statements.value(id)) {
      if (toKinds(valueOf(values, "ACCTTYPE")).contains(account.bankAccountType)) {
        found[id] += values;
      } else {
        otherType = values.value("ACCTTYPE");
      }
    }
  }
  if (found.size() > 1) {
    throw BookError(
        BookError::tr("The file has several such accounts; add the identifier at the end: %1.")
            .arg(firstTen(found.keys())));
  }
  if (found.isEmpty() && otherType.isEmpty()) {
    throw BookError(BookError::tr("The file has no statement of the account '%1', but of: %2.")
                        .arg(accountId, firstTen(statements.keys())));
  }
  if (found.isEmpty()) {
    throw BookError(
        BookError::tr("The account %1 is not of the kind that the statement is for, '%2'.")
            .arg(presentationText(account, orv::foundation::LocaleAware::Yes), otherType));
  }
  auto const& values = found.first().first();
  if (found.first().count(values) < found.first().size()) {
    throw BookError(
        BookError::tr("The statements of the account '%1' differ.").arg(found.firstKey()));
  }
  auto const amount = bookAmount(valueOf(values, "LEDGERBAL/BALAMT"));
  auto const date = valueOf(values, "LEDGERBAL/DTASOF");
  return {found.firstKey(), toAmount(amount, valueOf(values, "CURDEF")), readDate(date)};
}
