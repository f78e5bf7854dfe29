#ifndef ZARSYSVARIANTFILTERPRIVATE_H
#define ZARSYSVARIANTFILTERPRIVATE_H

#include "ZARSysVariantFilter.h"

#include <QRegularExpression>
#include <QSharedData>
#include <QVariant>

#include <limits>
#include <utility>

// The fields of a filter, in the order in which they are streamed. A fresh record is an empty
// regular-expression filter whose tolerance is the machine epsilon; the default constructor of
// the filter sets the tolerance to 0.
class ZARSysVariantFilterPrivate : public QSharedData
{
public:
    ZARSysVariantFilter::FilterType filterType = ZARSysVariantFilter::RegularExpressionFilter;
    QRegularExpression expression;
    bool reverse = false;
    QVariant base;
    ZARSysVariantFilter::ComparisonType comparisonType = ZARSysVariantFilter::NoComparison;
    double tolerance = std::numeric_limits<double>::epsilon();

    // The base value as a number, for numeric filters and for typed filters testing doubles,
    // kept when it is set: Qt's own types always convert alike, so it is converted once. Other
    // types are converted at every test, since their converters may be registered later.
    double baseNumber = 0;
    bool baseNumberKept = false;

    void setBase(QVariant value)
    {
        base = std::move(value);
        baseNumberKept = base.metaType().id() < QMetaType::User;
        baseNumber = baseNumberKept ? base.toDouble() : 0;
    }

    double baseAsNumber() const { return baseNumberKept ? baseNumber : base.toDouble(); }
};

#endif // ZARSYSVARIANTFILTERPRIVATE_H
