#include "support/Printing.hpp"
#include "support/Refusal.hpp"

#include <banking/BankError.hpp>
#include <banking/BankName.hpp>
#include <foundation/Error.hpp>

#include <gmock/gmock.h>
#include <stdexcept>
#include <type_traits>

using orv::banking::BankError;
using orv::banking::BankName;

static_assert(std::is_base_of_v<orv::foundation::Error, BankError>);
static_assert(std::is_base_of_v<std::runtime_error, BankError>);
static_assert(std::is_nothrow_copy_assignable_v<BankName>);

TEST(BankName, IsRefusedWhenBlank)
{
  for (auto const& blank : {QString(), QString(""), QString("   "), QString("\t\n\u00a0")}) {
    int unused = 0;
    expectRefused<int>({[&](int&) { BankName const name(blank); }, "",
                        "The name of a financial institution cannot be empty."},
                       unused);
  }
}

TEST(BankName, KeepsAndPresentsItsText)
{
  BankName const name(QStringLiteral(" É \"A\\B\""));
  EXPECT_FALSE(name.isEmpty());
  EXPECT_EQ(presentationText(name), QStringLiteral(" É \"A\\B\""));
  EXPECT_EQ(streamed(name), QStringLiteral("Financial Institution Name: ( É \"A\\B\")"));
  EXPECT_EQ(debuggedPlainly(name), streamed(name));
  EXPECT_EQ(debugged(name), QStringLiteral("\"Financial Institution Name: ( É \\\"A\\\\B\\\")\" "));
  EXPECT_TRUE(BankName().isEmpty());
  EXPECT_EQ(presentationText(BankName()), "");

  QString text;
  QDebug(&text).nospace() << name << BankName(QStringLiteral("B")) << QStringLiteral("after");
  EXPECT_EQ(text, debugged(name).trimmed() + "\"Financial Institution Name: (B)\"\"after\"");
}

TEST(BankError, NamesTheBankAndTheRuleAsTheyAre)
{
  EXPECT_EQ(QString::fromUtf8(BankError(BankName(QStringLiteral(" É%2%1 ")), "Rule %1.").what()),
            QStringLiteral("There is an issue with the bank ' É%2%1 '. Rule %1."));
}
