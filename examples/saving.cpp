// Saves a household's books as JSON and loads them again. The page on saving and loading shows parts
// of it. A comment "prints:" tells what is printed there; a test compares these comments with the output.

#include <banking/BankMap.hpp>
#include <banking/ReconciledBankAccount.hpp>

#include <QDebug>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <limits>
#include <stdexcept>
#include <utility>
#include <vector>

using namespace orv::banking;
using orv::accounting::AccountNumber;

namespace {

//! [Types]
// A reconciled account, and beside it what cannot be read back from its balance.
struct Account
{
  ReconciledBankAccount reconciled;
  QString currency;
  qint64 minorUnits = 0;
};

struct Books
{
  BankMap banks;
  std::vector<Account> accounts;
};
//! [Types]

//! [Save]
QByteArray save(Books const& books)
{
  QJsonArray banks;
  for (auto const& [name, bank] : books.banks) {
    QJsonArray accounts;
    for (auto const& [number, kind] : bank.accounts()) {
      accounts +=
          QJsonObject{{"number", qint64(number.integer())}, {"kind", toNonLocalisedText(kind)}};
    }
    banks += QJsonObject{
        {"name", name.institution()}, {"accounts", accounts}, {"isClosed", bank.isClosed()}};
  }
  QJsonArray balances; // the registry knows the bank and the kind of each
  for (auto const& [reconciled, currency, minorUnits] : books.accounts) {
    auto const& date = reconciled.reconciledOn();
    auto const number = reconciled.bankAccount().accountNumberBankType.accountNumber.integer();
    balances += QJsonObject{{"number", qint64(number)},
                            {"currency", currency},
                            {"minorUnits", minorUnits},
                            {"date", date ? date->toString(Qt::ISODate) : QString()}};
  }
  return QJsonDocument(QJsonObject{{"banks", banks}, {"balances", balances}}).toJson();
}
//! [Save]

//! [Read a value]
// What is wrong with a file, for the user.
class LoadError : public std::runtime_error
{
public:
  explicit LoadError(QString const& text) : std::runtime_error(text.toStdString()) {}
};

AccountNumber toNumber(QJsonValue const& value)
{
  auto const integer = value.toInteger(); // 0 for what is no whole number
  if (integer < 1 || integer > std::numeric_limits<quint32>::max()) {
    throw LoadError(QString("%1 is not an account number.").arg(value.toVariant().toString()));
  }
  return AccountNumber(static_cast<unsigned int>(integer));
}

BankAccountTypes toKind(QJsonValue const& value)
{
  if (auto const kind = fromNonLocalisedText(value.toString())) {
    return *kind;
  }
  throw LoadError(QString("'%1' is not a kind of account.").arg(value.toString()));
}
//! [Read a value]

//! [Load]
Bank toBank(QJsonObject const& saved)
{
  std::map<AccountNumber, BankAccountTypes> accounts;
  for (auto const& value : saved["accounts"].toArray()) {
    auto const number = toNumber(value.toObject()["number"]);
    if (!accounts.emplace(number, toKind(value.toObject()["kind"])).second) {
      throw LoadError(QString("The number %1 is there twice.").arg(presentationText(number)));
    }
  }
  return Bank(BankName(saved["name"].toString()), std::move(accounts), saved["isClosed"].toBool());
}

Account toAccount(QJsonObject const& saved, BankMap const& banks)
{
  auto const number = toNumber(saved["number"]);
  auto const bank = banks.find(number);
  if (!bank) {
    throw LoadError(QString("No bank holds the number %1.").arg(presentationText(number)));
  }
  auto const currency = saved["currency"].toString();
  auto const minorUnits = saved["minorUnits"].toInteger();
  auto const date = QDate::fromString(saved["date"].toString(), Qt::ISODate);
  return {{{bank->name(), {number, bank->accounts().at(number)}},
           mintar::Money(mintar::Currency(currency), minorUnits),
           date.isValid() ? std::optional(date) : std::nullopt},
          currency,
          minorUnits};
}

Books load(QByteArray const& json)
{
  auto const saved = QJsonDocument::fromJson(json).object();
  std::map<BankName, Bank> banks;
  for (auto const& value : saved["banks"].toArray()) {
    auto bank = toBank(value.toObject());
    auto const name = bank.name();
    if (!banks.emplace(name, std::move(bank)).second) {
      throw LoadError(QString("The bank '%1' is there twice.").arg(presentationText(name)));
    }
  }
  Books books{BankMap(std::move(banks)), {}}; // checks the rules that span banks
  for (auto const& value : saved["balances"].toArray()) {
    books.accounts.push_back(toAccount(value.toObject(), books.banks));
  }
  return books;
}
//! [Load]

//! [Catch]
void open(QByteArray const& json)
{
  try {
    qInfo() << load(json).banks.size() << "banks";
  } catch (BankError const& error) { // a rule of banking is broken
    qInfo().noquote() << error.what();
  } catch (LoadError const& error) { // the file cannot be read
    qInfo().noquote() << error.what();
  }
}
//! [Catch]

} // namespace

int main()
{
  BankName const elm("Elm");
  BankName const oak("Oak");
  mintar::Currency const cad("CAD");
  AccountNumber const loan(100);
  BankMap const banks({{elm, Bank(elm, {{loan, BankAccountTypes::Loan}}, false)},
                       {oak, Bank(oak, {{AccountNumber(200), BankAccountTypes::Goal}}, true)}});
  Books const books{
      banks,
      {{{{elm, {loan, BankAccountTypes::Loan}}, mintar::Money(cad, -125050), QDate(2026, 10, 31)},
        "CAD",
        -125050}}};
  auto const json = save(books);
  auto const loaded = load(json);
  qInfo() << (loaded.banks == banks) << (save(loaded) == json);
  // prints: true true
  qInfo() << (loaded.accounts[0].reconciled.balance() == mintar::Money(cad, -125050));
  // prints: true

  open(json);
  // prints: 2 banks
  open(QByteArray(json).replace("Oak", "Elm"));
  // prints: The bank 'Elm' is there twice.
  open(QByteArray(json).replace("200", "100"));
  // prints: There is an issue with the bank 'Elm'. The account '100' is associated with the bank 'Oak' and cannot be used again.
  open(QByteArray(json).replace("Goal", "Prêt"));
  // prints: 'Prêt' is not a kind of account.
  open(QByteArray(json).replace("200", "-1"));
  // prints: -1 is not an account number.
}
