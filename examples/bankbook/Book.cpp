#include "Book.hpp"

#include "BookError.hpp"
#include "BookReader.hpp"
#include "Statement.hpp"
#include "Table.hpp"

#include <accounting/AccountNumber.hpp>
#include <banking/Bank.hpp>
#include <banking/BankAccount.hpp>
#include <banking/BankAccountTypes.hpp>
#include <foundation/Date.hpp>
#include <foundation/LocaleAware.hpp>

#include <limits>
#include <sstream>
#include <stdexcept>
#include <utility>

using orv::accounting::AccountNumber;
using orv::banking::Bank;
using orv::banking::BankAccount;
using orv::banking::BankAccountTypes;
using orv::banking::BankName;
using orv::banking::ReconciledBankAccount;
using orv::foundation::presentationText; // of a date, whose own namespace has none

namespace {

using Accounts = std::map<AccountNumber, BankAccountTypes>;

// What the type writes to a standard stream.
template <typename T>
QString streamForm(T const& value)
{
  std::ostringstream text;
  text << value;
  return QString::fromStdString(text.str());
}

// The bank that NAME [NUMBER=KIND ...] describes.
Bank toBank(QStringList const& words)
{
  Accounts accounts;
  for (auto const& word : words.mid(1)) {
    auto const number = toAccountNumber(word.section(u'=', 0, 0));
    auto const kind = orv::banking::toBankAccountTypes(word.section(u'=', 1));
    if (!accounts.emplace(number, kind).second) {
      throw BookError(
          Book::tr("The account number %1 is given twice.").arg(presentationText(number)));
    }
  }
  return Bank(BankName(words[0]), std::move(accounts), false);
}

QString noHolderText(AccountNumber const& number)
{
  return Book::tr("No bank holds the account number %1.").arg(presentationText(number));
}

BankAccount accountAt(Bank const& bank, AccountNumber const& number)
{
  return {bank.name(), {number, bank.accounts().at(number)}};
}

// The one statement in the file, or the one of the account where its identifier is not empty.
Statement statementOf(QString const& path, QString const& accountId)
{
  auto statements = readStatements(path);
  QStringList accountIds;
  for (auto const& statement : statements) {
    accountIds += statement.accountId;
  }
  if (!accountId.isEmpty()) {
    statements.removeIf([&](auto const& statement) { return statement.accountId != accountId; });
  }
  if (statements.size() != 1) {
    throw BookError(Book::tr("Name one account; '%1' has statements of: %2.")
                        .arg(path, accountIds.join(QStringLiteral(", "))));
  }
  return statements.first();
}

} // namespace

struct Book::Command
{
  char const* arguments; // the source text, for the translator
  qsizetype fewestWords;
  qsizetype mostWords;
  QString (Book::*run)(QStringList const& words);

  QString written(QString const& name) const
  {
    return mostWords == 0 ? name : name + u' ' + tr(arguments);
  }
};

std::map<QString, Book::Command> const& Book::commands()
{
  constexpr auto any = std::numeric_limits<qsizetype>::max();
  static std::map<QString, Command> const commands{
      {"add", {QT_TR_NOOP("NAME NUMBER KIND"), 3, 3, &Book::add}},
      {"bank", {QT_TR_NOOP("NAME [NUMBER=KIND ...]"), 1, any, &Book::bank}},
      {"close", {QT_TR_NOOP("NAME"), 1, 1, &Book::close}},
      {"find", {QT_TR_NOOP("NUMBER"), 1, 1, &Book::find}},
      {"list", {"", 0, 0, &Book::list}},
      {"open", {QT_TR_NOOP("NAME"), 1, 1, &Book::open}},
      {"print", {"", 0, 0, &Book::print}},
      {"reconcile", {QT_TR_NOOP("NUMBER DATE AMOUNT CURRENCY"), 4, 4, &Book::reconcile}},
      {"remove", {QT_TR_NOOP("NAME [NUMBER]"), 1, 2, &Book::remove}},
      {"rename", {QT_TR_NOOP("FROM TO"), 2, 2, &Book::rename}},
      {"statement", {QT_TR_NOOP("NUMBER FILE [ACCOUNTID]"), 2, 3, &Book::statement}},
      {"update", {QT_TR_NOOP("NAME [NUMBER=KIND ...]"), 1, any, &Book::update}},
  };
  return commands;
}

QString Book::usage()
{
  QString text;
  for (auto const& [name, command] : commands()) {
    text += QStringLiteral("  ") + command.written(name) + u'\n';
  }
  QStringList kinds;
  for (auto const kind :
       {BankAccountTypes::Chequeing, BankAccountTypes::CreditCard, BankAccountTypes::Loan,
        BankAccountTypes::Savings, BankAccountTypes::Goal}) {
    kinds += presentationText(kind);
  }
  return text + u'\n' + tr("KIND is one of: %1.").arg(kinds.join(QStringLiteral(", ")));
}

QString Book::execute(QByteArrayView line)
{
  auto words = toWords(toText(line));
  if (words.isEmpty()) {
    return {};
  }
  auto const name = words.takeFirst();
  auto const found = commands().find(name);
  if (found == commands().end()) {
    throw BookError(tr("There is no command '%1'.").arg(name));
  }
  auto const& command = found->second;
  if (words.size() < command.fewestWords || words.size() > command.mostWords) {
    throw BookError(tr("The command is written: %1").arg(command.written(name)));
  }
  return (this->*command.run)(words);
}

QString Book::add(QStringList const& words)
{
  BankName const name(words[0]);
  banks_.add(name, toAccountNumber(words[1]), orv::banking::toBankAccountTypes(words[2]));
  follow(name, name);
  return {};
}

QString Book::bank(QStringList const& words)
{
  banks_.add(toBank(words));
  return {};
}

QString Book::close(QStringList const& words)
{
  banks_.close(BankName(words[0]));
  return {};
}

QString Book::find(QStringList const& words)
{
  auto const number = toAccountNumber(words[0]);
  auto const bank = banks_.find(number);
  return (bank ? presentationText(accountAt(*bank, number), orv::foundation::LocaleAware::Yes)
               : noHolderText(number)) +
         u'\n';
}

QString Book::list(QStringList const& /*words*/)
{
  QList<QStringList> rows{{tr("Bank"), tr("State"), tr("Account"), tr("Kind"), tr("Class"),
                           tr("Balance"), tr("Reconciled")}};
  for (auto const& name : banks_.names()) {
    auto const& bank = banks_.bank(name);
    QStringList const start{presentationText(name), bank.isClosed() ? tr("closed") : tr("open")};
    if (bank.accounts().empty()) {
      rows += start;
    }
    for (auto const& [number, kind] : bank.accounts()) {
      auto row = start + QStringList{presentationText(number), presentationText(kind),
                                     isAssetAccount(kind) ? tr("asset") : tr("liability")};
      if (auto const known = balances_.find(number); known != balances_.end()) {
        row +=
            {streamForm(known->second.balance()), presentationText(*known->second.reconciledOn())};
      }
      rows += row;
    }
  }
  return toTable(rows, "llrllrl");
}

QString Book::open(QStringList const& words)
{
  banks_.open(BankName(words[0]));
  return {};
}

QString Book::print(QStringList const& /*words*/)
{
  return streamForm(banks_) + u'\n';
}

QString Book::reconcile(QStringList const& words)
{
  auto const number = toAccountNumber(words[0]);
  auto const onRecord = accountOnRecord(number);
  auto const date = toDate(words[1]);
  auto const balance = toMoney(words[2], words[3]);

  auto const known = balances_.find(number);
  auto account =
      known == balances_.end() ? ReconciledBankAccount(onRecord, {}, std::nullopt) : known->second;
  try {
    account.reconcile(date, balance);
  } catch (std::invalid_argument const&) { // from the money library, whose texts are not for users
    throw BookError(tr("The balance of the account number %1 is not kept in %2.")
                        .arg(presentationText(number), words[3]));
  }
  balances_.insert_or_assign(number, std::move(account));
  return {};
}

QString Book::remove(QStringList const& words)
{
  BankName const name(words[0]);
  if (words.size() == 1) {
    banks_.remove(name);
  } else {
    banks_.remove(name, toAccountNumber(words[1]));
  }
  follow(name, name);
  return {};
}

QString Book::rename(QStringList const& words)
{
  BankName const from(words[0]);
  BankName const to(words[1]);
  banks_.rename(from, to);
  follow(from, to);
  return {};
}

QString Book::statement(QStringList const& words)
{
  auto const onRecord = accountOnRecord(toAccountNumber(words[0])).accountNumberBankType;
  auto const statement = statementOf(folder_.filePath(words[1]), words.value(2));
  if (!statement.kinds.contains(onRecord.bankAccountType)) {
    throw BookError(
        tr("The account %1 is not of the kind that the statement is for, '%2'.")
            .arg(presentationText(onRecord, orv::foundation::LocaleAware::Yes), statement.type));
  }
  return reconcile({words[0], statement.date, statement.balance, statement.currency});
}

QString Book::update(QStringList const& words)
{
  auto bank = toBank(words);
  auto const name = bank.name();
  banks_.update(std::move(bank));
  follow(name, name);
  return {};
}

BankAccount Book::accountOnRecord(AccountNumber const& number) const
{
  auto const bank = banks_.find(number);
  if (!bank) {
    throw BookError(noHolderText(number));
  }
  return accountAt(*bank, number);
}

void Book::follow(BankName const& before, BankName const& after)
{
  auto const accounts = banks_.hasBank(after) ? banks_.bank(after).accounts() : Accounts();
  for (auto entry = balances_.begin(); entry != balances_.end();) {
    auto& [number, account] = *entry;
    if (account.bankAccount().bankName != before) {
      ++entry;
    } else if (auto const found = accounts.find(number); found == accounts.end()) {
      entry = balances_.erase(entry);
    } else {
      account = ReconciledBankAccount({after, {number, found->second}}, account.balance(),
                                      account.reconciledOn());
      ++entry;
    }
  }
}
