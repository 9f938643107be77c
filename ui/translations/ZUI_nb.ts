<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb">
<context>
    <name>CubeFacePreview</name>
    <message>
        <source>Front</source>
        <translation>Foran</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Høyre</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Bak</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Venstre</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Topp</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Bunn</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Roter mot venstre</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>Roter mot høyre</translation>
    </message>
</context>
</TS>
