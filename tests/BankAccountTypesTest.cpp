#include "support/Printing.hpp"
#include "support/Refusal.hpp"
#include "support/ScopedTranslator.hpp"

#include <banking/BankAccountTypes.hpp>

#include <gmock/gmock.h>
#include <sstream>
#include <stdexcept>

using namespace orv::banking;
using orv::accounting::AccountTypes;

namespace {

struct Kind
{
  BankAccountTypes type;
  int value;
  char const* text;
  bool isAsset;
  bool isLiability;
  AccountTypes accountType;
};

constexpr Kind kinds[] = {
    {BankAccountTypes::Unknown, 0, "Unknown", false, false, AccountTypes{}},
    {BankAccountTypes::Chequeing, 1, "Chequeing", true, false, AccountTypes::Asset},
    {BankAccountTypes::CreditCard, 2, "Credit Card", false, true, AccountTypes::Liability},
    {BankAccountTypes::Loan, 3, "Loan", false, true, AccountTypes::Liability},
    {BankAccountTypes::Savings, 4, "Savings", true, false, AccountTypes::Asset},
    {BankAccountTypes::Goal, 5, "Goal", true, false, AccountTypes::Asset},
};

} // namespace

TEST(BankAccountTypes, HaveTextsAndClasses)
{
  for (auto const& [type, value, text, isAsset, isLiability, accountType] : kinds) {
    SCOPED_TRACE(text);
    EXPECT_EQ(static_cast<int>(type), value);
    EXPECT_EQ(toNonLocalisedText(type), text);
    EXPECT_EQ(presentationText(type), text);
    EXPECT_EQ(toBankAccountTypes(text), type);
    EXPECT_EQ(isAssetAccount(type), isAsset);
    EXPECT_EQ(isLiabilityAccount(type), isLiability);
    EXPECT_EQ(toAccountTypes(type), accountType);
    EXPECT_EQ(streamed(type), text);
    EXPECT_EQ(debugged(type), QStringLiteral("\"") + text + "\" ");
    EXPECT_EQ(debuggedPlainly(type), text);

    ScopedTranslator const translator;
    auto const translated = QStringLiteral("~") + text;
    EXPECT_EQ(toNonLocalisedText(type), text);
    EXPECT_EQ(presentationText(type), translated);
    EXPECT_EQ(streamed(type), translated);
    EXPECT_EQ(toBankAccountTypes(text), type);
    EXPECT_EQ(toBankAccountTypes(translated), type);
  }
}

TEST(BankAccountTypes, AreRecognisedInPlainTextBeforeTranslatedOnes)
{
  ScopedTranslator const translator({{"Goal", "Savings"},
                                     {"Chequeing", "Same"},
                                     {"Loan", "Same"},
                                     {"Unknown", "Other"},
                                     {"Savings", "Other"}});
  EXPECT_EQ(toBankAccountTypes("Savings"), BankAccountTypes::Savings);
  EXPECT_EQ(toBankAccountTypes("Same"), BankAccountTypes::Chequeing);
  EXPECT_EQ(toBankAccountTypes("Other"), BankAccountTypes::Savings);
}

TEST(BankAccountTypes, RefuseOtherTexts)
{
  for (auto const* const text :
       {"", "credit card", "CreditCard", " Loan", "Loan ", "%2", "Épargne"}) {
    expectThrows<std::logic_error>(QStringLiteral("Failed to convert from the weak value '") +
                                       text +
                                       "' to another type for 'N3orv7banking16BankAccountTypesE'.",
                                   [&] { toBankAccountTypes(text); });
  }
}

TEST(BankAccountTypes, RefuseOtherValues)
{
  for (auto const& [value, text] : {std::pair(6, "6"), std::pair(-1, "4294967295")}) {
    auto const type = static_cast<BankAccountTypes>(value);
    auto const strong = QStringLiteral("Failed to convert from the strong value '") + text +
                        "' to the another type for 'N3orv7banking16BankAccountTypesE'.";
    expectThrows<std::logic_error>(strong, [&] { toNonLocalisedText(type); });
    expectThrows<std::logic_error>(strong, [&] { presentationText(type); });
    expectThrows<std::logic_error>(strong, [&] { toAccountTypes(type); });
    expectThrows<std::logic_error>(
        "Unrecognised bank account type when checking if it's an asset account.",
        [&] { isAssetAccount(type); });
    expectThrows<std::logic_error>(
        "Unrecognised bank account type when checking if it's a liability account.",
        [&] { isLiabilityAccount(type); });

    std::ostringstream stream;
    expectThrows<std::logic_error>(strong, [&] { stream << type; });
    EXPECT_EQ(stream.str(), "");
    QString debugText;
    expectThrows<std::logic_error>(strong, [&] { QDebug(&debugText) << type; });
    EXPECT_EQ(debugText, "");
  }
}
