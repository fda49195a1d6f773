#include "Statement.hpp"

#include "Book.hpp"
#include "BookReader.hpp"
#include "support/Testing.hpp"

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using orv::banking::BankAccountTypes;

namespace {

// As a bank sends it: tags without ends, a header, a transfer and another balance.
QByteArray const sgml =
    "OFXHEADER:100\r\nDATA:OFXSGML\r\n\r\n<OFX><BANKMSGSRSV1><STMTTRNRS><TRNUID>0\r\n"
    "<STMTRS><CURDEF>CAD\r\n<BANKACCTFROM><BANKID>1<ACCTID>A-1\r\n<ACCTTYPE>CHECKING\r\n"
    "</BANKACCTFROM><BANKTRANLIST><STMTTRN><TRNAMT>-5<NAME>AT&T <3\xE9 <BANKACCTTO><ACCTID>B-2"
    "<ACCTTYPE>SAVINGS</BANKACCTTO><CURRENCY><CURSYM>EUR</CURRENCY></STMTTRN></BANKTRANLIST>"
    "<MKTGINFO>\r\n<AVAILBAL><BALAMT>9.99<DTASOF>20260101</AVAILBAL><LEDGERBAL><BALAMT>20.50\r\n"
    "<DTASOF>20251231235959.000[-5:EST]\r\n</LEDGERBAL></STMTRS></STMTTRNRS></BANKMSGSRSV1></"
    "OFX>\r\n";

QByteArray card(QByteArray const& id, QByteArray const& amount)
{
  return "<CCSTMTRS><CURDEF>CAD</CURDEF><CCACCTFROM><ACCTID>" + id +
         "</ACCTID></CCACCTFROM><LEDGERBAL><BALAMT>" + amount +
         "</BALAMT><DTASOF>20251231</DTASOF></LEDGERBAL></CCSTMTRS>";
}

// What is read from the content: the account, the balance and its date, or the refusal.
QString outcome(QByteArray const& content, QString const& id, BankAccountTypes kind)
{
  try {
    auto const statement = readStatement(content, id, {orv::accounting::AccountNumber(7), kind});
    return statement.accountId + u' ' + streamed(statement.balance) + u' ' +
           statement.date.toString(Qt::ISODate);
  } catch (BookError const& refusal) {
    return QString::fromUtf8(refusal.what());
  }
}

} // namespace

TEST(Statement, TakesWhatBanksSend)
{
  auto const xml =
      "<?xml version=\"1.0\"?><!-- <OFX> --><x:OFX xmlns:x=\"y\">" + card("C-1", "-5") + "</x:OFX>";
  // What is replaced in the content by what, and the statement then.
  std::tuple<QByteArray, QByteArray, QByteArray, QString> const rows[]{
      {sgml, "", "", "A-1 20.50\u00a0CAD 2025-12-31"},
      {sgml, "OFXHEADER:100\r\nDATA:OFXSGML\r\n\r\n<OFX>", "<ofx>",
       "A-1 20.50\u00a0CAD 2025-12-31"},
      {sgml, "20.50\r\n", "<!-- 9 -->+,5</BALAMT>", "A-1 0.50\u00a0CAD 2025-12-31"},
      {sgml, "20.50", "-92233720368547758.08", "A-1 -92233720368547758.08\u00a0CAD 2025-12-31"},
      {sgml, "235959.000[-5:EST]", "0000[+14]", "A-1 20.50\u00a0CAD 2025-12-31"},
      {sgml, "A-1", "&nbsp; A&amp;&#66;\r\n<![CDATA[<1>]]>", "A&B <1> 20.50\u00a0CAD 2025-12-31"},
      {sgml, "<TRNUID>0", "<TRNUID/><INVSTMTRS><LEDGERBAL></INVSTMTRS>",
       "A-1 20.50\u00a0CAD 2025-12-31"},
      {sgml, "</OFX>", "</OFX></STMTRS> &", "A-1 20.50\u00a0CAD 2025-12-31"},
      {sgml, "</STMTTRNRS>", card("C-1", "-5") + "</STMTTRNRS>", "A-1 20.50\u00a0CAD 2025-12-31"},
      {xml, "", "", "C-1 -5.00\u00a0CAD 2025-12-31"},
      {xml, "</CCSTMTRS>", "</CCSTMTRS>" + card("C-1", "-5.00"), "C-1 -5.00\u00a0CAD 2025-12-31"},
  };
  for (auto const& [content, before, after, expected] : rows) {
    auto const kind = content == sgml ? BankAccountTypes::Chequeing : BankAccountTypes::CreditCard;
    EXPECT_EQ(outcome(QByteArray(content).replace(before, after), {}, kind), expected)
        << after.data();
  }
  for (auto const* const type : {"savings", "CD", "MONEYMRKT", "CMA"}) {
    EXPECT_EQ(
        outcome(QByteArray(sgml).replace("CHECKING", type), "A-1", BankAccountTypes::Goal).left(3),
        "A-1")
        << type;
  }
}

TEST(Statement, RefusesWhatCannotBeReliedOn)
{
  QString const missing("The statement has no %1.");
  QString const unread("The statement's %1 cannot be read.");
  QString const cutShort("The file is cut short or damaged.");
  // What is replaced in the content by what, and the refusal then.
  std::tuple<QByteArray, QByteArray, QString> const rows[]{
      {sgml, QByteArray("<\0O\0", 4), "The file is in UTF-16 or UTF-32, which cannot be read."},
      {sgml, "<html></OFX>", "The file is not an OFX file."},
      {sgml, "<OFX></OFX>", "The file has no statement of a bank account or a credit card."},
      {"</OFX>", "", cutShort},
      {"</STMTRS>", "", cutShort},
      {"<STMTTRNRS>", "<STMTTRNRS><STMTRS>", cutShort},
      {"</STMTRS>", "</STMTRS></STMTRS>", cutShort},
      {"</STMTTRNRS>", "<!-- </STMTTRNRS>", cutShort},
      {"</OFX>", "</OFX><ofx></ofx>", "The file is several OFX files in one."},
      {"</BANKMSGSRSV1>", "<OFX>", "The file is several OFX files in one."},
      {"CURDEF>CAD", "CURDEF>", missing.arg("CURDEF")},
      {"<ACCTID>A-1", "", missing.arg("ACCTID")},
      {"LEDGERBAL>", "OTHERBAL>", missing.arg("LEDGERBAL/BALAMT")},
      {"20.50", "<b>20.50</b></BALAMT>", missing.arg("LEDGERBAL/BALAMT")},
      {"<ACCTTYPE>CHECKING", "", missing.arg("ACCTTYPE")},
      {"CHECKING", "POT", unread.arg("ACCTTYPE 'POT'")},
      {"CURDEF>CAD", "CURDEF>CADX", unread.arg("CURDEF 'CADX'")},
      {"20.50\r\n", "1<BALAMT>2", unread.arg("LEDGERBAL/BALAMT '1 2'")},
      {"20251231", "20251331", unread.arg("LEDGERBAL/DTASOF '20251331235959.000[-5:EST]'")},
      {"20251231", "2025121", unread.arg("LEDGERBAL/DTASOF '2025121235959.000[-5:EST]'")},
      {"CHECKING", "CREDITLINE",
       "The account 7 (Chequeing) is not of the kind that the statement is for, 'CREDITLINE'."},
  };
  for (auto const& [before, after, expected] : rows) {
    auto const content = QByteArray(sgml).replace(before, after);
    EXPECT_EQ(outcome(content, {}, BankAccountTypes::Chequeing), expected) << after.data();
  }
  for (auto const* const amount : {"1,200.00", "1.234,5", "1 0", "20.505", "1e3", "+-1", "--1", ".",
                                   "2<.2", "92233720368547758.08"}) {
    auto const content = QByteArray(sgml).replace("20.50", amount);
    EXPECT_EQ(outcome(content, {}, BankAccountTypes::Chequeing),
              unread.arg(QStringLiteral("LEDGERBAL/BALAMT '%1'").arg(amount)));
  }
}

TEST(Statement, OfSeveralIsTheOneOfTheAccount)
{
  auto const content = QByteArray(sgml).replace(
      "</STMTTRNRS>", card("A-1", "1") + card("C-1", "2") + "</STMTTRNRS>");
  EXPECT_EQ(outcome(content, "A-1", BankAccountTypes::CreditCard).left(8), "A-1 1.00");
  EXPECT_EQ(outcome(content, "C-1", BankAccountTypes::CreditCard).left(8), "C-1 2.00");
  EXPECT_EQ(outcome(content, {}, BankAccountTypes::CreditCard),
            "The file has statements that differ, of the accounts: A-1, A-1, C-1.");
  EXPECT_EQ(outcome(content, "B-2", BankAccountTypes::Savings),
            "The file has no statement of the account 'B-2', but of: A-1, A-1, C-1.");
}

TEST(Statement, IsReadFromAFileBesideTheBook)
{
  QTemporaryDir const folder;
  QFile file(folder.filePath("x"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(sgml) == sgml.size());
  file.close();
  Book book{QDir(folder.path())};
  book.execute("bank Elm 1=Chequeing");
  book.execute("statement 1 x A-1");
  EXPECT_THAT(book.execute("list").toStdString(), testing::HasSubstr("20.50\u00a0CAD  2025-12-31"));
  for (auto const* const path : {"y", "/dev/zero", "/"}) {
    EXPECT_THROW(book.execute(QByteArray("statement 1 ") + path), BookError) << path;
  }
}
