#include "DebugBridge.hpp"

#include <banking/BankAccountTypes.hpp>

#include <QObject>
#include <QString>

#include <algorithm>
#include <iterator>
#include <ostream>
#include <stdexcept>
#include <typeinfo>

namespace orv::banking {

namespace {

using accounting::AccountTypes;

struct Kind
{
  BankAccountTypes value{};
  QStringView plainText;
  AccountTypes accountType{};
};

// In the order in which texts are recognised: the first wins where a translation gives two kinds
// the same text. u"" makes UTF-16 of the text, which the macro shows to translators.
constexpr Kind kinds[] = {
    {BankAccountTypes::Chequeing, u"" QT_TRANSLATE_NOOP("QObject", "Chequeing"),
     AccountTypes::Asset},
    {BankAccountTypes::Goal, u"" QT_TRANSLATE_NOOP("QObject", "Goal"), AccountTypes::Asset},
    {BankAccountTypes::CreditCard, u"" QT_TRANSLATE_NOOP("QObject", "Credit Card"),
     AccountTypes::Liability},
    {BankAccountTypes::Loan, u"" QT_TRANSLATE_NOOP("QObject", "Loan"), AccountTypes::Liability},
    {BankAccountTypes::Savings, u"" QT_TRANSLATE_NOOP("QObject", "Savings"), AccountTypes::Asset},
    {BankAccountTypes::Unknown, u"" QT_TRANSLATE_NOOP("QObject", "Unknown"), AccountTypes{}},
};

Kind const* findKind(BankAccountTypes type)
{
  auto const* const found = std::ranges::find(kinds, type, &Kind::value);
  return found == std::end(kinds) ? nullptr : found;
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
    return kind->accountType == AccountTypes::Asset;
  }
  throw std::logic_error("Unrecognised bank account type when checking if it's an asset account.");
}

bool isLiabilityAccount(BankAccountTypes type)
{
  if (auto const* const kind = findKind(type)) {
    return kind->accountType == AccountTypes::Liability;
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
  auto const* const found = std::ranges::find(kinds, text, &Kind::plainText);
  return found == std::end(kinds) ? std::nullopt : std::optional(found->value);
}

QString presentationText(BankAccountTypes const& type)
{
  return QObject::tr(kindOf(type).plainText.toUtf8().constData());
}

BankAccountTypes toBankAccountTypes(QString const& text)
{
  if (auto const type = fromNonLocalisedText(text)) {
    return *type;
  }
  for (auto const& kind : kinds) {
    if (text == presentationText(kind.value)) {
      return kind.value;
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
