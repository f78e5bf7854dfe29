<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>QuantityEditor</name>
    <message>
        <source>Sheet width:</source>
        <translation>Blechbreite:</translation>
    </message>
    <message>
        <source>Sheet height:</source>
        <translation>Blechhöhe:</translation>
    </message>
    <message>
        <source>Feed rate:</source>
        <translation>Vorschub:</translation>
    </message>
    <message>
        <source>Rotation:</source>
        <translation>Drehung:</translation>
    </message>
    <message>
        <source>Quantity editor</source>
        <translation>Größeneditor</translation>
    </message>
    <message>
        <source>Sheet and machine</source>
        <translation>Blech und Maschine</translation>
    </message>
    <message>
        <source>Number and unit</source>
        <translation>Zahl und Einheit</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Einheiten</translation>
    </message>
    <message>
        <source>%1:</source>
        <extracomment>The label of a unit chooser; %1 is a magnitude, such as Length.</extracomment>
        <translation>%1:</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Sprache:</translation>
    </message>
    <message>
        <source>Not a unit of %1: &quot;%2&quot; was read as %3.</source>
        <extracomment>%1 is a magnitude, such as Length; %2 the text typed; %3 the value it gave, with its unit.</extracomment>
        <translation>Keine Einheit der Größe %1: „%2“ wurde als %3 gelesen.</translation>
    </message>
</context>
</TS>
