<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name></name>
    <message id="1"><source>one</source><translation>un</translation></message>
    <message id="3"><source>three</source><translation>trois</translation></message>
</context>
</TS>
