#include "Statement.hpp"

#include "support/Testing.hpp"

// As a bank sends it: tags without ends, a header, a transfer and another balance.
static QByteArray const sent = R"(OFXHEADER:100

<OFX><TRNUID>0<STMTRS><CURDEF>CAD<BANKACCTFROM><ACCTID>A-1<ACCTTYPE>CHECKING</BANKACCTFROM><MKTGINFO>
<BANKTRANLIST><STMTTRN><NAME>AT&T <3 <BANKACCTFROM><ACCTID>B-2</BANKACCTFROM></STMTTRN></BANKTRANLIST>
<AVAILBAL><BALAMT>9.99<DTASOF>20260101</AVAILBAL>
<LEDGERBAL><BALAMT>20.50
<DTASOF>20251231235959.000[-5:EST]
</LEDGERBAL></STMTRS></OFX>
)";

// What the account's statement says once `before` is replaced in what was sent: the account, the balance
// and its date, or the refusal.
static QString outcome(QByteArray const& before, QByteArray const& after)
{
  EXPECT_TRUE(sent.contains(before)) << before.data();
  try {
    auto const statements = toStatements(QByteArray(sent).replace(before, after));
    auto const statement = statementFor({AccountNumber(7), Chequeing}, statements, {});
    return statement.accountId + u' ' + streamed(statement.balance.money()) + u' ' +
           statement.date.toString(Qt::ISODate);
  } catch (BookError const& refusal) {
    return QString::fromUtf8(refusal.what());
  }
}

TEST(Statement, IsTakenAsBanksSendItUnlessItCannotBeReliedOn)
{
  QString const taken("A-1 20.50\u00a0CAD 2025-12-31");
  QString const missing("The statement has no %1.");
  QString const damaged("The file is cut short, damaged, or several files in one.");
  QString const noOfx("The file is not an OFX file, or is one in UTF-16 or UTF-32.");
  QString const noAmount("'%1' is not an amount such as -1250.50 CAD.");
  QString const noDate("'%1' is not a date such as 2026-01-31.");
  std::tuple<QByteArray, QByteArray, QString> const rows[]{
      {"", "", taken},
      {"OFXHEADER:100\n\n<OFX>", "<ofx>", taken},
      {"20.50\n", "<!-- 9 -->+,5</BALAMT>", "A-1 0.50\u00a0CAD 2025-12-31"},
      {"235959.000[-5:EST]", "0000[+14]", taken},
      {"A-1", "&nbsp; A&amp;&#66;\n<![CDATA[<1>]]>", "A&B <1> 20.50\u00a0CAD 2025-12-31"},
      {"A-1", QByteArray("A\0001", 3), "A\\u{0}1 20.50\u00a0CAD 2025-12-31"},
      // Values of one transaction, with end tags of others or without any.
      {"<NAME>", "<MEMO>shop</NAME><DTUSER>20091017</DTPOSTED><X></X><NAME>", taken},
      {"<TRNUID>0", "<TRNUID/><INVSTMTRS><LEDGERBAL><BALAMT>7</LEDGERBAL></INVSTMTRS>", taken},
      {"<OFX>", "<OFX><!--" + QByteArray(10'000'000, '-') + "<STMTRS>-->", taken},
      {sent, QByteArray("<\0O\0", 4), noOfx},
      {sent, "<html></html>", noOfx},
      {sent, "<OFX></OFX>", "The file has no statement of a bank account or a credit card."},
      {"<STMTRS>", "</OFX><STMTRS>", damaged},
      {"</OFX>", "</OFX><ofx a=\"\"></ofx>", damaged},
      {"<TRNUID>", "<OFX>", damaged},
      {"CURDEF>CAD", "CURDEF>", missing.arg("CURDEF")},
      {"LEDGERBAL>", "OTHERBAL>", missing.arg("LEDGERBAL/BALAMT")},
      {"A-1", " ", missing.arg("ACCTID")},
      {"<ACCTTYPE>CHECKING", "", missing.arg("ACCTTYPE")},
      {"CHECKING", "POT",
       "The account 7 (Chequeing) is not of the kind that the statement is for, 'POT'."},
      {"CURDEF>CAD", "CURDEF>CADX", noAmount.arg("20.50 CADX")},
      {"20251231235959.000[-5:EST]", "20251331", noDate.arg("2025-13-31")},
      {"235959.000[-5:EST]", "23595", noDate.arg("2025123123595")},
      // Elements that hold others, without a start or an end, and what cannot be in a whole file.
      {"<STMTRS>", "<STMTRS><STMTRS></STMTRS>", damaged},
      {"<BANKTRANLIST>", "", damaged},
      {"</STMTTRN>", "", damaged},
      {"</BANKACCTFROM><MKTGINFO>", "", damaged},
      {"</LEDGERBAL>", "", damaged},
      {"</LEDGERBAL></STMTRS>", "</STMTRS></LEDGERBAL>", damaged},
      {"<AVAILBAL>", "", damaged},
      {"</OFX>", "<!-- </OFX>", damaged},
      {"</OFX>", "<![CDATA[ <!-- --> </OFX>", damaged},
      {"</OFX>", "</OFX></STMTRS>", damaged},
      {"<OFX>", "</STMTTRN><OFX>", damaged},
      {"<NAME>", QByteArray("<PAYEE>").repeated(100'000) + QByteArray("</PAYEE>").repeated(100'000),
       damaged},
      {"20.50", "20<b>.50</b></BALAMT>", damaged},
      {"20.50", "1<BALAMT>2", damaged},
  };
  for (auto const& [before, after, expected] : rows) {
    EXPECT_EQ(outcome(before, after), expected) << after.left(99).data();
  }
  for (auto const* const amount : {"1.200.00", "1.234.5", "+-1", "0.", "2<0.2", "1.", "--1", "1 0",
                                   "20.505", "1e3", "1.2.3", "92233720368547758.08"}) {
    EXPECT_EQ(outcome("20.50", amount), noAmount.arg(QString(amount) + " CAD"));
  }
}
