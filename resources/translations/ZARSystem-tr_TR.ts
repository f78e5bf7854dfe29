<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR">
<context>
    <name>ZARSysFileUtilities</name>
    <message>
        <source>The source folder cannot be found.</source>
        <translation>Kaynak klasör bulunamadı.</translation>
    </message>
    <message>
        <source>The existing file cannot be deleted.</source>
        <translation>Mevcut dosya silinemiyor.</translation>
    </message>
    <message>
        <source>Failed to copy the file.</source>
        <translation>Dosya kopyalanamadı.</translation>
    </message>
</context>
<context>
    <name>ZARSysMessageQueue</name>
    <message>
        <source>Error: </source>
        <translation>Hata: </translation>
    </message>
    <message>
        <source>Warning: </source>
        <translation>Uyarı: </translation>
    </message>
    <message>
        <source>Information: </source>
        <translation>Bilgi: </translation>
    </message>
</context>
<context>
    <name>ZARSysRatio</name>
    <message>
        <source>None</source>
        <translation>Yok</translation>
    </message>
    <message>
        <source>Percentage (%1)</source>
        <translation>Yüzde (%1)</translation>
    </message>
    <message>
        <source>Permille (%1)</source>
        <translation>Binde (%1)</translation>
    </message>
    <message>
        <source>Permyriad (%1)</source>
        <translation>On binde (%1)</translation>
    </message>
</context>
<context>
    <name>ZARSysValue</name>
    <message>
        <source>Length</source>
        <translation>Uzunluk</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Kuvvet</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zaman</translation>
    </message>
    <message>
        <source>Linear Feed Rate</source>
        <translation>Doğrusal ilerleme hızı</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Açı</translation>
    </message>
    <message>
        <source>Surface Weight</source>
        <translation>Birim alan kütlesi</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Yoğunluk</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Alan</translation>
    </message>
    <message>
        <source>Millimeter</source>
        <translation>Milimetre</translation>
    </message>
    <message>
        <source>Centimeter</source>
        <translation>Santimetre</translation>
    </message>
    <message>
        <source>Meter</source>
        <translation>Metre</translation>
    </message>
    <message>
        <source>Kilometer</source>
        <translation>Kilometre</translation>
    </message>
    <message>
        <source>Inch</source>
        <translation>İnç</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>Fit</translation>
    </message>
    <message>
        <source>Yard</source>
        <translation>Yarda</translation>
    </message>
    <message>
        <source>Mile</source>
        <translation>Mil</translation>
    </message>
    <message>
        <source>Newton</source>
        <translation>Newton</translation>
    </message>
    <message>
        <source>Dyne</source>
        <translation>Din</translation>
    </message>
    <message>
        <source>Pound Force</source>
        <translation>Libre-kuvvet</translation>
    </message>
    <message>
        <source>Nanosecond</source>
        <translation>Nanosaniye</translation>
    </message>
    <message>
        <source>Microsecond</source>
        <translation>Mikrosaniye</translation>
    </message>
    <message>
        <source>Millisecond</source>
        <translation>Milisaniye</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Saniye</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Dakika</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Saat</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Gün</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Hafta</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Yıl</translation>
    </message>
    <message>
        <source>Meters Per Minute</source>
        <translation>Dakika başına metre</translation>
    </message>
    <message>
        <source>Millimeters Per Minute</source>
        <translation>Dakika başına milimetre</translation>
    </message>
    <message>
        <source>Inches Per Minute</source>
        <translation>Dakika başına inç</translation>
    </message>
    <message>
        <source>Degree</source>
        <translation>Derece</translation>
    </message>
    <message>
        <source>Radian</source>
        <translation>Radyan</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Tur</translation>
    </message>
    <message>
        <source>Arc Second</source>
        <translation>Yay saniyesi</translation>
    </message>
    <message>
        <source>Arc Minute</source>
        <translation>Yay dakikası</translation>
    </message>
    <message>
        <source>Kilogram Per Square Meter</source>
        <translation>Metrekare başına kilogram</translation>
    </message>
    <message>
        <source>Kilogram Per Square Millimeter</source>
        <translation>Milimetrekare başına kilogram</translation>
    </message>
    <message>
        <source>Pound Per Square Inch</source>
        <translation>İnç kare başına libre</translation>
    </message>
    <message>
        <source>Kilogram Per Cubic Meter</source>
        <translation>Metreküp başına kilogram</translation>
    </message>
    <message>
        <source>Kilogram Per Cubic Millimeter</source>
        <translation>Milimetreküp başına kilogram</translation>
    </message>
    <message>
        <source>Gram Per Cubic Centimeter</source>
        <translation>Santimetreküp başına gram</translation>
    </message>
    <message>
        <source>Gram Per Cubic Millimeter</source>
        <translation>Milimetreküp başına gram</translation>
    </message>
    <message>
        <source>Pound Per Cubic Inch</source>
        <translation>İnç küp başına libre</translation>
    </message>
    <message>
        <source>Pound Per Cubic Foot</source>
        <translation>Fit küp başına libre</translation>
    </message>
    <message>
        <source>Square Millimeter</source>
        <translation>Milimetrekare</translation>
    </message>
    <message>
        <source>Square Centimeter</source>
        <translation>Santimetrekare</translation>
    </message>
    <message>
        <source>Square Meter</source>
        <translation>Metrekare</translation>
    </message>
    <message>
        <source>Square Kilometer</source>
        <translation>Kilometrekare</translation>
    </message>
    <message>
        <source>Square Inch</source>
        <translation>İnç kare</translation>
    </message>
    <message>
        <source>Square Foot</source>
        <translation>Fit kare</translation>
    </message>
    <message>
        <source>Square Yard</source>
        <translation>Yarda kare</translation>
    </message>
    <message>
        <source>Square Mile</source>
        <translation>Mil kare</translation>
    </message>
    <message>
        <source>&lt;not set&gt;</source>
        <translation>&lt;ayarlanmadı&gt;</translation>
    </message>
</context>
<context>
    <name>ZARSysVariantFilter</name>
    <message>
        <source>begins with</source>
        <translation>ile başlar</translation>
    </message>
    <message>
        <source>ends with</source>
        <translation>ile biter</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>içerir</translation>
    </message>
    <message>
        <source>does not contain</source>
        <translation>içermez</translation>
    </message>
    <message>
        <source>is equal to</source>
        <translation>eşittir</translation>
    </message>
    <message>
        <source>is not equal to</source>
        <translation>eşit değildir</translation>
    </message>
    <message>
        <source>greater than</source>
        <translation>büyüktür</translation>
    </message>
    <message>
        <source>greater than or equal to</source>
        <translation>büyük veya eşittir</translation>
    </message>
    <message>
        <source>less than</source>
        <translation>küçüktür</translation>
    </message>
    <message>
        <source>less than or equal to</source>
        <translation>küçük veya eşittir</translation>
    </message>
    <message>
        <source>is checked</source>
        <translation>işaretli</translation>
    </message>
    <message>
        <source>is not checked</source>
        <translation>işaretli değil</translation>
    </message>
</context>
</TS>
