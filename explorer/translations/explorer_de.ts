<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>main</name>
    <message>
        <source>Questions to a database without SQL.</source>
        <translation>Fragen an eine Datenbank ohne SQL.</translation>
    </message>
    <message>
        <source>Opens a database: a SQLite file, or an address such as postgresql://user@host/name.</source>
        <translation>Öffnet eine Datenbank: eine SQLite-Datei oder eine Adresse wie postgresql://user@host/name.</translation>
    </message>
    <message>
        <source>Loads the structure instead of importing it.</source>
        <translation>Lädt die Struktur, statt sie einzulesen.</translation>
    </message>
    <message>
        <source>Opens a saved query.</source>
        <translation>Öffnet eine gespeicherte Abfrage.</translation>
    </message>
    <message>
        <source>Runs the query, saves a picture of the window and ends.</source>
        <translation>Führt die Abfrage aus, speichert ein Bild des Fensters und endet.</translation>
    </message>
    <message>
        <source>Language of the program.</source>
        <translation>Sprache des Programms.</translation>
    </message>
    <message>
        <source>&quot;light&quot; or &quot;dark&quot;.</source>
        <translation>„light“ (hell) oder „dark“ (dunkel).</translation>
    </message>
    <message>
        <source>Size of the window.</source>
        <translation>Größe des Fensters.</translation>
    </message>
</context>
<context>
    <name>messages</name>
    <message>
        <source>The file %1 can not be opened.</source>
        <translation>Die Datei %1 kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The file %1 can not be written.</source>
        <translation>Die Datei %1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The text is damaged: section %2 has a wrong value of %1: %3</source>
        <translation>Der Text ist beschädigt: Im Abschnitt %2 hat %1 einen falschen Wert: %3</translation>
    </message>
    <message>
        <source>The text is damaged: section %1 is missing.</source>
        <translation>Der Text ist beschädigt: Der Abschnitt %1 fehlt.</translation>
    </message>
    <message>
        <source>The text is too long.</source>
        <translation>Der Text ist zu lang.</translation>
    </message>
    <message>
        <source>Rows are nested too deep.</source>
        <translation>Die Zeilen sind zu tief verschachtelt.</translation>
    </message>
    <message>
        <source>The text has the version %1; what is newer than %2 was not read.</source>
        <translation>Der Text hat die Version %1; was neuer als %2 ist, wurde nicht gelesen.</translation>
    </message>
    <message>
        <source>The text is not UTF-8; it was read as Windows-1252.</source>
        <translation>Der Text ist kein UTF-8; er wurde als Windows-1252 gelesen.</translation>
    </message>
    <message>
        <source>The database has no table %1.</source>
        <translation>Die Datenbank hat keine Tabelle %1.</translation>
    </message>
    <message>
        <source>No links of the database lead from one of the tables to the others.</source>
        <translation>Von einer der Tabellen führen keine Verknüpfungen der Datenbank zu den anderen.</translation>
    </message>
    <message>
        <source>The query has no column and no condition yet.</source>
        <translation>Die Abfrage hat noch keine Spalte und keine Bedingung.</translation>
    </message>
    <message>
        <source>No database is open.</source>
        <translation>Es ist keine Datenbank geöffnet.</translation>
    </message>
    <message>
        <source>This can not be a value of “%1”: %2</source>
        <translation>Das kann kein Wert von „%1“ sein: %2</translation>
    </message>
    <message>
        <source>This condition is text that can not be executed safely: %1</source>
        <translation>Diese Bedingung ist Text, der nicht sicher ausgeführt werden kann: %1</translation>
    </message>
    <message>
        <source>A value holds a NUL character.</source>
        <translation>Ein Wert enthält ein NUL-Zeichen.</translation>
    </message>
    <message>
        <source>There is no field %1.</source>
        <translation>Es gibt kein Feld %1.</translation>
    </message>
    <message>
        <source>A text in an expression with fields can not hold “@” and a digit: %1</source>
        <translation>Ein Text in einem Ausdruck mit Feldern darf nicht „@“ und eine Ziffer enthalten: %1</translation>
    </message>
    <message>
        <source>The statement for a list of values must give two columns.</source>
        <translation>Die Anweisung für eine Werteliste muss zwei Spalten liefern.</translation>
    </message>
    <message>
        <source>The database must be given as sqlite:PATH, postgresql://user@host:port/name, mysql://user@host:port/name or odbc:DSN.</source>
        <translation>Die Datenbank muss als sqlite:PATH, postgresql://user@host:port/name, mysql://user@host:port/name oder odbc:DSN angegeben werden.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>Der Port muss eine Zahl von 1 bis 65535 sein.</translation>
    </message>
    <message>
        <source>The address of the database has an unknown or wrong option “%1”.</source>
        <translation>Die Adresse der Datenbank hat eine unbekannte oder falsche Option „%1“.</translation>
    </message>
    <message>
        <source>The address names no database.</source>
        <translation>Die Adresse nennt keine Datenbank.</translation>
    </message>
    <message>
        <source>There is no database file %1.</source>
        <translation>Es gibt keine Datenbankdatei %1.</translation>
    </message>
    <message>
        <source>The driver %1 of Qt SQL is not installed.</source>
        <translation>Der Treiber %1 von Qt SQL ist nicht installiert.</translation>
    </message>
    <message>
        <source>The database %1 can not be opened: %2</source>
        <translation>Die Datenbank %1 kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>Only SELECT statements are executed.</source>
        <translation>Es werden nur SELECT-Anweisungen ausgeführt.</translation>
    </message>
    <message>
        <source>Only one statement is executed at a time.</source>
        <translation>Es wird nur eine Anweisung auf einmal ausgeführt.</translation>
    </message>
    <message>
        <source>A quote, comment or bracket of the statement is not closed.</source>
        <translation>Ein Anführungszeichen, ein Kommentar oder eine Klammer der Anweisung ist nicht geschlossen.</translation>
    </message>
    <message>
        <source>The statement holds a NUL character.</source>
        <translation>Die Anweisung enthält ein NUL-Zeichen.</translation>
    </message>
    <message>
        <source>The parameter %1 has no value.</source>
        <translation>Der Parameter %1 hat keinen Wert.</translation>
    </message>
</context>
<context>
    <name>operators</name>
    <message>
        <source>is equal to</source>
        <translation>ist gleich</translation>
    </message>
    <message>
        <source>is not equal to</source>
        <translation>ist nicht gleich</translation>
    </message>
    <message>
        <source>is less than</source>
        <translation>ist kleiner als</translation>
    </message>
    <message>
        <source>is less than or equal to</source>
        <translation>ist kleiner oder gleich</translation>
    </message>
    <message>
        <source>is greater than</source>
        <translation>ist größer als</translation>
    </message>
    <message>
        <source>is greater than or equal to</source>
        <translation>ist größer oder gleich</translation>
    </message>
    <message>
        <source>is null</source>
        <translation>ist leer</translation>
    </message>
    <message>
        <source>is in list</source>
        <translation>ist in der Liste</translation>
    </message>
    <message>
        <source>starts with</source>
        <translation>beginnt mit</translation>
    </message>
    <message>
        <source>does not start with</source>
        <translation>beginnt nicht mit</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>enthält</translation>
    </message>
    <message>
        <source>does not contain</source>
        <translation>enthält nicht</translation>
    </message>
    <message>
        <source>is between</source>
        <translation>liegt zwischen</translation>
    </message>
    <message>
        <source>and</source>
        <translation>und</translation>
    </message>
</context>
<context>
    <name>tern7::TConnectionDialog</name>
    <message>
        <source>Open database</source>
        <translation>Datenbank öffnen</translation>
    </message>
    <message>
        <source>SQLite file</source>
        <translation>SQLite-Datei</translation>
    </message>
    <message>
        <source>PostgreSQL server</source>
        <translation>PostgreSQL-Server</translation>
    </message>
    <message>
        <source>MariaDB or MySQL server</source>
        <translation>MariaDB- oder MySQL-Server</translation>
    </message>
    <message>
        <source>ODBC data source</source>
        <translation>ODBC-Datenquelle</translation>
    </message>
    <message>
        <source>&amp;Database:</source>
        <translation>&amp;Datenbank:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>D&amp;urchsuchen ...</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translation>Da&amp;tei:</translation>
    </message>
    <message>
        <source>not kept</source>
        <translation>wird nicht gespeichert</translation>
    </message>
    <message>
        <source>&amp;Server:</source>
        <translation>&amp;Server:</translation>
    </message>
    <message>
        <source>P&amp;ort:</source>
        <translation>P&amp;ort:</translation>
    </message>
    <message>
        <source>&amp;Name of the database:</source>
        <translation>&amp;Name der Datenbank:</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Benutzer:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Kennwort:</translation>
    </message>
    <message>
        <source>Name of a data source, or a connection string</source>
        <translation>Name einer Datenquelle oder Verbindungszeichenfolge</translation>
    </message>
    <message>
        <source>&amp;Source:</source>
        <translation>&amp;Quelle:</translation>
    </message>
    <message>
        <source>SQLite databases (*.db *.sqlite *.sqlite3 *.db3);;All files (*)</source>
        <translation>SQLite-Datenbanken (*.db *.sqlite *.sqlite3 *.db3);;Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>tern7::TKQueryEditor</name>
    <message>
        <source>Equal rows</source>
        <translation>Gleiche Zeilen</translation>
    </message>
    <message>
        <source>Sort</source>
        <translation>Sortieren</translation>
    </message>
    <message>
        <source>Add column</source>
        <translation>Spalte hinzufügen</translation>
    </message>
    <message>
        <source>Read SQL</source>
        <translation>SQL lesen</translation>
    </message>
    <message>
        <source>Delete column</source>
        <translation>Spalte löschen</translation>
    </message>
</context>
<context>
    <name>tern7::TMainWindow</name>
    <message>
        <source>&amp;Result</source>
        <translation>Er&amp;gebnis</translation>
    </message>
    <message>
        <source>C&amp;olumns</source>
        <translation>S&amp;palten</translation>
    </message>
    <message>
        <source>Con&amp;ditions</source>
        <translation>Bed&amp;ingungen</translation>
    </message>
    <message>
        <source>New query</source>
        <translation>Neue Abfrage</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Open &amp;database...</source>
        <translation>&amp;Datenbank öffnen ...</translation>
    </message>
    <message>
        <source>Recent d&amp;atabases</source>
        <translation>Zuletzt geöffnete Da&amp;tenbanken</translation>
    </message>
    <message>
        <source>Sa&amp;mple database</source>
        <translation>Beispieldatenban&amp;k</translation>
    </message>
    <message>
        <source>&amp;New query</source>
        <translation>&amp;Neue Abfrage</translation>
    </message>
    <message>
        <source>&amp;Open query...</source>
        <translation>Abfrage &amp;öffnen ...</translation>
    </message>
    <message>
        <source>&amp;Recent queries</source>
        <translation>&amp;Zuletzt geöffnete Abfragen</translation>
    </message>
    <message>
        <source>&amp;Save query</source>
        <translation>Abfrage &amp;speichern</translation>
    </message>
    <message>
        <source>Save query &amp;as...</source>
        <translation>Abfrage speichern &amp;unter ...</translation>
    </message>
    <message>
        <source>Read S&amp;QL...</source>
        <translation>S&amp;QL lesen ...</translation>
    </message>
    <message>
        <source>Save &amp;rows as CSV...</source>
        <translation>&amp;Zeilen als CSV speichern ...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Query</source>
        <translation>Ab&amp;frage</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Ausführen</translation>
    </message>
    <message>
        <source>Run the query (F5)</source>
        <translation>Abfrage ausführen (F5)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;bbrechen</translation>
    </message>
    <message>
        <source>Run after every c&amp;hange</source>
        <translation>Nach jeder Ä&amp;nderung ausführen</translation>
    </message>
    <message>
        <source>Add c&amp;olumn...</source>
        <translation>S&amp;palte hinzufügen ...</translation>
    </message>
    <message>
        <source>&amp;Equal rows only once</source>
        <translation>&amp;Gleiche Zeilen nur einmal</translation>
    </message>
    <message>
        <source>E&amp;dit columns...</source>
        <translation>Spalten bea&amp;rbeiten ...</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Rows at &amp;most:</source>
        <translation>Höchstens &amp;Zeilen:</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Copy rows</source>
        <translation>Zeilen &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Queries (*.qry);;All files (*)</source>
        <translation>Abfragen (*.qry);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Sample database</source>
        <translation>Beispieldatenbank</translation>
    </message>
    <message>
        <source>Open database</source>
        <translation>Datenbank öffnen</translation>
    </message>
    <message>
        <source>Open query</source>
        <translation>Abfrage öffnen</translation>
    </message>
    <message>
        <source>Save query</source>
        <translation>Abfrage speichern</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Nicht gespeicherte Änderungen</translation>
    </message>
    <message>
        <source>The query was changed. Save the changes?</source>
        <translation>Die Abfrage wurde geändert. Änderungen speichern?</translation>
    </message>
    <message>
        <source>Read SQL</source>
        <translation>SQL lesen</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) of this query refer to fields that the database does not have. They are marked and take no part.</source>
        <translation>
            <numerusform>%n Zeile dieser Abfrage bezieht sich auf Felder, die die Datenbank nicht hat. Sie ist gekennzeichnet und wirkt nicht mit.</numerusform>
            <numerusform>%n Zeilen dieser Abfrage beziehen sich auf Felder, die die Datenbank nicht hat. Sie sind gekennzeichnet und wirken nicht mit.</numerusform>
        </translation>
    </message>
    <message>
        <source>Save rows</source>
        <translation>Zeilen speichern</translation>
    </message>
    <message>
        <source>Comma separated values (*.csv)</source>
        <translation>Durch Komma getrennte Werte (*.csv)</translation>
    </message>
    <message>
        <source>Add a column to begin.</source>
        <translation>Fügen Sie zuerst eine Spalte hinzu.</translation>
    </message>
    <message>
        <source>One row for all records.</source>
        <translation>Eine Zeile für alle Datensätze.</translation>
    </message>
    <message>
        <source>One row for each: %1.</source>
        <translation>Je eine Zeile für: %1.</translation>
    </message>
    <message>
        <source>Add a column first: it is what the result will show.</source>
        <translation>Fügen Sie zuerst eine Spalte hinzu: Sie ist das, was das Ergebnis zeigt.</translation>
    </message>
    <message>
        <source>Add column</source>
        <translation>Spalte hinzufügen</translation>
    </message>
    <message>
        <source>Show the row</source>
        <translation>Zeile zeigen</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>„%1“: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n condition(s) are not finished and take no part (%1).</source>
        <translation>
            <numerusform>%n Bedingung ist nicht fertig und wirkt nicht mit (%1).</numerusform>
            <numerusform>%n Bedingungen sind nicht fertig und wirken nicht mit (%1).</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Show &amp;SQL</source>
        <translation>&amp;SQL zeigen</translation>
    </message>
    <message>
        <source>And/or &amp;words instead of brackets</source>
        <translation>Und/oder-&amp;Wörter statt Klammern</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>&amp;Captions</source>
        <translation>&amp;Beschriftungen</translation>
    </message>
    <message>
        <source>Of the con&amp;ditions...</source>
        <translation>Der &amp;Bedingungen ...</translation>
    </message>
    <message>
        <source>Of the c&amp;olumns...</source>
        <translation>Der S&amp;palten ...</translation>
    </message>
    <message>
        <source>As &amp;delivered</source>
        <translation>&amp;Wie ausgeliefert</translation>
    </message>
    <message>
        <source>L&amp;ook</source>
        <translation>&amp;Aussehen</translation>
    </message>
    <message>
        <source>As the s&amp;ystem</source>
        <translation>Wie das S&amp;ystem</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dunkel</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>&amp;Normal size</source>
        <translation>&amp;Normale Größe</translation>
    </message>
    <message>
        <source>Waiting for the database...</source>
        <translation>Warten auf die Datenbank ...</translation>
    </message>
    <message>
        <source>Reading table %1 of %2...</source>
        <translation>Tabelle %1 von %2 wird gelesen ...</translation>
    </message>
    <message>
        <source>Captions, formulas, sums and counts (Ctrl+Shift+K)</source>
        <translation>Beschriftungen, Formeln, Summen und Anzahlen (Strg+Umschalt+K)</translation>
    </message>
    <message>
        <source>Choose a field that the result shows (Ctrl+K)</source>
        <translation>Ein Feld wählen, das das Ergebnis zeigt (Strg+K)</translation>
    </message>
    <message>
        <source>Start from &amp;table...</source>
        <translation>Ausgangs&amp;tabelle ...</translation>
    </message>
    <message>
        <source>Tables: %1.</source>
        <translation>Tabellen: %1.</translation>
    </message>
    <message>
        <source>Start from another table...</source>
        <translation>Von einer anderen Tabelle ausgehen ...</translation>
    </message>
    <message>
        <source>Chosen by the columns</source>
        <translation>Durch die Spalten bestimmt</translation>
    </message>
    <message>
        <source>&amp;Join another way...</source>
        <translation>An&amp;ders verbinden ...</translation>
    </message>
    <message>
        <source>%1 and %2 have only %3 in common.</source>
        <translation>%1 und %2 haben nur %3 gemeinsam.</translation>
    </message>
    <message>
        <source>Join another way...</source>
        <translation>Anders verbinden ...</translation>
    </message>
    <message>
        <source>The query %1 could not be opened: %2</source>
        <translation>Die Abfrage %1 konnte nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>The query could not be saved as %1: %2</source>
        <translation>Die Abfrage konnte nicht als %1 gespeichert werden: %2</translation>
    </message>
    <message>
        <source>The file %1 could not be read: %2</source>
        <translation>Die Datei %1 konnte nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>The rows could not be saved as %1: %2</source>
        <translation>Die Zeilen konnten nicht als %1 gespeichert werden: %2</translation>
    </message>
    <message>
        <source>The string that begins at line %1, column %2 is not closed.</source>
        <translation>Der Text, der in Zeile %1, Spalte %2 beginnt, ist nicht mit einem Anführungszeichen geschlossen.</translation>
    </message>
    <message>
        <source>At line %1, column %2 a bracket is missing, or there is one too many.</source>
        <translation>In Zeile %1, Spalte %2 fehlt eine Klammer, oder es ist eine zu viel da.</translation>
    </message>
    <message>
        <source>The statement ends too early, at line %1, column %2.</source>
        <translation>Die Anweisung endet zu früh, in Zeile %1, Spalte %2.</translation>
    </message>
    <message>
        <source>The text is no SELECT statement that can be read: from line %1, column %2 on it does not go on as one.</source>
        <translation>Der Text ist keine SELECT-Anweisung, die gelesen werden kann: Ab Zeile %1, Spalte %2 geht er nicht wie eine weiter.</translation>
    </message>
    <message>
        <source>S&amp;tructure</source>
        <translation>Stru&amp;ktur</translation>
    </message>
    <message>
        <source>&amp;Open structure...</source>
        <translation>Struktur &amp;öffnen ...</translation>
    </message>
    <message>
        <source>&amp;Save structure as...</source>
        <translation>Struktur &amp;speichern unter ...</translation>
    </message>
    <message>
        <source>&amp;Import it anew</source>
        <translation>&amp;Neu einlesen</translation>
    </message>
    <message>
        <source>Structures (*.str);;All files (*)</source>
        <translation>Strukturen (*.str);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Open structure</source>
        <translation>Struktur öffnen</translation>
    </message>
    <message>
        <source>The structure %1 could not be opened: %2</source>
        <translation>Die Struktur %1 konnte nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>Save structure</source>
        <translation>Struktur speichern</translation>
    </message>
    <message>
        <source>The structure could not be saved as %1: %2</source>
        <translation>Die Struktur konnte nicht als %1 gespeichert werden: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n column(s) of this query refer to fields that the database does not have. Choose others, or remove them.</source>
        <translation>
            <numerusform>%n Spalte dieser Abfrage bezieht sich auf ein Feld, das die Datenbank nicht hat. Wählen Sie ein anderes, oder entfernen Sie sie.</numerusform>
            <numerusform>%n Spalten dieser Abfrage beziehen sich auf Felder, die die Datenbank nicht hat. Wählen Sie andere, oder entfernen Sie sie.</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove them</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>The query asks for the value of %1.</source>
        <translation>Die Abfrage fragt nach dem Wert von %1.</translation>
    </message>
    <message>
        <source>SQ&amp;L</source>
        <translation>SQ&amp;L</translation>
    </message>
    <message>
        <source>Add co&amp;ndition...</source>
        <translation>Bedingung &amp;hinzufügen ...</translation>
    </message>
    <message>
        <source>To the next label</source>
        <translation>Zum nächsten Wort</translation>
    </message>
    <message>
        <source>To the row above or below</source>
        <translation>Zur Zeile darüber oder darunter</translation>
    </message>
    <message>
        <source>Open the label: its menu, list or editor</source>
        <translation>Das Wort öffnen: sein Menü, seine Liste oder sein Eingabefeld</translation>
    </message>
    <message>
        <source>Close it, and leave all as it was</source>
        <translation>Schließen und alles lassen, wie es war</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>&amp;Anleitung</translation>
    </message>
    <message>
        <source>Guide</source>
        <translation>Anleitung</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;Tasten</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>&amp;About tern7-explorer</source>
        <translation>&amp;Über tern7-explorer</translation>
    </message>
    <message>
        <source>%1: choose what the result shows; type to search the menu. A click on the blue words of a column chooses another field, or sorts.</source>
        <translation>%1: wählen, was das Ergebnis zeigt; Tippen durchsucht das Menü. Ein Klick auf die blauen Wörter einer Spalte wählt ein anderes Feld oder sortiert.</translation>
    </message>
    <message>
        <source>%1: choose a field, then click on the blue words to change what is compared. Brackets say whether all, any or none of their conditions apply.</source>
        <translation>%1: ein Feld wählen, dann auf die blauen Wörter klicken, um zu ändern, was verglichen wird. Klammern sagen, ob alle, eine oder keine ihrer Bedingungen zutreffen.</translation>
    </message>
    <message>
        <source>%1: captions, formulas, sums and counts. With a sum there is one row for each combination of the other columns.</source>
        <translation>%1: Überschriften, Formeln, Summen und Anzahlen. Mit einer Summe gibt es eine Zeile für jede Kombination der anderen Spalten.</translation>
    </message>
    <message>
        <source>%1: the tables that the query joins stand below the columns; where several ways lead from one to the other, choose the one that is meant.</source>
        <translation>%1: Unter den Spalten stehen die Tabellen, die die Abfrage verbindet; wo mehrere Wege von einer zur anderen führen, den gemeinten wählen.</translation>
    </message>
    <message>
        <source>%1: the rows appear below. A click on a header sorts by that column.</source>
        <translation>%1: Die Zeilen erscheinen unten. Ein Klick auf eine Überschrift sortiert nach dieser Spalte.</translation>
    </message>
    <message>
        <source>%1 keeps the query, %2 its rows for other programs.</source>
        <translation>%1 bewahrt die Abfrage auf, %2 ihre Zeilen für andere Programme.</translation>
    </message>
    <message>
        <source>%1: every step can be taken back.</source>
        <translation>%1: Jeder Schritt kann zurückgenommen werden.</translation>
    </message>
    <message>
        <source>A query shows columns of a database, for the records that its conditions let through.</source>
        <translation>Eine Abfrage zeigt Spalten einer Datenbank, für die Datensätze, die ihre Bedingungen durchlassen.</translation>
    </message>
    <message>
        <source>%1 leads to other databases; a file of SQLite can be dropped on the window. Databases are only read, never changed.</source>
        <translation>%1 führt zu anderen Datenbanken; eine SQLite-Datei kann auf das Fenster gezogen werden. Datenbanken werden nur gelesen, nie verändert.</translation>
    </message>
    <message>
        <source>On a condition or column</source>
        <translation>Auf einer Bedingung oder Spalte</translation>
    </message>
    <message>
        <source>Between the blue words</source>
        <translation>Zwischen den blauen Wörtern</translation>
    </message>
    <message>
        <source>With Qt %1.</source>
        <translation>Mit Qt %1.</translation>
    </message>
    <message>
        <source>Licence: MIT. Copyright 2026 the tern7 authors.</source>
        <translation>Lizenz: MIT. Copyright 2026 die Autoren von tern7.</translation>
    </message>
    <message>
        <source>About tern7-explorer</source>
        <translation>Über tern7-explorer</translation>
    </message>
    <message>
        <source>The joins start from %1 now, and not from %2: the rows may be others.</source>
        <translation>Die Verbindungen gehen jetzt von %1 aus und nicht von %2: Es können andere Zeilen sein.</translation>
    </message>
    <message>
        <source>Start from %1</source>
        <translation>Von %1 ausgehen</translation>
    </message>
</context>
<context>
    <name>tern7::TMessageBar</name>
    <message>
        <source>Close the message</source>
        <translation>Meldung schließen</translation>
    </message>
</context>
<context>
    <name>tern7::TParameterDialog</name>
    <message>
        <source>Values of the query</source>
        <translation>Werte der Abfrage</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Ausführen</translation>
    </message>
    <message>
        <source>A value is missing: %1</source>
        <translation>Ein Wert fehlt: %1</translation>
    </message>
</context>
<context>
    <name>tern7::TQueryRunner</name>
    <message>
        <source>No database is open</source>
        <translation>Es ist keine Datenbank geöffnet</translation>
    </message>
</context>
<context>
    <name>tern7::TReadSQLDialog</name>
    <message>
        <source>Read SQL</source>
        <translation>SQL lesen</translation>
    </message>
    <message>
        <source>SELECT statement</source>
        <translation>SELECT-Anweisung</translation>
    </message>
    <message>
        <source>A &amp;SELECT statement over the tables of this database takes the place of the query:</source>
        <translation>Eine &amp;SELECT-Anweisung über die Tabellen dieser Datenbank tritt an die Stelle der Abfrage:</translation>
    </message>
    <message>
        <source>&amp;Read</source>
        <translation>&amp;Lesen</translation>
    </message>
</context>
<context>
    <name>tern7::TReportDialog</name>
    <message>
        <source>Understood</source>
        <translation>Verstanden</translation>
    </message>
    <message>
        <source>Kept as text</source>
        <translation>Als Text behalten</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Weggelassen</translation>
    </message>
    <message>
        <source>alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>condition</source>
        <translation>Bedingung</translation>
    </message>
    <message>
        <source>derived table</source>
        <translation>abgeleitete Tabelle</translation>
    </message>
    <message>
        <source>grouping</source>
        <translation>Gruppierung</translation>
    </message>
    <message>
        <source>hint</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>join</source>
        <translation>Verknüpfung</translation>
    </message>
    <message>
        <source>parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>rest</source>
        <translation>Rest</translation>
    </message>
    <message>
        <source>sorting</source>
        <translation>Sortierung</translation>
    </message>
    <message>
        <source>statement</source>
        <translation>Anweisung</translation>
    </message>
    <message>
        <source>table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>a query can not say it</source>
        <translation>eine Abfrage kann das nicht ausdrücken</translation>
    </message>
    <message>
        <source>another column has this alias</source>
        <translation>eine andere Spalte hat diesen Alias</translation>
    </message>
    <message>
        <source>another parameter has this name</source>
        <translation>ein anderer Parameter heißt so</translation>
    </message>
    <message>
        <source>it is no column</source>
        <translation>es ist keine Spalte</translation>
    </message>
    <message>
        <source>it names what the structure does not have</source>
        <translation>es nennt, was die Struktur nicht hat</translation>
    </message>
    <message>
        <source>no column and no condition uses it</source>
        <translation>keine Spalte und keine Bedingung verwendet es</translation>
    </message>
    <message>
        <source>no field or operator of the structure says it</source>
        <translation>kein Feld und kein Operator der Struktur drückt es aus</translation>
    </message>
    <message>
        <source>no link of the structure</source>
        <translation>keine Verbindung der Struktur</translation>
    </message>
    <message>
        <source>the columns ask for other groups</source>
        <translation>die Spalten verlangen andere Gruppen</translation>
    </message>
    <message>
        <source>the query joins the tables in another order</source>
        <translation>die Abfrage verknüpft die Tabellen in anderer Reihenfolge</translation>
    </message>
    <message>
        <source>the structure has no such table</source>
        <translation>die Struktur hat keine solche Tabelle</translation>
    </message>
    <message>
        <source>the structure joins it in another way</source>
        <translation>die Struktur verknüpft es anders</translation>
    </message>
    <message>
        <source>the structure joins these tables in another way</source>
        <translation>die Struktur verknüpft diese Tabellen anders</translation>
    </message>
    <message>
        <source>What was read</source>
        <translation>Was gelesen wurde</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>Teil</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Grund</translation>
    </message>
    <message>
        <source>Parts of the statement</source>
        <translation>Teile der Anweisung</translation>
    </message>
    <message numerus="yes">
        <source>%n part(s) of the statement were left out: the query does not say the same.</source>
        <translation>
            <numerusform>%n Teil der Anweisung wurde weggelassen: Die Abfrage sagt nicht dasselbe.</numerusform>
            <numerusform>%n Teile der Anweisung wurden weggelassen: Die Abfrage sagt nicht dasselbe.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n part(s) were kept as text.</source>
        <translation>
            <numerusform>%n Teil wurde als Text behalten.</numerusform>
            <numerusform>%n Teile wurden als Text behalten.</numerusform>
        </translation>
    </message>
    <message>
        <source>Everything was understood.</source>
        <translation>Alles wurde verstanden.</translation>
    </message>
    <message>
        <source>&amp;Keep the query</source>
        <translation>Abfrage &amp;behalten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>the string is not closed</source>
        <translation>der Text ist nicht mit einem Anführungszeichen geschlossen</translation>
    </message>
    <message>
        <source>Line, column</source>
        <translation>Zeile, Spalte</translation>
    </message>
    <message>
        <source>the parser does not read it</source>
        <translation>der Parser liest es nicht</translation>
    </message>
    <message>
        <source>no field has this expression</source>
        <translation>kein Feld hat diesen Ausdruck</translation>
    </message>
    <message>
        <source>no operator has this form</source>
        <translation>kein Operator hat diese Form</translation>
    </message>
    <message>
        <source>a condition keeps this table, which nothing else uses</source>
        <translation>eine Bedingung behält diese Tabelle, die sonst nichts verwendet</translation>
    </message>
    <message>
        <source>a condition keeps this join, which the structure makes by way of other tables</source>
        <translation>eine Bedingung behält diese Verknüpfung, die die Struktur über andere Tabellen herstellt</translation>
    </message>
    <message>
        <source>only the syntax sql1 leaves out the structure&apos;s outer join with it</source>
        <translation>nur die Syntax sql1 lässt die äußere Verknüpfung der Struktur damit weg</translation>
    </message>
    <message>
        <source>a table of the sub-select has the name that the structure gives another</source>
        <translation>eine Tabelle der Unterabfrage heißt so, wie die Struktur eine andere nennt</translation>
    </message>
    <message>
        <source>several tables have a column of this name</source>
        <translation>mehrere Tabellen haben eine Spalte dieses Namens</translation>
    </message>
    <message>
        <source>the query needs a further table</source>
        <translation>die Abfrage braucht eine weitere Tabelle</translation>
    </message>
    <message>
        <source>the columns that the tables are joined by would come twice</source>
        <translation>die Spalten, über die die Tabellen verknüpft sind, kämen zweimal</translation>
    </message>
</context>
<context>
    <name>tern7::TResultModel</name>
    <message>
        <source>No value</source>
        <translation>Kein Wert</translation>
    </message>
</context>
<context>
    <name>tern7::TResultView</name>
    <message>
        <source>Result rows</source>
        <translation>Ergebniszeilen</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s)</source>
        <translation>
            <numerusform>%n Zeile</numerusform>
            <numerusform>%n Zeilen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 s</source>
        <translation>%1, %2 s</translation>
    </message>
    <message>
        <source>the first %1; there are more</source>
        <translation>die ersten %1; es gibt mehr</translation>
    </message>
    <message>
        <source>The database refused the query</source>
        <translation>Die Datenbank hat die Abfrage abgelehnt</translation>
    </message>
    <message>
        <source>Cancelled after %1 s</source>
        <translation>Abgebrochen nach %1 s</translation>
    </message>
    <message>
        <source>Running...</source>
        <translation>Läuft ...</translation>
    </message>
    <message>
        <source>Running... %1, %2 s</source>
        <translation>Läuft ... %1, %2 s</translation>
    </message>
    <message>
        <source>Not run yet</source>
        <translation>Noch nicht ausgeführt</translation>
    </message>
    <message>
        <source>Rows of the query before the last changes · %1</source>
        <translation>Zeilen der Abfrage vor den letzten Änderungen · %1</translation>
    </message>
</context>
</TS>
