#pragma once

#include "support/Printing.hpp"

#include <QString>
#include <QtGlobal>

#include <gmock/gmock.h>
#include <utility>
#include <vector>

/// Keeps what is logged while it lives. One at a time.
class LogRecorder
{
public:
  LogRecorder() : previous_(qInstallMessageHandler(&record)) { messages().clear(); }
  ~LogRecorder() { qInstallMessageHandler(previous_); }
  LogRecorder(LogRecorder const&) = delete;
  LogRecorder& operator=(LogRecorder const&) = delete;

  /// The texts since the last call. Fails the test for a message that is not an info message of the
  /// default category without a place in the source.
  static std::vector<QString> take() { return std::exchange(messages(), {}); }

private:
  static void record(QtMsgType type, QMessageLogContext const& context, QString const& text)
  {
    EXPECT_EQ(type, QtInfoMsg) << text.toStdString();
    EXPECT_STREQ(context.category, "default");
    EXPECT_EQ(context.file, nullptr);
    EXPECT_EQ(context.function, nullptr);
    EXPECT_EQ(context.line, 0);
    messages().push_back(text);
  }

  static std::vector<QString>& messages()
  {
    static std::vector<QString> all;
    return all;
  }

  QtMessageHandler previous_;
};
