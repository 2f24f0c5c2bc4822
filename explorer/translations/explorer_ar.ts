<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>main</name>
    <message>
        <source>Questions to a database without SQL.</source>
        <translation>أسئلة لقاعدة بيانات من دون SQL.</translation>
    </message>
    <message>
        <source>Opens a database: a SQLite file, or an address such as postgresql://user@host/name.</source>
        <translation>يفتح قاعدة بيانات: ملف SQLite أو عنوانًا مثل postgresql://user@host/name.</translation>
    </message>
    <message>
        <source>Loads the structure instead of importing it.</source>
        <translation>يحمّل البنية بدلاً من استيرادها.</translation>
    </message>
    <message>
        <source>Opens a saved query.</source>
        <translation>يفتح استعلامًا محفوظًا.</translation>
    </message>
    <message>
        <source>Runs the query, saves a picture of the window and ends.</source>
        <translation>ينفّذ الاستعلام ويحفظ صورة للنافذة ثم ينتهي.</translation>
    </message>
    <message>
        <source>Language of the program.</source>
        <translation>لغة البرنامج.</translation>
    </message>
    <message>
        <source>&quot;light&quot; or &quot;dark&quot;.</source>
        <translation>«light» (فاتح) أو «dark» (داكن).</translation>
    </message>
    <message>
        <source>Size of the window.</source>
        <translation>حجم النافذة.</translation>
    </message>
</context>
<context>
    <name>messages</name>
    <message>
        <source>The file %1 can not be opened.</source>
        <translation>تعذر فتح الملف %1.</translation>
    </message>
    <message>
        <source>The file %1 can not be written.</source>
        <translation>تعذرت كتابة الملف %1.</translation>
    </message>
    <message>
        <source>The text is damaged: section %2 has a wrong value of %1: %3</source>
        <translation>النص تالف: في القسم %2 قيمة %1 غير صحيحة: %3</translation>
    </message>
    <message>
        <source>The text is damaged: section %1 is missing.</source>
        <translation>النص تالف: القسم %1 مفقود.</translation>
    </message>
    <message>
        <source>The text is too long.</source>
        <translation>النص طويل جدًا.</translation>
    </message>
    <message>
        <source>Rows are nested too deep.</source>
        <translation>الصفوف متداخلة بعمق زائد.</translation>
    </message>
    <message>
        <source>The text has the version %1; what is newer than %2 was not read.</source>
        <translation>إصدار النص %1؛ ولم يُقرأ ما هو أحدث من %2.</translation>
    </message>
    <message>
        <source>The text is not UTF-8; it was read as Windows-1252.</source>
        <translation>النص ليس بترميز UTF-8؛ وقد قُرئ على أنه Windows-1252.</translation>
    </message>
    <message>
        <source>The database has no table %1.</source>
        <translation>لا يوجد في قاعدة البيانات جدول %1.</translation>
    </message>
    <message>
        <source>No links of the database lead from one of the tables to the others.</source>
        <translation>لا توجد روابط في قاعدة البيانات تقود من أحد الجداول إلى الجداول الأخرى.</translation>
    </message>
    <message>
        <source>The query has no column and no condition yet.</source>
        <translation>ليس في الاستعلام أي عمود أو شرط بعد.</translation>
    </message>
    <message>
        <source>No database is open.</source>
        <translation>لا توجد قاعدة بيانات مفتوحة.</translation>
    </message>
    <message>
        <source>This can not be a value of “%1”: %2</source>
        <translation>لا يمكن أن تكون هذه قيمة لـ «%1»: %2</translation>
    </message>
    <message>
        <source>This condition is text that can not be executed safely: %1</source>
        <translation>هذا الشرط نص لا يمكن تنفيذه بأمان: %1</translation>
    </message>
    <message>
        <source>A value holds a NUL character.</source>
        <translation>تحتوي قيمة على محرف NUL.</translation>
    </message>
    <message>
        <source>There is no field %1.</source>
        <translation>لا يوجد حقل %1.</translation>
    </message>
    <message>
        <source>A text in an expression with fields can not hold “@” and a digit: %1</source>
        <translation>لا يمكن أن يحتوي نص في تعبير ذي حقول على «@» يليها رقم: %1</translation>
    </message>
    <message>
        <source>The statement for a list of values must give two columns.</source>
        <translation>يجب أن تعطي عبارة قائمة القيم عمودين.</translation>
    </message>
    <message>
        <source>The database must be given as sqlite:PATH, postgresql://user@host:port/name, mysql://user@host:port/name or odbc:DSN.</source>
        <translation>يجب ذكر قاعدة البيانات بالشكل sqlite:PATH أو postgresql://user@host:port/name أو mysql://user@host:port/name أو odbc:DSN.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>يجب أن يكون المنفذ رقمًا من 1 إلى 65535.</translation>
    </message>
    <message>
        <source>The address of the database has an unknown or wrong option “%1”.</source>
        <translation>في عنوان قاعدة البيانات خيار غير معروف أو خاطئ «%1».</translation>
    </message>
    <message>
        <source>The address names no database.</source>
        <translation>لا يذكر العنوان أي قاعدة بيانات.</translation>
    </message>
    <message>
        <source>There is no database file %1.</source>
        <translation>لا يوجد ملف قاعدة بيانات %1.</translation>
    </message>
    <message>
        <source>The driver %1 of Qt SQL is not installed.</source>
        <translation>برنامج التشغيل %1 الخاص بـ Qt SQL غير مثبت.</translation>
    </message>
    <message>
        <source>The database %1 can not be opened: %2</source>
        <translation>تعذر فتح قاعدة البيانات %1: %2</translation>
    </message>
    <message>
        <source>Only SELECT statements are executed.</source>
        <translation>لا تُنفذ إلا عبارات SELECT.</translation>
    </message>
    <message>
        <source>Only one statement is executed at a time.</source>
        <translation>لا تُنفذ إلا عبارة واحدة في كل مرة.</translation>
    </message>
    <message>
        <source>A quote, comment or bracket of the statement is not closed.</source>
        <translation>في العبارة علامة اقتباس أو تعليق أو قوس غير مغلق.</translation>
    </message>
    <message>
        <source>The statement holds a NUL character.</source>
        <translation>تحتوي العبارة على محرف NUL.</translation>
    </message>
    <message>
        <source>The parameter %1 has no value.</source>
        <translation>ليس للمعامل %1 قيمة.</translation>
    </message>
</context>
<context>
    <name>operators</name>
    <message>
        <source>is equal to</source>
        <translation>يساوي</translation>
    </message>
    <message>
        <source>is not equal to</source>
        <translation>لا يساوي</translation>
    </message>
    <message>
        <source>is less than</source>
        <translation>أصغر من</translation>
    </message>
    <message>
        <source>is less than or equal to</source>
        <translation>أصغر من أو يساوي</translation>
    </message>
    <message>
        <source>is greater than</source>
        <translation>أكبر من</translation>
    </message>
    <message>
        <source>is greater than or equal to</source>
        <translation>أكبر من أو يساوي</translation>
    </message>
    <message>
        <source>is null</source>
        <translation>فارغ</translation>
    </message>
    <message>
        <source>is in list</source>
        <translation>ضمن القائمة</translation>
    </message>
    <message>
        <source>starts with</source>
        <translation>يبدأ بـ</translation>
    </message>
    <message>
        <source>does not start with</source>
        <translation>لا يبدأ بـ</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>يحتوي على</translation>
    </message>
    <message>
        <source>does not contain</source>
        <translation>لا يحتوي على</translation>
    </message>
    <message>
        <source>is between</source>
        <translation>بين</translation>
    </message>
    <message>
        <source>and</source>
        <translation>و</translation>
    </message>
</context>
<context>
    <name>tern7::TConnectionDialog</name>
    <message>
        <source>Open database</source>
        <translation>فتح قاعدة بيانات</translation>
    </message>
    <message>
        <source>SQLite file</source>
        <translation>ملف SQLite</translation>
    </message>
    <message>
        <source>PostgreSQL server</source>
        <translation>خادم PostgreSQL</translation>
    </message>
    <message>
        <source>MariaDB or MySQL server</source>
        <translation>خادم MariaDB أو MySQL</translation>
    </message>
    <message>
        <source>ODBC data source</source>
        <translation>مصدر بيانات ODBC</translation>
    </message>
    <message>
        <source>&amp;Database:</source>
        <translation>&amp;قاعدة البيانات:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>است&amp;عراض...</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translation>ال&amp;ملف:</translation>
    </message>
    <message>
        <source>not kept</source>
        <translation>لا يُحفظ</translation>
    </message>
    <message>
        <source>&amp;Server:</source>
        <translation>ال&amp;خادم:</translation>
    </message>
    <message>
        <source>P&amp;ort:</source>
        <translation>ال&amp;منفذ:</translation>
    </message>
    <message>
        <source>&amp;Name of the database:</source>
        <translation>ا&amp;سم قاعدة البيانات:</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>المست&amp;خدم:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;كلمة المرور:</translation>
    </message>
    <message>
        <source>Name of a data source, or a connection string</source>
        <translation>اسم مصدر بيانات أو سلسلة اتصال</translation>
    </message>
    <message>
        <source>&amp;Source:</source>
        <translation>ال&amp;مصدر:</translation>
    </message>
    <message>
        <source>SQLite databases (*.db *.sqlite *.sqlite3 *.db3);;All files (*)</source>
        <translation>قواعد بيانات SQLite (*.db *.sqlite *.sqlite3 *.db3);;كل الملفات (*)</translation>
    </message>
</context>
<context>
    <name>tern7::TKQueryEditor</name>
    <message>
        <source>Equal rows</source>
        <translation>الصفوف المتماثلة</translation>
    </message>
    <message>
        <source>Sort</source>
        <translation>ترتيب</translation>
    </message>
    <message>
        <source>Add column</source>
        <translation>إضافة عمود</translation>
    </message>
    <message>
        <source>Read SQL</source>
        <translation>قراءة SQL</translation>
    </message>
    <message>
        <source>Delete column</source>
        <translation>حذف العمود</translation>
    </message>
</context>
<context>
    <name>tern7::TMainWindow</name>
    <message>
        <source>&amp;Result</source>
        <translation>ال&amp;نتيجة</translation>
    </message>
    <message>
        <source>C&amp;olumns</source>
        <translation>الأعم&amp;دة</translation>
    </message>
    <message>
        <source>Con&amp;ditions</source>
        <translation>ال&amp;شروط</translation>
    </message>
    <message>
        <source>New query</source>
        <translation>استعلام جديد</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;ملف</translation>
    </message>
    <message>
        <source>Open &amp;database...</source>
        <translation>فتح قاعدة &amp;بيانات...</translation>
    </message>
    <message>
        <source>Recent d&amp;atabases</source>
        <translation>قواعد البيانات ال&amp;أخيرة</translation>
    </message>
    <message>
        <source>Sa&amp;mple database</source>
        <translation>قاعدة البيانات ال&amp;نموذجية</translation>
    </message>
    <message>
        <source>&amp;New query</source>
        <translation>استعلام &amp;جديد</translation>
    </message>
    <message>
        <source>&amp;Open query...</source>
        <translation>&amp;فتح استعلام...</translation>
    </message>
    <message>
        <source>&amp;Recent queries</source>
        <translation>الاستعلامات الأ&amp;خيرة</translation>
    </message>
    <message>
        <source>&amp;Save query</source>
        <translation>&amp;حفظ الاستعلام</translation>
    </message>
    <message>
        <source>Save query &amp;as...</source>
        <translation>حفظ الاستعلام &amp;باسم...</translation>
    </message>
    <message>
        <source>Read S&amp;QL...</source>
        <translation>قراءة S&amp;QL...</translation>
    </message>
    <message>
        <source>Save &amp;rows as CSV...</source>
        <translation>حفظ ال&amp;صفوف بصيغة CSV...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>إ&amp;نهاء</translation>
    </message>
    <message>
        <source>&amp;Query</source>
        <translation>الا&amp;ستعلام</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;تنفيذ</translation>
    </message>
    <message>
        <source>Run the query (F5)</source>
        <translation>تنفيذ الاستعلام (F5)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>إل&amp;غاء</translation>
    </message>
    <message>
        <source>Run after every c&amp;hange</source>
        <translation>التنفيذ بعد كل ت&amp;غيير</translation>
    </message>
    <message>
        <source>Add c&amp;olumn...</source>
        <translation>إضافة &amp;عمود...</translation>
    </message>
    <message>
        <source>&amp;Equal rows only once</source>
        <translation>الصفوف ال&amp;متماثلة مرة واحدة فقط</translation>
    </message>
    <message>
        <source>E&amp;dit columns...</source>
        <translation>ت&amp;حرير الأعمدة...</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>الأدوات</translation>
    </message>
    <message>
        <source>Rows at &amp;most:</source>
        <translation>الحد الأ&amp;قصى للصفوف:</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>ت&amp;حرير</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>ت&amp;راجع</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>إ&amp;عادة</translation>
    </message>
    <message>
        <source>&amp;Copy rows</source>
        <translation>&amp;نسخ الصفوف</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>ت&amp;راجع: %1</translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <translation>إ&amp;عادة: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>إعادة</translation>
    </message>
    <message>
        <source>Queries (*.qry);;All files (*)</source>
        <translation>الاستعلامات (*.qry);;كل الملفات (*)</translation>
    </message>
    <message>
        <source>Sample database</source>
        <translation>قاعدة البيانات النموذجية</translation>
    </message>
    <message>
        <source>Open database</source>
        <translation>فتح قاعدة بيانات</translation>
    </message>
    <message>
        <source>Open query</source>
        <translation>فتح استعلام</translation>
    </message>
    <message>
        <source>Save query</source>
        <translation>حفظ الاستعلام</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>تغييرات غير محفوظة</translation>
    </message>
    <message>
        <source>The query was changed. Save the changes?</source>
        <translation>تم تغيير الاستعلام. هل تريد حفظ التغييرات؟</translation>
    </message>
    <message>
        <source>Read SQL</source>
        <translation>قراءة SQL</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) of this query refer to fields that the database does not have. They are marked and take no part.</source>
        <translation>
            <numerusform>لا صفوف (%n) تشير إلى حقول غير موجودة في قاعدة البيانات.</numerusform>
            <numerusform>صف واحد (%n) من هذا الاستعلام يشير إلى حقول غير موجودة في قاعدة البيانات. وهو معلَّم وغير مشارك.</numerusform>
            <numerusform>صفان (%n) من هذا الاستعلام يشيران إلى حقول غير موجودة في قاعدة البيانات. وهما معلَّمان وغير مشاركين.</numerusform>
            <numerusform>%n صفوف من هذا الاستعلام تشير إلى حقول غير موجودة في قاعدة البيانات. وهي معلَّمة وغير مشاركة.</numerusform>
            <numerusform>%n صفًا من هذا الاستعلام تشير إلى حقول غير موجودة في قاعدة البيانات. وهي معلَّمة وغير مشاركة.</numerusform>
            <numerusform>%n صف من هذا الاستعلام تشير إلى حقول غير موجودة في قاعدة البيانات. وهي معلَّمة وغير مشاركة.</numerusform>
        </translation>
    </message>
    <message>
        <source>Save rows</source>
        <translation>حفظ الصفوف</translation>
    </message>
    <message>
        <source>Comma separated values (*.csv)</source>
        <translation>قيم مفصولة بفواصل (*.csv)</translation>
    </message>
    <message>
        <source>Add a column to begin.</source>
        <translation>أضف عمودًا للبدء.</translation>
    </message>
    <message>
        <source>One row for all records.</source>
        <translation>صف واحد لكل السجلات.</translation>
    </message>
    <message>
        <source>One row for each: %1.</source>
        <translation>صف واحد لكل: %1.</translation>
    </message>
    <message>
        <source>Add a column first: it is what the result will show.</source>
        <translation>أضف عمودًا أولاً: فهو ما ستعرضه النتيجة.</translation>
    </message>
    <message>
        <source>Add column</source>
        <translation>إضافة عمود</translation>
    </message>
    <message>
        <source>Show the row</source>
        <translation>عرض الصف</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>«%1»: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n condition(s) are not finished and take no part (%1).</source>
        <translation>
            <numerusform>لا شروط غير مكتملة (%n) (%1).</numerusform>
            <numerusform>شرط واحد (%n) غير مكتمل ولا يشارك (%1).</numerusform>
            <numerusform>شرطان (%n) غير مكتملين ولا يشاركان (%1).</numerusform>
            <numerusform>%n شروط غير مكتملة ولا تشارك (%1).</numerusform>
            <numerusform>%n شرطًا غير مكتمل ولا يشارك (%1).</numerusform>
            <numerusform>%n شرط غير مكتمل ولا يشارك (%1).</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;عرض</translation>
    </message>
    <message>
        <source>Show &amp;SQL</source>
        <translation>إظهار &amp;SQL</translation>
    </message>
    <message>
        <source>And/or &amp;words instead of brackets</source>
        <translation>&amp;كلمات «و/أو» بدل الأقواس</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>ال&amp;لغة</translation>
    </message>
    <message>
        <source>&amp;Captions</source>
        <translation>ال&amp;تسميات</translation>
    </message>
    <message>
        <source>Of the con&amp;ditions...</source>
        <translation>ال&amp;شروط...</translation>
    </message>
    <message>
        <source>Of the c&amp;olumns...</source>
        <translation>الأع&amp;مدة...</translation>
    </message>
    <message>
        <source>As &amp;delivered</source>
        <translation>كما في الأ&amp;صل</translation>
    </message>
    <message>
        <source>L&amp;ook</source>
        <translation>ال&amp;مظهر</translation>
    </message>
    <message>
        <source>As the s&amp;ystem</source>
        <translation>مثل ال&amp;نظام</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;فاتح</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;داكن</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>ت&amp;كبير</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>ت&amp;صغير</translation>
    </message>
    <message>
        <source>&amp;Normal size</source>
        <translation>الحجم ال&amp;عادي</translation>
    </message>
    <message>
        <source>Waiting for the database...</source>
        <translation>في انتظار قاعدة البيانات...</translation>
    </message>
    <message>
        <source>Reading table %1 of %2...</source>
        <translation>قراءة الجدول %1 من %2...</translation>
    </message>
    <message>
        <source>Captions, formulas, sums and counts (Ctrl+Shift+K)</source>
        <translation>التسميات والصيغ والمجاميع والأعداد (Ctrl+Shift+K)</translation>
    </message>
    <message>
        <source>Choose a field that the result shows (Ctrl+K)</source>
        <translation>اختيار حقل تعرضه النتيجة (Ctrl+K)</translation>
    </message>
    <message>
        <source>Start from &amp;table...</source>
        <translation>&amp;جدول البداية...</translation>
    </message>
    <message>
        <source>Tables: %1.</source>
        <translation>الجداول: %1.</translation>
    </message>
    <message>
        <source>Start from another table...</source>
        <translation>البدء من جدول آخر...</translation>
    </message>
    <message>
        <source>Chosen by the columns</source>
        <translation>حسب الأعمدة</translation>
    </message>
    <message>
        <source>&amp;Join another way...</source>
        <translation>&amp;ربط بطريقة أخرى...</translation>
    </message>
    <message>
        <source>%1 and %2 have only %3 in common.</source>
        <translation>لا يجمع بين %1 و%2 سوى %3.</translation>
    </message>
    <message>
        <source>Join another way...</source>
        <translation>ربط بطريقة أخرى...</translation>
    </message>
    <message>
        <source>The query %1 could not be opened: %2</source>
        <translation>تعذر فتح الاستعلام %1: %2</translation>
    </message>
    <message>
        <source>The query could not be saved as %1: %2</source>
        <translation>تعذر حفظ الاستعلام باسم %1: %2</translation>
    </message>
    <message>
        <source>The file %1 could not be read: %2</source>
        <translation>تعذرت قراءة الملف %1: %2</translation>
    </message>
    <message>
        <source>The rows could not be saved as %1: %2</source>
        <translation>تعذر حفظ الصفوف باسم %1: %2</translation>
    </message>
    <message>
        <source>The string that begins at line %1, column %2 is not closed.</source>
        <translation>السلسلة النصية التي تبدأ في السطر %1، العمود %2 غير مغلقة.</translation>
    </message>
    <message>
        <source>At line %1, column %2 a bracket is missing, or there is one too many.</source>
        <translation>في السطر %1، العمود %2 قوس ناقص أو زائد.</translation>
    </message>
    <message>
        <source>The statement ends too early, at line %1, column %2.</source>
        <translation>تنتهي العبارة قبل أوانها، في السطر %1، العمود %2.</translation>
    </message>
    <message>
        <source>The text is no SELECT statement that can be read: from line %1, column %2 on it does not go on as one.</source>
        <translation>النص ليس عبارة SELECT يمكن قراءتها: ابتداءً من السطر %1، العمود %2 لا يستمر كعبارة كهذه.</translation>
    </message>
    <message>
        <source>S&amp;tructure</source>
        <translation>ال&amp;بنية</translation>
    </message>
    <message>
        <source>&amp;Open structure...</source>
        <translation>&amp;فتح بنية...</translation>
    </message>
    <message>
        <source>&amp;Save structure as...</source>
        <translation>&amp;حفظ البنية باسم...</translation>
    </message>
    <message>
        <source>&amp;Import it anew</source>
        <translation>ا&amp;ستيرادها من جديد</translation>
    </message>
    <message>
        <source>Structures (*.str);;All files (*)</source>
        <translation>البُنى (*.str);;كل الملفات (*)</translation>
    </message>
    <message>
        <source>Open structure</source>
        <translation>فتح بنية</translation>
    </message>
    <message>
        <source>The structure %1 could not be opened: %2</source>
        <translation>تعذّر فتح البنية %1: %2</translation>
    </message>
    <message>
        <source>Save structure</source>
        <translation>حفظ البنية</translation>
    </message>
    <message>
        <source>The structure could not be saved as %1: %2</source>
        <translation>تعذّر حفظ البنية باسم %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n column(s) of this query refer to fields that the database does not have. Choose others, or remove them.</source>
        <translation>
            <numerusform>لا أعمدة (%n) تشير إلى حقول غير موجودة في قاعدة البيانات.</numerusform>
            <numerusform>عمود واحد (%n) من هذا الاستعلام يشير إلى حقل غير موجود في قاعدة البيانات. اختر حقلًا آخر أو أزله.</numerusform>
            <numerusform>عمودان (%n) من هذا الاستعلام يشيران إلى حقول غير موجودة في قاعدة البيانات. اختر غيرها أو أزلهما.</numerusform>
            <numerusform>%n أعمدة من هذا الاستعلام تشير إلى حقول غير موجودة في قاعدة البيانات. اختر غيرها أو أزلها.</numerusform>
            <numerusform>%n عمودًا من هذا الاستعلام تشير إلى حقول غير موجودة في قاعدة البيانات. اختر غيرها أو أزلها.</numerusform>
            <numerusform>%n عمود من هذا الاستعلام تشير إلى حقول غير موجودة في قاعدة البيانات. اختر غيرها أو أزلها.</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove them</source>
        <translation>إزالتها</translation>
    </message>
    <message>
        <source>The query asks for the value of %1.</source>
        <translation>يطلب الاستعلام قيمة %1.</translation>
    </message>
    <message>
        <source>SQ&amp;L</source>
        <translation>SQ&amp;L</translation>
    </message>
    <message>
        <source>Add co&amp;ndition...</source>
        <translation>إضافة &amp;شرط...</translation>
    </message>
    <message>
        <source>To the next label</source>
        <translation>إلى الكلمة التالية</translation>
    </message>
    <message>
        <source>To the row above or below</source>
        <translation>إلى الصف الأعلى أو الأسفل</translation>
    </message>
    <message>
        <source>Open the label: its menu, list or editor</source>
        <translation>فتح الكلمة: قائمتها أو محررها</translation>
    </message>
    <message>
        <source>Close it, and leave all as it was</source>
        <translation>إغلاقها وترك كل شيء كما كان</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;تعليمات</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>&amp;دليل</translation>
    </message>
    <message>
        <source>Guide</source>
        <translation>دليل</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;المفاتيح</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>المفاتيح</translation>
    </message>
    <message>
        <source>&amp;About tern7-explorer</source>
        <translation>&amp;حول tern7-explorer</translation>
    </message>
    <message>
        <source>%1: choose what the result shows; type to search the menu. A click on the blue words of a column chooses another field, or sorts.</source>
        <translation>%1: اختر ما تعرضه النتيجة؛ واكتب للبحث في القائمة. النقر على الكلمات الزرقاء لعمود يختار حقلًا آخر أو يرتّب.</translation>
    </message>
    <message>
        <source>%1: choose a field, then click on the blue words to change what is compared. Brackets say whether all, any or none of their conditions apply.</source>
        <translation>%1: اختر حقلًا ثم انقر الكلمات الزرقاء لتغيير ما يُقارَن. تحدد الأقواس هل تنطبق كل شروطها أو أيٌّ منها أو لا شيء منها.</translation>
    </message>
    <message>
        <source>%1: captions, formulas, sums and counts. With a sum there is one row for each combination of the other columns.</source>
        <translation>%1: العناوين والصيغ والمجاميع والأعداد. مع المجموع يكون هناك صف واحد لكل تركيبة من الأعمدة الأخرى.</translation>
    </message>
    <message>
        <source>%1: the tables that the query joins stand below the columns; where several ways lead from one to the other, choose the one that is meant.</source>
        <translation>%1: الجداول التي يربطها الاستعلام مذكورة تحت الأعمدة؛ وحيث تقود عدة طرق من جدول إلى آخر، اختر الطريق المقصود.</translation>
    </message>
    <message>
        <source>%1: the rows appear below. A click on a header sorts by that column.</source>
        <translation>%1: تظهر الصفوف في الأسفل. النقر على رأس عمود يرتّب حسبه.</translation>
    </message>
    <message>
        <source>%1 keeps the query, %2 its rows for other programs.</source>
        <translation>%1 يحفظ الاستعلام، و%2 صفوفه لبرامج أخرى.</translation>
    </message>
    <message>
        <source>%1: every step can be taken back.</source>
        <translation>%1: يمكن التراجع عن كل خطوة.</translation>
    </message>
    <message>
        <source>A query shows columns of a database, for the records that its conditions let through.</source>
        <translation>يعرض الاستعلام أعمدة من قاعدة بيانات، للسجلات التي تمر من شروطه.</translation>
    </message>
    <message>
        <source>%1 leads to other databases; a file of SQLite can be dropped on the window. Databases are only read, never changed.</source>
        <translation>%1 يقود إلى قواعد بيانات أخرى؛ ويمكن إفلات ملف SQLite على النافذة. تُقرأ قواعد البيانات فقط ولا تُغيَّر أبدًا.</translation>
    </message>
    <message>
        <source>On a condition or column</source>
        <translation>على شرط أو عمود</translation>
    </message>
    <message>
        <source>Between the blue words</source>
        <translation>بين الكلمات الزرقاء</translation>
    </message>
    <message>
        <source>With Qt %1.</source>
        <translation>باستخدام Qt %1.</translation>
    </message>
    <message>
        <source>Licence: MIT. Copyright 2026 the tern7 authors.</source>
        <translation>الرخصة: MIT. حقوق النشر 2026 لمؤلفي tern7.</translation>
    </message>
    <message>
        <source>About tern7-explorer</source>
        <translation>حول tern7-explorer</translation>
    </message>
    <message>
        <source>The joins start from %1 now, and not from %2: the rows may be others.</source>
        <translation>تبدأ عمليات الربط الآن من %1 وليس من %2: قد تكون الصفوف مختلفة.</translation>
    </message>
    <message>
        <source>Start from %1</source>
        <translation>البدء من %1</translation>
    </message>
</context>
<context>
    <name>tern7::TMessageBar</name>
    <message>
        <source>Close the message</source>
        <translation>إغلاق الرسالة</translation>
    </message>
</context>
<context>
    <name>tern7::TParameterDialog</name>
    <message>
        <source>Values of the query</source>
        <translation>قيم الاستعلام</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;تنفيذ</translation>
    </message>
    <message>
        <source>A value is missing: %1</source>
        <translation>تنقص قيمة: %1</translation>
    </message>
</context>
<context>
    <name>tern7::TQueryRunner</name>
    <message>
        <source>No database is open</source>
        <translation>لا توجد قاعدة بيانات مفتوحة</translation>
    </message>
</context>
<context>
    <name>tern7::TReadSQLDialog</name>
    <message>
        <source>Read SQL</source>
        <translation>قراءة SQL</translation>
    </message>
    <message>
        <source>SELECT statement</source>
        <translation>عبارة SELECT</translation>
    </message>
    <message>
        <source>A &amp;SELECT statement over the tables of this database takes the place of the query:</source>
        <translation>عبارة &amp;SELECT على جداول قاعدة البيانات هذه تحل محل الاستعلام:</translation>
    </message>
    <message>
        <source>&amp;Read</source>
        <translation>&amp;قراءة</translation>
    </message>
</context>
<context>
    <name>tern7::TReportDialog</name>
    <message>
        <source>Understood</source>
        <translation>مفهوم</translation>
    </message>
    <message>
        <source>Kept as text</source>
        <translation>محفوظ كنص</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>متروك</translation>
    </message>
    <message>
        <source>alias</source>
        <translation>اسم بديل</translation>
    </message>
    <message>
        <source>column</source>
        <translation>عمود</translation>
    </message>
    <message>
        <source>condition</source>
        <translation>شرط</translation>
    </message>
    <message>
        <source>derived table</source>
        <translation>جدول مشتق</translation>
    </message>
    <message>
        <source>grouping</source>
        <translation>تجميع</translation>
    </message>
    <message>
        <source>hint</source>
        <translation>تلميح</translation>
    </message>
    <message>
        <source>join</source>
        <translation>ربط</translation>
    </message>
    <message>
        <source>parameter</source>
        <translation>معلمة</translation>
    </message>
    <message>
        <source>rest</source>
        <translation>الباقي</translation>
    </message>
    <message>
        <source>sorting</source>
        <translation>ترتيب</translation>
    </message>
    <message>
        <source>statement</source>
        <translation>عبارة</translation>
    </message>
    <message>
        <source>table</source>
        <translation>جدول</translation>
    </message>
    <message>
        <source>a query can not say it</source>
        <translation>لا يستطيع الاستعلام التعبير عنه</translation>
    </message>
    <message>
        <source>another column has this alias</source>
        <translation>عمود آخر له هذا الاسم البديل</translation>
    </message>
    <message>
        <source>another parameter has this name</source>
        <translation>معلمة أخرى لها هذا الاسم</translation>
    </message>
    <message>
        <source>it is no column</source>
        <translation>ليس عمودًا</translation>
    </message>
    <message>
        <source>it names what the structure does not have</source>
        <translation>يسمّي ما ليس في البنية</translation>
    </message>
    <message>
        <source>no column and no condition uses it</source>
        <translation>لا يستخدمه أي عمود أو شرط</translation>
    </message>
    <message>
        <source>no field or operator of the structure says it</source>
        <translation>لا حقل ولا عامل في البنية يعبّر عنه</translation>
    </message>
    <message>
        <source>no link of the structure</source>
        <translation>ليس رابطًا في البنية</translation>
    </message>
    <message>
        <source>the columns ask for other groups</source>
        <translation>الأعمدة تتطلب مجموعات أخرى</translation>
    </message>
    <message>
        <source>the query joins the tables in another order</source>
        <translation>يربط الاستعلام الجداول بترتيب آخر</translation>
    </message>
    <message>
        <source>the structure has no such table</source>
        <translation>لا يوجد هذا الجدول في البنية</translation>
    </message>
    <message>
        <source>the structure joins it in another way</source>
        <translation>تربطه البنية بطريقة أخرى</translation>
    </message>
    <message>
        <source>the structure joins these tables in another way</source>
        <translation>تربط البنية هذه الجداول بطريقة أخرى</translation>
    </message>
    <message>
        <source>What was read</source>
        <translation>ما تمت قراءته</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>النتيجة</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>الجزء</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>النص</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>السبب</translation>
    </message>
    <message>
        <source>Parts of the statement</source>
        <translation>أجزاء العبارة</translation>
    </message>
    <message numerus="yes">
        <source>%n part(s) of the statement were left out: the query does not say the same.</source>
        <translation>
            <numerusform>لم يُترك أي جزء (%n) من العبارة.</numerusform>
            <numerusform>تُرك جزء واحد (%n) من العبارة: الاستعلام لا يقول الشيء نفسه.</numerusform>
            <numerusform>تُرك جزآن (%n) من العبارة: الاستعلام لا يقول الشيء نفسه.</numerusform>
            <numerusform>تُركت %n أجزاء من العبارة: الاستعلام لا يقول الشيء نفسه.</numerusform>
            <numerusform>تُرك %n جزءًا من العبارة: الاستعلام لا يقول الشيء نفسه.</numerusform>
            <numerusform>تُرك %n جزء من العبارة: الاستعلام لا يقول الشيء نفسه.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n part(s) were kept as text.</source>
        <translation>
            <numerusform>لم يُحفظ أي جزء (%n) كنص.</numerusform>
            <numerusform>حُفظ جزء واحد (%n) كنص.</numerusform>
            <numerusform>حُفظ جزآن (%n) كنص.</numerusform>
            <numerusform>حُفظت %n أجزاء كنص.</numerusform>
            <numerusform>حُفظ %n جزءًا كنص.</numerusform>
            <numerusform>حُفظ %n جزء كنص.</numerusform>
        </translation>
    </message>
    <message>
        <source>Everything was understood.</source>
        <translation>فُهم كل شيء.</translation>
    </message>
    <message>
        <source>&amp;Keep the query</source>
        <translation>ال&amp;إبقاء على الاستعلام</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>ت&amp;راجع</translation>
    </message>
    <message>
        <source>text</source>
        <translation>نص</translation>
    </message>
    <message>
        <source>the string is not closed</source>
        <translation>السلسلة النصية غير مغلقة</translation>
    </message>
    <message>
        <source>Line, column</source>
        <translation>السطر، العمود</translation>
    </message>
    <message>
        <source>the parser does not read it</source>
        <translation>لا يقرؤه المحلل</translation>
    </message>
    <message>
        <source>no field has this expression</source>
        <translation>لا يوجد حقل له هذا التعبير</translation>
    </message>
    <message>
        <source>no operator has this form</source>
        <translation>لا يوجد عامل بهذا الشكل</translation>
    </message>
    <message>
        <source>a condition keeps this table, which nothing else uses</source>
        <translation>يُبقي شرطٌ هذا الجدول الذي لا يستخدمه شيء آخر</translation>
    </message>
    <message>
        <source>a condition keeps this join, which the structure makes by way of other tables</source>
        <translation>يُبقي شرطٌ هذا الربط الذي تجريه البنية عبر جداول أخرى</translation>
    </message>
    <message>
        <source>only the syntax sql1 leaves out the structure&apos;s outer join with it</source>
        <translation>الصيغة sql1 وحدها تُسقط الربط الخارجي للبنية معه</translation>
    </message>
    <message>
        <source>a table of the sub-select has the name that the structure gives another</source>
        <translation>في الاستعلام الفرعي جدول يحمل الاسم الذي تعطيه البنية لجدول آخر</translation>
    </message>
    <message>
        <source>several tables have a column of this name</source>
        <translation>لعدة جداول عمود بهذا الاسم</translation>
    </message>
    <message>
        <source>the query needs a further table</source>
        <translation>يحتاج الاستعلام إلى جدول آخر</translation>
    </message>
    <message>
        <source>the columns that the tables are joined by would come twice</source>
        <translation>ستظهر الأعمدة التي رُبطت بها الجداول مرتين</translation>
    </message>
</context>
<context>
    <name>tern7::TResultModel</name>
    <message>
        <source>No value</source>
        <translation>لا قيمة</translation>
    </message>
</context>
<context>
    <name>tern7::TResultView</name>
    <message>
        <source>Result rows</source>
        <translation>صفوف النتيجة</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s)</source>
        <translation>
            <numerusform>لا صفوف (%n)</numerusform>
            <numerusform>صف واحد (%n)</numerusform>
            <numerusform>صفان (%n)</numerusform>
            <numerusform>%n صفوف</numerusform>
            <numerusform>%n صفًا</numerusform>
            <numerusform>%n صف</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 s</source>
        <translation>%1، %2 ث</translation>
    </message>
    <message>
        <source>the first %1; there are more</source>
        <translation>أول %1؛ هناك المزيد</translation>
    </message>
    <message>
        <source>The database refused the query</source>
        <translation>رفضت قاعدة البيانات الاستعلام</translation>
    </message>
    <message>
        <source>Cancelled after %1 s</source>
        <translation>أُلغي بعد %1 ث</translation>
    </message>
    <message>
        <source>Running...</source>
        <translation>جارٍ التنفيذ...</translation>
    </message>
    <message>
        <source>Running... %1, %2 s</source>
        <translation>جارٍ التنفيذ... %1، %2 ث</translation>
    </message>
    <message>
        <source>Not run yet</source>
        <translation>لم يُنفَّذ بعد</translation>
    </message>
    <message>
        <source>Rows of the query before the last changes · %1</source>
        <translation>صفوف الاستعلام قبل آخر التغييرات · %1</translation>
    </message>
</context>
</TS>
