#pragma once

#include "support/Printing.hpp"
#include "support/ScopedTranslator.hpp"

#include <banking/BankError.hpp>

#include <QString>
#include <QStringList>

#include <exception>
#include <functional>
#include <gmock/gmock.h>
#include <typeinfo>

/// Expects the call to throw an error of exactly this type, not of one derived from it, with exactly
/// this text.
template <typename Error, typename Call>
void expectThrows(QString const& text, Call&& call)
{
  try {
    call();
    ADD_FAILURE() << "nothing was thrown, expected: " << text.toStdString();
  } catch (std::exception const& error) {
    EXPECT_EQ(typeid(error), typeid(Error));
    EXPECT_EQ(QString::fromUtf8(error.what()), text);
  }
}

/// A broken rule: who breaks it how, and the error that says so.
template <typename Subject>
struct Refusal
{
  char const* name;
  std::function<void(Subject&)> call;
  QString bank;
  QString message;            // the source text
  QStringList arguments = {}; // what its placeholders stand for
};

/// The text with its placeholders filled, after the tests' own reading of them: one pass from left to
/// right.
inline QString filled(QString const& format, QStringList const& arguments)
{
  QString text;
  for (qsizetype i = 0; i < format.size(); ++i) {
    if (format[i] == u'%' && !arguments.isEmpty()) {
      text += arguments[format[++i].digitValue() - 1];
    } else {
      text += format[i];
    }
  }
  return text;
}

/// The text of the BankError for this bank; `mark` stands before each translated text.
inline QString bankErrorText(QString const& bank, QString const& message,
                             QStringList const& arguments = {}, QString const& mark = {})
{
  return filled(mark + "There is an issue with the bank '%1'. %2",
                {bank, filled(mark + message, arguments)});
}

/// Expects the refusal in plain and in translated text.
template <typename Subject>
void expectRefused(Refusal<Subject> const& refusal, Subject& subject)
{
  SCOPED_TRACE(refusal.name);
  auto const expectText = [&](QString const& mark) {
    expectThrows<orv::banking::BankError>(
        bankErrorText(refusal.bank, refusal.message, refusal.arguments, mark),
        [&] { refusal.call(subject); });
  };
  expectText({});
  ScopedTranslator const translator;
  expectText("~");
}
