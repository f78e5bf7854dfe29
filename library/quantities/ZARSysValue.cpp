#include "ZARSysValue.h"

#include "ZARSysException.h"
#include "ZARSysLocalizationManager.h"
#include "ZARSysQuantityText.h"
#include "ZARSysUnitCatalog.h"

#include <QJsonValue>
#include <QLocale>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

using Magnitude = ZARSysValue::Magnitude;
using Unit = ZARSysValue::Unit;

// Construction and access

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
    const ZARSysUnitCatalog &catalog = ZARSysUnitCatalog::Instance();
    if (unit != InvalidUnit && belongsTo(catalog, unit, m_magnitude))
        m_value = catalog.ToSystem(unit, value);
    else
        m_value = value;
}

void ZARSysValue::SetValue(const QString &text, Unit unit)
{
    const ZARSysUnitCatalog &catalog = ZARSysUnitCatalog::Instance();
    const QLocale locale = ZARSysLocalizationManager::GetManager()->GetLocale();

    // The number is read in the locale's notation and converted in the C notation.
    const QString normalized = ZARSysQuantityText::ToCNotation(text, locale);
    QStringView suffix;
    const double number = catalog.ParseNumberAndSuffix(normalized, &suffix);

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
    const ZARSysUnitCatalog &catalog = ZARSysUnitCatalog::Instance();
    const QLocale locale = ZARSysLocalizationManager::GetManager()->GetLocale();

    QString compact = text;
    compact.remove(u' ');

    qsizetype letter = 0;
    while (letter < compact.size() && !compact.at(letter).isLetter())
        ++letter;

    Unit unit = InvalidUnit;
    if (letter < compact.size()) {
        QString storage;
        const QStringView suffix =
            ZARSysQuantityText::WithoutNonCharacters(QStringView(compact).sliced(letter), &storage);
        unit = catalog.UnitFromSuffix(suffix);
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

    const ZARSysUnitCatalog &catalog = ZARSysUnitCatalog::Instance();
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
    const double tolerance = ZARSysUnitCatalog::Instance().Tolerance(m_magnitude);
    return std::abs(m_value - other.m_value) < tolerance;
}

bool ZARSysValue::operator!=(const ZARSysValue &other) const
{
    if (m_magnitude != other.m_magnitude)
        return true;
    const double tolerance = ZARSysUnitCatalog::Instance().Tolerance(m_magnitude);
    return std::abs(m_value - other.m_value) >= tolerance;
}

namespace {

double orderingTolerance(const ZARSysValue &a, const ZARSysValue &b)
{
    if (!a.IsValid() || !b.IsValid())
        throw ZARSysException(u"Values are invalid"_s);
    if (a.GetMagnitude() != b.GetMagnitude())
        throw ZARSysException(u"Values are different magnitudes"_s);
    return ZARSysUnitCatalog::Instance().Tolerance(a.GetMagnitude());
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

// The catalogue, answered by ZARSysUnitCatalog. Initialize() fills it together with the type
// registrations, in ZARSysQuantityTypes.cpp.

QList<ZARSysValue::Magnitude> ZARSysValue::GetAllMagnitudes()
{
    return ZARSysUnitCatalog::Instance().Magnitudes();
}

QList<ZARSysValue::Unit> ZARSysValue::GetAllUnits()
{
    return ZARSysUnitCatalog::Instance().Units();
}

QList<ZARSysValue::Unit> ZARSysValue::GetMagnitudeUnits(Magnitude magnitude)
{
    const ZARSysMagnitudeRecord *record = ZARSysUnitCatalog::Instance().FindMagnitude(magnitude);
    return record ? record->units : QList<Unit>();
}

ZARSysValue::Unit ZARSysValue::GetMagnitudeSystemUnit(Magnitude magnitude)
{
    const ZARSysMagnitudeRecord *record = ZARSysUnitCatalog::Instance().FindMagnitude(magnitude);
    return record ? record->systemUnit : InvalidUnit;
}

QString ZARSysValue::GetMagnitudeString(Magnitude magnitude)
{
    const ZARSysMagnitudeRecord *record = ZARSysUnitCatalog::Instance().FindMagnitude(magnitude);
    return record ? record->string : QString();
}

QString ZARSysValue::GetMagnitudeLabel(Magnitude magnitude)
{
    const ZARSysMagnitudeRecord *record = ZARSysUnitCatalog::Instance().FindMagnitude(magnitude);
    return record ? record->label : QString();
}

ZARSysValue::Magnitude ZARSysValue::GetMagnitudeFromString(const QString &text)
{
    return ZARSysUnitCatalog::Instance().MagnitudeFromString(text);
}

ZARSysValue::Magnitude ZARSysValue::GetMagnitudeFromLabel(const QString &text)
{
    return ZARSysUnitCatalog::Instance().MagnitudeFromLabel(text);
}

QString ZARSysValue::GetUnitString(Unit unit)
{
    if (unit == InvalidUnit)
        return u"InvalidUnit"_s;
    const ZARSysUnitRecord *record = ZARSysUnitCatalog::Instance().FindUnit(unit);
    return record ? record->string : QString();
}

QString ZARSysValue::GetUnitLabel(Unit unit)
{
    return ZARSysUnitCatalog::Instance().UnitLabel(unit);
}

QString ZARSysValue::GetUnitSuffix(Unit unit)
{
    const ZARSysUnitRecord *record = ZARSysUnitCatalog::Instance().FindUnit(unit);
    return record ? record->suffix : QString();
}

ZARSysValue::Unit ZARSysValue::GetUnitFromString(const QString &text)
{
    if (text == "InvalidUnit"_L1)
        return InvalidUnit;
    return ZARSysUnitCatalog::Instance().UnitFromString(text);
}

ZARSysValue::Unit ZARSysValue::GetUnitFromLabel(const QString &text)
{
    return ZARSysUnitCatalog::Instance().UnitFromLabel(text);
}

ZARSysValue::Unit ZARSysValue::GetUnitFromSuffix(const QString &text)
{
    return ZARSysUnitCatalog::Instance().UnitFromSuffix(text);
}

int ZARSysValue::GetUnitPrecision(Unit unit)
{
    const ZARSysUnitRecord *record = ZARSysUnitCatalog::Instance().FindUnit(unit);
    return record ? record->precision : -1;
}

void ZARSysValue::SetUnitPrecision(Unit unit, int precision)
{
    if (ZARSysUnitRecord *record = ZARSysUnitCatalog::Instance().FindUnit(unit))
        record->precision = precision;
}

ZARSysValue::Unit ZARSysValue::GetMagnitudeCurrentUnit(Magnitude magnitude)
{
    return ZARSysUnitCatalog::Instance().CurrentUnit(magnitude);
}

void ZARSysValue::SetMagnitudeCurrentUnit(Magnitude magnitude, Unit unit)
{
    ZARSysUnitCatalog::Instance().SetCurrentUnit(magnitude, unit);
}

double ZARSysValue::ConvertToSystemUnit(Unit unit, double value)
{
    return ZARSysUnitCatalog::Instance().ToSystem(unit, value);
}

double ZARSysValue::ConvertFromSystemUnit(double value, Unit unit)
{
    return ZARSysUnitCatalog::Instance().FromSystem(unit, value);
}

#include "moc_ZARSysValue.cpp"
