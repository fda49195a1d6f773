#include "Book.hpp"
#include "BookReader.hpp"
#include "Terminal.hpp"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QLocale>
#include <QLoggingCategory>
#include <QTextStream>
#include <QTranslator>

#include <cerrno>
#include <cstdio>
#include <new>
#include <unistd.h>

namespace {

// Exit statuses.
constexpr int allDone = 0, linesRefused = 1, notRun = 2;

// Writes a line to standard error. Returns the status for an end because of it.
int tell(QString const& text)
{
  QTextStream(stderr) << printable(text) << '\n';
  return notRun;
}

// Writes the text to standard output. Returns the status for an end after it.
int show(QString const& text)
{
  static QTextStream out(stdout);
  out << text << Qt::flush;
  return out.status() == QTextStream::Ok ? allDone
                                         : tell(Book::tr("Standard output cannot be written."));
}

// Bankbook's own translation decides on the language of all texts: nobody is to read two at a time. Only
// why a file cannot be read may be in the system's.
void installTranslators()
{
  QDir share(QCoreApplication::applicationDirPath());
  if (!share.cd(BANKBOOK_DATA "/bankbook/translations")) { // which is not installed, but just built
    share.cd("../share/bankbook/translations");
  }
  auto* const own = new QTranslator(QCoreApplication::instance());
  if (!own->load(QLocale(), "bankbook", "_", share.path()) || own->language().isEmpty()) {
    return;
  }
  QCoreApplication::installTranslator(own);
  for (auto const& name : {share.filePath("../../orv-banking/translations/orv-banking_"),
                           QLibraryInfo::path(QLibraryInfo::TranslationsPath) + "/qtbase_"}) {
    auto* const other = new QTranslator(QCoreApplication::instance());
    if (other->load(name + own->language())) {
      QCoreApplication::installTranslator(other);
    }
  }
}

// Reads a line with its end; it is empty at the end of the file. Throws for a line that is too long, when
// all of it has been read.
QByteArray readLine(QFile& file)
{
  constexpr qsizetype longest = 1024 * 1024;
  static QByteArray buffer(longest + 2, Qt::Uninitialized); // for a line feed and Qt's NUL, too
  auto const read = [&] {
    return buffer.first(qMax(0, file.readLine(buffer.data(), buffer.size())));
  };
  auto line = read();
  if (line.size() <= longest || line.endsWith('\n')) {
    return line;
  }
  while (!line.isEmpty() && !line.endsWith('\n')) {
    line = read();
  }
  throw BookError(Book::tr("The line is longer than 1 MiB."));
}

// Carries out the lines of `file`, one by one; `name` stands before each refusal. At a prompt, what guides
// a person is kept apart from the results, which may go elsewhere.
int run(QFile& file, QString const& name, bool isStrict, bool isAtPrompt)
{
  Book book{QFileInfo(name).absoluteDir()}; // the current one for standard input
  auto const guide = [&](QString const& text) {
    if (isAtPrompt) {
      QTextStream(stderr) << text;
    }
  };
  guide(
      Book::tr("Type help for the commands, or quit to leave. Nothing is kept unless you keep the "
               "lines that print shows.") +
      u'\n');
  int done = 0; // of the lines that hold a command
  int refused = 0;
  for (int number = 1;; ++number) {
    guide(QStringLiteral("bankbook> "));
    try {
      auto const line = readLine(file);
      auto const words = toWords(toText(line));
      if (line.isEmpty() || (isAtPrompt && words == QStringList{"quit"})) {
        break;
      }
      auto const shown = execute(book, words);
      done += words.isEmpty() ? 0 : 1;
      if (isAtPrompt && words.value(0) == u"help") {
        guide(shown);
      } else if (!shown.isEmpty() && show(shown) != allDone) {
        return notRun;
      }
    } catch (std::bad_alloc const&) {
      throw;
    } catch (std::exception const& refusal) {
      tell(QStringLiteral("%1:%2: %3").arg(name, QString::number(number), refusal.what()));
      if (isStrict) {
        return linesRefused;
      }
      ++refused;
    }
  }
  guide(QStringLiteral("\n"));
  if (file.error() != QFile::NoError) {
    return tell(unreadable(file, name).what());
  }
  if (refused > 0 && !isAtPrompt) {
    auto const text = refused > 10
                          ? Book::tr("%1 of %2 lines were refused; --strict stops at the first.")
                          : Book::tr("%1 of %2 lines were refused.");
    tell(text.arg(QString::number(refused), QString::number(done + refused)));
  }
  return refused == 0 ? allDone : linesRefused;
}

} // namespace

int main(int argc, char* argv[])
{
  errno = 0;
  auto const isTerminal = isatty(fileno(stdin)) != 0;
  auto const isClosed = !isTerminal && errno == EBADF; // and free for the next file that is opened
  QCoreApplication const application(argc, argv);
  qInstallMessageHandler([](QtMsgType type, QMessageLogContext const& context,
                            QString const& text) { tell(qFormatLogMessage(type, context, text)); });

  QCommandLineOption localeOption("locale", {}, "LOCALE");
  QCommandLineParser early; // All texts depend on the locale, those of the other options too.
  early.addOption(localeOption);
  early.parse(QCoreApplication::arguments());
  if (early.isSet(localeOption)) {
    // As LANG has it, with a character set or a variant, for instance C.UTF-8 or de_DE@euro.
    auto const name = early.value(localeOption).section(u'.', 0, 0).section(u'@', 0, 0);
    QLocale::setDefault(QLocale(name)); // C for one that is not known
    if (QLocale().language() == QLocale::C && name != u"C" && name != u"POSIX") {
      return tell(Book::tr("There is no locale '%1'.").arg(name));
    }
  }
  installTranslators();

  localeOption.setDescription(Book::tr("Show texts, amounts and dates as in this locale."));
  QCommandLineParser parser;
  parser.setApplicationDescription(Book::tr("Keeps a household's books, one command a line:") +
                                   "\n\n" + usage());
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
  if (parser.isSet("help") || parser.isSet("version")) {
    return show(parser.isSet("help") ? parser.helpText() : "bankbook " BANKBOOK_VERSION "\n");
  }
  auto const files = parser.positionalArguments();
  if (files.size() > 1) {
    return tell(Book::tr("Only one book can be read at a time."));
  }

  auto const readsStandardInput = files.isEmpty() || files.first() == u"-";
  if (readsStandardInput && isClosed) {
    return tell(Book::tr("Standard input is closed."));
  }
  auto const isAtPrompt = readsStandardInput && isTerminal;
  if (parser.isSet("quiet") || (isAtPrompt && !parser.isSet("verbose"))) {
    QLoggingCategory::setFilterRules("default.info=false");
  }
  auto const name = readsStandardInput ? Book::tr("standard input") : files.first();
  QFile book(name);
  if (!(readsStandardInput ? book.open(fileno(stdin), QIODevice::ReadOnly)
                           : book.open(QIODevice::ReadOnly))) {
    return tell(unreadable(book, name).what());
  }
  try {
    return run(book, name, parser.isSet("strict"), isAtPrompt);
  } catch (std::bad_alloc const&) { // when the book is gone, and its memory with it
    return tell(Book::tr("There is not enough memory."));
  }
}
