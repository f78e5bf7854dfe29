#include <ZARSysJsonConverters.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

// What a refused read must leave in place.
const QColor untouchedColor(1, 2, 3, 4);
const QSize untouchedSize(7, 9);
constexpr double untouchedDouble = 42.0;
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

QJsonObject rgba(const QJsonValue &r, const QJsonValue &g, const QJsonValue &b, const QJsonValue &a)
{
    return {{u"r"_s, r}, {u"g"_s, g}, {u"b"_s, b}, {u"a"_s, a}};
}

QJsonObject wh(const QJsonValue &w, const QJsonValue &h)
{
    return {{u"w"_s, w}, {u"h"_s, h}};
}

} // namespace

class tst_JsonConverters : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void colorToJson_data();
    void colorToJson();
    void colorFromJson_data();
    void colorFromJson();
    void sizeToJson_data();
    void sizeToJson();
    void sizeFromJson_data();
    void sizeFromJson();
    void doubleRoundTrip_data();
    void doubleRoundTrip();
    void nanIsNull();
    void doubleFromJson_data();
    void doubleFromJson();
};

void tst_JsonConverters::colorToJson_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QJsonObject>("json");

    QTest::newRow("opaque") << QColor(255, 128, 0) << rgba(255, 128, 0, 255);
    QTest::newRow("translucent") << QColor(10, 20, 30, 40) << rgba(10, 20, 30, 40);
    QTest::newRow("transparent") << QColor(0, 0, 0, 0) << rgba(0, 0, 0, 0);
    QTest::newRow("from HSV") << QColor::fromHsv(120, 255, 255, 128) << rgba(0, 255, 0, 128);
}

void tst_JsonConverters::colorToJson()
{
    QFETCH(QColor, color);
    QFETCH(QJsonObject, json);

    const QJsonValue written = ZARSysJsonConverters::Convert(color);
    QCOMPARE(written, QJsonValue(json));
    QColor read = untouchedColor;
    QVERIFY(ZARSysJsonConverters::Convert(written, read));
    QCOMPARE(read.rgba(), color.rgba());
    // Through text and back too.
    const QByteArray text = QJsonDocument(written.toObject()).toJson(QJsonDocument::Compact);
    read = untouchedColor;
    QVERIFY(ZARSysJsonConverters::Convert(QJsonDocument::fromJson(text).object(), read));
    QCOMPARE(read.rgba(), color.rgba());
}

void tst_JsonConverters::colorFromJson_data()
{
    QTest::addColumn<QJsonValue>("json");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<QColor>("color");

    QTest::newRow("strings count as 0")
        << QJsonValue(rgba(u"255"_s, u"128"_s, u"0"_s, u"255"_s)) << true << QColor(0, 0, 0, 0);
    QTest::newRow("null and bool count as 0")
        << QJsonValue(rgba(12, QJsonValue(), true, 255)) << true << QColor(12, 0, 0, 255);
    QJsonObject five = rgba(1, 1, 1, 1);
    five.insert(u"x"_s, 1);
    QTest::newRow("fifth member") << QJsonValue(five) << false << untouchedColor;
    QJsonObject three = rgba(1, 1, 1, 1);
    three.remove(u"a"_s);
    QTest::newRow("three members") << QJsonValue(three) << false << untouchedColor;
    QJsonObject renamed = three;
    renamed.insert(u"alpha"_s, 1);
    QTest::newRow("another name") << QJsonValue(renamed) << false << untouchedColor;
    QTest::newRow("empty object") << QJsonValue(QJsonObject()) << false << untouchedColor;
    QTest::newRow("array") << QJsonValue(QJsonArray {1, 2, 3, 4}) << false << untouchedColor;
    QTest::newRow("string") << QJsonValue(u"#ff8000"_s) << false << untouchedColor;
    QTest::newRow("null") << QJsonValue() << false << untouchedColor;
}

void tst_JsonConverters::colorFromJson()
{
    QFETCH(QJsonValue, json);
    QFETCH(bool, ok);
    QFETCH(QColor, color);

    QColor read = untouchedColor;
    QCOMPARE(ZARSysJsonConverters::Convert(json, read), ok);
    QCOMPARE(read, color);
}

void tst_JsonConverters::sizeToJson_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QJsonObject>("json");

    QTest::newRow("640x480") << QSize(640, 480) << wh(640, 480);
    QTest::newRow("empty") << QSize(0, 0) << wh(0, 0);
    QTest::newRow("invalid") << QSize() << wh(-1, -1);
    QTest::newRow("large") << QSize(1 << 30, 7) << wh(1 << 30, 7);
}

void tst_JsonConverters::sizeToJson()
{
    QFETCH(QSize, size);
    QFETCH(QJsonObject, json);

    const QJsonValue written = ZARSysJsonConverters::Convert(size);
    QCOMPARE(written, QJsonValue(json));
    QSize read = untouchedSize;
    QVERIFY(ZARSysJsonConverters::Convert(written, read));
    QCOMPARE(read, size);
}

void tst_JsonConverters::sizeFromJson_data()
{
    QTest::addColumn<QJsonValue>("json");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<QSize>("size");

    QTest::newRow("strings count as 0")
        << QJsonValue(wh(u"640"_s, u"480"_s)) << true << QSize(0, 0);
    QTest::newRow("w and x") << QJsonValue(QJsonObject {{u"w"_s, 3}, {u"x"_s, 4}}) << false
                             << untouchedSize;
    QJsonObject three = wh(3, 4);
    three.insert(u"d"_s, 5);
    QTest::newRow("third member") << QJsonValue(three) << false << untouchedSize;
    QTest::newRow("w alone") << QJsonValue(QJsonObject {{u"w"_s, 3}}) << false << untouchedSize;
    QTest::newRow("array") << QJsonValue(QJsonArray {3, 4}) << false << untouchedSize;
    QTest::newRow("null") << QJsonValue() << false << untouchedSize;
}

void tst_JsonConverters::sizeFromJson()
{
    QFETCH(QJsonValue, json);
    QFETCH(bool, ok);
    QFETCH(QSize, size);

    QSize read = untouchedSize;
    QCOMPARE(ZARSysJsonConverters::Convert(json, read), ok);
    QCOMPARE(read, size);
}

void tst_JsonConverters::doubleRoundTrip_data()
{
    QTest::addColumn<double>("value");

    QTest::newRow("fraction") << 1.5;
    QTest::newRow("zero") << 0.0;
    QTest::newRow("negative") << -2.25;
    QTest::newRow("huge") << -1e300;
    QTest::newRow("denormal") << std::numeric_limits<double>::denorm_min();
}

void tst_JsonConverters::doubleRoundTrip()
{
    QFETCH(double, value);

    const QJsonValue written = ZARSysJsonConverters::Convert(value);
    QVERIFY(written.isDouble());
    QCOMPARE(written, QJsonValue(value));
    double read = untouchedDouble;
    QVERIFY(ZARSysJsonConverters::Convert(written, read));
    QVERIFY(read == value); // exactly
}

void tst_JsonConverters::nanIsNull()
{
    for (const double value : {notANumber, -notANumber}) {
        const QJsonValue written = ZARSysJsonConverters::Convert(value);
        QVERIFY(written.isNull());
        QCOMPARE(QJsonDocument(QJsonArray {written}).toJson(QJsonDocument::Compact), "[null]"_ba);
        double read = untouchedDouble;
        QVERIFY(ZARSysJsonConverters::Convert(written, read));
        QVERIFY(std::isnan(read));
    }
}

void tst_JsonConverters::doubleFromJson_data()
{
    QTest::addColumn<QJsonValue>("json");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<double>("value");

    QTest::newRow("integer") << QJsonValue(3) << true << 3.0;
    QTest::newRow("string holding a number") << QJsonValue(u"1.5"_s) << false << untouchedDouble;
    QTest::newRow("bool") << QJsonValue(true) << false << untouchedDouble;
    QTest::newRow("object") << QJsonValue(QJsonObject()) << false << untouchedDouble;
    QTest::newRow("array") << QJsonValue(QJsonArray {1.5}) << false << untouchedDouble;
    QTest::newRow("undefined") << QJsonValue(QJsonValue::Undefined) << false << untouchedDouble;
}

void tst_JsonConverters::doubleFromJson()
{
    QFETCH(QJsonValue, json);
    QFETCH(bool, ok);
    QFETCH(double, value);

    double read = untouchedDouble;
    QCOMPARE(ZARSysJsonConverters::Convert(json, read), ok);
    QCOMPARE(read, value);
}

QTEST_GUILESS_MAIN(tst_JsonConverters)
#include "tst_jsonconverters.moc"
