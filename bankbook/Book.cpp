#include "Book.hpp"

#include "BookReader.hpp"
#include "Terminal.hpp"

#include <banking/ReconciledBankAccount.hpp>
#include <foundation/Date.hpp>

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <climits>

using namespace orv::banking;
using orv::accounting::AccountNumber;
using enum orv::foundation::LocaleAware;
using orv::foundation::presentationText; // of a date, whose own namespace has none

namespace {

using Words = QStringList;
using Accounts = std::map<AccountNumber, BankAccountTypes>;

QString written(Amount const& amount)
{
  return presentationText(amount.money());
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
    throw BookError(Book::tr("%1 is not a file.").arg(fileName));
  }
  auto const content = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  if (file.error() != QFile::NoError) {
    throw unreadable(file, fileName);
  }
  return toStatements(content);
}

QString helpOn(QString const& command);

BookError writtenOtherwise(QString const& command)
{
  return BookError(Book::tr("The command is written: %1. Double quotes hold words with blanks.")
                       .arg(helpOn(command).section(u'\n', 0, 0)));
}

// The bank that NAME [NUMBER=KIND ...] describes, in the words of a command.
Bank toBank(Words const& words)
{
  Accounts accounts;
  for (auto const& word : words.mid(2)) {
    auto const kind = word.section(u'=', 1);
    if (kind.isEmpty()) {
      throw writtenOtherwise(words[0]);
    }
    auto const number = word.section(u'=', 0, 0);
    if (!accounts.emplace(toAccountNumber(number), toKind(kind)).second) {
      throw BookError(Book::tr("The account number %1 is given twice.").arg(number));
    }
  }
  return Bank(BankName(words[1]), std::move(accounts), false);
}

// The account with the number. Throws where no bank holds it.
BankAccount accountOf(Book const& book, AccountNumber const& number)
{
  for (auto const& [name, bank] : book.banks) {
    if (auto const found = bank.accounts().find(number); found != bank.accounts().end()) {
      return {name, {number, found->second}};
    }
  }
  throw BookError(Book::tr("No bank holds the account number %1; list shows all.")
                      .arg(presentationText(number)));
}

// The accounts of a bank; none where there is no such bank.
Accounts accountsOf(Book const& book, BankName const& name)
{
  return book.banks.hasBank(name) ? book.banks.bank(name).accounts() : Accounts();
}

// Binds the account to the identifier. Throws where it is bound to another one, or another account of
// its bank to this one.
void bind(Book& book, AccountNumber const& ours, QString const& identifier)
{
  auto const bank = accountOf(book, ours).bankName;
  auto const bound = book.identifiers.value(ours, identifier);
  if (bound != identifier) {
    throw BookError(Book::tr("The account number %1 is bound to '%2', not to '%3'; remove it and "
                             "add it again to bind it anew.")
                        .arg(presentationText(ours), bound, identifier));
  }
  for (auto const& number : book.identifiers.keys(identifier)) {
    if (!(number == ours) && accountOf(book, number).bankName == bank) {
      throw BookError(Book::tr("'%1' is bound to another account of the bank, %2.")
                          .arg(identifier, presentationText(number)));
    }
  }
  book.identifiers.insert(ours, identifier);
}

// Drops what is known of accounts that are no longer there, and the identifiers of those that have
// changed their kind.
void drop(Book& book, Accounts const& before, Accounts const& now)
{
  for (auto const& [number, kind] : before) {
    auto const found = now.find(number);
    if (found == now.end()) {
      book.balances.remove(number);
    }
    if (found == now.end() || found->second != kind) {
      book.identifiers.remove(number);
    }
  }
}

// Reconciles the account with what its bank says of it.
void record(Book& book, AccountNumber const& number, Statement const& statement)
{
  auto const account = accountOf(book, number);
  auto const& [accountId, balance, date] = statement;
  auto const last = book.balances.value(number, {{}, balance, {}}); // any date is later than none
  if (!(last.balance.currency == balance.currency)) {
    throw BookError(Book::tr("The balance of the account number %1 is kept in %2, not in %3.")
                        .arg(presentationText(number), last.balance.currency.isoCode(),
                             balance.currency.isoCode()));
  }
  ReconciledBankAccount(account, last.balance.money(), last.date).reconcile(date, balance.money());
  book.balances.insert(number, statement);
  static auto const today = QDate::currentDate();
  if (date > today) {
    auto const warning =
        Book::tr("The date %1 of the account number %2 lies in the future: no earlier one "
                 "will be taken, unless you remove the number and add it again.");
    qWarning().noquote() << warning.arg(presentationText(date), presentationText(number));
  }
}

// Does so with the statement of the identifier, or else of the one that the account is bound to. Binds
// the account to it, and returns what it says.
QString take(Book& book, AccountNumber const& number, Statements const& file, QString const& id)
{
  auto const account = accountOf(book, number).accountNumberBankType;
  auto const chosen = id.isEmpty() ? book.identifiers.value(number) : id.simplified();
  auto const statement = statementFor(account, file, chosen);
  bind(book, number, statement.accountId);
  record(book, number, statement);
  return Book::tr("%1: took the statement of %2, dated %3, with a balance of %4.")
             .arg(presentationText(account, Yes), statement.accountId,
                  presentationText(statement.date), written(statement.balance)) +
         u'\n';
}

// Does so with the statements of all identifiers that an account is bound to.
QString takeBound(Book& book, Statements const& file)
{
  QString text;
  QStringList unbound;
  for (auto const& identifier : file.keys()) {
    auto const numbers = book.identifiers.keys(identifier);
    if (numbers.size() > 1) {
      throw BookError(Book::tr("Accounts of several banks are bound to '%1'. Take their "
                               "statements one by one: statement NUMBER FILE")
                          .arg(identifier));
    }
    if (numbers.isEmpty()) {
      unbound += identifier;
    } else {
      text += take(book, numbers[0], file, identifier);
    }
  }
  auto const others =
      Book::tr("No account is bound to %1. Bind one: statement NUMBER FILE IDENTIFIER")
          .arg(firstTen(unbound));
  if (text.isEmpty()) {
    throw BookError(others);
  }
  return unbound.isEmpty() ? text : text + others + u'\n';
}

// The commands. Each takes its words, of which the first is its own name.

void add(Book& book, Words const& words)
{
  auto const number = toAccountNumber(words[2]);
  auto const kind = toKind(words[3]);
  auto const holder = book.banks.find(number);
  auto const before = holder ? holder->accounts().at(number) : kind;
  book.banks.add(BankName(words[1]), number, kind);
  drop(book, {{number, before}}, {{number, kind}});
}

void identify(Book& book, Words const& words)
{
  auto const identifier = words[2].simplified(); // as statements have it
  if (identifier.isEmpty()) {
    throw writtenOtherwise(words[0]);
  }
  bind(book, toAccountNumber(words[1]), identifier);
}

void reconcile(Book& book, Words const& words)
{
  record(book, toAccountNumber(words[1]), {{}, toAmount(words[3], words[4]), toDate(words[2])});
}

void remove(Book& book, Words const& words)
{
  BankName const name(words[1]);
  auto const before = accountsOf(book, name);
  if (words.size() == 2) {
    book.banks.remove(name);
  } else {
    book.banks.remove(name, toAccountNumber(words[2]));
  }
  drop(book, before, accountsOf(book, name));
}

void update(Book& book, Words const& words)
{
  auto const bank = toBank(words);
  auto const before = accountsOf(book, bank.name());
  book.banks.update(bank);
  drop(book, before, bank.accounts());
}

QString find(Book& book, Words const& words)
{
  return presentationText(accountOf(book, toAccountNumber(words[1])), Yes) + u'\n';
}

QString help(Book& /*book*/, Words const& words)
{
  return words.size() == 1 ? usage() : helpOn(words[1]) + u'\n';
}

QString list(Book& book, Words const& /*words*/)
{
  QList<QStringList> rows{{Book::tr("Bank"), Book::tr("State"), Book::tr("Account"),
                           Book::tr("Kind"), Book::tr("Class"), Book::tr("Balance"),
                           Book::tr("Reconciled")}};
  for (auto const& [name, bank] : book.banks) {
    QStringList const start{presentationText(name),
                            bank.isClosed() ? Book::tr("closed") : Book::tr("open")};
    if (bank.accounts().empty()) {
      rows += start;
    }
    for (auto const& [number, kind] : bank.accounts()) {
      auto row =
          start + QStringList{presentationText(number), presentationText(kind),
                              isAssetAccount(kind) ? Book::tr("asset") : Book::tr("liability")};
      if (auto const known = book.balances.find(number); known != book.balances.end()) {
        row += {written(known->balance), presentationText(known->date)};
      }
      rows += row;
    }
  }
  return toTable(rows, "llrllrl");
}

// Banks are closed after all else, so that the book takes every line.
QString print(Book& book, Words const& /*words*/)
{
  QString lines;
  QString closed;
  for (auto const& [name, bank] : book.banks) {
    QStringList words{"bank", name.institution()};
    for (auto const& [number, kind] : bank.accounts()) {
      words += presentationText(number) + u'=' + toNonLocalisedText(kind);
    }
    lines += toLine(words);
    closed += bank.isClosed() ? toLine({"close", name.institution()}) : QString();
  }
  for (auto const& [number, identifier] : book.identifiers.asKeyValueRange()) {
    lines += toLine({"identifier", presentationText(number), identifier});
  }
  for (auto const& [number, known] : book.balances.asKeyValueRange()) {
    lines += toLine({"reconcile", presentationText(number), known.date.toString(Qt::ISODate),
                     known.balance.text, known.balance.currency.isoCode()});
  }
  return lines + closed;
}

QString statement(Book& book, Words const& words)
{
  Book next = book; // which takes all that there is to take, or is dropped
  auto const isOfAll = words.size() == 2;
  auto const file = readStatements(book.folder.filePath(words[isOfAll ? 1 : 2]));
  auto const text =
      isOfAll ? takeBound(next, file) : take(next, toAccountNumber(words[1]), file, words.value(3));
  book = next;
  return text;
}

struct Command
{
  qsizetype fewest; // words after its name
  qsizetype most;
  void (*change)(Book& book, Words const& words);
  QString (*show)(Book& book, Words const& words) = nullptr;
};

std::map<QString, Command> const commands{
    {"add", {3, 3, &add}},
    {"bank", {1, INT_MAX, [](Book& book, Words const& words) { book.banks.add(toBank(words)); }}},
    {"close", {1, 1, [](Book& book, Words const& words) { book.banks.close(BankName(words[1])); }}},
    {"find", {1, 1, nullptr, &find}},
    {"help", {0, 1, nullptr, &help}},
    {"identifier", {2, 2, &identify}},
    {"list", {0, 0, nullptr, &list}},
    {"open", {1, 1, [](Book& book, Words const& words) { book.banks.open(BankName(words[1])); }}},
    {"print", {0, 0, nullptr, &print}},
    {"reconcile", {4, 4, &reconcile}},
    {"remove", {1, 2, &remove}},
    {"rename",
     {2, 2,
      [](Book& book, Words const& words) {
        book.banks.rename(BankName(words[1]), BankName(words[2]));
      }}},
    {"statement", {1, 3, nullptr, &statement}},
    {"update", {1, INT_MAX, &update}},
};

QString helpOn(QString const& command)
{
  if (!commands.contains(command)) {
    throw BookError(Book::tr("There is no command '%1'; help shows the commands.").arg(command));
  }
  return helpTexts().filter(QRegularExpression(u'^' + command + QStringLiteral("\\s"))).value(0);
}

} // namespace

QString usage()
{
  auto texts = helpTexts();
  auto const onWords = texts.takeLast();
  QString usage;
  for (auto const& text : texts) {
    usage += QStringLiteral("  ") + text.section(u'\n', 0, 0) + u'\n';
  }
  return usage + u'\n' + onWords;
}

QString execute(Book& book, QStringList const& words)
{
  if (words.isEmpty()) {
    return {};
  }
  auto const found = commands.find(words[0]);
  auto const given = words.size() - 1;
  if (found == commands.end() || given < found->second.fewest || given > found->second.most) {
    throw writtenOtherwise(words[0]);
  }
  if (auto const show = found->second.show) {
    return show(book, words);
  }
  found->second.change(book, words);
  return {};
}
