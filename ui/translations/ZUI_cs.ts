<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs">
<context>
    <name>CubeFacePreview</name>
    <message>
        <source>Front</source>
        <translation>Přední</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Pravá</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zadní</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Levá</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Horní</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Dolní</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Otočit doleva</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>Otočit doprava</translation>
    </message>
</context>
</TS>
