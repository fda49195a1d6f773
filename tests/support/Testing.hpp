#pragma once

// What the tests have in common.

#include <banking/BankError.hpp>
#include <banking/BankMap.hpp>
#include <banking/ReconciledBalance.hpp>
#include <banking/ReconciledBankAccount.hpp>

#include <QDebug>
#include <QLocale>

#include <gmock/gmock.h>

using namespace orv::banking;
using mintar::Currency;
using mintar::Money;
using orv::accounting::AccountNumber;
using enum BankAccountTypes;

// Names with placeholders in them, so that a text that is filled twice shows, and a number whose bytes all
// differ.
inline BankName const elm("Elm %2");
inline BankName const oak("Oak %1");
inline BankName const pine("Pine");
inline AccountNumber const some(16909060);
inline QDate const march(2026, 3, 31);
inline Money const dollars(Currency("CAD"), 1250);

/// GoogleTest shows a QString as text.
inline void PrintTo(QString const& text, std::ostream* stream)
{
  *stream << '"' << text.toStdString() << '"';
}

/// What the value writes to a standard stream.
QString streamed(auto const& value)
{
  std::ostringstream stream;
  stream << value;
  return QString::fromStdString(stream.str());
}

/// What the values write to a debug stream in its default mode.
QString debugged(auto const&... values)
{
  QString text;
  (QDebug(&text) << ... << values);
  return text;
}

/// Expects the text on a standard stream and, as one QString, on a debug stream.
void expectWritten(auto const& value, QString const& text)
{
  EXPECT_EQ(streamed(value), text);
  EXPECT_EQ(debugged(value, value), debugged(text, text));
}
