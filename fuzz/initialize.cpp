#include <QCoreApplication>
#include <QLocale>
#include <QtGlobal>

// What each fuzzer has in common: Qt is set up, and nothing is logged.
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
  static QCoreApplication const application(*argc, *argv);
  QLocale::setDefault(QLocale::c());
  qInstallMessageHandler([](QtMsgType, QMessageLogContext const&, QString const&) {});
  return 0;
}
