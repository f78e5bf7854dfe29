<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>ZARSysFileUtilities</name>
    <message>
        <source>The source folder cannot be found.</source>
        <translation>Impossibile trovare la cartella di origine.</translation>
    </message>
    <message>
        <source>The existing file cannot be deleted.</source>
        <translation>Impossibile eliminare il file esistente.</translation>
    </message>
    <message>
        <source>Failed to copy the file.</source>
        <translation>Copia del file non riuscita.</translation>
    </message>
</context>
<context>
    <name>ZARSysMessageQueue</name>
    <message>
        <source>Error: </source>
        <translation>Errore: </translation>
    </message>
    <message>
        <source>Warning: </source>
        <translation>Avviso: </translation>
    </message>
    <message>
        <source>Information: </source>
        <translation>Informazione: </translation>
    </message>
</context>
<context>
    <name>ZARSysRatio</name>
    <message>
        <source>None</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>Percentage (%1)</source>
        <translation>Percentuale (%1)</translation>
    </message>
    <message>
        <source>Permille (%1)</source>
        <translation>Per mille (%1)</translation>
    </message>
    <message>
        <source>Permyriad (%1)</source>
        <translation>Per diecimila (%1)</translation>
    </message>
</context>
<context>
    <name>ZARSysValue</name>
    <message>
        <source>Length</source>
        <translation>Lunghezza</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Forza</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Linear Feed Rate</source>
        <translation>Velocità di avanzamento lineare</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angolo</translation>
    </message>
    <message>
        <source>Surface Weight</source>
        <translation>Massa superficiale</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Densità</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Area</translation>
    </message>
    <message>
        <source>Millimeter</source>
        <translation>Millimetro</translation>
    </message>
    <message>
        <source>Centimeter</source>
        <translation>Centimetro</translation>
    </message>
    <message>
        <source>Meter</source>
        <translation>Metro</translation>
    </message>
    <message>
        <source>Kilometer</source>
        <translation>Chilometro</translation>
    </message>
    <message>
        <source>Inch</source>
        <translation>Pollice</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>Piede</translation>
    </message>
    <message>
        <source>Yard</source>
        <translation>Iarda</translation>
    </message>
    <message>
        <source>Mile</source>
        <translation>Miglio</translation>
    </message>
    <message>
        <source>Newton</source>
        <translation>Newton</translation>
    </message>
    <message>
        <source>Dyne</source>
        <translation>Dina</translation>
    </message>
    <message>
        <source>Pound Force</source>
        <translation>Libbra forza</translation>
    </message>
    <message>
        <source>Nanosecond</source>
        <translation>Nanosecondo</translation>
    </message>
    <message>
        <source>Microsecond</source>
        <translation>Microsecondo</translation>
    </message>
    <message>
        <source>Millisecond</source>
        <translation>Millisecondo</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Secondo</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minuto</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Giorno</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Settimana</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Anno</translation>
    </message>
    <message>
        <source>Meters Per Minute</source>
        <translation>Metro al minuto</translation>
    </message>
    <message>
        <source>Millimeters Per Minute</source>
        <translation>Millimetro al minuto</translation>
    </message>
    <message>
        <source>Inches Per Minute</source>
        <translation>Pollice al minuto</translation>
    </message>
    <message>
        <source>Degree</source>
        <translation>Grado</translation>
    </message>
    <message>
        <source>Radian</source>
        <translation>Radiante</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Giro</translation>
    </message>
    <message>
        <source>Arc Second</source>
        <translation>Secondo d&apos;arco</translation>
    </message>
    <message>
        <source>Arc Minute</source>
        <translation>Minuto d&apos;arco</translation>
    </message>
    <message>
        <source>Kilogram Per Square Meter</source>
        <translation>Chilogrammo al metro quadrato</translation>
    </message>
    <message>
        <source>Kilogram Per Square Millimeter</source>
        <translation>Chilogrammo al millimetro quadrato</translation>
    </message>
    <message>
        <source>Pound Per Square Inch</source>
        <translation>Libbra al pollice quadrato</translation>
    </message>
    <message>
        <source>Kilogram Per Cubic Meter</source>
        <translation>Chilogrammo al metro cubo</translation>
    </message>
    <message>
        <source>Kilogram Per Cubic Millimeter</source>
        <translation>Chilogrammo al millimetro cubo</translation>
    </message>
    <message>
        <source>Gram Per Cubic Centimeter</source>
        <translation>Grammo al centimetro cubo</translation>
    </message>
    <message>
        <source>Gram Per Cubic Millimeter</source>
        <translation>Grammo al millimetro cubo</translation>
    </message>
    <message>
        <source>Pound Per Cubic Inch</source>
        <translation>Libbra al pollice cubo</translation>
    </message>
    <message>
        <source>Pound Per Cubic Foot</source>
        <translation>Libbra al piede cubo</translation>
    </message>
    <message>
        <source>Square Millimeter</source>
        <translation>Millimetro quadrato</translation>
    </message>
    <message>
        <source>Square Centimeter</source>
        <translation>Centimetro quadrato</translation>
    </message>
    <message>
        <source>Square Meter</source>
        <translation>Metro quadrato</translation>
    </message>
    <message>
        <source>Square Kilometer</source>
        <translation>Chilometro quadrato</translation>
    </message>
    <message>
        <source>Square Inch</source>
        <translation>Pollice quadrato</translation>
    </message>
    <message>
        <source>Square Foot</source>
        <translation>Piede quadrato</translation>
    </message>
    <message>
        <source>Square Yard</source>
        <translation>Iarda quadrata</translation>
    </message>
    <message>
        <source>Square Mile</source>
        <translation>Miglio quadrato</translation>
    </message>
    <message>
        <source>&lt;not set&gt;</source>
        <translation>&lt;non impostato&gt;</translation>
    </message>
</context>
<context>
    <name>ZARSysVariantFilter</name>
    <message>
        <source>begins with</source>
        <translation>inizia con</translation>
    </message>
    <message>
        <source>ends with</source>
        <translation>termina con</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>contiene</translation>
    </message>
    <message>
        <source>does not contain</source>
        <translation>non contiene</translation>
    </message>
    <message>
        <source>is equal to</source>
        <translation>è uguale a</translation>
    </message>
    <message>
        <source>is not equal to</source>
        <translation>è diverso da</translation>
    </message>
    <message>
        <source>greater than</source>
        <translation>maggiore di</translation>
    </message>
    <message>
        <source>greater than or equal to</source>
        <translation>maggiore o uguale a</translation>
    </message>
    <message>
        <source>less than</source>
        <translation>minore di</translation>
    </message>
    <message>
        <source>less than or equal to</source>
        <translation>minore o uguale a</translation>
    </message>
    <message>
        <source>is checked</source>
        <translation>è selezionato</translation>
    </message>
    <message>
        <source>is not checked</source>
        <translation>non è selezionato</translation>
    </message>
</context>
</TS>
