#pragma once

// What the tests have in common.

#include <banking/BankError.hpp>
#include <banking/BankMap.hpp>
#include <banking/ReconciledBalance.hpp>
#include <banking/ReconciledBankAccount.hpp>

#include <QCoreApplication>
#include <QDebug>
#include <QLocale>
#include <QTranslator>

#include <gmock/gmock.h>
#include <locale>
#include <sstream>

using namespace orv::banking;
using mintar::Currency;
using mintar::Money;
using orv::accounting::AccountNumber;
using enum BankAccountTypes;

// A text that is filled twice, simplified, escaped or not in UTF-8 shows by these names.
inline BankName const elm("Elm  <€> %2");
inline BankName const oak("Oak %1");
inline BankName const pine("Pine");
inline AccountNumber const hundred(100);
inline BankAccountTypes const noKind{99}; // is not one of the enumerators
inline QDate const march(2026, 3, 31);
inline Money const dollars(Currency("CAD"), 1250);

/// GoogleTest shows a QString with the code of each character that is not in ASCII: many look like
/// another or like nothing.
inline void PrintTo(QString const& text, std::ostream* stream)
{
  *stream << testing::PrintToString(text.toStdU16String());
}

/// Makes a locale the default one until the end of the scope.
struct ScopedLocale
{
  QLocale const before;

  explicit ScopedLocale(QLocale const& locale) { QLocale::setDefault(locale); }
  ~ScopedLocale() { QLocale::setDefault(before); }
  Q_DISABLE_COPY_MOVE(ScopedLocale)
};

/// Translates the texts of the context QObject while it lives, by a tilde before them or as the
/// function says.
class ScopedTranslator : public QTranslator
{
public:
  using Translated = std::function<QString(QString const& text)>;

  explicit ScopedTranslator(Translated translated = [](auto const& text) { return "~" + text; })
      : translated_(std::move(translated))
  {
    QCoreApplication::installTranslator(this); // whose destructor removes it
  }

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

/// What this thread has logged since the last call. It tells what is no plain info message.
QStringList takeMessages();

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
  QStringList texts(2);
  (QDebug(&texts[0]) << ... << values);
  (QDebug(&texts[1]).nospace().noquote() << ... << values);
  return texts;
}

/// Expects the text on a standard stream and, as one QString, on a debug stream.
void expectWritten(auto const& value, QString const& text)
{
  EXPECT_EQ(streamed(value), text);
  EXPECT_EQ(debugged(value, value), debugged(text, text));
}

/// Expects two values to differ, whichever stands first.
void expectUnequal(auto const& lhs, auto const& rhs)
{
  EXPECT_TRUE(lhs != rhs && rhs != lhs && !(lhs == rhs) && !(rhs == lhs))
      << streamed(lhs).toStdString() << " and " << streamed(rhs).toStdString();
}

/// The type and the text of an error, and how many messages were logged.
using Thrown = std::tuple<std::string, QString, qsizetype>;

/// What the call throws.
Thrown thrown(auto const& call)
{
  takeMessages();
  try {
    call();
    return {"nothing", "", takeMessages().size()};
  } catch (std::exception const& error) {
    return {typeid(error).name(), error.what(), takeMessages().size()};
  }
}

/// What a refusal throws in a language whose texts begin with the mark.
inline Thrown refusal(QString const& mark, BankName const& bank, QString const& message,
                      qsizetype logged = 0)
{
  return {typeid(BankError).name(),
          mark + "There is an issue with the bank '" + bank.institution() + "'. " + mark + message,
          logged};
}

/// Expects a call to throw a std::logic_error, not an error derived from it, with the text.
#define EXPECT_LOGIC_ERROR(call, text)                                                             \
  EXPECT_EQ(thrown([&] { static_cast<void>(call); }),                                              \
            Thrown(typeid(std::logic_error).name(), text, 0))

/// Expects a call to throw an error of the bank with the message, in English and translated, to log
/// so many messages each time, none by default, and to leave the subject as it was.
#define EXPECT_REFUSED(subject, call, ...)                                                         \
  for (QString const mark : {"", "~"}) {                                                           \
    ScopedTranslator const translator([&](auto const& text) { return mark + text; });              \
    auto const before = streamed(subject);                                                         \
    EXPECT_EQ(thrown([&] { static_cast<void>(call); }), refusal(mark, __VA_ARGS__));               \
    EXPECT_EQ(streamed(subject), before);                                                          \
  }

/// Expects the same of a call without a subject, such as a constructor.
#define EXPECT_REFUSAL(call, ...) EXPECT_REFUSED(BankName(), call, __VA_ARGS__)
