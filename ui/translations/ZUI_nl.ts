<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl">
<context>
    <name>CubeFacePreview</name>
    <message>
        <source>Front</source>
        <translation>Voor</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Achter</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Boven</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Onder</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Linksom draaien</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>Rechtsom draaien</translation>
    </message>
</context>
</TS>
