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
        <source>The line is longer than 1 MiB.</source>
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
    <message>
        <source>:/help.txt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The date %1 of the account number %2 lies in the future: no earlier one will be taken, unless you remove the number and add it again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: took the statement of %2, dated %3, with a balance of %4.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 lines were refused; --strict stops at the first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 lines were refused.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standard input is closed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type help for the commands, or quit to leave. Nothing is kept unless you keep the lines that print shows.</source>
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
        <source>The command is written: %1. Double quotes hold words with blanks.</source>
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
        <source>The account number %1 is bound to &apos;%2&apos;, not to &apos;%3&apos;; remove it and add it again to bind it anew.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is bound to another account of the bank, %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The balance of the account number %1 is kept in %2, not in %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accounts of several banks are bound to &apos;%1&apos;. Take their statements one by one: statement NUMBER FILE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no command &apos;%1&apos;; help shows the commands.</source>
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
        <source>The statement has no %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has no statement of a bank account or a credit card.</source>
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
    <message>
        <source>The line is not UTF-8 text; save the book as UTF-8.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A quoted word does not end; close it with a double quote.</source>
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
        <source>The file has several such accounts; add the identifier at the end: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The statements of the account &apos;%1&apos; differ.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The line contains the character %1, which cannot be shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no kind of account; the kinds are: Chequeing, &quot;Credit Card&quot;, Loan, Savings, Goal.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an amount such as -1250.50 CAD.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is cut short, damaged, or several files in one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is not an OFX file, or is one in UTF-16 or UTF-32.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
