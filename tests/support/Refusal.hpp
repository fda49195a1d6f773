#pragma once

#include "support/Log.hpp"
#include "support/ScopedTranslator.hpp"
#include "support/Testing.hpp"

/// Expects a call to throw an error of exactly this type, not of one derived from it, with this
/// text.
template <typename Error>
void expectError(char const* file, int line, auto const& call, QString const& text)
{
  testing::ScopedTrace const trace(file, line, text.toStdString());
  try {
    call();
    ADD_FAILURE() << "nothing was thrown";
  } catch (std::exception const& error) {
    EXPECT_EQ(typeid(error), typeid(Error));
    EXPECT_EQ(QString::fromUtf8(error.what()), text);
  }
}
#define EXPECT_LOGIC_ERROR(call, text)                                                             \
  expectError<std::logic_error>(                                                                   \
      __FILE__, __LINE__, [&] { static_cast<void>(call); }, text)

/// Expects a call that changes the subject to throw an error of the bank with the message, in
/// English and translated, to log so many messages each time, and to leave the subject as it was.
void expectRefusal(char const* file, int line, auto const& subject, auto const& call,
                   BankName const& bank, QString const& message, int logged = 0)
{
  auto changed = subject;
  for (QString const mark : {"", "~"}) {
    ScopedTranslator const translator([&](auto const& text) { return mark + text; });
    auto const frame = mark + "There is an issue with the bank '%1'. " + mark + "%2";
    takeMessages();
    expectError<BankError>(
        file, line, [&] { call(changed); }, frame.arg(bank.institution(), message));
    testing::ScopedTrace const trace(file, line, "");
    EXPECT_EQ(takeMessages().size(), logged);
    EXPECT_EQ(streamed(changed), streamed(subject));
  }
}
/// `call` changes the variable `subject`.
#define EXPECT_REFUSED(subject, call, ...)                                                         \
  expectRefusal(                                                                                   \
      __FILE__, __LINE__, subject,                                                                 \
      [&]([[maybe_unused]] auto& subject) { static_cast<void>(call); }, __VA_ARGS__)
