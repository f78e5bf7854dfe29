<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>QuantityEditor</name>
    <message>
        <source>Sheet width:</source>
        <translation>Largeur de la tôle&#xa0;:</translation>
    </message>
    <message>
        <source>Sheet height:</source>
        <translation>Hauteur de la tôle&#xa0;:</translation>
    </message>
    <message>
        <source>Feed rate:</source>
        <translation>Vitesse d&apos;avance&#xa0;:</translation>
    </message>
    <message>
        <source>Rotation:</source>
        <translation>Rotation&#xa0;:</translation>
    </message>
    <message>
        <source>Quantity editor</source>
        <translation>Éditeur de grandeurs</translation>
    </message>
    <message>
        <source>Sheet and machine</source>
        <translation>Tôle et machine</translation>
    </message>
    <message>
        <source>Number and unit</source>
        <translation>Nombre et unité</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Unités</translation>
    </message>
    <message>
        <source>%1:</source>
        <extracomment>The label of a unit chooser; %1 is a magnitude, such as Length.</extracomment>
        <translation>%1&#xa0;:</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Langue&#xa0;:</translation>
    </message>
    <message>
        <source>Not a unit of %1: &quot;%2&quot; was read as %3.</source>
        <extracomment>%1 is a magnitude, such as Length; %2 the text typed; %3 the value it gave, with its unit.</extracomment>
        <translation>Pas une unité de la grandeur %1&#xa0;: «&#xa0;%2&#xa0;» a été lu comme %3.</translation>
    </message>
</context>
</TS>
