#include "Book.hpp"
#include "BookReader.hpp"

#include <foundation/Date.hpp>

#include <QCommandLineParser>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QLoggingCategory>
#include <QTextStream>
#include <QTranslator>

#include <cstdio>
#include <new>

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

// Bankbook's own translation decides on the language of all texts: nobody is to read two at a time.
// Only why a file cannot be read may be in the system's.
void installTranslators()
{
  QLocale language;
  for (auto const& file : {QString(":/i18n/bankbook"), QString(":/i18n/orv-banking"),
                           QLibraryInfo::path(QLibraryInfo::TranslationsPath) + "/qtbase"}) {
    auto* const translator = new QTranslator(QCoreApplication::instance());
    if (!translator->load(language, file, "_")) {
      return;
    }
    QCoreApplication::installTranslator(translator);
    language = QLocale(translator->language());
  }
}

// Carries out the lines of a book, one by one; `name` stands before what there is to tell of each.
int run(QByteArray const& content, QString const& name, QDir const& folder, bool isStrict)
{
  Book book{folder};
  QMap<orv::accounting::AccountNumber, QString> places; // where each account was reconciled last
  int done = 0;                                         // of the lines that hold a command
  int refused = 0;
  int number = 0;
  for (auto const& line : content.split('\n')) {
    auto const place = QStringLiteral("%1:%2: ").arg(name, QString::number(++number));
    try {
      auto const words = toWords(toText(line));
      auto const answer = execute(book, words);
      done += words.isEmpty() ? 0 : 1;
      for (auto const& message : answer.messages) {
        tell(place + message);
      }
      for (auto const& account : answer.reconciled) {
        places[account] = place;
      }
      if (show(answer.table) != allDone) {
        return notRun;
      }
    } catch (orv::foundation::Error const& refusal) { // BookError or BankError
      tell(place + refusal.what());
      ++refused;
      if (isStrict) {
        return linesRefused;
      }
    }
  }
  for (auto const& [account, place] : places.asKeyValueRange()) {
    if (auto const day = book.balances.value(account).occurredOn; day > QDate::currentDate()) {
      tell(place +
           filled(Book::tr("The date %1 of the account number %2 lies in the future. To take "
                           "it back: forget %2"),
                  orv::foundation::presentationText(day), presentationText(account)));
    }
  }
  if (refused > 0) {
    tell(filled(Book::tr("%1 of %2 lines were refused."), QString::number(refused),
                QString::number(done + refused)));
  }
  return refused == 0 ? allDone : linesRefused;
}

} // namespace

int main(int argc, char* argv[])
{
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
      return tell(filled(Book::tr("There is no locale '%1'."), name));
    }
  }
  installTranslators();

  localeOption.setDescription(Book::tr("Show texts, amounts and dates as in this locale."));
  QCommandLineParser parser;
  parser.setApplicationDescription(Book::tr("Keeps a household's books, one command a line:") +
                                   "\n\n" + usage());
  parser.addOptions({
      localeOption,
      {"verbose", Book::tr("Report the changes of banks.")},
      {"strict", Book::tr("Stop at the first line that is refused.")},
      {{"h", "help"}, Book::tr("Show this help.")},
  });
  parser.addVersionOption();
  parser.addPositionalArgument(Book::tr("FILE"), Book::tr("The book, or - for standard input."));
  if (!parser.parse(QCoreApplication::arguments())) {
    return tell(parser.errorText());
  }
  if (parser.isSet("help") || parser.isSet("version")) {
    return show(parser.isSet("help") ? parser.helpText() : "bankbook " BANKBOOK_VERSION "\n");
  }
  auto const files = parser.positionalArguments();
  if (files.size() != 1) {
    QTextStream(stderr) << parser.helpText();
    return notRun;
  }
  if (!parser.isSet("verbose")) {
    QLoggingCategory::setFilterRules("default.info=false");
  }

  auto const isStandardInput = files[0] == u"-";
  QFile book(pathOf(QDir(), files[0]));
  if (isStandardInput) {
    static_cast<void>(
        book.open(fileno(stdin), QIODevice::ReadOnly)); // contentOf tells why it is not
  }
  auto const name = isStandardInput ? Book::tr("standard input") : files[0];
  try {
    return run(contentOf(book, name), name, QFileInfo(book).absoluteDir(), parser.isSet("strict"));
  } catch (BookError const& error) {
    return tell(error.what());
  } catch (std::bad_alloc const&) { // when the book is gone, and its memory with it
    return tell(Book::tr("There is not enough memory."));
  }
}
