#include "support/Refusal.hpp"

#include <banking/BankAccount.hpp>

using namespace orv::banking;
using orv::accounting::AccountNumber;
using orv::foundation::LocaleAware;

TEST(BankAccount, IsPresentedAndStreamed)
{
  BankAccount const account{BankName(QStringLiteral("É %1 %2")),
                            {AccountNumber(100), BankAccountTypes::CreditCard}};
  EXPECT_EQ(
      streamed(account),
      QStringLiteral("Bank (Financial Institution Name: (É %1 %2)), Account Type (Bank Account "
                     "Number (100), Bank Account Type (Credit Card))"));
  EXPECT_EQ(debuggedPlainly(account), streamed(account));
  EXPECT_EQ(presentationText(BankAccount{}, LocaleAware::No), ": 0 (Unknown)");

  // The inner format is translated either way, the outer one never, the kind as asked.
  ScopedTranslator const translator({{"%1 (%2)", "<%2|%1>"}, {"Credit Card", "Karte %1"}});
  EXPECT_EQ(presentationText(account, LocaleAware::Yes), QStringLiteral("É %1 %2: <Karte %1|100>"));
  EXPECT_EQ(presentationText(account, LocaleAware::No),
            QStringLiteral("É %1 %2: <Credit Card|100>"));
}
