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
    // A value that is written ("writes") and must give json, or json that is only read; then
    // whether reading json succeeds and what it leaves in a target of the value's type.
    void convert_data()
    {
        QTest::addColumn<bool>("writes");
        QTest::addColumn<QJsonValue>("json");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<QVariant>("value");

        const auto row = [](const char *name, bool writes, const QJsonValue &json, bool ok,
                            auto value) {
            QTest::newRow(name) << writes << json << ok << QVariant::fromValue(value);
        };
        row("color, translucent", true, rgba(10, 20, 30, 40), true, QColor(10, 20, 30, 40));
        row("color from HSV", true, rgba(0, 255, 0, 128), true,
            QColor::fromHsv(120, 255, 255, 128));
        row("color, strings count as 0", false, rgba(u"255"_s, u"128"_s, u"0"_s, u"255"_s), true,
            QColor(0, 0, 0, 0));
        row("color, null and bool count as 0", false, rgba(12, QJsonValue(), true, 255), true,
            QColor(12, 0, 0, 255));
        QJsonObject five = rgba(1, 1, 1, 1);
        five.insert(u"x"_s, 1);
        row("color, fifth member", false, five, false, untouchedColor);
        QJsonObject three = rgba(1, 1, 1, 1);
        three.remove(u"a"_s);
        row("color, three members", false, three, false, untouchedColor);
        QJsonObject renamed = three;
        renamed.insert(u"alpha"_s, 1);
        row("color, another name", false, renamed, false, untouchedColor);
        row("color, array", false, QJsonArray {1, 2, 3, 4}, false, untouchedColor);

        row("size 640x480", true, wh(640, 480), true, QSize(640, 480));
        row("invalid size", true, wh(-1, -1), true, QSize());
        row("large size", true, wh(1 << 30, 7), true, QSize(1 << 30, 7));
        row("size, strings count as 0", false, wh(u"640"_s, u"480"_s), true, QSize(0, 0));
        row("size, w and x", false, QJsonObject {{u"w"_s, 3}, {u"x"_s, 4}}, false, untouchedSize);
        QJsonObject depth = wh(3, 4);
        depth.insert(u"d"_s, 5);
        row("size, third member", false, depth, false, untouchedSize);
        row("size, w alone", false, QJsonObject {{u"w"_s, 3}}, false, untouchedSize);
        row("size, array", false, QJsonArray {3, 4}, false, untouchedSize);

        const double denormal = std::numeric_limits<double>::denorm_min();
        row("fraction", true, 1.5, true, 1.5);
        row("huge", true, -1e300, true, -1e300);
        row("denormal", true, denormal, true, denormal);
        row("integer", false, 3, true, 3.0);
        row("string holding a number", false, u"1.5"_s, false, untouchedDouble);
        row("undefined", false, QJsonValue(QJsonValue::Undefined), false, untouchedDouble);
    }

    void convert()
    {
        QFETCH(bool, writes);
        QFETCH(QJsonValue, json);
        QFETCH(QVariant, value);

        // The target starts as untouched; key() gives what must match exactly.
        const auto check = [&](auto untouched, auto key) {
            using T = decltype(untouched);
            const T expected = value.value<T>();
            T read = untouched;
            if (writes) {
                const QJsonValue written = ZARSysJsonConverters::Convert(expected);
                QCOMPARE(written, json);
                // Through text and back too.
                const QByteArray text =
                    QJsonDocument(QJsonArray {written}).toJson(QJsonDocument::Compact);
                QVERIFY(ZARSysJsonConverters::Convert(QJsonDocument::fromJson(text)[0], read));
                QCOMPARE(key(read), key(expected));
                read = untouched;
            }
            QTEST(ZARSysJsonConverters::Convert(json, read), "ok");
            QCOMPARE(key(read), key(expected));
        };
        if (value.metaType() == QMetaType::fromType<QColor>())
            check(untouchedColor, [](const QColor &color) { return color.rgba(); });
        else if (value.metaType() == QMetaType::fromType<QSize>())
            check(untouchedSize, [](const QSize &size) { return size; });
        else
            check(untouchedDouble,
                  [](double number) { return QByteArray::number(number, 'g', 17); });
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
