<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>tern7::TDropDownLabel</name>
    <message>
        <source>empty</source>
        <translation>vacío</translation>
    </message>
    <message>
        <source>press to change</source>
        <translation>pulse para cambiar</translation>
    </message>
    <message>
        <source>%1, press to change</source>
        <translation>%1, pulse para cambiar</translation>
    </message>
</context>
<context>
    <name>tern7::TFieldTree</name>
    <message>
        <source>No field has this name</source>
        <translation>Ningún campo tiene este nombre</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
</context>
<context>
    <name>tern7::TFilterRowView</name>
    <message>
        <source>Row menu</source>
        <translation>Menú de la fila</translation>
    </message>
    <message>
        <source>Row takes part</source>
        <translation>La fila participa</translation>
    </message>
    <message>
        <source>The bracket around it is switched off</source>
        <translation>El paréntesis que la contiene está desactivado</translation>
    </message>
    <message>
        <source>The condition is left out: %1</source>
        <translation>La condición no se tiene en cuenta: %1</translation>
    </message>
    <message>
        <source>How the conditions are joined</source>
        <translation>Cómo se unen las condiciones</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Campo</translation>
    </message>
    <message>
        <source>%1, operator</source>
        <translation>%1, operador</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operador</translation>
    </message>
    <message>
        <source>%1, second value</source>
        <translation>%1, segundo valor</translation>
    </message>
    <message>
        <source>The list is being read</source>
        <translation>Se está leyendo la lista</translation>
    </message>
    <message>
        <source>The list could not be read: %1</source>
        <translation>No se pudo leer la lista: %1</translation>
    </message>
</context>
<context>
    <name>tern7::TKPopupMenu</name>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>No se encontró nada</translation>
    </message>
</context>
<context>
    <name>tern7::TKQueryEditor</name>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Add condition</source>
        <translation>Añadir condición</translation>
    </message>
    <message>
        <source>Add bracket</source>
        <translation>Añadir paréntesis</translation>
    </message>
    <message>
        <source>Delete bracket</source>
        <translation>Eliminar paréntesis</translation>
    </message>
    <message>
        <source>Delete condition</source>
        <translation>Eliminar condición</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Mover</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Activar</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Desactivar</translation>
    </message>
    <message>
        <source>Change bracket</source>
        <translation>Cambiar paréntesis</translation>
    </message>
    <message>
        <source>Change joining word</source>
        <translation>Cambiar la conjunción</translation>
    </message>
    <message>
        <source>Choose field</source>
        <translation>Elegir campo</translation>
    </message>
    <message>
        <source>Choose operator</source>
        <translation>Elegir operador</translation>
    </message>
    <message>
        <source>Change value</source>
        <translation>Cambiar valor</translation>
    </message>
    <message>
        <source>Make parameter</source>
        <translation>Convertir en parámetro</translation>
    </message>
    <message>
        <source>Make constant</source>
        <translation>Convertir en valor constante</translation>
    </message>
    <message>
        <source>Change parameter</source>
        <translation>Cambiar parámetro</translation>
    </message>
    <message>
        <source>Edit sub-query</source>
        <translation>Editar subconsulta</translation>
    </message>
    <message>
        <source>Change caption</source>
        <translation>Cambiar título</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Add column</source>
        <translation>Añadir columna</translation>
    </message>
    <message>
        <source>Delete column</source>
        <translation>Eliminar columna</translation>
    </message>
    <message>
        <source>Move column</source>
        <translation>Mover columna</translation>
    </message>
    <message>
        <source>Duplicate column</source>
        <translation>Duplicar columna</translation>
    </message>
    <message>
        <source>Change formula</source>
        <translation>Cambiar fórmula</translation>
    </message>
    <message>
        <source>Change sorting</source>
        <translation>Cambiar ordenación</translation>
    </message>
    <message>
        <source>Change sort order</source>
        <translation>Cambiar el orden de la ordenación</translation>
    </message>
    <message>
        <source>Just sorting</source>
        <translation>Solo ordenar</translation>
    </message>
    <message>
        <source>Edit columns</source>
        <translation>Editar columnas</translation>
    </message>
    <message>
        <source>Change options</source>
        <translation>Cambiar opciones</translation>
    </message>
    <message>
        <source>Choose main table</source>
        <translation>Elegir tabla principal</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>Renumber sorting</source>
        <translation>Renumerar la ordenación</translation>
    </message>
    <message>
        <source>Clear columns</source>
        <translation>Vaciar columnas</translation>
    </message>
    <message>
        <source>Join another way</source>
        <translation>Unir de otra forma</translation>
    </message>
    <message>
        <source>Delete row</source>
        <translation>Eliminar fila</translation>
    </message>
    <message>
        <source>Switch row on or off</source>
        <translation>Activar o desactivar la fila</translation>
    </message>
    <message>
        <source>Row menu</source>
        <translation>Menú de la fila</translation>
    </message>
</context>
<context>
    <name>tern7::TKQueryPanel</name>
    <message>
        <source>level %1</source>
        <translation>nivel %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>desactivada</translation>
    </message>
    <message>
        <source>left out: %1</source>
        <translation>no se tiene en cuenta: %1</translation>
    </message>
    <message>
        <source>The list is empty</source>
        <translation>La lista está vacía</translation>
    </message>
    <message>
        <source>The list is being read...</source>
        <translation>Leyendo la lista...</translation>
    </message>
    <message>
        <source>The list could not be read: %1</source>
        <translation>No se pudo leer la lista: %1</translation>
    </message>
    <message>
        <source>&amp;Read it again</source>
        <translation>&amp;Leer de nuevo</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sí</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
</context>
<context>
    <name>tern7::TKResultFieldsPanel</name>
    <message>
        <source>Column %1: %2, %3</source>
        <translation>Columna %1: %2, %3</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Columna %1</translation>
    </message>
    <message>
        <source>Sorting of %1</source>
        <translation>Ordenación de %1</translation>
    </message>
    <message>
        <source>Result fields</source>
        <translation>Campos de resultado</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Ctrl and a click: formula, function, caption</source>
        <translation>Ctrl y un clic: fórmula, función, título</translation>
    </message>
</context>
<context>
    <name>tern7::TKTitlesGrid</name>
    <message>
        <source>English</source>
        <translation>Inglés</translation>
    </message>
    <message>
        <source>Translated</source>
        <translation>Traducido</translation>
    </message>
</context>
<context>
    <name>tern7::TListPopup</name>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
</context>
<context>
    <name>tern7::TRowProblem</name>
    <message>
        <source>choose a field</source>
        <translation>elija un campo</translation>
    </message>
    <message>
        <source>choose an operator</source>
        <translation>elija un operador</translation>
    </message>
    <message>
        <source>this field is not known any more</source>
        <translation>este campo ya no se conoce</translation>
    </message>
    <message>
        <source>this operator is not known any more</source>
        <translation>este operador ya no se conoce</translation>
    </message>
    <message>
        <source>define the sub-query</source>
        <translation>defina la subconsulta</translation>
    </message>
    <message>
        <source>enter a value</source>
        <translation>introduzca un valor</translation>
    </message>
    <message>
        <source>“%1” can not be read as a date or time</source>
        <translation>«%1» no es una fecha ni una hora</translation>
    </message>
    <message>
        <source>“%1” is no list of numbers</source>
        <translation>«%1» no es una lista de números</translation>
    </message>
    <message>
        <source>“%1” is no number</source>
        <translation>«%1» no es un número</translation>
    </message>
    <message>
        <source>sub-query: %1</source>
        <translation>subconsulta: %1</translation>
    </message>
    <message>
        <source>write for example %1</source>
        <translation>escriba, por ejemplo, %1</translation>
    </message>
    <message>
        <source>write for example %1, or always %2</source>
        <translation>escriba, por ejemplo, %1 o, siempre, %2</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <translation>%1; %2</translation>
    </message>
    <message>
        <source>left out of the SQL that was read: %1</source>
        <translation>omitido del SQL leído: %1</translation>
    </message>
</context>
<context>
    <name>tern7::T_dlgRFieldsEdit</name>
    <message>
        <source>A bracket or quote has no counterpart</source>
        <translation>Falta la pareja de un paréntesis o de una comilla</translation>
    </message>
    <message>
        <source>This column has no expression yet</source>
        <translation>Esta columna aún no tiene expresión</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>Función</translation>
    </message>
    <message>
        <source>Function over the rows</source>
        <translation>Función sobre las filas</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>A comment or semicolon can not stand in an expression</source>
        <translation>Una expresión no puede contener comentarios ni punto y coma</translation>
    </message>
    <message>
        <source>There is no field in it: fields stand in braces, {Name}</source>
        <translation>La expresión no contiene ningún campo: los campos van entre llaves, {Nombre}</translation>
    </message>
    <message>
        <source>An invisible character that turns the direction of text can not stand in an expression</source>
        <translation>Un carácter invisible que cambia la dirección del texto no puede estar en una expresión</translation>
    </message>
    <message>
        <source>More than one field has this name: %1</source>
        <translation>Varios campos tienen este nombre: %1</translation>
    </message>
    <message>
        <source>Perhaps it is meant: %1</source>
        <translation>Quizá se refiera a: %1</translation>
    </message>
</context>
<context>
    <name>tern7::T_dlgSubQuery</name>
    <message>
        <source>Choose the field that the sub-query returns.</source>
        <translation>Elija el campo que devuelve la subconsulta.</translation>
    </message>
</context>
<context>
    <name>tern7::T_dlgTitlesEdit</name>
    <message>
        <source>Titles editor</source>
        <translation>Editor de títulos</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>&amp;Cargar...</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>&amp;Guardar...</translation>
    </message>
    <message>
        <source>&amp;Load From File...</source>
        <translation>&amp;Cargar de un archivo...</translation>
    </message>
    <message>
        <source>&amp;Save To File</source>
        <translation>&amp;Guardar en un archivo</translation>
    </message>
    <message>
        <source>TERN Titles (*.ttl)</source>
        <translation>Títulos TERN (*.ttl)</translation>
    </message>
    <message>
        <source>Query files (*.qry)</source>
        <translation>Archivos de consulta (*.qry)</translation>
    </message>
    <message>
        <source>Discard the changes?</source>
        <translation>¿Descartar los cambios?</translation>
    </message>
    <message>
        <source>The file holds no titles that can be used here: %1</source>
        <translation>El archivo no contiene títulos que sirvan aquí: %1</translation>
    </message>
    <message>
        <source>The file is not UTF-8 and was read as Windows-1252.</source>
        <translation>El archivo no está en UTF-8 y se ha leído como Windows-1252.</translation>
    </message>
</context>
</TS>
