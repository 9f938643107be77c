<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>Library</name>
    <message>
        <source>Comment</source>
        <translation>Comentário (teste, Brasil)</translation>
    </message>
</context>
</TS>
