#include "support/Testing.hpp"

using orv::foundation::LocaleAware;

TEST(BankAccount, IsShownInTheUsersLanguageExceptForItsName)
{
  // It groups digits, but not those of account numbers.
  ScopedLocale const german(QLocale("de_DE"));
  BankAccount const account{BankName("É %1 %2"), {AccountNumber(12345), CreditCard}};
  EXPECT_EQ(presentationText(BankAccount{}, LocaleAware::No), ": 0 (Unknown)");

  // The inner format is looked up either way, before the kind; the outer one never.
  QStringList looked;
  ScopedTranslator const translator([&](QString const& text) {
    looked += text;
    return text == "%1 (%2)" ? "<%2|%1>" : "Karte %1";
  });
  EXPECT_EQ(presentationText(account, LocaleAware::Yes), "É %1 %2: <Karte %1|12345>");
  EXPECT_EQ(presentationText(account, LocaleAware::No), "É %1 %2: <Credit Card|12345>");
  EXPECT_EQ(looked, QStringList({"%1 (%2)", "Credit Card", "%1 (%2)"}));
  // Whatever is not No asks for the user's language.
  EXPECT_EQ(presentationText(account, LocaleAware{2}), "É %1 %2: <Karte %1|12345>");
  expectWritten(account, "Bank (Financial Institution Name: (É %1 %2)), Account Type (Bank Account "
                         "Number (12345), Bank Account Type (Karte %1))");
}
