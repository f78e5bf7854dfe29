<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>ZARSysFileUtilities</name>
    <message>
        <source>The source folder cannot be found.</source>
        <translation>Der Quellordner wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>The existing file cannot be deleted.</source>
        <translation>Die vorhandene Datei kann nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>Failed to copy the file.</source>
        <translation>Die Datei konnte nicht kopiert werden.</translation>
    </message>
</context>
<context>
    <name>ZARSysMessageQueue</name>
    <message>
        <source>Error: </source>
        <translation>Fehler: </translation>
    </message>
    <message>
        <source>Warning: </source>
        <translation>Warnung: </translation>
    </message>
    <message>
        <source>Information: </source>
        <translation>Hinweis: </translation>
    </message>
</context>
<context>
    <name>ZARSysRatio</name>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Percentage (%1)</source>
        <translation>Prozent (%1)</translation>
    </message>
    <message>
        <source>Permille (%1)</source>
        <translation>Promille (%1)</translation>
    </message>
    <message>
        <source>Permyriad (%1)</source>
        <translation>Pro Zehntausend (%1)</translation>
    </message>
</context>
<context>
    <name>ZARSysValue</name>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Kraft</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Linear Feed Rate</source>
        <translation>Lineare Vorschubgeschwindigkeit</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Surface Weight</source>
        <translation>Flächengewicht</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Dichte</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Fläche</translation>
    </message>
    <message>
        <source>Millimeter</source>
        <translation>Millimeter</translation>
    </message>
    <message>
        <source>Centimeter</source>
        <translation>Zentimeter</translation>
    </message>
    <message>
        <source>Meter</source>
        <translation>Meter</translation>
    </message>
    <message>
        <source>Kilometer</source>
        <translation>Kilometer</translation>
    </message>
    <message>
        <source>Inch</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>Fuß</translation>
    </message>
    <message>
        <source>Yard</source>
        <translation>Yard</translation>
    </message>
    <message>
        <source>Mile</source>
        <translation>Meile</translation>
    </message>
    <message>
        <source>Newton</source>
        <translation>Newton</translation>
    </message>
    <message>
        <source>Dyne</source>
        <translation>Dyn</translation>
    </message>
    <message>
        <source>Pound Force</source>
        <translation>Pfund-Kraft</translation>
    </message>
    <message>
        <source>Nanosecond</source>
        <translation>Nanosekunde</translation>
    </message>
    <message>
        <source>Microsecond</source>
        <translation>Mikrosekunde</translation>
    </message>
    <message>
        <source>Millisecond</source>
        <translation>Millisekunde</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Sekunde</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minute</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Stunde</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Woche</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>Meters Per Minute</source>
        <translation>Meter pro Minute</translation>
    </message>
    <message>
        <source>Millimeters Per Minute</source>
        <translation>Millimeter pro Minute</translation>
    </message>
    <message>
        <source>Inches Per Minute</source>
        <translation>Zoll pro Minute</translation>
    </message>
    <message>
        <source>Degree</source>
        <translation>Grad</translation>
    </message>
    <message>
        <source>Radian</source>
        <translation>Radiant</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Umdrehung</translation>
    </message>
    <message>
        <source>Arc Second</source>
        <translation>Bogensekunde</translation>
    </message>
    <message>
        <source>Arc Minute</source>
        <translation>Bogenminute</translation>
    </message>
    <message>
        <source>Kilogram Per Square Meter</source>
        <translation>Kilogramm pro Quadratmeter</translation>
    </message>
    <message>
        <source>Kilogram Per Square Millimeter</source>
        <translation>Kilogramm pro Quadratmillimeter</translation>
    </message>
    <message>
        <source>Pound Per Square Inch</source>
        <translation>Pfund pro Quadratzoll</translation>
    </message>
    <message>
        <source>Kilogram Per Cubic Meter</source>
        <translation>Kilogramm pro Kubikmeter</translation>
    </message>
    <message>
        <source>Kilogram Per Cubic Millimeter</source>
        <translation>Kilogramm pro Kubikmillimeter</translation>
    </message>
    <message>
        <source>Gram Per Cubic Centimeter</source>
        <translation>Gramm pro Kubikzentimeter</translation>
    </message>
    <message>
        <source>Gram Per Cubic Millimeter</source>
        <translation>Gramm pro Kubikmillimeter</translation>
    </message>
    <message>
        <source>Pound Per Cubic Inch</source>
        <translation>Pfund pro Kubikzoll</translation>
    </message>
    <message>
        <source>Pound Per Cubic Foot</source>
        <translation>Pfund pro Kubikfuß</translation>
    </message>
    <message>
        <source>Square Millimeter</source>
        <translation>Quadratmillimeter</translation>
    </message>
    <message>
        <source>Square Centimeter</source>
        <translation>Quadratzentimeter</translation>
    </message>
    <message>
        <source>Square Meter</source>
        <translation>Quadratmeter</translation>
    </message>
    <message>
        <source>Square Kilometer</source>
        <translation>Quadratkilometer</translation>
    </message>
    <message>
        <source>Square Inch</source>
        <translation>Quadratzoll</translation>
    </message>
    <message>
        <source>Square Foot</source>
        <translation>Quadratfuß</translation>
    </message>
    <message>
        <source>Square Yard</source>
        <translation>Quadratyard</translation>
    </message>
    <message>
        <source>Square Mile</source>
        <translation>Quadratmeile</translation>
    </message>
    <message>
        <source>&lt;not set&gt;</source>
        <translation>&lt;nicht gesetzt&gt;</translation>
    </message>
</context>
<context>
    <name>ZARSysVariantFilter</name>
    <message>
        <source>begins with</source>
        <translation>beginnt mit</translation>
    </message>
    <message>
        <source>ends with</source>
        <translation>endet mit</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>enthält</translation>
    </message>
    <message>
        <source>does not contain</source>
        <translation>enthält nicht</translation>
    </message>
    <message>
        <source>is equal to</source>
        <translation>ist gleich</translation>
    </message>
    <message>
        <source>is not equal to</source>
        <translation>ist ungleich</translation>
    </message>
    <message>
        <source>greater than</source>
        <translation>größer als</translation>
    </message>
    <message>
        <source>greater than or equal to</source>
        <translation>größer oder gleich</translation>
    </message>
    <message>
        <source>less than</source>
        <translation>kleiner als</translation>
    </message>
    <message>
        <source>less than or equal to</source>
        <translation>kleiner oder gleich</translation>
    </message>
    <message>
        <source>is checked</source>
        <translation>ist aktiviert</translation>
    </message>
    <message>
        <source>is not checked</source>
        <translation>ist nicht aktiviert</translation>
    </message>
</context>
</TS>
