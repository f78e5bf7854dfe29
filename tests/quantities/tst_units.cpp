#include "../startlibrary.h"
#include "../testrow.h"

#include <ZARSysSettings.h>
#include <ZARSysValue.h>

#include <QMetaEnum>

using namespace Qt::StringLiterals;

using Magnitude = ZARSysValue::Magnitude;
using Unit = ZARSysValue::Unit;

class tst_Units : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_source = startLibrary(); }

    void magnitudes_data()
    {
        QTest::addColumn<Magnitude>("magnitude");
        QTest::addColumn<Unit>("systemUnit");
        QTest::addColumn<double>("tolerance");

        const auto row = [](Magnitude magnitude, Unit systemUnit, double tolerance) {
            addRow(QMetaEnum::fromType<Magnitude>().valueToKey(magnitude), magnitude, systemUnit,
                   tolerance);
        };
        row(ZARSysValue::Length, ZARSysValue::Millimeter, 0.001);
        row(ZARSysValue::Force, ZARSysValue::Newton, 0.001);
        row(ZARSysValue::Time, ZARSysValue::Second, 1e-9);
        row(ZARSysValue::LinearFeedRate, ZARSysValue::MillimetersPerMinute, 0.001);
        row(ZARSysValue::Angle, ZARSysValue::Radian, 1e-6);
        row(ZARSysValue::SurfaceWeight, ZARSysValue::KilogramPerSquareMeter, 0.0001);
        row(ZARSysValue::Density, ZARSysValue::KilogramPerCubicMeter, 0.001);
        row(ZARSysValue::Area, ZARSysValue::SquareMillimeter, 0.001);
    }

    void magnitudes()
    {
        QFETCH(Magnitude, magnitude);
        QFETCH(Unit, systemUnit);
        QFETCH(double, tolerance);

        const QString string = ZARSysValue::GetMagnitudeString(magnitude);
        const QString label = ZARSysValue::GetMagnitudeLabel(magnitude);
        QCOMPARE(string, QLatin1StringView(QMetaEnum::fromType<Magnitude>().valueToKey(magnitude)));
        QCOMPARE(QString(label).remove(u' '), string); // "Linear Feed Rate"
        QCOMPARE(ZARSysValue::GetMagnitudeFromString(string), magnitude);
        QCOMPARE(ZARSysValue::GetMagnitudeFromLabel(label), magnitude);
        QCOMPARE(ZARSysValue::GetMagnitudeSystemUnit(magnitude), systemUnit);
        QCOMPARE(ZARSysValue::ConvertToSystemUnit(systemUnit, 1.0), 1.0);

        // The units of the magnitude: a run of numbers from the magnitude's own block.
        const QList<Unit> units = ZARSysValue::GetMagnitudeUnits(magnitude);
        QVERIFY(units.contains(systemUnit));
        for (qsizetype i = 0; i < units.size(); ++i) {
            QCOMPARE(ZARSysValue::GetUnitMagnitude(units.at(i)), magnitude);
            QCOMPARE(int(units.at(i)), int(units.first()) + int(i));
        }

        // Equal strictly within the tolerance, unequal at it.
        const ZARSysValue base(magnitude, 10.0);
        QVERIFY(base == ZARSysValue(magnitude, 10.0 + tolerance * 0.9));
        QVERIFY(base != ZARSysValue(magnitude, 10.0 + tolerance * 1.1));
    }

    void units_data()
    {
        QTest::addColumn<Unit>("unit");
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<double>("toSystem");
        QTest::addColumn<int>("precision");

        // A few units of each kind of name and factor; every unit's lookups round-trip below.
        addRow("Inch", ZARSysValue::Inch, u"Inch"_s, u"in"_s, 25.4, 4);
        addRow("PoundForce", ZARSysValue::PoundForce, u"Pound Force"_s, u"lbf"_s, 4.4482216152605,
               4);
        addRow("Microsecond", ZARSysValue::Microsecond, u"Microsecond"_s, u"\u00B5s"_s, 1e-6, 1);
        addRow("Degree", ZARSysValue::Degree, u"Degree"_s, u"deg"_s, 0.017453292519943295, 3);
        addRow("PoundPerSquareInch", ZARSysValue::PoundPerSquareInch, u"Pound Per Square Inch"_s,
               u"lb/in^2"_s, 703.0695796391593, 6);
        addRow("SquareMile", ZARSysValue::SquareMile, u"Square Mile"_s, u"mi\u00B2"_s,
               2589988110336.0, 6);
    }

    void units()
    {
        QFETCH(Unit, unit);
        QFETCH(QString, label);
        QFETCH(double, toSystem);

        QString string = label;
        string.remove(u' ');
        QCOMPARE(ZARSysValue::GetUnitString(unit), string);
        QCOMPARE(ZARSysValue::GetUnitLabel(unit), label);
        QTEST(ZARSysValue::GetUnitSuffix(unit), "suffix");
        QTEST(ZARSysValue::GetUnitPrecision(unit), "precision");
        // The factor exactly, not within QCOMPARE's fuzziness.
        const double to = ZARSysValue::ConvertToSystemUnit(unit, 1.0);
        QVERIFY2(to == toSystem, qPrintable(QString::number(to, 'g', 17)));
        QVERIFY(ZARSysValue::ConvertToSystemUnit(unit, -2.5) == -2.5 * toSystem);
    }

    void allUnitsRoundTrip()
    {
        for (const Unit unit : ZARSysValue::GetAllUnits()) {
            const QString string = ZARSysValue::GetUnitString(unit);
            QCOMPARE(string, QLatin1StringView(QMetaEnum::fromType<Unit>().valueToKey(unit)));
            QCOMPARE(ZARSysValue::GetUnitFromString(string), unit);
            QCOMPARE(ZARSysValue::GetUnitFromLabel(ZARSysValue::GetUnitLabel(unit)), unit);
            QCOMPARE(ZARSysValue::GetUnitFromSuffix(ZARSysValue::GetUnitSuffix(unit)), unit);
            QCOMPARE(ZARSysValue::GetUnitMagnitude(unit), Magnitude(unit >> 8));
            QVERIFY(ZARSysValue::GetUnitPrecision(unit) >= 1);
            // The factor back is the inverse, up to the rounding of the catalogue's constants.
            const double product = ZARSysValue::ConvertToSystemUnit(unit, 1.0)
                * ZARSysValue::ConvertFromSystemUnit(1.0, unit);
            QVERIFY2(qAbs(product - 1.0) < 1e-3, qPrintable(string));
        }
    }

    void unitLists()
    {
        QCOMPARE(ZARSysValue::GetAllMagnitudes(),
                 (QList<Magnitude> {ZARSysValue::Length, ZARSysValue::Force, ZARSysValue::Time,
                                    ZARSysValue::LinearFeedRate, ZARSysValue::Angle,
                                    ZARSysValue::SurfaceWeight, ZARSysValue::Density,
                                    ZARSysValue::Area}));
        QList<Unit> concatenated;
        for (Magnitude magnitude : ZARSysValue::GetAllMagnitudes())
            concatenated += ZARSysValue::GetMagnitudeUnits(magnitude);
        QCOMPARE(concatenated.size(), 45);
        QCOMPARE(ZARSysValue::GetAllUnits(), concatenated);
        QVERIFY(std::is_sorted(concatenated.cbegin(), concatenated.cend()));

        // A second fill changes nothing.
        ZARSysValue::Initialize();
        QCOMPARE(ZARSysValue::GetAllUnits(), concatenated);
    }

    void invalidAndUnknown_data()
    {
        // Unknown by string, label and magnitude string; a unit by suffix in one case.
        QTest::addColumn<QString>("text");
        QTest::addColumn<Unit>("bySuffix");

        const Unit invalid = ZARSysValue::InvalidUnit;
        addRow("superscript two", u"mm\u00B2"_s, ZARSysValue::SquareMillimeter);
        addRow("caret two", u"mm^2"_s, invalid);
        addRow("upper case", u"MM"_s, invalid);
        addRow("lower-case string", u"millimeter"_s, invalid);
        addRow("InvalidUnit", u"InvalidUnit"_s, invalid);
        addRow("empty", QString(), invalid);
        addRow("Greek mu for micro", u"\u03BCs"_s, invalid);
    }

    void invalidAndUnknown()
    {
        QFETCH(QString, text);

        QTEST(ZARSysValue::GetUnitFromSuffix(text), "bySuffix");
        QCOMPARE(ZARSysValue::GetUnitFromString(text), ZARSysValue::InvalidUnit);
        QCOMPARE(ZARSysValue::GetUnitFromLabel(text), ZARSysValue::InvalidUnit);
        QCOMPARE(ZARSysValue::GetMagnitudeFromString(text), ZARSysValue::InvalidMagnitude);

        // What the invalid unit answers, and a value outside the catalogue likewise.
        for (const Unit unit : {ZARSysValue::InvalidUnit, Unit(0x109), Unit(0x4200), Unit(-1)}) {
            QCOMPARE(ZARSysValue::GetUnitSuffix(unit), QString());
            QCOMPARE(ZARSysValue::GetUnitLabel(unit), QString());
            QCOMPARE(ZARSysValue::GetUnitPrecision(unit), -1);
            QCOMPARE(ZARSysValue::ConvertToSystemUnit(unit, 7.5), 7.5);
            QCOMPARE(ZARSysValue::ConvertFromSystemUnit(7.5, unit), 7.5);
        }
        QCOMPARE(ZARSysValue::GetUnitString(ZARSysValue::InvalidUnit), u"InvalidUnit"_s);
        QCOMPARE(ZARSysValue::GetMagnitudeUnits(Magnitude(9)), QList<Unit>());
        QCOMPARE(ZARSysValue::GetMagnitudeSystemUnit(ZARSysValue::InvalidMagnitude),
                 ZARSysValue::InvalidUnit);
    }

    void deliberateConstants()
    {
        const double yearBack = ZARSysValue::ConvertFromSystemUnit(
            ZARSysValue::ConvertToSystemUnit(ZARSysValue::Year, 1), ZARSysValue::Year);
        QVERIFY(qAbs(yearBack - 1.000685) < 1e-6);
        QVERIFY(ZARSysValue::ConvertToSystemUnit(ZARSysValue::PoundForce, 1)
                    * ZARSysValue::ConvertFromSystemUnit(1, ZARSysValue::PoundForce)
                != 1.0);
        QCOMPARE(ZARSysValue::ConvertFromSystemUnit(
                     ZARSysValue::ConvertToSystemUnit(ZARSysValue::KilogramPerSquareMillimeter, 1),
                     ZARSysValue::KilogramPerSquareMillimeter),
                 1.0);
        QCOMPARE(ZARSysValue::ConvertFromSystemUnit(25.4, ZARSysValue::Inch), 1.0);
    }

    void precision()
    {
        ZARSysValue::SetUnitPrecision(ZARSysValue::Nanosecond, 4);
        QCOMPARE(ZARSysValue::GetUnitPrecision(ZARSysValue::Nanosecond), 4);
        QCOMPARE(ZARSysValue::GetUnitPrecision(ZARSysValue::Microsecond), 1);
        ZARSysValue::SetUnitPrecision(ZARSysValue::InvalidUnit, 9);
        QCOMPARE(ZARSysValue::GetUnitPrecision(ZARSysValue::InvalidUnit), -1);
        ZARSysValue::SetUnitPrecision(ZARSysValue::Nanosecond, 1);
    }

    void currentUnit()
    {
        // Read once: a value that reaches the group afterwards is not seen.
        QCOMPARE(ZARSysValue::GetMagnitudeCurrentUnit(ZARSysValue::Force), ZARSysValue::Newton);
        ZARSysSettings *group = ZARSysSettingsManager::GetManager()->GetSettings("System/Units");
        QVERIFY(group);
        group->SetValue("2", int(ZARSysValue::Dyne));
        QCOMPARE(m_source->value(u"System/Units/2"_s).toInt(), int(ZARSysValue::Dyne));
        QCOMPARE(ZARSysValue::GetMagnitudeCurrentUnit(ZARSysValue::Force), ZARSysValue::Newton);

        // Set: cached and written through, unchecked.
        ZARSysValue::SetMagnitudeCurrentUnit(ZARSysValue::Force, ZARSysValue::Second);
        QCOMPARE(ZARSysValue::GetMagnitudeCurrentUnit(ZARSysValue::Force), ZARSysValue::Second);
        QCOMPARE(m_source->value(u"System/Units/2"_s).toInt(), int(ZARSysValue::Second));
        ZARSysValue::SetMagnitudeCurrentUnit(ZARSysValue::Force, ZARSysValue::Newton);
        QCOMPARE(m_source->value(u"System/Units/2"_s).toInt(), int(ZARSysValue::Newton));
    }

private:
    QSettings *m_source = nullptr;
};

QTEST_GUILESS_MAIN(tst_Units)
#include "tst_units.moc"
