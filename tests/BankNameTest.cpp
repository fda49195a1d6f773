#include "support/Refusal.hpp"

#include <QSet>

#include <unordered_set>

TEST(BankName, IsRefusedIfBlank)
{
  for (auto const& blank : {QString(), QString(""), QString("   "), QString("\t\n\u00a0\u2003")}) {
    EXPECT_REFUSAL(BankName(blank), {}, "The name of a financial institution cannot be empty.");
  }
}

TEST(BankName, KeepsItsTextAsGiven)
{
  ScopedTranslator const translator; // which is never asked
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

TEST(BankName, IsOrderedByCodeUnitAndHashedByItsWholeText)
{
  ScopedLocale const german(QLocale("de_DE")); // which does not matter
  // UTF-16 puts surrogates before U+FF21, which no other encoding does.
  std::vector<BankName> ordered{BankName()};
  for (auto const* const text : {"A", "A ", "B", "a", "e\u0301", "é", "\U0001F3E6", "\uFF21"}) {
    EXPECT_LT(ordered.back(), BankName(text));
    EXPECT_NE(ordered.back(), BankName(text));
    ordered.emplace_back(text);
  }
  EXPECT_EQ(QSet<BankName>(ordered.begin(), ordered.end()).size(), 9);
  EXPECT_EQ(std::unordered_set<BankName>(ordered.begin(), ordered.end()).size(), 9U);
  expectUnequal(BankName("A"), BankName("a"));
  // No half of a text decides on its hash.
  QSet<std::size_t> qtHashes;
  QSet<std::size_t> standardHashes;
  for (auto const* const text : {"Elm Elm", "Elm Oak", "Oak Elm", "Oak Oak"}) {
    qtHashes << qHash(BankName(text));
    standardHashes << std::hash<BankName>()(BankName(text));
  }
  EXPECT_EQ(qtHashes.size(), 4);
  EXPECT_EQ(standardHashes.size(), 4);
  EXPECT_NE(qHash(elm, 1), qHash(elm, 2));
  BankName const again(QString(elm.institution().constData())); // of a text of its own
  EXPECT_EQ(qHash(again, 1), qHash(elm, 1));
  EXPECT_EQ(std::hash<BankName>()(again), std::hash<BankName>()(elm));
}
