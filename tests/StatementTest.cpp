#include "Statement.hpp"

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
    auto const statements = toStatements(QByteArray(sent).replace(before, after));
    auto const statement = statementFor({AccountNumber(7), kind}, statements, id);
    return statement.accountId + u' ' + streamed(statement.balance.money()) + u' ' +
           statement.date.toString(Qt::ISODate);
  } catch (BookError const& refusal) {
    return QString::fromUtf8(refusal.what());
  }
}

} // namespace

TEST(Statement, TakesWhatBanksSend)
{
  std::tuple<QByteArray, QByteArray, QString, BankAccountTypes> const rows[]{
      {"", "", "A-1 20.50", Chequeing},
      {"OFXHEADER:100\n\n<OFX>", "<ofx>", "A-1 20.50", Chequeing},
      {"20.50\n", "<!-- 9 -->+,5</BALAMT>", "A-1 0.50", Chequeing},
      {"20.50", "20.5000000000", "A-1 20.50", Chequeing},
      {"20.50", "-92233720368547758.08", "A-1 -92233720368547758.08", Chequeing},
      {"235959.000[-5:EST]", "0000[+14]", "A-1 20.50", Chequeing},
      {"A-1", "&nbsp; A&amp;&#66;\n<![CDATA[<1>]]>", "A&B <1> 20.50", Chequeing},
      {"A-1", QByteArray("A\0001", 3), "A\\u{0}1 20.50", Chequeing},
      // Values of one transaction, with end tags of others or without any.
      {"<NAME>", "<MEMO>shop</NAME><DTUSER>20091017</DTPOSTED><X></X><NAME>", "A-1 20.50",
       Chequeing},
      {"<TRNUID>0", "<TRNUID/><INVSTMTRS><LEDGERBAL><BALAMT>7</LEDGERBAL></INVSTMTRS>", "A-1 20.50",
       Chequeing},
      {"<OFX>", "<OFX><!--" + QByteArray(10'000'000, '-') + "<STMTRS>-->", "A-1 20.50", Chequeing},
      {"CHECKING", "cd", "A-1 20.50", Savings},
      {"CHECKING", "MONEYMRKT", "A-1 20.50", Goal},
      {"</OFX>", card("C-1", "-5") + card("C-1", "-5") + "</OFX>", "C-1 -5.00", CreditCard},
      {"</OFX>", card("C-1", "-5") + "</OFX>" + card("D-2", "7"), "C-1 -5.00", CreditCard},
  };
  for (auto const& [before, after, expected, kind] : rows) {
    EXPECT_EQ(outcome(before, after, kind), expected + "\u00a0CAD 2025-12-31")
        << after.left(99).data();
  }
}

TEST(Statement, RefusesWhatCannotBeReliedOn)
{
  QString const missing("The statement has no %1.");
  QString const damaged("The file is cut short, damaged, or several files in one.");
  QString const noOfx("The file is not an OFX file, or is one in UTF-16 or UTF-32.");
  QString const noAmount("'%1' is not an amount such as -1250.50 CAD.");
  QString const noDate("'%1' is not a date such as 2026-01-31.");
  std::tuple<QByteArray, QByteArray, QString> const rows[]{
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
      {"CHECKING", "CREDITLINE",
       "The account 7 (Chequeing) is not of the kind that the statement is for, 'CREDITLINE'."},
  };
  for (auto const& [before, after, expected] : rows) {
    EXPECT_EQ(outcome(before, after), expected) << after.data();
  }
  for (auto const* const amount : {"1.200.00", "1.234.5", "+-1", "0.", "2<0.2", "1.", "--1", "1 0",
                                   "20.505", "1e3", "1.2.3", "92233720368547758.08"}) {
    EXPECT_EQ(outcome("20.50", amount), noAmount.arg(QString(amount) + " CAD"));
  }
}

// Each element that holds others, without its start or its end, and what cannot be in a whole file.
TEST(Statement, RefusesADamagedFile)
{
  std::pair<QByteArray, QByteArray> const rows[]{
      {"<STMTRS>", "<STMTRS><STMTRS>"},
      {"<STMTRS>", "<STMTRS><STMTRS></STMTRS>"},
      {"<STMTRS>", "<STMTRS></STMTRS>"},
      {"<STMTRS>", ""},
      {"</STMTRS>", "</CCSTMTRS>"},
      {"</STMTRS>", ""},
      {"<BANKTRANLIST>", ""},
      {"</STMTTRN>", ""},
      {"</BANKACCTFROM><MKTGINFO>", ""},
      {"<LEDGERBAL>", "<LEDGERBAL><LEDGERBAL>"},
      {"</LEDGERBAL>", ""},
      {"</LEDGERBAL></STMTRS>", "</STMTRS></LEDGERBAL>"},
      {"</STMTRS>", "<STMTRS></STMTRS></STMTRS>"},
      {"<AVAILBAL>", ""},
      {"</OFX>", ""},
      {"</OFX>", "<!-- </OFX>"},
      {"</OFX>", "<![CDATA[ <!-- --> </OFX>"},
      {"</OFX>", "</OFX></STMTRS>"},
      {"<OFX>", "</STMTTRN><OFX>"},
      {"<NAME>",
       QByteArray("<PAYEE>").repeated(100'000) + QByteArray("</PAYEE>").repeated(100'000)},
      {"20.50", "20<b>.50</b></BALAMT>"},
      {"20.50", "1<BALAMT>2"},
  };
  for (auto const& [before, after] : rows) {
    EXPECT_EQ(outcome(before, after), "The file is cut short, damaged, or several files in one.")
        << after.left(99).data();
  }
}

TEST(Statement, OfSeveralIsTheOneOfTheAccount)
{
  auto const more = card("A-1", "1") + card("C-1", "2") + card("D-1", "2") + card("D-1", "3");
  std::tuple<BankAccountTypes, char const*, QString> const rows[]{
      {CreditCard, "A-1", "A-1 1.00\u00a0CAD 2025-12-31"},
      {CreditCard, "",
       "The file has several such accounts; add the identifier at the end: A-1, C-1, D-1."},
      {CreditCard, "D-1", "The statements of the account 'D-1' differ."},
      {Savings, "B-2", "The file has no statement of the account 'B-2', but of: A-1, C-1, D-1."},
  };
  for (auto const& [kind, id, expected] : rows) {
    EXPECT_EQ(outcome("</OFX>", more + "</OFX>", kind, id), expected);
  }
  QByteArray many;
  for (int i = 10; i < 21; ++i) {
    many += card(QByteArray::number(i), "1");
  }
  EXPECT_EQ(outcome(sent, "<OFX>" + many + "</OFX>", CreditCard, "9"),
            "The file has no statement of the account '9', but of: 10, 11, 12, 13, 14, 15, 16, 17, "
            "18, 19, ….");
}
