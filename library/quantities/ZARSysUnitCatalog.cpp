#include "ZARSysUnitCatalog.h"

#include "ZARSysGlobalStatic.h"
#include "ZARSysLibrarySettings.h"
#include "ZARSysNumberText.h"

#include <algorithm>
#include <utility>

using Magnitude = ZARSysUnitCatalog::Magnitude;
using Unit = ZARSysUnitCatalog::Unit;

namespace {

struct MagnitudeRow
{
    Magnitude magnitude;
    const char *label;
    Unit systemUnit;
    Unit first;
    Unit last;
    double tolerance;
};

// clang-format off
constexpr MagnitudeRow magnitudeTable[] = {
    {ZARSysValue::Length, QT_TRANSLATE_NOOP("ZARSysValue", "Length"),
     ZARSysValue::Millimeter, ZARSysValue::Millimeter, ZARSysValue::Mile, 0.001},
    {ZARSysValue::Force, QT_TRANSLATE_NOOP("ZARSysValue", "Force"),
     ZARSysValue::Newton, ZARSysValue::Newton, ZARSysValue::PoundForce, 0.001},
    {ZARSysValue::Time, QT_TRANSLATE_NOOP("ZARSysValue", "Time"),
     ZARSysValue::Second, ZARSysValue::Nanosecond, ZARSysValue::Year, 1e-9},
    {ZARSysValue::LinearFeedRate, QT_TRANSLATE_NOOP("ZARSysValue", "Linear Feed Rate"),
     ZARSysValue::MillimetersPerMinute, ZARSysValue::MetersPerMinute,
     ZARSysValue::InchesPerMinute, 0.001},
    {ZARSysValue::Angle, QT_TRANSLATE_NOOP("ZARSysValue", "Angle"),
     ZARSysValue::Radian, ZARSysValue::Degree, ZARSysValue::ArcMinute, 1e-6},
    {ZARSysValue::SurfaceWeight, QT_TRANSLATE_NOOP("ZARSysValue", "Surface Weight"),
     ZARSysValue::KilogramPerSquareMeter, ZARSysValue::KilogramPerSquareMeter,
     ZARSysValue::PoundPerSquareInch, 0.0001},
    {ZARSysValue::Density, QT_TRANSLATE_NOOP("ZARSysValue", "Density"),
     ZARSysValue::KilogramPerCubicMeter, ZARSysValue::KilogramPerCubicMeter,
     ZARSysValue::PoundPerCubicFoot, 0.001},
    {ZARSysValue::Area, QT_TRANSLATE_NOOP("ZARSysValue", "Area"),
     ZARSysValue::SquareMillimeter, ZARSysValue::SquareMillimeter, ZARSysValue::SquareMile,
     0.001},
};

struct UnitRow
{
    Unit unit;
    const char *label;
    const char16_t *suffix;
    double toSystem;
    double fromSystem;
    int precision;
};

// The two factors of a unit are kept as they are: some pairs are deliberately not reciprocal
// (Year uses 365.25 days one way and 365 days the other; PoundForce's product is not 1).
constexpr UnitRow unitTable[] = {
    {ZARSysValue::Millimeter, QT_TRANSLATE_NOOP("ZARSysValue", "Millimeter"), u"mm", 1, 1, 3},
    {ZARSysValue::Centimeter, QT_TRANSLATE_NOOP("ZARSysValue", "Centimeter"), u"cm", 10, 0.1, 4},
    {ZARSysValue::Meter, QT_TRANSLATE_NOOP("ZARSysValue", "Meter"), u"m", 1000, 0.001, 6},
    {ZARSysValue::Kilometer, QT_TRANSLATE_NOOP("ZARSysValue", "Kilometer"), u"km", 1000000, 1e-6, 6},
    {ZARSysValue::Inch, QT_TRANSLATE_NOOP("ZARSysValue", "Inch"), u"in", 25.4, 0.03937007874015748, 4},
    {ZARSysValue::Foot, QT_TRANSLATE_NOOP("ZARSysValue", "Foot"), u"ft", 304.8, 0.0032808398950131233, 5},
    {ZARSysValue::Yard, QT_TRANSLATE_NOOP("ZARSysValue", "Yard"), u"yd", 914.4, 0.0010936132983377078, 6},
    {ZARSysValue::Mile, QT_TRANSLATE_NOOP("ZARSysValue", "Mile"), u"mi", 1609344, 6.21371192237334e-07, 6},

    {ZARSysValue::Newton, QT_TRANSLATE_NOOP("ZARSysValue", "Newton"), u"N", 1, 1, 6},
    {ZARSysValue::Dyne, QT_TRANSLATE_NOOP("ZARSysValue", "Dyne"), u"dyn", 1e-5, 100000, 3},
    {ZARSysValue::PoundForce, QT_TRANSLATE_NOOP("ZARSysValue", "Pound Force"), u"lbf", 4.4482216152605, 0.22480894309971, 4},

    {ZARSysValue::Nanosecond, QT_TRANSLATE_NOOP("ZARSysValue", "Nanosecond"), u"ns", 1e-9, 1000000000, 1},
    {ZARSysValue::Microsecond, QT_TRANSLATE_NOOP("ZARSysValue", "Microsecond"), u"\u00B5s", 1e-6, 1000000, 1},
    {ZARSysValue::Millisecond, QT_TRANSLATE_NOOP("ZARSysValue", "Millisecond"), u"ms", 0.001, 1000, 1},
    {ZARSysValue::Second, QT_TRANSLATE_NOOP("ZARSysValue", "Second"), u"s", 1, 1, 3},
    {ZARSysValue::Minute, QT_TRANSLATE_NOOP("ZARSysValue", "Minute"), u"min", 60, 0.016666666666666666, 6},
    {ZARSysValue::Hour, QT_TRANSLATE_NOOP("ZARSysValue", "Hour"), u"hr", 3600, 0.0002777777777777778, 6},
    {ZARSysValue::Day, QT_TRANSLATE_NOOP("ZARSysValue", "Day"), u"day", 86400, 1.1574074074074073e-05, 6},
    {ZARSysValue::Week, QT_TRANSLATE_NOOP("ZARSysValue", "Week"), u"wk", 604800, 1.6534391534391535e-06, 6},
    {ZARSysValue::Year, QT_TRANSLATE_NOOP("ZARSysValue", "Year"), u"yr", 31557600, 3.1709791984e-08, 6},

    {ZARSysValue::MetersPerMinute, QT_TRANSLATE_NOOP("ZARSysValue", "Meters Per Minute"), u"mpmin", 1000, 0.001, 6},
    {ZARSysValue::MillimetersPerMinute, QT_TRANSLATE_NOOP("ZARSysValue", "Millimeters Per Minute"), u"mmpmin", 1, 1, 3},
    {ZARSysValue::InchesPerMinute, QT_TRANSLATE_NOOP("ZARSysValue", "Inches Per Minute"), u"inpmin", 25.4, 0.03937007874015748, 4},

    {ZARSysValue::Degree, QT_TRANSLATE_NOOP("ZARSysValue", "Degree"), u"deg", 0.017453292519943295, 57.29577951308232, 3},
    {ZARSysValue::Radian, QT_TRANSLATE_NOOP("ZARSysValue", "Radian"), u"rad", 1, 1, 6},
    {ZARSysValue::Turn, QT_TRANSLATE_NOOP("ZARSysValue", "Turn"), u"turn", 6.283185307179586, 0.15915494309189535, 3},
    {ZARSysValue::ArcSecond, QT_TRANSLATE_NOOP("ZARSysValue", "Arc Second"), u"arcsec", 4.84813681109536e-06, 206264.80624709636, 3},
    {ZARSysValue::ArcMinute, QT_TRANSLATE_NOOP("ZARSysValue", "Arc Minute"), u"arcmin", 0.0002908882086657216, 3437.746770784939, 4},

    {ZARSysValue::KilogramPerSquareMeter, QT_TRANSLATE_NOOP("ZARSysValue", "Kilogram Per Square Meter"), u"kg/m^2", 1, 1, 3},
    {ZARSysValue::KilogramPerSquareMillimeter, QT_TRANSLATE_NOOP("ZARSysValue", "Kilogram Per Square Millimeter"), u"kg/mm^2", 1e-6, 1000000, 6},
    {ZARSysValue::PoundPerSquareInch, QT_TRANSLATE_NOOP("ZARSysValue", "Pound Per Square Inch"), u"lb/in^2", 703.0695796391593, 0.0014223343307119562, 6},

    {ZARSysValue::KilogramPerCubicMeter, QT_TRANSLATE_NOOP("ZARSysValue", "Kilogram Per Cubic Meter"), u"kg/m^3", 1, 1, 3},
    {ZARSysValue::KilogramPerCubicMillimeter, QT_TRANSLATE_NOOP("ZARSysValue", "Kilogram Per Cubic Millimeter"), u"kg/mm^3", 1e-9, 1000000000, 6},
    {ZARSysValue::GramPerCubicCentimeter, QT_TRANSLATE_NOOP("ZARSysValue", "Gram Per Cubic Centimeter"), u"g/cm^3", 1000, 0.001, 6},
    {ZARSysValue::GramPerCubicMillimeter, QT_TRANSLATE_NOOP("ZARSysValue", "Gram Per Cubic Millimeter"), u"g/mm^3", 1000000, 1e-6, 6},
    {ZARSysValue::PoundPerCubicInch, QT_TRANSLATE_NOOP("ZARSysValue", "Pound Per Cubic Inch"), u"lb/in^3", 27679.904710191, 3.612729200009951e-05, 6},
    {ZARSysValue::PoundPerCubicFoot, QT_TRANSLATE_NOOP("ZARSysValue", "Pound Per Cubic Foot"), u"lb/ft^3", 16.018463374, 0.06242796057598927, 4},

    {ZARSysValue::SquareMillimeter, QT_TRANSLATE_NOOP("ZARSysValue", "Square Millimeter"), u"mm\u00B2", 1, 1, 3},
    {ZARSysValue::SquareCentimeter, QT_TRANSLATE_NOOP("ZARSysValue", "Square Centimeter"), u"cm\u00B2", 100, 0.01, 4},
    {ZARSysValue::SquareMeter, QT_TRANSLATE_NOOP("ZARSysValue", "Square Meter"), u"m\u00B2", 1000000, 1e-6, 6},
    {ZARSysValue::SquareKilometer, QT_TRANSLATE_NOOP("ZARSysValue", "Square Kilometer"), u"km\u00B2", 1e12, 1e-12, 6},
    {ZARSysValue::SquareInch, QT_TRANSLATE_NOOP("ZARSysValue", "Square Inch"), u"in\u00B2", 645.16, 0.0015500031000062, 4},
    {ZARSysValue::SquareFoot, QT_TRANSLATE_NOOP("ZARSysValue", "Square Foot"), u"ft\u00B2", 92903.04, 1.0763910416709723e-05, 5},
    {ZARSysValue::SquareYard, QT_TRANSLATE_NOOP("ZARSysValue", "Square Yard"), u"yd\u00B2", 836127.36, 1.1959900463010804e-06, 6},
    {ZARSysValue::SquareMile, QT_TRANSLATE_NOOP("ZARSysValue", "Square Mile"), u"mi\u00B2", 2589988110336, 3.8610215854244587e-13, 6},
};
// clang-format on

QString withoutSpaces(const char *labelSource)
{
    return QString::fromLatin1(labelSource).remove(u' ');
}

} // namespace

ZARSysUnitCatalog &ZARSysUnitCatalog::Instance()
{
    // Destroyed with the library's other static objects, as its settings group is.
    return *ZARSysGlobalStatic<ZARSysUnitCatalog>::Get(
        [] { return new ZARSysUnitCatalog; }, [](ZARSysUnitCatalog *catalog) { delete catalog; });
}

ZARSysUnitCatalog::ZARSysUnitCatalog()
    : m_pattern(QString::fromUtf16(ZARSysNumberText::pattern))
{
    // If a group of that name exists already, current units are kept in memory only.
    m_unitSettings = ZARSysLibrarySettings::Open(QByteArrayLiteral("System/Units"));
}

// Filling

void ZARSysUnitCatalog::Fill(void (*magnitudeRegistered)(Magnitude))
{
    for (const MagnitudeRow &row : magnitudeTable) {
        QList<Unit> units;
        for (int unit = row.first; unit <= row.last; ++unit)
            units.append(Unit(unit));
        RegisterMagnitude(row.magnitude, row.label, row.systemUnit, units, row.tolerance);
        magnitudeRegistered(row.magnitude);
    }

    for (const UnitRow &row : unitTable) {
        const double toSystem = row.toSystem;
        const double fromSystem = row.fromSystem;
        RegisterUnit(
            row.unit, row.label, QString::fromUtf16(row.suffix),
            [toSystem](double x) { return x * toSystem; },
            [fromSystem](double x) { return x * fromSystem; }, row.precision);
    }
    FinishRegistration();
}

void ZARSysUnitCatalog::RegisterMagnitude(Magnitude magnitude, const char *labelSource,
                                          Unit systemUnit, const QList<Unit> &units,
                                          double tolerance)
{
    while (m_magnitudeRows.size() <= magnitude)
        m_magnitudeRows.append(ZARSysMagnitudeRecord());
    while (m_unitRows.size() <= magnitude)
        m_unitRows.append(QList<ZARSysUnitRecord>());
    if (!m_magnitudes.contains(magnitude))
        m_magnitudes.append(magnitude);

    ZARSysMagnitudeRecord &record = m_magnitudeRows[magnitude];
    record.label = ZARSysValue::tr(labelSource);
    record.string = withoutSpaces(labelSource);
    record.units = units;
    record.systemUnit = systemUnit;
    record.tolerance = tolerance;
}

void ZARSysUnitCatalog::RegisterUnit(Unit unit, const char *labelSource, const QString &suffix,
                                     const ZARSysUnitConversion &toSystem,
                                     const ZARSysUnitConversion &fromSystem, int precision)
{
    if (!m_allUnits.contains(unit))
        m_allUnits.append(unit);
    const int magnitude = unit >> 8;
    const int index = unit & 0xFF;
    while (m_unitRows.size() <= magnitude)
        m_unitRows.append(QList<ZARSysUnitRecord>());
    QList<ZARSysUnitRecord> &row = m_unitRows[magnitude];
    while (row.size() <= index)
        row.append(ZARSysUnitRecord());

    ZARSysUnitRecord &record = row[index];
    record.label = ZARSysValue::tr(labelSource);
    record.string = withoutSpaces(labelSource);
    record.suffix = suffix;
    record.toSystem = toSystem;
    record.fromSystem = fromSystem;
    record.precision = precision;
    m_unitsBySuffix.insert(suffix, unit);
}

void ZARSysUnitCatalog::FinishRegistration()
{
    if (m_unitRows.isEmpty())
        m_unitRows.append(QList<ZARSysUnitRecord>());
    if (m_unitRows[0].isEmpty()) {
        ZARSysUnitRecord identity;
        identity.toSystem = [](double x) {
            return x;
        };
        identity.fromSystem = identity.toSystem;
        m_unitRows[0].append(identity);
    }
    std::sort(m_allUnits.begin(), m_allUnits.end());
}

// Look-ups

const ZARSysUnitRecord *ZARSysUnitCatalog::FindUnit(Unit unit) const
{
    const int magnitude = unit >> 8;
    const int index = unit & 0xFF;
    if (unit <= 0 || magnitude >= m_unitRows.size() || index >= m_unitRows[magnitude].size())
        return nullptr;
    const ZARSysUnitRecord &record = m_unitRows[magnitude][index];
    return record.toSystem ? &record : nullptr;
}

ZARSysUnitRecord *ZARSysUnitCatalog::FindUnit(Unit unit)
{
    return const_cast<ZARSysUnitRecord *>(std::as_const(*this).FindUnit(unit));
}

const ZARSysMagnitudeRecord *ZARSysUnitCatalog::FindMagnitude(Magnitude magnitude) const
{
    if (magnitude < 0 || magnitude >= m_magnitudeRows.size())
        return nullptr;
    return &m_magnitudeRows[magnitude];
}

ZARSysMagnitudeRecord *ZARSysUnitCatalog::FindMagnitude(Magnitude magnitude)
{
    return const_cast<ZARSysMagnitudeRecord *>(std::as_const(*this).FindMagnitude(magnitude));
}

Magnitude ZARSysUnitCatalog::MagnitudeFromString(const QString &text) const
{
    for (Magnitude magnitude : m_magnitudes) {
        if (m_magnitudeRows[magnitude].string == text)
            return magnitude;
    }
    return ZARSysValue::InvalidMagnitude;
}

Magnitude ZARSysUnitCatalog::MagnitudeFromLabel(const QString &text) const
{
    for (Magnitude magnitude : m_magnitudes) {
        if (m_magnitudeRows[magnitude].label == text)
            return magnitude;
    }
    return ZARSysValue::InvalidMagnitude;
}

Unit ZARSysUnitCatalog::UnitFromString(const QString &text) const
{
    for (Unit unit : m_allUnits) {
        if (FindUnit(unit)->string == text)
            return unit;
    }
    return ZARSysValue::InvalidUnit;
}

Unit ZARSysUnitCatalog::UnitFromLabel(const QString &text) const
{
    for (Unit unit : m_allUnits) {
        if (UnitLabel(unit) == text)
            return unit;
    }
    return ZARSysValue::InvalidUnit;
}

Unit ZARSysUnitCatalog::UnitFromSuffix(QStringView suffix) const
{
    // The key only lives for the look-up, so it borrows the characters.
    const QString key = QString::fromRawData(suffix.data(), suffix.size());
    return m_unitsBySuffix.value(key, ZARSysValue::InvalidUnit);
}

QString ZARSysUnitCatalog::UnitLabel(Unit unit) const
{
    const ZARSysUnitRecord *record = FindUnit(unit);
    // Translated again at every call, so that a translator installed after the catalogue was
    // filled is honoured. The stored label is what was translated then (English at start-up),
    // and only a Latin-1 label finds its source text again.
    return record ? ZARSysValue::tr(record->label.toLatin1().constData()) : QString();
}

// Conversions

double ZARSysUnitCatalog::Tolerance(Magnitude magnitude) const
{
    const ZARSysMagnitudeRecord *record = FindMagnitude(magnitude);
    return record && magnitude != ZARSysValue::InvalidMagnitude ? record->tolerance : 1e-6;
}

double ZARSysUnitCatalog::ToSystem(Unit unit, double value) const
{
    const ZARSysUnitRecord *record = FindUnit(unit);
    return record ? record->toSystem(value) : value;
}

double ZARSysUnitCatalog::FromSystem(Unit unit, double value) const
{
    const ZARSysUnitRecord *record = FindUnit(unit);
    return record ? record->fromSystem(value) : value;
}

// Current units

Unit ZARSysUnitCatalog::CurrentUnit(Magnitude magnitude)
{
    ZARSysMagnitudeRecord *record = FindMagnitude(magnitude);
    if (!record)
        return ZARSysValue::InvalidUnit;
    if (record->currentUnit != ZARSysValue::InvalidUnit)
        return record->currentUnit;

    Unit unit = ZARSysValue::InvalidUnit;
    if (const ZARSysSettings *settings = m_unitSettings.data()) {
        const QByteArray key = QByteArray::number(int(magnitude));
        unit = Unit(settings->GetValue(key, 0).toInt());
    }
    if (unit == ZARSysValue::InvalidUnit)
        unit = record->systemUnit;
    record->currentUnit = unit;
    return unit;
}

void ZARSysUnitCatalog::SetCurrentUnit(Magnitude magnitude, Unit unit)
{
    if (ZARSysMagnitudeRecord *record = FindMagnitude(magnitude))
        record->currentUnit = unit;
    if (ZARSysSettings *settings = m_unitSettings.data())
        settings->SetValue(QByteArray::number(int(magnitude)), int(unit));
}

// Parsing

double ZARSysUnitCatalog::ParseNumberAndSuffix(QStringView text, QStringView *suffix) const
{
    // Well-formed text is split by hand; malformed UTF-16 is left to the pattern, compiled on
    // its first use, which decides what it gives.
    *suffix = QStringView();
    if (!text.isValidUtf16()) {
        const QRegularExpressionMatch match = m_pattern.match(text);
        if (!match.hasMatch())
            return 0;
        *suffix = match.capturedView(2);
        return ZARSysNumberText::toDouble(match.capturedView(1));
    }
    const ZARSysNumberText::Split split = ZARSysNumberText::split(text);
    if (!split.matched)
        return 0;
    *suffix = split.suffix;
    return ZARSysNumberText::toDouble(split.number);
}
