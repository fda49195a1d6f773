#include "Data.hpp"
#include "support/Testing.hpp"

#include <QProcess>

#if __has_include(<sys/resource.h>)
#include <sys/resource.h>
#include <unistd.h>
#endif

using namespace testing;

struct Result
{
  int status;
  std::string shown;
  std::string told;
};

// Runs bankbook with these lines on standard input, in an environment without a language.
static Result run(
    QStringList arguments, QByteArray const& lines,
    std::function<void(QProcess&)> const& prepare = [](QProcess&) {})
{
  QProcess process;
  auto environment = QProcessEnvironment::systemEnvironment();
  for (auto const* const variable : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"}) {
    environment.remove(variable);
  }
  environment.insert("QT_ASSUME_STDERR_HAS_CONSOLE", "1");
  process.setProcessEnvironment(environment);
  process.setWorkingDirectory(DATA "/../..");
  prepare(process);
  arguments = QStringList BANKBOOK + arguments;
  process.start(arguments.takeFirst(), arguments);
  process.write(lines);
  process.closeWriteChannel();
  EXPECT_TRUE(process.waitForFinished(300000) && process.exitStatus() == QProcess::NormalExit);
  // From 6.8 on, Qt complains where the locale is not one for UTF-8.
  static QRegularExpression const complaint("(?s)^Detected locale .*for more information\\.\n");
  auto const read = [](QByteArray text) {
    return coded(QString::fromUtf8(text.replace("\r\n", "\n")).remove(complaint));
  };
  return {process.exitCode(), read(process.readAllStandardOutput()),
          read(process.readAllStandardError())};
}

// With the bytes and the days that cannot stand in a text file.
static QByteArray filled(QStringList const& lines)
{
  auto const today = QDate::currentDate();
  auto text = lines.join("\n").toUtf8();
  text.replace("TODAY", today.toString(Qt::ISODate).toUtf8());
  text.replace("TOMORROW", today.addDays(1).toString(Qt::ISODate).toUtf8());
  for (auto const* const code : {"00", "0D", "1B", "C3"}) {
    text.replace(QByteArray("\\x") + code, QByteArray::fromHex(code));
  }
  return text;
}

class Session : public TestWithParam<std::string>
{
};

// A file has the arguments after "$ ", what is typed after "< ", what is shown after "> ", what is
// told after "! ", the status after "= ", and variables of the environment after "% ". A ... stands
// for any text.
TEST_P(Session, GoesAsExpected)
{
  auto const name = QString::fromStdString("sessions/" + GetParam() + ".txt");
  QMap<QChar, QStringList> parts;
  for (auto const& line : textOf(name).split('\n')) {
    parts[line.isEmpty() ? u' ' : line[0]] += line.mid(2);
  }
#ifndef TRANSLATIONS_FOLDER
  if (name.contains("translated")) {
    GTEST_SKIP() << "It is built without its translations.";
  }
#endif
  if ((!parts['%'].isEmpty() || name.contains("device")) && QSysInfo::kernelType() == "winnt") {
    GTEST_SKIP() << "Windows keeps the user's languages and devices elsewhere.";
  }
  auto const setVariables = [&](QProcess& process) {
    process.setEnvironment(process.environment() + parts['%']);
  };
  auto const arguments = QString::fromUtf8(filled(parts['$'])).split(' ', Qt::SkipEmptyParts);
  auto const [status, shown, told] = run(arguments, filled(parts['<']), setVariables);
  EXPECT_EQ(parts['='], QStringList(QString::number(status))) << name.toStdString() << told;
  auto const compare = [&](std::string const& given, QStringList const& expected) {
    auto const text = expected.join('\n');
    auto const form = QRegularExpression::escape(text).replace("\\.\\.\\.", "(?s:.*)");
    EXPECT_TRUE(
        QRegularExpression('^' + form + "\n?$").match(QString::fromStdString(given)).hasMatch())
        << name.toStdString() << '\n'
        << given << "\nis said, not\n"
        << text.toStdString();
  };
  compare(shown, parts['>']);
  compare(told, parts['!']);
}

INSTANTIATE_TEST_SUITE_P(Program, Session, ValuesIn(filesIn("sessions")),
                         [](auto const& info) { return plain(info.param); });

#if __has_include(<sys/resource.h>)
TEST(Program, EndsWhereItCannotReadOrWrite)
{
  auto const toFull = [](QProcess& process) { process.setStandardOutputFile("/dev/full"); };
  EXPECT_THAT(run({"-"}, "list\nfly\n", toFull),
              FieldsAre(2, "", "Standard output cannot be written.\n"));
  EXPECT_EQ(run({"--help"}, {}, toFull).status, 2);
  auto const closed = [](QProcess& process) {
    process.setChildProcessModifier([] { close(STDIN_FILENO); });
  };
  EXPECT_THAT(run({"-"}, {}, closed),
              FieldsAre(2, "", StartsWith("standard input cannot be read")));
}

// The sanitizers take more memory than a limit could leave them.
#if !defined(__clang__) && !defined(__SANITIZE_THREAD__)
TEST(Program, EndsWhereTheMemoryDoesNotSuffice)
{
  auto const limit = [](QProcess& process) {
    process.setChildProcessModifier([] {
      rlimit const bytes{500'000'000, 500'000'000};
      setrlimit(RLIMIT_AS, &bytes);
    });
  };
  EXPECT_THAT(run({"-"}, QByteArray(100'000'000, 'x') + "\nlist", limit),
              FieldsAre(2, "", "There is not enough memory.\n"));
}
#endif
#endif
