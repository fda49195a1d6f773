#include "Book.hpp"
#include "BookError.hpp"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QLocale>
#include <QLoggingCategory>
#include <QTextStream>

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

// Runs the lines of `file` one by one; `name` stands before each refusal.
ExitStatus run(QFile& file, QString const& name, bool strict, bool prompts)
{
  QTextStream out(stdout);
  QTextStream err(stderr);
  Book book;
  auto status = AllDone;
  for (int number = 1;; ++number) {
    if (prompts) {
      out << "bankbook> " << Qt::flush;
    }
    auto const line = file.readLine();
    if (line.isEmpty()) {
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
  return status;
}

} // namespace

int main(int argc, char* argv[])
{
  QCoreApplication const application(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("bankbook"));
  QCoreApplication::setApplicationVersion(QStringLiteral(BANKBOOK_VERSION));

  QCommandLineOption const localeOption(QStringLiteral("locale"),
                                        Bankbook::tr("Show texts and amounts as in this locale."),
                                        QStringLiteral("LOCALE"));
  QCommandLineOption const quietOption(QStringLiteral("quiet"),
                                       Bankbook::tr("Do not tell of each change of a bank."));
  QCommandLineOption const strictOption(QStringLiteral("strict"),
                                        Bankbook::tr("Stop at the first line that is refused."));
  QCommandLineParser parser;
  parser.setApplicationDescription(Bankbook::tr("Keeps a household's books, one command a line:") +
                                   QStringLiteral("\n\n") + Book::usage());
  parser.addOptions({localeOption, quietOption, strictOption});
  parser.addHelpOption();
  parser.addVersionOption();
  parser.addPositionalArgument(QStringLiteral("FILE"),
                               Bankbook::tr("The book; standard input where it is left out or -."),
                               QStringLiteral("[FILE]"));

  QTextStream err(stderr);
  if (!parser.parse(QCoreApplication::arguments())) {
    err << parser.errorText() << '\n';
    return NotRun;
  }
  if (parser.isSet(QStringLiteral("help"))) {
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
  if (parser.isSet(localeOption)) {
    QLocale::setDefault(QLocale(parser.value(localeOption)));
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
