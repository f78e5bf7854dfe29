#include "ZARSysVariantFilter.h"

#include "ZARSysVariantFilterPrivate.h"
#include "ZARSysVariantStreamReader.h"

#include <QDataStream>
#include <QDate>
#include <QDateTime>
#include <QStringList>
#include <QTime>

#include <cmath>
#include <new>
#include <utility>

namespace {

using Comparison = ZARSysVariantFilter::ComparisonType;

// The comparison of doubles with an absolute tolerance, shared by numeric filters and by typed
// filters that test a double.
bool compareNumbers(double base, double value, double tolerance, Comparison type)
{
    const double difference = std::fabs(base - value);
    switch (type) {
    case ZARSysVariantFilter::IsEqualTo:
        return tolerance >= difference;
    case ZARSysVariantFilter::IsNotEqualTo:
        return difference > tolerance;
    case ZARSysVariantFilter::GreaterThan:
        return value - base > tolerance;
    case ZARSysVariantFilter::GreaterThanOrEqualTo:
        return value - base > tolerance || tolerance >= difference;
    case ZARSysVariantFilter::LessThan:
        return base - value > tolerance;
    case ZARSysVariantFilter::LessThanOrEqualTo:
        return base - value > tolerance || tolerance >= difference;
    default:
        return true;
    }
}

// An exact comparison in a type with == and <. Written with those two operators only, so
// that a NaN float is unequal to everything and neither greater nor less.
template<typename T>
bool compareExactly(const T &base, const T &value, Comparison type)
{
    switch (type) {
    case ZARSysVariantFilter::IsEqualTo:
        return value == base;
    case ZARSysVariantFilter::IsNotEqualTo:
        return !(value == base);
    case ZARSysVariantFilter::GreaterThan:
        return base < value;
    case ZARSysVariantFilter::GreaterThanOrEqualTo:
        return base < value || value == base;
    case ZARSysVariantFilter::LessThan:
        return value < base;
    case ZARSysVariantFilter::LessThanOrEqualTo:
        return value < base || value == base;
    default:
        return true;
    }
}

bool compareTyped(const ZARSysVariantFilterPrivate &filter, const QVariant &value)
{
    const QVariant &base = filter.base;
    const double tolerance = filter.tolerance;
    const Comparison type = filter.comparisonType;
    if (type < ZARSysVariantFilter::IsEqualTo || type > ZARSysVariantFilter::LessThanOrEqualTo)
        return true;
    switch (value.userType()) {
    case QMetaType::Bool:
        return compareExactly(base.toBool(), value.toBool(), type);
    case QMetaType::Int:
        return compareExactly(base.toInt(), value.toInt(), type);
    case QMetaType::UInt:
        return compareExactly(base.toUInt(), value.toUInt(), type);
    case QMetaType::LongLong:
    case QMetaType::Long:
    case QMetaType::Short:
    case QMetaType::Char:
    case QMetaType::SChar:
        return compareExactly(base.toLongLong(), value.toLongLong(), type);
    case QMetaType::ULongLong:
    case QMetaType::ULong:
    case QMetaType::UShort:
    case QMetaType::UChar:
        return compareExactly(base.toULongLong(), value.toULongLong(), type);
    case QMetaType::Double:
        return compareNumbers(filter.BaseAsNumber(), value.toDouble(), tolerance, type);
    case QMetaType::Float:
        return compareExactly(base.toFloat(), value.toFloat(), type);
    case QMetaType::QChar:
        return compareExactly(base.toChar().unicode(), value.toChar().unicode(), type);
    case QMetaType::QStringList:
        // QList's < is lexicographic with a proper prefix first, by QString's code-unit order.
        return compareExactly(base.toStringList(), value.toStringList(), type);
    case QMetaType::QByteArray:
        return compareExactly(base.toByteArray(), value.toByteArray(), type);
    case QMetaType::QDate:
        return compareExactly(base.toDate(), value.toDate(), type);
    case QMetaType::QTime:
        return compareExactly(base.toTime(), value.toTime(), type);
    case QMetaType::QDateTime:
        return compareExactly(base.toDateTime(), value.toDateTime(), type);
    default:
        // QString itself, and every other type through its text.
        return compareExactly(base.toString(), value.toString(), type);
    }
}

} // namespace

ZARSysVariantFilter::ZARSysVariantFilter()
    : d(new ZARSysVariantFilterPrivate)
{
    d->tolerance = 0.0;
}

ZARSysVariantFilter::ZARSysVariantFilter(const QVariant &base, ComparisonType type,
                                         double tolerance, FilterType filterType)
    : d(new ZARSysVariantFilterPrivate)
{
    d->filterType = filterType;
    d->SetBase(base);
    d->comparisonType = type;
    d->tolerance = tolerance;
}

ZARSysVariantFilter::ZARSysVariantFilter(QRegularExpression expression, bool reverse)
    : d(new ZARSysVariantFilterPrivate)
{
    d->expression = std::move(expression);
    d->reverse = reverse;
}

ZARSysVariantFilter::ZARSysVariantFilter(const ZARSysVariantFilter &other) = default;
ZARSysVariantFilter::ZARSysVariantFilter(ZARSysVariantFilter &&other) noexcept = default;
ZARSysVariantFilter &ZARSysVariantFilter::operator=(const ZARSysVariantFilter &other) = default;
ZARSysVariantFilter &ZARSysVariantFilter::operator=(ZARSysVariantFilter &&other) noexcept = default;
ZARSysVariantFilter::~ZARSysVariantFilter() = default;

ZARSysVariantFilter ZARSysVariantFilter::CreateFilter(const QVariant &value, FilterType filterType,
                                                      ComparisonType type, double tolerance)
{
    switch (filterType) {
    case NumericFilter:
        return ZARSysVariantFilter(value, type, tolerance, NumericFilter);
    case TypedValueFilter:
        return ZARSysVariantFilter(value, type, 0.0, TypedValueFilter);
    case RegularExpressionFilter: {
        // The user's text is a pattern as it stands, special characters included.
        const QString text = value.toString();
        QString pattern;
        bool reverse = false;
        switch (type) {
        case BeginsWith:
            pattern = QLatin1Char('^') + text;
            break;
        case EndsWith:
            pattern = text + QLatin1Char('$');
            break;
        case Contains:
            pattern = text;
            break;
        case DoesNotContain:
            pattern = text;
            reverse = true;
            break;
        default:
            break;
        }
        ZARSysVariantFilter filter(QRegularExpression(pattern), reverse);
        filter.d->SetBase(value);
        filter.d->comparisonType = type;
        return filter;
    }
    }
    return ZARSysVariantFilter();
}

ZARSysVariantFilter::FilterType ZARSysVariantFilter::GetFilterType() const
{
    return d->filterType;
}

void ZARSysVariantFilter::SetFilterType(FilterType filterType)
{
    d->filterType = filterType;
}

QRegularExpression ZARSysVariantFilter::GetRegularExpression() const
{
    return d->expression;
}

void ZARSysVariantFilter::SetRegularExpression(const QRegularExpression &expression)
{
    d->expression = expression;
}

bool ZARSysVariantFilter::GetReverse() const
{
    return d->reverse;
}

void ZARSysVariantFilter::SetReverse(bool reverse)
{
    d->reverse = reverse;
}

QVariant ZARSysVariantFilter::GetBaseValue() const
{
    return d->base;
}

void ZARSysVariantFilter::SetBaseValue(const QVariant &base)
{
    d->SetBase(base);
}

ZARSysVariantFilter::ComparisonType ZARSysVariantFilter::GetComparisonType() const
{
    return d->comparisonType;
}

void ZARSysVariantFilter::SetComparisonType(ComparisonType type)
{
    d->comparisonType = type;
}

double ZARSysVariantFilter::GetTolerance() const
{
    return d->tolerance;
}

void ZARSysVariantFilter::SetTolerance(double tolerance)
{
    d->tolerance = tolerance;
}

bool ZARSysVariantFilter::TestValue(const QVariant &value) const
{
    switch (d->filterType) {
    case RegularExpressionFilter:
        return d->expression.match(value.toString()).hasMatch() != d->reverse;
    case NumericFilter:
        return compareNumbers(d->BaseAsNumber(), value.toDouble(), d->tolerance, d->comparisonType);
    case TypedValueFilter:
        return compareTyped(*d, value);
    }
    return true;
}

bool ZARSysVariantFilter::IsValid() const
{
    switch (d->filterType) {
    case RegularExpressionFilter:
    case TypedValueFilter:
        return true;
    case NumericFilter: {
        const QString text = d->base.toString();
        return !text.isEmpty() && (text.front().isNumber() || text.front().isDigit())
            && d->comparisonType != NoComparison;
    }
    }
    return false;
}

bool ZARSysVariantFilter::operator==(const ZARSysVariantFilter &other) const
{
    // Field by field even for a shared record: a NaN tolerance is unequal to itself.
    return d->reverse == other.d->reverse && d->filterType == other.d->filterType
        && d->tolerance == other.d->tolerance && d->comparisonType == other.d->comparisonType
        && d->expression == other.d->expression && d->base == other.d->base;
}

QMap<ZARSysVariantFilter::ComparisonType, QString> ZARSysVariantFilter::GetComparisonTypeStringMap()
{
    static const QMap<ComparisonType, QString> texts {
        {NoComparison, QStringLiteral("-----------------")},
        {BeginsWith, tr("begins with")},
        {EndsWith, tr("ends with")},
        {Contains, tr("contains")},
        {DoesNotContain, tr("does not contain")},
        {IsEqualTo, tr("is equal to")},
        {IsNotEqualTo, tr("is not equal to")},
        {GreaterThan, tr("greater than")},
        {GreaterThanOrEqualTo, tr("greater than or equal to")},
        {LessThan, tr("less than")},
        {LessThanOrEqualTo, tr("less than or equal to")},
        {IsChecked, tr("is checked")},
        {IsNotChecked, tr("is not checked")},
    };
    return texts;
}

QList<ZARSysVariantFilter::ComparisonType> ZARSysVariantFilter::GetStringCompTypes()
{
    static const QList<ComparisonType> types {BeginsWith, EndsWith, Contains, DoesNotContain};
    return types;
}

QList<ZARSysVariantFilter::ComparisonType> ZARSysVariantFilter::GetNumericCompTypes()
{
    static const QList<ComparisonType> types {
        IsEqualTo, IsNotEqualTo, GreaterThan, GreaterThanOrEqualTo, LessThan, LessThanOrEqualTo};
    return types;
}

QList<ZARSysVariantFilter::ComparisonType> ZARSysVariantFilter::GetEnumCompTypes()
{
    static const QList<ComparisonType> types {IsEqualTo, IsNotEqualTo};
    return types;
}

QList<ZARSysVariantFilter::ComparisonType> ZARSysVariantFilter::GetBoolCompTypes()
{
    static const QList<ComparisonType> types {IsChecked, IsNotChecked};
    return types;
}

QDataStream &operator<<(QDataStream &stream, const ZARSysVariantFilter &filter)
{
    stream << qint32(filter.GetFilterType()) << filter.GetRegularExpression() << filter.GetReverse()
           << filter.GetBaseValue() << qint32(filter.GetComparisonType()) << filter.GetTolerance();
    return stream;
}

QDataStream &operator>>(QDataStream &stream, ZARSysVariantFilter &filter)
{
    ZARSysVariantFilterPrivate *const d = filter.d.data(); // detaches
    try {
        qint32 filterType = 0;
        stream >> filterType;
        d->filterType = ZARSysVariantFilter::FilterType(filterType);
        stream >> d->expression >> d->reverse;
        d->SetBase(QVariant()); // what a failure inside the reader leaves
        QVariant base;
        ZARSysVariantStreamReader::readVariant(stream, base);
        d->SetBase(std::move(base));
        qint32 comparisonType = 0;
        stream >> comparisonType;
        d->comparisonType = ZARSysVariantFilter::ComparisonType(comparisonType);
        stream >> d->tolerance;
    } catch (const std::bad_alloc &) {
        // A count in the data asked one of Qt's readers for more memory than there is.
        stream.setStatus(QDataStream::ReadCorruptData);
    }
    return stream;
}

#include "moc_ZARSysVariantFilter.cpp"
