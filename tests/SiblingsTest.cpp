#include "support/Testing.hpp"

#include <accounting/AccountTypes.hpp>
#include <foundation/Date.hpp>

#include <QRegularExpression>

#include <limits>

using orv::accounting::AccountTypes;

static_assert(int(AccountTypes::Asset) == 1 && int(AccountTypes::Liability) == 4);
static_assert(noexcept(std::declval<Money&>().assign(std::declval<Money>())));
static_assert(!std::is_convertible_v<unsigned int, AccountNumber>);

TEST(AccountNumber, IsItsDigitsWhateverTheStreamFormat)
{
  std::ostringstream stream;
  stream << std::hex << std::showpos << AccountNumber(4294967295U);
  EXPECT_EQ(stream.str(), "4294967295");
  EXPECT_EQ(debugged(AccountNumber(4294967295U)), "4294967295 ");
}

TEST(Date, IsShownInIsoFormOrAsTheLocaleDoes)
{
  QDate const date(2026, 1, 31);
  EXPECT_EQ(orv::foundation::presentationText(date), "2026-01-31");
  QLocale::setDefault(QLocale("de_DE"));
  EXPECT_EQ(orv::foundation::presentationText(date),
            QLocale().toString(date, QLocale::ShortFormat));
  EXPECT_EQ(streamed(date), "2026-01-31");
  QLocale::setDefault(QLocale::c());
}

// Qt decides the rest: the script of the digits, groups, marks, and where sign and symbol stand.
TEST(Money, IsShownExactlyInItsCurrency)
{
  constexpr auto min = std::numeric_limits<qint64>::min();
  constexpr auto max = std::numeric_limits<qint64>::max();
  std::tuple<char const*, char const*, qint64, QString, QString> const amounts[] = {
      {"en_CA", "CAD", 123456, "1234.56", "$"},
      {"en_CA", "USD", 5, "0.05", "USD"},
      {"en_CA", "CAD", -5, "-0.05", "$"},
      {"en_US", "JPY", 1234, "1234", "JPY"},
      {"de_DE", "KWD", -1234567, "-1234.567", "KWD"},
      {"ar_EG", "CLF", 12034, "1.2034", "CLF"},
      {"C", "CAD", min, "-92233720368547758.08", "CAD"},
      {"C", "CAD", max, "92233720368547758.07", "CAD"},
      {"C", "", 0, "", ""}};
  for (auto const& [locale, currency, minorUnits, number, symbol] : amounts) {
    QLocale::setDefault(QLocale(locale));
    Money const money{Currency(currency), minorUnits};
    auto const text = streamed(money);
    expectWritten(money, text);
    QString seen(text.contains(QRegularExpression("[-(\u2212]")) ? "-" : "");
    for (auto const c : text) {
      auto const digit = c.isDigit() ? QString::number(c.digitValue()) : QString();
      seen += QLocale().decimalPoint() == c ? "." : digit;
    }
    EXPECT_EQ(seen, number) << text.toStdString();
    EXPECT_TRUE(text.contains(symbol)) << text.toStdString();
    EXPECT_FALSE(text.contains(QRegularExpression("[A-Z]\\d|\\d[A-Z]"))) << text.toStdString();
  }
  QLocale::setDefault(QLocale::c());
}
