<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_CA">
<context>
    <name>Bankbook</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Impossible de lire «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>Show texts and amounts as in this locale.</source>
        <translation>Afficher les textes et les montants selon ces paramètres régionaux.</translation>
    </message>
    <message>
        <source>Do not tell of each change of a bank.</source>
        <translation>Ne pas signaler chaque modification d’une banque.</translation>
    </message>
    <message>
        <source>Stop at the first line that is refused.</source>
        <translation>S’arrêter à la première ligne refusée.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Afficher cette aide.</translation>
    </message>
    <message>
        <source>Keeps a household&apos;s books, one command a line:</source>
        <translation>Tient les comptes d’un ménage, à raison d’une commande par ligne&#xa0;:</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>FICHIER</translation>
    </message>
    <message>
        <source>The book; standard input where it is left out or -.</source>
        <translation>Le livre de comptes; l’entrée standard s’il est omis ou -.</translation>
    </message>
    <message>
        <source>Only one book can be read at a time.</source>
        <translation>Un seul livre de comptes peut être lu à la fois.</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>entrée standard</translation>
    </message>
    <message>
        <source>Standard output cannot be written.</source>
        <translation>Impossible d’écrire sur la sortie standard.</translation>
    </message>
</context>
<context>
    <name>Book</name>
    <message>
        <source>The account number %1 is given twice.</source>
        <translation>Le numéro de compte %1 est indiqué deux fois.</translation>
    </message>
    <message>
        <source>No bank holds the account number %1.</source>
        <translation>Aucune banque ne détient le numéro de compte %1.</translation>
    </message>
    <message>
        <source>NAME NUMBER KIND</source>
        <translation>NOM NUMÉRO TYPE</translation>
    </message>
    <message>
        <source>NAME [NUMBER=KIND ...]</source>
        <translation>NOM [NUMÉRO=TYPE ...]</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOM</translation>
    </message>
    <message>
        <source>NUMBER</source>
        <translation>NUMÉRO</translation>
    </message>
    <message>
        <source>NUMBER DATE AMOUNT CURRENCY</source>
        <translation>NUMÉRO DATE MONTANT DEVISE</translation>
    </message>
    <message>
        <source>NAME [NUMBER]</source>
        <translation>NOM [NUMÉRO]</translation>
    </message>
    <message>
        <source>FROM TO</source>
        <translation>ANCIEN NOUVEAU</translation>
    </message>
    <message>
        <source>There is no command &apos;%1&apos;.</source>
        <translation>La commande «&#xa0;%1&#xa0;» n’existe pas.</translation>
    </message>
    <message>
        <source>The command is written: %1</source>
        <translation>La commande s’écrit&#xa0;: %1</translation>
    </message>
    <message>
        <source>Bank</source>
        <translation>Banque</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Compte</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Classe</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Solde</translation>
    </message>
    <message>
        <source>Reconciled</source>
        <translation>Rapproché le</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>fermée</translation>
    </message>
    <message>
        <source>open</source>
        <translation>ouverte</translation>
    </message>
    <message>
        <source>asset</source>
        <translation>actif</translation>
    </message>
    <message>
        <source>liability</source>
        <translation>passif</translation>
    </message>
    <message>
        <source>The balance of the account number %1 is not kept in %2.</source>
        <translation>Le solde du compte numéro %1 n’est pas tenu en %2.</translation>
    </message>
    <message>
        <source>Name one account; &apos;%1&apos; has statements of: %2.</source>
        <translation>Préciser un compte; «&#xa0;%1&#xa0;» contient les relevés de&#xa0;: %2.</translation>
    </message>
    <message>
        <source>NUMBER FILE [ACCOUNTID]</source>
        <translation>NUMÉRO FICHIER [IDENTIFIANT]</translation>
    </message>
    <message>
        <source>The account %1 is not of the kind that the statement is for, &apos;%2&apos;.</source>
        <translation>Le compte %1 n’est pas du type visé par le relevé, «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>KIND is one of: %1.</source>
        <translation>TYPE est l’un de&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>BookReader</name>
    <message>
        <source>The line is not UTF-8 text.</source>
        <translation>La ligne n’est pas du texte UTF-8.</translation>
    </message>
    <message>
        <source>A quoted word does not end.</source>
        <translation>Il manque un guillemet fermant.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an account number.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un numéro de compte.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a date such as 2026-01-31.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une date de la forme 2026-01-31.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a currency code such as CAD.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un code de devise comme CAD.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an amount of %2.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un montant en %2.</translation>
    </message>
</context>
<context>
    <name>Statement</name>
    <message>
        <source>The statement&apos;s %1 &apos;%2&apos; cannot be read.</source>
        <translation>Impossible de lire %1 «&#xa0;%2&#xa0;» dans le relevé.</translation>
    </message>
    <message>
        <source>There is no file &apos;%1&apos; that can be read.</source>
        <translation>Il n’y a pas de fichier «&#xa0;%1&#xa0;» qui puisse être lu.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is too large for a statement.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» est trop volumineux pour un relevé.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is not a whole OFX file.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» n’est pas un fichier OFX complet.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; has no statement that libofx reads without errors.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» ne contient aucun relevé que libofx lise sans erreur.</translation>
    </message>
    <message>
        <source>bankbook was built without libofx, which reads statements.</source>
        <translation>bankbook a été compilé sans libofx, qui lit les relevés.</translation>
    </message>
</context>
</TS>
