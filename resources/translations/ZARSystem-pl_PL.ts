<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL">
<context>
    <name>ZARSysFileUtilities</name>
    <message>
        <source>The source folder cannot be found.</source>
        <translation>Nie można odnaleźć folderu źródłowego.</translation>
    </message>
    <message>
        <source>The existing file cannot be deleted.</source>
        <translation>Nie można usunąć istniejącego pliku.</translation>
    </message>
    <message>
        <source>Failed to copy the file.</source>
        <translation>Nie udało się skopiować pliku.</translation>
    </message>
</context>
<context>
    <name>ZARSysMessageQueue</name>
    <message>
        <source>Error: </source>
        <translation>Błąd: </translation>
    </message>
    <message>
        <source>Warning: </source>
        <translation>Ostrzeżenie: </translation>
    </message>
    <message>
        <source>Information: </source>
        <translation>Informacja: </translation>
    </message>
</context>
<context>
    <name>ZARSysRatio</name>
    <message>
        <source>None</source>
        <translation>Brak</translation>
    </message>
    <message>
        <source>Percentage (%1)</source>
        <translation>Procent (%1)</translation>
    </message>
    <message>
        <source>Permille (%1)</source>
        <translation>Promil (%1)</translation>
    </message>
    <message>
        <source>Permyriad (%1)</source>
        <translation>Na dziesięć tysięcy (%1)</translation>
    </message>
</context>
<context>
    <name>ZARSysValue</name>
    <message>
        <source>Length</source>
        <translation>Długość</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Siła</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Czas</translation>
    </message>
    <message>
        <source>Linear Feed Rate</source>
        <translation>Liniowa prędkość posuwu</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Kąt</translation>
    </message>
    <message>
        <source>Surface Weight</source>
        <translation>Masa powierzchniowa</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Gęstość</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Powierzchnia</translation>
    </message>
    <message>
        <source>Millimeter</source>
        <translation>Milimetr</translation>
    </message>
    <message>
        <source>Centimeter</source>
        <translation>Centymetr</translation>
    </message>
    <message>
        <source>Meter</source>
        <translation>Metr</translation>
    </message>
    <message>
        <source>Kilometer</source>
        <translation>Kilometr</translation>
    </message>
    <message>
        <source>Inch</source>
        <translation>Cal</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>Stopa</translation>
    </message>
    <message>
        <source>Yard</source>
        <translation>Jard</translation>
    </message>
    <message>
        <source>Mile</source>
        <translation>Mila</translation>
    </message>
    <message>
        <source>Newton</source>
        <translation>Niuton</translation>
    </message>
    <message>
        <source>Dyne</source>
        <translation>Dyna</translation>
    </message>
    <message>
        <source>Pound Force</source>
        <translation>Funt-siła</translation>
    </message>
    <message>
        <source>Nanosecond</source>
        <translation>Nanosekunda</translation>
    </message>
    <message>
        <source>Microsecond</source>
        <translation>Mikrosekunda</translation>
    </message>
    <message>
        <source>Millisecond</source>
        <translation>Milisekunda</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Sekunda</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minuta</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Godzina</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Dzień</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Tydzień</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Rok</translation>
    </message>
    <message>
        <source>Meters Per Minute</source>
        <translation>Metr na minutę</translation>
    </message>
    <message>
        <source>Millimeters Per Minute</source>
        <translation>Milimetr na minutę</translation>
    </message>
    <message>
        <source>Inches Per Minute</source>
        <translation>Cal na minutę</translation>
    </message>
    <message>
        <source>Degree</source>
        <translation>Stopień</translation>
    </message>
    <message>
        <source>Radian</source>
        <translation>Radian</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Obrót</translation>
    </message>
    <message>
        <source>Arc Second</source>
        <translation>Sekunda kątowa</translation>
    </message>
    <message>
        <source>Arc Minute</source>
        <translation>Minuta kątowa</translation>
    </message>
    <message>
        <source>Kilogram Per Square Meter</source>
        <translation>Kilogram na metr kwadratowy</translation>
    </message>
    <message>
        <source>Kilogram Per Square Millimeter</source>
        <translation>Kilogram na milimetr kwadratowy</translation>
    </message>
    <message>
        <source>Pound Per Square Inch</source>
        <translation>Funt na cal kwadratowy</translation>
    </message>
    <message>
        <source>Kilogram Per Cubic Meter</source>
        <translation>Kilogram na metr sześcienny</translation>
    </message>
    <message>
        <source>Kilogram Per Cubic Millimeter</source>
        <translation>Kilogram na milimetr sześcienny</translation>
    </message>
    <message>
        <source>Gram Per Cubic Centimeter</source>
        <translation>Gram na centymetr sześcienny</translation>
    </message>
    <message>
        <source>Gram Per Cubic Millimeter</source>
        <translation>Gram na milimetr sześcienny</translation>
    </message>
    <message>
        <source>Pound Per Cubic Inch</source>
        <translation>Funt na cal sześcienny</translation>
    </message>
    <message>
        <source>Pound Per Cubic Foot</source>
        <translation>Funt na stopę sześcienną</translation>
    </message>
    <message>
        <source>Square Millimeter</source>
        <translation>Milimetr kwadratowy</translation>
    </message>
    <message>
        <source>Square Centimeter</source>
        <translation>Centymetr kwadratowy</translation>
    </message>
    <message>
        <source>Square Meter</source>
        <translation>Metr kwadratowy</translation>
    </message>
    <message>
        <source>Square Kilometer</source>
        <translation>Kilometr kwadratowy</translation>
    </message>
    <message>
        <source>Square Inch</source>
        <translation>Cal kwadratowy</translation>
    </message>
    <message>
        <source>Square Foot</source>
        <translation>Stopa kwadratowa</translation>
    </message>
    <message>
        <source>Square Yard</source>
        <translation>Jard kwadratowy</translation>
    </message>
    <message>
        <source>Square Mile</source>
        <translation>Mila kwadratowa</translation>
    </message>
    <message>
        <source>&lt;not set&gt;</source>
        <translation>&lt;nie ustawiono&gt;</translation>
    </message>
</context>
<context>
    <name>ZARSysVariantFilter</name>
    <message>
        <source>begins with</source>
        <translation>zaczyna się od</translation>
    </message>
    <message>
        <source>ends with</source>
        <translation>kończy się na</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>zawiera</translation>
    </message>
    <message>
        <source>does not contain</source>
        <translation>nie zawiera</translation>
    </message>
    <message>
        <source>is equal to</source>
        <translation>równa się</translation>
    </message>
    <message>
        <source>is not equal to</source>
        <translation>nie równa się</translation>
    </message>
    <message>
        <source>greater than</source>
        <translation>większe niż</translation>
    </message>
    <message>
        <source>greater than or equal to</source>
        <translation>większe lub równe</translation>
    </message>
    <message>
        <source>less than</source>
        <translation>mniejsze niż</translation>
    </message>
    <message>
        <source>less than or equal to</source>
        <translation>mniejsze lub równe</translation>
    </message>
    <message>
        <source>is checked</source>
        <translation>jest zaznaczone</translation>
    </message>
    <message>
        <source>is not checked</source>
        <translation>nie jest zaznaczone</translation>
    </message>
</context>
</TS>
