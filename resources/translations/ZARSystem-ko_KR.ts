<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR">
<context>
    <name>ZARSysFileUtilities</name>
    <message>
        <source>The source folder cannot be found.</source>
        <translation>원본 폴더를 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>The existing file cannot be deleted.</source>
        <translation>기존 파일을 삭제할 수 없습니다.</translation>
    </message>
    <message>
        <source>Failed to copy the file.</source>
        <translation>파일을 복사하지 못했습니다.</translation>
    </message>
</context>
<context>
    <name>ZARSysMessageQueue</name>
    <message>
        <source>Error: </source>
        <translation>오류: </translation>
    </message>
    <message>
        <source>Warning: </source>
        <translation>경고: </translation>
    </message>
    <message>
        <source>Information: </source>
        <translation>정보: </translation>
    </message>
</context>
<context>
    <name>ZARSysRatio</name>
    <message>
        <source>None</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>Percentage (%1)</source>
        <translation>백분율 (%1)</translation>
    </message>
    <message>
        <source>Permille (%1)</source>
        <translation>천분율 (%1)</translation>
    </message>
    <message>
        <source>Permyriad (%1)</source>
        <translation>만분율 (%1)</translation>
    </message>
</context>
<context>
    <name>ZARSysValue</name>
    <message>
        <source>Length</source>
        <translation>길이</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>힘</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>Linear Feed Rate</source>
        <translation>선형 이송 속도</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>각도</translation>
    </message>
    <message>
        <source>Surface Weight</source>
        <translation>면밀도</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>밀도</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>면적</translation>
    </message>
    <message>
        <source>Millimeter</source>
        <translation>밀리미터</translation>
    </message>
    <message>
        <source>Centimeter</source>
        <translation>센티미터</translation>
    </message>
    <message>
        <source>Meter</source>
        <translation>미터</translation>
    </message>
    <message>
        <source>Kilometer</source>
        <translation>킬로미터</translation>
    </message>
    <message>
        <source>Inch</source>
        <translation>인치</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>피트</translation>
    </message>
    <message>
        <source>Yard</source>
        <translation>야드</translation>
    </message>
    <message>
        <source>Mile</source>
        <translation>마일</translation>
    </message>
    <message>
        <source>Newton</source>
        <translation>뉴턴</translation>
    </message>
    <message>
        <source>Dyne</source>
        <translation>다인</translation>
    </message>
    <message>
        <source>Pound Force</source>
        <translation>파운드힘</translation>
    </message>
    <message>
        <source>Nanosecond</source>
        <translation>나노초</translation>
    </message>
    <message>
        <source>Microsecond</source>
        <translation>마이크로초</translation>
    </message>
    <message>
        <source>Millisecond</source>
        <translation>밀리초</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>초</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>분</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>일</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>주</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>년</translation>
    </message>
    <message>
        <source>Meters Per Minute</source>
        <translation>분당 미터</translation>
    </message>
    <message>
        <source>Millimeters Per Minute</source>
        <translation>분당 밀리미터</translation>
    </message>
    <message>
        <source>Inches Per Minute</source>
        <translation>분당 인치</translation>
    </message>
    <message>
        <source>Degree</source>
        <translation>도</translation>
    </message>
    <message>
        <source>Radian</source>
        <translation>라디안</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>회전</translation>
    </message>
    <message>
        <source>Arc Second</source>
        <translation>각초</translation>
    </message>
    <message>
        <source>Arc Minute</source>
        <translation>각분</translation>
    </message>
    <message>
        <source>Kilogram Per Square Meter</source>
        <translation>제곱미터당 킬로그램</translation>
    </message>
    <message>
        <source>Kilogram Per Square Millimeter</source>
        <translation>제곱밀리미터당 킬로그램</translation>
    </message>
    <message>
        <source>Pound Per Square Inch</source>
        <translation>제곱인치당 파운드</translation>
    </message>
    <message>
        <source>Kilogram Per Cubic Meter</source>
        <translation>세제곱미터당 킬로그램</translation>
    </message>
    <message>
        <source>Kilogram Per Cubic Millimeter</source>
        <translation>세제곱밀리미터당 킬로그램</translation>
    </message>
    <message>
        <source>Gram Per Cubic Centimeter</source>
        <translation>세제곱센티미터당 그램</translation>
    </message>
    <message>
        <source>Gram Per Cubic Millimeter</source>
        <translation>세제곱밀리미터당 그램</translation>
    </message>
    <message>
        <source>Pound Per Cubic Inch</source>
        <translation>세제곱인치당 파운드</translation>
    </message>
    <message>
        <source>Pound Per Cubic Foot</source>
        <translation>세제곱피트당 파운드</translation>
    </message>
    <message>
        <source>Square Millimeter</source>
        <translation>제곱밀리미터</translation>
    </message>
    <message>
        <source>Square Centimeter</source>
        <translation>제곱센티미터</translation>
    </message>
    <message>
        <source>Square Meter</source>
        <translation>제곱미터</translation>
    </message>
    <message>
        <source>Square Kilometer</source>
        <translation>제곱킬로미터</translation>
    </message>
    <message>
        <source>Square Inch</source>
        <translation>제곱인치</translation>
    </message>
    <message>
        <source>Square Foot</source>
        <translation>제곱피트</translation>
    </message>
    <message>
        <source>Square Yard</source>
        <translation>제곱야드</translation>
    </message>
    <message>
        <source>Square Mile</source>
        <translation>제곱마일</translation>
    </message>
    <message>
        <source>&lt;not set&gt;</source>
        <translation>&lt;설정 안 됨&gt;</translation>
    </message>
</context>
<context>
    <name>ZARSysVariantFilter</name>
    <message>
        <source>begins with</source>
        <translation>다음으로 시작</translation>
    </message>
    <message>
        <source>ends with</source>
        <translation>다음으로 끝남</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>포함</translation>
    </message>
    <message>
        <source>does not contain</source>
        <translation>포함하지 않음</translation>
    </message>
    <message>
        <source>is equal to</source>
        <translation>같음</translation>
    </message>
    <message>
        <source>is not equal to</source>
        <translation>같지 않음</translation>
    </message>
    <message>
        <source>greater than</source>
        <translation>보다 큼</translation>
    </message>
    <message>
        <source>greater than or equal to</source>
        <translation>보다 크거나 같음</translation>
    </message>
    <message>
        <source>less than</source>
        <translation>보다 작음</translation>
    </message>
    <message>
        <source>less than or equal to</source>
        <translation>보다 작거나 같음</translation>
    </message>
    <message>
        <source>is checked</source>
        <translation>선택됨</translation>
    </message>
    <message>
        <source>is not checked</source>
        <translation>선택 안 됨</translation>
    </message>
</context>
</TS>
