<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>tern7::TDropDownLabel</name>
    <message>
        <source>empty</source>
        <translation>vide</translation>
    </message>
    <message>
        <source>press to change</source>
        <translation>appuyer pour modifier</translation>
    </message>
    <message>
        <source>%1, press to change</source>
        <translation>%1, appuyer pour modifier</translation>
    </message>
</context>
<context>
    <name>tern7::TFieldTree</name>
    <message>
        <source>No field has this name</source>
        <translation>Aucun champ ne porte ce nom</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
</context>
<context>
    <name>tern7::TFilterRowView</name>
    <message>
        <source>Row menu</source>
        <translation>Menu de la ligne</translation>
    </message>
    <message>
        <source>Row takes part</source>
        <translation>La ligne est prise en compte</translation>
    </message>
    <message>
        <source>The bracket around it is switched off</source>
        <translation>La parenthèse qui la contient est désactivée</translation>
    </message>
    <message>
        <source>The condition is left out: %1</source>
        <translation>La condition est ignorée : %1</translation>
    </message>
    <message>
        <source>How the conditions are joined</source>
        <translation>Liaison des conditions</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Champ</translation>
    </message>
    <message>
        <source>%1, operator</source>
        <translation>%1, opérateur</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Opérateur</translation>
    </message>
    <message>
        <source>%1, second value</source>
        <translation>%1, seconde valeur</translation>
    </message>
    <message>
        <source>The list is being read</source>
        <translation>Lecture de la liste en cours</translation>
    </message>
    <message>
        <source>The list could not be read: %1</source>
        <translation>La liste n’a pas pu être lue : %1</translation>
    </message>
</context>
<context>
    <name>tern7::TKPopupMenu</name>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Aucun résultat</translation>
    </message>
</context>
<context>
    <name>tern7::TKQueryEditor</name>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Add condition</source>
        <translation>Ajouter une condition</translation>
    </message>
    <message>
        <source>Add bracket</source>
        <translation>Ajouter une parenthèse</translation>
    </message>
    <message>
        <source>Delete bracket</source>
        <translation>Supprimer la parenthèse</translation>
    </message>
    <message>
        <source>Delete condition</source>
        <translation>Supprimer la condition</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Déplacer</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Activer</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Désactiver</translation>
    </message>
    <message>
        <source>Change bracket</source>
        <translation>Modifier la parenthèse</translation>
    </message>
    <message>
        <source>Change joining word</source>
        <translation>Modifier le mot de liaison</translation>
    </message>
    <message>
        <source>Choose field</source>
        <translation>Choisir le champ</translation>
    </message>
    <message>
        <source>Choose operator</source>
        <translation>Choisir l’opérateur</translation>
    </message>
    <message>
        <source>Change value</source>
        <translation>Modifier la valeur</translation>
    </message>
    <message>
        <source>Make parameter</source>
        <translation>Transformer en paramètre</translation>
    </message>
    <message>
        <source>Make constant</source>
        <translation>Transformer en constante</translation>
    </message>
    <message>
        <source>Change parameter</source>
        <translation>Modifier le paramètre</translation>
    </message>
    <message>
        <source>Edit sub-query</source>
        <translation>Modifier la sous-requête</translation>
    </message>
    <message>
        <source>Change caption</source>
        <translation>Modifier l’intitulé</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Add column</source>
        <translation>Ajouter une colonne</translation>
    </message>
    <message>
        <source>Delete column</source>
        <translation>Supprimer la colonne</translation>
    </message>
    <message>
        <source>Move column</source>
        <translation>Déplacer la colonne</translation>
    </message>
    <message>
        <source>Duplicate column</source>
        <translation>Dupliquer la colonne</translation>
    </message>
    <message>
        <source>Change formula</source>
        <translation>Modifier la formule</translation>
    </message>
    <message>
        <source>Change sorting</source>
        <translation>Modifier le tri</translation>
    </message>
    <message>
        <source>Change sort order</source>
        <translation>Modifier l’ordre de tri</translation>
    </message>
    <message>
        <source>Just sorting</source>
        <translation>Tri uniquement</translation>
    </message>
    <message>
        <source>Edit columns</source>
        <translation>Modifier les colonnes</translation>
    </message>
    <message>
        <source>Change options</source>
        <translation>Modifier les options</translation>
    </message>
    <message>
        <source>Choose main table</source>
        <translation>Choisir la table principale</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vider</translation>
    </message>
    <message>
        <source>Renumber sorting</source>
        <translation>Renuméroter le tri</translation>
    </message>
    <message>
        <source>Clear columns</source>
        <translation>Vider les colonnes</translation>
    </message>
    <message>
        <source>Join another way</source>
        <translation>Joindre autrement</translation>
    </message>
    <message>
        <source>Delete row</source>
        <translation>Supprimer la ligne</translation>
    </message>
    <message>
        <source>Switch row on or off</source>
        <translation>Activer ou désactiver la ligne</translation>
    </message>
    <message>
        <source>Row menu</source>
        <translation>Menu de la ligne</translation>
    </message>
</context>
<context>
    <name>tern7::TKQueryPanel</name>
    <message>
        <source>level %1</source>
        <translation>niveau %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>désactivée</translation>
    </message>
    <message>
        <source>left out: %1</source>
        <translation>ignorée : %1</translation>
    </message>
    <message>
        <source>The list is empty</source>
        <translation>La liste est vide</translation>
    </message>
    <message>
        <source>The list is being read...</source>
        <translation>Lecture de la liste...</translation>
    </message>
    <message>
        <source>The list could not be read: %1</source>
        <translation>La liste n’a pas pu être lue : %1</translation>
    </message>
    <message>
        <source>&amp;Read it again</source>
        <translation>&amp;Relire</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>no</source>
        <translation>non</translation>
    </message>
</context>
<context>
    <name>tern7::TKResultFieldsPanel</name>
    <message>
        <source>Column %1: %2, %3</source>
        <translation>Colonne %1 : %2, %3</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Colonne %1</translation>
    </message>
    <message>
        <source>Sorting of %1</source>
        <translation>Tri de %1</translation>
    </message>
    <message>
        <source>Result fields</source>
        <translation>Champs de résultat</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Ctrl and a click: formula, function, caption</source>
        <translation>Ctrl et un clic : formule, fonction, intitulé</translation>
    </message>
</context>
<context>
    <name>tern7::TKTitlesGrid</name>
    <message>
        <source>English</source>
        <translation>Anglais</translation>
    </message>
    <message>
        <source>Translated</source>
        <translation>Traduit</translation>
    </message>
</context>
<context>
    <name>tern7::TListPopup</name>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
</context>
<context>
    <name>tern7::TRowProblem</name>
    <message>
        <source>choose a field</source>
        <translation>choisissez un champ</translation>
    </message>
    <message>
        <source>choose an operator</source>
        <translation>choisissez un opérateur</translation>
    </message>
    <message>
        <source>this field is not known any more</source>
        <translation>ce champ n’est plus connu</translation>
    </message>
    <message>
        <source>this operator is not known any more</source>
        <translation>cet opérateur n’est plus connu</translation>
    </message>
    <message>
        <source>define the sub-query</source>
        <translation>définissez la sous-requête</translation>
    </message>
    <message>
        <source>enter a value</source>
        <translation>saisissez une valeur</translation>
    </message>
    <message>
        <source>“%1” can not be read as a date or time</source>
        <translation>« %1 » n’est ni une date ni une heure</translation>
    </message>
    <message>
        <source>“%1” is no list of numbers</source>
        <translation>« %1 » n’est pas une liste de nombres</translation>
    </message>
    <message>
        <source>“%1” is no number</source>
        <translation>« %1 » n’est pas un nombre</translation>
    </message>
    <message>
        <source>sub-query: %1</source>
        <translation>sous-requête : %1</translation>
    </message>
    <message>
        <source>write for example %1</source>
        <translation>écrivez par exemple %1</translation>
    </message>
    <message>
        <source>write for example %1, or always %2</source>
        <translation>écrivez par exemple %1 ou, toujours, %2</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <translation>%1 ; %2</translation>
    </message>
    <message>
        <source>left out of the SQL that was read: %1</source>
        <translation>omis du SQL lu : %1</translation>
    </message>
</context>
<context>
    <name>tern7::T_dlgRFieldsEdit</name>
    <message>
        <source>A bracket or quote has no counterpart</source>
        <translation>Une parenthèse ou un guillemet n’est pas fermé</translation>
    </message>
    <message>
        <source>This column has no expression yet</source>
        <translation>Cette colonne n’a pas encore d’expression</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>Fonction</translation>
    </message>
    <message>
        <source>Function over the rows</source>
        <translation>Fonction sur les lignes</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>A comment or semicolon can not stand in an expression</source>
        <translation>Une expression ne peut contenir ni commentaire ni point-virgule</translation>
    </message>
    <message>
        <source>There is no field in it: fields stand in braces, {Name}</source>
        <translation>L’expression ne contient aucun champ : les champs s’écrivent entre accolades, {Nom}</translation>
    </message>
    <message>
        <source>An invisible character that turns the direction of text can not stand in an expression</source>
        <translation>Un caractère invisible qui change le sens du texte ne peut pas figurer dans une expression</translation>
    </message>
    <message>
        <source>More than one field has this name: %1</source>
        <translation>Plusieurs champs portent ce nom : %1</translation>
    </message>
    <message>
        <source>Perhaps it is meant: %1</source>
        <translation>Vouliez-vous dire : %1</translation>
    </message>
</context>
<context>
    <name>tern7::T_dlgSubQuery</name>
    <message>
        <source>Choose the field that the sub-query returns.</source>
        <translation>Choisissez le champ que la sous-requête renvoie.</translation>
    </message>
</context>
<context>
    <name>tern7::T_dlgTitlesEdit</name>
    <message>
        <source>Titles editor</source>
        <translation>Éditeur d’intitulés</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>&amp;Charger...</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>&amp;Enregistrer...</translation>
    </message>
    <message>
        <source>&amp;Load From File...</source>
        <translation>&amp;Charger depuis un fichier...</translation>
    </message>
    <message>
        <source>&amp;Save To File</source>
        <translation>&amp;Enregistrer dans un fichier</translation>
    </message>
    <message>
        <source>TERN Titles (*.ttl)</source>
        <translation>Intitulés TERN (*.ttl)</translation>
    </message>
    <message>
        <source>Query files (*.qry)</source>
        <translation>Fichiers de requête (*.qry)</translation>
    </message>
    <message>
        <source>Discard the changes?</source>
        <translation>Abandonner les modifications ?</translation>
    </message>
    <message>
        <source>The file holds no titles that can be used here: %1</source>
        <translation>Le fichier ne contient aucun libellé utilisable ici : %1</translation>
    </message>
    <message>
        <source>The file is not UTF-8 and was read as Windows-1252.</source>
        <translation>Le fichier n’est pas en UTF-8 ; il a été lu comme Windows-1252.</translation>
    </message>
</context>
</TS>
