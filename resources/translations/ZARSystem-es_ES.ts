<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>ZARSysFileUtilities</name>
    <message>
        <source>The source folder cannot be found.</source>
        <translation>No se encuentra la carpeta de origen.</translation>
    </message>
    <message>
        <source>The existing file cannot be deleted.</source>
        <translation>No se puede eliminar el archivo existente.</translation>
    </message>
    <message>
        <source>Failed to copy the file.</source>
        <translation>No se pudo copiar el archivo.</translation>
    </message>
</context>
<context>
    <name>ZARSysMessageQueue</name>
    <message>
        <source>Error: </source>
        <translation>Error: </translation>
    </message>
    <message>
        <source>Warning: </source>
        <translation>Advertencia: </translation>
    </message>
    <message>
        <source>Information: </source>
        <translation>Información: </translation>
    </message>
</context>
<context>
    <name>ZARSysRatio</name>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Percentage (%1)</source>
        <translation>Porcentaje (%1)</translation>
    </message>
    <message>
        <source>Permille (%1)</source>
        <translation>Por mil (%1)</translation>
    </message>
    <message>
        <source>Permyriad (%1)</source>
        <translation>Por diez mil (%1)</translation>
    </message>
</context>
<context>
    <name>ZARSysValue</name>
    <message>
        <source>Length</source>
        <translation>Longitud</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Fuerza</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Linear Feed Rate</source>
        <translation>Velocidad de avance lineal</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Ángulo</translation>
    </message>
    <message>
        <source>Surface Weight</source>
        <translation>Masa superficial</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Densidad</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Área</translation>
    </message>
    <message>
        <source>Millimeter</source>
        <translation>Milímetro</translation>
    </message>
    <message>
        <source>Centimeter</source>
        <translation>Centímetro</translation>
    </message>
    <message>
        <source>Meter</source>
        <translation>Metro</translation>
    </message>
    <message>
        <source>Kilometer</source>
        <translation>Kilómetro</translation>
    </message>
    <message>
        <source>Inch</source>
        <translation>Pulgada</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>Pie</translation>
    </message>
    <message>
        <source>Yard</source>
        <translation>Yarda</translation>
    </message>
    <message>
        <source>Mile</source>
        <translation>Milla</translation>
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
        <translation>Libra-fuerza</translation>
    </message>
    <message>
        <source>Nanosecond</source>
        <translation>Nanosegundo</translation>
    </message>
    <message>
        <source>Microsecond</source>
        <translation>Microsegundo</translation>
    </message>
    <message>
        <source>Millisecond</source>
        <translation>Milisegundo</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Segundo</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minuto</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Día</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Semana</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
    <message>
        <source>Meters Per Minute</source>
        <translation>Metro por minuto</translation>
    </message>
    <message>
        <source>Millimeters Per Minute</source>
        <translation>Milímetro por minuto</translation>
    </message>
    <message>
        <source>Inches Per Minute</source>
        <translation>Pulgada por minuto</translation>
    </message>
    <message>
        <source>Degree</source>
        <translation>Grado</translation>
    </message>
    <message>
        <source>Radian</source>
        <translation>Radián</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Vuelta</translation>
    </message>
    <message>
        <source>Arc Second</source>
        <translation>Segundo de arco</translation>
    </message>
    <message>
        <source>Arc Minute</source>
        <translation>Minuto de arco</translation>
    </message>
    <message>
        <source>Kilogram Per Square Meter</source>
        <translation>Kilogramo por metro cuadrado</translation>
    </message>
    <message>
        <source>Kilogram Per Square Millimeter</source>
        <translation>Kilogramo por milímetro cuadrado</translation>
    </message>
    <message>
        <source>Pound Per Square Inch</source>
        <translation>Libra por pulgada cuadrada</translation>
    </message>
    <message>
        <source>Kilogram Per Cubic Meter</source>
        <translation>Kilogramo por metro cúbico</translation>
    </message>
    <message>
        <source>Kilogram Per Cubic Millimeter</source>
        <translation>Kilogramo por milímetro cúbico</translation>
    </message>
    <message>
        <source>Gram Per Cubic Centimeter</source>
        <translation>Gramo por centímetro cúbico</translation>
    </message>
    <message>
        <source>Gram Per Cubic Millimeter</source>
        <translation>Gramo por milímetro cúbico</translation>
    </message>
    <message>
        <source>Pound Per Cubic Inch</source>
        <translation>Libra por pulgada cúbica</translation>
    </message>
    <message>
        <source>Pound Per Cubic Foot</source>
        <translation>Libra por pie cúbico</translation>
    </message>
    <message>
        <source>Square Millimeter</source>
        <translation>Milímetro cuadrado</translation>
    </message>
    <message>
        <source>Square Centimeter</source>
        <translation>Centímetro cuadrado</translation>
    </message>
    <message>
        <source>Square Meter</source>
        <translation>Metro cuadrado</translation>
    </message>
    <message>
        <source>Square Kilometer</source>
        <translation>Kilómetro cuadrado</translation>
    </message>
    <message>
        <source>Square Inch</source>
        <translation>Pulgada cuadrada</translation>
    </message>
    <message>
        <source>Square Foot</source>
        <translation>Pie cuadrado</translation>
    </message>
    <message>
        <source>Square Yard</source>
        <translation>Yarda cuadrada</translation>
    </message>
    <message>
        <source>Square Mile</source>
        <translation>Milla cuadrada</translation>
    </message>
    <message>
        <source>&lt;not set&gt;</source>
        <translation>&lt;sin definir&gt;</translation>
    </message>
</context>
<context>
    <name>ZARSysVariantFilter</name>
    <message>
        <source>begins with</source>
        <translation>empieza por</translation>
    </message>
    <message>
        <source>ends with</source>
        <translation>termina en</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>contiene</translation>
    </message>
    <message>
        <source>does not contain</source>
        <translation>no contiene</translation>
    </message>
    <message>
        <source>is equal to</source>
        <translation>es igual a</translation>
    </message>
    <message>
        <source>is not equal to</source>
        <translation>es distinto de</translation>
    </message>
    <message>
        <source>greater than</source>
        <translation>mayor que</translation>
    </message>
    <message>
        <source>greater than or equal to</source>
        <translation>mayor o igual que</translation>
    </message>
    <message>
        <source>less than</source>
        <translation>menor que</translation>
    </message>
    <message>
        <source>less than or equal to</source>
        <translation>menor o igual que</translation>
    </message>
    <message>
        <source>is checked</source>
        <translation>está marcado</translation>
    </message>
    <message>
        <source>is not checked</source>
        <translation>no está marcado</translation>
    </message>
</context>
</TS>
