<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW">
<context>
    <name>CubeFacePreview</name>
    <message>
        <source>Front</source>
        <translation>前</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>後</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>向左旋轉</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>向右旋轉</translation>
    </message>
</context>
</TS>
