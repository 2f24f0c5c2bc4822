<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>tern7::TDropDownLabel</name>
    <message>
        <source>empty</source>
        <translation>пусто</translation>
    </message>
    <message>
        <source>press to change</source>
        <translation>нажмите, чтобы изменить</translation>
    </message>
    <message>
        <source>%1, press to change</source>
        <translation>%1, нажмите, чтобы изменить</translation>
    </message>
</context>
<context>
    <name>tern7::TFieldTree</name>
    <message>
        <source>No field has this name</source>
        <translation>Нет поля с таким именем</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
</context>
<context>
    <name>tern7::TFilterRowView</name>
    <message>
        <source>Row menu</source>
        <translation>Меню строки</translation>
    </message>
    <message>
        <source>Row takes part</source>
        <translation>Строка участвует</translation>
    </message>
    <message>
        <source>The bracket around it is switched off</source>
        <translation>Внешняя скобка отключена</translation>
    </message>
    <message>
        <source>The condition is left out: %1</source>
        <translation>Условие не участвует: %1</translation>
    </message>
    <message>
        <source>How the conditions are joined</source>
        <translation>Как соединены условия</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Поле</translation>
    </message>
    <message>
        <source>%1, operator</source>
        <translation>%1, оператор</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Оператор</translation>
    </message>
    <message>
        <source>%1, second value</source>
        <translation>%1, второе значение</translation>
    </message>
    <message>
        <source>The list is being read</source>
        <translation>Список загружается</translation>
    </message>
    <message>
        <source>The list could not be read: %1</source>
        <translation>Не удалось прочитать список: %1</translation>
    </message>
</context>
<context>
    <name>tern7::TKPopupMenu</name>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Ничего не найдено</translation>
    </message>
</context>
<context>
    <name>tern7::TKQueryEditor</name>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Вернуть</translation>
    </message>
    <message>
        <source>Add condition</source>
        <translation>Добавить условие</translation>
    </message>
    <message>
        <source>Add bracket</source>
        <translation>Добавить скобку</translation>
    </message>
    <message>
        <source>Delete bracket</source>
        <translation>Удалить скобку</translation>
    </message>
    <message>
        <source>Delete condition</source>
        <translation>Удалить условие</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Переместить</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Переместить вверх</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Переместить вниз</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Дублировать</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Включить</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Отключить</translation>
    </message>
    <message>
        <source>Change bracket</source>
        <translation>Изменить скобку</translation>
    </message>
    <message>
        <source>Change joining word</source>
        <translation>Изменить союз</translation>
    </message>
    <message>
        <source>Choose field</source>
        <translation>Выбрать поле</translation>
    </message>
    <message>
        <source>Choose operator</source>
        <translation>Выбрать оператор</translation>
    </message>
    <message>
        <source>Change value</source>
        <translation>Изменить значение</translation>
    </message>
    <message>
        <source>Make parameter</source>
        <translation>Сделать параметром</translation>
    </message>
    <message>
        <source>Make constant</source>
        <translation>Сделать постоянным значением</translation>
    </message>
    <message>
        <source>Change parameter</source>
        <translation>Изменить параметр</translation>
    </message>
    <message>
        <source>Edit sub-query</source>
        <translation>Изменить подзапрос</translation>
    </message>
    <message>
        <source>Change caption</source>
        <translation>Изменить подпись</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Вырезать</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Вставить</translation>
    </message>
    <message>
        <source>Add column</source>
        <translation>Добавить столбец</translation>
    </message>
    <message>
        <source>Delete column</source>
        <translation>Удалить столбец</translation>
    </message>
    <message>
        <source>Move column</source>
        <translation>Переместить столбец</translation>
    </message>
    <message>
        <source>Duplicate column</source>
        <translation>Дублировать столбец</translation>
    </message>
    <message>
        <source>Change formula</source>
        <translation>Изменить формулу</translation>
    </message>
    <message>
        <source>Change sorting</source>
        <translation>Изменить сортировку</translation>
    </message>
    <message>
        <source>Change sort order</source>
        <translation>Изменить порядок сортировки</translation>
    </message>
    <message>
        <source>Just sorting</source>
        <translation>Только сортировка</translation>
    </message>
    <message>
        <source>Edit columns</source>
        <translation>Изменить столбцы</translation>
    </message>
    <message>
        <source>Change options</source>
        <translation>Изменить параметры</translation>
    </message>
    <message>
        <source>Choose main table</source>
        <translation>Выбрать главную таблицу</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Renumber sorting</source>
        <translation>Перенумеровать сортировку</translation>
    </message>
    <message>
        <source>Clear columns</source>
        <translation>Очистить столбцы</translation>
    </message>
    <message>
        <source>Join another way</source>
        <translation>Соединить иначе</translation>
    </message>
    <message>
        <source>Delete row</source>
        <translation>Удалить строку</translation>
    </message>
    <message>
        <source>Switch row on or off</source>
        <translation>Включить или выключить строку</translation>
    </message>
    <message>
        <source>Row menu</source>
        <translation>Меню строки</translation>
    </message>
</context>
<context>
    <name>tern7::TKQueryPanel</name>
    <message>
        <source>level %1</source>
        <translation>уровень %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>отключено</translation>
    </message>
    <message>
        <source>left out: %1</source>
        <translation>не участвует: %1</translation>
    </message>
    <message>
        <source>The list is empty</source>
        <translation>Список пуст</translation>
    </message>
    <message>
        <source>The list is being read...</source>
        <translation>Список загружается...</translation>
    </message>
    <message>
        <source>The list could not be read: %1</source>
        <translation>Не удалось прочитать список: %1</translation>
    </message>
    <message>
        <source>&amp;Read it again</source>
        <translation>&amp;Прочитать снова</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>да</translation>
    </message>
    <message>
        <source>no</source>
        <translation>нет</translation>
    </message>
</context>
<context>
    <name>tern7::TKResultFieldsPanel</name>
    <message>
        <source>Column %1: %2, %3</source>
        <translation>Столбец %1: %2, %3</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Столбец %1</translation>
    </message>
    <message>
        <source>Sorting of %1</source>
        <translation>Сортировка: %1</translation>
    </message>
    <message>
        <source>Result fields</source>
        <translation>Поля результата</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>Ctrl and a click: formula, function, caption</source>
        <translation>Ctrl и щелчок: формула, функция, заголовок</translation>
    </message>
</context>
<context>
    <name>tern7::TKTitlesGrid</name>
    <message>
        <source>English</source>
        <translation>Английский</translation>
    </message>
    <message>
        <source>Translated</source>
        <translation>Перевод</translation>
    </message>
</context>
<context>
    <name>tern7::TListPopup</name>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
</context>
<context>
    <name>tern7::TRowProblem</name>
    <message>
        <source>choose a field</source>
        <translation>выберите поле</translation>
    </message>
    <message>
        <source>choose an operator</source>
        <translation>выберите оператор</translation>
    </message>
    <message>
        <source>this field is not known any more</source>
        <translation>это поле больше не известно</translation>
    </message>
    <message>
        <source>this operator is not known any more</source>
        <translation>этот оператор больше не известен</translation>
    </message>
    <message>
        <source>define the sub-query</source>
        <translation>задайте подзапрос</translation>
    </message>
    <message>
        <source>enter a value</source>
        <translation>введите значение</translation>
    </message>
    <message>
        <source>“%1” can not be read as a date or time</source>
        <translation>«%1» — не дата и не время</translation>
    </message>
    <message>
        <source>“%1” is no list of numbers</source>
        <translation>«%1» — не список чисел</translation>
    </message>
    <message>
        <source>“%1” is no number</source>
        <translation>«%1» — не число</translation>
    </message>
    <message>
        <source>sub-query: %1</source>
        <translation>подзапрос: %1</translation>
    </message>
    <message>
        <source>write for example %1</source>
        <translation>введите, например, %1</translation>
    </message>
    <message>
        <source>write for example %1, or always %2</source>
        <translation>введите, например, %1 или, всегда, %2</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <translation>%1; %2</translation>
    </message>
    <message>
        <source>left out of the SQL that was read: %1</source>
        <translation>пропущено при чтении SQL: %1</translation>
    </message>
</context>
<context>
    <name>tern7::T_dlgRFieldsEdit</name>
    <message>
        <source>A bracket or quote has no counterpart</source>
        <translation>У скобки или кавычки нет пары</translation>
    </message>
    <message>
        <source>This column has no expression yet</source>
        <translation>У этого столбца ещё нет выражения</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>Функция</translation>
    </message>
    <message>
        <source>Function over the rows</source>
        <translation>Функция по строкам</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Переместить вверх</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Переместить вниз</translation>
    </message>
    <message>
        <source>A comment or semicolon can not stand in an expression</source>
        <translation>Комментарии и точка с запятой в выражении не допускаются</translation>
    </message>
    <message>
        <source>There is no field in it: fields stand in braces, {Name}</source>
        <translation>В выражении нет полей: поля пишутся в фигурных скобках, {Имя}</translation>
    </message>
    <message>
        <source>An invisible character that turns the direction of text can not stand in an expression</source>
        <translation>Невидимый символ, меняющий направление текста, не может стоять в выражении</translation>
    </message>
    <message>
        <source>More than one field has this name: %1</source>
        <translation>Так называется несколько полей: %1</translation>
    </message>
    <message>
        <source>Perhaps it is meant: %1</source>
        <translation>Возможно, имелось в виду: %1</translation>
    </message>
</context>
<context>
    <name>tern7::T_dlgSubQuery</name>
    <message>
        <source>Choose the field that the sub-query returns.</source>
        <translation>Выберите поле, которое возвращает подзапрос.</translation>
    </message>
</context>
<context>
    <name>tern7::T_dlgTitlesEdit</name>
    <message>
        <source>Titles editor</source>
        <translation>Редактор подписей</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>&amp;Загрузить...</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>&amp;Сохранить...</translation>
    </message>
    <message>
        <source>&amp;Load From File...</source>
        <translation>&amp;Загрузить из файла...</translation>
    </message>
    <message>
        <source>&amp;Save To File</source>
        <translation>&amp;Сохранить в файл</translation>
    </message>
    <message>
        <source>TERN Titles (*.ttl)</source>
        <translation>Подписи TERN (*.ttl)</translation>
    </message>
    <message>
        <source>Query files (*.qry)</source>
        <translation>Файлы запросов (*.qry)</translation>
    </message>
    <message>
        <source>Discard the changes?</source>
        <translation>Отбросить изменения?</translation>
    </message>
    <message>
        <source>The file holds no titles that can be used here: %1</source>
        <translation>В файле нет подходящих здесь надписей: %1</translation>
    </message>
    <message>
        <source>The file is not UTF-8 and was read as Windows-1252.</source>
        <translation>Файл не в кодировке UTF-8 и прочитан как Windows-1252.</translation>
    </message>
</context>
</TS>
