#include "support/Refusal.hpp"

#include <QDir>

using orv::accounting::AccountTypes;

TEST(BankAccountTypes, HaveTextsAndClasses)
{
  std::tuple<QString, AccountTypes> const kinds[] = {
      {"Unknown", AccountTypes::Unknown},       {"Chequeing", AccountTypes::Asset},
      {"Credit Card", AccountTypes::Liability}, {"Loan", AccountTypes::Liability},
      {"Savings", AccountTypes::Asset},         {"Goal", AccountTypes::Asset}};
  ScopedTranslator const translator;
  int value = 0;
  for (auto const& [text, accountType] : kinds) {
    auto const type = static_cast<BankAccountTypes>(value++);
    EXPECT_EQ(toAccountTypes(type), accountType);
    EXPECT_EQ(isAssetAccount(type), accountType == AccountTypes::Asset);
    EXPECT_EQ(isLiabilityAccount(type), accountType == AccountTypes::Liability);
    EXPECT_EQ(toNonLocalisedText(type), text);
    EXPECT_EQ(presentationText(type), "~" + text);
    expectWritten(type, "~" + text);
    EXPECT_EQ(toBankAccountTypes(text), type);
    EXPECT_EQ(toBankAccountTypes("~" + text), type);
  }
}

TEST(BankAccountTypes, AreRecognisedInPlainTextBeforeTranslatedOnes)
{
  ScopedTranslator const toLoan([](auto const&) { return "Loan"; });
  EXPECT_EQ(toBankAccountTypes("Loan"), Loan);
  ScopedTranslator const toSize([](auto const& text) { return QString::number(text.size()); });
  EXPECT_EQ(toBankAccountTypes("4"), Goal);    // before Loan
  EXPECT_EQ(toBankAccountTypes("7"), Savings); // before Unknown
}

#ifdef ORV_BANKING_TRANSLATIONS // where they are built
TEST(BankAccountTypes, AreReadBackInEachLanguage)
{
  auto const files = QDir(ORV_BANKING_TRANSLATIONS).entryInfoList({"*.qm"});
  EXPECT_GE(files.size(), 3);
  for (auto const& file : files) {
    QTranslator translator;
    EXPECT_TRUE(translator.load(file.filePath()));
    QCoreApplication::installTranslator(&translator);
    for (auto const type : {Unknown, Chequeing, CreditCard, Loan, Savings, Goal}) {
      EXPECT_EQ(toBankAccountTypes(presentationText(type)), type);
    }
  }
}
#endif

TEST(BankAccountTypes, RefuseOtherTexts)
{
  for (QString const text : {"", "credit card", "CreditCard", " Loan", "Loan ", "%2", "Épargne"}) {
    expectThrows<std::logic_error>("Failed to convert from the weak value '" + text +
                                       "' to another type for 'N3orv7banking16BankAccountTypesE'.",
                                   [&] { return toBankAccountTypes(text); });
  }
}

TEST(BankAccountTypes, RefuseOtherValues)
{
  QString const strong("Failed to convert from the strong value '%1' to the another type for "
                       "'N3orv7banking16BankAccountTypesE'.");
  QString const other("Unrecognised bank account type when checking if it's %1 account.");
  for (auto const& [value, digits] : {std::pair(6, "6"), std::pair(-1, "4294967295")}) {
    auto const type = static_cast<BankAccountTypes>(value);
    std::pair<QString, std::function<void()>> const refusals[] = {
        {strong.arg(digits), [&] { return toNonLocalisedText(type); }},
        {strong.arg(digits), [&] { return presentationText(type); }},
        {strong.arg(digits), [&] { return toAccountTypes(type); }},
        {strong.arg(digits), [&] { return streamed(type); }},
        {strong.arg(digits), [&] { return debugged(type); }},
        {other.arg("an asset"), [&] { return isAssetAccount(type); }},
        {other.arg("a liability"), [&] { return isLiabilityAccount(type); }},
    };
    for (auto const& [text, call] : refusals) {
      expectThrows<std::logic_error>(text, call);
    }
  }
}
