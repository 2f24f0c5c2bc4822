<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>tern7::TMainWindow</name>
    <message numerus="yes">
        <source>%n row(s) of this query refer to fields that the database does not have. They are marked and take no part.</source>
        <translation>
            <numerusform>%n row of this query refers to a field that the database does not have. It is marked and takes no part.</numerusform>
            <numerusform>%n rows of this query refer to fields that the database does not have. They are marked and take no part.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n condition(s) are not finished and take no part (%1).</source>
        <translation>
            <numerusform>%n condition is not finished and takes no part (%1).</numerusform>
            <numerusform>%n conditions are not finished and take no part (%1).</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n column(s) of this query refer to fields that the database does not have. Choose others, or remove them.</source>
        <translation>
            <numerusform>%n column of this query refers to a field that the database does not have. Choose another, or remove it.</numerusform>
            <numerusform>%n columns of this query refer to fields that the database does not have. Choose others, or remove them.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tern7::TReportDialog</name>
    <message numerus="yes">
        <source>%n part(s) of the statement were left out: the query does not say the same.</source>
        <translation>
            <numerusform>%n part of the statement was left out: the query does not say the same.</numerusform>
            <numerusform>%n parts of the statement were left out: the query does not say the same.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n part(s) were kept as text.</source>
        <translation>
            <numerusform>%n part was kept as text.</numerusform>
            <numerusform>%n parts were kept as text.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tern7::TResultView</name>
    <message numerus="yes">
        <source>%n row(s)</source>
        <translation>
            <numerusform>%n row</numerusform>
            <numerusform>%n rows</numerusform>
        </translation>
    </message>
</context>
</TS>
