#include "support/Testing.hpp"

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
  BankName previous;
  for (auto const* const text : {"A", "A ", "B", "a", "e\u0301", "é", "\U0001F3E6", "\uFF21"}) {
    EXPECT_LT(previous, BankName(text));
    expectUnequal(previous, BankName(text));
    previous = BankName(text);
  }
  expectUnequal(BankName("A"), BankName("a"));
  std::hash<BankName> const standardHash;
  BankName const twice("Elm Elm");
  for (auto const& half : {BankName("Elm Oak"), BankName("Oak Elm")}) {
    EXPECT_NE(qHash(half), qHash(twice));
    EXPECT_NE(standardHash(half), standardHash(twice));
  }
  EXPECT_NE(qHash(elm, 1), qHash(elm, 2));
  BankName const again(QString(elm.institution().constData())); // of a text of its own
  EXPECT_EQ(qHash(again, 1), qHash(elm, 1));
  EXPECT_EQ(standardHash(again), standardHash(elm));
}
