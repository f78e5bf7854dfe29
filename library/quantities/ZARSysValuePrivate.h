#ifndef ZARSYSVALUEPRIVATE_H
#define ZARSYSVALUEPRIVATE_H

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

// The process-wide catalogue behind ZARSysValue's static functions. Rows are indexed by
// magnitude value; row 0 belongs to the invalid magnitude and holds identity conversions once
// the catalogue is filled.
class ZARSysUnitCatalog
{
public:
    static ZARSysUnitCatalog &instance();

    void RegisterMagnitude(ZARSysValue::Magnitude magnitude, const char *labelSource,
                           ZARSysValue::Unit systemUnit, const QList<ZARSysValue::Unit> &units,
                           double tolerance);
    void RegisterUnit(ZARSysValue::Unit unit, const char *labelSource, const QString &suffix,
                      const ZARSysUnitConversion &toSystem, const ZARSysUnitConversion &fromSystem,
                      int precision);
    void FinishRegistration();

    // The record of a registered unit; null for InvalidUnit and units outside the catalogue.
    const ZARSysUnitRecord *FindUnit(ZARSysValue::Unit unit) const;
    ZARSysUnitRecord *FindUnit(ZARSysValue::Unit unit);
    const ZARSysMagnitudeRecord *FindMagnitude(ZARSysValue::Magnitude magnitude) const;
    ZARSysMagnitudeRecord *FindMagnitude(ZARSysValue::Magnitude magnitude);

    ZARSysValue::Unit UnitFromSuffix(QStringView suffix) const;
    double Tolerance(ZARSysValue::Magnitude magnitude) const;
    double ToSystem(ZARSysValue::Unit unit, double value) const;
    double FromSystem(ZARSysValue::Unit unit, double value) const;

    // Splits text into number and suffix as "^\s*(\-?\d*\.?\d*)\s*(\S+)?\s*$" does, and
    // converts the number in the C locale (0 when it cannot be read). Both views are empty
    // when the text does not match.
    double ParseNumberAndSuffix(QStringView text, QStringView *suffix) const;

    ZARSysSettings *UnitSettings();

    QList<ZARSysValue::Magnitude> magnitudes;
    QList<ZARSysMagnitudeRecord> magnitudeRows;
    QList<ZARSysValue::Unit> allUnits;
    QList<QList<ZARSysUnitRecord>> unitRows;
    QHash<QString, ZARSysValue::Unit> unitsBySuffix;

private:
    ZARSysUnitCatalog();

    QPointer<ZARSysSettings> m_unitSettings;
    QRegularExpression m_pattern;
};

#endif // ZARSYSVALUEPRIVATE_H
