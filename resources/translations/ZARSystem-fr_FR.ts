<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>ZARSysFileUtilities</name>
    <message>
        <source>The source folder cannot be found.</source>
        <translation>Le dossier source est introuvable.</translation>
    </message>
    <message>
        <source>The existing file cannot be deleted.</source>
        <translation>Impossible de supprimer le fichier existant.</translation>
    </message>
    <message>
        <source>Failed to copy the file.</source>
        <translation>Échec de la copie du fichier.</translation>
    </message>
</context>
<context>
    <name>ZARSysMessageQueue</name>
    <message>
        <source>Error: </source>
        <translation>Erreur : </translation>
    </message>
    <message>
        <source>Warning: </source>
        <translation>Avertissement : </translation>
    </message>
    <message>
        <source>Information: </source>
        <translation>Information : </translation>
    </message>
</context>
<context>
    <name>ZARSysRatio</name>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Percentage (%1)</source>
        <translation>Pourcentage (%1)</translation>
    </message>
    <message>
        <source>Permille (%1)</source>
        <translation>Pour mille (%1)</translation>
    </message>
    <message>
        <source>Permyriad (%1)</source>
        <translation>Pour dix mille (%1)</translation>
    </message>
</context>
<context>
    <name>ZARSysValue</name>
    <message>
        <source>Length</source>
        <translation>Longueur</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Force</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>Linear Feed Rate</source>
        <translation>Vitesse d&apos;avance linéaire</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>Surface Weight</source>
        <translation>Masse surfacique</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Masse volumique</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Surface</translation>
    </message>
    <message>
        <source>Millimeter</source>
        <translation>Millimètre</translation>
    </message>
    <message>
        <source>Centimeter</source>
        <translation>Centimètre</translation>
    </message>
    <message>
        <source>Meter</source>
        <translation>Mètre</translation>
    </message>
    <message>
        <source>Kilometer</source>
        <translation>Kilomètre</translation>
    </message>
    <message>
        <source>Inch</source>
        <translation>Pouce</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>Pied</translation>
    </message>
    <message>
        <source>Yard</source>
        <translation>Yard</translation>
    </message>
    <message>
        <source>Mile</source>
        <translation>Mile</translation>
    </message>
    <message>
        <source>Newton</source>
        <translation>Newton</translation>
    </message>
    <message>
        <source>Dyne</source>
        <translation>Dyne</translation>
    </message>
    <message>
        <source>Pound Force</source>
        <translation>Livre-force</translation>
    </message>
    <message>
        <source>Nanosecond</source>
        <translation>Nanoseconde</translation>
    </message>
    <message>
        <source>Microsecond</source>
        <translation>Microseconde</translation>
    </message>
    <message>
        <source>Millisecond</source>
        <translation>Milliseconde</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Seconde</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minute</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Jour</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Semaine</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
    <message>
        <source>Meters Per Minute</source>
        <translation>Mètre par minute</translation>
    </message>
    <message>
        <source>Millimeters Per Minute</source>
        <translation>Millimètre par minute</translation>
    </message>
    <message>
        <source>Inches Per Minute</source>
        <translation>Pouce par minute</translation>
    </message>
    <message>
        <source>Degree</source>
        <translation>Degré</translation>
    </message>
    <message>
        <source>Radian</source>
        <translation>Radian</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Tour</translation>
    </message>
    <message>
        <source>Arc Second</source>
        <translation>Seconde d&apos;arc</translation>
    </message>
    <message>
        <source>Arc Minute</source>
        <translation>Minute d&apos;arc</translation>
    </message>
    <message>
        <source>Kilogram Per Square Meter</source>
        <translation>Kilogramme par mètre carré</translation>
    </message>
    <message>
        <source>Kilogram Per Square Millimeter</source>
        <translation>Kilogramme par millimètre carré</translation>
    </message>
    <message>
        <source>Pound Per Square Inch</source>
        <translation>Livre par pouce carré</translation>
    </message>
    <message>
        <source>Kilogram Per Cubic Meter</source>
        <translation>Kilogramme par mètre cube</translation>
    </message>
    <message>
        <source>Kilogram Per Cubic Millimeter</source>
        <translation>Kilogramme par millimètre cube</translation>
    </message>
    <message>
        <source>Gram Per Cubic Centimeter</source>
        <translation>Gramme par centimètre cube</translation>
    </message>
    <message>
        <source>Gram Per Cubic Millimeter</source>
        <translation>Gramme par millimètre cube</translation>
    </message>
    <message>
        <source>Pound Per Cubic Inch</source>
        <translation>Livre par pouce cube</translation>
    </message>
    <message>
        <source>Pound Per Cubic Foot</source>
        <translation>Livre par pied cube</translation>
    </message>
    <message>
        <source>Square Millimeter</source>
        <translation>Millimètre carré</translation>
    </message>
    <message>
        <source>Square Centimeter</source>
        <translation>Centimètre carré</translation>
    </message>
    <message>
        <source>Square Meter</source>
        <translation>Mètre carré</translation>
    </message>
    <message>
        <source>Square Kilometer</source>
        <translation>Kilomètre carré</translation>
    </message>
    <message>
        <source>Square Inch</source>
        <translation>Pouce carré</translation>
    </message>
    <message>
        <source>Square Foot</source>
        <translation>Pied carré</translation>
    </message>
    <message>
        <source>Square Yard</source>
        <translation>Yard carré</translation>
    </message>
    <message>
        <source>Square Mile</source>
        <translation>Mile carré</translation>
    </message>
    <message>
        <source>&lt;not set&gt;</source>
        <translation>&lt;non défini&gt;</translation>
    </message>
</context>
<context>
    <name>ZARSysVariantFilter</name>
    <message>
        <source>begins with</source>
        <translation>commence par</translation>
    </message>
    <message>
        <source>ends with</source>
        <translation>se termine par</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>contient</translation>
    </message>
    <message>
        <source>does not contain</source>
        <translation>ne contient pas</translation>
    </message>
    <message>
        <source>is equal to</source>
        <translation>est égal à</translation>
    </message>
    <message>
        <source>is not equal to</source>
        <translation>est différent de</translation>
    </message>
    <message>
        <source>greater than</source>
        <translation>supérieur à</translation>
    </message>
    <message>
        <source>greater than or equal to</source>
        <translation>supérieur ou égal à</translation>
    </message>
    <message>
        <source>less than</source>
        <translation>inférieur à</translation>
    </message>
    <message>
        <source>less than or equal to</source>
        <translation>inférieur ou égal à</translation>
    </message>
    <message>
        <source>is checked</source>
        <translation>est coché</translation>
    </message>
    <message>
        <source>is not checked</source>
        <translation>n&apos;est pas coché</translation>
    </message>
</context>
</TS>
