#include "Book.hpp"
#include "BookError.hpp"
#include "Terminal.hpp"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QLoggingCategory>
#include <QTextStream>
#include <QTranslator>

#include <cerrno>
#include <clocale>
#include <cstdio>
#include <exception>
#include <string>
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

// Writes a line to standard error.
void tell(QString const& text)
{
  QTextStream(stderr) << printable(text) << '\n';
}

void tellLog(QtMsgType type, QMessageLogContext const& context, QString const& text)
{
  tell(qFormatLogMessage(type, context, text));
}

// All texts depend on the locale, those of the other options too: so it is read before them, by a
// parser that knows no other option and does not mind. Returns whether the locale is known.
bool setLocale(QCommandLineOption const& localeOption)
{
  QCommandLineParser parser;
  parser.addOption(localeOption);
  parser.parse(QCoreApplication::arguments());
  if (!parser.isSet(localeOption)) {
    return true;
  }
  QLocale const locale(parser.value(localeOption));
  QLocale::setDefault(locale);
  // Qt takes an unknown name for the locale C.
  auto const language = parser.value(localeOption).section(u'.', 0, 0);
  return locale.language() != QLocale::C || language == u"C" || language == u"POSIX";
}

// Returns the language of the translation that is installed; empty for English.
QString installTranslator(QLocale const& locale, QString const& name, QString const& folder)
{
  auto* const translator = new QTranslator(QCoreApplication::instance());
  auto const isInstalled = translator->load(locale, name, QStringLiteral("_"), folder) &&
                           QCoreApplication::installTranslator(translator);
  return isInstalled ? translator->language() : QString();
}

// Bankbook's own texts decide on the language: there is no mixing of others with English.
void installTranslators()
{
  auto const data =
      QCoreApplication::applicationDirPath() + QStringLiteral("/../share/%1/translations");
  auto const language =
      installTranslator(QLocale(), QStringLiteral("bankbook"), data.arg("bankbook"));
  if (language.isEmpty()) {
    std::setlocale(LC_MESSAGES, "C"); // for what the system says of files
    return;
  }
  QLocale const locale(language);
  installTranslator(locale, QStringLiteral("orv-banking"), data.arg("orv-banking"));
  installTranslator(locale, QStringLiteral("qtbase"),
                    QLibraryInfo::path(QLibraryInfo::TranslationsPath));
}

ExitStatus notRead(QString const& name)
{
  tell(Bankbook::tr("%1 cannot be read: %2").arg(name, qt_error_string(errno)));
  return NotRun;
}

// Writes the text to standard output. Returns whether all that was shown has been taken.
bool show(QString const& text)
{
  static QTextStream out(stdout);
  out << text << Qt::flush;
  return out.status() == QTextStream::Ok;
}

// Ends with `status`, or with another one where standard output did not take what was shown.
ExitStatus ended(ExitStatus status)
{
  if (show({})) {
    return status;
  }
  tell(Bankbook::tr("Standard output cannot be written."));
  return NotRun;
}

// Reads a line without its line feed. Returns whether there was one. Throws for a line that is too long,
// when all of it has been read.
bool readLine(std::FILE* file, std::string& line)
{
  constexpr std::size_t longest = 1024 * 1024;
  line.clear();
  std::size_t size = 0;
  int c = getc_unlocked(file);
  for (; c != EOF && c != '\n'; c = getc_unlocked(file)) {
    if (++size <= longest) {
      line += static_cast<char>(c);
    }
  }
  if (size > longest) {
    throw BookError(Bankbook::tr("The line is longer than 1 MiB."));
  }
  return c != EOF || size > 0;
}

// Carries out the lines of `file` one by one; `name` stands before each refusal. At a prompt, what guides
// a person stands beside the results, which may go elsewhere.
ExitStatus run(std::FILE* file, QString const& name, bool isStrict, bool isAtPrompt)
{
  Book book(QFileInfo(name).absoluteDir()); // the current one for standard input
  auto status = AllDone;
  std::string line;
  QTextStream guide(stderr);
  if (isAtPrompt) {
    guide << Bankbook::tr("Type help for the commands, or quit to leave.") << '\n';
  }
  for (int number = 1; status == AllDone || !isStrict; ++number) {
    if (isAtPrompt) {
      guide << "bankbook> " << Qt::flush;
    }
    try {
      if (!readLine(file, line)) {
        break;
      }
      if (isAtPrompt && line == "quit") {
        return ended(status);
      }
      if (isAtPrompt && line == "help") {
        guide << Book::usage() << '\n';
      } else {
        show(book.execute(line));
      }
    } catch (std::exception const& refusal) {
      tell(QStringLiteral("%1:%2: %3")
               .arg(name, QString::number(number), QString::fromUtf8(refusal.what())));
      status = LinesRefused;
    }
  }
  if (std::ferror(file) != 0) {
    return notRead(name);
  }
  if (isAtPrompt) {
    guide << '\n';
  }
  return ended(status);
}

} // namespace

int main(int argc, char* argv[])
{
  QCoreApplication const application(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("bankbook"));
  QCoreApplication::setApplicationVersion(QStringLiteral(BANKBOOK_VERSION));
  qInstallMessageHandler(&tellLog);

  QCommandLineOption localeOption(QStringLiteral("locale"));
  localeOption.setValueName(QStringLiteral("LOCALE"));
  auto const isKnown = setLocale(localeOption);
  installTranslators();

  localeOption.setDescription(Bankbook::tr("Show texts, amounts and dates as in this locale."));
  QCommandLineOption const verboseOption(
      QStringLiteral("verbose"), Bankbook::tr("Report each change of a bank; at the prompt too."));
  QCommandLineOption const quietOption(QStringLiteral("quiet"),
                                       Bankbook::tr("Do not report changes of banks."));
  QCommandLineOption const strictOption(QStringLiteral("strict"),
                                        Bankbook::tr("Stop at the first line that is refused."));
  QCommandLineOption const helpOption({QStringLiteral("h"), QStringLiteral("help")},
                                      Bankbook::tr("Show this help."));
  QCommandLineParser parser;
  parser.setApplicationDescription(Bankbook::tr("Keeps a household's books, one command a line:") +
                                   QStringLiteral("\n\n") + Book::usage());
  parser.addOptions({localeOption, quietOption, verboseOption, strictOption, helpOption});
  auto const versionOption = parser.addVersionOption();
  auto const fileArgument = Bankbook::tr("FILE");
  parser.addPositionalArgument(
      fileArgument, Bankbook::tr("The book. Without it, or with -, standard input is read."),
      u'[' + fileArgument + u']');

  if (!parser.parse(QCoreApplication::arguments())) {
    tell(parser.errorText());
    return NotRun;
  }
  if (!isKnown) {
    tell(Bankbook::tr("There is no locale '%1'.").arg(parser.value(localeOption)));
    return NotRun;
  }
  if (parser.isSet(helpOption)) {
    show(parser.helpText());
    return ended(AllDone);
  }
  if (parser.isSet(versionOption)) {
    show(QStringLiteral("bankbook " BANKBOOK_VERSION "\n"));
    return ended(AllDone);
  }
  auto const files = parser.positionalArguments();
  if (files.size() > 1) {
    tell(Bankbook::tr("Only one book can be read at a time."));
    return NotRun;
  }

  auto const path = files.value(0, QStringLiteral("-"));
  auto const readsStandardInput = path == u"-";
  auto const name = readsStandardInput ? Bankbook::tr("standard input") : path;
  auto* const file =
      readsStandardInput ? stdin : std::fopen(QFile::encodeName(path).constData(), "r");
  if (file == nullptr) {
    return notRead(name);
  }
  auto const isAtPrompt = readsStandardInput && isatty(STDIN_FILENO) == 1;
  if (!parser.isSet(verboseOption) && (isAtPrompt || parser.isSet(quietOption))) {
    QLoggingCategory::setFilterRules(QStringLiteral("default.info=false"));
  }
  return run(file, name, parser.isSet(strictOption), isAtPrompt);
}
