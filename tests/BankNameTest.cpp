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
    expectRefused<int>({"blank name", [&](int&) { BankName const name(blank); }, "",
                        "The name of a financial institution cannot be empty."},
                       unused);
  }
}

TEST(BankName, KeepsItsTextAsItWasGiven)
{
  BankName const name(QStringLiteral(" Épargne \"A\\B\" "));
  EXPECT_EQ(name.institution(), QStringLiteral(" Épargne \"A\\B\" "));
  EXPECT_EQ(presentationText(name), name.institution());
  EXPECT_FALSE(name.isEmpty());
  EXPECT_NE(name, BankName(name.institution().trimmed()));

  EXPECT_TRUE(BankName().isEmpty());
  EXPECT_EQ(presentationText(BankName()), "");
}

TEST(BankName, OrdersByCodeUnit)
{
  // The last but one is two surrogates, which order before U+FFxx though the character does not.
  QStringList const ascending{"A", "AB", "Z", "a", "é", "\U0001F3E6", "\uFF21"};
  for (qsizetype i = 0; i < ascending.size(); ++i) {
    for (qsizetype j = 0; j < ascending.size(); ++j) {
      BankName const lhs(ascending[i]);
      BankName const rhs(ascending[j]);
      EXPECT_EQ(lhs < rhs, i < j) << i << ' ' << j;
      EXPECT_EQ(lhs == rhs, i == j) << i << ' ' << j;
    }
  }
}

TEST(BankName, StreamsAndDebugs)
{
  BankName const name(QStringLiteral("É \"A\\B\""));
  EXPECT_EQ(streamed(name), QStringLiteral("Financial Institution Name: (É \"A\\B\")"));
  EXPECT_EQ(debuggedPlainly(name), streamed(name));
  EXPECT_EQ(debugged(name), QStringLiteral("\"Financial Institution Name: (É \\\"A\\\\B\\\")\" "));
  EXPECT_EQ(streamed(BankName()), "Financial Institution Name: ()");

  QString text;
  QDebug(&text).nospace() << name << BankName(QStringLiteral("B")) << QStringLiteral("after");
  EXPECT_EQ(text, debugged(name).trimmed() + "\"Financial Institution Name: (B)\"\"after\"");
}

TEST(BankError, NamesTheBankAndTheRuleAsTheyAre)
{
  EXPECT_EQ(QString::fromUtf8(BankError(BankName(QStringLiteral(" É%2%1 ")), "Rule %1.").what()),
            QStringLiteral("There is an issue with the bank ' É%2%1 '. Rule %1."));
}
