<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
<context>
    <name>CubeFacePreview</name>
    <message>
        <source>Front</source>
        <translation>Fronte</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Destra</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retro</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Sinistra</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Alto</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Basso</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Ruota a sinistra</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>Ruota a destra</translation>
    </message>
</context>
</TS>
