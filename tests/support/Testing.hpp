#pragma once

// What the tests have in common.

#include <banking/BankError.hpp>
#include <banking/BankMap.hpp>
#include <banking/ReconciledBalance.hpp>
#include <banking/ReconciledBankAccount.hpp>

#include <QDebug>
#include <QLocale>

#include <gmock/gmock.h>
#include <locale>
#include <sstream>

using namespace orv::banking;
using mintar::Currency;
using mintar::Money;
using orv::accounting::AccountNumber;
using enum BankAccountTypes;

// A text that is filled twice, simplified or not in UTF-8 shows by these names.
inline BankName const elm("Elm  € %2");
inline BankName const oak("Oak %1");
inline BankName const pine("Pine");
inline AccountNumber const hundred(100);
inline BankAccountTypes const noKind{99}; // is not one of the enumerators
inline QDate const march(2026, 3, 31);
inline Money const dollars(Currency("CAD"), 1250);

/// GoogleTest shows a QString as text, with the code of each character that looks like another or
/// like nothing.
inline void PrintTo(QString const& text, std::ostream* stream)
{
  *stream << '"';
  for (auto const character : text.toStdU32String()) {
    auto const isShown =
        QChar::isPrint(character) && (character == U' ' || !QChar::isSpace(character));
    *stream << (isShown ? QString::fromUcs4(&character, 1)
                        : QStringLiteral("\\u{%1}").arg(QString::number(character, 16).toUpper()))
                   .toStdString();
  }
  *stream << '"';
}

/// Makes a locale the default one until the end of the scope.
class ScopedLocale
{
public:
  explicit ScopedLocale(QLocale const& locale) { QLocale::setDefault(locale); }
  ~ScopedLocale() { QLocale::setDefault(before_); }
  Q_DISABLE_COPY_MOVE(ScopedLocale)

private:
  QLocale before_;
};

/// Groups digits as some locales of the standard library do.
struct Grouping : std::numpunct<char>
{
  std::string do_grouping() const override { return "\3"; }
};

/// What the value writes to a standard stream in an unusual format, which stays.
QString streamed(auto const& value)
{
  std::ostringstream stream;
  stream.imbue(std::locale(stream.getloc(), new Grouping)); // which the locale deletes
  stream << std::hex << std::showbase << std::boolalpha;
  auto const flags = stream.flags();
  stream << value;
  EXPECT_TRUE(stream.flags() == flags && stream.width() == 0) << stream.str();
  return QString::fromStdString(stream.str());
}

/// What the values write to a debug stream in its default mode, and to one without spaces and
/// quotes.
QStringList debugged(auto const&... values)
{
  QString text;
  QString bareText;
  (QDebug(&text) << ... << values);
  (QDebug(&bareText).nospace().noquote() << ... << values);
  return {text, bareText};
}

/// Expects two values to differ, whichever stands first.
void expectUnequal(auto const& lhs, auto const& rhs)
{
  EXPECT_TRUE(lhs != rhs && rhs != lhs) << streamed(lhs).toStdString();
  EXPECT_FALSE(lhs == rhs || rhs == lhs) << streamed(lhs).toStdString();
}

/// Expects the text on a standard stream and, as one QString, on a debug stream.
void expectWritten(auto const& value, QString const& text)
{
  EXPECT_EQ(streamed(value), text);
  EXPECT_EQ(debugged(value, value), debugged(text, text));
}
