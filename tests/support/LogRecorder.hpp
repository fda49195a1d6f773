#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <mutex>
#include <utility>

/// Keeps what is logged while it lives, on whichever thread. One at a time.
class LogRecorder
{
public:
  LogRecorder() : previous_(qInstallMessageHandler(&record)) { messages().clear(); }
  ~LogRecorder() { qInstallMessageHandler(previous_); }
  LogRecorder(LogRecorder const&) = delete;
  LogRecorder& operator=(LogRecorder const&) = delete;

  /// The texts since the last call. A message that is not an info message of the default category
  /// without a place in the source is given as such.
  static QStringList take() { return std::exchange(messages(), {}); }

private:
  static void record(QtMsgType type, QMessageLogContext const& context, QString const& text)
  {
    auto const isPlain = type == QtInfoMsg && qstrcmp(context.category, "default") == 0 &&
                         context.file == nullptr && context.function == nullptr &&
                         context.line == 0;
    static std::mutex oneThread;
    std::scoped_lock const lock(oneThread);
    messages() += isPlain ? text : "Not a plain info message: " + text;
  }

  static QStringList& messages()
  {
    static QStringList all;
    return all;
  }

  QtMessageHandler previous_;
};
