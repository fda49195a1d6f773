#include "support/Testing.hpp"

#include <foundation/Date.hpp>

#include <QRegularExpression>

#include <limits>

// Qt has no year 0, and no ISO form for years that do not have four digits.
TEST(Date, IsWrittenInIso8601AndShownWithAllDigitsOfTheYear)
{
  using orv::foundation::presentationText;
  std::pair<QDate, QString> const dates[] = {{march, "2026-03-31"},
                                             {{1, 1, 1}, "0001-01-01"},
                                             {{-1, 12, 31}, "0000-12-31"},
                                             {{-44, 3, 15}, "-0043-03-15"},
                                             {{9999, 12, 31}, "9999-12-31"},
                                             {{12345, 6, 7}, "+12345-06-07"},
                                             {{}, ""}};
  for (auto const& [date, text] : dates) {
    EXPECT_EQ(presentationText(date), text);
    ScopedLocale const egyptian(QLocale("ar_EG")); // which has digits of its own
    EXPECT_EQ(streamed(date), text);
  }
  ScopedLocale const german(QLocale("de_DE"));
  EXPECT_EQ(presentationText(march), "31.03.2026");
  for (auto locale :
       QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory)) {
    ScopedLocale const scoped(locale);
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    EXPECT_TRUE(presentationText(QDate(2125, 3, 31)).contains(locale.toString(2125)))
        << locale.name().toStdString();
  }
}

// Qt decides the rest, such as marks of direction. The system's own format of money may write a
// fraction even of a whole number, as Windows' does.
TEST(Money, IsShownExactlyInItsCurrency)
{
  std::tuple<QLocale, char const*, qint64, QString, QString> const amounts[] = {
      {QLocale("en_CA"), "CAD", 123456, "$1,234.56", "123456"},
      {QLocale("en_CA"), "USD", 5, "USD\u00a00.05", "005"},
      {QLocale("en_CA"), "USD", -5, "(USD\u00a00.05)", "005"},
      {QLocale("en_US"), "JPY", 1234, "JPY\u00a01,234", "1234"},
      {QLocale("de_DE"), "KWD", -1234567, "-1.234,567\u00a0KWD", "1234567"},
      {QLocale("ar_EG"), "CLF", 12034, "\u0661\u066b\u0662\u0660\u0663\u0664", ""},
      {QLocale::system(), "CAD", 1250, "", "1250"},
      {QLocale::c(), "CAD", std::numeric_limits<qint64>::min(), "-92233720368547758.08\u00a0CAD",
       "9223372036854775808"}};
  for (auto const& [locale, currency, minorUnits, part, digits] : amounts) {
    ScopedLocale const scoped(locale);
    Money const money{Currency(currency), minorUnits};
    auto const text = presentationText(money);
    expectWritten(money, text);
    EXPECT_TRUE(text.contains(part)) << text.toStdString();
    EXPECT_EQ(QString(text).remove(QRegularExpression("[^0-9]")), digits);
  }
  EXPECT_EQ(streamed(Money(Currency(QString()), 5)), "");
}

TEST(Money, EqualsOneOfTheSameAmountAndCurrency)
{
  Money const none(Currency("CAD"));
  EXPECT_EQ(none, Money(Currency("CAD"), 0));
  expectUnequal(none, Money(Currency("EUR")));
  expectUnequal(none, Money(Currency("cad")));
  expectUnequal(none, Money());
  expectUnequal(none, Money(Currency("CAD"), 1));
}

TEST(AccountNumber, IsWrittenInDecimalDigitsWhateverTheStream)
{
  QString text;
  QDebug(&text).nospace() << Qt::hex << hundred;
  EXPECT_EQ(text, "100");
}
