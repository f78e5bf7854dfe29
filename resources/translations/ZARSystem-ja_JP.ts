<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>ZARSysFileUtilities</name>
    <message>
        <source>The source folder cannot be found.</source>
        <translation>コピー元のフォルダーが見つかりません。</translation>
    </message>
    <message>
        <source>The existing file cannot be deleted.</source>
        <translation>既存のファイルを削除できません。</translation>
    </message>
    <message>
        <source>Failed to copy the file.</source>
        <translation>ファイルのコピーに失敗しました。</translation>
    </message>
</context>
<context>
    <name>ZARSysMessageQueue</name>
    <message>
        <source>Error: </source>
        <translation>エラー：</translation>
    </message>
    <message>
        <source>Warning: </source>
        <translation>警告：</translation>
    </message>
    <message>
        <source>Information: </source>
        <translation>情報：</translation>
    </message>
</context>
<context>
    <name>ZARSysRatio</name>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Percentage (%1)</source>
        <translation>百分率 (%1)</translation>
    </message>
    <message>
        <source>Permille (%1)</source>
        <translation>千分率 (%1)</translation>
    </message>
    <message>
        <source>Permyriad (%1)</source>
        <translation>万分率 (%1)</translation>
    </message>
</context>
<context>
    <name>ZARSysValue</name>
    <message>
        <source>Length</source>
        <translation>長さ</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>力</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Linear Feed Rate</source>
        <translation>直線送り速度</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>角度</translation>
    </message>
    <message>
        <source>Surface Weight</source>
        <translation>面密度</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>密度</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>面積</translation>
    </message>
    <message>
        <source>Millimeter</source>
        <translation>ミリメートル</translation>
    </message>
    <message>
        <source>Centimeter</source>
        <translation>センチメートル</translation>
    </message>
    <message>
        <source>Meter</source>
        <translation>メートル</translation>
    </message>
    <message>
        <source>Kilometer</source>
        <translation>キロメートル</translation>
    </message>
    <message>
        <source>Inch</source>
        <translation>インチ</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>フィート</translation>
    </message>
    <message>
        <source>Yard</source>
        <translation>ヤード</translation>
    </message>
    <message>
        <source>Mile</source>
        <translation>マイル</translation>
    </message>
    <message>
        <source>Newton</source>
        <translation>ニュートン</translation>
    </message>
    <message>
        <source>Dyne</source>
        <translation>ダイン</translation>
    </message>
    <message>
        <source>Pound Force</source>
        <translation>重量ポンド</translation>
    </message>
    <message>
        <source>Nanosecond</source>
        <translation>ナノ秒</translation>
    </message>
    <message>
        <source>Microsecond</source>
        <translation>マイクロ秒</translation>
    </message>
    <message>
        <source>Millisecond</source>
        <translation>ミリ秒</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>分</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>日</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>週</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>年</translation>
    </message>
    <message>
        <source>Meters Per Minute</source>
        <translation>メートル毎分</translation>
    </message>
    <message>
        <source>Millimeters Per Minute</source>
        <translation>ミリメートル毎分</translation>
    </message>
    <message>
        <source>Inches Per Minute</source>
        <translation>インチ毎分</translation>
    </message>
    <message>
        <source>Degree</source>
        <translation>度</translation>
    </message>
    <message>
        <source>Radian</source>
        <translation>ラジアン</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>回転</translation>
    </message>
    <message>
        <source>Arc Second</source>
        <translation>秒角</translation>
    </message>
    <message>
        <source>Arc Minute</source>
        <translation>分角</translation>
    </message>
    <message>
        <source>Kilogram Per Square Meter</source>
        <translation>キログラム毎平方メートル</translation>
    </message>
    <message>
        <source>Kilogram Per Square Millimeter</source>
        <translation>キログラム毎平方ミリメートル</translation>
    </message>
    <message>
        <source>Pound Per Square Inch</source>
        <translation>ポンド毎平方インチ</translation>
    </message>
    <message>
        <source>Kilogram Per Cubic Meter</source>
        <translation>キログラム毎立方メートル</translation>
    </message>
    <message>
        <source>Kilogram Per Cubic Millimeter</source>
        <translation>キログラム毎立方ミリメートル</translation>
    </message>
    <message>
        <source>Gram Per Cubic Centimeter</source>
        <translation>グラム毎立方センチメートル</translation>
    </message>
    <message>
        <source>Gram Per Cubic Millimeter</source>
        <translation>グラム毎立方ミリメートル</translation>
    </message>
    <message>
        <source>Pound Per Cubic Inch</source>
        <translation>ポンド毎立方インチ</translation>
    </message>
    <message>
        <source>Pound Per Cubic Foot</source>
        <translation>ポンド毎立方フィート</translation>
    </message>
    <message>
        <source>Square Millimeter</source>
        <translation>平方ミリメートル</translation>
    </message>
    <message>
        <source>Square Centimeter</source>
        <translation>平方センチメートル</translation>
    </message>
    <message>
        <source>Square Meter</source>
        <translation>平方メートル</translation>
    </message>
    <message>
        <source>Square Kilometer</source>
        <translation>平方キロメートル</translation>
    </message>
    <message>
        <source>Square Inch</source>
        <translation>平方インチ</translation>
    </message>
    <message>
        <source>Square Foot</source>
        <translation>平方フィート</translation>
    </message>
    <message>
        <source>Square Yard</source>
        <translation>平方ヤード</translation>
    </message>
    <message>
        <source>Square Mile</source>
        <translation>平方マイル</translation>
    </message>
    <message>
        <source>&lt;not set&gt;</source>
        <translation>&lt;未設定&gt;</translation>
    </message>
</context>
<context>
    <name>ZARSysVariantFilter</name>
    <message>
        <source>begins with</source>
        <translation>で始まる</translation>
    </message>
    <message>
        <source>ends with</source>
        <translation>で終わる</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>を含む</translation>
    </message>
    <message>
        <source>does not contain</source>
        <translation>を含まない</translation>
    </message>
    <message>
        <source>is equal to</source>
        <translation>と等しい</translation>
    </message>
    <message>
        <source>is not equal to</source>
        <translation>と等しくない</translation>
    </message>
    <message>
        <source>greater than</source>
        <translation>より大きい</translation>
    </message>
    <message>
        <source>greater than or equal to</source>
        <translation>以上</translation>
    </message>
    <message>
        <source>less than</source>
        <translation>より小さい</translation>
    </message>
    <message>
        <source>less than or equal to</source>
        <translation>以下</translation>
    </message>
    <message>
        <source>is checked</source>
        <translation>チェックされている</translation>
    </message>
    <message>
        <source>is not checked</source>
        <translation>チェックされていない</translation>
    </message>
</context>
</TS>
