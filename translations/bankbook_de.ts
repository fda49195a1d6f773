<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Book</name>
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
        <translation>offen</translation>
    </message>
    <message>
        <source>asset</source>
        <translation>Vermögen</translation>
    </message>
    <message>
        <source>liability</source>
        <translation>Schulden</translation>
    </message>
    <message>
        <source>Standard output cannot be written.</source>
        <translation>Auf die Standardausgabe kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The line is longer than 1 MiB.</source>
        <translation>Die Zeile ist länger als 1 MiB.</translation>
    </message>
    <message>
        <source>Show texts, amounts and dates as in this locale.</source>
        <translation>Zeigt Texte, Beträge und Daten wie in diesem Gebietsschema an.</translation>
    </message>
    <message>
        <source>Keeps a household&apos;s books, one command a line:</source>
        <translation>Führt die Bücher eines Haushalts, ein Befehl je Zeile:</translation>
    </message>
    <message>
        <source>Do not report the changes of banks.</source>
        <translation>Unterdrückt die Meldungen über Änderungen an Banken.</translation>
    </message>
    <message>
        <source>Report the changes of banks, at the prompt too.</source>
        <translation>Meldet Änderungen an Banken, auch bei interaktiver Eingabe.</translation>
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
        <source>FILE</source>
        <translation>DATEI</translation>
    </message>
    <message>
        <source>The book. Without it, or with -, standard input is read.</source>
        <translation>Das Haushaltsbuch; ohne Angabe oder bei - die Standardeingabe.</translation>
    </message>
    <message>
        <source>There is no locale &apos;%1&apos;.</source>
        <translation>Das Gebietsschema „%1“ gibt es nicht.</translation>
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
        <source>:/help.txt</source>
        <translation>:/help_de.txt</translation>
    </message>
    <message>
        <source>The date %1 of the account number %2 lies in the future: no earlier one will be taken, unless you remove the number and add it again.</source>
        <translation>Das Datum %1 des Kontos mit der Nummer %2 liegt in der Zukunft: Ein früheres wird nur noch angenommen, wenn Sie die Nummer entfernen und neu hinzufügen.</translation>
    </message>
    <message>
        <source>%1: took the statement of %2, dated %3, with a balance of %4.</source>
        <translation>%1: Auszug von %2 mit dem Datum %3 und dem Saldo %4 übernommen.</translation>
    </message>
    <message>
        <source>%1 of %2 lines were refused; --strict stops at the first.</source>
        <translation>%1 von %2 Zeilen wurden abgelehnt; --strict hält bei der ersten an.</translation>
    </message>
    <message>
        <source>%1 of %2 lines were refused.</source>
        <translation>%1 von %2 Zeilen wurden abgelehnt.</translation>
    </message>
    <message>
        <source>Standard input is closed.</source>
        <translation>Die Standardeingabe ist geschlossen.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Der Arbeitsspeicher reicht nicht aus.</translation>
    </message>
    <message>
        <source>Type help for the commands, or quit to leave. Nothing is kept unless you keep the lines that print shows.</source>
        <translation>help zeigt die Befehle an, quit beendet das Programm. Erhalten bleibt nur, was Sie von den Zeilen aufbewahren, die print anzeigt.</translation>
    </message>
    <message>
        <source>No account is bound to %1. Bind one: statement NUMBER FILE IDENTIFIER</source>
        <translation>Kein Konto ist gebunden an: %1. Binden Sie eines: statement NUMMER DATEI KENNUNG</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 ist keine Datei.</translation>
    </message>
    <message>
        <source>The command is written: %1. Double quotes hold words with blanks.</source>
        <translation>Der Befehl lautet: %1. Wörter mit Leerzeichen stehen in geraden Anführungszeichen.</translation>
    </message>
    <message>
        <source>The account number %1 is given twice.</source>
        <translation>Die Kontonummer %1 ist zweimal angegeben.</translation>
    </message>
    <message>
        <source>No bank holds the account number %1; list shows all.</source>
        <translation>Keine Bank führt ein Konto mit der Nummer %1; list zeigt alle an.</translation>
    </message>
    <message>
        <source>The account number %1 is bound to &apos;%2&apos;, not to &apos;%3&apos;; remove it and add it again to bind it anew.</source>
        <translation>Die Kontonummer %1 ist an „%2“ gebunden, nicht an „%3“; um sie neu zu binden, entfernen Sie sie und fügen Sie sie neu hinzu.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is bound to another account of the bank, %2.</source>
        <translation>„%1“ ist an ein anderes Konto der Bank gebunden, %2.</translation>
    </message>
    <message>
        <source>The balance of the account number %1 is kept in %2, not in %3.</source>
        <translation>Der Saldo des Kontos mit der Nummer %1 wird in %2 geführt, nicht in %3.</translation>
    </message>
    <message>
        <source>Accounts of several banks are bound to &apos;%1&apos;. Take their statements one by one: statement NUMBER FILE</source>
        <translation>Konten mehrerer Banken sind an „%1“ gebunden. Übernehmen Sie ihre Auszüge einzeln: statement NUMMER DATEI</translation>
    </message>
    <message>
        <source>There is no command &apos;%1&apos;; help shows the commands.</source>
        <translation>Den Befehl „%1“ gibt es nicht; help zeigt die Befehle an.</translation>
    </message>
</context>
<context>
    <name>BookError</name>
    <message>
        <source>&apos;%1&apos; is not a date such as 2026-01-31.</source>
        <translation>„%1“ ist kein Datum der Form 2026-01-31.</translation>
    </message>
    <message>
        <source>The statement has no %1.</source>
        <translation>Im Auszug fehlt das Feld %1.</translation>
    </message>
    <message>
        <source>The file has no statement of a bank account or a credit card.</source>
        <translation>Die Datei enthält keinen Auszug eines Bankkontos oder einer Kreditkarte.</translation>
    </message>
    <message>
        <source>The file has no statement of the account &apos;%1&apos;, but of: %2.</source>
        <translation>Die Datei enthält keinen Auszug des Kontos „%1“, sondern von: %2.</translation>
    </message>
    <message>
        <source>The account %1 is not of the kind that the statement is for, &apos;%2&apos;.</source>
        <translation>Das Konto %1 hat nicht die Art, für die der Auszug gilt: „%2“.</translation>
    </message>
    <message>
        <source>The line is not UTF-8 text; save the book as UTF-8.</source>
        <translation>Die Zeile ist kein UTF-8-Text; speichern Sie das Haushaltsbuch als UTF-8.</translation>
    </message>
    <message>
        <source>A quoted word does not end; close it with a double quote.</source>
        <translation>Es fehlt ein schließendes Anführungszeichen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an account number such as 1010.</source>
        <translation>„%1“ ist keine Kontonummer wie 1010.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>The file has several such accounts; add the identifier at the end: %1.</source>
        <translation>Die Datei hat mehrere solche Konten; fügen Sie am Ende die Kennung hinzu: %1.</translation>
    </message>
    <message>
        <source>The statements of the account &apos;%1&apos; differ.</source>
        <translation>Die Auszüge des Kontos „%1“ unterscheiden sich.</translation>
    </message>
    <message>
        <source>The line contains the character %1, which cannot be shown.</source>
        <translation>Die Zeile enthält das Zeichen %1, das nicht angezeigt werden kann.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no kind of account; the kinds are: Chequeing, &quot;Credit Card&quot;, Loan, Savings, Goal.</source>
        <translation>„%1“ ist keine Kontoart; die Kontoarten sind: Girokonto, Kreditkarte, Darlehen, Sparkonto, Sparziel.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an amount such as -1250.50 CAD.</source>
        <translation>„%1“ ist kein Betrag wie -1250.50 CAD (Dezimaltrennzeichen: Punkt).</translation>
    </message>
    <message>
        <source>The file is cut short, damaged, or several files in one.</source>
        <translation>Die Datei ist abgeschnitten, beschädigt oder besteht aus mehreren Dateien.</translation>
    </message>
    <message>
        <source>The file is not an OFX file, or is one in UTF-16 or UTF-32.</source>
        <translation>Die Datei ist keine OFX-Datei oder in UTF-16 oder UTF-32 kodiert.</translation>
    </message>
</context>
</TS>
