<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>QObject</name>
    <message>
        <source>The name of a financial institution cannot be empty.</source>
        <translation>Le nom d’une institution financière ne peut pas être vide.</translation>
    </message>
    <message>
        <source>The bank account number of a financial institution cannot be invalid.</source>
        <translation>Le numéro d’un compte dans une institution financière doit être valide.</translation>
    </message>
    <message>
        <source>The bank account type of a financial institution cannot be unknown.</source>
        <translation>Le type d’un compte dans une institution financière ne peut pas être inconnu.</translation>
    </message>
    <message>
        <source>Cannot close a bank that is already closed.</source>
        <translation>Impossible de fermer une banque qui est déjà fermée.</translation>
    </message>
    <message>
        <source>Cannot open a bank that is already opened.</source>
        <translation>Impossible d’ouvrir une banque qui est déjà ouverte.</translation>
    </message>
    <message>
        <source>Cannot add an account number of a financial institution that is invalid.</source>
        <translation>Impossible d’ajouter un numéro de compte non valide à une institution financière.</translation>
    </message>
    <message>
        <source>Cannot add an account type of a financial institution that is unknown.</source>
        <translation>Impossible d’ajouter un compte de type inconnu à une institution financière.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; is not associated with the financial institution.</source>
        <translation>Le compte «&#xa0;%1&#xa0;» n’est pas associé à l’institution financière.</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>Chequeing</source>
        <translation>Compte-chèques</translation>
    </message>
    <message>
        <source>Credit Card</source>
        <translation>Carte de crédit</translation>
    </message>
    <message>
        <source>Loan</source>
        <translation>Prêt</translation>
    </message>
    <message>
        <source>Savings</source>
        <translation>Épargne</translation>
    </message>
    <message>
        <source>Goal</source>
        <translation>Objectif</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>There is an issue with the bank &apos;%1&apos;. %2</source>
        <translation>Il y a un problème avec la banque «&#xa0;%1&#xa0;». %2</translation>
    </message>
    <message>
        <source>The key name does not match the value name, %1.</source>
        <translation>Le nom de la clé ne correspond pas à celui de la valeur, «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>A default account cannot be associated with a bank.</source>
        <translation>Un compte sans numéro valide ne peut pas être associé à une banque.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; is associated with the bank &apos;%2&apos; and cannot be used again.</source>
        <translation>Le compte «&#xa0;%1&#xa0;» est associé à la banque «&#xa0;%2&#xa0;» et ne peut pas servir de nouveau.</translation>
    </message>
    <message>
        <source>Failed to locate a bank by that name.</source>
        <translation>Aucune banque de ce nom n’a été trouvée.</translation>
    </message>
    <message>
        <source>Cannot close a bank that does not exist.</source>
        <translation>Impossible de fermer une banque qui n’existe pas.</translation>
    </message>
    <message>
        <source>Cannot open a bank that does not exist.</source>
        <translation>Impossible d’ouvrir une banque qui n’existe pas.</translation>
    </message>
    <message>
        <source>Cannot add the account number, %1, as the bank that does not exist.</source>
        <translation>Impossible d’ajouter le numéro de compte %1, car la banque n’existe pas.</translation>
    </message>
    <message>
        <source>Cannot add the account number, %1, as the bank &apos;%2&apos; is already associated with that number.</source>
        <translation>Impossible d’ajouter le numéro de compte %1, car la banque «&#xa0;%2&#xa0;» est déjà associée à ce numéro.</translation>
    </message>
    <message>
        <source>Cannot remove the account number, %1, as the bank that does not exist.</source>
        <translation>Impossible de retirer le numéro de compte %1, car la banque n’existe pas.</translation>
    </message>
    <message>
        <source>Cannot add a bank that is already closed.</source>
        <translation>Impossible d’ajouter une banque qui est déjà fermée.</translation>
    </message>
    <message>
        <source>Cannot add a bank that already exists.</source>
        <translation>Impossible d’ajouter une banque qui existe déjà.</translation>
    </message>
    <message>
        <source>The account &apos;%1&apos; is already associated with the bank &apos;%2&apos; and cannot be added again.</source>
        <translation>Le compte «&#xa0;%1&#xa0;» est déjà associé à la banque «&#xa0;%2&#xa0;» et ne peut pas être ajouté de nouveau.</translation>
    </message>
    <message>
        <source>Cannot remove a bank that does not exist.</source>
        <translation>Impossible de retirer une banque qui n’existe pas.</translation>
    </message>
    <message>
        <source>Cannot rename to &apos;%1&apos; when the bank does not exist.</source>
        <translation>Impossible de donner le nom «&#xa0;%1&#xa0;» à une banque qui n’existe pas.</translation>
    </message>
    <message>
        <source>Cannot rename to &apos;%1&apos; as it already exists.</source>
        <translation>Impossible de donner le nom «&#xa0;%1&#xa0;» à la banque, car il est déjà utilisé.</translation>
    </message>
    <message>
        <source>Cannot rename to an empty bank name.</source>
        <translation>Impossible de donner à une banque un nom vide.</translation>
    </message>
    <message>
        <source>Cannot rename a bank when it is closed.</source>
        <translation>Impossible de renommer une banque fermée.</translation>
    </message>
    <message>
        <source>Cannot update a bank that does not exist.</source>
        <translation>Impossible de mettre à jour une banque qui n’existe pas.</translation>
    </message>
    <message>
        <source>Cannot update to a closed bank.</source>
        <translation>Impossible de fermer une banque en la mettant à jour.</translation>
    </message>
    <message>
        <source>Cannot update a bank that is closed.</source>
        <translation>Impossible de mettre à jour une banque qui est fermée.</translation>
    </message>
    <message>
        <source>Cannot update the account number, %1, as the bank &apos;%2&apos; is already associated with that number.</source>
        <translation>La mise à jour ne peut pas inclure le numéro de compte %1, car la banque «&#xa0;%2&#xa0;» est déjà associée à ce numéro.</translation>
    </message>
    <message>
        <source>The last reconciled date, %1, cannot be updated to be in the past, %2.</source>
        <translation>La date du dernier rapprochement, %1, ne peut pas être remplacée par une date antérieure, %2.</translation>
    </message>
</context>
</TS>
