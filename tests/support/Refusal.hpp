#pragma once

#include "support/Printing.hpp"
#include "support/ScopedTranslator.hpp"
#include "support/Texts.hpp"

#include <banking/BankError.hpp>

#include <QString>

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

/// A broken rule: who breaks it how, and the bank and the message of the error that says so.
template <typename Subject>
struct Refusal
{
  std::function<void(Subject&)> call;
  QString bank;
  QString message;
};

/// Expects the refusal in plain and in translated text.
template <typename Subject>
void expectRefused(Refusal<Subject> const& refusal, Subject& subject)
{
  auto const expectText = [&](QString const& mark) {
    expectThrows<orv::banking::BankError>(bankErrorText(refusal.bank, refusal.message, mark),
                                          [&] { refusal.call(subject); });
  };
  expectText({});
  ScopedTranslator const translator;
  expectText("~");
}
