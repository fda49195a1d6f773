#include "Book.hpp"
#include "support/Testing.hpp"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace {

// What the book makes of the statement in the file "x": the balance and its date, or the refusal.
QString outcome(QByteArray const& content, QByteArray const& arguments)
{
  QTemporaryDir const folder;
  QFile file(folder.filePath("x"));
  EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
  file.close();
  Book book{QDir(folder.path())};
  book.execute("bank Elm 1=Chequeing 2=Savings 3=Loan 4=Goal \"5=Credit Card\"");
  auto const before = book.execute("list");
  try {
    book.execute("statement " + arguments);
  } catch (std::exception const& refusal) {
    EXPECT_EQ(book.execute("list"), before);
    return QString::fromUtf8(refusal.what()).remove(folder.path() + u'/');
  }
  static QRegularExpression const balance("[-0-9.]+ [A-Z]{3} [0-9]+ [A-Z][a-z]+ [0-9]{4}");
  return balance.match(book.execute("list").simplified()).captured();
}

} // namespace

#ifdef BANKBOOK_HAS_LIBOFX

TEST(Statement, ReconcilesAnAccountOrIsRefused)
{
  auto const shipped = [](QString const& name) {
    QFile file(QStringLiteral(STATEMENTS_FOLDER "/") + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  };
  auto const chequeing = shipped("chequeing-2025-12.ofx");
  auto const several = shipped("savings-and-card-2025-12.ofx");
  QString const unread("The statement's %1 cannot be read.");
  QString const notThatKind("The account %1 is not of the kind that the statement is for, '%2'.");
  // What is replaced in the statement by what, the command's arguments, and its outcome.
  std::tuple<QByteArray, QByteArray, QByteArray, QString> const rows[]{
      {"", "", "1 x", "2090.20 CAD 31 Dec 2025"},
      {"1231235959[-5:EST]", "1231", "1 x", "2090.20 CAD 31 Dec 2025"},
      {"1231235959[-5:EST]", "1231120000[-5:EST]", "1 x", "2090.20 CAD 31 Dec 2025"},
      {"2090.20", "-,5", "1 x", "-0.50 CAD 31 Dec 2025"},
      {"2090.20", "9999999999999.99", "1 x", "9999999999999.99 CAD 31 Dec 2025"},
      {"CHECKING", "MONEYMRKT", "4 x", "2090.20 CAD 31 Dec 2025"},
      {"CHECKING", "CREDITLINE", "3 x", "2090.20 CAD 31 Dec 2025"},
      {chequeing, several, "2 x SAVINGS-1", "17945.38 CAD 31 Dec 2025"},
      {chequeing, several, "5 x CARD-1", "-1740.75 CAD 31 Dec 2025"},
      {chequeing, several, "2 x", "Name one account; 'x' has statements of: SAVINGS-1, CARD-1."},
      {"", "", "1 x OTHER", "Name one account; 'x' has statements of: CHEQUEING-1."},
      {"", "", "2 x", notThatKind.arg("2 (Savings)", "CHECKING")},
      {"CHECKING", "POT", "1 x", notThatKind.arg("1 (Chequeing)", "")},
      {"CURDEF>CAD", "CURDEF>CADX", "1 x", "'CADX' is not a currency code such as CAD."},
      {"2090.20", "2090.205", "1 x", "'2090.205' is not an amount of CAD."},
      {"<BALAMT>2090.20", "<balamt>1,200.00", "1 x", unread.arg("BALAMT '1,200.00'")},
      {"2090.20", "2090<.20", "1 x", unread.arg("BALAMT '2090<.20'")},
      {"2090.20", "9999999999999999", "1 x", unread.arg("BALAMT '9999999999999999'")},
      {"20251231235959[-5:EST]", "20251331", "1 x", unread.arg("DTASOF '20251331'")},
      {"31235959[-5:EST]", "1235959", "1 x", unread.arg("DTASOF '2025121235959'")},
      {"DTASOF>", "DTASOF\x80", "1 x", unread.arg("DTASOF '\u008020251231235959[-5:EST]'")},
      {"<LEDGERBAL>", "</STMTRS>\n<STMTRS>\n<LEDGERBAL>", "1 x",
       "The file 'x' has no statement that libofx reads without errors."},
      {"</BANKMSGSRSV1>\n</OFX>\n", "", "1 x", "The file 'x' is not a whole OFX file."},
      {chequeing, "<html></OFX>", "1 x", "The file 'x' is not a whole OFX file."},
      {"\n\n", QByteArray(2LL * 1024 * 1024, '\n'), "1 x",
       "The file 'x' is too large for a statement."},
      {"", "", "1 y", "There is no file 'y' that can be read."},
      {"", "", "1 /dev/zero", "There is no file '/dev/zero' that can be read."},
  };
  for (auto const* const zone : {"America/Vancouver", "Pacific/Auckland", "Pacific/Kiritimati"}) {
    qputenv("TZ", zone);
    for (auto const& [before, after, arguments, expected] : rows) {
      SCOPED_TRACE(after.left(40).toStdString());
      EXPECT_EQ(outcome(QByteArray(chequeing).replace(before, after), arguments), expected);
    }
  }
}

#else

TEST(Statement, IsRefusedWhereBankbookIsBuiltWithoutLibofx)
{
  EXPECT_EQ(outcome({}, "1 x"), "bankbook was built without libofx, which reads statements.");
}

#endif
