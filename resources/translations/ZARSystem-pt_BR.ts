<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>ZARSysFileUtilities</name>
    <message>
        <source>The source folder cannot be found.</source>
        <translation>A pasta de origem não foi encontrada.</translation>
    </message>
    <message>
        <source>The existing file cannot be deleted.</source>
        <translation>Não é possível excluir o arquivo existente.</translation>
    </message>
    <message>
        <source>Failed to copy the file.</source>
        <translation>Falha ao copiar o arquivo.</translation>
    </message>
</context>
<context>
    <name>ZARSysMessageQueue</name>
    <message>
        <source>Error: </source>
        <translation>Erro: </translation>
    </message>
    <message>
        <source>Warning: </source>
        <translation>Aviso: </translation>
    </message>
    <message>
        <source>Information: </source>
        <translation>Informação: </translation>
    </message>
</context>
<context>
    <name>ZARSysRatio</name>
    <message>
        <source>None</source>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>Percentage (%1)</source>
        <translation>Porcentagem (%1)</translation>
    </message>
    <message>
        <source>Permille (%1)</source>
        <translation>Por mil (%1)</translation>
    </message>
    <message>
        <source>Permyriad (%1)</source>
        <translation>Por dez mil (%1)</translation>
    </message>
</context>
<context>
    <name>ZARSysValue</name>
    <message>
        <source>Length</source>
        <translation>Comprimento</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Força</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Linear Feed Rate</source>
        <translation>Velocidade de avanço linear</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Ângulo</translation>
    </message>
    <message>
        <source>Surface Weight</source>
        <translation>Massa superficial</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Densidade</translation>
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
        <translation>Quilômetro</translation>
    </message>
    <message>
        <source>Inch</source>
        <translation>Polegada</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>Pé</translation>
    </message>
    <message>
        <source>Yard</source>
        <translation>Jarda</translation>
    </message>
    <message>
        <source>Mile</source>
        <translation>Milha</translation>
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
        <translation>Libra-força</translation>
    </message>
    <message>
        <source>Nanosecond</source>
        <translation>Nanossegundo</translation>
    </message>
    <message>
        <source>Microsecond</source>
        <translation>Microssegundo</translation>
    </message>
    <message>
        <source>Millisecond</source>
        <translation>Milissegundo</translation>
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
        <translation>Dia</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Semana</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Ano</translation>
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
        <translation>Polegada por minuto</translation>
    </message>
    <message>
        <source>Degree</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>Radian</source>
        <translation>Radiano</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Volta</translation>
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
        <translation>Quilograma por metro quadrado</translation>
    </message>
    <message>
        <source>Kilogram Per Square Millimeter</source>
        <translation>Quilograma por milímetro quadrado</translation>
    </message>
    <message>
        <source>Pound Per Square Inch</source>
        <translation>Libra por polegada quadrada</translation>
    </message>
    <message>
        <source>Kilogram Per Cubic Meter</source>
        <translation>Quilograma por metro cúbico</translation>
    </message>
    <message>
        <source>Kilogram Per Cubic Millimeter</source>
        <translation>Quilograma por milímetro cúbico</translation>
    </message>
    <message>
        <source>Gram Per Cubic Centimeter</source>
        <translation>Grama por centímetro cúbico</translation>
    </message>
    <message>
        <source>Gram Per Cubic Millimeter</source>
        <translation>Grama por milímetro cúbico</translation>
    </message>
    <message>
        <source>Pound Per Cubic Inch</source>
        <translation>Libra por polegada cúbica</translation>
    </message>
    <message>
        <source>Pound Per Cubic Foot</source>
        <translation>Libra por pé cúbico</translation>
    </message>
    <message>
        <source>Square Millimeter</source>
        <translation>Milímetro quadrado</translation>
    </message>
    <message>
        <source>Square Centimeter</source>
        <translation>Centímetro quadrado</translation>
    </message>
    <message>
        <source>Square Meter</source>
        <translation>Metro quadrado</translation>
    </message>
    <message>
        <source>Square Kilometer</source>
        <translation>Quilômetro quadrado</translation>
    </message>
    <message>
        <source>Square Inch</source>
        <translation>Polegada quadrada</translation>
    </message>
    <message>
        <source>Square Foot</source>
        <translation>Pé quadrado</translation>
    </message>
    <message>
        <source>Square Yard</source>
        <translation>Jarda quadrada</translation>
    </message>
    <message>
        <source>Square Mile</source>
        <translation>Milha quadrada</translation>
    </message>
    <message>
        <source>&lt;not set&gt;</source>
        <translation>&lt;não definido&gt;</translation>
    </message>
</context>
<context>
    <name>ZARSysVariantFilter</name>
    <message>
        <source>begins with</source>
        <translation>começa com</translation>
    </message>
    <message>
        <source>ends with</source>
        <translation>termina com</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>contém</translation>
    </message>
    <message>
        <source>does not contain</source>
        <translation>não contém</translation>
    </message>
    <message>
        <source>is equal to</source>
        <translation>é igual a</translation>
    </message>
    <message>
        <source>is not equal to</source>
        <translation>é diferente de</translation>
    </message>
    <message>
        <source>greater than</source>
        <translation>maior que</translation>
    </message>
    <message>
        <source>greater than or equal to</source>
        <translation>maior ou igual a</translation>
    </message>
    <message>
        <source>less than</source>
        <translation>menor que</translation>
    </message>
    <message>
        <source>less than or equal to</source>
        <translation>menor ou igual a</translation>
    </message>
    <message>
        <source>is checked</source>
        <translation>está marcado</translation>
    </message>
    <message>
        <source>is not checked</source>
        <translation>não está marcado</translation>
    </message>
</context>
</TS>
