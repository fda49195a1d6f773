// What a desktop program does with the library, without its windows. The page on desktop programs shows
// parts of it. A comment "prints:" tells what is printed there; a test compares these comments with the output.

#include <banking/BankMap.hpp>
#include <banking/ReconciledBankAccount.hpp>

#include <QCollator>
#include <QCoreApplication>
#include <QDebug>
#include <QLoggingCategory>
#include <QTimer>
#include <QVariant>

#include <algorithm>
#include <limits>
#include <stdexcept>
#include <utility>
#include <vector>

using namespace orv::banking;
using orv::accounting::AccountNumber;

namespace {

//! [Commit]
// Makes a change and writes it to the database, or changes nothing: `change` gets the registry and may
// throw, and so may `write`, which ends its transaction.
void commit(BankMap& banks, auto const& change, auto const& write)
{
  auto changed = banks;
  change(changed);
  write(changed);
  banks = std::move(changed); // throws nothing
}
//! [Commit]

//! [Slot]
// Calls what a slot does, and shows the user why it cannot be done: no exception may leave a slot.
template <typename Action>
auto guarded(Action action)
{
  return [action] {
    try {
      action();
    } catch (BankError const& error) {
      qInfo().noquote() << "Message box:" << error.what();
    } catch (std::exception const& error) { // a fault of this program
      qCritical() << error.what();
    }
  };
}
//! [Slot]

//! [Ask first]
// Whether `add` would give an account that the bank holds another kind.
bool changesKind(Bank const& bank, AccountNumber number, BankAccountTypes kind)
{
  auto const held = bank.accounts().find(number);
  return held != bank.accounts().end() && held->second != kind;
}
//! [Ask first]

//! [Number]
// The number in a column of the database, or the invalid number.
AccountNumber toNumber(QVariant const& column)
{
  bool isInteger = false;
  auto const integer = column.toLongLong(&isInteger); // toUInt() makes 4294967295 of -1
  auto const isNumber = isInteger && integer > 0 && integer <= std::numeric_limits<quint32>::max();
  return isNumber ? AccountNumber(static_cast<unsigned int>(integer)) : AccountNumber();
}
//! [Number]

//! [Load rows]
struct Row
{
  QString bank;
  QVariant number;
  QString kind;
};

// Loads what can be loaded, and tells each problem of the rest.
BankMap load(std::vector<Row> const& rows, QStringList& problems)
{
  BankMap banks;
  for (auto const& [bank, number, kind] : rows) {
    try {
      BankName const name(bank);
      if (!banks.hasBank(name)) {
        banks.add(Bank(name, {}, false));
      }
      if (banks.bank(name).accounts().contains(toNumber(number))) {
        problems += QString("The number %1 is there twice.").arg(number.toString());
      } else {
        // An unknown text becomes the kind Unknown, which add refuses.
        banks.add(name, toNumber(number),
                  fromNonLocalisedText(kind).value_or(BankAccountTypes::Unknown));
      }
    } catch (BankError const& error) {
      problems += QString::fromUtf8(error.what());
    }
  }
  return banks;
}
//! [Load rows]

//! [Order]
// The names as the user's language orders them: é beside e, capital letters beside small ones.
std::vector<BankName> inUsersOrder(BankMap const& banks)
{
  auto const known = banks.names();
  std::vector<BankName> names(known.begin(), known.end());
  QCollator const collator;
  std::sort(names.begin(), names.end(), [&](auto const& lhs, auto const& rhs) {
    return collator(lhs.institution(), rhs.institution());
  });
  return names;
}
//! [Order]

} // namespace

int main(int argc, char* argv[])
{
  QCoreApplication application(argc, argv);
  QLoggingCategory::setFilterRules("default.info=true");
  BankName const elm("Elm");
  AccountNumber const loan(100);
  BankMap banks({{elm, Bank(elm, {{loan, BankAccountTypes::Loan}}, false)}});

  auto const close = [&](BankMap& changed) { changed.close(elm); };
  try {
    commit(banks, close, [](auto const&) { throw std::runtime_error("The disk is full."); });
    // prints: Closing "Financial Institution Name: (Elm)"
  } catch (std::runtime_error const& error) {
    qInfo() << error.what() << banks.bank(elm).isClosed();
    // prints: The disk is full. false
  }

  QTimer::singleShot(0, guarded([&] { banks.open(elm); }));
  application.processEvents();
  // prints: Opening "Financial Institution Name: (Elm)"
  // prints: Message box: There is an issue with the bank 'Elm'. Cannot open a bank that is already opened.

  qInfo() << changesKind(banks.bank(elm), loan, BankAccountTypes::Goal);
  // prints: true
  qInfo() << (toNumber(QVariant(-1)) == AccountNumber());
  // prints: true

  QLoggingCategory::setFilterRules("default.info=false");
  QStringList problems;
  auto const loaded = load({{"Elm", 100, "Loan"},
                            {"Oak", 100, "Goal"},
                            {"Oak", 200, "Prêt"},
                            {"elm", -1, "Goal"},
                            {"  ", 300, "Goal"},
                            {"élan", 400, "Goal"}},
                           problems);
  QLoggingCategory::setFilterRules("default.info=true");
  for (auto const& problem : problems) {
    qInfo().noquote() << problem;
  }
  // prints: There is an issue with the bank 'Oak'. Cannot add the account number, 100, as the bank 'Elm' is already associated with that number.
  // prints: There is an issue with the bank 'Oak'. Cannot add an account type of a financial institution that is unknown.
  // prints: There is an issue with the bank 'elm'. Cannot add an account number of a financial institution that is invalid.
  // prints: There is an issue with the bank ''. The name of a financial institution cannot be empty.

  QLocale::setDefault(QLocale("en_CA"));
  qInfo() << presentationText(mintar::Money(mintar::Currency("CAD"), 125050));
  // prints: "$1,250.50"
  qInfo() << presentationText(inUsersOrder(loaded).front())
          << presentationText(*loaded.names().begin());
  // prints: "élan" "Elm"
}
