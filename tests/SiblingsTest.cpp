#include "support/Testing.hpp"

#include <accounting/AccountTypes.hpp>
#include <foundation/Date.hpp>

#include <limits>

using orv::accounting::AccountTypes;

static_assert(int(AccountTypes::Asset) == 1 && int(AccountTypes::Liability) == 4);
static_assert(noexcept(std::declval<Money&>().assign(std::declval<Money>())));
static_assert(!std::is_convertible_v<unsigned int, AccountNumber>);

TEST(Date, IsShownInIsoFormOrAsTheLocaleDoes)
{
  EXPECT_EQ(orv::foundation::presentationText(march), "2026-03-31");
  QLocale::setDefault(QLocale("de_DE"));
  EXPECT_EQ(orv::foundation::presentationText(march),
            QLocale().toString(march, QLocale::ShortFormat));
  EXPECT_EQ(streamed(march), "2026-03-31");
  QLocale::setDefault(QLocale::c());
}

// Qt has no year 0, and no ISO form for years that do not have four digits.
TEST(Date, IsWrittenWhateverItsYear)
{
  std::pair<QDate, QString> const dates[] = {
      {{1, 1, 1}, "0001-01-01"},       {{-1, 12, 31}, "0000-12-31"},
      {{-44, 3, 15}, "-0043-03-15"},   {{9999, 12, 31}, "9999-12-31"},
      {{12345, 6, 7}, "+12345-06-07"}, {{}, ""}};
  for (auto const& [date, text] : dates) {
    EXPECT_EQ(streamed(date), text);
    EXPECT_EQ(orv::foundation::presentationText(date), text);
    QLocale::setDefault(QLocale("fr_CA"));
    EXPECT_EQ(orv::foundation::presentationText(date).isEmpty(), !date.isValid())
        << text.toStdString();
    QLocale::setDefault(QLocale::c());
  }
}

// Qt decides the rest, such as marks of direction.
TEST(Money, IsShownExactlyInItsCurrency)
{
  constexpr auto min = std::numeric_limits<qint64>::min();
  std::tuple<char const*, char const*, qint64, QString> const amounts[] = {
      {"en_CA", "CAD", 123456, "$1,234.56"},
      {"en_CA", "USD", 5, "USD\u00a00.05"},
      {"en_US", "JPY", 1234, "JPY\u00a01,234"},
      {"de_DE", "KWD", -1234567, "-1.234,567\u00a0KWD"},
      {"ar_EG", "CLF", 12034, "\u0661\u066b\u0662\u0660\u0663\u0664"},
      {"C", "CAD", min, "-92233720368547758.08\u00a0CAD"}};
  for (auto const& [locale, currency, minorUnits, part] : amounts) {
    QLocale::setDefault(QLocale(locale));
    Money const money{Currency(currency), minorUnits};
    auto const text = streamed(money);
    expectWritten(money, text);
    EXPECT_TRUE(text.contains(part)) << text.toStdString();
  }
  QLocale::setDefault(QLocale::c());
  EXPECT_EQ(streamed(Money()), "");
}

// Whose own format of money may write a fraction even of a whole number, as Windows' does.
TEST(Money, IsShownExactlyAsTheSystemDoes)
{
  QLocale::setDefault(QLocale::system());
  QString digits;
  for (auto const character : streamed(dollars)) {
    digits += character.isDigit() ? QString::number(character.digitValue()) : QString();
  }
  QLocale::setDefault(QLocale::c());
  EXPECT_EQ(digits, "1250");
}
