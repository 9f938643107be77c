<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name>CubeFacePreview</name>
    <message>
        <source>Front</source>
        <translation>Спереди</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Справа</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Сзади</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Слева</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Сверху</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Снизу</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Повернуть влево</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>Повернуть вправо</translation>
    </message>
</context>
</TS>
