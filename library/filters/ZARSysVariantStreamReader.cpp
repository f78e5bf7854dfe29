#include "ZARSysVariantStreamReader.h"

#include <QBitArray>
#include <QGuiApplication>
#include <QHash>
#include <QStringList>

#include <algorithm>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

namespace {

using ZARSysVariantStreamReader::readVariant;

constexpr int maxNesting = 64;
thread_local int nesting = 0;

class NestingScope
{
public:
    NestingScope() { ++nesting; }
    ~NestingScope() { --nesting; }
    Q_DISABLE_COPY_MOVE(NestingScope)

    static bool TooDeep() { return nesting > maxNesting; }
};

// Which types may be read.

// The type of a variant whose header gave typeId: a registered type's number, or
// QMetaType::User followed by the type's name. A number that names no type gives an invalid
// type, the type of an invalid variant; a name that names none makes the stream malformed.
// Returns false when the stream failed.
bool readType(QDataStream &stream, quint32 typeId, QMetaType &type)
{
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
    return true;
}

// Whether values of type may be read at all; those of the other types count as malformed.
bool mayRead(QMetaType type)
{
    // Qt's readers of Gui types (pixmaps, brushes, fonts, cursors) abort the process when
    // there is no QGuiApplication.
    if (type.id() >= QMetaType::FirstGuiType && type.id() <= QMetaType::LastGuiType
        && !qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        return false;
    // Qt writes an easing curve with the address of its function, which no stream from
    // elsewhere can be trusted with, and its reader reserves room for as many points as the
    // stream claims.
    return type.id() != QMetaType::QEasingCurve;
}

// Reading the values of the types that may be read.

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
        // Written through constData() for the reason given at makeVariant().
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

// Reads the value of a variant of type, a type that may be read, by the reader of its kind:
// the types that hold variants and bit arrays here, every other by the type's own reader.
bool readValue(QDataStream &stream, QMetaType type, bool null, QVariant &value)
{
    switch (type.id()) {
    case QMetaType::QVariant: {
        QVariant inner;
        const bool read = readVariant(stream, inner);
        value = makeVariant(type, std::move(inner), null);
        return read;
    }
    case QMetaType::QVariantPair: {
        QVariantPair pair;
        const bool read = readVariant(stream, pair.first) && readVariant(stream, pair.second);
        value = makeVariant(type, std::move(pair), null);
        return read;
    }
    case QMetaType::QVariantList:
        return readContainer<QVariantList>(stream, type, null, value);
    case QMetaType::QStringList:
        return readContainer<QStringList>(stream, type, null, value);
    case QMetaType::QByteArrayList:
        return readContainer<QByteArrayList>(stream, type, null, value);
    case QMetaType::QVariantMap:
        return readContainer<QVariantMap>(stream, type, null, value);
    case QMetaType::QVariantHash:
        return readContainer<QVariantHash>(stream, type, null, value);
    case QMetaType::QBitArray:
        return readBitArray(stream, null, value);
    default:
        return readLeaf(stream, type, null, value);
    }
}

} // namespace

bool ZARSysVariantStreamReader::readVariant(QDataStream &stream, QVariant &value)
{
    value = QVariant();
    if (stream.version() < QDataStream::Qt_6_0) {
        // Type numbers and markers differ in older formats; Qt maps them.
        stream >> value;
        return stream.status() == QDataStream::Ok;
    }
    const NestingScope scope;
    if (NestingScope::TooDeep()) {
        stream.setStatus(QDataStream::ReadCorruptData);
        return false;
    }

    quint32 typeId = 0;
    qint8 null = 0;
    stream >> typeId >> null;
    if (stream.status() != QDataStream::Ok)
        return false;
    QMetaType type;
    if (!readType(stream, typeId, type))
        return false;
    if (!type.isValid())
        return true; // an invalid variant has no data
    if (!mayRead(type)) {
        stream.setStatus(QDataStream::ReadCorruptData);
        return false;
    }

    const bool read = readValue(stream, type, null != 0, value);
    if (!read && stream.status() == QDataStream::Ok)
        stream.setStatus(QDataStream::ReadCorruptData);
    return read;
}
