<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>Book</name>
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
        <source>Standard output cannot be written.</source>
        <translation>Impossible d’écrire sur la sortie standard.</translation>
    </message>
    <message>
        <source>Show texts, amounts and dates as in this locale.</source>
        <translation>Afficher les textes, les montants et les dates selon ces paramètres régionaux.</translation>
    </message>
    <message>
        <source>Keeps a household&apos;s books, one command a line:</source>
        <translation>Tient les comptes d’un ménage, à raison d’une commande par ligne&#xa0;:</translation>
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
        <source>FILE</source>
        <translation>FICHIER</translation>
    </message>
    <message>
        <source>There is no locale &apos;%1&apos;.</source>
        <translation>Les paramètres régionaux «&#xa0;%1&#xa0;» n’existent pas.</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>entrée standard</translation>
    </message>
    <message>
        <source>%1: took the statement of %2, dated %3, with a balance of %4.</source>
        <translation>%1&#xa0;: relevé de %2 repris, daté %3, avec un solde de %4.</translation>
    </message>
    <message>
        <source>%1 of %2 lines were refused.</source>
        <translation>Lignes refusées&#xa0;: %1 sur %2.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>La mémoire ne suffit pas.</translation>
    </message>
    <message>
        <source>No account is bound to %1. Bind one: statement NUMBER FILE IDENTIFIER</source>
        <translation>Aucun compte n’est lié à&#xa0;: %1. Liez-en un&#xa0;: statement NUMÉRO FICHIER IDENTIFIANT</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 n’est pas un fichier.</translation>
    </message>
    <message>
        <source>The account number %1 is given twice.</source>
        <translation>Le numéro de compte %1 est indiqué deux fois.</translation>
    </message>
    <message>
        <source>No bank holds the account number %1; list shows all.</source>
        <translation>Le numéro de compte %1 n’est associé à aucune banque; list les affiche tous.</translation>
    </message>
    <message>
        <source>The command is written: %1. Straight double quotes hold words with blanks.</source>
        <translation>La commande s’écrit&#xa0;: %1. Les mots avec des espaces se mettent entre guillemets droits.</translation>
    </message>
    <message>
        <source>add NAME NUMBER KIND</source>
        <translation>add NOM NUMÉRO TYPE</translation>
    </message>
    <message>
        <source>bank NAME [NUMBER=KIND ...]</source>
        <translation>bank NOM [NUMÉRO=TYPE ...]</translation>
    </message>
    <message>
        <source>close NAME</source>
        <translation>close NOM</translation>
    </message>
    <message>
        <source>forget NUMBER</source>
        <translation>forget NUMÉRO</translation>
    </message>
    <message>
        <source>identifier NUMBER IDENTIFIER</source>
        <translation>identifier NUMÉRO IDENTIFIANT</translation>
    </message>
    <message>
        <source>list</source>
        <translation>list</translation>
    </message>
    <message>
        <source>open NAME</source>
        <translation>open NOM</translation>
    </message>
    <message>
        <source>reconcile NUMBER DATE AMOUNT CURRENCY</source>
        <translation>reconcile NUMÉRO DATE MONTANT DEVISE</translation>
    </message>
    <message>
        <source>remove NAME [NUMBER]</source>
        <translation>remove NOM [NUMÉRO]</translation>
    </message>
    <message>
        <source>rename FROM TO</source>
        <translation>rename ANCIEN NOUVEAU</translation>
    </message>
    <message>
        <source>statement [NUMBER] FILE [IDENTIFIER]</source>
        <translation>statement [NUMÉRO] FICHIER [IDENTIFIANT]</translation>
    </message>
    <message>
        <source>update NAME [NUMBER=KIND ...]</source>
        <translation>update NOM [NUMÉRO=TYPE ...]</translation>
    </message>
    <message>
        <source>There is no command &apos;%1&apos;; bankbook --help shows all.</source>
        <translation>La commande «&#xa0;%1&#xa0;» n’existe pas; bankbook --help les affiche toutes.</translation>
    </message>
    <message>
        <source>The date %1 of the account number %2 lies in the future. To take it back: forget %2</source>
        <translation>La date %1 du compte numéro %2 est dans l’avenir. Pour l’annuler&#xa0;: forget %2</translation>
    </message>
    <message>
        <source>Report the changes of banks.</source>
        <translation>Signaler les modifications apportées aux banques.</translation>
    </message>
    <message>
        <source>The book, or - for standard input.</source>
        <translation>Le livre de comptes; s’il est remplacé par -, l’entrée standard.</translation>
    </message>
    <message>
        <source>Nothing is recorded of the account number %1.</source>
        <translation>Rien n’est noté pour le numéro de compte %1.</translation>
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
        <translation>Une ligne contient une commande. Un mot avec des espaces se met entre guillemets droits; à
l’intérieur, \&quot; est un guillemet et \\ une barre oblique inverse. # commence un commentaire.
  NUMÉRO       votre propre numéro pour un compte, tel que 1010
  TYPE         Compte-chèques, &quot;Carte de crédit&quot;, Prêt, Épargne ou Objectif; ou les mots anglais
               Chequeing, &quot;Credit Card&quot;, Loan, Savings, Goal, qui valent dans toutes les langues
  DATE         telle que 2026-10-31
  MONTANT      tel que -1250.50, avec un point et rien entre les milliers; une dette est négative
  DEVISE       telle que CAD
  IDENTIFIANT  ACCTID [ACCTTYPE [BANKID]], comme dans le fichier
</translation>
    </message>
    <message>
        <source>The account number %1 is bound to %2; to bind it anew, remove and add it.</source>
        <translation>Le numéro de compte %1 est lié à %2; pour le lier autrement, retirez-le et ajoutez-le de nouveau.</translation>
    </message>
    <message>
        <source>%1 cannot be bound to %2: its kind does not go with the ACCTTYPE.</source>
        <translation>%1 ne peut pas être lié à %2&#xa0;: son type ne correspond pas à l’ACCTTYPE.</translation>
    </message>
    <message>
        <source>The account number %1 is bound to %2, which may be the same account. Bind both with ACCTID, ACCTTYPE and BANKID.</source>
        <translation>Le numéro de compte %1 est lié à %2, qui est peut-être le même compte. Liez les deux avec ACCTID, ACCTTYPE et BANKID.</translation>
    </message>
    <message>
        <source>The file has no statement that %1 could take; it has: %2.</source>
        <translation>Le fichier n’a aucun relevé pour %1, mais&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The file has several statements that %1 could take; choose one with the command identifier: %2.</source>
        <translation>Le fichier a plusieurs relevés pour %1&#xa0;; choisissez-en un avec la commande identifier&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The account number %1 is kept in %2, not in %3. If that was wrong: forget %1</source>
        <translation>Le compte numéro %1 est tenu en %2, et non en %3. Si c’était faux&#xa0;: forget %1</translation>
    </message>
    <message>
        <source>%1 If the last date was wrong: forget %2</source>
        <translation>%1 Si la dernière date était fausse&#xa0;: forget %2</translation>
    </message>
</context>
<context>
    <name>BookError</name>
    <message>
        <source>&apos;%1&apos; is not a date such as 2026-01-31.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une date de la forme 2026-01-31.</translation>
    </message>
    <message>
        <source>The file has no statement of a bank account or a credit card.</source>
        <translation>Le fichier ne contient aucun relevé de compte bancaire ou de carte de crédit.</translation>
    </message>
    <message>
        <source>The line is not UTF-8 text; save the book as UTF-8.</source>
        <translation>La ligne n’est pas du texte UTF-8; enregistrez le livre de comptes en UTF-8.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an account number such as 1010.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un numéro de compte comme 1010.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Lecture impossible&#xa0;: %1 (%2)</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no kind of account; the kinds are: Chequeing, &quot;Credit Card&quot;, Loan, Savings, Goal.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un type de compte; les types sont&#xa0;: Compte-chèques, &quot;Carte de crédit&quot;, Prêt, Épargne, Objectif.</translation>
    </message>
    <message>
        <source>The file is cut short, damaged, or several files in one.</source>
        <translation>Le fichier est tronqué, endommagé ou formé de plusieurs fichiers.</translation>
    </message>
    <message>
        <source>%1 is not a straight double quote.</source>
        <translation>%1 n’est pas un guillemet droit.</translation>
    </message>
    <message>
        <source>A quoted word does not end; close it with a straight quote.</source>
        <translation>Il manque un guillemet droit fermant.</translation>
    </message>
    <message>
        <source>The name &apos;%1&apos; has more than 100 characters.</source>
        <translation>Le nom «&#xa0;%1&#xa0;» a plus de 100 caractères.</translation>
    </message>
    <message>
        <source>The sign of &apos;%1&apos; is wrong; only what you owe has one, -.</source>
        <translation>Le signe de «&#xa0;%1&#xa0;» est incorrect; seul ce que vous devez en a un, -.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a currency such as CAD.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une devise comme CAD.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has more decimals than %2, which has %3; nothing stands between thousands.</source>
        <translation>«&#xa0;%1&#xa0;» a plus de décimales que %2, qui en a %3; rien ne sépare les milliers.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is too large.</source>
        <translation>«&#xa0;%1&#xa0;» est trop grand.</translation>
    </message>
    <message>
        <source>The bank reports an error: %1</source>
        <translation>La banque signale une erreur&#xa0;: %1</translation>
    </message>
    <message>
        <source>The statement&apos;s BALAMT &apos;%1&apos; has three decimals, or thousands.</source>
        <translation>Le champ BALAMT du relevé a trois décimales, ou un séparateur de milliers&#xa0;: «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Le fichier est vide.</translation>
    </message>
    <message>
        <source>The file is not OFX; download the statement as OFX, QFX or Money, not as PDF, CSV or QIF.</source>
        <translation>Le fichier n’est pas un fichier OFX; téléchargez le relevé en OFX, QFX ou Money, pas en PDF, CSV ou QIF.</translation>
    </message>
    <message>
        <source>The character %1 cannot be shown; save the file as UTF-8, with lines that end with LF or CR LF.</source>
        <translation>Le caractère %1 ne peut pas être affiché; enregistrez le fichier en UTF-8, avec des fins de ligne LF ou CR LF.</translation>
    </message>
    <message>
        <source>The character %1 cannot be shown.</source>
        <translation>Le caractère %1 ne peut pas être affiché.</translation>
    </message>
    <message>
        <source>The file has two balances of %1: %2 and %3.</source>
        <translation>Le fichier contient deux soldes du %1&#xa0;: %2 et %3.</translation>
    </message>
    <message>
        <source>A blank is missing behind the quote that ends &apos;%1&apos;.</source>
        <translation>Il manque une espace après le guillemet qui termine «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an amount such as -1250.50, with a point before decimals and nothing between thousands.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un montant tel que -1250.50, avec un point avant les décimales et rien entre les milliers.</translation>
    </message>
    <message>
        <source>The statement&apos;s %1 cannot be read: &apos;%2&apos;.</source>
        <translation>Le champ %1 du relevé est illisible&#xa0;: «&#xa0;%2&#xa0;».</translation>
    </message>
</context>
</TS>
