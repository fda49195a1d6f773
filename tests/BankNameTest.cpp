#include "support/Refusal.hpp"

#include <QSet>

#include <unordered_set>

static_assert(std::is_base_of_v<orv::foundation::Error, BankError>);
static_assert(std::is_same_v<decltype(BankName() <=> BankName()), std::strong_ordering>);
static_assert(QTypeInfo<BankName>::isRelocatable);
static_assert(QTypeInfo<BankAccount>::isRelocatable);

TEST(BankName, IsRefusedWhenBlank)
{
  for (auto const& blank : {QString(), QString(""), QString("   "), QString("\t\n\u00a0\u2003")}) {
    EXPECT_REFUSED(elm, BankName(blank), {},
                   "The name of a financial institution cannot be empty.");
  }
}

TEST(BankName, IsKeptAndWrittenAsItIs)
{
  ScopedTranslator const translator; // which names never meet
  auto const odd = " É \"A\\B\"" + QString(QChar(0)) + "\u200b%1\n ";
  for (auto const& text : {odd, QString(QChar(0)), QString("\u200b")}) {
    BankName const name(text);
    EXPECT_EQ(presentationText(name), text);
    EXPECT_FALSE(name.isEmpty());
    expectWritten(name, "Financial Institution Name: (" + text + ")");
  }
  EXPECT_TRUE(BankName().isEmpty());
  expectWritten(BankName(), "Financial Institution Name: ()");
}

TEST(BankName, IsOrderedByCodeUnitAndHashed)
{
  QLocale::setDefault(QLocale("de_DE"));
  // UTF-16 puts surrogates before U+FF21, which no other encoding does.
  std::vector<BankName> ordered{BankName()};
  for (auto const* const text : {"A", "A ", "B", "a", "e\u0301", "é", "\U0001F3E6", "\uFF21"}) {
    EXPECT_LT(ordered.back(), BankName(text));
    EXPECT_NE(ordered.back(), BankName(text));
    ordered.emplace_back(text);
  }
  EXPECT_EQ(QSet<BankName>(ordered.begin(), ordered.end()).size(), 9);
  EXPECT_EQ(std::unordered_set<BankName>(ordered.begin(), ordered.end()).size(), 9U);
  EXPECT_NE(BankName("A"), BankName("a"));
  EXPECT_NE(qHash(elm, 1), qHash(elm, 2));
  BankName const again(QString(elm.institution().constData())); // of a text of its own
  EXPECT_EQ(qHash(again, 1), qHash(elm, 1));
  EXPECT_EQ(std::hash<BankName>()(again), std::hash<BankName>()(elm));
}
