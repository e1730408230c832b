<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Form</name>
    <message><source>Back</source><translation>Zurück</translation></message>
</context>
</TS>
