#include "Book.hpp"

#include "BookReader.hpp"
#include "Terminal.hpp"

#include <banking/ReconciledBankAccount.hpp>
#include <foundation/Date.hpp>

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <climits>
#include <sstream>

using namespace orv::banking;
using enum orv::foundation::LocaleAware;
using orv::foundation::presentationText; // of a date, whose own namespace has none

namespace {

QString written(Amount const& amount)
{
  std::ostringstream text;
  text << amount.money();
  return QString::fromStdString(text.str());
}

// What there is to say of each command, which begins with a line on how it is written, and of the words
// of commands at the end.
QStringList helpTexts()
{
  QFile file(Book::tr(":/help.txt")); // a translation names the file in its language
  file.open(QIODevice::ReadOnly);
  return QString::fromUtf8(file.readAll()).split(QStringLiteral("\n\n"));
}

Statements readStatements(QString const& fileName)
{
  QFile file(fileName);
  QFileInfo const info(file);
  if (info.exists() && !info.isFile() && !info.isDir()) { // a device, which may have no end
    throw BookError(BookError::tr("%1 is not a file.").arg(fileName));
  }
  auto const content = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  if (file.error() != QFile::NoError) {
    throw unreadable(file, fileName);
  }
  return toStatements(content);
}

} // namespace

struct Book::Command
{
  qsizetype fewest; // words after its name
  qsizetype most;
  void (Book::*change)(QStringList const& words);
  QString (Book::*show)(QStringList const& words) = nullptr;
};

std::map<QString, Book::Command> const Book::commands_{
    {"add", {3, 3, &Book::add}},
    {"bank", {1, INT_MAX, &Book::bank}},
    {"close", {1, 1, &Book::close}},
    {"find", {1, 1, nullptr, &Book::find}},
    {"help", {0, 1, nullptr, &Book::help}},
    {"identifier", {2, 2, &Book::identify}},
    {"list", {0, 0, nullptr, &Book::list}},
    {"open", {1, 1, &Book::open}},
    {"print", {0, 0, nullptr, &Book::print}},
    {"reconcile", {4, 4, &Book::reconcile}},
    {"remove", {1, 2, &Book::remove}},
    {"rename", {2, 2, &Book::rename}},
    {"statement", {1, 3, nullptr, &Book::statement}},
    {"update", {1, INT_MAX, &Book::update}},
};

QString Book::usage()
{
  auto texts = helpTexts();
  auto const onWords = texts.takeLast();
  QString usage;
  for (auto const& text : texts) {
    usage += QStringLiteral("  ") + text.section(u'\n', 0, 0) + u'\n';
  }
  return usage + u'\n' + onWords;
}

QString Book::helpOn(QString const& command)
{
  if (!commands_.contains(command)) {
    throw BookError(
        BookError::tr("There is no command '%1'; help shows the commands.").arg(command));
  }
  return helpTexts().filter(QRegularExpression(u'^' + command + QStringLiteral("\\s"))).value(0);
}

BookError Book::writtenOtherwise(QString const& command)
{
  return BookError(
      BookError::tr("The command is written: %1. Double quotes hold words with blanks.")
          .arg(helpOn(command).section(u'\n', 0, 0)));
}

QString Book::execute(QStringList const& words)
{
  if (words.isEmpty()) {
    return {};
  }
  auto const found = commands_.find(words[0]);
  auto const given = words.size() - 1;
  if (found == commands_.end() || given < found->second.fewest || given > found->second.most) {
    throw writtenOtherwise(words[0]);
  }
  if (auto const show = found->second.show) {
    return (this->*show)(words);
  }
  (this->*found->second.change)(words);
  return {};
}

Bank Book::toBank(QStringList const& words)
{
  Accounts accounts;
  for (auto const& word : words.mid(2)) {
    auto const kind = word.section(u'=', 1);
    if (kind.isEmpty()) {
      throw writtenOtherwise(words[0]);
    }
    auto const number = word.section(u'=', 0, 0);
    if (!accounts.emplace(toAccountNumber(number), toKind(kind)).second) {
      throw BookError(BookError::tr("The account number %1 is given twice.").arg(number));
    }
  }
  return Bank(BankName(words[1]), std::move(accounts), false);
}

void Book::add(QStringList const& words)
{
  auto const number = toAccountNumber(words[2]);
  banks_.add(BankName(words[1]), number, toKind(words[3]));
  identifiers_.remove(number);
}

void Book::identify(QStringList const& words)
{
  auto const identifier = words[2].simplified(); // as statements have it
  if (identifier.isEmpty()) {
    throw writtenOtherwise(words[0]);
  }
  bind(toAccountNumber(words[1]), identifier);
}

void Book::reconcile(QStringList const& words)
{
  record(toAccountNumber(words[1]), {{}, toAmount(words[3], words[4]), toDate(words[2])});
}

void Book::remove(QStringList const& words)
{
  BankName const name(words[1]);
  auto const before = accountsOf(name);
  if (words.size() == 2) {
    banks_.remove(name);
  } else {
    banks_.remove(name, toAccountNumber(words[2]));
  }
  drop(before, accountsOf(name));
}

void Book::update(QStringList const& words)
{
  auto const bank = toBank(words);
  auto const before = accountsOf(bank.name());
  banks_.update(bank);
  drop(before, bank.accounts());
}

QString Book::find(QStringList const& words)
{
  return presentationText(accountOf(toAccountNumber(words[1])), Yes) + u'\n';
}

QString Book::list(QStringList const& /*words*/)
{
  QList<QStringList> rows{{tr("Bank"), tr("State"), tr("Account"), tr("Kind"), tr("Class"),
                           tr("Balance"), tr("Reconciled")}};
  for (auto const& [name, bank] : banks_) {
    QStringList const start{presentationText(name), bank.isClosed() ? tr("closed") : tr("open")};
    if (bank.accounts().empty()) {
      rows += start;
    }
    for (auto const& [number, kind] : bank.accounts()) {
      auto row = start + QStringList{presentationText(number), presentationText(kind),
                                     isAssetAccount(kind) ? tr("asset") : tr("liability")};
      if (auto const known = balances_.find(number); known != balances_.end()) {
        row += {written(known->balance), presentationText(known->date)};
      }
      rows += row;
    }
  }
  return toTable(rows, "llrllrl");
}

// Banks are closed after all else, so that the book takes every line.
QString Book::print(QStringList const& /*words*/)
{
  QString lines;
  QString closed;
  for (auto const& [name, bank] : banks_) {
    QStringList words{"bank", name.institution()};
    for (auto const& [number, kind] : bank.accounts()) {
      words += presentationText(number) + u'=' + toNonLocalisedText(kind);
    }
    lines += toLine(words);
    closed += bank.isClosed() ? toLine({"close", name.institution()}) : QString();
  }
  for (auto const& [number, identifier] : identifiers_.asKeyValueRange()) {
    lines += toLine({"identifier", presentationText(number), identifier});
  }
  for (auto const& [number, known] : balances_.asKeyValueRange()) {
    lines += toLine({"reconcile", presentationText(number), known.date.toString(Qt::ISODate),
                     known.balance.text, known.balance.currency.isoCode()});
  }
  return lines + closed;
}

QString Book::statement(QStringList const& words)
{
  Book next(*this); // which takes all that there is to take, or is dropped
  auto const isOfAll = words.size() == 2;
  auto const file = readStatements(folder_.filePath(words[isOfAll ? 1 : 2]));
  auto const text =
      isOfAll ? next.takeBound(file) : next.take(toAccountNumber(words[1]), file, words.value(3));
  *this = next;
  return text;
}

BankAccount Book::accountOf(AccountNumber const& number) const
{
  for (auto const& [name, bank] : banks_) {
    if (auto const found = bank.accounts().find(number); found != bank.accounts().end()) {
      return {name, {number, found->second}};
    }
  }
  throw BookError(BookError::tr("No bank holds the account number %1; list shows all.")
                      .arg(presentationText(number)));
}

Book::Accounts Book::accountsOf(BankName const& name) const
{
  return banks_.hasBank(name) ? banks_.bank(name).accounts() : Accounts();
}

void Book::bind(AccountNumber const& ours, QString const& identifier)
{
  auto const bank = accountOf(ours).bankName;
  auto const bound = identifiers_.value(ours, identifier);
  if (bound != identifier) {
    throw BookError(
        BookError::tr("The account number %1 is bound to '%2', not to '%3'; remove it and "
                      "add it again to bind it anew.")
            .arg(presentationText(ours), bound, identifier));
  }
  for (auto const& number : identifiers_.keys(identifier)) {
    if (!(number == ours) && accountOf(number).bankName == bank) {
      throw BookError(BookError::tr("'%1' is bound to another account of the bank, %2.")
                          .arg(identifier, presentationText(number)));
    }
  }
  identifiers_.insert(ours, identifier);
}

void Book::drop(Accounts const& before, Accounts const& now)
{
  for (auto const& [number, kind] : before) {
    auto const found = now.find(number);
    if (found == now.end()) {
      balances_.remove(number);
    }
    if (found == now.end() || found->second != kind) {
      identifiers_.remove(number);
    }
  }
}

void Book::record(AccountNumber const& number, Statement const& statement)
{
  auto const account = accountOf(number);
  auto const& [accountId, balance, date] = statement;
  auto const last = balances_.value(number, {{}, balance, {}}); // any date is later than none
  if (!(last.balance.currency == balance.currency)) {
    throw BookError(BookError::tr("The balance of the account number %1 is kept in %2, not in %3.")
                        .arg(presentationText(number), last.balance.currency.isoCode(),
                             balance.currency.isoCode()));
  }
  ReconciledBankAccount(account, last.balance.money(), last.date).reconcile(date, balance.money());
  balances_.insert(number, statement);
  if (date > QDate::currentDate()) {
    auto const warning =
        tr("The date %1 of the account number %2 lies in the future: no earlier one "
           "will be taken, unless you remove the number and add it again.");
    qWarning().noquote() << warning.arg(presentationText(date), presentationText(number));
  }
}

QString Book::take(AccountNumber const& number, Statements const& file, QString const& identifier)
{
  auto const account = accountOf(number).accountNumberBankType;
  auto const chosen = identifier.isEmpty() ? identifiers_.value(number) : identifier.simplified();
  auto const statement = statementFor(account, file, chosen);
  bind(number, statement.accountId);
  record(number, statement);
  return tr("%1: took the statement of %2, dated %3, with a balance of %4.")
             .arg(presentationText(account, Yes), statement.accountId,
                  presentationText(statement.date), written(statement.balance)) +
         u'\n';
}

QString Book::takeBound(Statements const& file)
{
  QString text;
  QStringList unbound;
  for (auto const& identifier : file.keys()) {
    auto const numbers = identifiers_.keys(identifier);
    if (numbers.size() > 1) {
      throw BookError(BookError::tr("Accounts of several banks are bound to '%1'. Take their "
                                    "statements one by one: statement NUMBER FILE")
                          .arg(identifier));
    }
    if (numbers.isEmpty()) {
      unbound += identifier;
    } else {
      text += take(numbers[0], file, identifier);
    }
  }
  auto const others = tr("No account is bound to %1. Bind one: statement NUMBER FILE IDENTIFIER")
                          .arg(firstTen(unbound));
  if (text.isEmpty()) {
    throw BookError(others);
  }
  return unbound.isEmpty() ? text : text + others + u'\n';
}
