<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>Book</name>
    <message>
        <source>Bank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Class</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Balance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reconciled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>closed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>asset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>liability</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standard output cannot be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show texts, amounts and dates as in this locale.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keeps a household&apos;s books, one command a line:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop at the first line that is refused.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FILE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no locale &apos;%1&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>standard input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: took the statement of %2, dated %3, with a balance of %4.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 lines were refused.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No account is bound to %1. Bind one: statement NUMBER FILE IDENTIFIER</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The account number %1 is given twice.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No bank holds the account number %1; list shows all.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The command is written: %1. Straight double quotes hold words with blanks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>add NAME NUMBER KIND</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bank NAME [NUMBER=KIND ...]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>close NAME</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>forget NUMBER</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>identifier NUMBER IDENTIFIER</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>open NAME</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reconcile NUMBER DATE AMOUNT CURRENCY</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>remove NAME [NUMBER]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rename FROM TO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>statement [NUMBER] FILE [IDENTIFIER]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>update NAME [NUMBER=KIND ...]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no command &apos;%1&apos;; bankbook --help shows all.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The date %1 of the account number %2 lies in the future. To take it back: forget %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report the changes of banks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The book, or - for standard input.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is recorded of the account number %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A line holds one command. Straight double quotes hold a word with blanks; \&quot; in them is a
quote, \\ a backslash. # begins a comment.
  KIND        Chequeing, &quot;Credit Card&quot;, Loan, Savings or Goal
  DATE        such as 2026-10-31
  AMOUNT      such as -1250.50, with a point and nothing between thousands
  CURRENCY    such as CAD
  IDENTIFIER  ACCTID [ACCTTYPE [BANKID]], as the file has them
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The account number %1 is bound to %2; to bind it anew, remove and add it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be bound to %2: its kind does not go with the ACCTTYPE.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The account number %1 is bound to %2, which may be the same account. Bind both with ACCTID, ACCTTYPE and BANKID.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has no statement that %1 could take; it has: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has several statements that %1 could take; choose one with the command identifier: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The account number %1 is kept in %2, not in %3. If that was wrong: forget %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 If the last date was wrong: forget %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BookError</name>
    <message>
        <source>&apos;%1&apos; is not a date such as 2026-01-31.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has no statement of a bank account or a credit card.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The line is not UTF-8 text; save the book as UTF-8.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an account number such as 1010.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no kind of account; the kinds are: Chequeing, &quot;Credit Card&quot;, Loan, Savings, Goal.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is cut short, damaged, or several files in one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not a straight double quote.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A quoted word does not end; close it with a straight quote.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name &apos;%1&apos; has more than 100 characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sign of &apos;%1&apos; is wrong; only what you owe has one, -.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a currency such as CAD.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; has more decimals than %2, which has %3; nothing stands between thousands.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The bank reports an error: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The statement&apos;s BALAMT &apos;%1&apos; has three decimals, or thousands.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is not OFX; download the statement as OFX, QFX or Money, not as PDF, CSV or QIF.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The character %1 cannot be shown; save the file as UTF-8, with lines that end with LF or CR LF.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The character %1 cannot be shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has two balances of %1: %2 and %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A blank is missing behind the quote that ends &apos;%1&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an amount such as -1250.50, with a point before decimals and nothing between thousands.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The statement&apos;s %1 cannot be read: &apos;%2&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
