#include "support/Log.hpp"
#include "support/Testing.hpp"

#include <QCoreApplication>

int main(int argc, char** argv)
{
  // Tests see info messages and plain texts, whatever the tester's environment says.
  qunsetenv("QT_LOGGING_RULES");
  QLocale::setDefault(QLocale::c());
  QCoreApplication const application(argc, argv);
  qInstallMessageHandler(&keepMessage);
  testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}
