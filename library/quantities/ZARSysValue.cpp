#include "ZARSysValue.h"

#include "ZARSysDefinedValue.h"
#include "ZARSysException.h"
#include "ZARSysLocalizationManager.h"
#include "ZARSysNumberText.h"
#include "ZARSysSettingsManager.h"
#include "ZARSysSettingsPrivate.h"
#include "ZARSysValuePrivate.h"

#include <QJsonValue>
#include <QLocale>

#include <algorithm>
#include <cmath>
#include <limits>
#include <mutex>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

using Magnitude = ZARSysValue::Magnitude;
using Unit = ZARSysValue::Unit;

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

// The six converters of ZARSysDefinedValue<M>. A pair that is registered already is left as
// it is; Qt unregisters the ones registered here when the library is unloaded.
template<Magnitude M>
void registerDefinedValueConverters()
{
    using D = ZARSysDefinedValue<M>;
    QMetaType::registerConverter<D, double>([](const D &v) { return v.GetValue(); });
    QMetaType::registerConverter<D, ZARSysValue>([](const D &v) { return v.ToSysValue(); });
    QMetaType::registerConverter<D, QString>([](const D &v) { return v.ToString(); });
    QMetaType::registerConverter<QString, D>([](const QString &text) {
        const ZARSysValue parsed = ZARSysValue::FromString(text);
        return parsed.GetMagnitude() == M ? D(parsed) : D();
    });
    QMetaType::registerConverter<ZARSysValue, D>([](const ZARSysValue &v) { return D(v); });
    QMetaType::registerConverter<double, D>([](double v) { return D(v); });
}

template<std::size_t... I>
void registerMagnitudes(std::index_sequence<I...>)
{
    ZARSysUnitCatalog &catalog = ZARSysUnitCatalog::instance();
    const auto registerOne = [&catalog](const MagnitudeRow &row, auto registerConverters) {
        QList<Unit> units;
        for (int unit = row.first; unit <= row.last; ++unit)
            units.append(Unit(unit));
        catalog.RegisterMagnitude(row.magnitude, row.label, row.systemUnit, units, row.tolerance);
        registerConverters();
    };
    (registerOne(magnitudeTable[I], registerDefinedValueConverters<magnitudeTable[I].magnitude>),
     ...);
}

} // namespace

// ZARSysUnitCatalog

ZARSysUnitCatalog &ZARSysUnitCatalog::instance()
{
    static ZARSysUnitCatalog catalog;
    return catalog;
}

ZARSysUnitCatalog::ZARSysUnitCatalog()
    : m_pattern(QString::fromUtf16(ZARSysNumberText::pattern))
{
    // The settings manager deletes the group when the library is unloaded. If a group of that
    // name exists already, current units are kept in memory only.
    try {
        if (ZARSysSettingsManager::GetManager())
            m_unitSettings = new ZARSysLibrarySettings(QByteArrayLiteral("System/Units"));
    } catch (const ZARSysException &) { }
}

ZARSysSettings *ZARSysUnitCatalog::UnitSettings()
{
    return m_unitSettings.data();
}

void ZARSysUnitCatalog::RegisterMagnitude(Magnitude magnitude, const char *labelSource,
                                          Unit systemUnit, const QList<Unit> &units,
                                          double tolerance)
{
    while (magnitudeRows.size() <= magnitude)
        magnitudeRows.append(ZARSysMagnitudeRecord());
    while (unitRows.size() <= magnitude)
        unitRows.append(QList<ZARSysUnitRecord>());
    if (!magnitudes.contains(magnitude))
        magnitudes.append(magnitude);

    ZARSysMagnitudeRecord &record = magnitudeRows[magnitude];
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
    if (!allUnits.contains(unit))
        allUnits.append(unit);
    const int magnitude = unit >> 8;
    const int index = unit & 0xFF;
    while (unitRows.size() <= magnitude)
        unitRows.append(QList<ZARSysUnitRecord>());
    QList<ZARSysUnitRecord> &row = unitRows[magnitude];
    while (row.size() <= index)
        row.append(ZARSysUnitRecord());

    ZARSysUnitRecord &record = row[index];
    record.label = ZARSysValue::tr(labelSource);
    record.string = withoutSpaces(labelSource);
    record.suffix = suffix;
    record.toSystem = toSystem;
    record.fromSystem = fromSystem;
    record.precision = precision;
    unitsBySuffix.insert(suffix, unit);
}

void ZARSysUnitCatalog::FinishRegistration()
{
    if (unitRows.isEmpty())
        unitRows.append(QList<ZARSysUnitRecord>());
    if (unitRows[0].isEmpty()) {
        ZARSysUnitRecord identity;
        identity.toSystem = [](double x) {
            return x;
        };
        identity.fromSystem = identity.toSystem;
        unitRows[0].append(identity);
    }
    std::sort(allUnits.begin(), allUnits.end());
}

const ZARSysUnitRecord *ZARSysUnitCatalog::FindUnit(Unit unit) const
{
    const int magnitude = unit >> 8;
    const int index = unit & 0xFF;
    if (unit <= 0 || magnitude >= unitRows.size() || index >= unitRows[magnitude].size())
        return nullptr;
    const ZARSysUnitRecord &record = unitRows[magnitude][index];
    return record.toSystem ? &record : nullptr;
}

ZARSysUnitRecord *ZARSysUnitCatalog::FindUnit(Unit unit)
{
    return const_cast<ZARSysUnitRecord *>(std::as_const(*this).FindUnit(unit));
}

const ZARSysMagnitudeRecord *ZARSysUnitCatalog::FindMagnitude(Magnitude magnitude) const
{
    if (magnitude < 0 || magnitude >= magnitudeRows.size())
        return nullptr;
    return &magnitudeRows[magnitude];
}

ZARSysMagnitudeRecord *ZARSysUnitCatalog::FindMagnitude(Magnitude magnitude)
{
    return const_cast<ZARSysMagnitudeRecord *>(std::as_const(*this).FindMagnitude(magnitude));
}

Unit ZARSysUnitCatalog::UnitFromSuffix(QStringView suffix) const
{
    // The key only lives for the look-up, so it borrows the characters.
    const QString key = QString::fromRawData(suffix.data(), suffix.size());
    return unitsBySuffix.value(key, ZARSysValue::InvalidUnit);
}

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

// ZARSysValue: construction and access

ZARSysValue::ZARSysValue()
    : m_value(std::numeric_limits<double>::quiet_NaN())
    , m_magnitude(InvalidMagnitude)
{ }

ZARSysValue::ZARSysValue(Magnitude magnitude, double value)
    : m_value(value)
    , m_magnitude(magnitude)
{ }

double ZARSysValue::GetValue(Unit unit) const
{
    if (unit == InvalidUnit)
        return m_value;
    return ConvertFromSystemUnit(m_value, unit);
}

namespace {

// Whether unit is one of the units of magnitude (never true for the invalid magnitude).
bool belongsTo(const ZARSysUnitCatalog &catalog, Unit unit, Magnitude magnitude)
{
    return magnitude != ZARSysValue::InvalidMagnitude
        && ZARSysValue::GetUnitMagnitude(unit) == magnitude && catalog.FindUnit(unit);
}

} // namespace

void ZARSysValue::SetValue(double value, Unit unit)
{
    const ZARSysUnitCatalog &catalog = ZARSysUnitCatalog::instance();
    if (unit != InvalidUnit && belongsTo(catalog, unit, m_magnitude))
        m_value = catalog.ToSystem(unit, value);
    else
        m_value = value;
}

void ZARSysValue::SetValue(const QString &text, Unit unit)
{
    const ZARSysUnitCatalog &catalog = ZARSysUnitCatalog::instance();
    const QLocale locale = ZARSysLocalizationManager::GetManager()->GetLocale();

    // The number is read in the locale's notation and converted in the C notation. The text is
    // copied only when there is something to change.
    const QString group = locale.groupSeparator();
    const QString decimal = locale.decimalPoint();
    QString normalized;
    QStringView view = text;
    const bool hasGroup = !group.isEmpty() && text.contains(group);
    const bool hasDecimal = decimal != "."_L1 && !decimal.isEmpty() && text.contains(decimal);
    if (hasGroup || hasDecimal) {
        normalized = text;
        if (hasGroup)
            normalized.remove(group);
        if (hasDecimal)
            normalized.replace(decimal, "."_L1);
        view = normalized;
    }

    QStringView suffix;
    const double number = catalog.ParseNumberAndSuffix(view, &suffix);

    Unit chosen = unit;
    if (!suffix.isEmpty()) {
        const Unit found = catalog.UnitFromSuffix(suffix);
        if (found != InvalidUnit && (!IsValid() || GetUnitMagnitude(found) == m_magnitude))
            chosen = found;
    }

    if (chosen != InvalidUnit && belongsTo(catalog, chosen, m_magnitude)) {
        m_magnitude = GetUnitMagnitude(chosen);
        m_value = catalog.ToSystem(chosen, number);
    } else {
        m_value = number;
    }
}

ZARSysValue ZARSysValue::FromString(const QString &text)
{
    const ZARSysUnitCatalog &catalog = ZARSysUnitCatalog::instance();
    const QLocale locale = ZARSysLocalizationManager::GetManager()->GetLocale();

    QString compact = text;
    compact.remove(u' ');

    qsizetype letter = 0;
    while (letter < compact.size() && !compact.at(letter).isLetter())
        ++letter;

    Unit unit = InvalidUnit;
    if (letter < compact.size()) {
        const QStringView rest = QStringView(compact).sliced(letter);
        const auto nonCharacter =
            std::find_if(rest.cbegin(), rest.cend(), [](QChar c) { return c.isNonCharacter(); });
        if (nonCharacter == rest.cend()) {
            unit = catalog.UnitFromSuffix(rest);
        } else {
            QString suffix;
            for (QChar c : rest) {
                if (!c.isNonCharacter())
                    suffix.append(c);
            }
            unit = catalog.UnitFromSuffix(suffix);
        }
    }

    double number = locale.toDouble(QStringView(compact).first(letter));
    if (unit != InvalidUnit)
        number = catalog.ToSystem(unit, number);
    return ZARSysValue(GetUnitMagnitude(unit), number);
}

QString ZARSysValue::ToString(Unit unit, char format, int precision) const
{
    if (unit == InvalidUnit)
        unit = GetMagnitudeCurrentUnit(m_magnitude);
    if (std::isnan(m_value))
        return tr("<not set>");

    const ZARSysUnitCatalog &catalog = ZARSysUnitCatalog::instance();
    const ZARSysUnitRecord *record = catalog.FindUnit(unit);
    const double number = record ? record->fromSystem(m_value) : m_value;
    QString text =
        ZARSysLocalizationManager::GetManager()->GetLocale().toString(number, format, precision);
    if (record)
        text += record->suffix;
    return text;
}

QString ZARSysValue::ToString() const
{
    return ToString(InvalidUnit, 'g', 6);
}

QJsonObject ZARSysValue::ToJsonObject() const
{
    return QJsonObject {
        {u"value"_s, m_value},
        {u"unit"_s, GetUnitSuffix(GetMagnitudeCurrentUnit(m_magnitude))},
    };
}

// Comparisons

bool ZARSysValue::operator==(const ZARSysValue &other) const
{
    if (m_magnitude != other.m_magnitude)
        return false;
    const double tolerance = ZARSysUnitCatalog::instance().Tolerance(m_magnitude);
    return std::abs(m_value - other.m_value) < tolerance;
}

bool ZARSysValue::operator!=(const ZARSysValue &other) const
{
    if (m_magnitude != other.m_magnitude)
        return true;
    const double tolerance = ZARSysUnitCatalog::instance().Tolerance(m_magnitude);
    return std::abs(m_value - other.m_value) >= tolerance;
}

namespace {

double orderingTolerance(const ZARSysValue &a, const ZARSysValue &b)
{
    if (!a.IsValid() || !b.IsValid())
        throw ZARSysException(u"Values are invalid"_s);
    if (a.GetMagnitude() != b.GetMagnitude())
        throw ZARSysException(u"Values are different magnitudes"_s);
    return ZARSysUnitCatalog::instance().Tolerance(a.GetMagnitude());
}

} // namespace

bool ZARSysValue::operator<(const ZARSysValue &other) const
{
    const double tolerance = orderingTolerance(*this, other);
    return m_value < other.m_value - tolerance;
}

bool ZARSysValue::operator<=(const ZARSysValue &other) const
{
    const double tolerance = orderingTolerance(*this, other);
    return m_value <= other.m_value + tolerance;
}

bool ZARSysValue::operator>(const ZARSysValue &other) const
{
    const double tolerance = orderingTolerance(*this, other);
    return m_value > other.m_value + tolerance;
}

bool ZARSysValue::operator>=(const ZARSysValue &other) const
{
    const double tolerance = orderingTolerance(*this, other);
    return m_value >= other.m_value - tolerance;
}

QDebug operator<<(QDebug debug, const ZARSysValue &value)
{
    return debug << value.GetValue();
}

// The catalogue

namespace {

void fillCatalogue()
{
    registerMagnitudes(std::make_index_sequence<std::size(magnitudeTable)>());

    ZARSysUnitCatalog &catalog = ZARSysUnitCatalog::instance();
    for (const UnitRow &row : unitTable) {
        const double toSystem = row.toSystem;
        const double fromSystem = row.fromSystem;
        catalog.RegisterUnit(
            row.unit, row.label, QString::fromUtf16(row.suffix),
            [toSystem](double x) { return x * toSystem; },
            [fromSystem](double x) { return x * fromSystem; }, row.precision);
    }
    catalog.FinishRegistration();
}

} // namespace

void ZARSysValue::Initialize()
{
    static std::once_flag filled;
    std::call_once(filled, fillCatalogue);
}

QList<ZARSysValue::Magnitude> ZARSysValue::GetAllMagnitudes()
{
    return ZARSysUnitCatalog::instance().magnitudes;
}

QList<ZARSysValue::Unit> ZARSysValue::GetAllUnits()
{
    return ZARSysUnitCatalog::instance().allUnits;
}

QList<ZARSysValue::Unit> ZARSysValue::GetMagnitudeUnits(Magnitude magnitude)
{
    const ZARSysMagnitudeRecord *record = ZARSysUnitCatalog::instance().FindMagnitude(magnitude);
    return record ? record->units : QList<Unit>();
}

ZARSysValue::Unit ZARSysValue::GetMagnitudeSystemUnit(Magnitude magnitude)
{
    const ZARSysMagnitudeRecord *record = ZARSysUnitCatalog::instance().FindMagnitude(magnitude);
    return record ? record->systemUnit : InvalidUnit;
}

QString ZARSysValue::GetMagnitudeString(Magnitude magnitude)
{
    const ZARSysMagnitudeRecord *record = ZARSysUnitCatalog::instance().FindMagnitude(magnitude);
    return record ? record->string : QString();
}

QString ZARSysValue::GetMagnitudeLabel(Magnitude magnitude)
{
    const ZARSysMagnitudeRecord *record = ZARSysUnitCatalog::instance().FindMagnitude(magnitude);
    return record ? record->label : QString();
}

ZARSysValue::Magnitude ZARSysValue::GetMagnitudeFromString(const QString &text)
{
    const ZARSysUnitCatalog &catalog = ZARSysUnitCatalog::instance();
    for (Magnitude magnitude : catalog.magnitudes) {
        if (catalog.magnitudeRows[magnitude].string == text)
            return magnitude;
    }
    return InvalidMagnitude;
}

ZARSysValue::Magnitude ZARSysValue::GetMagnitudeFromLabel(const QString &text)
{
    const ZARSysUnitCatalog &catalog = ZARSysUnitCatalog::instance();
    for (Magnitude magnitude : catalog.magnitudes) {
        if (catalog.magnitudeRows[magnitude].label == text)
            return magnitude;
    }
    return InvalidMagnitude;
}

QString ZARSysValue::GetUnitString(Unit unit)
{
    if (unit == InvalidUnit)
        return u"InvalidUnit"_s;
    const ZARSysUnitRecord *record = ZARSysUnitCatalog::instance().FindUnit(unit);
    return record ? record->string : QString();
}

QString ZARSysValue::GetUnitLabel(Unit unit)
{
    const ZARSysUnitRecord *record = ZARSysUnitCatalog::instance().FindUnit(unit);
    // Translated again at every call, so that a translator installed after the catalogue was
    // filled is honoured. The stored label is what was translated then (English at start-up),
    // and only a Latin-1 label finds its source text again.
    return record ? tr(record->label.toLatin1().constData()) : QString();
}

QString ZARSysValue::GetUnitSuffix(Unit unit)
{
    const ZARSysUnitRecord *record = ZARSysUnitCatalog::instance().FindUnit(unit);
    return record ? record->suffix : QString();
}

ZARSysValue::Unit ZARSysValue::GetUnitFromString(const QString &text)
{
    if (text == "InvalidUnit"_L1)
        return InvalidUnit;
    const ZARSysUnitCatalog &catalog = ZARSysUnitCatalog::instance();
    for (Unit unit : catalog.allUnits) {
        if (catalog.FindUnit(unit)->string == text)
            return unit;
    }
    return InvalidUnit;
}

ZARSysValue::Unit ZARSysValue::GetUnitFromLabel(const QString &text)
{
    const ZARSysUnitCatalog &catalog = ZARSysUnitCatalog::instance();
    for (Unit unit : catalog.allUnits) {
        if (GetUnitLabel(unit) == text)
            return unit;
    }
    return InvalidUnit;
}

ZARSysValue::Unit ZARSysValue::GetUnitFromSuffix(const QString &text)
{
    return ZARSysUnitCatalog::instance().UnitFromSuffix(text);
}

int ZARSysValue::GetUnitPrecision(Unit unit)
{
    const ZARSysUnitRecord *record = ZARSysUnitCatalog::instance().FindUnit(unit);
    return record ? record->precision : -1;
}

void ZARSysValue::SetUnitPrecision(Unit unit, int precision)
{
    if (ZARSysUnitRecord *record = ZARSysUnitCatalog::instance().FindUnit(unit))
        record->precision = precision;
}

ZARSysValue::Unit ZARSysValue::GetMagnitudeCurrentUnit(Magnitude magnitude)
{
    ZARSysUnitCatalog &catalog = ZARSysUnitCatalog::instance();
    ZARSysMagnitudeRecord *record = catalog.FindMagnitude(magnitude);
    if (!record)
        return InvalidUnit;
    if (record->currentUnit != InvalidUnit)
        return record->currentUnit;

    Unit unit = InvalidUnit;
    if (const ZARSysSettings *settings = catalog.UnitSettings()) {
        const QByteArray key = QByteArray::number(int(magnitude));
        unit = Unit(settings->GetValue(key, 0).toInt());
    }
    if (unit == InvalidUnit)
        unit = record->systemUnit;
    record->currentUnit = unit;
    return unit;
}

void ZARSysValue::SetMagnitudeCurrentUnit(Magnitude magnitude, Unit unit)
{
    ZARSysUnitCatalog &catalog = ZARSysUnitCatalog::instance();
    if (ZARSysMagnitudeRecord *record = catalog.FindMagnitude(magnitude))
        record->currentUnit = unit;
    if (ZARSysSettings *settings = catalog.UnitSettings())
        settings->SetValue(QByteArray::number(int(magnitude)), int(unit));
}

double ZARSysValue::ConvertToSystemUnit(Unit unit, double value)
{
    return ZARSysUnitCatalog::instance().ToSystem(unit, value);
}

double ZARSysValue::ConvertFromSystemUnit(double value, Unit unit)
{
    return ZARSysUnitCatalog::instance().FromSystem(unit, value);
}

#include "moc_ZARSysValue.cpp"
