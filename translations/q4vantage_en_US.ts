<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_GB">
<context>
    <name>FrmMain</name>
    <message>
        <source>Query Favourites</source>
        <translation>Query Favorites</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Favorites</translation>
    </message>
    <message>
        <source>&amp;Add To Favourites</source>
        <translation>&amp;Add To Favorites</translation>
    </message>
</context>
</TS>
