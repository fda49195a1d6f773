<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>Books</name>
    <message>
        <source>&apos;%1&apos; is not an account number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a currency such as CAD.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a date such as %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an amount such as %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Store</name>
    <message>
        <source>&apos;%1&apos; is not a kind of account.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another window has changed the file. Reload it, then make your change again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file holds something else, or was made by a newer program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file cannot be read or written: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rows of the file that cannot be read would be lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The bank of the account is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another bank has this name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another account has this number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an amount in minor units.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a date.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Window</name>
    <message>
        <source>Bank, account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Balance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reconciled on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Bank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;concile…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Bank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename Bank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Number:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reconcile Account %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Balance:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Currency:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program has a fault: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing can be changed, or these rows, which cannot be read, would be lost:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The bank holds account %1 already. Change its kind to %2?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>closed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Example, which is not saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The date is in the future.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
