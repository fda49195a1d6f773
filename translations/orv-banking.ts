<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>QObject</name>
    <message>
        <source>The name of a financial institution cannot be empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The bank account number of a financial institution cannot be invalid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The bank account type of a financial institution cannot be unknown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot close a bank that is already closed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot open a bank that is already opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot add an account number of a financial institution that is invalid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot add an account type of a financial institution that is unknown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; is not associated with the financial institution.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chequeing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Credit Card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Savings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Goal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is an issue with the bank &apos;%1&apos;. %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The key name does not match the value name, %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A default account cannot be associated with a bank.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; is associated with the bank &apos;%2&apos; and cannot be used again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to locate a bank by that name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot close a bank that does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot open a bank that does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot add the account number, %1, as the bank that does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot add the account number, %1, as the bank &apos;%2&apos; is already associated with that number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot remove the account number, %1, as the bank that does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot add a bank that is already closed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot add a bank that already exists.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; is already associated with the bank &apos;%2&apos; and cannot be added again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot remove a bank that does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot rename to &apos;%1&apos; when the bank does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot rename to &apos;%1&apos; as it already exists.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot rename to an empty bank name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot rename a bank when it is closed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot update a bank that does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot update to a closed bank.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot update a bank that is closed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot update the account number, %1, as the bank &apos;%2&apos; is already associated with that number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last reconciled date, %1, cannot be updated to be in the past, %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
