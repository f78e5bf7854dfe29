#include "ZARSysVariantFilter.h"

#include "ZARSysVariantFilterPrivate.h"

#include <QBitArray>
#include <QDataStream>
#include <QDate>
#include <QDateTime>
#include <QGuiApplication>
#include <QHash>
#include <QStringList>
#include <QTime>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <memory>
#include <new>
#include <type_traits>
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
        return compareNumbers(filter.baseAsNumber(), value.toDouble(), tolerance, type);
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

// Reading base values.
//
// Qt's reader of QVariant recurses into nested variants, pairs, lists and maps as deep as the
// data says and reserves room for as many elements as a count claims, so hostile bytes could
// exhaust the stack or ask for terabytes. Streams of Qt 6 versions are therefore read here, in
// Qt's own format, with a depth limit and without trusting counts; values of other types are
// read by their type's own reader. The depth counts across nested filters too, since a filter
// is itself a type that a QVariant can hold. Older formats number types differently; Qt reads
// them.

constexpr int maxNesting = 64;
thread_local int nesting = 0;

class NestingScope
{
public:
    NestingScope() { ++nesting; }
    ~NestingScope() { --nesting; }
    Q_DISABLE_COPY_MOVE(NestingScope)

    static bool tooDeep() { return nesting > maxNesting; }
};

bool readVariant(QDataStream &stream, QVariant &value);

// The element count of a container; the stream's status tells whether it could be read.
quint64 readCount(QDataStream &stream)
{
    quint32 count = 0;
    stream >> count;
#if QT_VERSION >= QT_VERSION_CHECK(6, 7, 0)
    if (count == 0xfffffffe && stream.version() >= QDataStream::Qt_6_7) {
        qint64 extended = 0;
        stream >> extended;
        return extended < 0 ? 0 : quint64(extended);
    }
#endif
    return count;
}

// Reads one element of a list; variants recurse.
bool readElement(QDataStream &stream, QVariant &element)
{
    return readVariant(stream, element);
}

template<typename T>
bool readElement(QDataStream &stream, T &element)
{
    stream >> element;
    return stream.status() == QDataStream::Ok;
}

template<typename List>
bool readElements(QDataStream &stream, List &list)
{
    const quint64 count = readCount(stream);
    for (quint64 i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
        typename List::value_type element;
        if (!readElement(stream, element))
            break;
        list.append(std::move(element));
    }
    if (stream.status() != QDataStream::Ok) {
        list.clear();
        return false;
    }
    return true;
}

template<typename Map>
bool readMapElements(QDataStream &stream, Map &map)
{
    const quint64 count = readCount(stream);
    for (quint64 i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
        QString key;
        QVariant element;
        stream >> key;
        if (stream.status() != QDataStream::Ok || !readVariant(stream, element))
            break;
        map.insert(key, std::move(element));
    }
    if (stream.status() != QDataStream::Ok) {
        map.clear();
        return false;
    }
    return true;
}

// A variant of type holding value, null when the stream says so, as Qt's reader makes it.
// The value is written through constData(), since data() would clear the null flag; the
// variant is new and not shared.
template<typename T>
QVariant makeVariant(QMetaType type, T &&value, bool null)
{
    if (!null)
        return QVariant(type, &value);
    QVariant variant(type);
    *static_cast<std::decay_t<T> *>(const_cast<void *>(variant.constData())) = std::move(value);
    return variant;
}

template<typename Container>
bool readContainer(QDataStream &stream, QMetaType type, bool null, QVariant &value)
{
    Container container;
    bool read = false;
    if constexpr (std::is_same_v<Container, QVariantMap> || std::is_same_v<Container, QVariantHash>)
        read = readMapElements(stream, container);
    else
        read = readElements(stream, container);
    value = makeVariant(type, std::move(container), null);
    return read;
}

// Reads a bit array as Qt writes it: the number of bits as a 64-bit integer, then the bits in
// bytes. Qt's own reader writes through the shared empty array when the count is negative, so
// it is not used; the bytes are read in slices, so that a count beyond the data costs no
// more memory than the data.
bool readBitArray(QDataStream &stream, bool null, QVariant &value)
{
    qint64 bits = 0;
    stream >> bits;
    if (stream.status() != QDataStream::Ok)
        return false;
    if (bits < 0) {
        stream.setStatus(QDataStream::ReadCorruptData);
        return false;
    }
    const quint64 total = (quint64(bits) + 7) / 8;
    constexpr quint64 slice = 1 << 20;
    QByteArray bytes;
    while (quint64(bytes.size()) < total) {
        const qsizetype chunk = qsizetype(std::min(slice, total - quint64(bytes.size())));
        const qsizetype offset = bytes.size();
        bytes.resize(offset + chunk);
        if (stream.readRawData(bytes.data() + offset, int(chunk)) != chunk) {
            stream.setStatus(QDataStream::ReadPastEnd);
            return false;
        }
    }
    // As Qt's reader: bits set beyond the count make the data malformed.
    if ((bits & 7) != 0 && (uchar(bytes.back()) >> (bits & 7)) != 0) {
        stream.setStatus(QDataStream::ReadCorruptData);
        return false;
    }
    QBitArray array = QBitArray::fromBits(bytes.constData(), qsizetype(bits));
    value = makeVariant(QMetaType::fromType<QBitArray>(), std::move(array), null);
    return true;
}

// Reads a value of a type that holds no variants into a variant, by the type's own reader.
// Readers of Qt's containers (a registered QList<double>, say) reserve room for as many
// elements as the stream claims before reading any: a claim beyond the memory available
// makes the stream malformed instead of throwing out of the filter's reader.
bool loadLeaf(QDataStream &stream, QMetaType type, void *data)
{
    try {
        return type.load(stream, data);
    } catch (const std::bad_alloc &) {
        stream.setStatus(QDataStream::ReadCorruptData);
        return false;
    }
}

bool readLeaf(QDataStream &stream, QMetaType type, bool null, QVariant &value)
{
    if (null) {
        // Written through constData() for the reason given above.
        QVariant loaded(type);
        if (!loaded.isValid() || !loadLeaf(stream, type, const_cast<void *>(loaded.constData())))
            return false;
        value = std::move(loaded);
        return true;
    }
    const auto destroy = [type](void *data) {
        type.destroy(data);
    };
    const std::unique_ptr<void, decltype(destroy)> data(type.create(), destroy);
    if (!data || !loadLeaf(stream, type, data.get()))
        return false;
    value = QVariant(type, data.get());
    return true;
}

bool readVariant(QDataStream &stream, QVariant &value)
{
    value = QVariant();
    if (stream.version() < QDataStream::Qt_6_0) {
        // Type numbers and markers differ in older formats; Qt maps them.
        stream >> value;
        return stream.status() == QDataStream::Ok;
    }
    const NestingScope scope;
    if (NestingScope::tooDeep()) {
        stream.setStatus(QDataStream::ReadCorruptData);
        return false;
    }

    quint32 typeId = 0;
    qint8 null = 0;
    stream >> typeId >> null;
    if (stream.status() != QDataStream::Ok)
        return false;
    QMetaType type;
    if (typeId == QMetaType::User) {
        QByteArray name;
        stream >> name;
        if (stream.status() != QDataStream::Ok)
            return false;
        type = QMetaType::fromName(name);
        if (!type.isValid()) {
            stream.setStatus(QDataStream::ReadCorruptData);
            return false;
        }
    } else if (QMetaType::isRegistered(int(typeId))) {
        type = QMetaType(int(typeId));
    }
    if (!type.isValid())
        return true; // an invalid variant has no data
    // Qt's readers of Gui types (pixmaps, brushes, fonts, cursors) abort the process when
    // there is no QGuiApplication; there, such values count as malformed.
    if (type.id() >= QMetaType::FirstGuiType && type.id() <= QMetaType::LastGuiType
        && !qobject_cast<QGuiApplication *>(QCoreApplication::instance())) {
        stream.setStatus(QDataStream::ReadCorruptData);
        return false;
    }
    // Qt writes an easing curve with the address of its function, which no stream from
    // elsewhere can be trusted with, and its reader reserves room for as many points as the
    // stream claims.
    if (type.id() == QMetaType::QEasingCurve) {
        stream.setStatus(QDataStream::ReadCorruptData);
        return false;
    }

    bool read = false;
    switch (type.id()) {
    case QMetaType::QVariant: {
        QVariant inner;
        read = readVariant(stream, inner);
        value = makeVariant(type, std::move(inner), null != 0);
        break;
    }
    case QMetaType::QVariantPair: {
        QVariantPair pair;
        read = readVariant(stream, pair.first) && readVariant(stream, pair.second);
        value = makeVariant(type, std::move(pair), null != 0);
        break;
    }
    case QMetaType::QVariantList:
        read = readContainer<QVariantList>(stream, type, null != 0, value);
        break;
    case QMetaType::QStringList:
        read = readContainer<QStringList>(stream, type, null != 0, value);
        break;
    case QMetaType::QByteArrayList:
        read = readContainer<QByteArrayList>(stream, type, null != 0, value);
        break;
    case QMetaType::QVariantMap:
        read = readContainer<QVariantMap>(stream, type, null != 0, value);
        break;
    case QMetaType::QVariantHash:
        read = readContainer<QVariantHash>(stream, type, null != 0, value);
        break;
    case QMetaType::QBitArray:
        read = readBitArray(stream, null != 0, value);
        break;
    default:
        read = readLeaf(stream, type, null != 0, value);
        break;
    }
    if (!read && stream.status() == QDataStream::Ok)
        stream.setStatus(QDataStream::ReadCorruptData);
    return read;
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
    d->setBase(base);
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
        filter.d->setBase(value);
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
    d->setBase(base);
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
        return compareNumbers(d->baseAsNumber(), value.toDouble(), d->tolerance, d->comparisonType);
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
        d->setBase(QVariant()); // what a failure inside the reader leaves
        QVariant base;
        readVariant(stream, base);
        d->setBase(std::move(base));
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
