<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name></name>
    <message id="1"><source>one</source><translation>eins</translation></message>
    <message id="3"><source>three</source><translation>drei</translation></message>
</context>
</TS>
