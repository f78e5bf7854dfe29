#ifndef ZARSYSVARIANTFILTERPRIVATE_H
#define ZARSYSVARIANTFILTERPRIVATE_H

#include "ZARSysVariantFilter.h"

#include <QRegularExpression>
#include <QSharedData>
#include <QVariant>

#include <limits>

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
};

#endif // ZARSYSVARIANTFILTERPRIVATE_H
