<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>tern7::TDropDownLabel</name>
    <message>
        <source>empty</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>press to change</source>
        <translation>zum Ändern drücken</translation>
    </message>
    <message>
        <source>%1, press to change</source>
        <translation>%1, zum Ändern drücken</translation>
    </message>
</context>
<context>
    <name>tern7::TFieldTree</name>
    <message>
        <source>No field has this name</source>
        <translation>Kein Feld heißt so</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
</context>
<context>
    <name>tern7::TFilterRowView</name>
    <message>
        <source>Row menu</source>
        <translation>Zeilenmenü</translation>
    </message>
    <message>
        <source>Row takes part</source>
        <translation>Zeile wirkt mit</translation>
    </message>
    <message>
        <source>The bracket around it is switched off</source>
        <translation>Die Klammer darum ist ausgeschaltet</translation>
    </message>
    <message>
        <source>The condition is left out: %1</source>
        <translation>Die Bedingung wirkt nicht mit: %1</translation>
    </message>
    <message>
        <source>How the conditions are joined</source>
        <translation>Verknüpfung der Bedingungen</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>%1, operator</source>
        <translation>%1, Operator</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operator</translation>
    </message>
    <message>
        <source>%1, second value</source>
        <translation>%1, zweiter Wert</translation>
    </message>
    <message>
        <source>The list is being read</source>
        <translation>Die Liste wird gelesen</translation>
    </message>
    <message>
        <source>The list could not be read: %1</source>
        <translation>Die Liste konnte nicht gelesen werden: %1</translation>
    </message>
</context>
<context>
    <name>tern7::TKPopupMenu</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nichts gefunden</translation>
    </message>
</context>
<context>
    <name>tern7::TKQueryEditor</name>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Add condition</source>
        <translation>Bedingung hinzufügen</translation>
    </message>
    <message>
        <source>Add bracket</source>
        <translation>Klammer hinzufügen</translation>
    </message>
    <message>
        <source>Delete bracket</source>
        <translation>Klammer löschen</translation>
    </message>
    <message>
        <source>Delete condition</source>
        <translation>Bedingung löschen</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Einschalten</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Ausschalten</translation>
    </message>
    <message>
        <source>Change bracket</source>
        <translation>Klammer ändern</translation>
    </message>
    <message>
        <source>Change joining word</source>
        <translation>Bindewort ändern</translation>
    </message>
    <message>
        <source>Choose field</source>
        <translation>Feld wählen</translation>
    </message>
    <message>
        <source>Choose operator</source>
        <translation>Operator wählen</translation>
    </message>
    <message>
        <source>Change value</source>
        <translation>Wert ändern</translation>
    </message>
    <message>
        <source>Make parameter</source>
        <translation>Zum Parameter machen</translation>
    </message>
    <message>
        <source>Make constant</source>
        <translation>Zum festen Wert machen</translation>
    </message>
    <message>
        <source>Change parameter</source>
        <translation>Parameter ändern</translation>
    </message>
    <message>
        <source>Edit sub-query</source>
        <translation>Unterabfrage bearbeiten</translation>
    </message>
    <message>
        <source>Change caption</source>
        <translation>Beschriftung ändern</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Add column</source>
        <translation>Spalte hinzufügen</translation>
    </message>
    <message>
        <source>Delete column</source>
        <translation>Spalte löschen</translation>
    </message>
    <message>
        <source>Move column</source>
        <translation>Spalte verschieben</translation>
    </message>
    <message>
        <source>Duplicate column</source>
        <translation>Spalte duplizieren</translation>
    </message>
    <message>
        <source>Change formula</source>
        <translation>Formel ändern</translation>
    </message>
    <message>
        <source>Change sorting</source>
        <translation>Sortierung ändern</translation>
    </message>
    <message>
        <source>Change sort order</source>
        <translation>Reihenfolge der Sortierung ändern</translation>
    </message>
    <message>
        <source>Just sorting</source>
        <translation>Nur sortieren</translation>
    </message>
    <message>
        <source>Edit columns</source>
        <translation>Spalten bearbeiten</translation>
    </message>
    <message>
        <source>Change options</source>
        <translation>Optionen ändern</translation>
    </message>
    <message>
        <source>Choose main table</source>
        <translation>Haupttabelle wählen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Renumber sorting</source>
        <translation>Sortierung neu nummerieren</translation>
    </message>
    <message>
        <source>Clear columns</source>
        <translation>Spalten leeren</translation>
    </message>
    <message>
        <source>Join another way</source>
        <translation>Anders verbinden</translation>
    </message>
    <message>
        <source>Delete row</source>
        <translation>Zeile löschen</translation>
    </message>
    <message>
        <source>Switch row on or off</source>
        <translation>Zeile ein- oder ausschalten</translation>
    </message>
    <message>
        <source>Row menu</source>
        <translation>Zeilenmenü</translation>
    </message>
</context>
<context>
    <name>tern7::TKQueryPanel</name>
    <message>
        <source>level %1</source>
        <translation>Ebene %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>ausgeschaltet</translation>
    </message>
    <message>
        <source>left out: %1</source>
        <translation>wirkt nicht mit: %1</translation>
    </message>
    <message>
        <source>The list is empty</source>
        <translation>Die Liste ist leer</translation>
    </message>
    <message>
        <source>The list is being read...</source>
        <translation>Die Liste wird gelesen ...</translation>
    </message>
    <message>
        <source>The list could not be read: %1</source>
        <translation>Die Liste konnte nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>&amp;Read it again</source>
        <translation>Noch einmal &amp;lesen</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
</context>
<context>
    <name>tern7::TKResultFieldsPanel</name>
    <message>
        <source>Column %1: %2, %3</source>
        <translation>Spalte %1: %2, %3</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Spalte %1</translation>
    </message>
    <message>
        <source>Sorting of %1</source>
        <translation>Sortierung von %1</translation>
    </message>
    <message>
        <source>Result fields</source>
        <translation>Ergebnisfelder</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Ctrl and a click: formula, function, caption</source>
        <translation>Strg und ein Klick: Formel, Funktion, Beschriftung</translation>
    </message>
</context>
<context>
    <name>tern7::TKTitlesGrid</name>
    <message>
        <source>English</source>
        <translation>Englisch</translation>
    </message>
    <message>
        <source>Translated</source>
        <translation>Übersetzt</translation>
    </message>
</context>
<context>
    <name>tern7::TListPopup</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
</context>
<context>
    <name>tern7::TRowProblem</name>
    <message>
        <source>choose a field</source>
        <translation>Feld wählen</translation>
    </message>
    <message>
        <source>choose an operator</source>
        <translation>Operator wählen</translation>
    </message>
    <message>
        <source>this field is not known any more</source>
        <translation>dieses Feld ist nicht mehr bekannt</translation>
    </message>
    <message>
        <source>this operator is not known any more</source>
        <translation>dieser Operator ist nicht mehr bekannt</translation>
    </message>
    <message>
        <source>define the sub-query</source>
        <translation>Unterabfrage festlegen</translation>
    </message>
    <message>
        <source>enter a value</source>
        <translation>Wert eingeben</translation>
    </message>
    <message>
        <source>“%1” can not be read as a date or time</source>
        <translation>„%1“ ist weder Datum noch Uhrzeit</translation>
    </message>
    <message>
        <source>“%1” is no list of numbers</source>
        <translation>„%1“ ist keine Liste von Zahlen</translation>
    </message>
    <message>
        <source>“%1” is no number</source>
        <translation>„%1“ ist keine Zahl</translation>
    </message>
    <message>
        <source>sub-query: %1</source>
        <translation>Unterabfrage: %1</translation>
    </message>
    <message>
        <source>write for example %1</source>
        <translation>schreiben Sie zum Beispiel %1</translation>
    </message>
    <message>
        <source>write for example %1, or always %2</source>
        <translation>schreiben Sie zum Beispiel %1 oder immer %2</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <translation>%1; %2</translation>
    </message>
    <message>
        <source>left out of the SQL that was read: %1</source>
        <translation>aus dem gelesenen SQL weggelassen: %1</translation>
    </message>
</context>
<context>
    <name>tern7::T_dlgRFieldsEdit</name>
    <message>
        <source>A bracket or quote has no counterpart</source>
        <translation>Eine Klammer oder ein Anführungszeichen hat kein Gegenstück</translation>
    </message>
    <message>
        <source>This column has no expression yet</source>
        <translation>Diese Spalte hat noch keinen Ausdruck</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>Funktion</translation>
    </message>
    <message>
        <source>Function over the rows</source>
        <translation>Funktion über die Zeilen</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>A comment or semicolon can not stand in an expression</source>
        <translation>Kommentare und Semikolons sind in einem Ausdruck nicht erlaubt</translation>
    </message>
    <message>
        <source>There is no field in it: fields stand in braces, {Name}</source>
        <translation>Der Ausdruck enthält kein Feld: Felder stehen in geschweiften Klammern, {Name}</translation>
    </message>
    <message>
        <source>An invisible character that turns the direction of text can not stand in an expression</source>
        <translation>Ein unsichtbares Zeichen, das die Schreibrichtung umkehrt, kann nicht in einem Ausdruck stehen</translation>
    </message>
    <message>
        <source>More than one field has this name: %1</source>
        <translation>Mehrere Felder heißen so: %1</translation>
    </message>
    <message>
        <source>Perhaps it is meant: %1</source>
        <translation>Vielleicht ist gemeint: %1</translation>
    </message>
</context>
<context>
    <name>tern7::T_dlgSubQuery</name>
    <message>
        <source>Choose the field that the sub-query returns.</source>
        <translation>Wählen Sie das Feld, das die Unterabfrage liefert.</translation>
    </message>
</context>
<context>
    <name>tern7::T_dlgTitlesEdit</name>
    <message>
        <source>Titles editor</source>
        <translation>Beschriftungen bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>&amp;Laden ...</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>&amp;Speichern ...</translation>
    </message>
    <message>
        <source>&amp;Load From File...</source>
        <translation>Aus Datei &amp;laden ...</translation>
    </message>
    <message>
        <source>&amp;Save To File</source>
        <translation>In Datei &amp;speichern</translation>
    </message>
    <message>
        <source>TERN Titles (*.ttl)</source>
        <translation>TERN-Beschriftungen (*.ttl)</translation>
    </message>
    <message>
        <source>Query files (*.qry)</source>
        <translation>Abfragedateien (*.qry)</translation>
    </message>
    <message>
        <source>Discard the changes?</source>
        <translation>Änderungen verwerfen?</translation>
    </message>
    <message>
        <source>The file holds no titles that can be used here: %1</source>
        <translation>Die Datei enthält keine Beschriftungen, die hier passen: %1</translation>
    </message>
    <message>
        <source>The file is not UTF-8 and was read as Windows-1252.</source>
        <translation>Die Datei ist nicht in UTF-8 und wurde als Windows-1252 gelesen.</translation>
    </message>
</context>
</TS>
