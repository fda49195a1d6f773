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

/// Expects each refusal in plain and in translated text, and that it leaves the subject as it was.
template <typename Subject, typename Refusals>
void expectRefusals(Subject const& subject, Refusals const& refusals)
{
  for (Refusal<Subject> const& refusal : refusals) {
    auto changed = subject;
    auto const expectText = [&](QString const& mark) {
      expectThrows<orv::banking::BankError>(bankErrorText(refusal.bank, refusal.message, mark),
                                            [&] { refusal.call(changed); });
    };
    expectText({});
    ScopedTranslator const translator;
    expectText("~");
    EXPECT_EQ(streamed(changed), streamed(subject)) << refusal.message.toStdString();
  }
}
