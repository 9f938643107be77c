<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>CubeFacePreview</name>
    <message>
        <source>Front</source>
        <translation>Front</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Top</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Bottom</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Rotate left</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>Rotate right</translation>
    </message>
</context>
</TS>
