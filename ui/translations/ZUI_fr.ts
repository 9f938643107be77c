<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>CubeFacePreview</name>
    <message>
        <source>Front</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Arrière</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Tourner à gauche</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>Tourner à droite</translation>
    </message>
</context>
</TS>
