<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>QObject</name>
    <message>
        <source>The name of a financial institution cannot be empty.</source>
        <translation>Der Name eines Finanzinstituts darf nicht leer sein.</translation>
    </message>
    <message>
        <source>The bank account number of a financial institution cannot be invalid.</source>
        <translation>Die Nummer eines Kontos bei einem Finanzinstitut muss gültig sein.</translation>
    </message>
    <message>
        <source>The bank account type of a financial institution cannot be unknown.</source>
        <translation>Die Art eines Kontos bei einem Finanzinstitut darf nicht unbekannt sein.</translation>
    </message>
    <message>
        <source>Cannot close a bank that is already closed.</source>
        <translation>Eine bereits geschlossene Bank kann nicht noch einmal geschlossen werden.</translation>
    </message>
    <message>
        <source>Cannot open a bank that is already opened.</source>
        <translation>Eine bereits geöffnete Bank kann nicht noch einmal geöffnet werden.</translation>
    </message>
    <message>
        <source>Cannot add an account number of a financial institution that is invalid.</source>
        <translation>Einem Finanzinstitut kann keine ungültige Kontonummer hinzugefügt werden.</translation>
    </message>
    <message>
        <source>Cannot add an account type of a financial institution that is unknown.</source>
        <translation>Einem Finanzinstitut kann kein Konto unbekannter Art hinzugefügt werden.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; is not associated with the financial institution.</source>
        <translation>Das Konto „%1“ ist dem Finanzinstitut nicht zugeordnet.</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Chequeing</source>
        <translation>Girokonto</translation>
    </message>
    <message>
        <source>Credit Card</source>
        <translation>Kreditkarte</translation>
    </message>
    <message>
        <source>Loan</source>
        <translation>Darlehen</translation>
    </message>
    <message>
        <source>Savings</source>
        <translation>Sparkonto</translation>
    </message>
    <message>
        <source>Goal</source>
        <translation>Sparziel</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>There is an issue with the bank &apos;%1&apos;. %2</source>
        <translation>Es gibt ein Problem mit der Bank „%1“. %2</translation>
    </message>
    <message>
        <source>The key name does not match the value name, %1.</source>
        <translation>Der Name des Schlüssels stimmt nicht mit dem des Wertes, „%1“, überein.</translation>
    </message>
    <message>
        <source>A default account cannot be associated with a bank.</source>
        <translation>Ein Konto ohne gültige Nummer kann keiner Bank zugeordnet werden.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; is associated with the bank &apos;%2&apos; and cannot be used again.</source>
        <translation>Das Konto „%1“ ist der Bank „%2“ zugeordnet und kann nicht noch einmal verwendet werden.</translation>
    </message>
    <message>
        <source>Failed to locate a bank by that name.</source>
        <translation>Es wurde keine Bank mit diesem Namen gefunden.</translation>
    </message>
    <message>
        <source>Cannot close a bank that does not exist.</source>
        <translation>Eine nicht vorhandene Bank kann nicht geschlossen werden.</translation>
    </message>
    <message>
        <source>Cannot open a bank that does not exist.</source>
        <translation>Eine nicht vorhandene Bank kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Cannot add the account number, %1, as the bank that does not exist.</source>
        <translation>Die Kontonummer %1 kann nicht hinzugefügt werden, da die Bank nicht vorhanden ist.</translation>
    </message>
    <message>
        <source>Cannot add the account number, %1, as the bank &apos;%2&apos; is already associated with that number.</source>
        <translation>Die Kontonummer %1 kann nicht hinzugefügt werden, da sie bereits der Bank „%2“ zugeordnet ist.</translation>
    </message>
    <message>
        <source>Cannot remove the account number, %1, as the bank that does not exist.</source>
        <translation>Die Kontonummer %1 kann nicht entfernt werden, da die Bank nicht vorhanden ist.</translation>
    </message>
    <message>
        <source>Cannot add a bank that is already closed.</source>
        <translation>Eine bereits geschlossene Bank kann nicht hinzugefügt werden.</translation>
    </message>
    <message>
        <source>Cannot add a bank that already exists.</source>
        <translation>Eine bereits vorhandene Bank kann nicht noch einmal hinzugefügt werden.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; is already associated with the bank &apos;%2&apos; and cannot be added again.</source>
        <translation>Das Konto „%1“ ist bereits der Bank „%2“ zugeordnet und kann nicht noch einmal hinzugefügt werden.</translation>
    </message>
    <message>
        <source>Cannot remove a bank that does not exist.</source>
        <translation>Eine nicht vorhandene Bank kann nicht entfernt werden.</translation>
    </message>
    <message>
        <source>Cannot rename to &apos;%1&apos; when the bank does not exist.</source>
        <translation>Eine nicht vorhandene Bank kann nicht in „%1“ umbenannt werden.</translation>
    </message>
    <message>
        <source>Cannot rename to &apos;%1&apos; as it already exists.</source>
        <translation>Die Bank kann nicht in „%1“ umbenannt werden, da dieser Name bereits vergeben ist.</translation>
    </message>
    <message>
        <source>Cannot rename to an empty bank name.</source>
        <translation>Eine Bank kann keinen leeren Namen erhalten.</translation>
    </message>
    <message>
        <source>Cannot rename a bank when it is closed.</source>
        <translation>Eine geschlossene Bank kann nicht umbenannt werden.</translation>
    </message>
    <message>
        <source>Cannot update a bank that does not exist.</source>
        <translation>Eine nicht vorhandene Bank kann nicht aktualisiert werden.</translation>
    </message>
    <message>
        <source>Cannot update to a closed bank.</source>
        <translation>Eine Bank kann durch eine Aktualisierung nicht geschlossen werden.</translation>
    </message>
    <message>
        <source>Cannot update a bank that is closed.</source>
        <translation>Eine geschlossene Bank kann nicht aktualisiert werden.</translation>
    </message>
    <message>
        <source>Cannot update the account number, %1, as the bank &apos;%2&apos; is already associated with that number.</source>
        <translation>Die Kontonummer %1 kann nicht übernommen werden, da sie bereits der Bank „%2“ zugeordnet ist.</translation>
    </message>
    <message>
        <source>The last reconciled date, %1, cannot be updated to be in the past, %2.</source>
        <translation>Das Datum des letzten Abgleichs, %1, kann nicht durch ein früheres, %2, ersetzt werden.</translation>
    </message>
</context>
</TS>
