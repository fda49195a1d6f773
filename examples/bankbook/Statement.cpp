#include "Statement.hpp"

#include "BookError.hpp"

#ifdef BANKBOOK_HAS_LIBOFX

#include <QDataStream>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <libofx/libofx.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using orv::banking::BankAccountTypes;

static QDataStream& operator<<(QDataStream& stream, Statement const& statement)
{
  return stream << statement.accountId << statement.type << statement.kinds << statement.date
                << statement.balance << statement.currency;
}

static QDataStream& operator>>(QDataStream& stream, Statement& statement)
{
  return stream >> statement.accountId >> statement.type >> statement.kinds >> statement.date >>
         statement.balance >> statement.currency;
}

namespace {

// Decades of a busy account. libofx takes four times as long for twice as much.
constexpr qint64 mostBytes = 2LL * 1024 * 1024;
constexpr rlim_t mostSeconds = 10;

struct Type
{
  char const* name = nullptr;
  QList<BankAccountTypes> kinds;
};

// By value of OfxAccountData::AccountType. A goal is money set aside.
std::array<Type, 8> const types{{
    {"CHECKING", {BankAccountTypes::Chequeing}},
    {"SAVINGS", {BankAccountTypes::Savings, BankAccountTypes::Goal}},
    {"MONEYMRKT", {BankAccountTypes::Savings, BankAccountTypes::Goal}},
    {"CREDITLINE", {BankAccountTypes::Loan}},
    {"CMA", {BankAccountTypes::Chequeing, BankAccountTypes::Savings, BankAccountTypes::Goal}},
    {"CREDITCARD", {BankAccountTypes::CreditCard}},
    {"INVESTMENT", {}},
    {"401K", {}},
}};

// Takes in what the statement callback of libofx gets. A field that the file overfills has no zero at its
// end, but QByteArrayView knows where its array ends.
int append(OfxStatementData const data, void* statements) // clazy:exclude=function-args-by-ref
{
  Statement statement;
  if (auto const* const account = data.account_ptr) {
    statement.accountId = QString::fromUtf8(QByteArrayView(account->account_number));
    if (account->account_type_valid) {
      auto const& type = types.at(account->account_type);
      statement.type = QLatin1String(type.name);
      statement.kinds = type.kinds;
    }
  }
  if (data.ledger_balance_date_valid) {
    statement.date = QDateTime::fromSecsSinceEpoch(data.ledger_balance_date, Qt::UTC)
                         .date()
                         .toString(Qt::ISODate);
  }
  if (data.ledger_balance_valid) {
    statement.balance = QString::number(data.ledger_balance, 'f', QLocale::FloatingPointShortest);
  }
  if (data.currency_valid) {
    statement.currency = QString::fromUtf8(QByteArrayView(data.currency));
  }
  static_cast<QList<Statement>*>(statements)->append(statement);
  return 0;
}

// The value as libofx reads it right, empty where there is none: libofx takes a word that is no amount
// for zero, and moves a date by the time of day and the zone that stand behind it. A double holds up
// to 15 digits exactly.
QString plainValue(QString const& tag, QString const& value)
{
  static QRegularExpression const amount(
      QStringLiteral("^[+-]?(?=([.,]?[0-9]){1,15}$)[0-9]*[.,]?[0-9]+$"));
  static QRegularExpression const date(
      QStringLiteral("^([0-9]{8})([0-9]{4}([0-9]{2})?)?(?![0-9])"));
  if (tag == QStringLiteral("BALAMT")) {
    return amount.match(value).captured();
  }
  auto const day = date.match(value).captured(1);
  return QDate::fromString(day, QStringLiteral("yyyyMMdd")).isValid() ? day : QString();
}

// The file with plain values in all balances. Throws for a value that has none.
QString withPlainValues(QString const& content)
{
  // As SGML has it: a tag may lack its >, and a value ends where a tag begins, not at another <.
  static QRegularExpression const balance(
      QStringLiteral("<(BALAMT|DTASOF)(?:\\s*>)?(.*?)(?=</?[A-Z])"),
      QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
  QString text;
  qsizetype end = 0;
  for (auto matches = balance.globalMatch(content); matches.hasNext();) {
    auto const match = matches.next();
    auto const tag = match.captured(1).toUpper();
    auto const value = match.captured(2).simplified();
    auto const plain = plainValue(tag, value);
    if (plain.isEmpty()) {
      throw BookError(
          Statement::tr("The statement's %1 '%2' cannot be read.").arg(tag, value.left(40)));
    }
    text += content.mid(end, match.capturedStart(2) - end) + plain;
    end = match.capturedEnd(2);
  }
  return text + content.mid(end);
}

// Has libofx read the file "statement" in the folder and writes what it tells to the file "result".
// Ends this process, with zero where libofx found no error.
[[noreturn]] void parse(QTemporaryDir const& folder) noexcept
{
  rlimit const time{mostSeconds, mostSeconds};
  rlimit const core{0, 0};
  setrlimit(RLIMIT_CPU, &time);
  setrlimit(RLIMIT_CORE, &core);
  auto const nowhere = ::open("/dev/null", O_WRONLY);
  dup2(nowhere, STDOUT_FILENO);
  dup2(nowhere, STDERR_FILENO);
  qputenv("TMPDIR", QFile::encodeName(folder.path()));

  QList<Statement> statements;
  auto const context = libofx_get_new_context();
  ofx_set_statement_cb(context, append, &statements);
  auto const status =
      libofx_proc_file(context, QFile::encodeName(folder.filePath("statement")).constData(), OFX);
  QFile result(folder.filePath("result"));
  if (status != 0 || !result.open(QIODevice::WriteOnly)) {
    _exit(1);
  }
  QDataStream stream(&result);
  stream << statements;
  _exit(result.flush() ? 0 : 1);
}

// Throws for what is too much for libofx, and for what no bank sent or not to its end.
QByteArray contentOf(QString const& path)
{
  QFile file(path);
  if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
    throw BookError(Statement::tr("There is no file '%1' that can be read.").arg(path));
  }
  auto content = file.read(mostBytes + 1);
  if (content.size() > mostBytes) {
    throw BookError(Statement::tr("The file '%1' is too large for a statement.").arg(path));
  }
  if (!content.left(1024).contains("OFXHEADER") || !content.trimmed().endsWith("</OFX>")) {
    throw BookError(Statement::tr("The file '%1' is not a whole OFX file.").arg(path));
  }
  return content;
}

} // namespace

QList<Statement> readStatements(QString const& path)
{
  auto const content = withPlainValues(QString::fromLatin1(contentOf(path))).toLatin1();
  QTemporaryDir const folder;
  QFile copy(folder.filePath("statement"));
  if (!copy.open(QIODevice::WriteOnly) || copy.write(content) != content.size() || !copy.flush()) {
    throw BookError(copy.errorString());
  }

  // In a process of its own: some broken files keep libofx busy for minutes, and it writes to the
  // standard streams and into the environment, and leaves files behind.
  auto const child = fork();
  if (child == 0) {
    parse(folder);
  }
  if (child < 0) {
    throw BookError(qt_error_string(errno));
  }
  auto status = -1;
  while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }

  QList<Statement> statements;
  QFile result(folder.filePath("result"));
  if (status == 0 && result.open(QIODevice::ReadOnly)) {
    QDataStream stream(&result);
    stream >> statements;
  }
  if (statements.isEmpty()) {
    throw BookError(
        Statement::tr("The file '%1' has no statement that libofx reads without errors.")
            .arg(path));
  }
  return statements;
}

#else

QList<Statement> readStatements(QString const& /*path*/)
{
  throw BookError(Statement::tr("bankbook was built without libofx, which reads statements."));
}

#endif
