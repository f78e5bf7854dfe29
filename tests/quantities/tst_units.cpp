#include "quantitiestest.h"

#include <ZARSysSettings.h>
#include <ZARSysValue.h>

#include <QMetaEnum>
#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;

using Magnitude = ZARSysValue::Magnitude;
using Unit = ZARSysValue::Unit;

class tst_Units : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void magnitudes_data();
    void magnitudes();
    void units_data();
    void units();
    void unitLists();
    void invalidAndUnknown_data();
    void invalidAndUnknown();
    void deliberateConstants();
    void precision();
    void currentUnit();
    void currentUnitInNextProcess();

private:
    QSettings *m_source = nullptr;
};

void tst_Units::initTestCase()
{
    m_source = startLibrary();
}

void tst_Units::magnitudes_data()
{
    QTest::addColumn<Magnitude>("magnitude");
    QTest::addColumn<QString>("string");
    QTest::addColumn<QString>("label");
    QTest::addColumn<Unit>("systemUnit");
    QTest::addColumn<Unit>("first");
    QTest::addColumn<Unit>("last");
    QTest::addColumn<double>("tolerance");

    QTest::newRow("Length") << ZARSysValue::Length << u"Length"_s << u"Length"_s
                            << ZARSysValue::Millimeter << ZARSysValue::Millimeter
                            << ZARSysValue::Mile << 0.001;
    QTest::newRow("Force") << ZARSysValue::Force << u"Force"_s << u"Force"_s << ZARSysValue::Newton
                           << ZARSysValue::Newton << ZARSysValue::PoundForce << 0.001;
    QTest::newRow("Time") << ZARSysValue::Time << u"Time"_s << u"Time"_s << ZARSysValue::Second
                          << ZARSysValue::Nanosecond << ZARSysValue::Year << 1e-9;
    QTest::newRow("LinearFeedRate")
        << ZARSysValue::LinearFeedRate << u"LinearFeedRate"_s << u"Linear Feed Rate"_s
        << ZARSysValue::MillimetersPerMinute << ZARSysValue::MetersPerMinute
        << ZARSysValue::InchesPerMinute << 0.001;
    QTest::newRow("Angle") << ZARSysValue::Angle << u"Angle"_s << u"Angle"_s << ZARSysValue::Radian
                           << ZARSysValue::Degree << ZARSysValue::ArcMinute << 1e-6;
    QTest::newRow("SurfaceWeight")
        << ZARSysValue::SurfaceWeight << u"SurfaceWeight"_s << u"Surface Weight"_s
        << ZARSysValue::KilogramPerSquareMeter << ZARSysValue::KilogramPerSquareMeter
        << ZARSysValue::PoundPerSquareInch << 0.0001;
    QTest::newRow("Density") << ZARSysValue::Density << u"Density"_s << u"Density"_s
                             << ZARSysValue::KilogramPerCubicMeter
                             << ZARSysValue::KilogramPerCubicMeter << ZARSysValue::PoundPerCubicFoot
                             << 0.001;
    QTest::newRow("Area") << ZARSysValue::Area << u"Area"_s << u"Area"_s
                          << ZARSysValue::SquareMillimeter << ZARSysValue::SquareMillimeter
                          << ZARSysValue::SquareMile << 0.001;
}

void tst_Units::magnitudes()
{
    QFETCH(Magnitude, magnitude);
    QFETCH(QString, string);
    QFETCH(QString, label);
    QFETCH(Unit, systemUnit);
    QFETCH(Unit, first);
    QFETCH(Unit, last);
    QFETCH(double, tolerance);

    QCOMPARE(ZARSysValue::GetMagnitudeString(magnitude), string);
    QCOMPARE(ZARSysValue::GetMagnitudeLabel(magnitude), label);
    QCOMPARE(ZARSysValue::GetMagnitudeFromString(string), magnitude);
    QCOMPARE(ZARSysValue::GetMagnitudeFromLabel(label), magnitude);
    QCOMPARE(ZARSysValue::GetMagnitudeSystemUnit(magnitude), systemUnit);

    QList<Unit> units;
    for (int unit = first; unit <= last; ++unit)
        units.append(Unit(unit));
    QCOMPARE(ZARSysValue::GetMagnitudeUnits(magnitude), units);

    // Equal strictly within the tolerance, unequal at it.
    const ZARSysValue base(magnitude, 10.0);
    QVERIFY(base == ZARSysValue(magnitude, 10.0 + tolerance * 0.9));
    QVERIFY(base != ZARSysValue(magnitude, 10.0 + tolerance * 1.1));
}

void tst_Units::units_data()
{
    QTest::addColumn<Unit>("unit");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<double>("toSystem");
    QTest::addColumn<double>("fromSystem");
    QTest::addColumn<int>("precision");

    const auto row = [](Unit unit, const QString &label, const QString &suffix, double to,
                        double from, int precision) {
        QTest::newRow(QMetaEnum::fromType<Unit>().valueToKey(unit))
            << unit << label << suffix << to << from << precision;
    };
    row(ZARSysValue::Millimeter, u"Millimeter"_s, u"mm"_s, 1, 1, 3);
    row(ZARSysValue::Centimeter, u"Centimeter"_s, u"cm"_s, 10, 0.1, 4);
    row(ZARSysValue::Meter, u"Meter"_s, u"m"_s, 1000, 0.001, 6);
    row(ZARSysValue::Kilometer, u"Kilometer"_s, u"km"_s, 1000000, 1e-6, 6);
    row(ZARSysValue::Inch, u"Inch"_s, u"in"_s, 25.4, 0.03937007874015748, 4);
    row(ZARSysValue::Foot, u"Foot"_s, u"ft"_s, 304.8, 0.0032808398950131233, 5);
    row(ZARSysValue::Yard, u"Yard"_s, u"yd"_s, 914.4, 0.0010936132983377078, 6);
    row(ZARSysValue::Mile, u"Mile"_s, u"mi"_s, 1609344, 6.21371192237334e-07, 6);
    row(ZARSysValue::Newton, u"Newton"_s, u"N"_s, 1, 1, 6);
    row(ZARSysValue::Dyne, u"Dyne"_s, u"dyn"_s, 1e-5, 100000, 3);
    row(ZARSysValue::PoundForce, u"Pound Force"_s, u"lbf"_s, 4.4482216152605, 0.22480894309971, 4);
    row(ZARSysValue::Nanosecond, u"Nanosecond"_s, u"ns"_s, 1e-9, 1000000000, 1);
    row(ZARSysValue::Microsecond, u"Microsecond"_s, u"\u00B5s"_s, 1e-6, 1000000, 1);
    row(ZARSysValue::Millisecond, u"Millisecond"_s, u"ms"_s, 0.001, 1000, 1);
    row(ZARSysValue::Second, u"Second"_s, u"s"_s, 1, 1, 3);
    row(ZARSysValue::Minute, u"Minute"_s, u"min"_s, 60, 0.016666666666666666, 6);
    row(ZARSysValue::Hour, u"Hour"_s, u"hr"_s, 3600, 0.0002777777777777778, 6);
    row(ZARSysValue::Day, u"Day"_s, u"day"_s, 86400, 1.1574074074074073e-05, 6);
    row(ZARSysValue::Week, u"Week"_s, u"wk"_s, 604800, 1.6534391534391535e-06, 6);
    row(ZARSysValue::Year, u"Year"_s, u"yr"_s, 31557600, 3.1709791984e-08, 6);
    row(ZARSysValue::MetersPerMinute, u"Meters Per Minute"_s, u"mpmin"_s, 1000, 0.001, 6);
    row(ZARSysValue::MillimetersPerMinute, u"Millimeters Per Minute"_s, u"mmpmin"_s, 1, 1, 3);
    row(ZARSysValue::InchesPerMinute, u"Inches Per Minute"_s, u"inpmin"_s, 25.4,
        0.03937007874015748, 4);
    row(ZARSysValue::Degree, u"Degree"_s, u"deg"_s, 0.017453292519943295, 57.29577951308232, 3);
    row(ZARSysValue::Radian, u"Radian"_s, u"rad"_s, 1, 1, 6);
    row(ZARSysValue::Turn, u"Turn"_s, u"turn"_s, 6.283185307179586, 0.15915494309189535, 3);
    row(ZARSysValue::ArcSecond, u"Arc Second"_s, u"arcsec"_s, 4.84813681109536e-06,
        206264.80624709636, 3);
    row(ZARSysValue::ArcMinute, u"Arc Minute"_s, u"arcmin"_s, 0.0002908882086657216,
        3437.746770784939, 4);
    row(ZARSysValue::KilogramPerSquareMeter, u"Kilogram Per Square Meter"_s, u"kg/m^2"_s, 1, 1, 3);
    row(ZARSysValue::KilogramPerSquareMillimeter, u"Kilogram Per Square Millimeter"_s, u"kg/mm^2"_s,
        1e-6, 1000000, 6);
    row(ZARSysValue::PoundPerSquareInch, u"Pound Per Square Inch"_s, u"lb/in^2"_s,
        703.0695796391593, 0.0014223343307119562, 6);
    row(ZARSysValue::KilogramPerCubicMeter, u"Kilogram Per Cubic Meter"_s, u"kg/m^3"_s, 1, 1, 3);
    row(ZARSysValue::KilogramPerCubicMillimeter, u"Kilogram Per Cubic Millimeter"_s, u"kg/mm^3"_s,
        1e-9, 1000000000, 6);
    row(ZARSysValue::GramPerCubicCentimeter, u"Gram Per Cubic Centimeter"_s, u"g/cm^3"_s, 1000,
        0.001, 6);
    row(ZARSysValue::GramPerCubicMillimeter, u"Gram Per Cubic Millimeter"_s, u"g/mm^3"_s, 1000000,
        1e-6, 6);
    row(ZARSysValue::PoundPerCubicInch, u"Pound Per Cubic Inch"_s, u"lb/in^3"_s, 27679.904710191,
        3.612729200009951e-05, 6);
    row(ZARSysValue::PoundPerCubicFoot, u"Pound Per Cubic Foot"_s, u"lb/ft^3"_s, 16.018463374,
        0.06242796057598927, 4);
    row(ZARSysValue::SquareMillimeter, u"Square Millimeter"_s, u"mm\u00B2"_s, 1, 1, 3);
    row(ZARSysValue::SquareCentimeter, u"Square Centimeter"_s, u"cm\u00B2"_s, 100, 0.01, 4);
    row(ZARSysValue::SquareMeter, u"Square Meter"_s, u"m\u00B2"_s, 1000000, 1e-6, 6);
    row(ZARSysValue::SquareKilometer, u"Square Kilometer"_s, u"km\u00B2"_s, 1e12, 1e-12, 6);
    row(ZARSysValue::SquareInch, u"Square Inch"_s, u"in\u00B2"_s, 645.16, 0.0015500031000062, 4);
    row(ZARSysValue::SquareFoot, u"Square Foot"_s, u"ft\u00B2"_s, 92903.04, 1.0763910416709723e-05,
        5);
    row(ZARSysValue::SquareYard, u"Square Yard"_s, u"yd\u00B2"_s, 836127.36, 1.1959900463010804e-06,
        6);
    row(ZARSysValue::SquareMile, u"Square Mile"_s, u"mi\u00B2"_s, 2589988110336,
        3.8610215854244587e-13, 6);
}

void tst_Units::units()
{
    QFETCH(Unit, unit);
    QFETCH(QString, label);
    QFETCH(QString, suffix);
    QFETCH(double, toSystem);
    QFETCH(double, fromSystem);
    QFETCH(int, precision);

    QString string = label;
    string.remove(u' ');
    QCOMPARE(ZARSysValue::GetUnitString(unit), string);
    QCOMPARE(ZARSysValue::GetUnitString(unit),
             QLatin1StringView(QMetaEnum::fromType<Unit>().valueToKey(unit)));
    QCOMPARE(ZARSysValue::GetUnitLabel(unit), label);
    QCOMPARE(ZARSysValue::GetUnitSuffix(unit), suffix);
    QCOMPARE(ZARSysValue::GetUnitPrecision(unit), precision);
    QCOMPARE(ZARSysValue::GetUnitFromString(string), unit);
    QCOMPARE(ZARSysValue::GetUnitFromLabel(label), unit);
    QCOMPARE(ZARSysValue::GetUnitFromSuffix(suffix), unit);
    QCOMPARE(ZARSysValue::GetUnitMagnitude(unit), Magnitude(unit >> 8));

    // The factors exactly, not within QCOMPARE's fuzziness.
    const double to = ZARSysValue::ConvertToSystemUnit(unit, 1.0);
    const double from = ZARSysValue::ConvertFromSystemUnit(1.0, unit);
    QVERIFY2(to == toSystem, qPrintable(QString::number(to, 'g', 17)));
    QVERIFY2(from == fromSystem, qPrintable(QString::number(from, 'g', 17)));
    QVERIFY(ZARSysValue::ConvertToSystemUnit(unit, -2.5) == -2.5 * toSystem);
}

void tst_Units::unitLists()
{
    QCOMPARE(
        ZARSysValue::GetAllMagnitudes(),
        (QList<Magnitude> {ZARSysValue::Length, ZARSysValue::Force, ZARSysValue::Time,
                           ZARSysValue::LinearFeedRate, ZARSysValue::Angle,
                           ZARSysValue::SurfaceWeight, ZARSysValue::Density, ZARSysValue::Area}));
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

void tst_Units::invalidAndUnknown_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Unit>("bySuffix");
    QTest::addColumn<Unit>("byString");

    QTest::newRow("superscript two")
        << u"mm\u00B2"_s << ZARSysValue::SquareMillimeter << ZARSysValue::InvalidUnit;
    QTest::newRow("caret two") << u"mm^2"_s << ZARSysValue::InvalidUnit << ZARSysValue::InvalidUnit;
    QTest::newRow("digit two") << u"mm2"_s << ZARSysValue::InvalidUnit << ZARSysValue::InvalidUnit;
    QTest::newRow("upper case") << u"MM"_s << ZARSysValue::InvalidUnit << ZARSysValue::InvalidUnit;
    QTest::newRow("lower-case string")
        << u"millimeter"_s << ZARSysValue::InvalidUnit << ZARSysValue::InvalidUnit;
    QTest::newRow("InvalidUnit") << u"InvalidUnit"_s << ZARSysValue::InvalidUnit
                                 << ZARSysValue::InvalidUnit;
    QTest::newRow("empty") << QString() << ZARSysValue::InvalidUnit << ZARSysValue::InvalidUnit;
    QTest::newRow("letter u for micro")
        << u"us"_s << ZARSysValue::InvalidUnit << ZARSysValue::InvalidUnit;
    QTest::newRow("Greek mu for micro")
        << u"\u03BCs"_s << ZARSysValue::InvalidUnit << ZARSysValue::InvalidUnit;
}

void tst_Units::invalidAndUnknown()
{
    QFETCH(QString, text);
    QFETCH(Unit, bySuffix);
    QFETCH(Unit, byString);

    QCOMPARE(ZARSysValue::GetUnitFromSuffix(text), bySuffix);
    QCOMPARE(ZARSysValue::GetUnitFromString(text), byString);
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

void tst_Units::deliberateConstants()
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

void tst_Units::precision()
{
    ZARSysValue::SetUnitPrecision(ZARSysValue::Nanosecond, 4);
    QCOMPARE(ZARSysValue::GetUnitPrecision(ZARSysValue::Nanosecond), 4);
    QCOMPARE(ZARSysValue::GetUnitPrecision(ZARSysValue::Microsecond), 1);
    ZARSysValue::SetUnitPrecision(ZARSysValue::InvalidUnit, 9);
    QCOMPARE(ZARSysValue::GetUnitPrecision(ZARSysValue::InvalidUnit), -1);
    ZARSysValue::SetUnitPrecision(ZARSysValue::Nanosecond, 1);
}

void tst_Units::currentUnit()
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

void tst_Units::currentUnitInNextProcess()
{
    QTemporaryDir folder;
    const QString ini = folder.filePath(u"units.ini"_s);
    const auto run = [&ini](const QStringList &args) {
        QProcess helper;
        helper.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        helper.start(QStringLiteral(ZARSYS_UNITS_HELPER), QStringList {ini} + args);
        if (!helper.waitForFinished(60000) || helper.exitCode() != 0)
            return u"failed"_s;
        return QString::fromUtf8(helper.readAllStandardOutput()).trimmed();
    };

    QCOMPARE(run({u"Length"_s}), u"Millimeter"_s);
    QCOMPARE(run({u"Length"_s, u"Inch"_s}), u"Inch"_s);
    QCOMPARE(run({u"Length"_s}), u"Inch"_s);
    QCOMPARE(run({u"Angle"_s}), u"Radian"_s);
    QCOMPARE(QSettings(ini, QSettings::IniFormat).value(u"System/Units/1"_s).toInt(),
             int(ZARSysValue::Inch));
}

QTEST_GUILESS_MAIN(tst_Units)
#include "tst_units.moc"
