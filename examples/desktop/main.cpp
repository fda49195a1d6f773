#include "Window.hpp"

// The window's own translation decides on the language of all texts: nobody is to read two at a
// time.
static void installTranslators()
{
  QLocale language;
  for (auto const& file : {u":/i18n/bank-window"_s, u":/i18n/orv-banking"_s,
                           QLibraryInfo::path(QLibraryInfo::TranslationsPath) + u"/qtbase"_s}) {
    auto* const translator = new QTranslator(QCoreApplication::instance());
    if (!translator->load(language, file, u"_"_s)) {
      return;
    }
    QCoreApplication::installTranslator(translator);
    language = QLocale(translator->language());
  }
}

int main(int argc, char* argv[])
{
  QApplication const application(argc, argv);
  installTranslators();
  QCommandLineParser parser;
  parser.addHelpOption();
  parser.addPositionalArgument(u"[FILE]"_s, {});
  parser.process(application);
  // The library logs names of banks and account numbers, which are nobody else's business.
  QLoggingCategory::defaultCategory()->setEnabled(QtInfoMsg, false);
  try {
    Window window(parser.positionalArguments().value(0));
    window.show();
    return QApplication::exec();
  } catch (std::exception const& error) {
    QMessageBox::critical(nullptr, QString(), QString::fromUtf8(error.what()));
    return 1;
  }
}
