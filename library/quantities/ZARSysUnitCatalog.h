#ifndef ZARSYSUNITCATALOG_H
#define ZARSYSUNITCATALOG_H

#include "ZARSysValue.h"

#include <QHash>
#include <QList>
#include <QPointer>
#include <QRegularExpression>
#include <QString>
#include <QStringView>

#include <functional>

class ZARSysSettings;

using ZARSysUnitConversion = std::function<double(double)>;

struct ZARSysMagnitudeRecord
{
    QString string;
    QString label;
    QList<ZARSysValue::Unit> units;
    ZARSysValue::Unit systemUnit = ZARSysValue::InvalidUnit;
    // 0 until read from the settings or set.
    ZARSysValue::Unit currentUnit = ZARSysValue::InvalidUnit;
    double tolerance = 1e-6;
};

struct ZARSysUnitRecord
{
    QString label;
    QString string;
    QString suffix;
    ZARSysUnitConversion toSystem;
    ZARSysUnitConversion fromSystem;
    int precision = -1;
};

// The process-wide catalogue behind ZARSysValue's static functions: the magnitudes and units,
// their factors and precisions, and the unit in which each magnitude is shown. Rows are indexed
// by magnitude value; row 0 belongs to the invalid magnitude and holds identity conversions once
// the catalogue is filled.
class ZARSysUnitCatalog
{
public:
    using Magnitude = ZARSysValue::Magnitude;
    using Unit = ZARSysValue::Unit;

    // Destroyed when the library is unloaded; not to be reached from code running after that.
    static ZARSysUnitCatalog &Instance();

    // Registers the library's magnitudes and units, calling magnitudeRegistered right after each
    // magnitude (before its units). For a catalogue that is still empty.
    void Fill(void (*magnitudeRegistered)(Magnitude));

    const QList<Magnitude> &Magnitudes() const { return m_magnitudes; }
    // Every unit, in ascending order of value once the catalogue is filled.
    const QList<Unit> &Units() const { return m_allUnits; }

    // The record of a registered unit; null for InvalidUnit and units outside the catalogue.
    const ZARSysUnitRecord *FindUnit(Unit unit) const;
    ZARSysUnitRecord *FindUnit(Unit unit);
    const ZARSysMagnitudeRecord *FindMagnitude(Magnitude magnitude) const;
    ZARSysMagnitudeRecord *FindMagnitude(Magnitude magnitude);

    // The first magnitude or unit whose string, label or suffix is exactly text; InvalidMagnitude
    // or InvalidUnit when none is.
    Magnitude MagnitudeFromString(const QString &text) const;
    Magnitude MagnitudeFromLabel(const QString &text) const;
    Unit UnitFromString(const QString &text) const;
    Unit UnitFromLabel(const QString &text) const;
    Unit UnitFromSuffix(QStringView suffix) const;

    // The unit's label translated now; empty for units outside the catalogue.
    QString UnitLabel(Unit unit) const;

    double Tolerance(Magnitude magnitude) const;
    double ToSystem(Unit unit, double value) const;
    double FromSystem(Unit unit, double value) const;

    // The unit in which values of magnitude are shown: set, stored in "System/Units", or the
    // system unit, in this order. InvalidUnit for magnitudes outside the catalogue.
    Unit CurrentUnit(Magnitude magnitude);
    void SetCurrentUnit(Magnitude magnitude, Unit unit);

    // Splits text into number and suffix as "^\s*(\-?\d*\.?\d*)\s*(\S+)?\s*$" does, and
    // converts the number in the C locale (0 when it cannot be read). Both views are empty
    // when the text does not match.
    double ParseNumberAndSuffix(QStringView text, QStringView *suffix) const;

private:
    ZARSysUnitCatalog();
    ~ZARSysUnitCatalog() = default;

    void RegisterMagnitude(Magnitude magnitude, const char *labelSource, Unit systemUnit,
                           const QList<Unit> &units, double tolerance);
    void RegisterUnit(Unit unit, const char *labelSource, const QString &suffix,
                      const ZARSysUnitConversion &toSystem, const ZARSysUnitConversion &fromSystem,
                      int precision);
    void FinishRegistration();

    QList<Magnitude> m_magnitudes;
    QList<ZARSysMagnitudeRecord> m_magnitudeRows;
    QList<Unit> m_allUnits;
    QList<QList<ZARSysUnitRecord>> m_unitRows;
    QHash<QString, Unit> m_unitsBySuffix;
    QPointer<ZARSysSettings> m_unitSettings;
    QRegularExpression m_pattern;
};

#endif // ZARSYSUNITCATALOG_H
