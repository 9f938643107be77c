<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl">
<context>
    <name>CubeFacePreview</name>
    <message>
        <source>Front</source>
        <translation>Przód</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Prawo</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tył</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Lewo</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Góra</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Dół</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Obróć w lewo</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>Obróć w prawo</translation>
    </message>
</context>
</TS>
