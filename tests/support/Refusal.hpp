#pragma once

#include "support/Log.hpp"
#include "support/Testing.hpp"

#include <QCoreApplication>
#include <QTranslator>

/// Translates the texts of the context QObject while it lives, by a tilde before them or as the
/// function says.
class ScopedTranslator : public QTranslator
{
public:
  using Translated = std::function<QString(QString const& text)>;

  explicit ScopedTranslator(Translated translated = [](auto const& text) { return "~" + text; })
      : translated_(std::move(translated))
  {
    QCoreApplication::installTranslator(this);
  }
  ~ScopedTranslator() override { QCoreApplication::removeTranslator(this); }

  bool isEmpty() const override { return false; }

  QString translate(char const* context, char const* text, char const* comment,
                    int plural) const override
  {
    auto const isOurs = qstrcmp(context, "QObject") == 0 && comment == nullptr && plural == -1;
    return isOurs ? translated_(QString::fromUtf8(text)) : "not a text of the library";
  }

private:
  Translated translated_;
};

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

/// Expects a call to throw an error of the bank with the message, in English and translated, and to
/// log so many messages each time.
void expectRefusal(char const* file, int line, auto const& call, BankName const& bank,
                   QString const& message, int logged = 0)
{
  for (QString const mark : {"", "~"}) {
    ScopedTranslator const translator([&](auto const& text) { return mark + text; });
    auto const frame = mark + "There is an issue with the bank '%1'. " + mark + "%2";
    takeMessages();
    expectError<BankError>(file, line, call, frame.arg(bank.institution(), message));
    EXPECT_EQ(takeMessages().size(), logged) << file << ':' << line;
  }
}
#define EXPECT_REFUSAL(call, ...)                                                                  \
  expectRefusal(                                                                                   \
      __FILE__, __LINE__, [&] { static_cast<void>(call); }, __VA_ARGS__)

/// Also expects the call to leave the subject as it was.
#define EXPECT_REFUSED(subject, call, ...)                                                         \
  do {                                                                                             \
    auto const before = streamed(subject);                                                         \
    EXPECT_REFUSAL(call, __VA_ARGS__);                                                             \
    EXPECT_EQ(streamed(subject), before);                                                          \
  } while (false)
