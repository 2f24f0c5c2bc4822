<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>tern7::TDropDownLabel</name>
    <message>
        <source>empty</source>
        <translation>فارغ</translation>
    </message>
    <message>
        <source>press to change</source>
        <translation>اضغط للتغيير</translation>
    </message>
    <message>
        <source>%1, press to change</source>
        <translation>%1، اضغط للتغيير</translation>
    </message>
</context>
<context>
    <name>tern7::TFieldTree</name>
    <message>
        <source>No field has this name</source>
        <translation>لا يوجد حقل بهذا الاسم</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
</context>
<context>
    <name>tern7::TFilterRowView</name>
    <message>
        <source>Row menu</source>
        <translation>قائمة الصف</translation>
    </message>
    <message>
        <source>Row takes part</source>
        <translation>الصف مشارك</translation>
    </message>
    <message>
        <source>The bracket around it is switched off</source>
        <translation>القوس المحيط به معطَّل</translation>
    </message>
    <message>
        <source>The condition is left out: %1</source>
        <translation>الشرط غير مُستخدَم: %1</translation>
    </message>
    <message>
        <source>How the conditions are joined</source>
        <translation>كيفية ربط الشروط</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>حقل</translation>
    </message>
    <message>
        <source>%1, operator</source>
        <translation>%1، العامل</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>العامل</translation>
    </message>
    <message>
        <source>%1, second value</source>
        <translation>%1، القيمة الثانية</translation>
    </message>
    <message>
        <source>The list is being read</source>
        <translation>تجري قراءة القائمة</translation>
    </message>
    <message>
        <source>The list could not be read: %1</source>
        <translation>تعذّرت قراءة القائمة: %1</translation>
    </message>
</context>
<context>
    <name>tern7::TKPopupMenu</name>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>لا توجد نتائج</translation>
    </message>
</context>
<context>
    <name>tern7::TKQueryEditor</name>
    <message>
        <source>Undo</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>إعادة</translation>
    </message>
    <message>
        <source>Add condition</source>
        <translation>إضافة شرط</translation>
    </message>
    <message>
        <source>Add bracket</source>
        <translation>إضافة قوس</translation>
    </message>
    <message>
        <source>Delete bracket</source>
        <translation>حذف القوس</translation>
    </message>
    <message>
        <source>Delete condition</source>
        <translation>حذف الشرط</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>نقل</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>نقل لأعلى</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>نقل لأسفل</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>تكرار</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>تمكين</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>تعطيل</translation>
    </message>
    <message>
        <source>Change bracket</source>
        <translation>تغيير القوس</translation>
    </message>
    <message>
        <source>Change joining word</source>
        <translation>تغيير كلمة الربط</translation>
    </message>
    <message>
        <source>Choose field</source>
        <translation>اختيار الحقل</translation>
    </message>
    <message>
        <source>Choose operator</source>
        <translation>اختيار العامل</translation>
    </message>
    <message>
        <source>Change value</source>
        <translation>تغيير القيمة</translation>
    </message>
    <message>
        <source>Make parameter</source>
        <translation>تحويل إلى معلمة</translation>
    </message>
    <message>
        <source>Make constant</source>
        <translation>تحويل إلى قيمة ثابتة</translation>
    </message>
    <message>
        <source>Change parameter</source>
        <translation>تغيير المعلمة</translation>
    </message>
    <message>
        <source>Edit sub-query</source>
        <translation>تحرير الاستعلام الفرعي</translation>
    </message>
    <message>
        <source>Change caption</source>
        <translation>تغيير التسمية</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>قص</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>لصق</translation>
    </message>
    <message>
        <source>Add column</source>
        <translation>إضافة عمود</translation>
    </message>
    <message>
        <source>Delete column</source>
        <translation>حذف العمود</translation>
    </message>
    <message>
        <source>Move column</source>
        <translation>نقل العمود</translation>
    </message>
    <message>
        <source>Duplicate column</source>
        <translation>تكرار العمود</translation>
    </message>
    <message>
        <source>Change formula</source>
        <translation>تغيير الصيغة</translation>
    </message>
    <message>
        <source>Change sorting</source>
        <translation>تغيير الترتيب</translation>
    </message>
    <message>
        <source>Change sort order</source>
        <translation>تغيير أولوية الترتيب</translation>
    </message>
    <message>
        <source>Just sorting</source>
        <translation>ترتيب فقط</translation>
    </message>
    <message>
        <source>Edit columns</source>
        <translation>تحرير الأعمدة</translation>
    </message>
    <message>
        <source>Change options</source>
        <translation>تغيير الخيارات</translation>
    </message>
    <message>
        <source>Choose main table</source>
        <translation>اختيار الجدول الرئيسي</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>مسح</translation>
    </message>
    <message>
        <source>Renumber sorting</source>
        <translation>إعادة ترقيم الترتيب</translation>
    </message>
    <message>
        <source>Clear columns</source>
        <translation>مسح الأعمدة</translation>
    </message>
    <message>
        <source>Join another way</source>
        <translation>ربط بطريقة أخرى</translation>
    </message>
    <message>
        <source>Delete row</source>
        <translation>حذف الصف</translation>
    </message>
    <message>
        <source>Switch row on or off</source>
        <translation>تشغيل الصف أو إيقافه</translation>
    </message>
    <message>
        <source>Row menu</source>
        <translation>قائمة الصف</translation>
    </message>
</context>
<context>
    <name>tern7::TKQueryPanel</name>
    <message>
        <source>level %1</source>
        <translation>المستوى %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 من %2</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>معطَّل</translation>
    </message>
    <message>
        <source>left out: %1</source>
        <translation>غير مُستخدَم: %1</translation>
    </message>
    <message>
        <source>The list is empty</source>
        <translation>القائمة فارغة</translation>
    </message>
    <message>
        <source>The list is being read...</source>
        <translation>تجري قراءة القائمة...</translation>
    </message>
    <message>
        <source>The list could not be read: %1</source>
        <translation>تعذّرت قراءة القائمة: %1</translation>
    </message>
    <message>
        <source>&amp;Read it again</source>
        <translation>إعادة ال&amp;قراءة</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>نعم</translation>
    </message>
    <message>
        <source>no</source>
        <translation>لا</translation>
    </message>
</context>
<context>
    <name>tern7::TKResultFieldsPanel</name>
    <message>
        <source>Column %1: %2, %3</source>
        <translation>العمود %1: %2، %3</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>العمود %1</translation>
    </message>
    <message>
        <source>Sorting of %1</source>
        <translation>ترتيب %1</translation>
    </message>
    <message>
        <source>Result fields</source>
        <translation>حقول النتيجة</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 من %2</translation>
    </message>
    <message>
        <source>Ctrl and a click: formula, function, caption</source>
        <translation>Ctrl مع نقرة: الصيغة والدالة والعنوان</translation>
    </message>
</context>
<context>
    <name>tern7::TKTitlesGrid</name>
    <message>
        <source>English</source>
        <translation>الإنجليزية</translation>
    </message>
    <message>
        <source>Translated</source>
        <translation>الترجمة</translation>
    </message>
</context>
<context>
    <name>tern7::TListPopup</name>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
</context>
<context>
    <name>tern7::TRowProblem</name>
    <message>
        <source>choose a field</source>
        <translation>اختر حقلاً</translation>
    </message>
    <message>
        <source>choose an operator</source>
        <translation>اختر عاملاً</translation>
    </message>
    <message>
        <source>this field is not known any more</source>
        <translation>هذا الحقل لم يعد معروفًا</translation>
    </message>
    <message>
        <source>this operator is not known any more</source>
        <translation>هذا العامل لم يعد معروفًا</translation>
    </message>
    <message>
        <source>define the sub-query</source>
        <translation>حدّد الاستعلام الفرعي</translation>
    </message>
    <message>
        <source>enter a value</source>
        <translation>أدخل قيمة</translation>
    </message>
    <message>
        <source>“%1” can not be read as a date or time</source>
        <translation>لا يمكن قراءة «%1» كتاريخ أو وقت</translation>
    </message>
    <message>
        <source>“%1” is no list of numbers</source>
        <translation>«%1» ليست قائمة أرقام</translation>
    </message>
    <message>
        <source>“%1” is no number</source>
        <translation>«%1» ليس رقمًا</translation>
    </message>
    <message>
        <source>sub-query: %1</source>
        <translation>الاستعلام الفرعي: %1</translation>
    </message>
    <message>
        <source>write for example %1</source>
        <translation>اكتب مثلاً %1</translation>
    </message>
    <message>
        <source>write for example %1, or always %2</source>
        <translation>اكتب مثلاً %1 أو دائماً %2</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <translation>%1؛ %2</translation>
    </message>
    <message>
        <source>left out of the SQL that was read: %1</source>
        <translation>حُذف من SQL المقروء: %1</translation>
    </message>
</context>
<context>
    <name>tern7::T_dlgRFieldsEdit</name>
    <message>
        <source>A bracket or quote has no counterpart</source>
        <translation>قوس أو علامة اقتباس بلا مقابل</translation>
    </message>
    <message>
        <source>This column has no expression yet</source>
        <translation>لا يوجد تعبير لهذا العمود بعد</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>دالة</translation>
    </message>
    <message>
        <source>Function over the rows</source>
        <translation>دالة على الصفوف</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>نقل لأعلى</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>نقل لأسفل</translation>
    </message>
    <message>
        <source>A comment or semicolon can not stand in an expression</source>
        <translation>لا يمكن أن يحتوي التعبير على تعليق أو فاصلة منقوطة</translation>
    </message>
    <message>
        <source>There is no field in it: fields stand in braces, {Name}</source>
        <translation>لا يوجد حقل في التعبير: تُكتب الحقول بين أقواس معقوفة، {الاسم}</translation>
    </message>
    <message>
        <source>An invisible character that turns the direction of text can not stand in an expression</source>
        <translation>لا يمكن أن يرد في التعبير حرف غير مرئي يغيّر اتجاه النص</translation>
    </message>
    <message>
        <source>More than one field has this name: %1</source>
        <translation>أكثر من حقل يحمل هذا الاسم: %1</translation>
    </message>
    <message>
        <source>Perhaps it is meant: %1</source>
        <translation>ربما المقصود: %1</translation>
    </message>
</context>
<context>
    <name>tern7::T_dlgSubQuery</name>
    <message>
        <source>Choose the field that the sub-query returns.</source>
        <translation>اختر الحقل الذي يعيده الاستعلام الفرعي.</translation>
    </message>
</context>
<context>
    <name>tern7::T_dlgTitlesEdit</name>
    <message>
        <source>Titles editor</source>
        <translation>محرر التسميات</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>&amp;تحميل...</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>&amp;حفظ...</translation>
    </message>
    <message>
        <source>&amp;Load From File...</source>
        <translation>&amp;تحميل من ملف...</translation>
    </message>
    <message>
        <source>&amp;Save To File</source>
        <translation>&amp;حفظ في ملف</translation>
    </message>
    <message>
        <source>TERN Titles (*.ttl)</source>
        <translation>تسميات TERN (*.ttl)</translation>
    </message>
    <message>
        <source>Query files (*.qry)</source>
        <translation>ملفات الاستعلام (*.qry)</translation>
    </message>
    <message>
        <source>Discard the changes?</source>
        <translation>هل تريد تجاهل التغييرات؟</translation>
    </message>
    <message>
        <source>The file holds no titles that can be used here: %1</source>
        <translation>لا يحتوي الملف على نصوص يمكن استخدامها هنا: %1</translation>
    </message>
    <message>
        <source>The file is not UTF-8 and was read as Windows-1252.</source>
        <translation>الملف ليس بترميز UTF-8 وقُرئ على أنه Windows-1252.</translation>
    </message>
</context>
</TS>
