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
        <source>The line is longer than 1 MiB.</source>
        <translation>La ligne dépasse 1&#xa0;Mio.</translation>
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
        <source>Do not report the changes of banks.</source>
        <translation>Ne pas signaler les modifications apportées aux banques.</translation>
    </message>
    <message>
        <source>Report the changes of banks, at the prompt too.</source>
        <translation>Signaler les modifications apportées aux banques, même en mode interactif.</translation>
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
        <source>The book. Without it, or with -, standard input is read.</source>
        <translation>Le livre de comptes; s’il est omis ou remplacé par -, l’entrée standard.</translation>
    </message>
    <message>
        <source>There is no locale &apos;%1&apos;.</source>
        <translation>Les paramètres régionaux «&#xa0;%1&#xa0;» n’existent pas.</translation>
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
        <source>:/help.txt</source>
        <translation>:/help_fr.txt</translation>
    </message>
    <message>
        <source>The date %1 of the account number %2 lies in the future: no earlier one will be taken, unless you remove the number and add it again.</source>
        <translation>La date %1 du compte numéro %2 est dans l’avenir&#xa0;: aucune date antérieure ne sera acceptée, à moins de retirer le numéro et de l’ajouter de nouveau.</translation>
    </message>
    <message>
        <source>%1: took the statement of %2, dated %3, with a balance of %4.</source>
        <translation>%1&#xa0;: relevé de %2 repris, daté %3, avec un solde de %4.</translation>
    </message>
    <message>
        <source>%1 of %2 lines were refused; --strict stops at the first.</source>
        <translation>%1 lignes sur %2 ont été refusées; --strict s’arrête à la première.</translation>
    </message>
    <message>
        <source>%1 of %2 lines were refused.</source>
        <translation>Lignes refusées&#xa0;: %1 sur %2.</translation>
    </message>
    <message>
        <source>Standard input is closed.</source>
        <translation>L’entrée standard est fermée.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>La mémoire ne suffit pas.</translation>
    </message>
    <message>
        <source>Type help for the commands, or quit to leave. Nothing is kept unless you keep the lines that print shows.</source>
        <translation>Tapez help pour voir les commandes, quit pour quitter. Rien n’est gardé, sauf si vous gardez les lignes que print affiche.</translation>
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
        <source>The command is written: %1. Double quotes hold words with blanks.</source>
        <translation>La commande s’écrit&#xa0;: %1. Les mots avec des espaces se mettent entre guillemets droits.</translation>
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
        <source>The account number %1 is bound to &apos;%2&apos;, not to &apos;%3&apos;; remove it and add it again to bind it anew.</source>
        <translation>Le numéro de compte %1 est lié à «&#xa0;%2&#xa0;», pas à «&#xa0;%3&#xa0;»; pour le lier autrement, retirez-le et ajoutez-le de nouveau.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is bound to another account of the bank, %2.</source>
        <translation>«&#xa0;%1&#xa0;» est lié à un autre compte de la banque, %2.</translation>
    </message>
    <message>
        <source>The balance of the account number %1 is kept in %2, not in %3.</source>
        <translation>Le solde du compte numéro %1 est tenu en %2, pas en %3.</translation>
    </message>
    <message>
        <source>Accounts of several banks are bound to &apos;%1&apos;. Take their statements one by one: statement NUMBER FILE</source>
        <translation>Des comptes de plusieurs banques sont liés à «&#xa0;%1&#xa0;». Reprenez leurs relevés un à un&#xa0;: statement NUMÉRO FICHIER</translation>
    </message>
    <message>
        <source>There is no command &apos;%1&apos;; help shows the commands.</source>
        <translation>La commande «&#xa0;%1&#xa0;» n’existe pas; help affiche les commandes.</translation>
    </message>
</context>
<context>
    <name>BookError</name>
    <message>
        <source>&apos;%1&apos; is not a date such as 2026-01-31.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une date de la forme 2026-01-31.</translation>
    </message>
    <message>
        <source>The statement has no %1.</source>
        <translation>Le champ %1 est absent du relevé.</translation>
    </message>
    <message>
        <source>The file has no statement of a bank account or a credit card.</source>
        <translation>Le fichier ne contient aucun relevé de compte bancaire ou de carte de crédit.</translation>
    </message>
    <message>
        <source>The file has no statement of the account &apos;%1&apos;, but of: %2.</source>
        <translation>Le fichier ne contient pas de relevé du compte «&#xa0;%1&#xa0;», mais de&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The account %1 is not of the kind that the statement is for, &apos;%2&apos;.</source>
        <translation>Le compte %1 n’est pas du type visé par le relevé, «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>The line is not UTF-8 text; save the book as UTF-8.</source>
        <translation>La ligne n’est pas du texte UTF-8; enregistrez le livre de comptes en UTF-8.</translation>
    </message>
    <message>
        <source>A quoted word does not end; close it with a double quote.</source>
        <translation>Il manque un guillemet droit fermant.</translation>
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
        <source>The file has several such accounts; add the identifier at the end: %1.</source>
        <translation>Le fichier a plusieurs comptes de ce type; ajoutez l’identifiant à la fin&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The statements of the account &apos;%1&apos; differ.</source>
        <translation>Les relevés du compte «&#xa0;%1&#xa0;» diffèrent.</translation>
    </message>
    <message>
        <source>The line contains the character %1, which cannot be shown.</source>
        <translation>La ligne contient le caractère %1, qui ne peut pas être affiché.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no kind of account; the kinds are: Chequeing, &quot;Credit Card&quot;, Loan, Savings, Goal.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un type de compte; les types sont&#xa0;: Compte-chèques, &quot;Carte de crédit&quot;, Prêt, Épargne, Objectif.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an amount such as -1250.50 CAD.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un montant comme -1250.50 CAD (séparateur décimal&#xa0;: point).</translation>
    </message>
    <message>
        <source>The file is cut short, damaged, or several files in one.</source>
        <translation>Le fichier est tronqué, endommagé ou formé de plusieurs fichiers.</translation>
    </message>
    <message>
        <source>The file is not an OFX file, or is one in UTF-16 or UTF-32.</source>
        <translation>Le fichier n’est pas un fichier OFX, ou est en UTF-16 ou en UTF-32.</translation>
    </message>
</context>
</TS>
