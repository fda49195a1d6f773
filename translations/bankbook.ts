<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>Book</name>
    <message>
        <source>NAME NUMBER KIND</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NAME [NUMBER=KIND ...]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NAME</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NUMBER</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NUMBER DATE AMOUNT CURRENCY</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NAME [NUMBER]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FROM TO</source>
        <translation type="unfinished"></translation>
    </message>
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
        <source>NUMBER FILE [ACCOUNTID]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>KIND is one of: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standard output cannot be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The line is longer than 1 MiB.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type help for the commands, or quit to leave.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
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
        <source>Do not report the changes of banks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report the changes of banks, at the prompt too.</source>
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
        <source>The book. Without it, or with -, standard input is read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no locale &apos;%1&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only one book can be read at a time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>standard input</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BookError</name>
    <message>
        <source>The account number %1 is given twice.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No bank holds the account number %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no command &apos;%1&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The command is written: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no file &apos;%1&apos; that can be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The balance of the account number %1 is not kept in %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The line contains a NUL character.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The line is not UTF-8 text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A quoted word does not end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an account number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no kind of account; the kinds are: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a date such as 2026-01-31.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a currency code such as CAD.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an amount of %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is not an OFX file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is several OFX files in one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is cut short or damaged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The statement has no %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The statement&apos;s %1 &apos;%2&apos; cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is in UTF-16 or UTF-32, which cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has no statement of a bank account or a credit card.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has statements that differ, of the accounts: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has no statement of the account &apos;%1&apos;, but of: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The account %1 is not of the kind that the statement is for, &apos;%2&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
