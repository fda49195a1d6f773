#include "Book.hpp"
#include "BookReader.hpp"
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

// Exit statuses.
constexpr int allDone = 0;
constexpr int linesRefused = 1;
constexpr int notRun = 2;

// Writes a line to standard error. Returns the status for an end because of it.
int tell(QString const& text)
{
  QTextStream(stderr) << printable(text) << '\n';
  return notRun;
}

// Writes the text to standard output. Returns whether all that was shown so far has been taken.
bool show(QString const& text)
{
  static QTextStream out(stdout);
  out << text << Qt::flush;
  return out.status() == QTextStream::Ok;
}

// Returns `status`, or another one where standard output did not take what was shown.
int ended(int status)
{
  return show({}) ? status : tell(Book::tr("Standard output cannot be written."));
}

// All texts depend on the locale, those of the other options too: so it is set before them, by a parser
// that knows no other option and does not mind. Returns whether Qt knows the locale.
bool setLocale(QCommandLineOption const& option)
{
  QCommandLineParser parser;
  parser.addOption(option);
  parser.parse(QCoreApplication::arguments());
  if (!parser.isSet(option)) {
    return true;
  }
  auto const name = parser.value(option);
  QLocale::setDefault(QLocale(name)); // C for one that is not known
  return QLocale().language() != QLocale::C || name == u"C" || name == u"POSIX";
}

// Bankbook's own translation decides on the language of all texts: nobody is to read two at a time.
void installTranslators()
{
  auto const share = QCoreApplication::applicationDirPath() + "/../share/%1/translations";
  auto* const own = new QTranslator(QCoreApplication::instance());
  if (!own->load(QLocale(), "bankbook", "_", share.arg("bankbook")) || own->language().isEmpty()) {
    std::setlocale(LC_MESSAGES, "C"); // what the system says of files, in English
    return;
  }
  QCoreApplication::installTranslator(own);
  auto const installOther = [&](QString const& name, QString const& folder) {
    auto* const other = new QTranslator(QCoreApplication::instance());
    if (other->load(name + own->language(), folder)) {
      QCoreApplication::installTranslator(other);
    }
  };
  installOther("orv-banking_", share.arg("orv-banking"));
  installOther("qtbase_", QLibraryInfo::path(QLibraryInfo::TranslationsPath));
}

// Reads a line without its line feed. Returns whether there was one. Throws for a line that is too long,
// when all of it has been read.
bool readLine(std::FILE* file, std::string& line)
{
  constexpr std::size_t longest = 1024 * 1024;
  line.clear();
  auto c = getc_unlocked(file);
  auto const isEnd = c == EOF;
  for (; c != EOF && c != '\n'; c = getc_unlocked(file)) {
    if (line.size() <= longest) {
      line += static_cast<char>(c);
    }
  }
  if (line.size() > longest) {
    throw BookError(Book::tr("The line is longer than 1 MiB."));
  }
  return !isEnd;
}

// Carries out the lines of `file`, one by one; `name` stands before each refusal. A null pointer is a file
// that cannot be opened. At a prompt, what guides a person is kept apart from the results, which may go
// elsewhere.
int run(std::FILE* file, QString const& name, bool isStrict, bool isAtPrompt)
{
  auto error = errno;
  auto status = allDone;
  Book book(QFileInfo(name).absoluteDir()); // the current one for standard input
  std::string line;
  auto const guide = [&](QString const& text) {
    if (isAtPrompt) {
      QTextStream(stderr) << text;
    }
  };
  guide(Book::tr("Type help for the commands, or quit to leave.") + u'\n');
  for (int number = 1; file != nullptr && (status == allDone || !isStrict); ++number) {
    guide("bankbook> ");
    try {
      if (!readLine(file, line) || (isAtPrompt && line == "quit")) {
        error = errno;
        break;
      }
      if (isAtPrompt && line == "help") {
        guide(Book::usage() + u'\n');
      } else {
        show(book.execute(line));
      }
    } catch (std::exception const& refusal) {
      auto const text = QString::fromUtf8(refusal.what());
      tell(QStringLiteral("%1:%2: %3").arg(name, QString::number(number), text));
      status = linesRefused;
    }
  }
  guide(line.empty() ? "\n" : ""); // where no quit ended the line
  return file != nullptr && std::ferror(file) == 0
             ? ended(status)
             : tell(Book::tr("%1 cannot be read: %2").arg(name, qt_error_string(error)));
}

} // namespace

int main(int argc, char* argv[])
{
  QCoreApplication const application(argc, argv);
  qInstallMessageHandler([](QtMsgType type, QMessageLogContext const& context,
                            QString const& text) { tell(qFormatLogMessage(type, context, text)); });

  QCommandLineOption localeOption("locale", {}, "LOCALE");
  auto const isLocaleKnown = setLocale(localeOption);
  installTranslators();

  localeOption.setDescription(Book::tr("Show texts, amounts and dates as in this locale."));
  QCommandLineParser parser;
  parser.setApplicationDescription(Book::tr("Keeps a household's books, one command a line:") +
                                   "\n\n" + Book::usage());
  parser.addOptions({
      localeOption,
      {"quiet", Book::tr("Do not report the changes of banks.")},
      {"verbose", Book::tr("Report the changes of banks, at the prompt too.")},
      {"strict", Book::tr("Stop at the first line that is refused.")},
      {{"h", "help"}, Book::tr("Show this help.")},
  });
  parser.addVersionOption();
  auto const file = Book::tr("FILE");
  parser.addPositionalArgument(file,
                               Book::tr("The book. Without it, or with -, standard input is read."),
                               u'[' + file + u']');
  if (!parser.parse(QCoreApplication::arguments())) {
    return tell(parser.errorText());
  }
  if (!isLocaleKnown) {
    return tell(Book::tr("There is no locale '%1'.").arg(parser.value(localeOption)));
  }
  if (parser.isSet("help") || parser.isSet("version")) {
    show(parser.isSet("help") ? parser.helpText() : "bankbook " BANKBOOK_VERSION "\n");
    return ended(allDone);
  }
  auto const files = parser.positionalArguments();
  if (files.size() > 1) {
    return tell(Book::tr("Only one book can be read at a time."));
  }

  auto const readsStandardInput = files.isEmpty() || files.first() == u"-";
  auto const isAtPrompt = readsStandardInput && isatty(STDIN_FILENO) == 1;
  if (parser.isSet("quiet") || (isAtPrompt && !parser.isSet("verbose"))) {
    QLoggingCategory::setFilterRules("default.info=false");
  }
  auto const name = readsStandardInput ? Book::tr("standard input") : files.first();
  auto* const book = readsStandardInput ? stdin : std::fopen(QFile::encodeName(name), "r");
  return run(book, name, parser.isSet("strict"), isAtPrompt);
}
