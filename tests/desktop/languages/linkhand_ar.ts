<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar">
<context>
    <name>linkhand</name>
    <message>
        <source>IDS_HOST_PAGE_AddrBookUIPlugin</source>
        <translation>دليل الهاتف</translation>
    </message>
    <message>
        <source>IDS_HOST_LANGUAGE</source>
        <translation>اللغة</translation>
    </message>
</context>
<context>
    <name>AddrBookUIPlugin</name>
    <message>
        <source>ID_STR_NAME</source>
        <translation>الاسم</translation>
    </message>
</context>
</TS>
