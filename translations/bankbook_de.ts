<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Bankbook</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>Show texts and amounts as in this locale.</source>
        <translation>Zeigt Texte und Beträge in der Sprache und Schreibweise dieses Gebietsschemas an.</translation>
    </message>
    <message>
        <source>Do not tell of each change of a bank.</source>
        <translation>Meldet nicht jede Änderung einer Bank.</translation>
    </message>
    <message>
        <source>Stop at the first line that is refused.</source>
        <translation>Hält bei der ersten abgelehnten Zeile an.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Zeigt diese Hilfe an.</translation>
    </message>
    <message>
        <source>Keeps a household&apos;s books, one command a line:</source>
        <translation>Führt die Bücher eines Haushalts, ein Befehl je Zeile:</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>DATEI</translation>
    </message>
    <message>
        <source>The book; standard input where it is left out or -.</source>
        <translation>Das Haushaltsbuch; die Standardeingabe, wenn es fehlt oder - ist.</translation>
    </message>
    <message>
        <source>Only one book can be read at a time.</source>
        <translation>Es kann nur ein Haushaltsbuch auf einmal gelesen werden.</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>Standardeingabe</translation>
    </message>
    <message>
        <source>Standard output cannot be written.</source>
        <translation>Die Standardausgabe lässt sich nicht schreiben.</translation>
    </message>
</context>
<context>
    <name>Book</name>
    <message>
        <source>The account number %1 is given twice.</source>
        <translation>Die Kontonummer %1 ist zweimal angegeben.</translation>
    </message>
    <message>
        <source>No bank holds the account number %1.</source>
        <translation>Keine Bank führt die Kontonummer %1.</translation>
    </message>
    <message>
        <source>NAME NUMBER KIND</source>
        <translation>NAME NUMMER ART</translation>
    </message>
    <message>
        <source>NAME [NUMBER=KIND ...]</source>
        <translation>NAME [NUMMER=ART ...]</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAME</translation>
    </message>
    <message>
        <source>NUMBER</source>
        <translation>NUMMER</translation>
    </message>
    <message>
        <source>NUMBER DATE AMOUNT CURRENCY</source>
        <translation>NUMMER DATUM BETRAG WÄHRUNG</translation>
    </message>
    <message>
        <source>NAME [NUMBER]</source>
        <translation>NAME [NUMMER]</translation>
    </message>
    <message>
        <source>FROM TO</source>
        <translation>ALT NEU</translation>
    </message>
    <message>
        <source>There is no command &apos;%1&apos;.</source>
        <translation>Den Befehl „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>The command is written: %1</source>
        <translation>Der Befehl lautet: %1</translation>
    </message>
    <message>
        <source>Bank</source>
        <translation>Bank</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Klasse</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Saldo</translation>
    </message>
    <message>
        <source>Reconciled</source>
        <translation>Abgeglichen am</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>geschlossen</translation>
    </message>
    <message>
        <source>open</source>
        <translation>geöffnet</translation>
    </message>
    <message>
        <source>asset</source>
        <translation>Aktiva</translation>
    </message>
    <message>
        <source>liability</source>
        <translation>Passiva</translation>
    </message>
    <message>
        <source>The balance of the account number %1 is not kept in %2.</source>
        <translation>Der Saldo des Kontos mit der Nummer %1 wird nicht in %2 geführt.</translation>
    </message>
    <message>
        <source>Name one account; &apos;%1&apos; has statements of: %2.</source>
        <translation>Ein Konto ist anzugeben; „%1“ hat Auszüge von: %2.</translation>
    </message>
    <message>
        <source>NUMBER FILE [ACCOUNTID]</source>
        <translation>NUMMER DATEI [KONTOKENNUNG]</translation>
    </message>
    <message>
        <source>The account %1 is not of the kind that the statement is for, &apos;%2&apos;.</source>
        <translation>Das Konto %1 ist nicht von der Art, für die der Auszug ist, „%2“.</translation>
    </message>
    <message>
        <source>KIND is one of: %1.</source>
        <translation>ART ist eine von: %1.</translation>
    </message>
</context>
<context>
    <name>BookReader</name>
    <message>
        <source>The line is not UTF-8 text.</source>
        <translation>Die Zeile ist kein UTF-8-Text.</translation>
    </message>
    <message>
        <source>A quoted word does not end.</source>
        <translation>Es fehlt ein schließendes Anführungszeichen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an account number.</source>
        <translation>„%1“ ist keine Kontonummer.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a date such as 2026-01-31.</source>
        <translation>„%1“ ist kein Datum der Form 2026-01-31.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a currency code such as CAD.</source>
        <translation>„%1“ ist kein Währungscode wie CAD.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an amount of %2.</source>
        <translation>„%1“ ist kein Betrag in %2.</translation>
    </message>
</context>
<context>
    <name>Statement</name>
    <message>
        <source>The statement&apos;s %1 &apos;%2&apos; cannot be read.</source>
        <translation>%1 „%2“ des Auszugs kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>There is no file &apos;%1&apos; that can be read.</source>
        <translation>Es gibt keine lesbare Datei „%1“.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is too large for a statement.</source>
        <translation>Die Datei „%1“ ist zu groß für einen Auszug.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is not a whole OFX file.</source>
        <translation>Die Datei „%1“ ist keine vollständige OFX-Datei.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; has no statement that libofx reads without errors.</source>
        <translation>Die Datei „%1“ enthält keinen Auszug, den libofx ohne Fehler liest.</translation>
    </message>
    <message>
        <source>bankbook was built without libofx, which reads statements.</source>
        <translation>bankbook wurde ohne libofx gebaut, das Auszüge liest.</translation>
    </message>
</context>
</TS>
