#include "support/Refusal.hpp"

#include <banking/BankAccountTypes.hpp>

#include <stdexcept>

using namespace orv::banking;
using orv::accounting::AccountNumber;
using orv::accounting::AccountTypes;

TEST(BankAccountTypes, HaveTextsAndClasses)
{
  std::tuple<BankAccountTypes, char const*, AccountTypes> const kinds[] = {
      {BankAccountTypes::Unknown, "Unknown", AccountTypes{}},
      {BankAccountTypes::Chequeing, "Chequeing", AccountTypes::Asset},
      {BankAccountTypes::CreditCard, "Credit Card", AccountTypes::Liability},
      {BankAccountTypes::Loan, "Loan", AccountTypes::Liability},
      {BankAccountTypes::Savings, "Savings", AccountTypes::Asset},
      {BankAccountTypes::Goal, "Goal", AccountTypes::Asset},
  };
  int value = 0;
  for (auto const& [type, text, accountType] : kinds) {
    SCOPED_TRACE(text);
    EXPECT_EQ(static_cast<int>(type), value++);
    EXPECT_EQ(toAccountTypes(type), accountType);
    EXPECT_EQ(isAssetAccount(type), accountType == AccountTypes::Asset);
    EXPECT_EQ(isLiabilityAccount(type), accountType == AccountTypes::Liability);
    EXPECT_EQ(debugged(type), QStringLiteral("\"") + text + "\" ");

    ScopedTranslator const translator;
    auto const translated = QStringLiteral("~") + text;
    EXPECT_EQ(toNonLocalisedText(type), text);
    EXPECT_EQ(presentationText(type), translated);
    EXPECT_EQ(streamed(type), translated);
    EXPECT_EQ(debuggedPlainly(type), translated);
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

TEST(BankAccountTypes, RefuseOtherTextsAndValues)
{
  auto const text = QStringLiteral("Failed to convert from the %1 value '%2' to %3 type for "
                                   "'N3orv7banking16BankAccountTypesE'.");
  for (auto const& weak : std::initializer_list<QString>{"", "credit card", "CreditCard", " Loan",
                                                         "Loan ", "%2", "Épargne"}) {
    expectThrows<std::logic_error>(text.arg("weak", weak, "another"),
                                   [&] { toBankAccountTypes(weak); });
  }
  for (auto const value : {6, -1}) {
    auto const type = static_cast<BankAccountTypes>(value);
    auto const strong = text.arg("strong").arg(static_cast<unsigned int>(value)).arg("the another");
    std::ostringstream stream;
    QString debugText;
    std::function<void()> const calls[] = {
        [&] { toNonLocalisedText(type); },
        [&] { presentationText(type); },
        [&] { toAccountTypes(type); },
        [&] {
          stream << AccountNumberBankType{AccountNumber(1), type};
        },
        [&] { QDebug(&debugText) << type; },
    };
    for (auto const& call : calls) {
      expectThrows<std::logic_error>(strong, call);
    }
    EXPECT_EQ(stream.str(), "Bank Account Number (1), Bank Account Type (");
    EXPECT_EQ(debugText, "");
    auto const unrecognised =
        QStringLiteral("Unrecognised bank account type when checking if it's %1 account.");
    expectThrows<std::logic_error>(unrecognised.arg("an asset"), [&] { isAssetAccount(type); });
    expectThrows<std::logic_error>(unrecognised.arg("a liability"),
                                   [&] { isLiabilityAccount(type); });
  }
}
