#include "Book.hpp"

#include "BookReader.hpp"

#include <banking/ReconciledBankAccount.hpp>
#include <foundation/Date.hpp>

#include <QFileInfo>

#include <climits>

using namespace orv::banking;
using orv::accounting::AccountNumber;
using enum orv::foundation::LocaleAware;
using enum BankAccountTypes;
using orv::foundation::presentationText; // of a date, whose own namespace has none

namespace {

using Words = QStringList;
using Accounts = std::map<AccountNumber, BankAccountTypes>;

QString usageOf(QString const& command);

BookError writtenOtherwise(QString const& command)
{
  return {Book::tr("The command is written: %1. Straight double quotes hold words with blanks."),
          usageOf(command)};
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
      throw BookError(Book::tr("The account number %1 is given twice."), number);
    }
  }
  return Bank(toBankName(words[1]), std::move(accounts), false);
}

// The identifier in the words from this one on, as statements have it.
Identifier toIdentifier(Words words, qsizetype first)
{
  for (auto& word : words) {
    word = word.simplified();
  }
  if (words.value(first, words[0]).isEmpty()) {
    throw writtenOtherwise(words[0]);
  }
  return toLine(words.mid(first));
}

// Whether both may stand for one account: one of them is the other, begins it or is empty.
bool mayBeOne(Identifier const& one, Identifier const& other)
{
  auto const& [shorter, longer] =
      std::minmax(one, other, [](auto const& a, auto const& b) { return a.size() < b.size(); });
  return shorter.isEmpty() ||
         (longer.startsWith(shorter) && (longer + u' ')[shorter.size()] == u' ');
}

// How the first of these identifiers are typed: by the ACCTID alone where no other of `among` has it.
QStringList typed(QStringList identifiers, QStringList const& among)
{
  identifiers = identifiers.mid(0, 11); // a message shows ten
  for (auto& identifier : identifiers) {
    auto const account = toLine(toWords(identifier).mid(0, 1));
    auto const isEnough = std::none_of(among.begin(), among.end(), [&](Identifier const& other) {
      return other != identifier && mayBeOne(other, account);
    });
    identifier = isEnough ? account : identifier;
  }
  return identifiers;
}

// The kinds that the bank's type of an account stands for, or `kind` if it has none that is known. A goal is
// money set aside.
QList<BankAccountTypes> kindsOf(Identifier const& identifier, BankAccountTypes kind = Unknown)
{
  static QMap<QString, QList<BankAccountTypes>> const kinds{
      {"CHECKING", {Chequeing}},      {"SAVINGS", {Savings, Goal}},
      {"MONEYMRKT", {Savings, Goal}}, {"CD", {Savings, Goal}},
      {"CREDITLINE", {Loan}},         {"CMA", {Chequeing, Savings, Goal}},
      {"CREDITCARD", {CreditCard}},   {"INVESTMENT", {}},
  };
  return kinds.value(toWords(identifier).value(2), {kind});
}

// The account with the number; of the kind `Unknown` if no bank holds it.
BankAccount find(Book const& book, AccountNumber const& number)
{
  for (auto const& [name, bank] : book.banks) {
    if (auto const found = bank.accounts().find(number); found != bank.accounts().end()) {
      return {name, {number, found->second}};
    }
  }
  return {{}, {number}};
}

AccountNumberBankType held(Book const& book, AccountNumber const& number)
{
  auto const account = find(book, number).accountNumberBankType;
  if (account.bankAccountType == Unknown) {
    throw BookError(Book::tr("No bank holds the account number %1; list shows all."),
                    presentationText(number));
  }
  return account;
}

// Drops what is known of those accounts that are no longer there, and the identifiers of those that have
// changed their kind.
void drop(Book& book, Accounts const& before)
{
  for (auto const& [number, kind] : before) {
    auto const now = find(book, number).accountNumberBankType.bankAccountType;
    if (now == Unknown) {
      book.balances.remove(number);
    }
    if (now != kind) {
      book.identifiers.remove(number);
    }
  }
}

// The longer one of this identifier and the one that the account is bound to. Throws where these are of two
// accounts.
Identifier longer(Book const& book, AccountNumber const& number, Identifier const& identifier)
{
  auto const bound = book.identifiers.value(number);
  if (!mayBeOne(bound, identifier)) {
    throw BookError(
        Book::tr("The account number %1 is bound to %2, not to %3; remove it and add it "
                 "again to bind it anew."),
        presentationText(number), typed({bound}, {identifier}), typed({identifier}, {bound}));
  }
  return bound.size() > identifier.size() ? bound : identifier;
}

// The accounts of ours that may be bound to it. One without a type stands for accounts of this kind.
QList<AccountNumber> boundTo(Book const& book, Identifier const& identifier,
                             BankAccountTypes kind = Unknown)
{
  QList<AccountNumber> numbers;
  auto const kinds = kindsOf(identifier, kind);
  for (auto const& [number, other] : book.identifiers.asKeyValueRange()) {
    if (mayBeOne(other, identifier) && kinds.contains(held(book, number).bankAccountType)) {
      numbers += number;
    }
  }
  return numbers;
}

// Throws where another account of ours may be bound to the identifier.
void checkIsFree(Book const& book, AccountNumberBankType const& ours, Identifier const& identifier)
{
  for (auto const& number : boundTo(book, identifier, ours.bankAccountType)) {
    if (!(number == ours.accountNumber)) {
      throw BookError(Book::tr("The account number %1 is bound to %2; if this is another account, "
                               "type the BANKID of both."),
                      presentationText(number), book.identifiers.value(number));
    }
  }
}

// The account that the identifier stands for in the file, if it is for the kind of ours, and its latest
// balance.
std::pair<Identifier, ReconciledBalance>
balanceFor(AccountNumberBankType const& ours, Statements const& file, Identifier const& identifier)
{
  auto const kind = ours.bankAccountType;
  auto found = file.keys();
  found.removeIf([&](Identifier const& whole) {
    return !mayBeOne(identifier, whole) || !kindsOf(whole, kind).contains(kind);
  });
  if (found.size() > 1) {
    throw BookError(Book::tr("The file has several such accounts; add one at the end: %1."),
                    typed(found, file.keys()));
  }
  auto const whole = found.value(0);
  ReconciledBalance latest;
  for (auto const& [balance, fault] : file.value(whole)) {
    if (!fault.isEmpty()) {
      throw BookError(fault);
    }
    latest = latest.occurredOn < balance.occurredOn ? balance : latest;
  }
  if (found.isEmpty() || !kindsOf(whole).contains(kind)) {
    throw BookError(Book::tr("The file has no statement for %1; it has: %2."),
                    (presentationText(ours, Yes) + u' ' + identifier).trimmed(), file.keys());
  }
  for (auto const& [balance, fault] : file.value(whole)) {
    if (balance.occurredOn == latest.occurredOn && !(balance.balance == latest.balance)) {
      throw BookError(Book::tr("The file has two balances of %1 on %2: %3 and %4."), whole,
                      presentationText(latest.occurredOn), presentationText(latest.balance),
                      presentationText(balance.balance));
    }
  }
  return {whole, latest};
}

// What is known of the account once it is reconciled. Throws where it must not be.
ReconciledBalance reconciled(Book const& book, AccountNumber const& number,
                             ReconciledBalance const& next)
{
  held(book, number);
  auto const last = book.balances.value(number, next); // the first is of any day and currency
  ReconciledBankAccount account(find(book, number), last.balance, last.occurredOn);
  if (!(last.balance.currency() == next.balance.currency())) {
    throw BookError(Book::tr("The account number %1 is kept in %2, not in %3; to take that back: "
                             "forget %1"),
                    presentationText(number), last.balance.currency().isoCode(),
                    next.balance.currency().isoCode());
  }
  try {
    account.reconcile(next.occurredOn, next.balance);
  } catch (BankError const& refusal) {
    auto const text = Book::tr("%1 To take back the last date of the account number %2: forget %2");
    throw BookError(text.arg(QString::fromUtf8(refusal.what()), presentationText(number)));
  }
  return {account.balance(), *account.reconciledOn()};
}

// The commands. Each takes its words, of which the first is its own name.

void add(Book& book, Words const& words, Answer& /*answer*/)
{
  auto const number = toAccountNumber(words[2]);
  auto const kind = toKind(words[3]);
  auto const before = find(book, number).accountNumberBankType;
  book.banks.add(toBankName(words[1]), number, kind);
  drop(book, {{number, before.bankAccountType}});
}

void addBank(Book& book, Words const& words, Answer& /*answer*/)
{
  book.banks.add(toBank(words));
}

void close(Book& book, Words const& words, Answer& /*answer*/)
{
  book.banks.close(toBankName(words[1]));
}

void forget(Book& book, Words const& words, Answer& /*answer*/)
{
  auto const account = held(book, toAccountNumber(words[1]));
  if (book.balances.remove(account.accountNumber) == 0) {
    throw BookError(Book::tr("Nothing is recorded of %1."), presentationText(account, Yes));
  }
}

void identify(Book& book, Words const& words, Answer& /*answer*/)
{
  auto const account = held(book, toAccountNumber(words[1]));
  auto const identifier = longer(book, account.accountNumber, toIdentifier(words, 2));
  checkIsFree(book, account, identifier);
  book.identifiers[account.accountNumber] = identifier;
}

void list(Book& book, Words const& /*words*/, Answer& answer)
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
      rows += start + QStringList{presentationText(number), presentationText(kind),
                                  isAssetAccount(kind) ? Book::tr("asset") : Book::tr("liability")};
      auto const known = book.balances.value(number);
      rows.last() += {presentationText(known.balance), presentationText(known.occurredOn)};
    }
  }
  answer.table = toTable(rows, "llrllrl");
}

void open(Book& book, Words const& words, Answer& /*answer*/)
{
  book.banks.open(toBankName(words[1]));
}

void reconcile(Book& book, Words const& words, Answer& answer)
{
  for (qsizetype i = 1; i < words.size(); ++i) {
    if ((i != 2 && QDate::fromString(words[i], Qt::ISODate).isValid()) ||
        (i != 4 && isCurrency(words[i]))) {
      throw BookError(Book::tr("'%1' stands in the wrong place: %2"), words[i], usageOf(words[0]));
    }
  }
  auto const number = toAccountNumber(words[1]);
  auto const date = toDate(words[2]);
  book.balances[number] = reconciled(book, number, {toMoney(words[3], words[4]), date});
  answer.reconciled = {number};
}

void remove(Book& book, Words const& words, Answer& /*answer*/)
{
  auto const name = toBankName(words[1]);
  if (words.size() == 2) {
    auto const before = book.banks.hasBank(name) ? book.banks.bank(name).accounts() : Accounts();
    book.banks.remove(name);
    drop(book, before);
  } else {
    auto const number = toAccountNumber(words[2]);
    book.banks.remove(name, number);
    book.identifiers.remove(number);
    book.balances.remove(number);
  }
}

void rename(Book& book, Words const& words, Answer& /*answer*/)
{
  book.banks.rename(toBankName(words[1]), toBankName(words[2]));
}

void statement(Book& book, Words const& words, Answer& answer)
{
  auto const isOfAll = words.size() == 2;
  auto const fileName = words[isOfAll ? 1 : 2];
  QFile file(pathOf(book.folder, fileName));
  QFileInfo const info(file);
  if (info.exists() && !info.isFile() && !info.isDir()) { // a device, which may have no end
    throw BookError(Book::tr("%1 is not a file."), fileName);
  }
  auto const statements = readOfx(contentOf(file, fileName));
  auto const all = statements.keys();
  for (auto const& whole : all) {
    answer.reconciled += isOfAll ? boundTo(book, whole) : QList<AccountNumber>();
  }
  if (!isOfAll) {
    answer.reconciled = {toAccountNumber(words[1])};
  }

  auto next = std::pair(book.identifiers, book.balances); // with all that there is to take
  for (auto const& number : answer.reconciled) {
    auto const account = held(book, number);
    auto const sought = longer(book, number, toIdentifier(words, isOfAll ? 2 : 3));
    auto const [identifier, balance] = balanceFor(account, statements, sought);
    checkIsFree(book, account, identifier);
    next.first[number] = identifier;
    next.second[number] = reconciled(book, number, balance);
    answer.messages +=
        filled(Book::tr("%1: took the statement of %2, dated %3, with a balance of %4."),
               presentationText(account, Yes), typed({identifier}, all),
               presentationText(balance.occurredOn), presentationText(balance.balance));
  }
  std::tie(book.identifiers, book.balances) = next;

  auto const known = all + book.identifiers.values();
  auto others = all;
  others.removeIf([&](Identifier const& whole) { return !boundTo(book, whole).isEmpty(); });
  auto const text =
      Book::tr("No account is bound to %1. Bind one: statement NUMBER FILE IDENTIFIER");
  if (answer.reconciled.isEmpty()) {
    throw BookError(text, typed(others, known));
  }
  if (!others.isEmpty()) {
    answer.messages += filled(text, typed(others, known));
  }
}

void update(Book& book, Words const& words, Answer& /*answer*/)
{
  auto const bank = toBank(words);
  auto const name = bank.name();
  auto const before = book.banks.hasBank(name) ? book.banks.bank(name).accounts() : Accounts();
  book.banks.update(bank);
  drop(book, before);
}

struct Command
{
  qsizetype fewest; // words after its name
  qsizetype most;
  void (*function)(Book& book, Words const& words, Answer& answer);
  char const* usage;
};

std::map<QString, Command> const commands{
    {"add", {3, 3, &add, QT_TRANSLATE_NOOP("Book", "add NAME NUMBER KIND")}},
    {"bank", {1, INT_MAX, &addBank, QT_TRANSLATE_NOOP("Book", "bank NAME [NUMBER=KIND ...]")}},
    {"close", {1, 1, &close, QT_TRANSLATE_NOOP("Book", "close NAME")}},
    {"forget", {1, 1, &forget, QT_TRANSLATE_NOOP("Book", "forget NUMBER")}},
    {"identifier", {2, 4, &identify, QT_TRANSLATE_NOOP("Book", "identifier NUMBER IDENTIFIER")}},
    {"list", {0, 0, &list, QT_TRANSLATE_NOOP("Book", "list")}},
    {"open", {1, 1, &open, QT_TRANSLATE_NOOP("Book", "open NAME")}},
    {"reconcile",
     {4, 4, &reconcile, QT_TRANSLATE_NOOP("Book", "reconcile NUMBER DATE AMOUNT CURRENCY")}},
    {"remove", {1, 2, &remove, QT_TRANSLATE_NOOP("Book", "remove NAME [NUMBER]")}},
    {"rename", {2, 2, &rename, QT_TRANSLATE_NOOP("Book", "rename FROM TO")}},
    {"statement",
     {1, 5, &statement, QT_TRANSLATE_NOOP("Book", "statement [NUMBER] FILE [IDENTIFIER]")}},
    {"update", {1, INT_MAX, &update, QT_TRANSLATE_NOOP("Book", "update NAME [NUMBER=KIND ...]")}},
};

QString usageOf(QString const& command)
{
  return Book::tr(commands.at(command).usage);
}

} // namespace

QString usage()
{
  QString text;
  for (auto const& [name, command] : commands) {
    text += QStringLiteral("  ") + usageOf(name) + u'\n';
  }
  return text + u'\n' +
         Book::tr("A line holds one command. Straight double quotes hold a word with blanks; \\\" "
                  "in them is a\nquote, \\\\ a backslash. # begins a comment.\n"
                  "  KIND        Chequeing, \"Credit Card\", Loan, Savings or Goal\n"
                  "  DATE        such as 2026-10-31\n"
                  "  AMOUNT      such as -1250.50, with a point and nothing between thousands\n"
                  "  CURRENCY    such as CAD\n"
                  "  IDENTIFIER  ACCTID [BANKID [ACCTTYPE]], as the file has them\n");
}

Answer execute(Book& book, QStringList const& words)
{
  Answer answer;
  if (!words.isEmpty()) {
    auto const found = commands.find(words[0]);
    if (found == commands.end()) {
      throw BookError(Book::tr("There is no command '%1'; bankbook --help shows all."), words[0]);
    }
    auto const& [fewest, most, function, usage] = found->second;
    if (words.size() <= fewest || words.size() - 1 > most) {
      throw writtenOtherwise(words[0]);
    }
    function(book, words, answer);
  }
  return answer;
}
