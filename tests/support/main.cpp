#include "support/Testing.hpp"

#include <QThreadStorage>

#include <utility>

// What each thread has logged. MinGW destroys what is thread_local too late.
static QThreadStorage<QStringList> messages;

QStringList takeMessages()
{
  return std::exchange(messages.localData(), {});
}

int main(int argc, char** argv)
{
  // Tests see info messages and plain texts, whatever the tester's environment says.
  qunsetenv("QT_LOGGING_RULES");
  QLocale::setDefault(QLocale::c());
  QCoreApplication const application(argc, argv);
  qInstallMessageHandler([](QtMsgType type, auto const& context, QString const& text) {
    auto const isPlain = type == QtInfoMsg && qstrcmp(context.category, "default") == 0 &&
                         !context.file && !context.function && context.line == 0;
    messages.localData() += isPlain ? text : "Not a plain info message: " + text;
  });
  testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}
