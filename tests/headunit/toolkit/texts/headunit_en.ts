<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name></name>
    <message id="1"><source>one</source><translation>one</translation></message>
    <message id="2"><source>two</source><translation>two</translation></message>
</context>
</TS>
