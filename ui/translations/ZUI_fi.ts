<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fi">
<context>
    <name>CubeFacePreview</name>
    <message>
        <source>Front</source>
        <translation>Etu</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Oikea</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Taka</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Vasen</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Ylä</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Ala</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Kierrä vasemmalle</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>Kierrä oikealle</translation>
    </message>
</context>
</TS>
