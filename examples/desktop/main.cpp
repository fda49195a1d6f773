#include "Window.hpp"

#include <QtWidgets>

using namespace Qt::StringLiterals;

namespace {

// The window's own translation decides on the language of all texts: nobody is to read two at a time.
void installTranslators()
{
  auto* const own = new QTranslator(QCoreApplication::instance());
  if (!own->load(QLocale(), u"bank-window"_s, u"_"_s, u":/i18n"_s)) {
    return;
  }
  QCoreApplication::installTranslator(own);
  for (auto const& folder : {u":/i18n/orv-banking_"_s,
                             QLibraryInfo::path(QLibraryInfo::TranslationsPath) + u"/qtbase_"_s}) {
    auto* const other = new QTranslator(QCoreApplication::instance());
    if (other->load(folder + own->language())) {
      QCoreApplication::installTranslator(other);
    }
  }
}

} // namespace

int main(int argc, char* argv[])
{
  QApplication const application(argc, argv);
  installTranslators();
  // The library logs names of banks and account numbers, which are nobody else's business.
  QLoggingCategory::defaultCategory()->setEnabled(QtInfoMsg, false);
  try {
    auto const window = newWindow(QApplication::arguments().value(1));
    window->show();
    return QApplication::exec();
  } catch (std::exception const& error) {
    QMessageBox::critical(nullptr, QString(), QString::fromUtf8(error.what()));
    return 1;
  }
}
