<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>main</name>
    <message>
        <source>Questions to a database without SQL.</source>
        <translation>Preguntas a una base de datos sin SQL.</translation>
    </message>
    <message>
        <source>Opens a database: a SQLite file, or an address such as postgresql://user@host/name.</source>
        <translation>Abre una base de datos: un archivo SQLite o una dirección como postgresql://user@host/name.</translation>
    </message>
    <message>
        <source>Loads the structure instead of importing it.</source>
        <translation>Carga la estructura en vez de importarla.</translation>
    </message>
    <message>
        <source>Opens a saved query.</source>
        <translation>Abre una consulta guardada.</translation>
    </message>
    <message>
        <source>Runs the query, saves a picture of the window and ends.</source>
        <translation>Ejecuta la consulta, guarda una imagen de la ventana y termina.</translation>
    </message>
    <message>
        <source>Language of the program.</source>
        <translation>Idioma del programa.</translation>
    </message>
    <message>
        <source>&quot;light&quot; or &quot;dark&quot;.</source>
        <translation>«light» (claro) o «dark» (oscuro).</translation>
    </message>
    <message>
        <source>Size of the window.</source>
        <translation>Tamaño de la ventana.</translation>
    </message>
</context>
<context>
    <name>messages</name>
    <message>
        <source>The file %1 can not be opened.</source>
        <translation>No se puede abrir el archivo %1.</translation>
    </message>
    <message>
        <source>The file %1 can not be written.</source>
        <translation>No se puede escribir el archivo %1.</translation>
    </message>
    <message>
        <source>The text is damaged: section %2 has a wrong value of %1: %3</source>
        <translation>El texto está dañado: en la sección %2, %1 tiene un valor incorrecto: %3</translation>
    </message>
    <message>
        <source>The text is damaged: section %1 is missing.</source>
        <translation>El texto está dañado: falta la sección %1.</translation>
    </message>
    <message>
        <source>The text is too long.</source>
        <translation>El texto es demasiado largo.</translation>
    </message>
    <message>
        <source>Rows are nested too deep.</source>
        <translation>Las filas están anidadas demasiado profundamente.</translation>
    </message>
    <message>
        <source>The text has the version %1; what is newer than %2 was not read.</source>
        <translation>El texto tiene la versión %1; lo que es más nuevo que %2 no se ha leído.</translation>
    </message>
    <message>
        <source>The text is not UTF-8; it was read as Windows-1252.</source>
        <translation>El texto no es UTF-8; se ha leído como Windows-1252.</translation>
    </message>
    <message>
        <source>The database has no table %1.</source>
        <translation>La base de datos no tiene ninguna tabla %1.</translation>
    </message>
    <message>
        <source>No links of the database lead from one of the tables to the others.</source>
        <translation>Ningún vínculo de la base de datos lleva de una de las tablas a las demás.</translation>
    </message>
    <message>
        <source>The query has no column and no condition yet.</source>
        <translation>La consulta aún no tiene columnas ni condiciones.</translation>
    </message>
    <message>
        <source>No database is open.</source>
        <translation>No hay ninguna base de datos abierta.</translation>
    </message>
    <message>
        <source>This can not be a value of “%1”: %2</source>
        <translation>Esto no puede ser un valor de «%1»: %2</translation>
    </message>
    <message>
        <source>This condition is text that can not be executed safely: %1</source>
        <translation>Esta condición es un texto que no se puede ejecutar con seguridad: %1</translation>
    </message>
    <message>
        <source>A value holds a NUL character.</source>
        <translation>Un valor contiene un carácter NUL.</translation>
    </message>
    <message>
        <source>There is no field %1.</source>
        <translation>No existe el campo %1.</translation>
    </message>
    <message>
        <source>A text in an expression with fields can not hold “@” and a digit: %1</source>
        <translation>Un texto en una expresión con campos no puede contener «@» y una cifra: %1</translation>
    </message>
    <message>
        <source>The statement for a list of values must give two columns.</source>
        <translation>La instrucción de una lista de valores debe dar dos columnas.</translation>
    </message>
    <message>
        <source>The database must be given as sqlite:PATH, postgresql://user@host:port/name, mysql://user@host:port/name or odbc:DSN.</source>
        <translation>La base de datos debe indicarse como sqlite:PATH, postgresql://user@host:port/name, mysql://user@host:port/name u odbc:DSN.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>El puerto debe ser un número del 1 al 65535.</translation>
    </message>
    <message>
        <source>The address of the database has an unknown or wrong option “%1”.</source>
        <translation>La dirección de la base de datos tiene una opción desconocida o incorrecta «%1».</translation>
    </message>
    <message>
        <source>The address names no database.</source>
        <translation>La dirección no nombra ninguna base de datos.</translation>
    </message>
    <message>
        <source>There is no database file %1.</source>
        <translation>No existe el archivo de base de datos %1.</translation>
    </message>
    <message>
        <source>The driver %1 of Qt SQL is not installed.</source>
        <translation>El controlador %1 de Qt SQL no está instalado.</translation>
    </message>
    <message>
        <source>The database %1 can not be opened: %2</source>
        <translation>No se puede abrir la base de datos %1: %2</translation>
    </message>
    <message>
        <source>Only SELECT statements are executed.</source>
        <translation>Solo se ejecutan instrucciones SELECT.</translation>
    </message>
    <message>
        <source>Only one statement is executed at a time.</source>
        <translation>Solo se ejecuta una instrucción a la vez.</translation>
    </message>
    <message>
        <source>A quote, comment or bracket of the statement is not closed.</source>
        <translation>Hay una comilla, un comentario o un paréntesis sin cerrar en la instrucción.</translation>
    </message>
    <message>
        <source>The statement holds a NUL character.</source>
        <translation>La instrucción contiene un carácter NUL.</translation>
    </message>
    <message>
        <source>The parameter %1 has no value.</source>
        <translation>El parámetro %1 no tiene valor.</translation>
    </message>
</context>
<context>
    <name>operators</name>
    <message>
        <source>is equal to</source>
        <translation>es igual a</translation>
    </message>
    <message>
        <source>is not equal to</source>
        <translation>no es igual a</translation>
    </message>
    <message>
        <source>is less than</source>
        <translation>es menor que</translation>
    </message>
    <message>
        <source>is less than or equal to</source>
        <translation>es menor o igual que</translation>
    </message>
    <message>
        <source>is greater than</source>
        <translation>es mayor que</translation>
    </message>
    <message>
        <source>is greater than or equal to</source>
        <translation>es mayor o igual que</translation>
    </message>
    <message>
        <source>is null</source>
        <translation>está vacío</translation>
    </message>
    <message>
        <source>is in list</source>
        <translation>está en la lista</translation>
    </message>
    <message>
        <source>starts with</source>
        <translation>empieza por</translation>
    </message>
    <message>
        <source>does not start with</source>
        <translation>no empieza por</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>contiene</translation>
    </message>
    <message>
        <source>does not contain</source>
        <translation>no contiene</translation>
    </message>
    <message>
        <source>is between</source>
        <translation>está entre</translation>
    </message>
    <message>
        <source>and</source>
        <translation>y</translation>
    </message>
</context>
<context>
    <name>tern7::TConnectionDialog</name>
    <message>
        <source>Open database</source>
        <translation>Abrir base de datos</translation>
    </message>
    <message>
        <source>SQLite file</source>
        <translation>Archivo SQLite</translation>
    </message>
    <message>
        <source>PostgreSQL server</source>
        <translation>Servidor PostgreSQL</translation>
    </message>
    <message>
        <source>MariaDB or MySQL server</source>
        <translation>Servidor MariaDB o MySQL</translation>
    </message>
    <message>
        <source>ODBC data source</source>
        <translation>Origen de datos ODBC</translation>
    </message>
    <message>
        <source>&amp;Database:</source>
        <translation>Base de &amp;datos:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>E&amp;xaminar...</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translation>&amp;Archivo:</translation>
    </message>
    <message>
        <source>not kept</source>
        <translation>no se guarda</translation>
    </message>
    <message>
        <source>&amp;Server:</source>
        <translation>&amp;Servidor:</translation>
    </message>
    <message>
        <source>P&amp;ort:</source>
        <translation>P&amp;uerto:</translation>
    </message>
    <message>
        <source>&amp;Name of the database:</source>
        <translation>&amp;Nombre de la base de datos:</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>Us&amp;uario:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Contraseña:</translation>
    </message>
    <message>
        <source>Name of a data source, or a connection string</source>
        <translation>Nombre de un origen de datos o cadena de conexión</translation>
    </message>
    <message>
        <source>&amp;Source:</source>
        <translation>&amp;Origen:</translation>
    </message>
    <message>
        <source>SQLite databases (*.db *.sqlite *.sqlite3 *.db3);;All files (*)</source>
        <translation>Bases de datos SQLite (*.db *.sqlite *.sqlite3 *.db3);;Todos los archivos (*)</translation>
    </message>
</context>
<context>
    <name>tern7::TKQueryEditor</name>
    <message>
        <source>Equal rows</source>
        <translation>Filas iguales</translation>
    </message>
    <message>
        <source>Sort</source>
        <translation>Ordenar</translation>
    </message>
    <message>
        <source>Add column</source>
        <translation>Añadir columna</translation>
    </message>
    <message>
        <source>Read SQL</source>
        <translation>Leer SQL</translation>
    </message>
    <message>
        <source>Delete column</source>
        <translation>Eliminar columna</translation>
    </message>
</context>
<context>
    <name>tern7::TMainWindow</name>
    <message>
        <source>&amp;Result</source>
        <translation>&amp;Resultado</translation>
    </message>
    <message>
        <source>C&amp;olumns</source>
        <translation>C&amp;olumnas</translation>
    </message>
    <message>
        <source>Con&amp;ditions</source>
        <translation>Con&amp;diciones</translation>
    </message>
    <message>
        <source>New query</source>
        <translation>Consulta nueva</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>Open &amp;database...</source>
        <translation>Abrir base de &amp;datos...</translation>
    </message>
    <message>
        <source>Recent d&amp;atabases</source>
        <translation>B&amp;ases de datos recientes</translation>
    </message>
    <message>
        <source>Sa&amp;mple database</source>
        <translation>Base de datos de eje&amp;mplo</translation>
    </message>
    <message>
        <source>&amp;New query</source>
        <translation>Consulta &amp;nueva</translation>
    </message>
    <message>
        <source>&amp;Open query...</source>
        <translation>&amp;Abrir consulta...</translation>
    </message>
    <message>
        <source>&amp;Recent queries</source>
        <translation>Consultas &amp;recientes</translation>
    </message>
    <message>
        <source>&amp;Save query</source>
        <translation>&amp;Guardar consulta</translation>
    </message>
    <message>
        <source>Save query &amp;as...</source>
        <translation>Guardar consulta &amp;como...</translation>
    </message>
    <message>
        <source>Read S&amp;QL...</source>
        <translation>Leer S&amp;QL...</translation>
    </message>
    <message>
        <source>Save &amp;rows as CSV...</source>
        <translation>Guardar &amp;filas como CSV...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Query</source>
        <translation>&amp;Consulta</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Ejecutar</translation>
    </message>
    <message>
        <source>Run the query (F5)</source>
        <translation>Ejecutar la consulta (F5)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Run after every c&amp;hange</source>
        <translation>Ejecutar tras cada cam&amp;bio</translation>
    </message>
    <message>
        <source>Add c&amp;olumn...</source>
        <translation>Añadir c&amp;olumna...</translation>
    </message>
    <message>
        <source>&amp;Equal rows only once</source>
        <translation>Filas &amp;iguales una sola vez</translation>
    </message>
    <message>
        <source>E&amp;dit columns...</source>
        <translation>E&amp;ditar columnas...</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Herramientas</translation>
    </message>
    <message>
        <source>Rows at &amp;most:</source>
        <translation>&amp;Máximo de filas:</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edición</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>&amp;Copy rows</source>
        <translation>&amp;Copiar filas</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>&amp;Deshacer: %1</translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <translation>&amp;Rehacer: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Queries (*.qry);;All files (*)</source>
        <translation>Consultas (*.qry);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Sample database</source>
        <translation>Base de datos de ejemplo</translation>
    </message>
    <message>
        <source>Open database</source>
        <translation>Abrir base de datos</translation>
    </message>
    <message>
        <source>Open query</source>
        <translation>Abrir consulta</translation>
    </message>
    <message>
        <source>Save query</source>
        <translation>Guardar consulta</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Cambios sin guardar</translation>
    </message>
    <message>
        <source>The query was changed. Save the changes?</source>
        <translation>La consulta ha cambiado. ¿Guardar los cambios?</translation>
    </message>
    <message>
        <source>Read SQL</source>
        <translation>Leer SQL</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) of this query refer to fields that the database does not have. They are marked and take no part.</source>
        <translation>
            <numerusform>%n fila de esta consulta se refiere a campos que la base de datos no tiene. Está marcada y no participa.</numerusform>
            <numerusform>%n filas de esta consulta se refieren a campos que la base de datos no tiene. Están marcadas y no participan.</numerusform>
        </translation>
    </message>
    <message>
        <source>Save rows</source>
        <translation>Guardar filas</translation>
    </message>
    <message>
        <source>Comma separated values (*.csv)</source>
        <translation>Valores separados por comas (*.csv)</translation>
    </message>
    <message>
        <source>Add a column to begin.</source>
        <translation>Añada una columna para empezar.</translation>
    </message>
    <message>
        <source>One row for all records.</source>
        <translation>Una fila para todos los registros.</translation>
    </message>
    <message>
        <source>One row for each: %1.</source>
        <translation>Una fila por cada: %1.</translation>
    </message>
    <message>
        <source>Add a column first: it is what the result will show.</source>
        <translation>Añada primero una columna: es lo que mostrará el resultado.</translation>
    </message>
    <message>
        <source>Add column</source>
        <translation>Añadir columna</translation>
    </message>
    <message>
        <source>Show the row</source>
        <translation>Mostrar la fila</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>«%1»: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n condition(s) are not finished and take no part (%1).</source>
        <translation>
            <numerusform>%n condición no está completa y no participa (%1).</numerusform>
            <numerusform>%n condiciones no están completas y no participan (%1).</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>Show &amp;SQL</source>
        <translation>Mostrar &amp;SQL</translation>
    </message>
    <message>
        <source>And/or &amp;words instead of brackets</source>
        <translation>&amp;Palabras y/o en lugar de paréntesis</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>&amp;Captions</source>
        <translation>&amp;Títulos</translation>
    </message>
    <message>
        <source>Of the con&amp;ditions...</source>
        <translation>De las con&amp;diciones...</translation>
    </message>
    <message>
        <source>Of the c&amp;olumns...</source>
        <translation>De las c&amp;olumnas...</translation>
    </message>
    <message>
        <source>As &amp;delivered</source>
        <translation>Los &amp;originales</translation>
    </message>
    <message>
        <source>L&amp;ook</source>
        <translation>As&amp;pecto</translation>
    </message>
    <message>
        <source>As the s&amp;ystem</source>
        <translation>Como el s&amp;istema</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Claro</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Oscuro</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>&amp;Ampliar</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>&amp;Reducir</translation>
    </message>
    <message>
        <source>&amp;Normal size</source>
        <translation>Tamaño &amp;normal</translation>
    </message>
    <message>
        <source>Waiting for the database...</source>
        <translation>Esperando a la base de datos...</translation>
    </message>
    <message>
        <source>Reading table %1 of %2...</source>
        <translation>Leyendo la tabla %1 de %2...</translation>
    </message>
    <message>
        <source>Captions, formulas, sums and counts (Ctrl+Shift+K)</source>
        <translation>Títulos, fórmulas, sumas y recuentos (Ctrl+Mayús+K)</translation>
    </message>
    <message>
        <source>Choose a field that the result shows (Ctrl+K)</source>
        <translation>Elegir un campo que muestre el resultado (Ctrl+K)</translation>
    </message>
    <message>
        <source>Start from &amp;table...</source>
        <translation>&amp;Tabla inicial...</translation>
    </message>
    <message>
        <source>Tables: %1.</source>
        <translation>Tablas: %1.</translation>
    </message>
    <message>
        <source>Start from another table...</source>
        <translation>Empezar por otra tabla...</translation>
    </message>
    <message>
        <source>Chosen by the columns</source>
        <translation>Según las columnas</translation>
    </message>
    <message>
        <source>&amp;Join another way...</source>
        <translation>&amp;Unir de otra forma...</translation>
    </message>
    <message>
        <source>%1 and %2 have only %3 in common.</source>
        <translation>%1 y %2 solo tienen %3 en común.</translation>
    </message>
    <message>
        <source>Join another way...</source>
        <translation>Unir de otra forma...</translation>
    </message>
    <message>
        <source>The query %1 could not be opened: %2</source>
        <translation>No se ha podido abrir la consulta %1: %2</translation>
    </message>
    <message>
        <source>The query could not be saved as %1: %2</source>
        <translation>No se ha podido guardar la consulta como %1: %2</translation>
    </message>
    <message>
        <source>The file %1 could not be read: %2</source>
        <translation>No se ha podido leer el archivo %1: %2</translation>
    </message>
    <message>
        <source>The rows could not be saved as %1: %2</source>
        <translation>No se han podido guardar las filas como %1: %2</translation>
    </message>
    <message>
        <source>The string that begins at line %1, column %2 is not closed.</source>
        <translation>La cadena que empieza en la línea %1, columna %2 no está cerrada.</translation>
    </message>
    <message>
        <source>At line %1, column %2 a bracket is missing, or there is one too many.</source>
        <translation>En la línea %1, columna %2 falta un paréntesis o sobra uno.</translation>
    </message>
    <message>
        <source>The statement ends too early, at line %1, column %2.</source>
        <translation>La instrucción termina demasiado pronto, en la línea %1, columna %2.</translation>
    </message>
    <message>
        <source>The text is no SELECT statement that can be read: from line %1, column %2 on it does not go on as one.</source>
        <translation>El texto no es una instrucción SELECT que se pueda leer: a partir de la línea %1, columna %2 no continúa como tal.</translation>
    </message>
    <message>
        <source>S&amp;tructure</source>
        <translation>Es&amp;tructura</translation>
    </message>
    <message>
        <source>&amp;Open structure...</source>
        <translation>&amp;Abrir estructura...</translation>
    </message>
    <message>
        <source>&amp;Save structure as...</source>
        <translation>&amp;Guardar estructura como...</translation>
    </message>
    <message>
        <source>&amp;Import it anew</source>
        <translation>&amp;Importarla de nuevo</translation>
    </message>
    <message>
        <source>Structures (*.str);;All files (*)</source>
        <translation>Estructuras (*.str);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Open structure</source>
        <translation>Abrir estructura</translation>
    </message>
    <message>
        <source>The structure %1 could not be opened: %2</source>
        <translation>No se pudo abrir la estructura %1: %2</translation>
    </message>
    <message>
        <source>Save structure</source>
        <translation>Guardar estructura</translation>
    </message>
    <message>
        <source>The structure could not be saved as %1: %2</source>
        <translation>No se pudo guardar la estructura como %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n column(s) of this query refer to fields that the database does not have. Choose others, or remove them.</source>
        <translation>
            <numerusform>%n columna de esta consulta se refiere a un campo que la base de datos no tiene. Elija otro o quítela.</numerusform>
            <numerusform>%n columnas de esta consulta se refieren a campos que la base de datos no tiene. Elija otros o quítelas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove them</source>
        <translation>Quitarlas</translation>
    </message>
    <message>
        <source>The query asks for the value of %1.</source>
        <translation>La consulta pide el valor de %1.</translation>
    </message>
    <message>
        <source>SQ&amp;L</source>
        <translation>SQ&amp;L</translation>
    </message>
    <message>
        <source>Add co&amp;ndition...</source>
        <translation>Añadir co&amp;ndición...</translation>
    </message>
    <message>
        <source>To the next label</source>
        <translation>A la palabra siguiente</translation>
    </message>
    <message>
        <source>To the row above or below</source>
        <translation>A la fila de arriba o de abajo</translation>
    </message>
    <message>
        <source>Open the label: its menu, list or editor</source>
        <translation>Abrir la palabra: su menú, lista o editor</translation>
    </message>
    <message>
        <source>Close it, and leave all as it was</source>
        <translation>Cerrarla y dejarlo todo como estaba</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ay&amp;uda</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>&amp;Guía</translation>
    </message>
    <message>
        <source>Guide</source>
        <translation>Guía</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;Teclas</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>&amp;About tern7-explorer</source>
        <translation>&amp;Acerca de tern7-explorer</translation>
    </message>
    <message>
        <source>%1: choose what the result shows; type to search the menu. A click on the blue words of a column chooses another field, or sorts.</source>
        <translation>%1: elija lo que muestra el resultado; escriba para buscar en el menú. Un clic en las palabras azules de una columna elige otro campo u ordena.</translation>
    </message>
    <message>
        <source>%1: choose a field, then click on the blue words to change what is compared. Brackets say whether all, any or none of their conditions apply.</source>
        <translation>%1: elija un campo y haga clic en las palabras azules para cambiar lo que se compara. Los paréntesis dicen si se cumplen todas, alguna o ninguna de sus condiciones.</translation>
    </message>
    <message>
        <source>%1: captions, formulas, sums and counts. With a sum there is one row for each combination of the other columns.</source>
        <translation>%1: títulos, fórmulas, sumas y recuentos. Con una suma hay una fila por cada combinación de las demás columnas.</translation>
    </message>
    <message>
        <source>%1: the tables that the query joins stand below the columns; where several ways lead from one to the other, choose the one that is meant.</source>
        <translation>%1: las tablas que une la consulta están debajo de las columnas; si varios caminos llevan de una a otra, elija el que corresponde.</translation>
    </message>
    <message>
        <source>%1: the rows appear below. A click on a header sorts by that column.</source>
        <translation>%1: las filas aparecen abajo. Un clic en un encabezado ordena por esa columna.</translation>
    </message>
    <message>
        <source>%1 keeps the query, %2 its rows for other programs.</source>
        <translation>%1 conserva la consulta; %2, sus filas para otros programas.</translation>
    </message>
    <message>
        <source>%1: every step can be taken back.</source>
        <translation>%1: cada paso se puede deshacer.</translation>
    </message>
    <message>
        <source>A query shows columns of a database, for the records that its conditions let through.</source>
        <translation>Una consulta muestra columnas de una base de datos, para los registros que sus condiciones dejan pasar.</translation>
    </message>
    <message>
        <source>%1 leads to other databases; a file of SQLite can be dropped on the window. Databases are only read, never changed.</source>
        <translation>%1 lleva a otras bases de datos; se puede soltar un archivo de SQLite en la ventana. Las bases de datos solo se leen, nunca se modifican.</translation>
    </message>
    <message>
        <source>On a condition or column</source>
        <translation>Sobre una condición o columna</translation>
    </message>
    <message>
        <source>Between the blue words</source>
        <translation>Entre las palabras azules</translation>
    </message>
    <message>
        <source>With Qt %1.</source>
        <translation>Con Qt %1.</translation>
    </message>
    <message>
        <source>Licence: MIT. Copyright 2026 the tern7 authors.</source>
        <translation>Licencia: MIT. Copyright 2026 los autores de tern7.</translation>
    </message>
    <message>
        <source>About tern7-explorer</source>
        <translation>Acerca de tern7-explorer</translation>
    </message>
    <message>
        <source>The joins start from %1 now, and not from %2: the rows may be others.</source>
        <translation>Las uniones parten ahora de %1 y no de %2: las filas pueden ser otras.</translation>
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
        <translation>Cerrar el mensaje</translation>
    </message>
</context>
<context>
    <name>tern7::TParameterDialog</name>
    <message>
        <source>Values of the query</source>
        <translation>Valores de la consulta</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Ejecutar</translation>
    </message>
    <message>
        <source>A value is missing: %1</source>
        <translation>Falta un valor: %1</translation>
    </message>
</context>
<context>
    <name>tern7::TQueryRunner</name>
    <message>
        <source>No database is open</source>
        <translation>No hay ninguna base de datos abierta</translation>
    </message>
</context>
<context>
    <name>tern7::TReadSQLDialog</name>
    <message>
        <source>Read SQL</source>
        <translation>Leer SQL</translation>
    </message>
    <message>
        <source>SELECT statement</source>
        <translation>Instrucción SELECT</translation>
    </message>
    <message>
        <source>A &amp;SELECT statement over the tables of this database takes the place of the query:</source>
        <translation>Una instrucción &amp;SELECT sobre las tablas de esta base de datos sustituye a la consulta:</translation>
    </message>
    <message>
        <source>&amp;Read</source>
        <translation>&amp;Leer</translation>
    </message>
</context>
<context>
    <name>tern7::TReportDialog</name>
    <message>
        <source>Understood</source>
        <translation>Entendido</translation>
    </message>
    <message>
        <source>Kept as text</source>
        <translation>Conservado como texto</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Omitido</translation>
    </message>
    <message>
        <source>alias</source>
        <translation>alias</translation>
    </message>
    <message>
        <source>column</source>
        <translation>columna</translation>
    </message>
    <message>
        <source>condition</source>
        <translation>condición</translation>
    </message>
    <message>
        <source>derived table</source>
        <translation>tabla derivada</translation>
    </message>
    <message>
        <source>grouping</source>
        <translation>agrupación</translation>
    </message>
    <message>
        <source>hint</source>
        <translation>indicación</translation>
    </message>
    <message>
        <source>join</source>
        <translation>combinación</translation>
    </message>
    <message>
        <source>parameter</source>
        <translation>parámetro</translation>
    </message>
    <message>
        <source>rest</source>
        <translation>resto</translation>
    </message>
    <message>
        <source>sorting</source>
        <translation>ordenación</translation>
    </message>
    <message>
        <source>statement</source>
        <translation>instrucción</translation>
    </message>
    <message>
        <source>table</source>
        <translation>tabla</translation>
    </message>
    <message>
        <source>a query can not say it</source>
        <translation>una consulta no puede expresarlo</translation>
    </message>
    <message>
        <source>another column has this alias</source>
        <translation>otra columna tiene este alias</translation>
    </message>
    <message>
        <source>another parameter has this name</source>
        <translation>otro parámetro tiene este nombre</translation>
    </message>
    <message>
        <source>it is no column</source>
        <translation>no es una columna</translation>
    </message>
    <message>
        <source>it names what the structure does not have</source>
        <translation>nombra algo que la estructura no tiene</translation>
    </message>
    <message>
        <source>no column and no condition uses it</source>
        <translation>ninguna columna ni condición lo usa</translation>
    </message>
    <message>
        <source>no field or operator of the structure says it</source>
        <translation>ningún campo ni operador de la estructura lo expresa</translation>
    </message>
    <message>
        <source>no link of the structure</source>
        <translation>no es un enlace de la estructura</translation>
    </message>
    <message>
        <source>the columns ask for other groups</source>
        <translation>las columnas piden otros grupos</translation>
    </message>
    <message>
        <source>the query joins the tables in another order</source>
        <translation>la consulta combina las tablas en otro orden</translation>
    </message>
    <message>
        <source>the structure has no such table</source>
        <translation>la estructura no tiene esa tabla</translation>
    </message>
    <message>
        <source>the structure joins it in another way</source>
        <translation>la estructura lo combina de otra manera</translation>
    </message>
    <message>
        <source>the structure joins these tables in another way</source>
        <translation>la estructura combina estas tablas de otra manera</translation>
    </message>
    <message>
        <source>What was read</source>
        <translation>Lo que se leyó</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>Parte</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>Parts of the statement</source>
        <translation>Partes de la instrucción</translation>
    </message>
    <message numerus="yes">
        <source>%n part(s) of the statement were left out: the query does not say the same.</source>
        <translation>
            <numerusform>Se omitió %n parte de la instrucción: la consulta no dice lo mismo.</numerusform>
            <numerusform>Se omitieron %n partes de la instrucción: la consulta no dice lo mismo.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n part(s) were kept as text.</source>
        <translation>
            <numerusform>Se conservó %n parte como texto.</numerusform>
            <numerusform>Se conservaron %n partes como texto.</numerusform>
        </translation>
    </message>
    <message>
        <source>Everything was understood.</source>
        <translation>Se entendió todo.</translation>
    </message>
    <message>
        <source>&amp;Keep the query</source>
        <translation>&amp;Conservar la consulta</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>text</source>
        <translation>texto</translation>
    </message>
    <message>
        <source>the string is not closed</source>
        <translation>la cadena no está cerrada</translation>
    </message>
    <message>
        <source>Line, column</source>
        <translation>Línea, columna</translation>
    </message>
    <message>
        <source>the parser does not read it</source>
        <translation>el analizador no lo lee</translation>
    </message>
    <message>
        <source>no field has this expression</source>
        <translation>ningún campo tiene esta expresión</translation>
    </message>
    <message>
        <source>no operator has this form</source>
        <translation>ningún operador tiene esta forma</translation>
    </message>
    <message>
        <source>a condition keeps this table, which nothing else uses</source>
        <translation>una condición conserva esta tabla, que nada más usa</translation>
    </message>
    <message>
        <source>a condition keeps this join, which the structure makes by way of other tables</source>
        <translation>una condición conserva esta unión, que la estructura hace a través de otras tablas</translation>
    </message>
    <message>
        <source>only the syntax sql1 leaves out the structure&apos;s outer join with it</source>
        <translation>solo la sintaxis sql1 omite la unión externa que la estructura tiene con ella</translation>
    </message>
    <message>
        <source>a table of the sub-select has the name that the structure gives another</source>
        <translation>una tabla de la subconsulta tiene el nombre que la estructura da a otra</translation>
    </message>
    <message>
        <source>several tables have a column of this name</source>
        <translation>varias tablas tienen una columna con este nombre</translation>
    </message>
    <message>
        <source>the query needs a further table</source>
        <translation>la consulta necesita otra tabla</translation>
    </message>
    <message>
        <source>the columns that the tables are joined by would come twice</source>
        <translation>las columnas por las que se unen las tablas aparecerían dos veces</translation>
    </message>
</context>
<context>
    <name>tern7::TResultModel</name>
    <message>
        <source>No value</source>
        <translation>Sin valor</translation>
    </message>
</context>
<context>
    <name>tern7::TResultView</name>
    <message>
        <source>Result rows</source>
        <translation>Filas de resultado</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s)</source>
        <translation>
            <numerusform>%n fila</numerusform>
            <numerusform>%n filas</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 s</source>
        <translation>%1, %2 s</translation>
    </message>
    <message>
        <source>the first %1; there are more</source>
        <translation>las primeras %1; hay más</translation>
    </message>
    <message>
        <source>The database refused the query</source>
        <translation>La base de datos rechazó la consulta</translation>
    </message>
    <message>
        <source>Cancelled after %1 s</source>
        <translation>Cancelado después de %1 s</translation>
    </message>
    <message>
        <source>Running...</source>
        <translation>Ejecutando...</translation>
    </message>
    <message>
        <source>Running... %1, %2 s</source>
        <translation>Ejecutando... %1, %2 s</translation>
    </message>
    <message>
        <source>Not run yet</source>
        <translation>Aún no ejecutada</translation>
    </message>
    <message>
        <source>Rows of the query before the last changes · %1</source>
        <translation>Filas de la consulta antes de los últimos cambios · %1</translation>
    </message>
</context>
</TS>
