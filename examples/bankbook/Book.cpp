#include "Book.hpp"

#include "BookReader.hpp"
#include "Terminal.hpp"

#include <banking/ReconciledBankAccount.hpp>
#include <foundation/Date.hpp>

#include <QFile>
#include <QFileInfo>

#include <sstream>

using namespace orv::banking;
using orv::accounting::AccountNumber;
using orv::foundation::presentationText; // of a date, whose own namespace has none

namespace {

// What the type writes to a standard stream.
template <typename T>
QString streamForm(T const& value)
{
  std::ostringstream text;
  text << value;
  return QString::fromStdString(text.str());
}

QString noHolderText(AccountNumber const& number)
{
  return BookError::tr("No bank holds the account number %1.").arg(presentationText(number));
}

} // namespace

struct Book::Command
{
  char const* arguments; // the source text, for the translator
  qsizetype fewest;      // words
  qsizetype most;        // -1 for any number
  void (Book::*run)(QStringList const& words);

  QString written(QString const& name) const
  {
    return most == 0 ? name : name + u' ' + tr(arguments);
  }
};

std::map<QString, Book::Command> const Book::commands_{
    {"add", {QT_TR_NOOP("NAME NUMBER KIND"), 3, 3, &Book::add}},
    {"bank", {QT_TR_NOOP("NAME [NUMBER=KIND ...]"), 1, -1, &Book::bank}},
    {"close", {QT_TR_NOOP("NAME"), 1, 1, &Book::close}},
    {"find", {QT_TR_NOOP("NUMBER"), 1, 1, &Book::find}},
    {"list", {"", 0, 0, &Book::list}},
    {"open", {QT_TR_NOOP("NAME"), 1, 1, &Book::open}},
    {"print", {"", 0, 0, &Book::print}},
    {"reconcile", {QT_TR_NOOP("NUMBER DATE AMOUNT CURRENCY"), 4, 4, &Book::reconcile}},
    {"remove", {QT_TR_NOOP("NAME [NUMBER]"), 1, 2, &Book::remove}},
    {"rename", {QT_TR_NOOP("FROM TO"), 2, 2, &Book::rename}},
    {"statement", {QT_TR_NOOP("NUMBER FILE [ACCOUNTID]"), 2, 3, &Book::statement}},
    {"update", {QT_TR_NOOP("NAME [NUMBER=KIND ...]"), 1, -1, &Book::update}},
};

QString Book::usage()
{
  QString text;
  for (auto const& [name, command] : commands_) {
    text += QStringLiteral("  ") + command.written(name) + u'\n';
  }
  return text + u'\n' + tr("KIND is one of: %1.").arg(kindsOfAccount());
}

QString Book::execute(QByteArrayView line)
{
  auto words = toWords(toText(line));
  if (words.isEmpty()) {
    return {};
  }
  auto const name = words.takeFirst();
  auto const found = commands_.find(name);
  if (found == commands_.end()) {
    throw BookError(BookError::tr("There is no command '%1'.").arg(name));
  }
  auto const& command = found->second;
  if (words.size() < command.fewest || (command.most >= 0 && words.size() > command.most)) {
    throw BookError(BookError::tr("The command is written: %1").arg(command.written(name)));
  }
  shown_.clear();
  (this->*command.run)(words);
  return shown_;
}

void Book::add(QStringList const& words)
{
  banks_.add(BankName(words[0]), toAccountNumber(words[1]), toKind(words[2]));
}

void Book::find(QStringList const& words)
{
  auto const number = toAccountNumber(words[0]);
  auto const account = accountOf(number);
  auto const text = account ? presentationText(*account, orv::foundation::LocaleAware::Yes)
                            : noHolderText(number);
  shown_ = printable(text) + u'\n';
}

void Book::list(QStringList const& /*words*/)
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
        row += {streamForm(known->second.balance), presentationText(known->second.occurredOn)};
      }
      rows += row;
    }
  }
  shown_ = toTable(rows, "llrllrl");
}

void Book::print(QStringList const& /*words*/)
{
  shown_ = printable(streamForm(banks_)) + u'\n';
}

void Book::reconcile(QStringList const& words)
{
  auto const account = accountOnRecord(words[0]);
  auto const date = toDate(words[1]);
  record(account, {{}, toAmount(words[2], words[3]), date});
}

void Book::remove(QStringList const& words)
{
  BankName const name(words[0]);
  if (words.size() == 1) {
    banks_.remove(name);
    dropBalances();
  } else {
    banks_.remove(name, toAccountNumber(words[1]));
    balances_.erase(toAccountNumber(words[1]));
  }
}

void Book::statement(QStringList const& words)
{
  auto const account = accountOnRecord(words[0]);
  QFile file(folder_.filePath(words[1]));
  if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly)) {
    throw BookError(BookError::tr("There is no file '%1' that can be read.").arg(file.fileName()));
  }
  record(account, readStatement(file.readAll(), words.value(2), account.accountNumberBankType));
}

void Book::update(QStringList const& words)
{
  banks_.update(toBank(words));
  dropBalances();
}

Bank Book::toBank(QStringList const& words)
{
  std::map<AccountNumber, BankAccountTypes> accounts;
  for (auto const& word : words.mid(1)) {
    auto const number = toAccountNumber(word.section(u'=', 0, 0));
    if (!accounts.emplace(number, toKind(word.section(u'=', 1))).second) {
      throw BookError(
          BookError::tr("The account number %1 is given twice.").arg(presentationText(number)));
    }
  }
  return Bank(BankName(words[0]), std::move(accounts), false);
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

void Book::record(BankAccount const& account, Statement const& statement)
{
  auto const& number = account.accountNumberBankType.accountNumber;
  auto const found = balances_.find(number);
  auto const known = found != balances_.end() ? found->second : ReconciledBalance();
  // Any date is later than none.
  ReconciledBankAccount reconciled(account, known.balance, known.occurredOn);
  try {
    reconciled.reconcile(statement.date, statement.balance.money());
  } catch (std::invalid_argument const&) { // from the money library, whose texts are not for users
    throw BookError(BookError::tr("The balance of the account number %1 is not kept in %2.")
                        .arg(presentationText(number), statement.balance.currency.isoCode()));
  }
  balances_.insert_or_assign(number, ReconciledBalance{statement.balance.money(), statement.date});
}

void Book::dropBalances()
{
  std::erase_if(balances_, [this](auto const& balance) { return !accountOf(balance.first); });
}
