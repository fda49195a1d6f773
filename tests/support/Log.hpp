#pragma once

#include <QStringList>
#include <QThreadStorage>

#include <utility>

/// What each thread has logged. MinGW cannot link an inline variable that is thread_local.
inline QThreadStorage<QStringList> messages;

/// The message handler of the tests. It tells apart what is no info message of the default category
/// or has a place in the source.
inline void keepMessage(QtMsgType type, QMessageLogContext const& context, QString const& text)
{
  auto const isPlain = type == QtInfoMsg && qstrcmp(context.category, "default") == 0 &&
                       context.file == nullptr && context.function == nullptr && context.line == 0;
  messages.localData() += isPlain ? text : "Not a plain info message: " + text;
}

/// What this thread has logged since the last call.
inline QStringList takeMessages()
{
  return std::exchange(messages.localData(), {});
}
