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

void requireForm(bool isRight, QString const& command)
{
  refuseIf(!isRight,
           Book::tr("The command is written: %1. Straight double quotes hold words with blanks."),
           usageOf(command));
}

// The bank that NAME [NUMBER=KIND ...] describes, in the words of a command.
Bank toBank(Words const& words)
{
  Accounts accounts;
  for (auto const& word : words.mid(2)) {
    auto const kind = word.section(u'=', 1);
    requireForm(!kind.isEmpty(), words[0]);
    auto const number = word.section(u'=', 0, 0);
    refuseIf(!accounts.emplace(toAccountNumber(number), toKind(kind)).second,
             Book::tr("The account number %1 is given twice."), number);
  }
  return Bank(toBankName(words[1]), std::move(accounts), false);
}

// The identifier in the words from this one on; empty where there are none.
Identifier toIdentifier(Words const& words, qsizetype first)
{
  auto const parts = words.mid(first).replaceInStrings(QStringLiteral(" "), QString());
  requireForm(!parts.contains(QString()), words[0]);
  return parts.join(u' ');
}

// Whether both may stand for one account: one of them begins the other. An empty one may be any.
bool mayBeOne(Identifier const& one, Identifier const& other)
{
  auto const begins = [](Identifier const& shorter, Identifier const& longer) {
    return longer.startsWith(shorter) && (longer + u' ')[shorter.size()] == u' ';
  };
  return one.isEmpty() || begins(one, other) || begins(other, one);
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

BankAccountTypes kindOf(Book const& book, AccountNumber const& number)
{
  return find(book, number).accountNumberBankType.bankAccountType;
}

// Throws if no bank holds the account.
AccountNumber toHeldNumber(Book const& book, QString const& word)
{
  auto const number = toAccountNumber(word);
  refuseIf(kindOf(book, number) == Unknown,
           Book::tr("No bank holds the account number %1; list shows all."), word);
  return number;
}

// The accounts of a bank; none where there is no such bank.
Accounts accountsOf(Book const& book, BankName const& name)
{
  return book.banks.hasBank(name) ? book.banks.bank(name).accounts() : Accounts();
}

// Drops what is known of those accounts that no bank holds any longer.
void drop(Book& book, Accounts const& before)
{
  for (auto const& [number, kind] : before) {
    if (kindOf(book, number) == Unknown) {
      book.balances.remove(number);
      book.identifiers.remove(number);
    }
  }
}

// Our accounts of these kinds that may be bound to the identifier.
QList<AccountNumber> boundTo(Book const& book, Identifier const& identifier,
                             QList<BankAccountTypes> const& kinds)
{
  QList<AccountNumber> numbers;
  for (auto const& [number, other] : book.identifiers.asKeyValueRange()) {
    if (mayBeOne(other, identifier) && kinds.contains(kindOf(book, number))) {
      numbers += number;
    }
  }
  return numbers;
}

// Binds the account to the identifier, or leaves it bound to a longer one that the identifier
// begins. Throws where its kind or another account is against it.
void bind(Book& book, AccountNumber const& number, Identifier const& identifier)
{
  auto const account = find(book, number).accountNumberBankType;
  auto const bound = book.identifiers.value(number);
  refuseIf(!mayBeOne(bound, identifier),
           Book::tr("The account number %1 is bound to %2; to bind it anew, remove and add it."),
           presentationText(number), bound);
  auto const longer = bound.size() > identifier.size() ? bound : identifier;
  auto const hasType = longer.contains(u' ');
  auto const kinds = hasType ? kindsOf(longer) : QList{account.bankAccountType};
  refuseIf(!kinds.contains(account.bankAccountType),
           Book::tr("%1 cannot be bound to %2: its kind does not go with the ACCTTYPE."),
           presentationText(account, Yes), longer);
  auto others = boundTo(book, longer, kinds);
  others.removeOne(number);
  refuseIf(
      !others.isEmpty(),
      Book::tr("The account number %1 is bound to %2, which may be the same account. Bind both "
               "with ACCTID, ACCTTYPE and BANKID."),
      presentationText(others.value(0)), book.identifiers.value(others.value(0)));
  book.identifiers[number] = longer;
}

// The whole identifier of the one account in the file that may be ours.
Identifier wholeOf(BankAccount const& ours, Statements const& file, Identifier const& identifier)
{
  auto const account = ours.accountNumberBankType;
  auto const name = (presentationText(account, Yes) + u' ' + identifier).trimmed();
  auto found = file.keys();
  found.removeIf([&](Identifier const& whole) {
    auto const kinds = kindsOf(whole);
    return !mayBeOne(identifier, whole) ||
           !(kinds.isEmpty() || kinds.contains(account.bankAccountType));
  });
  refuseIf(found.isEmpty(), Book::tr("The file has no statement that %1 could take; it has: %2."),
           name, file.keys());
  refuseIf(found.size() > 1,
           Book::tr("The file has several statements that %1 could take; choose one with the "
                    "command identifier: %2."),
           name, found);
  return found[0];
}

// Records what is known of the account from now on. Throws where it must not be.
void record(Book& book, BankAccount const& account, ReconciledBalance const& next, Answer& answer)
{
  auto const number = account.accountNumberBankType.accountNumber;
  auto const shownNumber = presentationText(number);
  auto const last = book.balances.value(number, next); // the first is of any day and currency
  refuseIf(!(last.balance.currency() == next.balance.currency()),
           Book::tr("The account number %1 is kept in %2, not in %3. If that was wrong: forget %1"),
           shownNumber, last.balance.currency().isoCode(), next.balance.currency().isoCode());
  try {
    ReconciledBankAccount(account, last.balance, last.occurredOn)
        .reconcile(next.occurredOn, next.balance);
  } catch (BankError const& refusal) {
    auto const text = Book::tr("%1 If the last date was wrong: forget %2");
    throw BookError(text.arg(QString::fromUtf8(refusal.what()), shownNumber));
  }
  book.balances[number] = next;
  answer.reconciled += number;
}

// The commands. Each takes its words, of which the first is its own name.

void add(Book& book, Words const& words, Answer& /*answer*/)
{
  auto const number = toAccountNumber(words[2]);
  auto const kind = toKind(words[3]);
  book.banks.add(toBankName(words[1]), number, kind);
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
  refuseIf(book.balances.remove(toHeldNumber(book, words[1])) == 0,
           Book::tr("Nothing is recorded of the account number %1."), words[1]);
}

void identify(Book& book, Words const& words, Answer& /*answer*/)
{
  auto const number = toHeldNumber(book, words[1]);
  bind(book, number, toIdentifier(words, 2));
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
      auto const known = book.balances.value(number);
      rows +=
          start + QStringList{presentationText(number), presentationText(kind),
                              isAssetAccount(kind) ? Book::tr("asset") : Book::tr("liability"),
                              presentationText(known.balance), presentationText(known.occurredOn)};
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
  requireForm(!isCurrency(words[2]) && !isCurrency(words[3]), words[0]);
  auto const number = toHeldNumber(book, words[1]);
  auto const date = toDate(words[2]);
  record(book, find(book, number), {toMoney(words[3], words[4]), date}, answer);
}

void remove(Book& book, Words const& words, Answer& /*answer*/)
{
  auto const name = toBankName(words[1]);
  auto const isBank = words.size() == 2;
  auto const gone =
      isBank ? accountsOf(book, name) : Accounts{{toAccountNumber(words[2]), Unknown}};
  isBank ? book.banks.remove(name) : book.banks.remove(name, gone.begin()->first);
  drop(book, gone);
}

void rename(Book& book, Words const& words, Answer& /*answer*/)
{
  book.banks.rename(toBankName(words[1]), toBankName(words[2]));
}

void statement(Book& book, Words const& words, Answer& answer)
{
  auto const isOfAll = words.size() == 2;
  auto next = book;
  QList<AccountNumber> numbers;
  if (!isOfAll) {
    numbers += toHeldNumber(book, words[1]);
  }
  if (words.size() > 3) {
    bind(next, numbers[0], toIdentifier(words, 3));
  }
  auto const& fileName = words[isOfAll ? 1 : 2];
  QFile file(pathOf(book.folder, fileName));
  QFileInfo const info(file);
  refuseIf(info.exists() && !info.isFile() && !info.isDir(), // a device, which may have no end
           Book::tr("%1 is not a file."), fileName);
  auto const statements = readOfx(contentOf(file, fileName));
  auto others = statements.keys();
  for (auto const& whole : isOfAll ? others : QStringList()) {
    numbers += boundTo(book, whole, kindsOf(whole));
  }
  for (auto const& number : numbers) {
    auto const account = find(book, number);
    auto const whole = wholeOf(account, statements, next.identifiers.value(number));
    auto const& [balance, fault] = statements[whole];
    refuseIf(!fault.isEmpty(), fault);
    bind(next, number, whole);
    record(next, account, balance, answer);
    answer.messages +=
        filled(Book::tr("%1: took the statement of %2, dated %3, with a balance of %4."),
               presentationText(account.accountNumberBankType, Yes), whole,
               presentationText(balance.occurredOn), presentationText(balance.balance));
  }
  book = next; // Either all is taken, or nothing.

  others.removeIf(
      [&](auto const& whole) { return !boundTo(book, whole, kindsOf(whole)).isEmpty(); });
  auto const text =
      Book::tr("No account is bound to %1. Bind one: statement NUMBER FILE IDENTIFIER");
  refuseIf(numbers.isEmpty(), text, others);
  if (!others.isEmpty()) {
    answer.messages += filled(text, others);
  }
}

void update(Book& book, Words const& words, Answer& /*answer*/)
{
  auto const bank = toBank(words);
  auto const before = accountsOf(book, bank.name());
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
                  "  IDENTIFIER  ACCTID [ACCTTYPE [BANKID]], as the file has them\n");
}

Answer execute(Book& book, QStringList const& words)
{
  Answer answer;
  if (!words.isEmpty()) {
    auto const found = commands.find(words[0]);
    refuseIf(found == commands.end(),
             Book::tr("There is no command '%1'; bankbook --help shows all."), words[0]);
    auto const& [fewest, most, function, usage] = found->second;
    requireForm(words.size() > fewest && words.size() - 1 <= most, words[0]);
    function(book, words, answer);
  }
  return answer;
}
