#include "support/Refusal.hpp"

#include <QSet>

#include <unordered_set>

static_assert(std::is_base_of_v<orv::foundation::Error, BankError>);
static_assert(std::is_same_v<decltype(BankName() <=> BankName()), std::strong_ordering>);
static_assert(QTypeInfo<BankName>::isRelocatable);
static_assert(QTypeInfo<BankAccount>::isRelocatable);

TEST(BankName, IsRefusedWhenBlank)
{
  for (auto const& blank : {QString(), QString(""), QString("   "), QString("\t\n\u00a0")}) {
    Refusal<BankName> const refusals[] = {{[&](auto& name) { name = BankName(blank); },
                                           {},
                                           "The name of a financial institution cannot be empty."}};
    expectRefusals(BankName(), refusals);
  }
}

TEST(BankName, IsKeptAndWrittenAsItIs)
{
  EXPECT_EQ(presentationText(BankName(" É \"A\\B\"")), " É \"A\\B\"");
  expectWritten(BankName(" É \"A\\B\""), "Financial Institution Name: ( É \"A\\B\")");
}

TEST(BankName, IsOrderedByCodeUnitAndHashed)
{
  // UTF-16 puts surrogates before U+FF21, which no other encoding does.
  QVector<BankName> ordered{BankName()};
  for (auto const* const text : {"A", "A ", "B", "a", "\U0001F3E6", "\uFF21"}) {
    ordered += BankName(text);
  }
  for (auto const& lhs : ordered) {
    for (auto const& rhs : ordered) {
      EXPECT_EQ(lhs <=> rhs, &lhs <=> &rhs);
      EXPECT_EQ(lhs == rhs, &lhs == &rhs);
    }
  }
  EXPECT_EQ(QSet<BankName>(ordered.begin(), ordered.end()).size(), 7);
  EXPECT_EQ(std::unordered_set<BankName>(ordered.begin(), ordered.end()).size(), 7U);
}
