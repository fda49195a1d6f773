#include "Book.hpp"

#include "BookReader.hpp"
#include "Terminal.hpp"

#include <banking/ReconciledBankAccount.hpp>
#include <foundation/Date.hpp>

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

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

QString noHolderText(orv::accounting::AccountNumber const& number)
{
  return BookError::tr("No bank holds the account number %1; list shows all.")
      .arg(presentationText(number));
}

// What there is to say of each command, which begins with a line on how it is written, and of the words
// of commands at the end.
QStringList helpTexts()
{
  QFile file(Book::tr(":/help.txt")); // a translation names the file in its language
  file.open(QIODevice::ReadOnly);
  return QString::fromUtf8(file.readAll()).split(QStringLiteral("\n\n"));
}

StatementFile readStatements(QString const& fileName)
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
  return StatementFile(content);
}

} // namespace

struct Book::Command
{
  qsizetype fewest; // words after its name
  qsizetype most;   // -1 for any number
  void (Book::*change)(QStringList const& words);
  QString (Book::*show)(QStringList const& words) = nullptr;
};

std::map<QString, Book::Command> const Book::commands_{
    {"add", {3, 3, &Book::add}},
    {"bank", {1, -1, &Book::bank}},
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
    {"update", {1, -1, &Book::update}},
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

Book::Command const& Book::commandNamed(QString const& name)
{
  if (auto const found = commands_.find(name); found != commands_.end()) {
    return found->second;
  }
  throw BookError(BookError::tr("There is no command '%1'; help shows the commands.").arg(name));
}

QString Book::helpOn(QString const& command)
{
  commandNamed(command);
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
  auto const& command = commandNamed(words[0]);
  if (words.size() <= command.fewest || (command.most >= 0 && words.size() > command.most + 1)) {
    throw writtenOtherwise(words[0]);
  }
  if (command.show != nullptr) {
    return (this->*command.show)(words);
  }
  (this->*command.change)(words);
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
  auto const kind = toKind(words[3]);
  auto const before = accountOf(number);
  banks_.add(BankName(words[1]), number, kind);
  if (before) {
    drop({{number, before->accountNumberBankType.bankAccountType}}, {{number, kind}});
  }
}

void Book::bank(QStringList const& words)
{
  banks_.add(toBank(words));
}

void Book::identify(QStringList const& words)
{
  auto const identifier = words[2].simplified(); // as statements have it
  if (identifier.isEmpty()) {
    throw writtenOtherwise(words[0]);
  }
  bind(accountOnRecord(words[1]), identifier);
}

void Book::reconcile(QStringList const& words)
{
  auto const account = accountOnRecord(words[1]);
  auto const date = toDate(words[2]);
  record(account, {{}, toAmount(words[3], words[4]), date});
}

void Book::remove(QStringList const& words)
{
  BankName const name(words[1]);
  if (words.size() == 2) {
    auto const before = accountsOf(name);
    banks_.remove(name);
    drop(before, {});
  } else {
    auto const number = toAccountNumber(words[2]);
    banks_.remove(name, number);
    drop({{number, {}}}, {});
  }
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
  auto const number = toAccountNumber(words[1]);
  auto const account = accountOf(number);
  return printable(account ? presentationText(*account, Yes) : noHolderText(number)) + u'\n';
}

QString Book::help(QStringList const& words)
{
  return words.size() == 1 ? usage() : helpOn(words[1]) + u'\n';
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
  QString text;
  QString closed;
  for (auto const& [name, bank] : banks_) {
    auto const writtenName = writtenWord(name.institution());
    text += QStringLiteral("bank ") + writtenName;
    for (auto const& [number, kind] : bank.accounts()) {
      text += u' ' + writtenWord(presentationText(number) + u'=' + toNonLocalisedText(kind));
    }
    text += u'\n';
    if (bank.isClosed()) {
      closed += QStringLiteral("close ") + writtenName + u'\n';
    }
  }
  for (auto const& [number, identifier] : identifiers_.asKeyValueRange()) {
    text += QStringLiteral("identifier ") + presentationText(number) + u' ' +
            writtenWord(identifier) + u'\n';
  }
  for (auto const& [number, known] : balances_.asKeyValueRange()) {
    text += QStringLiteral("reconcile ") + presentationText(number) +
            known.date.toString(QStringLiteral(" yyyy-MM-dd ")) + writtenAmount(known.balance) +
            u'\n';
  }
  return text + closed;
}

QString Book::statement(QStringList const& words)
{
  Book next(*this); // which takes all that there is to take, or is dropped
  QString text;
  if (words.size() == 2) {
    text = next.takeBound(readStatements(folder_.filePath(words[1])));
  } else {
    auto const account = accountOnRecord(words[1]);
    auto const bound = identifiers_.value(account.accountNumberBankType.accountNumber);
    auto const file = readStatements(folder_.filePath(words[2]));
    text = next.take(account, file, words.value(3, bound).simplified());
  }
  *this = next;
  return text;
}

std::optional<BankAccount> Book::accountOf(AccountNumber const& number) const
{
  for (auto const& [name, bank] : banks_) {
    if (auto const found = bank.accounts().find(number); found != bank.accounts().end()) {
      return BankAccount{name, {number, found->second}};
    }
  }
  return std::nullopt;
}

BankAccount Book::accountOnRecord(QString const& word) const
{
  auto const number = toAccountNumber(word);
  if (auto const account = accountOf(number)) {
    return *account;
  }
  throw BookError(noHolderText(number));
}

Book::Accounts Book::accountsOf(BankName const& name) const
{
  return banks_.hasBank(name) ? banks_.bank(name).accounts() : Accounts();
}

void Book::bind(BankAccount const& account, QString const& identifier)
{
  auto const& ours = account.accountNumberBankType.accountNumber;
  auto const bound = identifiers_.value(ours, identifier);
  if (bound != identifier) {
    throw BookError(
        BookError::tr("The account number %1 is bound to '%2', not to '%3'; remove it and "
                      "add it again to bind it anew.")
            .arg(presentationText(ours), bound, identifier));
  }
  for (auto const& number : identifiers_.keys(identifier)) {
    if (!(number == ours) && accountOf(number)->bankName == account.bankName) {
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

void Book::record(BankAccount const& account, Statement const& statement)
{
  auto const& [accountId, balance, date] = statement;
  auto const& number = account.accountNumberBankType.accountNumber;
  auto const last = balances_.value(number, {{}, balance, {}}); // any date is later than none
  if (!(last.balance.currency == balance.currency)) {
    throw BookError(BookError::tr("The balance of the account number %1 is kept in %2, not in %3.")
                        .arg(presentationText(number), last.balance.currency.isoCode(),
                             balance.currency.isoCode()));
  }
  ReconciledBankAccount(account, last.balance.money(), last.date).reconcile(date, balance.money());
  balances_.insert(number, statement);
  if (date > today_) {
    auto const warning =
        tr("The date %1 of the account number %2 lies in the future: no earlier one "
           "will be taken, unless you remove the number and add it again.");
    qWarning().noquote() << warning.arg(presentationText(date), presentationText(number));
  }
}

QString Book::take(BankAccount const& account, StatementFile const& file, QString const& identifier)
{
  auto const statement = file.statementFor(account.accountNumberBankType, identifier);
  bind(account, statement.accountId);
  record(account, statement);
  auto const took = tr("%1: took the statement of %2, dated %3, with a balance of %4.");
  return printable(took.arg(presentationText(account.accountNumberBankType, Yes),
                            statement.accountId, presentationText(statement.date),
                            written(statement.balance))) +
         u'\n';
}

QString Book::takeBound(StatementFile const& file)
{
  QString text;
  QStringList unbound;
  for (auto const& identifier : file.accountIds()) {
    auto const numbers = identifiers_.keys(identifier);
    if (numbers.size() > 1) {
      throw BookError(BookError::tr("Accounts of several banks are bound to '%1'. Take their "
                                    "statements one by one: statement NUMBER FILE")
                          .arg(identifier));
    }
    if (numbers.isEmpty()) {
      unbound += identifier;
    } else {
      text += take(*accountOf(numbers[0]), file, identifier);
    }
  }
  auto const others = firstTen(unbound);
  if (text.isEmpty()) {
    throw BookError(BookError::tr("No account is bound to an identifier in the file. Bind one: "
                                  "statement NUMBER FILE IDENTIFIER, with one of %1.")
                        .arg(others));
  }
  if (!unbound.isEmpty()) {
    text += printable(tr("No account is bound to %1.").arg(others)) + u'\n';
  }
  return text;
}
