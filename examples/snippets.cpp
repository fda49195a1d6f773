// The examples of the reference. A comment "prints:" tells what is printed there; a test compares
// these comments with the output.

#include <banking/BankError.hpp>
#include <banking/BankMap.hpp>
#include <banking/ReconciledBalance.hpp>
#include <banking/ReconciledBankAccount.hpp>

#include <QCoreApplication>
#include <QDebug>
#include <QHash>
#include <QLocale>
#include <QTranslator>

#include <stdexcept>
#include <utility>
#include <vector>

using namespace orv::banking;
using orv::accounting::AccountNumber;
using orv::accounting::AccountTypes;
using orv::foundation::LocaleAware;

namespace {

void bankName()
{
  //! [BankName]
  BankName const elm("Elm Credit Union");
  qInfo() << presentationText(elm) << (elm == BankName("ELM Credit Union"));
  // prints: "Elm Credit Union" false
  qInfo() << elm;
  // prints: "Financial Institution Name: (Elm Credit Union)"

  QHash<BankName, int> const branches{{elm, 12}};
  qInfo() << branches.value(elm);
  // prints: 12
  //! [BankName]
}

void bankAccountTypes()
{
  //! [BankAccountTypes]
  auto const kind = toBankAccountTypes("Credit Card");
  qInfo() << isAssetAccount(kind) << (toAccountTypes(kind) == AccountTypes::Liability);
  // prints: false true
  qInfo() << presentationText(kind); // in the user's language
  // prints: "Credit Card"
  qInfo() << toNonLocalisedText(kind); // the same in every language
  // prints: "Credit Card"

  try {
    auto const other = toBankAccountTypes("credit card"); // letter case matters
    qInfo() << toNonLocalisedText(other);
  } catch (std::logic_error const&) {
    qInfo() << "There is no such kind.";
    // prints: There is no such kind.
  }
  //! [BankAccountTypes]
}

void bankAccount()
{
  //! [BankAccount]
  BankAccount const account{BankName("Elm"), {AccountNumber(100), BankAccountTypes::CreditCard}};
  qInfo() << presentationText(account, LocaleAware::Yes);
  // prints: "Elm: 100 (Credit Card)"
  qInfo().noquote() << account;
  // prints: Bank (Financial Institution Name: (Elm)), Account Type (Bank Account Number (100), Bank Account Type (Credit Card))
  //! [BankAccount]
}

void bank()
{
  //! [Bank]
  Bank elm(BankName("Elm"), {{AccountNumber(100), BankAccountTypes::Loan}}, false);
  elm.add(AccountNumber(200), BankAccountTypes::Savings);
  // prints: Adding account number 200 which is "Savings" to "Financial Institution Name: (Elm)"
  elm.close();
  // prints: Closing "Financial Institution Name: (Elm)"
  elm.remove(AccountNumber(100));
  // prints: Removing account number 100 from "Bank: (Financial Institution Name: (Elm)), Account Numbers: (100=>Loan, 200=>Savings), Is Closed: true)"
  elm.open();
  // prints: Opening "Financial Institution Name: (Elm)"
  qInfo().noquote() << elm;
  // prints: Bank: (Financial Institution Name: (Elm)), Account Numbers: (200=>Savings), Is Closed: false)
  //! [Bank]
}

void bankMap()
{
  //! [BankMap]
  BankName const elm("Elm");
  BankName const oak("Oak");
  BankMap banks({
      {elm, Bank(elm, {{AccountNumber(100), BankAccountTypes::Loan}}, false)},
      {oak, Bank(oak, {}, false)},
  });

  if (auto const holder = banks.find(AccountNumber(100))) {
    qInfo() << holder->name().institution();
    // prints: "Elm"
  }
  for (auto const& [name, bank] : banks) {
    qInfo() << name.institution() << bank.accounts().size();
  }
  // prints: "Elm" 1
  // prints: "Oak" 0

  auto changed = banks.bank(oak); // a copy, to change it in several ways at once
  changed.add(AccountNumber(300), BankAccountTypes::Chequeing);
  // prints: Adding account number 300 which is "Chequeing" to "Financial Institution Name: (Oak)"
  changed.add(AccountNumber(400), BankAccountTypes::Goal);
  // prints: Adding account number 400 which is "Goal" to "Financial Institution Name: (Oak)"
  banks.update(std::move(changed));
  //! [BankMap]
}

void bankError()
{
  //! [BankError]
  BankMap banks;
  try {
    banks.close(BankName("Oak"));
  } catch (BankError const& error) {
    qInfo() << QString::fromUtf8(error.what());
    // prints: "There is an issue with the bank 'Oak'. Cannot close a bank that does not exist."
  }
  //! [BankError]
}

void reconciledBankAccount()
{
  //! [ReconciledBankAccount]
  mintar::Currency const cad("CAD");
  ReconciledBankAccount card({BankName("Elm"), {AccountNumber(200), BankAccountTypes::CreditCard}},
                             cad);
  card.reconcile(QDate(2026, 10, 31), mintar::Money(cad, -125050)); // $1,250.50 are owed
  qInfo() << (card.balance() == mintar::Money(cad, -125050)) << *card.reconciledOn();
  // prints: true QDate("2026-10-31")

  try {
    card.reconcile(QDate(2026, 9, 30), mintar::Money(cad, -80000));
  } catch (BankError const& error) { // the account is unchanged
    qInfo() << QString::fromUtf8(error.what());
    // prints: "There is an issue with the bank 'Elm'. The last reconciled date, 2026-10-31, cannot be updated to be in the past, 2026-09-30."
  }
  //! [ReconciledBankAccount]

  //! [ReconciledBalance]
  std::vector<ReconciledBalance> history;
  history.push_back({card.balance(), *card.reconciledOn()});
  qInfo() << history.back().occurredOn;
  // prints: QDate("2026-10-31")
  //! [ReconciledBalance]
}

void renameInStep()
{
  BankName const elm("Elm");
  BankMap banks({{elm, Bank(elm, {{AccountNumber(100), BankAccountTypes::Loan}}, false)}});
  std::vector<ReconciledBankAccount> accounts(1);
  accounts[0] = ReconciledBankAccount({elm, {AccountNumber(100), BankAccountTypes::Loan}},
                                      mintar::Currency("CAD"));
  //! [Rename]
  BankName const from("Elm");
  BankName const to("Elm Credit Union");
  banks.rename(from, to); // if this throws, no account is changed either
  for (auto& account : accounts) {
    auto renamed = account.bankAccount();
    if (renamed.bankName == from) {
      renamed.bankName = to;
      account = ReconciledBankAccount(renamed, account.balance(), account.reconciledOn());
    }
  }
  //! [Rename]
  qInfo() << presentationText(accounts[0].bankAccount(), LocaleAware::No);
  // prints: "Elm Credit Union: 100 (Loan)"
}

void french()
{
  //! [Translator]
  QLocale::setDefault(QLocale("fr_CA")); // only to override the system's locale
  QTranslator translator;                // must exist as long as it is installed
  auto const folder = QCoreApplication::applicationDirPath() + "/../share/orv-banking/translations";
  if (translator.load(QLocale(), "orv-banking", "_", folder)) {
    QCoreApplication::installTranslator(&translator); // loading alone does nothing
  }
  qInfo() << presentationText(BankAccountTypes::Loan) << toNonLocalisedText(BankAccountTypes::Loan);
  // prints: "Prêt" "Loan"
  //! [Translator]
}

} // namespace

int main(int argc, char* argv[])
{
  QCoreApplication const application(argc, argv);
  QLocale::setDefault(QLocale::c()); // dates print the same on every system
  bankName();
  bankAccountTypes();
  bankAccount();
  bank();
  bankMap();
  bankError();
  reconciledBankAccount();
  renameInStep();
  french();
}
