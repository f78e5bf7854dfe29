#include "../startlibrary.h"
#include "../testrow.h"

#include <ZARSysDefinedValue.h>
#include <ZARSysLocalizationManager.h>
#include <ZARSysRatio.h>

using namespace Qt::StringLiterals;

using Magnitude = ZARSysValue::Magnitude;

namespace {

// What one instance is expected to do, filled in by the template for its magnitude.
struct Instance
{
    Magnitude magnitude = ZARSysValue::InvalidMagnitude;
    QMetaType type;
    QVariant (*make)(double);
    ZARSysValue (*read)(const QVariant &);
};

template<Magnitude M>
Instance instance()
{
    using D = ZARSysDefinedValue<M>;
    return {M, QMetaType::fromType<D>(), [](double v) { return QVariant::fromValue(D(v)); },
            [](const QVariant &v) {
                return v.value<D>().ToSysValue();
            }};
}

} // namespace

Q_DECLARE_METATYPE(Instance)

class tst_DefinedValue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        startLibrary();
        ZARSysLocalizationManager::GetManager()->SetLocale(QLocale(u"en_US"_s));
    }

    void instances_data()
    {
        QTest::addColumn<Instance>("type");
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("parsed");
        QTest::addColumn<QString>("foreign");

        addRow("Length", instance<ZARSysValue::Length>(), u"1in"_s, 25.4, u"1s"_s);
        addRow("Force", instance<ZARSysValue::Force>(), u"2 lbf"_s, 2 * 4.4482216152605, u"2mm"_s);
        addRow("Time", instance<ZARSysValue::Time>(), u"1.5min"_s, 90.0, u"3deg"_s);
        addRow("LinearFeedRate", instance<ZARSysValue::LinearFeedRate>(), u"2mpmin"_s, 2000.0,
               u"2m"_s);
        addRow("Angle", instance<ZARSysValue::Angle>(), u"180deg"_s, 180 * 0.017453292519943295,
               u"1N"_s);
        addRow("SurfaceWeight", instance<ZARSysValue::SurfaceWeight>(), u"1lb/in^2"_s,
               703.0695796391593, u"1lb/in^3"_s);
        addRow("Density", instance<ZARSysValue::Density>(), u"2g/cm^3"_s, 2000.0, u"2"_s);
        addRow("Area", instance<ZARSysValue::Area>(), u"1m\u00B2"_s, 1e6, u"1m^2"_s);
    }

    void instances()
    {
        QFETCH(Instance, type);
        QFETCH(QString, text);
        QFETCH(double, parsed);
        QFETCH(QString, foreign);

        QVERIFY(type.type.isValid());
        const Magnitude magnitude = type.magnitude;

        // Both spellings of the name resolve to the instance.
        const QByteArray byNumber =
            "ZARSysDefinedValue<" + QByteArray::number(int(magnitude)) + '>';
        // The rows are named after the magnitudes.
        const QByteArray byName =
            "ZARSysDefinedValue<ZARSysValue::" + QByteArray(QTest::currentDataTag()) + '>';
        QCOMPARE(QMetaType::fromName(byNumber), type.type);
        QCOMPARE(QMetaType::fromName(byName), type.type);
        QVERIFY(QByteArrayView(type.type.name()) == byName
                || QByteArrayView(type.type.name()) == byNumber);

        // Magnitude and number of a plain value.
        const auto fields = [](const ZARSysValue &value) {
            return std::pair(value.GetMagnitude(), value.GetValue());
        };
        // To double, text and the plain value.
        const QVariant held = type.make(12.5);
        QCOMPARE(held.toDouble(), 12.5);
        QCOMPARE(fields(held.value<ZARSysValue>()), std::pair(magnitude, 12.5));
        QCOMPARE(held.toString(), ZARSysValue(magnitude, 12.5).ToString());

        // Converted to the instance, or nothing when the conversion fails.
        const auto converted = [&](QVariant value) {
            return value.convert(type.type) ? fields(type.read(value))
                                            : std::pair(ZARSysValue::InvalidMagnitude, -1.0);
        };
        // From text: a foreign magnitude gives 0 of this one, still reported as success.
        const auto fromText = converted(QVariant(text));
        QCOMPARE(fromText.first, magnitude);
        QVERIFY(qAbs(fromText.second - parsed) < 1e-9);
        QCOMPARE(converted(QVariant(foreign)), std::pair(magnitude, 0.0));
        // From a double, and from a plain value of any magnitude, whose magnitude is ignored and
        // whose number is kept unconverted.
        QCOMPARE(converted(QVariant(7.25)), std::pair(magnitude, 7.25));
        QCOMPARE(converted(QVariant::fromValue(ZARSysValue(ZARSysValue::Time, 5))),
                 std::pair(magnitude, 5.0));
    }

    void metaTypeOperations()
    {
        using Length = ZARSysDefinedValue<ZARSysValue::Length>;
        const QVariant ten = QVariant::fromValue(Length(10));
        QVERIFY(ten == QVariant::fromValue(Length(10.0005)));
        QVERIFY(ten != QVariant::fromValue(Length(10.002)));
        QCOMPARE(QVariant::compare(ten, QVariant::fromValue(Length(20))), QPartialOrdering::Less);

        QString debug;
        QDebug(&debug) << QVariant::fromValue(Length(2.5));
        QVERIFY2(debug.contains(u", 2.5)"_s), qPrintable(debug));
        QVERIFY(!QMetaType::fromType<Length>().hasRegisteredDataStreamOperators());
        QVERIFY(!QMetaType::fromType<ZARSysValue>().hasRegisteredDataStreamOperators());
    }

    void plainTypes()
    {
        for (const char *name : {"ZARSysValue", "ZARSysValue::Unit", "ZARSysValue::Magnitude",
                                 "ZARSysRatio", "ZARSysRatio::Decoration", "QList<double>"})
            QVERIFY2(QMetaType::fromName(name).isValid(), name);

        // The plain value converts to text and back through the loose parser.
        QCOMPARE(QVariant::fromValue(ZARSysValue(ZARSysValue::Length, 5)).toString(), u"5mm"_s);
        const ZARSysValue parsed = QVariant(u"2 in"_s).value<ZARSysValue>();
        QCOMPARE(parsed.GetMagnitude(), ZARSysValue::Length);
        QCOMPARE(parsed.GetValue(), 50.8);

        // Ratios to and from text and double.
        QCOMPARE(QVariant::fromValue(ZARSysRatio(0.5)).toString(), u"50%"_s);
        QCOMPARE(QVariant::fromValue(ZARSysRatio(0.5)).toDouble(), 0.5);
        QCOMPARE(QVariant(0.25).value<ZARSysRatio>().GetValue(), 0.25);
        QCOMPARE(QVariant(u"5\u2030"_s).value<ZARSysRatio>().GetValue(), 0.005);
    }
};

QTEST_GUILESS_MAIN(tst_DefinedValue)
#include "tst_definedvalue.moc"
