#include "Statement.hpp"

#include "BookReader.hpp"
#include "support/Testing.hpp"

namespace {

// As a bank sends it: tags without ends, a header, a transfer and another balance.
QByteArray const sent = R"(OFXHEADER:100

<OFX><TRNUID>0<STMTRS><CURDEF>CAD<BANKACCTFROM><ACCTID>A-1<ACCTTYPE>CHECKING</BANKACCTFROM><MKTGINFO>
<BANKTRANLIST><STMTTRN><NAME>AT&T <3 <BANKACCTFROM><ACCTID>B-2</BANKACCTFROM></STMTTRN></BANKTRANLIST>
<AVAILBAL><BALAMT>9.99<DTASOF>20260101</AVAILBAL>
<LEDGERBAL><BALAMT>20.50
<DTASOF>20251231235959.000[-5:EST]
</LEDGERBAL></STMTRS></OFX>
)";

QByteArray card(QByteArray const& id, QByteArray const& amount)
{
  return "<x:CCSTMTRS a='b'><CURDEF>CAD</CURDEF><CCACCTFROM><ACCTID>" + id +
         "</ACCTID></CCACCTFROM><LEDGERBAL><BALAMT>" + amount +
         "</BALAMT><DTASOF>20251231</DTASOF></LEDGERBAL></x:CCSTMTRS>";
}

// What the account's statement says once `before` is replaced in what was sent: the account, the balance
// and its date, or the refusal.
QString outcome(QByteArray const& before, QByteArray const& after,
                BankAccountTypes kind = Chequeing, QString const& id = {})
{
  EXPECT_TRUE(sent.contains(before)) << before.data();
  try {
    auto const statement = StatementFile(QByteArray(sent).replace(before, after))
                               .statementFor({AccountNumber(7), kind}, id);
    return statement.accountId + u' ' + streamed(statement.balance.money()) + u' ' +
           statement.date.toString(Qt::ISODate);
  } catch (BookError const& refusal) {
    return QString::fromUtf8(refusal.what());
  }
}

} // namespace

TEST(Statement, TakesWhatBanksSend)
{
  QByteArray const much(10'000'000, 'x');
  std::tuple<QByteArray, QByteArray, QString, BankAccountTypes> const rows[]{
      {"", "", "A-1 20.50", Chequeing},
      {"OFXHEADER:100\n\n<OFX>", "<ofx>", "A-1 20.50", Chequeing},
      {"20.50\n", "<!-- 9 -->+,5</BALAMT>", "A-1 0.50", Chequeing},
      {"20.50", "-92233720368547758.08", "A-1 -92233720368547758.08", Chequeing},
      {"20.50", "20.5000000000", "A-1 20.50", Chequeing},
      {"235959.000[-5:EST]", "0000[+14]", "A-1 20.50", Chequeing},
      {"A-1", "&nbsp; A&amp;&#66;\n<![CDATA[<1>]]>", "A&B <1> 20.50", Chequeing},
      {"<TRNUID>0", "<TRNUID/><INVSTMTRS><CURDEF>USD</INVSTMTRS>", "A-1 20.50", Chequeing},
      {"<NAME>AT&T", "<MEMO>shop</NAME><DTUSER>2009</DTPOSTED>", "A-1 20.50", Chequeing},
      {"<MKTGINFO>", "<!--" + much + "--><![CDATA[" + much + "]]>", "A-1 20.50", Chequeing},
      {"<OFX>", "<STMTRS><CURDEF>USD</STMTRS><OFX>", "A-1 20.50", Chequeing},
      {"</OFX>", "</OFX></STMTRS> &", "A-1 20.50", Chequeing},
      {"CHECKING", "cd", "A-1 20.50", Savings},
      {"CHECKING", "MONEYMRKT", "A-1 20.50", Goal},
      {"</OFX>", card("C-1", "-5") + card("C-1", "-5") + "</OFX>", "C-1 -5.00", CreditCard},
  };
  for (auto const& [before, after, expected, kind] : rows) {
    EXPECT_EQ(outcome(before, after, kind), expected + "\u00a0CAD 2025-12-31")
        << after.left(99).data();
  }
}

TEST(Statement, RefusesWhatCannotBeReliedOn)
{
  QString const missing("The statement has no %1.");
  QString const unread("The statement's %1 cannot be read.");
  QString const cutShort("The file is cut short or damaged.");
  std::tuple<QByteArray, QByteArray, QString> const rows[]{
      {sent, QByteArray("<\0O\0", 4), "The file is in UTF-16 or UTF-32, which cannot be read."},
      {sent, "<html></OFX>", "The file is not an OFX file."},
      {sent, card("C-1", "5") + "<OFX></OFX>" + card("C-1", "5"),
       "The file has no statement of a bank account or a credit card."},
      {"</OFX>", "", cutShort},
      {"</OFX>", "<!-- </OFX>", cutShort},
      {"<MKTGINFO>", "<![CDATA[<MEMO><![CDATA[]]>", cutShort},
      {"<MKTGINFO>", card("C-1", "5"), cutShort},
      {"<STMTRS>", "<STMTRS><STMTRS></STMTRS>", cutShort},
      {"20.50", "20<b>.50</b></BALAMT>", cutShort},
      {"20.50", "1<BALAMT>2", cutShort},
      {"</OFX>", "</OFX><ofx a=\"\"></ofx>", "The file is several OFX files in one."},
      {"<TRNUID>", "<OFX>", "The file is several OFX files in one."},
      {"A-1", "", missing.arg("ACCTID")},
      {"CURDEF>CAD", "CURDEF>", missing.arg("CURDEF")},
      {"LEDGERBAL>", "OTHERBAL>", missing.arg("LEDGERBAL/BALAMT")},
      {"<ACCTTYPE>CHECKING", "", missing.arg("ACCTTYPE")},
      {"CHECKING", QByteArray("P\0T", 3), unread.arg("ACCTTYPE 'P\uFFFDT'")},
      {"CURDEF>CAD", "CURDEF>CADX", unread.arg("CURDEF 'CADX'")},
      {"20251231235959.000[-5:EST]", "20251331", unread.arg("LEDGERBAL/DTASOF '20251331'")},
      {"235959.000[-5:EST]", "23595", unread.arg("LEDGERBAL/DTASOF '2025123123595'")},
      {"CHECKING", "CREDITLINE",
       "The account 7 (Chequeing) is not of the kind that the statement is for, 'CREDITLINE'."},
  };
  for (auto const& [before, after, expected] : rows) {
    EXPECT_EQ(outcome(before, after), expected) << after.data();
  }
  for (auto const* const holder :
       {"STMTRS>", "BANKACCTFROM>", "BANKTRANLIST>", "STMTTRN>", "AVAILBAL>", "LEDGERBAL>"}) {
    EXPECT_EQ(outcome(QByteArray("<") + holder, ""), cutShort) << holder;
    EXPECT_EQ(outcome(QByteArray("</") + holder, ""), cutShort) << holder;
  }
  for (auto const* const amount : {"1,200.00", "1.234,5", "+-1", ".", "2<.2", "1.", "--1", "1 0",
                                   "20.505", "1e3", "1.2.3", "92233720368547758.08"}) {
    EXPECT_EQ(outcome("20.50", amount), unread.arg(QString("LEDGERBAL/BALAMT '%1'").arg(amount)));
  }
}

TEST(Statement, OfSeveralIsTheOneOfTheAccount)
{
  auto more = card("A-1", "1") + card("C-1", "2") + card("C-1", "3") + "</OFX>";
  EXPECT_EQ(outcome("</OFX>", more, CreditCard, "A-1"), "A-1 1.00\u00a0CAD 2025-12-31");
  EXPECT_EQ(outcome("</OFX>", more, CreditCard),
            "The file has several such accounts; add the identifier at the end: A-1, C-1.");
  EXPECT_EQ(outcome("</OFX>", more, CreditCard, "C-1"),
            "The statements of the account 'C-1' differ.");
  for (auto const* const id : {"1", "2", "3", "4", "5", "6", "7", "8", "9"}) {
    more.prepend(card(id, "1"));
  }
  EXPECT_EQ(outcome("</OFX>", more, Savings, "B-2"),
            "The file has no statement of the account 'B-2', but of: A-1, 9, 8, 7, 6, 5, 4, 3, 2, "
            "1, ….");
}
