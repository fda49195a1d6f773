<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Books</name>
    <message>
        <source>&apos;%1&apos; is not an account number.</source>
        <translation>„%1“ ist keine Kontonummer.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a currency such as CAD.</source>
        <translation>„%1“ ist keine Währung wie EUR.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a date such as %2.</source>
        <translation>„%1“ ist kein Datum wie %2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an amount such as %2.</source>
        <translation>„%1“ ist kein Betrag wie %2.</translation>
    </message>
</context>
<context>
    <name>Store</name>
    <message>
        <source>&apos;%1&apos; is not a kind of account.</source>
        <translation>„%1“ ist keine Kontoart.</translation>
    </message>
    <message>
        <source>Another window has changed the file. Reload it, then make your change again.</source>
        <translation>Ein anderes Fenster hat die Datei geändert. Laden Sie sie neu und wiederholen Sie dann Ihre Änderung.</translation>
    </message>
    <message>
        <source>The file holds something else, or was made by a newer program.</source>
        <translation>Die Datei enthält etwas anderes oder stammt von einem neueren Programm.</translation>
    </message>
    <message>
        <source>The file cannot be read or written: %1</source>
        <translation>Die Datei kann nicht gelesen oder geschrieben werden: %1</translation>
    </message>
    <message>
        <source>Rows of the file that cannot be read would be lost.</source>
        <translation>Zeilen der Datei, die nicht gelesen werden können, gingen verloren.</translation>
    </message>
    <message>
        <source>The bank of the account is missing.</source>
        <translation>Die Bank des Kontos fehlt.</translation>
    </message>
    <message>
        <source>Another bank has this name.</source>
        <translation>Eine andere Bank hat diesen Namen.</translation>
    </message>
    <message>
        <source>Another account has this number.</source>
        <translation>Ein anderes Konto hat diese Nummer.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an amount in minor units.</source>
        <translation>„%1“ ist kein Betrag in der kleinsten Einheit der Währung.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a date.</source>
        <translation>„%1“ ist kein Datum.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>Window</name>
    <message>
        <source>Bank, account</source>
        <translation>Bank, Konto</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Saldo</translation>
    </message>
    <message>
        <source>Reconciled on</source>
        <translation>Abgeglichen am</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Neu laden</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>B&amp;earbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Bank</source>
        <translation>&amp;Bank</translation>
    </message>
    <message>
        <source>&amp;New…</source>
        <translation>&amp;Neu …</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>&amp;Umbenennen …</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Re&amp;open</source>
        <translation>Wieder ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Account</source>
        <translation>&amp;Konto</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Hinzufügen …</translation>
    </message>
    <message>
        <source>Re&amp;concile…</source>
        <translation>&amp;Abgleichen …</translation>
    </message>
    <message>
        <source>New Bank</source>
        <translation>Neue Bank</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>Rename Bank</source>
        <translation>Bank umbenennen</translation>
    </message>
    <message>
        <source>Add Account</source>
        <translation>Konto hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Number:</source>
        <translation>&amp;Nummer:</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>&amp;Art:</translation>
    </message>
    <message>
        <source>Reconcile Account %1</source>
        <translation>Konto %1 abgleichen</translation>
    </message>
    <message>
        <source>&amp;Balance:</source>
        <translation>&amp;Saldo:</translation>
    </message>
    <message>
        <source>&amp;Currency:</source>
        <translation>&amp;Währung:</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>&amp;Datum:</translation>
    </message>
    <message>
        <source>The program has a fault: %1</source>
        <translation>Das Programm hat einen Fehler: %1</translation>
    </message>
    <message>
        <source>Nothing can be changed, or these rows, which cannot be read, would be lost:</source>
        <translation>Nichts kann geändert werden, da sonst diese nicht lesbaren Zeilen verloren gingen:</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>The bank holds account %1 already. Change its kind to %2?</source>
        <translation>Die Bank führt das Konto %1 bereits. Seine Art in %2 ändern?</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>geschlossen</translation>
    </message>
    <message>
        <source>Example, which is not saved</source>
        <translation>Beispiel, das nicht gespeichert wird</translation>
    </message>
    <message>
        <source>The date is in the future.</source>
        <translation>Das Datum liegt in der Zukunft.</translation>
    </message>
</context>
</TS>
