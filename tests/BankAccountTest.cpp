#include "support/Printing.hpp"
#include "support/Refusal.hpp"
#include "support/ScopedTranslator.hpp"

#include <banking/BankAccount.hpp>

#include <gmock/gmock.h>
#include <sstream>
#include <stdexcept>

using namespace orv::banking;
using orv::accounting::AccountNumber;
using orv::foundation::LocaleAware;

TEST(BankAccount, IsPresentedAndStreamed)
{
  BankAccount const account{BankName(QStringLiteral("É %1 %2")),
                            {AccountNumber(100), BankAccountTypes::CreditCard}};
  EXPECT_EQ(presentationText(account, LocaleAware::Yes),
            QStringLiteral("É %1 %2: 100 (Credit Card)"));
  EXPECT_EQ(
      streamed(account),
      QStringLiteral("Bank (Financial Institution Name: (É %1 %2)), Account Type (Bank Account "
                     "Number (100), Bank Account Type (Credit Card))"));
  EXPECT_EQ(debuggedPlainly(account), streamed(account));
  EXPECT_EQ(presentationText(BankAccount{}, LocaleAware::No), ": 0 (Unknown)");
  EXPECT_EQ(streamed(BankAccount{}), "Bank (Financial Institution Name: ()), Account Type (Bank "
                                     "Account Number (0), Bank Account Type (Unknown))");

  // The inner format is translated either way, the outer one never, the kind as asked.
  ScopedTranslator const translator({{"%1 (%2)", "<%2|%1>"}, {"Credit Card", "Karte %1"}});
  EXPECT_EQ(presentationText(account, LocaleAware::Yes), QStringLiteral("É %1 %2: <Karte %1|100>"));
  EXPECT_EQ(presentationText(account, LocaleAware::No),
            QStringLiteral("É %1 %2: <Credit Card|100>"));
}

TEST(BankAccount, RefusesAnImpossibleKind)
{
  BankAccount const account{BankName("Elm"), {AccountNumber(1), static_cast<BankAccountTypes>(7)}};
  QString const text("Failed to convert from the strong value '7' to the another type for "
                     "'N3orv7banking16BankAccountTypesE'.");
  for (auto const localeAware : {LocaleAware::Yes, LocaleAware::No}) {
    expectThrows<std::logic_error>(text, [&] { presentationText(account, localeAware); });
  }
  std::ostringstream stream;
  expectThrows<std::logic_error>(text, [&] { stream << account.accountNumberBankType; });
  EXPECT_EQ(stream.str(), "Bank Account Number (1), Bank Account Type (");
}
