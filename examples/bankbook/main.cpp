#include "Book.hpp"
#include "BookError.hpp"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QLoggingCategory>
#include <QTextStream>
#include <QTranslator>

#include <cstdio>
#include <exception>
#include <unistd.h>

namespace {

enum ExitStatus
{
  AllDone = 0,
  LinesRefused = 1,
  NotRun = 2,
};

struct Bankbook
{
  Q_DECLARE_TR_FUNCTIONS(Bankbook)
};

// All texts depend on the locale, those of the other options too: so it is read before them, by a
// parser that knows no other option and does not mind.
void setLocale(QCommandLineOption const& localeOption)
{
  QCommandLineParser parser;
  parser.addOption(localeOption);
  parser.parse(QCoreApplication::arguments());
  auto const name = parser.value(localeOption);
  if (!name.isEmpty()) {
    QLocale::setDefault(QLocale(name));
  }
}

// Where there is no translation, English stays.
void installTranslator(QString const& name, QString const& folder)
{
  auto* const translator = new QTranslator(QCoreApplication::instance());
  if (translator->load(QLocale(), name, QStringLiteral("_"), folder)) {
    QCoreApplication::installTranslator(translator);
  }
}

void installTranslators()
{
  installTranslator(QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
  auto const data = QCoreApplication::applicationDirPath() + QStringLiteral("/../share/");
  for (auto const& name : {QStringLiteral("orv-banking"), QStringLiteral("bankbook")}) {
    installTranslator(name, data + name + QStringLiteral("/translations"));
  }
}

// Runs the lines of `file` one by one; `name` stands before each refusal.
ExitStatus run(QFile& file, QString const& name, bool strict, bool prompts)
{
  QTextStream out(stdout);
  QTextStream err(stderr);
  Book book(QFileInfo(file).absoluteDir()); // the current one for standard input
  auto status = AllDone;
  for (int number = 1;; ++number) {
    if (prompts) {
      out << "bankbook> " << Qt::flush;
    }
    auto const line = file.readLine();
    if (line.isEmpty()) {
      file.peek(1); // or an error of standard input would pass for its end
      break;
    }
    try {
      out << book.execute(line) << Qt::flush;
    } catch (std::exception const& refusal) {
      err << name << ':' << number << ": " << QString::fromUtf8(refusal.what()) << '\n'
          << Qt::flush;
      status = LinesRefused;
      if (strict) {
        break;
      }
    }
  }
  if (file.error() != QFile::NoError) {
    err << Bankbook::tr("%1 cannot be read: %2").arg(name, file.errorString()) << '\n';
    return NotRun;
  }
  if (out.status() != QTextStream::Ok) {
    err << Bankbook::tr("Standard output cannot be written.") << '\n';
    return NotRun;
  }
  return status;
}

} // namespace

int main(int argc, char* argv[])
{
  QCoreApplication const application(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("bankbook"));
  QCoreApplication::setApplicationVersion(QStringLiteral(BANKBOOK_VERSION));

  QCommandLineOption localeOption(QStringLiteral("locale"));
  localeOption.setValueName(QStringLiteral("LOCALE"));
  setLocale(localeOption);
  installTranslators();

  localeOption.setDescription(Bankbook::tr("Show texts and amounts as in this locale."));
  QCommandLineOption const quietOption(QStringLiteral("quiet"),
                                       Bankbook::tr("Do not tell of each change of a bank."));
  QCommandLineOption const strictOption(QStringLiteral("strict"),
                                        Bankbook::tr("Stop at the first line that is refused."));
  QCommandLineOption const helpOption({QStringLiteral("h"), QStringLiteral("help")},
                                      Bankbook::tr("Show this help."));
  QCommandLineParser parser;
  parser.setApplicationDescription(Bankbook::tr("Keeps a household's books, one command a line:") +
                                   QStringLiteral("\n\n") + Book::usage());
  parser.addOptions({localeOption, quietOption, strictOption, helpOption});
  parser.addVersionOption();
  auto const fileArgument = Bankbook::tr("FILE");
  parser.addPositionalArgument(fileArgument,
                               Bankbook::tr("The book; standard input where it is left out or -."),
                               u'[' + fileArgument + u']');

  QTextStream err(stderr);
  if (!parser.parse(QCoreApplication::arguments())) {
    err << parser.errorText() << '\n';
    return NotRun;
  }
  if (parser.isSet(helpOption)) {
    parser.showHelp();
  }
  if (parser.isSet(QStringLiteral("version"))) {
    parser.showVersion();
  }
  auto const files = parser.positionalArguments();
  if (files.size() > 1) {
    err << Bankbook::tr("Only one book can be read at a time.") << '\n';
    return NotRun;
  }
  if (parser.isSet(quietOption)) {
    QLoggingCategory::setFilterRules(QStringLiteral("default.info=false"));
  }

  auto const readsStandardInput = files.isEmpty() || files.first() == QStringLiteral("-");
  auto const name = readsStandardInput ? Bankbook::tr("standard input") : files.first();
  QFile file(name);
  if (readsStandardInput ? !file.open(stdin, QIODevice::ReadOnly)
                         : !file.open(QIODevice::ReadOnly)) {
    err << Bankbook::tr("%1 cannot be read: %2").arg(name, file.errorString()) << '\n';
    return NotRun;
  }
  return run(file, name, parser.isSet(strictOption),
             readsStandardInput && isatty(STDIN_FILENO) == 1);
}
