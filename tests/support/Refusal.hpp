#pragma once

#include "support/ScopedTranslator.hpp"
#include "support/Testing.hpp"

/// Expects the call to throw an error of exactly this type, not of one derived from it, with this text.
template <typename Error>
void expectThrows(QString const& text, auto const& call)
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
  BankName bank;
  QString message;
};

/// Expects each refusal in plain and in translated text, and that it leaves the subject unchanged.
template <typename Subject>
void expectRefusals(Subject const& subject, auto const& refusals)
{
  for (Refusal<Subject> const& refusal : refusals) {
    auto changed = subject;
    auto const expectText = [&](QString const& mark) {
      expectThrows<BankError>(mark + "There is an issue with the bank '" +
                                  refusal.bank.institution() + "'. " + mark + refusal.message,
                              [&] { refusal.call(changed); });
    };
    expectText("");
    ScopedTranslator const translator;
    expectText("~");
    EXPECT_EQ(streamed(changed), streamed(subject)) << refusal.message.toStdString();
  }
}
