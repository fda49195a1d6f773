#include "support/Printing.hpp"
#include "support/Refusal.hpp"

#include <accounting/AccountNumber.hpp>
#include <accounting/AccountTypes.hpp>
#include <foundation/Date.hpp>
#include <foundation/Error.hpp>
#include <foundation/LocaleAware.hpp>
#include <mintar/Currency.hpp>
#include <mintar/Money.hpp>

#include <QDate>
#include <QLocale>

#include <gmock/gmock.h>
#include <iomanip>
#include <limits>
#include <type_traits>

using mintar::Currency;
using mintar::Money;
using orv::accounting::AccountNumber;

static_assert(static_cast<int>(orv::accounting::AccountTypes::Asset) == 1);
static_assert(static_cast<int>(orv::accounting::AccountTypes::Liability) == 4);
static_assert(sizeof(orv::foundation::LocaleAware) == 1);
static_assert(noexcept(std::declval<Money&>().assign(std::declval<Money>())));
static_assert(!std::is_convertible_v<unsigned int, AccountNumber>);

TEST(AccountNumber, ComparesByItsInteger)
{
  EXPECT_EQ(AccountNumber().integer(), AccountNumber::invalid_);
  EXPECT_TRUE(AccountNumber() == AccountNumber::invalid_);
  EXPECT_TRUE(AccountNumber(7) == AccountNumber(7));
  EXPECT_TRUE(AccountNumber(7) != AccountNumber(8));
  EXPECT_TRUE(AccountNumber(7) < AccountNumber(4294967295U));
}

TEST(AccountNumber, IsItsDigitsWhateverTheStreamFormat)
{
  AccountNumber const number(4294967295U);
  EXPECT_EQ(presentationText(number), "4294967295");
  std::ostringstream stream;
  stream << std::hex << std::showpos << number;
  EXPECT_EQ(stream.str(), "4294967295");
  EXPECT_EQ(debugged(number), "4294967295 ");
}

TEST(Date, IsWrittenByLocaleForUsersAndInIso8601ForStreams)
{
  QDate const date(2026, 1, 31);
  QLocale::setDefault(QLocale("de_DE"));
  EXPECT_EQ(orv::foundation::presentationText(date), "31.01.26");
  QLocale::setDefault(QLocale::c());
  EXPECT_EQ(streamed(date), "2026-01-31");
  EXPECT_EQ(streamed(QDate()), "");
}

TEST(FoundationError, ReportsItsMessageInUtf8)
{
  expectThrows<orv::foundation::Error>(QStringLiteral("Épargne"), [] {
    throw orv::foundation::Error(QStringLiteral("Épargne"), std::exception());
  });
}

TEST(Money, IsShownExactlyAsTheLocaleShowsMoney)
{
  struct Case
  {
    char const* locale;
    char const* currency;
    qint64 minorUnits;
    char16_t const* text;
  };
  Case const cases[] = {
      {"en_CA", "CAD", 123456, u"$1,234.56"},
      {"en_CA", "USD", 5, u"USD\u00a00.05"},
      {"en_CA", "CAD", -5, u"($0.05)"},
      {"en_US", "JPY", 1234, u"JPY\u00a01,234"},
      {"en_US", "KWD", 1234567, u"KWD\u00a01,234.567"},
      {"de_DE", "EUR", -123456, u"-1.234,56\u00a0€"},
      {"fr_CA", "CAD", 100, u"1,00\u00a0$"},
      {"ar_EG", "USD", 1203, u"١٢٫٠٣\u00a0USD"},
      {"C", "CAD", std::numeric_limits<qint64>::min(), u"-92233720368547758.08\u00a0CAD"},
      {"C", "CAD", std::numeric_limits<qint64>::max(), u"92233720368547758.07\u00a0CAD"},
  };
  for (auto const& [locale, currency, minorUnits, text] : cases) {
    SCOPED_TRACE(std::string(locale) + ' ' + currency + ' ' + std::to_string(minorUnits));
    QLocale::setDefault(QLocale(QLatin1String(locale)));
    EXPECT_EQ(streamed(Money(Currency(currency), minorUnits)), QString::fromUtf16(text));
  }
  QLocale::setDefault(QLocale::c());
  EXPECT_EQ(streamed(Money()), "");
  EXPECT_EQ(debugged(Money(Currency("CLF"), 12345)), QStringLiteral("\"1.2345\u00a0CLF\" "));
}

TEST(Money, RefusesAChangeOfCurrencyUnlessAssignedWhole)
{
  Money const dollars(Currency("CAD"), 100);
  Money const euros(Currency("EUR"), 100);
  auto money = dollars;
  for (auto const& other : {euros, Money()}) {
    expectThrows<std::invalid_argument>("Cannot assign an amount of money in another currency.",
                                        [&] { money = other; });
    EXPECT_EQ(money, dollars);
  }
  EXPECT_EQ(money = Money(Currency("CAD"), 7), Money(Currency("CAD"), 7));
  EXPECT_EQ(money.assign(euros), euros);
  EXPECT_EQ(money.assign(Money()), Money());
  EXPECT_EQ(money = dollars, dollars);
  EXPECT_NE(dollars, euros);
  EXPECT_EQ(Money(Currency("CAD")), Money(Currency("CAD"), 0));
}
