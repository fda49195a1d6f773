#include "support/Refusal.hpp"

#include <accounting/AccountNumber.hpp>
#include <accounting/AccountTypes.hpp>
#include <mintar/Currency.hpp>
#include <mintar/Money.hpp>

#include <QLocale>

#include <limits>

using mintar::Currency;
using mintar::Money;
using orv::accounting::AccountNumber;
using orv::accounting::AccountTypes;

static_assert(int(AccountTypes::Asset) == 1 && int(AccountTypes::Liability) == 4);
static_assert(noexcept(std::declval<Money&>().assign(std::declval<Money>())));
static_assert(!std::is_convertible_v<unsigned int, AccountNumber>);

TEST(AccountNumber, IsItsDigitsWhateverTheStreamFormat)
{
  AccountNumber const number(4294967295U);
  std::ostringstream stream;
  stream << std::hex << std::showpos << number;
  EXPECT_EQ(stream.str(), "4294967295");
  EXPECT_EQ(debugged(number), "4294967295 ");
}

TEST(Money, IsShownExactlyAsTheLocaleShowsMoney)
{
  std::tuple<char const*, char const*, qint64, QString> const cases[] = {
      {"en_CA", "CAD", 123456, "$1,234.56"},
      {"en_CA", "USD", 5, "USD\u00a00.05"},
      {"en_CA", "CAD", -5, "($0.05)"},
      {"en_US", "JPY", 1234, "JPY\u00a01,234"},
      {"en_US", "KWD", 1234567, "KWD\u00a01,234.567"},
      {"de_DE", "EUR", -123456, "-1.234,56\u00a0€"},
      {"fr_CA", "CAD", 100, "1,00\u00a0$"},
      {"ar_EG", "USD", 1203, "١٢٫٠٣\u00a0USD"},
      {"C", "", 0, ""},
      {"C", "CAD", std::numeric_limits<qint64>::min(), "-92233720368547758.08\u00a0CAD"},
      {"C", "CAD", std::numeric_limits<qint64>::max(), "92233720368547758.07\u00a0CAD"},
  };
  for (auto const& [locale, currency, minorUnits, text] : cases) {
    QLocale::setDefault(QLocale(QLatin1String(locale)));
    EXPECT_EQ(streamed(Money(Currency(currency), minorUnits)), text) << locale;
  }
  QLocale::setDefault(QLocale::c());
  EXPECT_FALSE(Money(Currency("CAD"), 7) == Money(Currency("EUR"), 7));
  EXPECT_EQ(debugged(Money(Currency("CLF"), 12345)), QStringLiteral("\"1.2345\u00a0CLF\" "));
}
