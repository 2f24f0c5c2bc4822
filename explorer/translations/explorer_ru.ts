<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>main</name>
    <message>
        <source>Questions to a database without SQL.</source>
        <translation>Вопросы к базе данных без SQL.</translation>
    </message>
    <message>
        <source>Opens a database: a SQLite file, or an address such as postgresql://user@host/name.</source>
        <translation>Открывает базу данных: файл SQLite или адрес вида postgresql://user@host/name.</translation>
    </message>
    <message>
        <source>Loads the structure instead of importing it.</source>
        <translation>Загружает структуру, а не импортирует её.</translation>
    </message>
    <message>
        <source>Opens a saved query.</source>
        <translation>Открывает сохранённый запрос.</translation>
    </message>
    <message>
        <source>Runs the query, saves a picture of the window and ends.</source>
        <translation>Выполняет запрос, сохраняет снимок окна и завершается.</translation>
    </message>
    <message>
        <source>Language of the program.</source>
        <translation>Язык программы.</translation>
    </message>
    <message>
        <source>&quot;light&quot; or &quot;dark&quot;.</source>
        <translation>«light» (светлое) или «dark» (тёмное).</translation>
    </message>
    <message>
        <source>Size of the window.</source>
        <translation>Размер окна.</translation>
    </message>
</context>
<context>
    <name>messages</name>
    <message>
        <source>The file %1 can not be opened.</source>
        <translation>Не удаётся открыть файл %1.</translation>
    </message>
    <message>
        <source>The file %1 can not be written.</source>
        <translation>Не удаётся записать файл %1.</translation>
    </message>
    <message>
        <source>The text is damaged: section %2 has a wrong value of %1: %3</source>
        <translation>Текст повреждён: в разделе %2 неверное значение %1: %3</translation>
    </message>
    <message>
        <source>The text is damaged: section %1 is missing.</source>
        <translation>Текст повреждён: нет раздела %1.</translation>
    </message>
    <message>
        <source>The text is too long.</source>
        <translation>Текст слишком длинный.</translation>
    </message>
    <message>
        <source>Rows are nested too deep.</source>
        <translation>Строки вложены слишком глубоко.</translation>
    </message>
    <message>
        <source>The text has the version %1; what is newer than %2 was not read.</source>
        <translation>Версия текста %1; всё, что новее %2, не прочитано.</translation>
    </message>
    <message>
        <source>The text is not UTF-8; it was read as Windows-1252.</source>
        <translation>Текст не в кодировке UTF-8; он прочитан как Windows-1252.</translation>
    </message>
    <message>
        <source>The database has no table %1.</source>
        <translation>В базе данных нет таблицы %1.</translation>
    </message>
    <message>
        <source>No links of the database lead from one of the tables to the others.</source>
        <translation>Связи базы данных не ведут от одной из таблиц к остальным.</translation>
    </message>
    <message>
        <source>The query has no column and no condition yet.</source>
        <translation>В запросе ещё нет ни столбцов, ни условий.</translation>
    </message>
    <message>
        <source>No database is open.</source>
        <translation>База данных не открыта.</translation>
    </message>
    <message>
        <source>This can not be a value of “%1”: %2</source>
        <translation>Это не может быть значением «%1»: %2</translation>
    </message>
    <message>
        <source>This condition is text that can not be executed safely: %1</source>
        <translation>Это условие — текст, который нельзя безопасно выполнить: %1</translation>
    </message>
    <message>
        <source>A value holds a NUL character.</source>
        <translation>Значение содержит символ NUL.</translation>
    </message>
    <message>
        <source>There is no field %1.</source>
        <translation>Нет поля %1.</translation>
    </message>
    <message>
        <source>A text in an expression with fields can not hold “@” and a digit: %1</source>
        <translation>Текст в выражении с полями не может содержать «@» с цифрой: %1</translation>
    </message>
    <message>
        <source>The statement for a list of values must give two columns.</source>
        <translation>Запрос списка значений должен давать два столбца.</translation>
    </message>
    <message>
        <source>The database must be given as sqlite:PATH, postgresql://user@host:port/name, mysql://user@host:port/name or odbc:DSN.</source>
        <translation>База данных указывается как sqlite:PATH, postgresql://user@host:port/name, mysql://user@host:port/name или odbc:DSN.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>Порт должен быть числом от 1 до 65535.</translation>
    </message>
    <message>
        <source>The address of the database has an unknown or wrong option “%1”.</source>
        <translation>В адресе базы данных неизвестный или неверный параметр «%1».</translation>
    </message>
    <message>
        <source>The address names no database.</source>
        <translation>В адресе не названа база данных.</translation>
    </message>
    <message>
        <source>There is no database file %1.</source>
        <translation>Нет файла базы данных %1.</translation>
    </message>
    <message>
        <source>The driver %1 of Qt SQL is not installed.</source>
        <translation>Драйвер %1 для Qt SQL не установлен.</translation>
    </message>
    <message>
        <source>The database %1 can not be opened: %2</source>
        <translation>Не удаётся открыть базу данных %1: %2</translation>
    </message>
    <message>
        <source>Only SELECT statements are executed.</source>
        <translation>Выполняются только операторы SELECT.</translation>
    </message>
    <message>
        <source>Only one statement is executed at a time.</source>
        <translation>За один раз выполняется только один оператор.</translation>
    </message>
    <message>
        <source>A quote, comment or bracket of the statement is not closed.</source>
        <translation>В операторе не закрыта кавычка, комментарий или скобка.</translation>
    </message>
    <message>
        <source>The statement holds a NUL character.</source>
        <translation>Оператор содержит символ NUL.</translation>
    </message>
    <message>
        <source>The parameter %1 has no value.</source>
        <translation>У параметра %1 нет значения.</translation>
    </message>
</context>
<context>
    <name>operators</name>
    <message>
        <source>is equal to</source>
        <translation>равно</translation>
    </message>
    <message>
        <source>is not equal to</source>
        <translation>не равно</translation>
    </message>
    <message>
        <source>is less than</source>
        <translation>меньше</translation>
    </message>
    <message>
        <source>is less than or equal to</source>
        <translation>меньше или равно</translation>
    </message>
    <message>
        <source>is greater than</source>
        <translation>больше</translation>
    </message>
    <message>
        <source>is greater than or equal to</source>
        <translation>больше или равно</translation>
    </message>
    <message>
        <source>is null</source>
        <translation>пусто</translation>
    </message>
    <message>
        <source>is in list</source>
        <translation>входит в список</translation>
    </message>
    <message>
        <source>starts with</source>
        <translation>начинается с</translation>
    </message>
    <message>
        <source>does not start with</source>
        <translation>не начинается с</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>содержит</translation>
    </message>
    <message>
        <source>does not contain</source>
        <translation>не содержит</translation>
    </message>
    <message>
        <source>is between</source>
        <translation>между</translation>
    </message>
    <message>
        <source>and</source>
        <translation>и</translation>
    </message>
</context>
<context>
    <name>tern7::TConnectionDialog</name>
    <message>
        <source>Open database</source>
        <translation>Открыть базу данных</translation>
    </message>
    <message>
        <source>SQLite file</source>
        <translation>Файл SQLite</translation>
    </message>
    <message>
        <source>PostgreSQL server</source>
        <translation>Сервер PostgreSQL</translation>
    </message>
    <message>
        <source>MariaDB or MySQL server</source>
        <translation>Сервер MariaDB или MySQL</translation>
    </message>
    <message>
        <source>ODBC data source</source>
        <translation>Источник данных ODBC</translation>
    </message>
    <message>
        <source>&amp;Database:</source>
        <translation>&amp;База данных:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Обзор...</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translation>&amp;Файл:</translation>
    </message>
    <message>
        <source>not kept</source>
        <translation>не сохраняется</translation>
    </message>
    <message>
        <source>&amp;Server:</source>
        <translation>&amp;Сервер:</translation>
    </message>
    <message>
        <source>P&amp;ort:</source>
        <translation>П&amp;орт:</translation>
    </message>
    <message>
        <source>&amp;Name of the database:</source>
        <translation>&amp;Имя базы данных:</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Пользователь:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>П&amp;ароль:</translation>
    </message>
    <message>
        <source>Name of a data source, or a connection string</source>
        <translation>Имя источника данных или строка подключения</translation>
    </message>
    <message>
        <source>&amp;Source:</source>
        <translation>&amp;Источник:</translation>
    </message>
    <message>
        <source>SQLite databases (*.db *.sqlite *.sqlite3 *.db3);;All files (*)</source>
        <translation>Базы данных SQLite (*.db *.sqlite *.sqlite3 *.db3);;Все файлы (*)</translation>
    </message>
</context>
<context>
    <name>tern7::TKQueryEditor</name>
    <message>
        <source>Equal rows</source>
        <translation>Одинаковые строки</translation>
    </message>
    <message>
        <source>Sort</source>
        <translation>Сортировать</translation>
    </message>
    <message>
        <source>Add column</source>
        <translation>Добавить столбец</translation>
    </message>
    <message>
        <source>Read SQL</source>
        <translation>Прочитать SQL</translation>
    </message>
    <message>
        <source>Delete column</source>
        <translation>Удалить столбец</translation>
    </message>
</context>
<context>
    <name>tern7::TMainWindow</name>
    <message>
        <source>&amp;Result</source>
        <translation>&amp;Результат</translation>
    </message>
    <message>
        <source>C&amp;olumns</source>
        <translation>Ст&amp;олбцы</translation>
    </message>
    <message>
        <source>Con&amp;ditions</source>
        <translation>&amp;Условия</translation>
    </message>
    <message>
        <source>New query</source>
        <translation>Новый запрос</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>Open &amp;database...</source>
        <translation>Открыть &amp;базу данных...</translation>
    </message>
    <message>
        <source>Recent d&amp;atabases</source>
        <translation>Недавние б&amp;азы данных</translation>
    </message>
    <message>
        <source>Sa&amp;mple database</source>
        <translation>Де&amp;монстрационная база данных</translation>
    </message>
    <message>
        <source>&amp;New query</source>
        <translation>&amp;Новый запрос</translation>
    </message>
    <message>
        <source>&amp;Open query...</source>
        <translation>&amp;Открыть запрос...</translation>
    </message>
    <message>
        <source>&amp;Recent queries</source>
        <translation>Неда&amp;вние запросы</translation>
    </message>
    <message>
        <source>&amp;Save query</source>
        <translation>&amp;Сохранить запрос</translation>
    </message>
    <message>
        <source>Save query &amp;as...</source>
        <translation>Сохранить запрос &amp;как...</translation>
    </message>
    <message>
        <source>Read S&amp;QL...</source>
        <translation>Прочитать S&amp;QL...</translation>
    </message>
    <message>
        <source>Save &amp;rows as CSV...</source>
        <translation>Сохранить строки в &amp;CSV...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Вы&amp;ход</translation>
    </message>
    <message>
        <source>&amp;Query</source>
        <translation>&amp;Запрос</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Выполнить</translation>
    </message>
    <message>
        <source>Run the query (F5)</source>
        <translation>Выполнить запрос (F5)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>О&amp;тмена</translation>
    </message>
    <message>
        <source>Run after every c&amp;hange</source>
        <translation>Выполнять после каждого из&amp;менения</translation>
    </message>
    <message>
        <source>Add c&amp;olumn...</source>
        <translation>Добавить ст&amp;олбец...</translation>
    </message>
    <message>
        <source>&amp;Equal rows only once</source>
        <translation>&amp;Одинаковые строки только один раз</translation>
    </message>
    <message>
        <source>E&amp;dit columns...</source>
        <translation>&amp;Изменить столбцы...</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Инструменты</translation>
    </message>
    <message>
        <source>Rows at &amp;most:</source>
        <translation>Строк не &amp;более:</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Правка</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Отменить</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Вернуть</translation>
    </message>
    <message>
        <source>&amp;Copy rows</source>
        <translation>&amp;Копировать строки</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>&amp;Отменить: %1</translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <translation>&amp;Вернуть: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Вернуть</translation>
    </message>
    <message>
        <source>Queries (*.qry);;All files (*)</source>
        <translation>Запросы (*.qry);;Все файлы (*)</translation>
    </message>
    <message>
        <source>Sample database</source>
        <translation>Демонстрационная база данных</translation>
    </message>
    <message>
        <source>Open database</source>
        <translation>Открыть базу данных</translation>
    </message>
    <message>
        <source>Open query</source>
        <translation>Открыть запрос</translation>
    </message>
    <message>
        <source>Save query</source>
        <translation>Сохранить запрос</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Несохранённые изменения</translation>
    </message>
    <message>
        <source>The query was changed. Save the changes?</source>
        <translation>Запрос изменён. Сохранить изменения?</translation>
    </message>
    <message>
        <source>Read SQL</source>
        <translation>Прочитать SQL</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) of this query refer to fields that the database does not have. They are marked and take no part.</source>
        <translation>
            <numerusform>%n строка запроса ссылается на поля, которых нет в базе данных. Она помечена и не участвует.</numerusform>
            <numerusform>%n строки запроса ссылаются на поля, которых нет в базе данных. Они помечены и не участвуют.</numerusform>
            <numerusform>%n строк запроса ссылаются на поля, которых нет в базе данных. Они помечены и не участвуют.</numerusform>
        </translation>
    </message>
    <message>
        <source>Save rows</source>
        <translation>Сохранить строки</translation>
    </message>
    <message>
        <source>Comma separated values (*.csv)</source>
        <translation>Значения через запятую (*.csv)</translation>
    </message>
    <message>
        <source>Add a column to begin.</source>
        <translation>Для начала добавьте столбец.</translation>
    </message>
    <message>
        <source>One row for all records.</source>
        <translation>Одна строка на все записи.</translation>
    </message>
    <message>
        <source>One row for each: %1.</source>
        <translation>По строке на каждое: %1.</translation>
    </message>
    <message>
        <source>Add a column first: it is what the result will show.</source>
        <translation>Сначала добавьте столбец: его и покажет результат.</translation>
    </message>
    <message>
        <source>Add column</source>
        <translation>Добавить столбец</translation>
    </message>
    <message>
        <source>Show the row</source>
        <translation>Показать строку</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>«%1»: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n condition(s) are not finished and take no part (%1).</source>
        <translation>
            <numerusform>%n условие не закончено и не участвует (%1).</numerusform>
            <numerusform>%n условия не закончены и не участвуют (%1).</numerusform>
            <numerusform>%n условий не закончены и не участвуют (%1).</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Вид</translation>
    </message>
    <message>
        <source>Show &amp;SQL</source>
        <translation>Показать &amp;SQL</translation>
    </message>
    <message>
        <source>And/or &amp;words instead of brackets</source>
        <translation>&amp;Слова «и/или» вместо скобок</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Язык</translation>
    </message>
    <message>
        <source>&amp;Captions</source>
        <translation>&amp;Подписи</translation>
    </message>
    <message>
        <source>Of the con&amp;ditions...</source>
        <translation>&amp;Условий...</translation>
    </message>
    <message>
        <source>Of the c&amp;olumns...</source>
        <translation>&amp;Столбцов...</translation>
    </message>
    <message>
        <source>As &amp;delivered</source>
        <translation>Как &amp;изначально</translation>
    </message>
    <message>
        <source>L&amp;ook</source>
        <translation>&amp;Оформление</translation>
    </message>
    <message>
        <source>As the s&amp;ystem</source>
        <translation>Как в с&amp;истеме</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Светлое</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Тёмное</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>&amp;Увеличить</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>У&amp;меньшить</translation>
    </message>
    <message>
        <source>&amp;Normal size</source>
        <translation>&amp;Обычный размер</translation>
    </message>
    <message>
        <source>Waiting for the database...</source>
        <translation>Ожидание базы данных...</translation>
    </message>
    <message>
        <source>Reading table %1 of %2...</source>
        <translation>Чтение таблицы %1 из %2...</translation>
    </message>
    <message>
        <source>Captions, formulas, sums and counts (Ctrl+Shift+K)</source>
        <translation>Подписи, формулы, суммы и количества (Ctrl+Shift+K)</translation>
    </message>
    <message>
        <source>Choose a field that the result shows (Ctrl+K)</source>
        <translation>Выбрать поле для результата (Ctrl+K)</translation>
    </message>
    <message>
        <source>Start from &amp;table...</source>
        <translation>Исходная &amp;таблица...</translation>
    </message>
    <message>
        <source>Tables: %1.</source>
        <translation>Таблицы: %1.</translation>
    </message>
    <message>
        <source>Start from another table...</source>
        <translation>Начать с другой таблицы...</translation>
    </message>
    <message>
        <source>Chosen by the columns</source>
        <translation>По столбцам</translation>
    </message>
    <message>
        <source>&amp;Join another way...</source>
        <translation>Со&amp;единить иначе...</translation>
    </message>
    <message>
        <source>%1 and %2 have only %3 in common.</source>
        <translation>Для %1 и %2 общее только %3.</translation>
    </message>
    <message>
        <source>Join another way...</source>
        <translation>Соединить иначе...</translation>
    </message>
    <message>
        <source>The query %1 could not be opened: %2</source>
        <translation>Не удалось открыть запрос %1: %2</translation>
    </message>
    <message>
        <source>The query could not be saved as %1: %2</source>
        <translation>Не удалось сохранить запрос как %1: %2</translation>
    </message>
    <message>
        <source>The file %1 could not be read: %2</source>
        <translation>Не удалось прочитать файл %1: %2</translation>
    </message>
    <message>
        <source>The rows could not be saved as %1: %2</source>
        <translation>Не удалось сохранить строки как %1: %2</translation>
    </message>
    <message>
        <source>The string that begins at line %1, column %2 is not closed.</source>
        <translation>Строка в кавычках, начатая в строке %1, столбце %2, не закрыта.</translation>
    </message>
    <message>
        <source>At line %1, column %2 a bracket is missing, or there is one too many.</source>
        <translation>В строке %1, столбце %2 не хватает скобки или есть лишняя.</translation>
    </message>
    <message>
        <source>The statement ends too early, at line %1, column %2.</source>
        <translation>Оператор обрывается в строке %1, столбце %2.</translation>
    </message>
    <message>
        <source>The text is no SELECT statement that can be read: from line %1, column %2 on it does not go on as one.</source>
        <translation>Текст не является оператором SELECT, который можно прочитать: начиная со строки %1, столбца %2 он продолжается иначе.</translation>
    </message>
    <message>
        <source>S&amp;tructure</source>
        <translation>С&amp;труктура</translation>
    </message>
    <message>
        <source>&amp;Open structure...</source>
        <translation>&amp;Открыть структуру...</translation>
    </message>
    <message>
        <source>&amp;Save structure as...</source>
        <translation>&amp;Сохранить структуру как...</translation>
    </message>
    <message>
        <source>&amp;Import it anew</source>
        <translation>&amp;Импортировать заново</translation>
    </message>
    <message>
        <source>Structures (*.str);;All files (*)</source>
        <translation>Структуры (*.str);;Все файлы (*)</translation>
    </message>
    <message>
        <source>Open structure</source>
        <translation>Открыть структуру</translation>
    </message>
    <message>
        <source>The structure %1 could not be opened: %2</source>
        <translation>Не удалось открыть структуру %1: %2</translation>
    </message>
    <message>
        <source>Save structure</source>
        <translation>Сохранить структуру</translation>
    </message>
    <message>
        <source>The structure could not be saved as %1: %2</source>
        <translation>Не удалось сохранить структуру как %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n column(s) of this query refer to fields that the database does not have. Choose others, or remove them.</source>
        <translation>
            <numerusform>%n столбец запроса ссылается на поле, которого нет в базе данных. Выберите другое или удалите его.</numerusform>
            <numerusform>%n столбца запроса ссылаются на поля, которых нет в базе данных. Выберите другие или удалите их.</numerusform>
            <numerusform>%n столбцов запроса ссылаются на поля, которых нет в базе данных. Выберите другие или удалите их.</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove them</source>
        <translation>Удалить их</translation>
    </message>
    <message>
        <source>The query asks for the value of %1.</source>
        <translation>Запрос требует значения: %1.</translation>
    </message>
    <message>
        <source>SQ&amp;L</source>
        <translation>SQ&amp;L</translation>
    </message>
    <message>
        <source>Add co&amp;ndition...</source>
        <translation>Добавить у&amp;словие...</translation>
    </message>
    <message>
        <source>To the next label</source>
        <translation>К следующему слову</translation>
    </message>
    <message>
        <source>To the row above or below</source>
        <translation>К строке выше или ниже</translation>
    </message>
    <message>
        <source>Open the label: its menu, list or editor</source>
        <translation>Открыть слово: его меню, список или поле ввода</translation>
    </message>
    <message>
        <source>Close it, and leave all as it was</source>
        <translation>Закрыть и оставить всё как было</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>&amp;Руководство</translation>
    </message>
    <message>
        <source>Guide</source>
        <translation>Руководство</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;Клавиши</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Клавиши</translation>
    </message>
    <message>
        <source>&amp;About tern7-explorer</source>
        <translation>&amp;О программе tern7-explorer</translation>
    </message>
    <message>
        <source>%1: choose what the result shows; type to search the menu. A click on the blue words of a column chooses another field, or sorts.</source>
        <translation>%1: выберите, что показывать в результате; набор текста ищет в меню. Щелчок по синим словам столбца выбирает другое поле или сортировку.</translation>
    </message>
    <message>
        <source>%1: choose a field, then click on the blue words to change what is compared. Brackets say whether all, any or none of their conditions apply.</source>
        <translation>%1: выберите поле, затем щёлкайте по синим словам, чтобы изменить сравнение. Скобки говорят, выполняются ли все, любое или ни одно из их условий.</translation>
    </message>
    <message>
        <source>%1: captions, formulas, sums and counts. With a sum there is one row for each combination of the other columns.</source>
        <translation>%1: заголовки, формулы, суммы и количества. С суммой получается одна строка на каждое сочетание остальных столбцов.</translation>
    </message>
    <message>
        <source>%1: the tables that the query joins stand below the columns; where several ways lead from one to the other, choose the one that is meant.</source>
        <translation>%1: таблицы, которые соединяет запрос, указаны под столбцами; если от одной к другой ведут несколько путей, выберите нужный.</translation>
    </message>
    <message>
        <source>%1: the rows appear below. A click on a header sorts by that column.</source>
        <translation>%1: строки появляются внизу. Щелчок по заголовку сортирует по этому столбцу.</translation>
    </message>
    <message>
        <source>%1 keeps the query, %2 its rows for other programs.</source>
        <translation>%1 сохраняет запрос, %2 — его строки для других программ.</translation>
    </message>
    <message>
        <source>%1: every step can be taken back.</source>
        <translation>%1: каждый шаг можно отменить.</translation>
    </message>
    <message>
        <source>A query shows columns of a database, for the records that its conditions let through.</source>
        <translation>Запрос показывает столбцы базы данных для записей, которые пропускают его условия.</translation>
    </message>
    <message>
        <source>%1 leads to other databases; a file of SQLite can be dropped on the window. Databases are only read, never changed.</source>
        <translation>%1 ведёт к другим базам данных; файл SQLite можно перетащить в окно. Базы данных только читаются и никогда не изменяются.</translation>
    </message>
    <message>
        <source>On a condition or column</source>
        <translation>На условии или столбце</translation>
    </message>
    <message>
        <source>Between the blue words</source>
        <translation>Между синими словами</translation>
    </message>
    <message>
        <source>With Qt %1.</source>
        <translation>На основе Qt %1.</translation>
    </message>
    <message>
        <source>Licence: MIT. Copyright 2026 the tern7 authors.</source>
        <translation>Лицензия: MIT. Copyright 2026 авторы tern7.</translation>
    </message>
    <message>
        <source>About tern7-explorer</source>
        <translation>О программе tern7-explorer</translation>
    </message>
    <message>
        <source>The joins start from %1 now, and not from %2: the rows may be others.</source>
        <translation>Соединения начинаются теперь с %1, а не с %2: строки могут быть другими.</translation>
    </message>
    <message>
        <source>Start from %1</source>
        <translation>Начать с %1</translation>
    </message>
</context>
<context>
    <name>tern7::TMessageBar</name>
    <message>
        <source>Close the message</source>
        <translation>Закрыть сообщение</translation>
    </message>
</context>
<context>
    <name>tern7::TParameterDialog</name>
    <message>
        <source>Values of the query</source>
        <translation>Значения запроса</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Выполнить</translation>
    </message>
    <message>
        <source>A value is missing: %1</source>
        <translation>Не указано значение: %1</translation>
    </message>
</context>
<context>
    <name>tern7::TQueryRunner</name>
    <message>
        <source>No database is open</source>
        <translation>База данных не открыта</translation>
    </message>
</context>
<context>
    <name>tern7::TReadSQLDialog</name>
    <message>
        <source>Read SQL</source>
        <translation>Прочитать SQL</translation>
    </message>
    <message>
        <source>SELECT statement</source>
        <translation>Оператор SELECT</translation>
    </message>
    <message>
        <source>A &amp;SELECT statement over the tables of this database takes the place of the query:</source>
        <translation>Оператор &amp;SELECT по таблицам этой базы данных заменит запрос:</translation>
    </message>
    <message>
        <source>&amp;Read</source>
        <translation>&amp;Прочитать</translation>
    </message>
</context>
<context>
    <name>tern7::TReportDialog</name>
    <message>
        <source>Understood</source>
        <translation>Понято</translation>
    </message>
    <message>
        <source>Kept as text</source>
        <translation>Оставлено текстом</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Опущено</translation>
    </message>
    <message>
        <source>alias</source>
        <translation>псевдоним</translation>
    </message>
    <message>
        <source>column</source>
        <translation>столбец</translation>
    </message>
    <message>
        <source>condition</source>
        <translation>условие</translation>
    </message>
    <message>
        <source>derived table</source>
        <translation>производная таблица</translation>
    </message>
    <message>
        <source>grouping</source>
        <translation>группировка</translation>
    </message>
    <message>
        <source>hint</source>
        <translation>подсказка</translation>
    </message>
    <message>
        <source>join</source>
        <translation>соединение</translation>
    </message>
    <message>
        <source>parameter</source>
        <translation>параметр</translation>
    </message>
    <message>
        <source>rest</source>
        <translation>остаток</translation>
    </message>
    <message>
        <source>sorting</source>
        <translation>сортировка</translation>
    </message>
    <message>
        <source>statement</source>
        <translation>оператор</translation>
    </message>
    <message>
        <source>table</source>
        <translation>таблица</translation>
    </message>
    <message>
        <source>a query can not say it</source>
        <translation>запрос не может этого выразить</translation>
    </message>
    <message>
        <source>another column has this alias</source>
        <translation>такой псевдоним есть у другого столбца</translation>
    </message>
    <message>
        <source>another parameter has this name</source>
        <translation>другой параметр имеет это имя</translation>
    </message>
    <message>
        <source>it is no column</source>
        <translation>это не столбец</translation>
    </message>
    <message>
        <source>it names what the structure does not have</source>
        <translation>названо то, чего нет в структуре</translation>
    </message>
    <message>
        <source>no column and no condition uses it</source>
        <translation>не используется ни столбцом, ни условием</translation>
    </message>
    <message>
        <source>no field or operator of the structure says it</source>
        <translation>нет поля или оператора структуры с таким смыслом</translation>
    </message>
    <message>
        <source>no link of the structure</source>
        <translation>нет такой связи в структуре</translation>
    </message>
    <message>
        <source>the columns ask for other groups</source>
        <translation>столбцам нужны другие группы</translation>
    </message>
    <message>
        <source>the query joins the tables in another order</source>
        <translation>запрос соединяет таблицы в другом порядке</translation>
    </message>
    <message>
        <source>the structure has no such table</source>
        <translation>в структуре нет такой таблицы</translation>
    </message>
    <message>
        <source>the structure joins it in another way</source>
        <translation>структура соединяет её иначе</translation>
    </message>
    <message>
        <source>the structure joins these tables in another way</source>
        <translation>структура соединяет эти таблицы иначе</translation>
    </message>
    <message>
        <source>What was read</source>
        <translation>Что прочитано</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Итог</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>Часть</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Причина</translation>
    </message>
    <message>
        <source>Parts of the statement</source>
        <translation>Части оператора</translation>
    </message>
    <message numerus="yes">
        <source>%n part(s) of the statement were left out: the query does not say the same.</source>
        <translation>
            <numerusform>%n часть оператора опущена: запрос говорит не то же самое.</numerusform>
            <numerusform>%n части оператора опущены: запрос говорит не то же самое.</numerusform>
            <numerusform>%n частей оператора опущено: запрос говорит не то же самое.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n part(s) were kept as text.</source>
        <translation>
            <numerusform>%n часть оставлена текстом.</numerusform>
            <numerusform>%n части оставлены текстом.</numerusform>
            <numerusform>%n частей оставлено текстом.</numerusform>
        </translation>
    </message>
    <message>
        <source>Everything was understood.</source>
        <translation>Всё понято.</translation>
    </message>
    <message>
        <source>&amp;Keep the query</source>
        <translation>&amp;Оставить запрос</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Отменить</translation>
    </message>
    <message>
        <source>text</source>
        <translation>текст</translation>
    </message>
    <message>
        <source>the string is not closed</source>
        <translation>строка в кавычках не закрыта</translation>
    </message>
    <message>
        <source>Line, column</source>
        <translation>Строка, столбец</translation>
    </message>
    <message>
        <source>the parser does not read it</source>
        <translation>анализатор этого не читает</translation>
    </message>
    <message>
        <source>no field has this expression</source>
        <translation>ни у одного поля нет такого выражения</translation>
    </message>
    <message>
        <source>no operator has this form</source>
        <translation>ни у одного оператора нет такой формы</translation>
    </message>
    <message>
        <source>a condition keeps this table, which nothing else uses</source>
        <translation>эту таблицу, которую больше ничто не использует, сохраняет условие</translation>
    </message>
    <message>
        <source>a condition keeps this join, which the structure makes by way of other tables</source>
        <translation>это соединение, которое структура делает через другие таблицы, сохраняет условие</translation>
    </message>
    <message>
        <source>only the syntax sql1 leaves out the structure&apos;s outer join with it</source>
        <translation>только синтаксис sql1 опускает внешнее соединение структуры с ней</translation>
    </message>
    <message>
        <source>a table of the sub-select has the name that the structure gives another</source>
        <translation>таблица подзапроса носит имя, которое структура даёт другой таблице</translation>
    </message>
    <message>
        <source>several tables have a column of this name</source>
        <translation>столбец с таким именем есть в нескольких таблицах</translation>
    </message>
    <message>
        <source>the query needs a further table</source>
        <translation>запросу нужна ещё одна таблица</translation>
    </message>
    <message>
        <source>the columns that the tables are joined by would come twice</source>
        <translation>столбцы, по которым соединены таблицы, появились бы дважды</translation>
    </message>
</context>
<context>
    <name>tern7::TResultModel</name>
    <message>
        <source>No value</source>
        <translation>Нет значения</translation>
    </message>
</context>
<context>
    <name>tern7::TResultView</name>
    <message>
        <source>Result rows</source>
        <translation>Строки результата</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s)</source>
        <translation>
            <numerusform>%n строка</numerusform>
            <numerusform>%n строки</numerusform>
            <numerusform>%n строк</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 s</source>
        <translation>%1, %2 с</translation>
    </message>
    <message>
        <source>the first %1; there are more</source>
        <translation>первые %1; есть ещё</translation>
    </message>
    <message>
        <source>The database refused the query</source>
        <translation>База данных отклонила запрос</translation>
    </message>
    <message>
        <source>Cancelled after %1 s</source>
        <translation>Отменено через %1 с</translation>
    </message>
    <message>
        <source>Running...</source>
        <translation>Выполняется...</translation>
    </message>
    <message>
        <source>Running... %1, %2 s</source>
        <translation>Выполняется... %1, %2 с</translation>
    </message>
    <message>
        <source>Not run yet</source>
        <translation>Ещё не выполнялся</translation>
    </message>
    <message>
        <source>Rows of the query before the last changes · %1</source>
        <translation>Строки запроса до последних изменений · %1</translation>
    </message>
</context>
</TS>
