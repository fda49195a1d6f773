<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>Books</name>
    <message>
        <source>&apos;%1&apos; is not an account number.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un numéro de compte.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a currency such as CAD.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une devise comme CAD.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a date such as %2.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une date comme %2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an amount such as %2.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un montant comme %2.</translation>
    </message>
</context>
<context>
    <name>Store</name>
    <message>
        <source>&apos;%1&apos; is not a kind of account.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un type de compte.</translation>
    </message>
    <message>
        <source>Another window has changed the file. Reload it, then make your change again.</source>
        <translation>Une autre fenêtre a modifié le fichier. Rechargez-le, puis refaites votre modification.</translation>
    </message>
    <message>
        <source>The file holds something else, or was made by a newer program.</source>
        <translation>Le fichier contient autre chose ou provient d’un programme plus récent.</translation>
    </message>
    <message>
        <source>The file cannot be read or written: %1</source>
        <translation>Lecture ou écriture du fichier impossible&#xa0;: %1</translation>
    </message>
    <message>
        <source>Rows of the file that cannot be read would be lost.</source>
        <translation>Les lignes illisibles du fichier seraient perdues.</translation>
    </message>
    <message>
        <source>The bank of the account is missing.</source>
        <translation>La banque du compte est absente.</translation>
    </message>
    <message>
        <source>Another bank has this name.</source>
        <translation>Une autre banque porte ce nom.</translation>
    </message>
    <message>
        <source>Another account has this number.</source>
        <translation>Un autre compte porte ce numéro.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an amount in minor units.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un montant en unités mineures.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a date.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une date.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>Window</name>
    <message>
        <source>Bank, account</source>
        <translation>Banque, compte</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Solde</translation>
    </message>
    <message>
        <source>Reconciled on</source>
        <translation>Rapproché le</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Recharger</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>&amp;Bank</source>
        <translation>&amp;Banque</translation>
    </message>
    <message>
        <source>&amp;New…</source>
        <translation>&amp;Nouvelle…</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>&amp;Renommer…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Re&amp;open</source>
        <translation>R&amp;ouvrir</translation>
    </message>
    <message>
        <source>&amp;Account</source>
        <translation>&amp;Compte</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Ajouter…</translation>
    </message>
    <message>
        <source>Re&amp;concile…</source>
        <translation>Ra&amp;pprocher…</translation>
    </message>
    <message>
        <source>New Bank</source>
        <translation>Nouvelle banque</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom&#xa0;:</translation>
    </message>
    <message>
        <source>Rename Bank</source>
        <translation>Renommer la banque</translation>
    </message>
    <message>
        <source>Add Account</source>
        <translation>Ajouter un compte</translation>
    </message>
    <message>
        <source>&amp;Number:</source>
        <translation>&amp;Numéro&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>&amp;Type&#xa0;:</translation>
    </message>
    <message>
        <source>Reconcile Account %1</source>
        <translation>Rapprocher le compte %1</translation>
    </message>
    <message>
        <source>&amp;Balance:</source>
        <translation>&amp;Solde&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Currency:</source>
        <translation>&amp;Devise&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>D&amp;ate&#xa0;:</translation>
    </message>
    <message>
        <source>The program has a fault: %1</source>
        <translation>Le programme a une erreur&#xa0;: %1</translation>
    </message>
    <message>
        <source>Nothing can be changed, or these rows, which cannot be read, would be lost:</source>
        <translation>Aucune modification n’est possible, car ces lignes illisibles seraient perdues&#xa0;:</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>The bank holds account %1 already. Change its kind to %2?</source>
        <translation>La banque a déjà le compte %1. Remplacer son type par %2?</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>fermée</translation>
    </message>
    <message>
        <source>Example, which is not saved</source>
        <translation>Exemple, qui n’est pas enregistré</translation>
    </message>
    <message>
        <source>The date is in the future.</source>
        <translation>La date est dans l’avenir.</translation>
    </message>
</context>
</TS>
