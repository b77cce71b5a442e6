<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_GB">
<context>
    <name>FrmMain</name>
    <message>
        <source>Favourites</source>
        <translation>Favorites</translation>
    </message>
</context>
<context>
    <name>ListMenu</name>
    <message>
        <source>&amp;Add To Favourites</source>
        <translation>&amp;Add To Favorites</translation>
    </message>
    <message>
        <source>The favourites file could not be written.</source>
        <translation>The favorites file could not be written.</translation>
    </message>
</context>
<context>
    <name>QueryBar</name>
    <message>
        <source>Query Favourites</source>
        <translation>Query Favorites</translation>
    </message>
</context>
<context>
    <name>QueryController</name>
    <message>
        <source>No favourites yet: right-click a server and choose &quot;Add To Favourites&quot;.</source>
        <translation>No favorites yet: right-click a server and choose &quot;Add To Favorites&quot;.</translation>
    </message>
</context>
</TS>
