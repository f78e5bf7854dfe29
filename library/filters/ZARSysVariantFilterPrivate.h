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
    // kept when it is set. Only for types that Qt itself converts to double (numbers and
    // texts): a converter registered later cannot take their place. Values of other types are
    // converted at every test, since a converter for them may come later.
    double baseNumber = 0;
    bool baseNumberKept = false;

    static bool ConvertsAlike(int type)
    {
        switch (type) {
        case QMetaType::UnknownType:
        case QMetaType::Bool:
        case QMetaType::Int:
        case QMetaType::UInt:
        case QMetaType::LongLong:
        case QMetaType::ULongLong:
        case QMetaType::Long:
        case QMetaType::ULong:
        case QMetaType::Short:
        case QMetaType::UShort:
        case QMetaType::Char:
        case QMetaType::SChar:
        case QMetaType::UChar:
        case QMetaType::Double:
        case QMetaType::Float:
        case QMetaType::QString:
        case QMetaType::QByteArray:
            return true;
        default:
            return false;
        }
    }

    void SetBase(QVariant value)
    {
        base = std::move(value);
        baseNumberKept = ConvertsAlike(base.metaType().id());
        baseNumber = baseNumberKept ? base.toDouble() : 0;
    }

    double BaseAsNumber() const { return baseNumberKept ? baseNumber : base.toDouble(); }
};

#endif // ZARSYSVARIANTFILTERPRIVATE_H
