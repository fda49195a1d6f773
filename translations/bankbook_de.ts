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
        <source>Show texts, amounts and dates as in this locale.</source>
        <translation>Zeigt Texte, Beträge und Datumsangaben wie in diesem Gebietsschema an.</translation>
    </message>
    <message>
        <source>Keeps a household&apos;s books, one command a line:</source>
        <translation>Führt die Bücher eines Haushalts, ein Befehl je Zeile:</translation>
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
        <source>There is no locale &apos;%1&apos;.</source>
        <translation>Das Gebietsschema „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>Standardeingabe</translation>
    </message>
    <message>
        <source>%1: took the statement of %2, dated %3, with a balance of %4.</source>
        <translation>%1: Auszug von %2 mit dem Datum %3 und dem Saldo %4 übernommen.</translation>
    </message>
    <message>
        <source>%1 of %2 lines were refused.</source>
        <translation>Abgelehnte Zeilen: %1 von %2.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Der Arbeitsspeicher reicht nicht aus.</translation>
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
        <source>The account number %1 is given twice.</source>
        <translation>Die Kontonummer %1 ist zweimal angegeben.</translation>
    </message>
    <message>
        <source>No bank holds the account number %1; list shows all.</source>
        <translation>Keine Bank führt ein Konto mit der Nummer %1; list zeigt alle an.</translation>
    </message>
    <message>
        <source>The command is written: %1. Straight double quotes hold words with blanks.</source>
        <translation>Der Befehl lautet: %1. Wörter mit Leerzeichen stehen in geraden Anführungszeichen.</translation>
    </message>
    <message>
        <source>add NAME NUMBER KIND</source>
        <translation>add NAME NUMMER ART</translation>
    </message>
    <message>
        <source>bank NAME [NUMBER=KIND ...]</source>
        <translation>bank NAME [NUMMER=ART ...]</translation>
    </message>
    <message>
        <source>close NAME</source>
        <translation>close NAME</translation>
    </message>
    <message>
        <source>forget NUMBER</source>
        <translation>forget NUMMER</translation>
    </message>
    <message>
        <source>identifier NUMBER IDENTIFIER</source>
        <translation>identifier NUMMER KENNUNG</translation>
    </message>
    <message>
        <source>list</source>
        <translation>list</translation>
    </message>
    <message>
        <source>open NAME</source>
        <translation>open NAME</translation>
    </message>
    <message>
        <source>reconcile NUMBER DATE AMOUNT CURRENCY</source>
        <translation>reconcile NUMMER DATUM BETRAG WÄHRUNG</translation>
    </message>
    <message>
        <source>remove NAME [NUMBER]</source>
        <translation>remove NAME [NUMMER]</translation>
    </message>
    <message>
        <source>rename FROM TO</source>
        <translation>rename ALT NEU</translation>
    </message>
    <message>
        <source>statement [NUMBER] FILE [IDENTIFIER]</source>
        <translation>statement [NUMMER] DATEI [KENNUNG]</translation>
    </message>
    <message>
        <source>update NAME [NUMBER=KIND ...]</source>
        <translation>update NAME [NUMMER=ART ...]</translation>
    </message>
    <message>
        <source>There is no command &apos;%1&apos;; bankbook --help shows all.</source>
        <translation>Den Befehl „%1“ gibt es nicht; bankbook --help zeigt alle an.</translation>
    </message>
    <message>
        <source>The date %1 of the account number %2 lies in the future. To take it back: forget %2</source>
        <translation>Das Datum %1 des Kontos mit der Nummer %2 liegt in der Zukunft. Um es zurückzunehmen: forget %2</translation>
    </message>
    <message>
        <source>Report the changes of banks.</source>
        <translation>Meldet Änderungen an Banken.</translation>
    </message>
    <message>
        <source>The book, or - for standard input.</source>
        <translation>Das Haushaltsbuch; bei - die Standardeingabe.</translation>
    </message>
    <message>
        <source>Nothing is recorded of the account number %1.</source>
        <translation>Für die Kontonummer %1 ist nichts erfasst.</translation>
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
        <translation>Eine Zeile enthält einen Befehl. Ein Wort mit Leerzeichen steht in geraden Anführungszeichen;
darin ist \&quot; ein Anführungszeichen und \\ ein umgekehrter Schrägstrich. # beginnt einen Kommentar.
  NUMMER   eine eigene Nummer für ein Konto, etwa 1010
  ART      Girokonto, Kreditkarte, Darlehen, Sparkonto oder Sparziel; oder die englischen Wörter
           Chequeing, &quot;Credit Card&quot;, Loan, Savings, Goal, die in jeder Sprache gelten
  DATUM    etwa 2026-10-31
  BETRAG   etwa -1250.50, mit Punkt und ohne Tausendertrennzeichen; Schulden sind negativ
  WÄHRUNG  etwa EUR
  KENNUNG  ACCTID [ACCTTYPE [BANKID]], wie in der Datei
</translation>
    </message>
    <message>
        <source>The account number %1 is bound to %2; to bind it anew, remove and add it.</source>
        <translation>Die Kontonummer %1 ist an %2 gebunden; um sie neu zu binden, entfernen Sie sie und fügen Sie sie neu hinzu.</translation>
    </message>
    <message>
        <source>%1 cannot be bound to %2: its kind does not go with the ACCTTYPE.</source>
        <translation>%1 kann nicht an %2 gebunden werden: Die Art passt nicht zum ACCTTYPE.</translation>
    </message>
    <message>
        <source>The account number %1 is bound to %2, which may be the same account. Bind both with ACCTID, ACCTTYPE and BANKID.</source>
        <translation>Die Kontonummer %1 ist an %2 gebunden; das kann dasselbe Konto sein. Binden Sie beide mit ACCTID, ACCTTYPE und BANKID.</translation>
    </message>
    <message>
        <source>The file has no statement that %1 could take; it has: %2.</source>
        <translation>Die Datei enthält keinen Auszug, den %1 übernehmen könnte, sondern: %2.</translation>
    </message>
    <message>
        <source>The file has several statements that %1 could take; choose one with the command identifier: %2.</source>
        <translation>Die Datei enthält mehrere Auszüge, die %1 übernehmen könnte; wählen Sie einen mit dem Befehl identifier: %2.</translation>
    </message>
    <message>
        <source>The account number %1 is kept in %2, not in %3. If that was wrong: forget %1</source>
        <translation>Das Konto mit der Nummer %1 wird in %2 geführt, nicht in %3. War das falsch: forget %1</translation>
    </message>
    <message>
        <source>%1 If the last date was wrong: forget %2</source>
        <translation>%1 War das letzte Datum falsch: forget %2</translation>
    </message>
</context>
<context>
    <name>BookError</name>
    <message>
        <source>&apos;%1&apos; is not a date such as 2026-01-31.</source>
        <translation>„%1“ ist kein Datum der Form 2026-01-31.</translation>
    </message>
    <message>
        <source>The file has no statement of a bank account or a credit card.</source>
        <translation>Die Datei enthält keinen Auszug eines Bankkontos oder einer Kreditkarte.</translation>
    </message>
    <message>
        <source>The line is not UTF-8 text; save the book as UTF-8.</source>
        <translation>Die Zeile ist kein UTF-8-Text; speichern Sie das Haushaltsbuch als UTF-8.</translation>
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
        <source>&apos;%1&apos; is no kind of account; the kinds are: Chequeing, &quot;Credit Card&quot;, Loan, Savings, Goal.</source>
        <translation>„%1“ ist keine Kontoart; die Kontoarten sind: Girokonto, Kreditkarte, Darlehen, Sparkonto, Sparziel.</translation>
    </message>
    <message>
        <source>The file is cut short, damaged, or several files in one.</source>
        <translation>Die Datei ist abgeschnitten, beschädigt oder besteht aus mehreren Dateien.</translation>
    </message>
    <message>
        <source>%1 is not a straight double quote.</source>
        <translation>%1 ist kein gerades Anführungszeichen.</translation>
    </message>
    <message>
        <source>A quoted word does not end; close it with a straight quote.</source>
        <translation>Es fehlt ein schließendes gerades Anführungszeichen.</translation>
    </message>
    <message>
        <source>The name &apos;%1&apos; has more than 100 characters.</source>
        <translation>Der Name „%1“ hat mehr als 100 Zeichen.</translation>
    </message>
    <message>
        <source>The sign of &apos;%1&apos; is wrong; only what you owe has one, -.</source>
        <translation>Das Vorzeichen von „%1“ ist falsch; nur Schulden haben eines, -.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a currency such as CAD.</source>
        <translation>„%1“ ist keine Währung wie EUR.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has more decimals than %2, which has %3; nothing stands between thousands.</source>
        <translation>„%1“ hat mehr Dezimalstellen, als %2 hat (%3); Tausendertrennzeichen gibt es nicht.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is too large.</source>
        <translation>„%1“ ist zu groß.</translation>
    </message>
    <message>
        <source>The bank reports an error: %1</source>
        <translation>Die Bank meldet einen Fehler: %1</translation>
    </message>
    <message>
        <source>The statement&apos;s BALAMT &apos;%1&apos; has three decimals, or thousands.</source>
        <translation>Das Feld BALAMT des Auszugs hat drei Dezimalstellen oder ein Tausendertrennzeichen: „%1“.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>The file is not OFX; download the statement as OFX, QFX or Money, not as PDF, CSV or QIF.</source>
        <translation>Die Datei ist keine OFX-Datei; laden Sie den Auszug als OFX, QFX oder Money herunter, nicht als PDF, CSV oder QIF.</translation>
    </message>
    <message>
        <source>The character %1 cannot be shown; save the file as UTF-8, with lines that end with LF or CR LF.</source>
        <translation>Das Zeichen %1 kann nicht angezeigt werden; speichern Sie die Datei als UTF-8, mit Zeilenenden LF oder CR LF.</translation>
    </message>
    <message>
        <source>The character %1 cannot be shown.</source>
        <translation>Das Zeichen %1 kann nicht angezeigt werden.</translation>
    </message>
    <message>
        <source>The file has two balances of %1: %2 and %3.</source>
        <translation>Die Datei enthält zwei Salden vom %1: %2 und %3.</translation>
    </message>
    <message>
        <source>A blank is missing behind the quote that ends &apos;%1&apos;.</source>
        <translation>Nach dem Anführungszeichen, mit dem „%1“ endet, fehlt ein Leerzeichen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an amount such as -1250.50, with a point before decimals and nothing between thousands.</source>
        <translation>„%1“ ist kein Betrag wie -1250.50, mit einem Punkt vor den Dezimalstellen und ohne Tausendertrennzeichen.</translation>
    </message>
    <message>
        <source>The statement&apos;s %1 cannot be read: &apos;%2&apos;.</source>
        <translation>Das Feld %1 des Auszugs ist nicht lesbar: „%2“.</translation>
    </message>
</context>
</TS>
