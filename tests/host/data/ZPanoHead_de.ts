<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>Library</name>
    <message>
        <source>Comment</source>
        <translation>Kommentar (Test)</translation>
    </message>
</context>
</TS>
