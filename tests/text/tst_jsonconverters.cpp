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
    // Each table: a value that is written ("writes") and must give json, or json that is only
    // read; then whether reading json succeeds and what it leaves in the target.
    void color_data()
    {
        QTest::addColumn<bool>("writes");
        QTest::addColumn<QJsonValue>("json");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<QColor>("value");

        QTest::newRow("translucent")
            << true << QJsonValue(rgba(10, 20, 30, 40)) << true << QColor(10, 20, 30, 40);
        QTest::newRow("from HSV") << true << QJsonValue(rgba(0, 255, 0, 128)) << true
                                  << QColor::fromHsv(120, 255, 255, 128);

        QTest::newRow("strings count as 0")
            << false << QJsonValue(rgba(u"255"_s, u"128"_s, u"0"_s, u"255"_s)) << true
            << QColor(0, 0, 0, 0);
        QTest::newRow("null and bool count as 0")
            << false << QJsonValue(rgba(12, QJsonValue(), true, 255)) << true
            << QColor(12, 0, 0, 255);
        QJsonObject five = rgba(1, 1, 1, 1);
        five.insert(u"x"_s, 1);
        QTest::newRow("fifth member") << false << QJsonValue(five) << false << untouchedColor;
        QJsonObject three = rgba(1, 1, 1, 1);
        three.remove(u"a"_s);
        QTest::newRow("three members") << false << QJsonValue(three) << false << untouchedColor;
        QJsonObject renamed = three;
        renamed.insert(u"alpha"_s, 1);
        QTest::newRow("another name") << false << QJsonValue(renamed) << false << untouchedColor;
        QTest::newRow("array") << false << QJsonValue(QJsonArray {1, 2, 3, 4}) << false
                               << untouchedColor;
    }

    void color()
    {
        QFETCH(bool, writes);
        QFETCH(QJsonValue, json);
        QFETCH(QColor, value);

        if (writes)
            QCOMPARE(ZARSysJsonConverters::Convert(value), json);
        QColor read = untouchedColor;
        QTEST(ZARSysJsonConverters::Convert(json, read), "ok");
        QCOMPARE(read.rgba(), value.rgba());
        if (writes) {
            // Through text and back too.
            const QByteArray text = QJsonDocument(json.toObject()).toJson(QJsonDocument::Compact);
            read = untouchedColor;
            QVERIFY(ZARSysJsonConverters::Convert(QJsonDocument::fromJson(text).object(), read));
            QCOMPARE(read.rgba(), value.rgba());
        }
    }

    void size_data()
    {
        QTest::addColumn<bool>("writes");
        QTest::addColumn<QJsonValue>("json");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<QSize>("value");

        QTest::newRow("640x480") << true << QJsonValue(wh(640, 480)) << true << QSize(640, 480);
        QTest::newRow("invalid") << true << QJsonValue(wh(-1, -1)) << true << QSize();
        QTest::newRow("large") << true << QJsonValue(wh(1 << 30, 7)) << true << QSize(1 << 30, 7);

        QTest::newRow("strings count as 0")
            << false << QJsonValue(wh(u"640"_s, u"480"_s)) << true << QSize(0, 0);
        QTest::newRow("w and x") << false << QJsonValue(QJsonObject {{u"w"_s, 3}, {u"x"_s, 4}})
                                 << false << untouchedSize;
        QJsonObject three = wh(3, 4);
        three.insert(u"d"_s, 5);
        QTest::newRow("third member") << false << QJsonValue(three) << false << untouchedSize;
        QTest::newRow("w alone") << false << QJsonValue(QJsonObject {{u"w"_s, 3}}) << false
                                 << untouchedSize;
        QTest::newRow("array") << false << QJsonValue(QJsonArray {3, 4}) << false << untouchedSize;
    }

    void size()
    {
        QFETCH(bool, writes);
        QFETCH(QJsonValue, json);
        QFETCH(QSize, value);

        if (writes)
            QCOMPARE(ZARSysJsonConverters::Convert(value), json);
        QSize read = untouchedSize;
        QTEST(ZARSysJsonConverters::Convert(json, read), "ok");
        QCOMPARE(read, value);
    }

    void doubleValue_data()
    {
        QTest::addColumn<bool>("writes");
        QTest::addColumn<QJsonValue>("json");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<double>("value");

        const double denormal = std::numeric_limits<double>::denorm_min();
        QTest::newRow("fraction") << true << QJsonValue(1.5) << true << 1.5;
        QTest::newRow("huge") << true << QJsonValue(-1e300) << true << -1e300;
        QTest::newRow("denormal") << true << QJsonValue(denormal) << true << denormal;

        QTest::newRow("integer") << false << QJsonValue(3) << true << 3.0;
        QTest::newRow("string holding a number")
            << false << QJsonValue(u"1.5"_s) << false << untouchedDouble;
        QTest::newRow("undefined")
            << false << QJsonValue(QJsonValue::Undefined) << false << untouchedDouble;
    }

    void doubleValue()
    {
        QFETCH(bool, writes);
        QFETCH(QJsonValue, json);
        QFETCH(double, value);

        if (writes) {
            const QJsonValue written = ZARSysJsonConverters::Convert(value);
            QVERIFY(written.isDouble());
            QCOMPARE(written, json);
        }
        double read = untouchedDouble;
        QTEST(ZARSysJsonConverters::Convert(json, read), "ok");
        QVERIFY(read == value); // exactly
    }

    void nanIsNull()
    {
        for (const double value : {notANumber, -notANumber}) {
            const QJsonValue written = ZARSysJsonConverters::Convert(value);
            QVERIFY(written.isNull());
            QCOMPARE(QJsonDocument(QJsonArray {written}).toJson(QJsonDocument::Compact),
                     "[null]"_ba);
            double read = untouchedDouble;
            QVERIFY(ZARSysJsonConverters::Convert(written, read));
            QVERIFY(std::isnan(read));
        }
    }
};

QTEST_GUILESS_MAIN(tst_JsonConverters)
#include "tst_jsonconverters.moc"
