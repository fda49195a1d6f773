#include "support/Testing.hpp"

#include <QDir>

using orv::accounting::AccountTypes;
using orv::foundation::LocaleAware;

static_assert(int(AccountTypes::Asset) == 1 && int(AccountTypes::Liability) == 4);

// In the order in which texts are recognised.
static std::tuple<int, QString, AccountTypes> const kinds[] = {
    {1, "Chequeing", AccountTypes::Asset},       {5, "Goal", AccountTypes::Asset},
    {2, "Credit Card", AccountTypes::Liability}, {3, "Loan", AccountTypes::Liability},
    {4, "Savings", AccountTypes::Asset},         {0, "Unknown", AccountTypes{}}};

TEST(BankAccountTypes, HaveTextsAndClasses)
{
  EXPECT_EQ(presentationText(Unknown), "Unknown");
  ScopedTranslator const translator;
  for (auto const& [value, text, accountType] : kinds) {
    auto const type = static_cast<BankAccountTypes>(value);
    EXPECT_EQ(toAccountTypes(type), accountType);
    EXPECT_EQ(isAssetAccount(type), accountType == AccountTypes::Asset);
    EXPECT_EQ(isLiabilityAccount(type), accountType == AccountTypes::Liability);
    EXPECT_EQ(toNonLocalisedText(type), text);
    EXPECT_EQ(presentationText(type), "~" + text);
    expectWritten(type, "~" + text);
    EXPECT_EQ(toBankAccountTypes(text), type);
    EXPECT_EQ(toBankAccountTypes("~" + text), type);
    EXPECT_EQ(fromNonLocalisedText(text), type);
    EXPECT_EQ(fromNonLocalisedText("~" + text), std::nullopt);
  }
}

TEST(BankAccountTypes, AreReadFromUntranslatedTextsFirst)
{
  ScopedTranslator const toLoan([](auto const&) { return "Loan"; });
  EXPECT_EQ(toBankAccountTypes("Loan"), Loan);
  QStringList unlike; // the kinds whose texts are not the same as all later ones
  ScopedTranslator const toSame(
      [&](auto const& text) { return unlike.contains(text) ? "" : "same"; });
  for (auto const& [value, text, accountType] : kinds) {
    EXPECT_EQ(toNonLocalisedText(toBankAccountTypes("same")), text);
    unlike += text;
  }
}

#ifdef TRANSLATIONS_FOLDER // where they are built
TEST(BankAccountTypes, AreReadBackInEachLanguage)
{
  auto const files = QDir(TRANSLATIONS_FOLDER).entryInfoList({"*.qm"});
  EXPECT_GE(files.size(), 3);
  for (auto const& file : files) {
    QTranslator translator;
    EXPECT_TRUE(translator.load(file.filePath()));
    QCoreApplication::installTranslator(&translator);
    for (auto const& [value, text, accountType] : kinds) {
      EXPECT_EQ(toNonLocalisedText(toBankAccountTypes(presentationText(BankAccountTypes{value}))),
                text);
    }
  }
}
#endif

// The errors are for the programmer: they are not translated.
TEST(BankAccountTypes, RefuseOtherTextsAndValues)
{
  ScopedTranslator const translator;
  QString const name(typeid(BankAccountTypes).name());
  QString const weak("Failed to convert from the weak value '%1' to another type for '%2'.");
  for (QString const text :
       {"", "credit card", "CreditCard", " Loan", "Loan ", "%2", "~~Loan", "~loan"}) {
    EXPECT_EQ(fromNonLocalisedText(text), std::nullopt);
    EXPECT_LOGIC_ERROR(toBankAccountTypes(text), weak.arg(text, name));
  }
  QString const strong(
      "Failed to convert from the strong value '%1' to the another type for '%2'.");
  QString const side("Unrecognised bank account type when checking if it's %1 account.");
  for (auto const& [value, digits] : {std::pair(65537, "65537"), std::pair(-1, "4294967295")}) {
    AccountNumberBankType const account{hundred, BankAccountTypes{value}};
    auto const type = account.bankAccountType;
    EXPECT_LOGIC_ERROR(toNonLocalisedText(type), strong.arg(digits, name));
    EXPECT_LOGIC_ERROR(presentationText(type), strong.arg(digits, name));
    EXPECT_LOGIC_ERROR(presentationText(account, LocaleAware::No), strong.arg(digits, name));
    EXPECT_LOGIC_ERROR(toAccountTypes(type), strong.arg(digits, name));
    EXPECT_LOGIC_ERROR(isAssetAccount(type), side.arg("an asset"));
    EXPECT_LOGIC_ERROR(isLiabilityAccount(type), side.arg("a liability"));
  }
}

// Nothing of what holds such a kind reaches a debug stream.
static void expectNotWritten(auto const& value)
{
  QString text;
  EXPECT_THROW(QDebug(&text) << value, std::logic_error);
  EXPECT_EQ(text, "");
}

TEST(BankAccountTypes, OutsideTheEnumerationCanBeHeldButNotWritten)
{
  BankAccount const account{pine, {hundred, noKind}};
  Bank const bank(pine, {{AccountNumber(9), Loan}, {hundred, noKind}}, false);
  expectNotWritten(noKind);
  expectNotWritten(account);
  expectNotWritten(ReconciledBankAccount(account, dollars, march));
  expectNotWritten(bank);
  BankMap map({{pine, Bank(pine, {}, false)}});
  map.update(bank);
  EXPECT_EQ(map, BankMap({{pine, bank}}));
  map.remove(pine);
  map.add(bank);
  map.add(pine, hundred, Loan); // which repairs it
  map.remove(pine, hundred);
}
