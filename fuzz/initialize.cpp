#include "support/Log.hpp"

#include <QCoreApplication>

// What each fuzzer has in common: Qt is set up, and messages are kept.
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
  static QCoreApplication const application(*argc, *argv);
  qInstallMessageHandler(&keepMessage);
  return 0;
}
