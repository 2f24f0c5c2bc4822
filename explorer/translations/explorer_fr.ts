<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>main</name>
    <message>
        <source>Questions to a database without SQL.</source>
        <translation>Des questions à une base de données sans SQL.</translation>
    </message>
    <message>
        <source>Opens a database: a SQLite file, or an address such as postgresql://user@host/name.</source>
        <translation>Ouvre une base de données : un fichier SQLite ou une adresse comme postgresql://user@host/name.</translation>
    </message>
    <message>
        <source>Loads the structure instead of importing it.</source>
        <translation>Charge la structure au lieu de l’importer.</translation>
    </message>
    <message>
        <source>Opens a saved query.</source>
        <translation>Ouvre une requête enregistrée.</translation>
    </message>
    <message>
        <source>Runs the query, saves a picture of the window and ends.</source>
        <translation>Exécute la requête, enregistre une image de la fenêtre et se termine.</translation>
    </message>
    <message>
        <source>Language of the program.</source>
        <translation>Langue du programme.</translation>
    </message>
    <message>
        <source>&quot;light&quot; or &quot;dark&quot;.</source>
        <translation>« light » (clair) ou « dark » (sombre).</translation>
    </message>
    <message>
        <source>Size of the window.</source>
        <translation>Taille de la fenêtre.</translation>
    </message>
</context>
<context>
    <name>messages</name>
    <message>
        <source>The file %1 can not be opened.</source>
        <translation>Le fichier %1 ne peut pas être ouvert.</translation>
    </message>
    <message>
        <source>The file %1 can not be written.</source>
        <translation>Le fichier %1 ne peut pas être écrit.</translation>
    </message>
    <message>
        <source>The text is damaged: section %2 has a wrong value of %1: %3</source>
        <translation>Le texte est endommagé : dans la section %2, %1 a une valeur incorrecte : %3</translation>
    </message>
    <message>
        <source>The text is damaged: section %1 is missing.</source>
        <translation>Le texte est endommagé : la section %1 manque.</translation>
    </message>
    <message>
        <source>The text is too long.</source>
        <translation>Le texte est trop long.</translation>
    </message>
    <message>
        <source>Rows are nested too deep.</source>
        <translation>Les lignes sont imbriquées trop profondément.</translation>
    </message>
    <message>
        <source>The text has the version %1; what is newer than %2 was not read.</source>
        <translation>Le texte a la version %1 ; ce qui est plus récent que %2 n’a pas été lu.</translation>
    </message>
    <message>
        <source>The text is not UTF-8; it was read as Windows-1252.</source>
        <translation>Le texte n’est pas en UTF-8 ; il a été lu comme Windows-1252.</translation>
    </message>
    <message>
        <source>The database has no table %1.</source>
        <translation>La base de données n’a pas de table %1.</translation>
    </message>
    <message>
        <source>No links of the database lead from one of the tables to the others.</source>
        <translation>Aucun lien de la base de données ne mène d’une des tables aux autres.</translation>
    </message>
    <message>
        <source>The query has no column and no condition yet.</source>
        <translation>La requête n’a encore ni colonne ni condition.</translation>
    </message>
    <message>
        <source>No database is open.</source>
        <translation>Aucune base de données n’est ouverte.</translation>
    </message>
    <message>
        <source>This can not be a value of “%1”: %2</source>
        <translation>Ceci ne peut pas être une valeur de « %1 » : %2</translation>
    </message>
    <message>
        <source>This condition is text that can not be executed safely: %1</source>
        <translation>Cette condition est un texte qui ne peut pas être exécuté sans risque : %1</translation>
    </message>
    <message>
        <source>A value holds a NUL character.</source>
        <translation>Une valeur contient un caractère NUL.</translation>
    </message>
    <message>
        <source>There is no field %1.</source>
        <translation>Il n’y a pas de champ %1.</translation>
    </message>
    <message>
        <source>A text in an expression with fields can not hold “@” and a digit: %1</source>
        <translation>Un texte dans une expression avec des champs ne peut pas contenir « @ » et un chiffre : %1</translation>
    </message>
    <message>
        <source>The statement for a list of values must give two columns.</source>
        <translation>L’instruction d’une liste de valeurs doit donner deux colonnes.</translation>
    </message>
    <message>
        <source>The database must be given as sqlite:PATH, postgresql://user@host:port/name, mysql://user@host:port/name or odbc:DSN.</source>
        <translation>La base de données doit être donnée sous la forme sqlite:PATH, postgresql://user@host:port/name, mysql://user@host:port/name ou odbc:DSN.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>Le port doit être un nombre de 1 à 65535.</translation>
    </message>
    <message>
        <source>The address of the database has an unknown or wrong option “%1”.</source>
        <translation>L’adresse de la base de données a une option inconnue ou incorrecte « %1 ».</translation>
    </message>
    <message>
        <source>The address names no database.</source>
        <translation>L’adresse ne nomme aucune base de données.</translation>
    </message>
    <message>
        <source>There is no database file %1.</source>
        <translation>Il n’y a pas de fichier de base de données %1.</translation>
    </message>
    <message>
        <source>The driver %1 of Qt SQL is not installed.</source>
        <translation>Le pilote %1 de Qt SQL n’est pas installé.</translation>
    </message>
    <message>
        <source>The database %1 can not be opened: %2</source>
        <translation>La base de données %1 ne peut pas être ouverte : %2</translation>
    </message>
    <message>
        <source>Only SELECT statements are executed.</source>
        <translation>Seules les instructions SELECT sont exécutées.</translation>
    </message>
    <message>
        <source>Only one statement is executed at a time.</source>
        <translation>Une seule instruction est exécutée à la fois.</translation>
    </message>
    <message>
        <source>A quote, comment or bracket of the statement is not closed.</source>
        <translation>Un guillemet, un commentaire ou une parenthèse de l’instruction n’est pas fermé.</translation>
    </message>
    <message>
        <source>The statement holds a NUL character.</source>
        <translation>L’instruction contient un caractère NUL.</translation>
    </message>
    <message>
        <source>The parameter %1 has no value.</source>
        <translation>Le paramètre %1 n’a pas de valeur.</translation>
    </message>
</context>
<context>
    <name>operators</name>
    <message>
        <source>is equal to</source>
        <translation>est égal à</translation>
    </message>
    <message>
        <source>is not equal to</source>
        <translation>n’est pas égal à</translation>
    </message>
    <message>
        <source>is less than</source>
        <translation>est inférieur à</translation>
    </message>
    <message>
        <source>is less than or equal to</source>
        <translation>est inférieur ou égal à</translation>
    </message>
    <message>
        <source>is greater than</source>
        <translation>est supérieur à</translation>
    </message>
    <message>
        <source>is greater than or equal to</source>
        <translation>est supérieur ou égal à</translation>
    </message>
    <message>
        <source>is null</source>
        <translation>est vide</translation>
    </message>
    <message>
        <source>is in list</source>
        <translation>est dans la liste</translation>
    </message>
    <message>
        <source>starts with</source>
        <translation>commence par</translation>
    </message>
    <message>
        <source>does not start with</source>
        <translation>ne commence pas par</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>contient</translation>
    </message>
    <message>
        <source>does not contain</source>
        <translation>ne contient pas</translation>
    </message>
    <message>
        <source>is between</source>
        <translation>est entre</translation>
    </message>
    <message>
        <source>and</source>
        <translation>et</translation>
    </message>
</context>
<context>
    <name>tern7::TConnectionDialog</name>
    <message>
        <source>Open database</source>
        <translation>Ouvrir une base de données</translation>
    </message>
    <message>
        <source>SQLite file</source>
        <translation>Fichier SQLite</translation>
    </message>
    <message>
        <source>PostgreSQL server</source>
        <translation>Serveur PostgreSQL</translation>
    </message>
    <message>
        <source>MariaDB or MySQL server</source>
        <translation>Serveur MariaDB ou MySQL</translation>
    </message>
    <message>
        <source>ODBC data source</source>
        <translation>Source de données ODBC</translation>
    </message>
    <message>
        <source>&amp;Database:</source>
        <translation>Base de &amp;données :</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Parcourir...</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translation>&amp;Fichier :</translation>
    </message>
    <message>
        <source>not kept</source>
        <translation>non conservé</translation>
    </message>
    <message>
        <source>&amp;Server:</source>
        <translation>&amp;Serveur :</translation>
    </message>
    <message>
        <source>P&amp;ort:</source>
        <translation>P&amp;ort :</translation>
    </message>
    <message>
        <source>&amp;Name of the database:</source>
        <translation>&amp;Nom de la base de données :</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Utilisateur :</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Mot de passe :</translation>
    </message>
    <message>
        <source>Name of a data source, or a connection string</source>
        <translation>Nom d’une source de données ou chaîne de connexion</translation>
    </message>
    <message>
        <source>&amp;Source:</source>
        <translation>&amp;Source :</translation>
    </message>
    <message>
        <source>SQLite databases (*.db *.sqlite *.sqlite3 *.db3);;All files (*)</source>
        <translation>Bases de données SQLite (*.db *.sqlite *.sqlite3 *.db3);;Tous les fichiers (*)</translation>
    </message>
</context>
<context>
    <name>tern7::TKQueryEditor</name>
    <message>
        <source>Equal rows</source>
        <translation>Lignes identiques</translation>
    </message>
    <message>
        <source>Sort</source>
        <translation>Trier</translation>
    </message>
    <message>
        <source>Add column</source>
        <translation>Ajouter une colonne</translation>
    </message>
    <message>
        <source>Read SQL</source>
        <translation>Lire du SQL</translation>
    </message>
    <message>
        <source>Delete column</source>
        <translation>Supprimer la colonne</translation>
    </message>
</context>
<context>
    <name>tern7::TMainWindow</name>
    <message>
        <source>&amp;Result</source>
        <translation>Ré&amp;sultat</translation>
    </message>
    <message>
        <source>C&amp;olumns</source>
        <translation>C&amp;olonnes</translation>
    </message>
    <message>
        <source>Con&amp;ditions</source>
        <translation>&amp;Conditions</translation>
    </message>
    <message>
        <source>New query</source>
        <translation>Nouvelle requête</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>Open &amp;database...</source>
        <translation>Ouvrir une base de &amp;données...</translation>
    </message>
    <message>
        <source>Recent d&amp;atabases</source>
        <translation>B&amp;ases de données récentes</translation>
    </message>
    <message>
        <source>Sa&amp;mple database</source>
        <translation>Base de données d’exe&amp;mple</translation>
    </message>
    <message>
        <source>&amp;New query</source>
        <translation>&amp;Nouvelle requête</translation>
    </message>
    <message>
        <source>&amp;Open query...</source>
        <translation>&amp;Ouvrir une requête...</translation>
    </message>
    <message>
        <source>&amp;Recent queries</source>
        <translation>&amp;Requêtes récentes</translation>
    </message>
    <message>
        <source>&amp;Save query</source>
        <translation>&amp;Enregistrer la requête</translation>
    </message>
    <message>
        <source>Save query &amp;as...</source>
        <translation>Enregistrer la requête &amp;sous...</translation>
    </message>
    <message>
        <source>Read S&amp;QL...</source>
        <translation>Lire du S&amp;QL...</translation>
    </message>
    <message>
        <source>Save &amp;rows as CSV...</source>
        <translation>Enregistrer les &amp;lignes en CSV...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Query</source>
        <translation>&amp;Requête</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Exécuter</translation>
    </message>
    <message>
        <source>Run the query (F5)</source>
        <translation>Exécuter la requête (F5)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Run after every c&amp;hange</source>
        <translation>Exécuter à c&amp;haque modification</translation>
    </message>
    <message>
        <source>Add c&amp;olumn...</source>
        <translation>Ajouter une c&amp;olonne...</translation>
    </message>
    <message>
        <source>&amp;Equal rows only once</source>
        <translation>Lignes &amp;identiques une seule fois</translation>
    </message>
    <message>
        <source>E&amp;dit columns...</source>
        <translation>Mo&amp;difier les colonnes...</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>Rows at &amp;most:</source>
        <translation>Lignes au &amp;plus :</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
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
        <source>&amp;Copy rows</source>
        <translation>&amp;Copier les lignes</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>&amp;Annuler : %1</translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <translation>&amp;Rétablir : %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Queries (*.qry);;All files (*)</source>
        <translation>Requêtes (*.qry);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Sample database</source>
        <translation>Base de données d’exemple</translation>
    </message>
    <message>
        <source>Open database</source>
        <translation>Ouvrir une base de données</translation>
    </message>
    <message>
        <source>Open query</source>
        <translation>Ouvrir une requête</translation>
    </message>
    <message>
        <source>Save query</source>
        <translation>Enregistrer la requête</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Modifications non enregistrées</translation>
    </message>
    <message>
        <source>The query was changed. Save the changes?</source>
        <translation>La requête a été modifiée. Enregistrer les modifications ?</translation>
    </message>
    <message>
        <source>Read SQL</source>
        <translation>Lire du SQL</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) of this query refer to fields that the database does not have. They are marked and take no part.</source>
        <translation>
            <numerusform>%n ligne de cette requête se réfère à des champs que la base de données n’a pas. Elle est marquée et ignorée.</numerusform>
            <numerusform>%n lignes de cette requête se réfèrent à des champs que la base de données n’a pas. Elles sont marquées et ignorées.</numerusform>
        </translation>
    </message>
    <message>
        <source>Save rows</source>
        <translation>Enregistrer les lignes</translation>
    </message>
    <message>
        <source>Comma separated values (*.csv)</source>
        <translation>Valeurs séparées par des virgules (*.csv)</translation>
    </message>
    <message>
        <source>Add a column to begin.</source>
        <translation>Ajoutez une colonne pour commencer.</translation>
    </message>
    <message>
        <source>One row for all records.</source>
        <translation>Une ligne pour tous les enregistrements.</translation>
    </message>
    <message>
        <source>One row for each: %1.</source>
        <translation>Une ligne pour chaque : %1.</translation>
    </message>
    <message>
        <source>Add a column first: it is what the result will show.</source>
        <translation>Ajoutez d’abord une colonne : c’est ce que le résultat affichera.</translation>
    </message>
    <message>
        <source>Add column</source>
        <translation>Ajouter une colonne</translation>
    </message>
    <message>
        <source>Show the row</source>
        <translation>Afficher la ligne</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>« %1 » : %2</translation>
    </message>
    <message numerus="yes">
        <source>%n condition(s) are not finished and take no part (%1).</source>
        <translation>
            <numerusform>%n condition n’est pas complète et est ignorée (%1).</numerusform>
            <numerusform>%n conditions ne sont pas complètes et sont ignorées (%1).</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>Show &amp;SQL</source>
        <translation>Afficher le &amp;SQL</translation>
    </message>
    <message>
        <source>And/or &amp;words instead of brackets</source>
        <translation>&amp;Mots et/ou au lieu de parenthèses</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Langue</translation>
    </message>
    <message>
        <source>&amp;Captions</source>
        <translation>&amp;Intitulés</translation>
    </message>
    <message>
        <source>Of the con&amp;ditions...</source>
        <translation>Des con&amp;ditions...</translation>
    </message>
    <message>
        <source>Of the c&amp;olumns...</source>
        <translation>Des c&amp;olonnes...</translation>
    </message>
    <message>
        <source>As &amp;delivered</source>
        <translation>Ceux d’o&amp;rigine</translation>
    </message>
    <message>
        <source>L&amp;ook</source>
        <translation>A&amp;pparence</translation>
    </message>
    <message>
        <source>As the s&amp;ystem</source>
        <translation>Comme le s&amp;ystème</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Clair</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Sombre</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>Zoom a&amp;vant</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>Zoom a&amp;rrière</translation>
    </message>
    <message>
        <source>&amp;Normal size</source>
        <translation>Taille &amp;normale</translation>
    </message>
    <message>
        <source>Waiting for the database...</source>
        <translation>En attente de la base de données...</translation>
    </message>
    <message>
        <source>Reading table %1 of %2...</source>
        <translation>Lecture de la table %1 sur %2...</translation>
    </message>
    <message>
        <source>Captions, formulas, sums and counts (Ctrl+Shift+K)</source>
        <translation>Intitulés, formules, sommes et nombres (Ctrl+Maj+K)</translation>
    </message>
    <message>
        <source>Choose a field that the result shows (Ctrl+K)</source>
        <translation>Choisir un champ que le résultat affiche (Ctrl+K)</translation>
    </message>
    <message>
        <source>Start from &amp;table...</source>
        <translation>&amp;Table de départ...</translation>
    </message>
    <message>
        <source>Tables: %1.</source>
        <translation>Tables : %1.</translation>
    </message>
    <message>
        <source>Start from another table...</source>
        <translation>Partir d’une autre table...</translation>
    </message>
    <message>
        <source>Chosen by the columns</source>
        <translation>Selon les colonnes</translation>
    </message>
    <message>
        <source>&amp;Join another way...</source>
        <translation>&amp;Joindre autrement...</translation>
    </message>
    <message>
        <source>%1 and %2 have only %3 in common.</source>
        <translation>%1 et %2 n&apos;ont que %3 en commun.</translation>
    </message>
    <message>
        <source>Join another way...</source>
        <translation>Joindre autrement...</translation>
    </message>
    <message>
        <source>The query %1 could not be opened: %2</source>
        <translation>La requête %1 n’a pas pu être ouverte : %2</translation>
    </message>
    <message>
        <source>The query could not be saved as %1: %2</source>
        <translation>La requête n’a pas pu être enregistrée sous %1 : %2</translation>
    </message>
    <message>
        <source>The file %1 could not be read: %2</source>
        <translation>Le fichier %1 n’a pas pu être lu : %2</translation>
    </message>
    <message>
        <source>The rows could not be saved as %1: %2</source>
        <translation>Les lignes n’ont pas pu être enregistrées sous %1 : %2</translation>
    </message>
    <message>
        <source>The string that begins at line %1, column %2 is not closed.</source>
        <translation>La chaîne qui commence à la ligne %1, colonne %2 n’est pas fermée.</translation>
    </message>
    <message>
        <source>At line %1, column %2 a bracket is missing, or there is one too many.</source>
        <translation>À la ligne %1, colonne %2, il manque une parenthèse, ou il y en a une de trop.</translation>
    </message>
    <message>
        <source>The statement ends too early, at line %1, column %2.</source>
        <translation>L’instruction se termine trop tôt, à la ligne %1, colonne %2.</translation>
    </message>
    <message>
        <source>The text is no SELECT statement that can be read: from line %1, column %2 on it does not go on as one.</source>
        <translation>Le texte n’est pas une instruction SELECT lisible : à partir de la ligne %1, colonne %2, il ne continue pas comme telle.</translation>
    </message>
    <message>
        <source>S&amp;tructure</source>
        <translation>S&amp;tructure</translation>
    </message>
    <message>
        <source>&amp;Open structure...</source>
        <translation>&amp;Ouvrir une structure...</translation>
    </message>
    <message>
        <source>&amp;Save structure as...</source>
        <translation>&amp;Enregistrer la structure sous...</translation>
    </message>
    <message>
        <source>&amp;Import it anew</source>
        <translation>&amp;Importer à nouveau</translation>
    </message>
    <message>
        <source>Structures (*.str);;All files (*)</source>
        <translation>Structures (*.str);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Open structure</source>
        <translation>Ouvrir une structure</translation>
    </message>
    <message>
        <source>The structure %1 could not be opened: %2</source>
        <translation>La structure %1 n&apos;a pas pu être ouverte : %2</translation>
    </message>
    <message>
        <source>Save structure</source>
        <translation>Enregistrer la structure</translation>
    </message>
    <message>
        <source>The structure could not be saved as %1: %2</source>
        <translation>La structure n&apos;a pas pu être enregistrée sous %1 : %2</translation>
    </message>
    <message numerus="yes">
        <source>%n column(s) of this query refer to fields that the database does not have. Choose others, or remove them.</source>
        <translation>
            <numerusform>%n colonne de cette requête se réfère à un champ que la base de données n’a pas. Choisissez-en un autre ou retirez-la.</numerusform>
            <numerusform>%n colonnes de cette requête se réfèrent à des champs que la base de données n’a pas. Choisissez-en d’autres ou retirez-les.</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove them</source>
        <translation>Les retirer</translation>
    </message>
    <message>
        <source>The query asks for the value of %1.</source>
        <translation>La requête demande la valeur de %1.</translation>
    </message>
    <message>
        <source>SQ&amp;L</source>
        <translation>SQ&amp;L</translation>
    </message>
    <message>
        <source>Add co&amp;ndition...</source>
        <translation>Ajouter une co&amp;ndition...</translation>
    </message>
    <message>
        <source>To the next label</source>
        <translation>Au mot suivant</translation>
    </message>
    <message>
        <source>To the row above or below</source>
        <translation>À la ligne du dessus ou du dessous</translation>
    </message>
    <message>
        <source>Open the label: its menu, list or editor</source>
        <translation>Ouvrir le mot : son menu, sa liste ou son champ</translation>
    </message>
    <message>
        <source>Close it, and leave all as it was</source>
        <translation>Le fermer et tout laisser comme avant</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;ide</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>&amp;Guide</translation>
    </message>
    <message>
        <source>Guide</source>
        <translation>Guide</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;Touches</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>&amp;About tern7-explorer</source>
        <translation>À &amp;propos de tern7-explorer</translation>
    </message>
    <message>
        <source>%1: choose what the result shows; type to search the menu. A click on the blue words of a column chooses another field, or sorts.</source>
        <translation>%1 : choisissez ce que montre le résultat ; tapez pour chercher dans le menu. Un clic sur les mots bleus d’une colonne choisit un autre champ, ou trie.</translation>
    </message>
    <message>
        <source>%1: choose a field, then click on the blue words to change what is compared. Brackets say whether all, any or none of their conditions apply.</source>
        <translation>%1 : choisissez un champ, puis cliquez sur les mots bleus pour changer ce qui est comparé. Les parenthèses disent si toutes leurs conditions s’appliquent, l’une d’elles ou aucune.</translation>
    </message>
    <message>
        <source>%1: captions, formulas, sums and counts. With a sum there is one row for each combination of the other columns.</source>
        <translation>%1 : titres, formules, sommes et nombres. Avec une somme, il y a une ligne pour chaque combinaison des autres colonnes.</translation>
    </message>
    <message>
        <source>%1: the tables that the query joins stand below the columns; where several ways lead from one to the other, choose the one that is meant.</source>
        <translation>%1 : les tables que la requête joint figurent sous les colonnes ; si plusieurs chemins mènent de l’une à l’autre, choisissez le bon.</translation>
    </message>
    <message>
        <source>%1: the rows appear below. A click on a header sorts by that column.</source>
        <translation>%1 : les lignes apparaissent en bas. Un clic sur un en-tête trie selon cette colonne.</translation>
    </message>
    <message>
        <source>%1 keeps the query, %2 its rows for other programs.</source>
        <translation>%1 conserve la requête, %2 ses lignes pour d’autres programmes.</translation>
    </message>
    <message>
        <source>%1: every step can be taken back.</source>
        <translation>%1 : chaque étape peut être annulée.</translation>
    </message>
    <message>
        <source>A query shows columns of a database, for the records that its conditions let through.</source>
        <translation>Une requête montre des colonnes d’une base de données, pour les enregistrements que ses conditions laissent passer.</translation>
    </message>
    <message>
        <source>%1 leads to other databases; a file of SQLite can be dropped on the window. Databases are only read, never changed.</source>
        <translation>%1 mène à d’autres bases de données ; un fichier SQLite peut être déposé sur la fenêtre. Les bases de données sont seulement lues, jamais modifiées.</translation>
    </message>
    <message>
        <source>On a condition or column</source>
        <translation>Sur une condition ou une colonne</translation>
    </message>
    <message>
        <source>Between the blue words</source>
        <translation>Entre les mots bleus</translation>
    </message>
    <message>
        <source>With Qt %1.</source>
        <translation>Avec Qt %1.</translation>
    </message>
    <message>
        <source>Licence: MIT. Copyright 2026 the tern7 authors.</source>
        <translation>Licence : MIT. Copyright 2026 les auteurs de tern7.</translation>
    </message>
    <message>
        <source>About tern7-explorer</source>
        <translation>À propos de tern7-explorer</translation>
    </message>
    <message>
        <source>The joins start from %1 now, and not from %2: the rows may be others.</source>
        <translation>Les jointures partent maintenant de %1 et non de %2 : les lignes peuvent être autres.</translation>
    </message>
    <message>
        <source>Start from %1</source>
        <translation>Partir de %1</translation>
    </message>
</context>
<context>
    <name>tern7::TMessageBar</name>
    <message>
        <source>Close the message</source>
        <translation>Fermer le message</translation>
    </message>
</context>
<context>
    <name>tern7::TParameterDialog</name>
    <message>
        <source>Values of the query</source>
        <translation>Valeurs de la requête</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Exécuter</translation>
    </message>
    <message>
        <source>A value is missing: %1</source>
        <translation>Il manque une valeur : %1</translation>
    </message>
</context>
<context>
    <name>tern7::TQueryRunner</name>
    <message>
        <source>No database is open</source>
        <translation>Aucune base de données n’est ouverte</translation>
    </message>
</context>
<context>
    <name>tern7::TReadSQLDialog</name>
    <message>
        <source>Read SQL</source>
        <translation>Lire du SQL</translation>
    </message>
    <message>
        <source>SELECT statement</source>
        <translation>Instruction SELECT</translation>
    </message>
    <message>
        <source>A &amp;SELECT statement over the tables of this database takes the place of the query:</source>
        <translation>Une instruction &amp;SELECT sur les tables de cette base de données remplace la requête :</translation>
    </message>
    <message>
        <source>&amp;Read</source>
        <translation>&amp;Lire</translation>
    </message>
</context>
<context>
    <name>tern7::TReportDialog</name>
    <message>
        <source>Understood</source>
        <translation>Compris</translation>
    </message>
    <message>
        <source>Kept as text</source>
        <translation>Gardé comme texte</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Omis</translation>
    </message>
    <message>
        <source>alias</source>
        <translation>alias</translation>
    </message>
    <message>
        <source>column</source>
        <translation>colonne</translation>
    </message>
    <message>
        <source>condition</source>
        <translation>condition</translation>
    </message>
    <message>
        <source>derived table</source>
        <translation>table dérivée</translation>
    </message>
    <message>
        <source>grouping</source>
        <translation>regroupement</translation>
    </message>
    <message>
        <source>hint</source>
        <translation>indication</translation>
    </message>
    <message>
        <source>join</source>
        <translation>jointure</translation>
    </message>
    <message>
        <source>parameter</source>
        <translation>paramètre</translation>
    </message>
    <message>
        <source>rest</source>
        <translation>reste</translation>
    </message>
    <message>
        <source>sorting</source>
        <translation>tri</translation>
    </message>
    <message>
        <source>statement</source>
        <translation>instruction</translation>
    </message>
    <message>
        <source>table</source>
        <translation>table</translation>
    </message>
    <message>
        <source>a query can not say it</source>
        <translation>une requête ne peut pas l’exprimer</translation>
    </message>
    <message>
        <source>another column has this alias</source>
        <translation>une autre colonne a cet alias</translation>
    </message>
    <message>
        <source>another parameter has this name</source>
        <translation>un autre paramètre porte ce nom</translation>
    </message>
    <message>
        <source>it is no column</source>
        <translation>ce n’est pas une colonne</translation>
    </message>
    <message>
        <source>it names what the structure does not have</source>
        <translation>il nomme ce que la structure n’a pas</translation>
    </message>
    <message>
        <source>no column and no condition uses it</source>
        <translation>aucune colonne ni condition ne l’utilise</translation>
    </message>
    <message>
        <source>no field or operator of the structure says it</source>
        <translation>aucun champ ni opérateur de la structure ne l’exprime</translation>
    </message>
    <message>
        <source>no link of the structure</source>
        <translation>aucun lien de la structure</translation>
    </message>
    <message>
        <source>the columns ask for other groups</source>
        <translation>les colonnes demandent d’autres groupes</translation>
    </message>
    <message>
        <source>the query joins the tables in another order</source>
        <translation>la requête joint les tables dans un autre ordre</translation>
    </message>
    <message>
        <source>the structure has no such table</source>
        <translation>la structure n’a pas cette table</translation>
    </message>
    <message>
        <source>the structure joins it in another way</source>
        <translation>la structure le joint autrement</translation>
    </message>
    <message>
        <source>the structure joins these tables in another way</source>
        <translation>la structure joint ces tables autrement</translation>
    </message>
    <message>
        <source>What was read</source>
        <translation>Ce qui a été lu</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>Partie</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Raison</translation>
    </message>
    <message>
        <source>Parts of the statement</source>
        <translation>Parties de l’instruction</translation>
    </message>
    <message numerus="yes">
        <source>%n part(s) of the statement were left out: the query does not say the same.</source>
        <translation>
            <numerusform>%n partie de l’instruction a été omise : la requête ne dit pas la même chose.</numerusform>
            <numerusform>%n parties de l’instruction ont été omises : la requête ne dit pas la même chose.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n part(s) were kept as text.</source>
        <translation>
            <numerusform>%n partie a été gardée comme texte.</numerusform>
            <numerusform>%n parties ont été gardées comme texte.</numerusform>
        </translation>
    </message>
    <message>
        <source>Everything was understood.</source>
        <translation>Tout a été compris.</translation>
    </message>
    <message>
        <source>&amp;Keep the query</source>
        <translation>&amp;Garder la requête</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>text</source>
        <translation>texte</translation>
    </message>
    <message>
        <source>the string is not closed</source>
        <translation>la chaîne n’est pas fermée</translation>
    </message>
    <message>
        <source>Line, column</source>
        <translation>Ligne, colonne</translation>
    </message>
    <message>
        <source>the parser does not read it</source>
        <translation>l’analyseur ne le lit pas</translation>
    </message>
    <message>
        <source>no field has this expression</source>
        <translation>aucun champ n’a cette expression</translation>
    </message>
    <message>
        <source>no operator has this form</source>
        <translation>aucun opérateur n’a cette forme</translation>
    </message>
    <message>
        <source>a condition keeps this table, which nothing else uses</source>
        <translation>une condition garde cette table, que rien d’autre n’utilise</translation>
    </message>
    <message>
        <source>a condition keeps this join, which the structure makes by way of other tables</source>
        <translation>une condition garde cette jointure, que la structure fait par d’autres tables</translation>
    </message>
    <message>
        <source>only the syntax sql1 leaves out the structure&apos;s outer join with it</source>
        <translation>seule la syntaxe sql1 omet la jointure externe que la structure a avec elle</translation>
    </message>
    <message>
        <source>a table of the sub-select has the name that the structure gives another</source>
        <translation>une table de la sous-requête porte le nom que la structure donne à une autre</translation>
    </message>
    <message>
        <source>several tables have a column of this name</source>
        <translation>plusieurs tables ont une colonne de ce nom</translation>
    </message>
    <message>
        <source>the query needs a further table</source>
        <translation>la requête a besoin d’une table de plus</translation>
    </message>
    <message>
        <source>the columns that the tables are joined by would come twice</source>
        <translation>les colonnes par lesquelles les tables sont jointes viendraient deux fois</translation>
    </message>
</context>
<context>
    <name>tern7::TResultModel</name>
    <message>
        <source>No value</source>
        <translation>Aucune valeur</translation>
    </message>
</context>
<context>
    <name>tern7::TResultView</name>
    <message>
        <source>Result rows</source>
        <translation>Lignes de résultat</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s)</source>
        <translation>
            <numerusform>%n ligne</numerusform>
            <numerusform>%n lignes</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 s</source>
        <translation>%1, %2 s</translation>
    </message>
    <message>
        <source>the first %1; there are more</source>
        <translation>%1 (il y en a d’autres)</translation>
    </message>
    <message>
        <source>The database refused the query</source>
        <translation>La base de données a refusé la requête</translation>
    </message>
    <message>
        <source>Cancelled after %1 s</source>
        <translation>Annulé après %1 s</translation>
    </message>
    <message>
        <source>Running...</source>
        <translation>En cours...</translation>
    </message>
    <message>
        <source>Running... %1, %2 s</source>
        <translation>En cours... %1, %2 s</translation>
    </message>
    <message>
        <source>Not run yet</source>
        <translation>Pas encore exécutée</translation>
    </message>
    <message>
        <source>Rows of the query before the last changes · %1</source>
        <translation>Lignes de la requête avant les derniers changements · %1</translation>
    </message>
</context>
</TS>
