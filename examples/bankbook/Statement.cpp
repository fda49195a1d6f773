#include "Statement.hpp"

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
  if (auto const found = kinds.find(type.toUpper()); found != kinds.end()) {
    return *found;
  }
  throw BookError(type);
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

// What `read` makes of a value. Throws with the element and the value where it is missing or unreadable.
template <typename Read>
auto readValue(OfxValues const& values, QString const& element, Read&& read)
{
  auto const value = values.value(element);
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
  auto const zero =
      readValue(values, "CURDEF", [](QString const& value) { return toAmount("0", value); });
  auto const readAmount = [&](QString const& value) {
    return toAmount(bookAmount(value), zero.currency.isoCode());
  };
  return {values.value("ACCTID"), readValue(values, "LEDGERBAL/BALAMT", readAmount),
          readValue(values, "LEDGERBAL/DTASOF", &readDate)};
}

} // namespace

QString firstTen(QStringList const& accountIds)
{
  auto const first = accountIds.mid(0, 10).join(QStringLiteral(", "));
  return accountIds.size() > 10 ? first + QStringLiteral(", …") : first;
}

StatementFile::StatementFile(QByteArray const& content)
{
  for (auto const& values : readOfx(content)) {
    auto const id = readValue(values, "ACCTID", [](QString const& value) { return value; });
    auto& statements = statements_[id];
    accountIds_ += statements.isEmpty() ? QStringList(id) : QStringList();
    statements += values;
  }
  if (accountIds_.isEmpty()) {
    throw BookError(BookError::tr("The file has no statement of a bank account or a credit card."));
  }
}

Statement StatementFile::statementFor(orv::banking::AccountNumberBankType const& account,
                                      QString const& accountId) const
{
  QList<OfxValues> found; // for the kind of account
  QStringList ids;        // of these
  QString otherType;      // of a statement for another kind
  for (auto const& id : accountId.isEmpty() ? accountIds_ : QStringList(accountId)) {
    for (auto const& values : statements_.value(id)) {
      if (readValue(values, "ACCTTYPE", &toKinds).contains(account.bankAccountType)) {
        found += values;
        ids += id;
      } else {
        otherType = values.value("ACCTTYPE");
      }
    }
  }
  if (ids.removeDuplicates(); ids.size() > 1) {
    throw BookError(
        BookError::tr("The file has several such accounts; add the identifier at the end: %1.")
            .arg(firstTen(ids)));
  }
  if (found.isEmpty() && otherType.isEmpty()) {
    throw BookError(BookError::tr("The file has no statement of the account '%1', but of: %2.")
                        .arg(accountId, firstTen(accountIds_)));
  }
  if (found.isEmpty()) {
    throw BookError(
        BookError::tr("The account %1 is not of the kind that the statement is for, '%2'.")
            .arg(presentationText(account, orv::foundation::LocaleAware::Yes), otherType));
  }
  if (found.count(found.first()) < found.size()) {
    throw BookError(BookError::tr("The statements of the account '%1' differ.").arg(ids.first()));
  }
  return toStatement(found.first());
}
