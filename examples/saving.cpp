// Saves a household's books as JSON and loads them again. The page on saving and loading shows
// parts of it. A comment "prints:" tells what is printed there; a test compares these comments with
// the output.

#include <banking/BankMap.hpp>
#include <banking/ReconciledBalance.hpp>

#include <QDebug>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QTemporaryDir>

#include <limits>
#include <stdexcept>
#include <utility>

using namespace orv::banking;
using orv::accounting::AccountNumber;

namespace {

struct Books
{
  BankMap banks;
  std::map<AccountNumber, ReconciledBalance> balances; // of the accounts that have been reconciled
};

QByteArray toJson(Books const& books)
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
  QJsonArray balances;
  for (auto const& [number, known] : books.balances) {
    balances += QJsonObject{{"number", qint64(number.integer())},
                            {"currency", known.balance.currency().isoCode()},
                            {"minorUnits", known.balance.minorUnits()},
                            {"date", known.occurredOn.toString(Qt::ISODate)}};
  }
  return QJsonDocument(QJsonObject{{"banks", banks}, {"balances", balances}}).toJson();
}

// Replaces the file as a whole, or returns false and leaves it as it was.
bool save(Books const& books, QString const& fileName)
{
  QSaveFile file(fileName);
  auto const json = toJson(books);
  return file.open(QIODevice::WriteOnly) && file.write(json) == json.size() && file.commit();
}

// What is wrong with a file, for the user.
class LoadError : public std::runtime_error
{
public:
  explicit LoadError(QString const& text) : std::runtime_error(text.toStdString()) {}
};

// The member of an object, which has to be there and to be of the type.
QJsonValue member(QJsonValue const& object, QString const& name, QJsonValue::Type type)
{
  auto const value = object.toObject()[name];
  if (value.type() != type) {
    throw LoadError(QString("'%1' is missing, or has the wrong type.").arg(name));
  }
  return value;
}

QString text(QJsonValue const& object, QString const& name)
{
  return member(object, name, QJsonValue::String).toString();
}

qint64 integer(QJsonValue const& object, QString const& name)
{
  auto const value = member(object, name, QJsonValue::Double);
  auto const integer = value.toInteger();
  if (integer == 0 && value.toDouble() != 0) {
    throw LoadError(QString("'%1' has to be a whole number of 64 bits.").arg(name));
  }
  return integer;
}

AccountNumber number(QJsonValue const& object)
{
  auto const number = integer(object, "number");
  if (number < 1 || number > std::numeric_limits<quint32>::max()) {
    throw LoadError(QString("%1 is not an account number.").arg(number));
  }
  return AccountNumber(static_cast<unsigned int>(number));
}

BankAccountTypes kind(QJsonValue const& object)
{
  auto const kind = text(object, "kind");
  if (auto const known = fromNonLocalisedText(kind)) {
    return *known;
  }
  throw LoadError(QString("'%1' is not a kind of account.").arg(kind));
}

mintar::Money amount(QJsonValue const& object)
{
  return {mintar::Currency(text(object, "currency")), integer(object, "minorUnits")};
}

QDate date(QJsonValue const& object)
{
  auto const date = QDate::fromString(text(object, "date"), Qt::ISODate);
  if (!date.isValid()) {
    throw LoadError(QString("'%1' is not a date.").arg(text(object, "date")));
  }
  return date;
}

Bank toBank(QJsonValue const& saved)
{
  std::map<AccountNumber, BankAccountTypes> accounts;
  for (auto const& account : member(saved, "accounts", QJsonValue::Array).toArray()) {
    if (!accounts.emplace(number(account), kind(account)).second) {
      throw LoadError(
          QString("The number %1 is there twice.").arg(presentationText(number(account))));
    }
  }
  return Bank(BankName(text(saved, "name")), std::move(accounts),
              member(saved, "isClosed", QJsonValue::Bool).toBool());
}

Books fromJson(QByteArray const& json)
{
  QJsonParseError error;
  QJsonValue const saved = QJsonDocument::fromJson(json, &error).object();
  if (error.error != QJsonParseError::NoError) {
    throw LoadError(QString("The file is damaged, or holds no books.")); // Qt's words are English
  }
  std::map<BankName, Bank> banks;
  for (auto const& value : member(saved, "banks", QJsonValue::Array).toArray()) {
    auto bank = toBank(value);
    auto const name = bank.name();
    if (!banks.emplace(name, std::move(bank)).second) {
      throw LoadError(QString("The bank '%1' is there twice.").arg(presentationText(name)));
    }
  }
  Books books{BankMap(std::move(banks)), {}}; // checks the rules that span banks
  for (auto const& value : member(saved, "balances", QJsonValue::Array).toArray()) {
    auto const ours = number(value);
    if (!books.banks.find(ours)) {
      throw LoadError(QString("No bank holds the number %1.").arg(presentationText(ours)));
    }
    if (!books.balances.emplace(ours, ReconciledBalance{amount(value), date(value)}).second) {
      throw LoadError(QString("The balance of %1 is there twice.").arg(presentationText(ours)));
    }
  }
  return books;
}

Books load(QString const& fileName)
{
  QFile file(fileName);
  if (!file.open(QIODevice::ReadOnly)) {
    throw LoadError(file.errorString());
  }
  return fromJson(file.readAll());
}

// Shows how many banks there are, or why they cannot be loaded. A program that goes on in spite of
// an error must not save to the same file: that would replace the user's books.
void show(QByteArray const& json)
{
  try {
    qInfo() << fromJson(json).banks.size() << "banks";
  } catch (BankError const& error) { // a rule of banking is broken
    qInfo().noquote() << error.what();
  } catch (LoadError const& error) { // the file cannot be read
    qInfo().noquote() << error.what();
  }
}

} // namespace

int main()
{
  BankName const elm("Elm");
  BankName const oak("Oak");
  AccountNumber const loan(100);
  Books const books{
      BankMap({{elm, Bank(elm, {{loan, BankAccountTypes::Loan}}, false)},
               {oak, Bank(oak, {{AccountNumber(200), BankAccountTypes::Goal}}, true)}}),
      {{loan, {mintar::Money(mintar::Currency("CAD"), -125050), QDate(2026, 10, 31)}}}};
  QTemporaryDir const folder;
  auto const fileName = folder.filePath("books.json");
  qInfo() << save(books, fileName);
  // prints: true
  auto const loaded = load(fileName);
  qInfo() << (loaded.banks == books.banks) << loaded.balances.at(loan).balance.minorUnits();
  // prints: true -125050

  auto const json = toJson(books);
  show(json);
  // prints: 2 banks
  show("garbage");
  // prints: The file is damaged, or holds no books.
  show(R"({"bank": []})");
  // prints: 'banks' is missing, or has the wrong type.
  show(QByteArray(json).replace("2026-10-31", "2026-13-31"));
  // prints: '2026-13-31' is not a date.
  show(QByteArray(json).replace("200", "100"));
  // prints: There is an issue with the bank 'Elm'. The account '100' is associated with the bank 'Oak' and cannot be used again.
}
