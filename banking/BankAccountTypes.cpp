#include "DebugBridge.hpp"

#include <banking/BankAccountTypes.hpp>

#include <QObject>
#include <QString>

#include <array>
#include <ostream>
#include <stdexcept>
#include <typeinfo>

namespace orv::banking {

namespace {

struct Kind
{
  QStringView plainText;
  char const* sourceText = nullptr; // the same text, for the translator
  accounting::AccountTypes accountType{};
};

// By value of the enumeration.
constexpr std::array<Kind, 6> kinds{{
    {u"Unknown", QT_TRANSLATE_NOOP("QObject", "Unknown"), accounting::AccountTypes{}},
    {u"Chequeing", QT_TRANSLATE_NOOP("QObject", "Chequeing"), accounting::AccountTypes::Asset},
    {u"Credit Card", QT_TRANSLATE_NOOP("QObject", "Credit Card"),
     accounting::AccountTypes::Liability},
    {u"Loan", QT_TRANSLATE_NOOP("QObject", "Loan"), accounting::AccountTypes::Liability},
    {u"Savings", QT_TRANSLATE_NOOP("QObject", "Savings"), accounting::AccountTypes::Asset},
    {u"Goal", QT_TRANSLATE_NOOP("QObject", "Goal"), accounting::AccountTypes::Asset},
}};

// The first of these wins where a translation gives two kinds the same text.
constexpr std::array recognitionOrder{
    BankAccountTypes::Chequeing, BankAccountTypes::Goal,    BankAccountTypes::CreditCard,
    BankAccountTypes::Loan,      BankAccountTypes::Savings, BankAccountTypes::Unknown,
};

Kind const* findKind(BankAccountTypes type) noexcept
{
  auto const index = static_cast<std::uint32_t>(type);
  return index < kinds.size() ? &kinds[index] : nullptr;
}

std::logic_error conversionError(QString const& format, QString const& value)
{
  auto const typeName = QString::fromLatin1(typeid(BankAccountTypes).name());
  return std::logic_error(format.arg(value, typeName).toStdString());
}

Kind const& kindOf(BankAccountTypes type)
{
  if (auto const* const kind = findKind(type)) {
    return *kind;
  }
  throw conversionError(
      QStringLiteral("Failed to convert from the strong value '%1' to the another type for '%2'."),
      QString::number(static_cast<unsigned int>(type)));
}

} // namespace

bool isAssetAccount(BankAccountTypes type)
{
  if (auto const* const kind = findKind(type)) {
    return kind->accountType == accounting::AccountTypes::Asset;
  }
  throw std::logic_error("Unrecognised bank account type when checking if it's an asset account.");
}

bool isLiabilityAccount(BankAccountTypes type)
{
  if (auto const* const kind = findKind(type)) {
    return kind->accountType == accounting::AccountTypes::Liability;
  }
  throw std::logic_error(
      "Unrecognised bank account type when checking if it's a liability account.");
}

QString toNonLocalisedText(BankAccountTypes const& type)
{
  auto const text = kindOf(type).plainText;
  return QString::fromRawData(text.data(), text.size());
}

std::optional<BankAccountTypes> fromNonLocalisedText(QString const& text)
{
  for (auto const type : recognitionOrder) {
    if (text == kindOf(type).plainText) {
      return type;
    }
  }
  return std::nullopt;
}

QString presentationText(BankAccountTypes const& type)
{
  return QObject::tr(kindOf(type).sourceText);
}

BankAccountTypes toBankAccountTypes(QString const& text)
{
  if (auto const type = fromNonLocalisedText(text)) {
    return *type;
  }
  for (auto const type : recognitionOrder) {
    if (text == presentationText(type)) {
      return type;
    }
  }
  throw conversionError(
      QStringLiteral("Failed to convert from the weak value '%1' to another type for '%2'."), text);
}

accounting::AccountTypes toAccountTypes(BankAccountTypes const& type)
{
  return kindOf(type).accountType;
}

std::ostream& operator<<(std::ostream& stream, BankAccountTypes const& type)
{
  return stream << presentationText(type).toStdString();
}

QDebug operator<<(QDebug debug, BankAccountTypes const& type)
{
  return writeStreamForm(debug, type);
}

QString presentationText(AccountNumberBankType const& account, foundation::LocaleAware localeAware)
{
  auto const format = QObject::tr("%1 (%2)");
  auto const kind = localeAware == foundation::LocaleAware::No
                        ? toNonLocalisedText(account.bankAccountType)
                        : presentationText(account.bankAccountType);
  return format.arg(accounting::presentationText(account.accountNumber), kind);
}

std::ostream& operator<<(std::ostream& stream, AccountNumberBankType const& account)
{
  return stream << "Bank Account Number (" << account.accountNumber << "), Bank Account Type ("
                << account.bankAccountType << ')';
}

} // namespace orv::banking
