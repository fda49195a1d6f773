#include "support/Testing.hpp"

#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>

#if __has_include(<pty.h>)
#include <pty.h>
#include <unistd.h>
#endif

using namespace testing;

struct Run
{
  int status;
  std::string out;
  std::string err;
};

// Runs bankbook with these lines on standard input, if any, in an environment without a language.
static Run run(
    QStringList arguments, QByteArray const& lines = {},
    std::function<void(QProcess&)> const& prepare = [](QProcess&) {})
{
  QProcess process;
  auto environment = QProcessEnvironment::systemEnvironment();
  for (auto const* const variable : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"}) {
    environment.remove(variable);
  }
  environment.insert("QT_ASSUME_STDERR_HAS_CONSOLE", "1");
  process.setProcessEnvironment(environment);
  prepare(process);
  arguments = QStringList BANKBOOK + arguments;
  process.start(arguments.takeFirst(), arguments);
  process.write(lines);
  process.closeWriteChannel();
  EXPECT_TRUE(process.waitForFinished(300000) && process.exitStatus() == QProcess::NormalExit);
  // From 6.8 on, Qt complains where the locale is not one for UTF-8.
  static QRegularExpression const complaint("(?s)^Detected locale .*for more information\\.\n");
  auto const read = [](QByteArray text) {
    return QString::fromUtf8(text.replace("\r\n", "\n")).remove(complaint).toStdString();
  };
  return {process.exitCode(), read(process.readAllStandardOutput()),
          read(process.readAllStandardError())};
}

TEST(Program, EndsWithAStatus)
{
  QByteArray const longest(1 << 20, '#');
  std::tuple<QStringList, QByteArray, int, char const*, char const*> const rows[]{
      {{"--quiet"}, "bank Elm\nadd Elm 1 Loan\r\n\n# all\nlist # it\n", 0, "Elm   open", ""},
      {{}, "bank Elm\nadd Elm 1 Loan", 0, "", "Adding"},
      {{"--quiet", "-"}, "fly\n#\n\nfind 1\nbank", 1, "", "standard input:5: The"},
      {{"--quiet"}, "fly\n#\n\nbank\nbank Elm", 1, "", "\n2 of 3 lines were refused.\n"},
      {{"--strict"}, "fly\nfind 1\n", 1, "", "standard input:1: There is no command"},
      {{"--locale", "C.UTF-8"}, "help add", 0, "add NAME NUMBER KIND\n  Adds", ""},
      {{"--locale", "xx"}, "", 2, "", "There is no locale 'xx'."},
      {{"--fly"}, "", 2, "", "fly"},
      {{"a", "b"}, "", 2, "", "Only one book"},
      {{"missing é"}, "", 2, "", "missing é cannot be read: "},
      {{"--help"}, "", 0, "  statement FILE, or", ""},
      {{"--version"}, "", 0, "bankbook ", ""},
      {{"--quiet"}, "bank 日本\nbank Elm\nlist", 0, "日本  open\n", ""},
      {{"--quiet"}, "statement \u200e\\\u007f", 1, "", "character \\u{7F}, which"},
      {{"--quiet"}, "quit\nbank Elm\nlist", 1, "Elm   open", "no command 'quit'"},
      {{}, longest + '\n' + longest + "#\nfly", 1, "", "1 MiB.\nstandard input:3: There"},
      {{"--quiet"}, "bank Elm 1=Loan\nreconcile 1 2026-01-31 1 CAD", 0, "", ""},
      {{"--quiet"}, "bank Elm 1=Loan\nreconcile 1 9999-12-31 1 CAD", 0, "", "in the future"},
      {{"--locale", "en_CA", HOUSEHOLD}, "", 1, "     $2,090.20  2025-12-31\n", "\n3 of 123 lines"},
      {{}, "bank \xC3", 1, "", "standard input:1: The line is not UTF-8 text"},
      {{}, QByteArray("bank a\0b", 8), 1, "", "the character \\u{0}, which cannot be shown"},
      {{}, "# my book\rbank a\r", 1, "", "the character \\u{D}, which"},
      {{}, "bank Elm 1=Loan\nstatement 1 missing", 1, "", "/missing cannot be read: "},
      {{}, "bank Elm 1=Loan\nstatement 1 .", 1, "", "/. cannot be read: "},
      {{}, QByteArray("fly\n").repeated(11), 1, "", "11 of 11 lines were refused; --strict stops"},
  };
  for (auto const& [arguments, lines, status, out, err] : rows) {
    auto const [ended, shown, told] = run(arguments, lines);
    EXPECT_EQ(ended, status) << lines.left(20).toStdString();
    EXPECT_THAT(shown, *out != '\0' ? Matcher<std::string>(HasSubstr(out)) : IsEmpty());
    EXPECT_THAT(told, *err != '\0' ? Matcher<std::string>(HasSubstr(err)) : IsEmpty());
  }
}

TEST(Program, SpeaksTheLanguageOfALocale)
{
  auto const program = (QStringList BANKBOOK).last();
  if (QFileInfo::exists(QFileInfo(program).path() + "/../share/bankbook")) {
    auto const german = run({"--locale", "de_DE@euro"}, "fly\nclose Elm");
    EXPECT_THAT(german.err, AllOf(StartsWith("Standardeingabe:1: Den Befehl „fly“ gibt es nicht"),
                                  HasSubstr("2: Es gibt ein Problem mit der Bank „Elm“.")));
    EXPECT_THAT(run({"--locale", "fr"}, "help add").out, StartsWith("add NOM NUMÉRO TYPE\n  Aj"));
  }
}

#if __has_include(<pty.h>)
TEST(Program, EndsWhereItCannotReadOrWrite)
{
  auto const toFull = [](QProcess& process) { process.setStandardOutputFile("/dev/full"); };
  auto const full = run({}, "list\nfly\n", toFull);
  EXPECT_EQ(full.status, 2);
  EXPECT_EQ(full.err, "Standard output cannot be written.\n");
  EXPECT_EQ(run({"--help"}, {}, toFull).status, 2);
  // It opens, and cannot be read.
  EXPECT_THAT(run({"/proc/self/mem"}).err, StartsWith("/proc/self/mem cannot be read: "));
  auto const closed = run({}, {}, [](QProcess& process) {
    process.setChildProcessModifier([] { close(STDIN_FILENO); });
  });
  EXPECT_EQ(closed.status, 2);
  EXPECT_EQ(closed.err, "Standard input is closed.\n");
}

TEST(Program, GuidesAtAPrompt)
{
  int ours = 0;
  int theirs = 0;
  char name[100];
  if (openpty(&ours, &theirs, name, nullptr, nullptr) != 0) {
    GTEST_SKIP() << "There is no terminal to be had.";
  }
  std::string const typed = "bank Elm\n help # me\nadd Elm 1 Loan\nfly\nlist\n quit # it\n";
  ASSERT_EQ(write(ours, typed.data(), typed.size()), typed.size());
  auto const atTerminal = [&](QProcess& process) { process.setStandardInputFile(name); };
  auto const [status, out, err] = run({}, {}, atTerminal);
  EXPECT_EQ(status, 1);
  EXPECT_THAT(out, AllOf(StartsWith("Bank  State"), HasSubstr("\nElm   open")));
  EXPECT_THAT(err,
              AllOf(StartsWith("Type help"), HasSubstr("\nbankbook> bankbook>   add NAME NUMBER"),
                    EndsWith("bankbook> bankbook> \n"), Not(HasSubstr("Adding"))));
}
#endif
