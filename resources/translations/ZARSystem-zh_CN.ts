<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>ZARSysFileUtilities</name>
    <message>
        <source>The source folder cannot be found.</source>
        <translation>找不到源文件夹。</translation>
    </message>
    <message>
        <source>The existing file cannot be deleted.</source>
        <translation>无法删除现有文件。</translation>
    </message>
    <message>
        <source>Failed to copy the file.</source>
        <translation>复制文件失败。</translation>
    </message>
</context>
<context>
    <name>ZARSysMessageQueue</name>
    <message>
        <source>Error: </source>
        <translation>错误：</translation>
    </message>
    <message>
        <source>Warning: </source>
        <translation>警告：</translation>
    </message>
    <message>
        <source>Information: </source>
        <translation>信息：</translation>
    </message>
</context>
<context>
    <name>ZARSysRatio</name>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Percentage (%1)</source>
        <translation>百分比 (%1)</translation>
    </message>
    <message>
        <source>Permille (%1)</source>
        <translation>千分比 (%1)</translation>
    </message>
    <message>
        <source>Permyriad (%1)</source>
        <translation>万分比 (%1)</translation>
    </message>
</context>
<context>
    <name>ZARSysValue</name>
    <message>
        <source>Length</source>
        <translation>长度</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>力</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Linear Feed Rate</source>
        <translation>线性进给速度</translation>
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
        <translation>面积</translation>
    </message>
    <message>
        <source>Millimeter</source>
        <translation>毫米</translation>
    </message>
    <message>
        <source>Centimeter</source>
        <translation>厘米</translation>
    </message>
    <message>
        <source>Meter</source>
        <translation>米</translation>
    </message>
    <message>
        <source>Kilometer</source>
        <translation>千米</translation>
    </message>
    <message>
        <source>Inch</source>
        <translation>英寸</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>英尺</translation>
    </message>
    <message>
        <source>Yard</source>
        <translation>码</translation>
    </message>
    <message>
        <source>Mile</source>
        <translation>英里</translation>
    </message>
    <message>
        <source>Newton</source>
        <translation>牛顿</translation>
    </message>
    <message>
        <source>Dyne</source>
        <translation>达因</translation>
    </message>
    <message>
        <source>Pound Force</source>
        <translation>磅力</translation>
    </message>
    <message>
        <source>Nanosecond</source>
        <translation>纳秒</translation>
    </message>
    <message>
        <source>Microsecond</source>
        <translation>微秒</translation>
    </message>
    <message>
        <source>Millisecond</source>
        <translation>毫秒</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>分钟</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>小时</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>天</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>周</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>年</translation>
    </message>
    <message>
        <source>Meters Per Minute</source>
        <translation>米每分钟</translation>
    </message>
    <message>
        <source>Millimeters Per Minute</source>
        <translation>毫米每分钟</translation>
    </message>
    <message>
        <source>Inches Per Minute</source>
        <translation>英寸每分钟</translation>
    </message>
    <message>
        <source>Degree</source>
        <translation>度</translation>
    </message>
    <message>
        <source>Radian</source>
        <translation>弧度</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>圈</translation>
    </message>
    <message>
        <source>Arc Second</source>
        <translation>角秒</translation>
    </message>
    <message>
        <source>Arc Minute</source>
        <translation>角分</translation>
    </message>
    <message>
        <source>Kilogram Per Square Meter</source>
        <translation>千克每平方米</translation>
    </message>
    <message>
        <source>Kilogram Per Square Millimeter</source>
        <translation>千克每平方毫米</translation>
    </message>
    <message>
        <source>Pound Per Square Inch</source>
        <translation>磅每平方英寸</translation>
    </message>
    <message>
        <source>Kilogram Per Cubic Meter</source>
        <translation>千克每立方米</translation>
    </message>
    <message>
        <source>Kilogram Per Cubic Millimeter</source>
        <translation>千克每立方毫米</translation>
    </message>
    <message>
        <source>Gram Per Cubic Centimeter</source>
        <translation>克每立方厘米</translation>
    </message>
    <message>
        <source>Gram Per Cubic Millimeter</source>
        <translation>克每立方毫米</translation>
    </message>
    <message>
        <source>Pound Per Cubic Inch</source>
        <translation>磅每立方英寸</translation>
    </message>
    <message>
        <source>Pound Per Cubic Foot</source>
        <translation>磅每立方英尺</translation>
    </message>
    <message>
        <source>Square Millimeter</source>
        <translation>平方毫米</translation>
    </message>
    <message>
        <source>Square Centimeter</source>
        <translation>平方厘米</translation>
    </message>
    <message>
        <source>Square Meter</source>
        <translation>平方米</translation>
    </message>
    <message>
        <source>Square Kilometer</source>
        <translation>平方千米</translation>
    </message>
    <message>
        <source>Square Inch</source>
        <translation>平方英寸</translation>
    </message>
    <message>
        <source>Square Foot</source>
        <translation>平方英尺</translation>
    </message>
    <message>
        <source>Square Yard</source>
        <translation>平方码</translation>
    </message>
    <message>
        <source>Square Mile</source>
        <translation>平方英里</translation>
    </message>
    <message>
        <source>&lt;not set&gt;</source>
        <translation>&lt;未设置&gt;</translation>
    </message>
</context>
<context>
    <name>ZARSysVariantFilter</name>
    <message>
        <source>begins with</source>
        <translation>开头是</translation>
    </message>
    <message>
        <source>ends with</source>
        <translation>结尾是</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>包含</translation>
    </message>
    <message>
        <source>does not contain</source>
        <translation>不包含</translation>
    </message>
    <message>
        <source>is equal to</source>
        <translation>等于</translation>
    </message>
    <message>
        <source>is not equal to</source>
        <translation>不等于</translation>
    </message>
    <message>
        <source>greater than</source>
        <translation>大于</translation>
    </message>
    <message>
        <source>greater than or equal to</source>
        <translation>大于或等于</translation>
    </message>
    <message>
        <source>less than</source>
        <translation>小于</translation>
    </message>
    <message>
        <source>less than or equal to</source>
        <translation>小于或等于</translation>
    </message>
    <message>
        <source>is checked</source>
        <translation>已勾选</translation>
    </message>
    <message>
        <source>is not checked</source>
        <translation>未勾选</translation>
    </message>
</context>
</TS>
