// ZARSysAsciiUnicodeMap against a reference model: the map as it was first written, two ordered
// maps of directed keys with a byte-wise comparator. Both are driven by the same operations,
// decoded from the input, on two sides that are copied, moved and swapped into each other; every
// result must be the same (return values, the text found or left untouched, the key and string
// lists).

#include "FuzzCommon.h"

#include <ZARSysAsciiUnicodeMap.h>
#include <ZARSysStringUtilities.h>

#include <map>
#include <utility>

namespace {

// The reference order, kept as the map first had it: a key and the end it is compared from.
// Two keys compare over the length of the shorter one only, byte by byte as signed 8-bit values,
// from the start or from the end; so a key is equivalent to every longer key that it begins (or
// ends), and the empty key to every key.
struct DirectedKey
{
    QByteArray bytes;
    bool fromEnd = false;
};

struct DirectedLess
{
    bool operator()(const DirectedKey &a, const DirectedKey &b) const
    {
        const qsizetype n = std::min(a.bytes.size(), b.bytes.size());
        for (qsizetype i = 0; i < n; ++i) {
            const auto x =
                static_cast<signed char>(a.bytes.at(a.fromEnd ? a.bytes.size() - 1 - i : i));
            const auto y =
                static_cast<signed char>(b.bytes.at(b.fromEnd ? b.bytes.size() - 1 - i : i));
            if (x != y)
                return x < y;
        }
        return false;
    }
};

// The reference map: the same key and text in an order by beginnings and an order by ends.
struct Model
{
    using Order = std::map<DirectedKey, QString, DirectedLess>;
    Order forward;
    Order backward;

    static Order::const_iterator find(const Order &order, const DirectedKey &key)
    {
        const auto it = order.lower_bound(key);
        return it != order.cend() && !DirectedLess()(key, it->first) ? it : order.cend();
    }

    QByteArray Insert(const QString &text)
    {
        const QByteArray key = ZARSysStringUtilities::GetSha1HashWithLength(text, 40);
        forward.insert_or_assign(DirectedKey {key, false}, text);
        backward.insert_or_assign(DirectedKey {key, true}, text);
        return key;
    }

    bool Lookup(const QByteArray &key, QString &text) const
    {
        auto it = find(forward, DirectedKey {key, false});
        if (it != forward.cend()) {
            text = it->second;
            return true;
        }
        it = find(backward, DirectedKey {key, true});
        if (it != backward.cend()) {
            text = it->second;
            return true;
        }
        return false;
    }

    bool Remove(const QByteArray &key)
    {
        const auto inForward = find(forward, DirectedKey {key, false});
        const auto inBackward = find(backward, DirectedKey {key, true});
        if (inForward == forward.cend() || inBackward == backward.cend())
            return false;
        forward.erase(inForward);
        backward.erase(inBackward);
        return true;
    }

    QList<QByteArray> GetAllAsciiKeys() const
    {
        QList<QByteArray> keys;
        for (const auto &entry : forward)
            keys.append(entry.first.bytes);
        return keys;
    }

    QList<QString> GetStrings() const
    {
        QList<QString> strings;
        for (const auto &entry : forward)
            strings.append(entry.second);
        return strings;
    }
};

struct Side
{
    ZARSysAsciiUnicodeMap map;
    Model model;
};

// Enough entries for the map's arrays to grow and shrink several times, few enough to compare
// everything after every operation.
constexpr qsizetype MaxEntries = 600;

QString describe(const QByteArray &key)
{
    return QString::fromLatin1(key.toHex());
}

QString yesNo(bool value)
{
    return value ? QStringLiteral("found") : QStringLiteral("not found");
}

void compareContents(const Side &side, const char *after)
{
    const QList<QByteArray> keys = side.map.GetAllAsciiKeys();
    const QList<QByteArray> expectedKeys = side.model.GetAllAsciiKeys();
    if (keys != expectedKeys) {
        Fuzz::fail("GetAllAsciiKeys differs from the reference",
                   QStringLiteral("after %1: %2 keys, expected %3")
                       .arg(QLatin1String(after))
                       .arg(keys.size())
                       .arg(expectedKeys.size()));
    }
    if (side.map.GetStrings() != side.model.GetStrings())
        Fuzz::fail("GetStrings differs from the reference", QLatin1String(after));
}

class Driver
{
public:
    explicit Driver(FuzzedDataProvider &data)
        : data(data)
    { }

    void Run()
    {
        while (data.remaining_bytes() > 0) {
            const int which = data.ConsumeIntegralInRange<int>(0, 1);
            Side &side = sides[which];
            Side &other = sides[1 - which];
            const char *operation = Step(side, other);
            compareContents(side, operation);
            compareContents(other, operation);
        }
    }

private:
    QString NewText() { return Fuzz::text(data, 48); }

    QString AnyText()
    {
        if (texts.isEmpty() || data.ConsumeBool())
            return NewText();
        return texts.at(data.ConsumeIntegralInRange<qsizetype>(0, texts.size() - 1));
    }

    QByteArray RawBytes(size_t maxBytes)
    {
        const std::string bytes = data.ConsumeRandomLengthString(maxBytes);
        return QByteArray(bytes.data(), qsizetype(bytes.size()));
    }

    // A key to look up or remove: a key made before (whether still held or not), whole or cut
    // from either end, lengthened, spoiled by one byte, empty, or any bytes.
    QByteArray AnyKey()
    {
        const int kind = data.ConsumeIntegralInRange<int>(0, 8);
        if (keys.isEmpty() || kind >= 7)
            return kind == 8 ? QByteArray() : RawBytes(48);
        const QByteArray key = keys.at(data.ConsumeIntegralInRange<qsizetype>(0, keys.size() - 1));
        const int length = data.ConsumeIntegralInRange<int>(0, 40);
        switch (kind) {
        case 0:
            return key;
        case 1:
            return key.left(length);
        case 2:
            return key.right(length);
        case 3:
            return key + RawBytes(8); // compared over its first 40 bytes from the start
        case 4:
            return RawBytes(8) + key; // and over its last 40 from the end
        case 5: {
            // One byte replaced: by another digit, an upper-case one, a byte above 127, ...
            QByteArray spoiled = key.left(std::max(length, 1));
            const qsizetype at = data.ConsumeIntegralInRange<qsizetype>(0, spoiled.size() - 1);
            spoiled[at] = char(data.ConsumeIntegral<unsigned char>());
            return data.ConsumeBool() ? spoiled
                                      : QByteArray(key.right(length)).replace(0, 1, "\x80");
        }
        default:
            return key.mid(data.ConsumeIntegralInRange<int>(0, 39), length);
        }
    }

    QByteArray Insert(Side &side, const QString &text)
    {
        const QByteArray key = side.map.Insert(text);
        const QByteArray expected = side.model.Insert(text);
        if (key != expected)
            Fuzz::fail("Insert gives another key than the digest of the text", text);
        texts.append(text);
        keys.append(key);
        return key;
    }

    void Lookup(const Side &side, const QByteArray &key)
    {
        const QString untouched = QStringLiteral("\u2603 untouched");
        QString text = untouched;
        QString expectedText = untouched;
        const bool found = side.map.Lookup(key, text);
        const bool expected = side.model.Lookup(key, expectedText);
        if (found != expected || text != expectedText) {
            Fuzz::fail("Lookup differs from the reference",
                       QStringLiteral("key %1: %2 '%3', expected %4 '%5'")
                           .arg(describe(key), yesNo(found), text, yesNo(expected), expectedText));
        }
    }

    const char *Step(Side &side, Side &other)
    {
        switch (data.ConsumeIntegralInRange<int>(0, 11)) {
        case 0:
            Insert(side, AnyText());
            return "Insert";
        case 1: {
            QList<QString> list;
            const int count = data.ConsumeIntegralInRange<int>(0, 6);
            for (int i = 0; i < count; ++i)
                list.append(AnyText());
            QList<QByteArray> expected;
            for (const QString &text : list)
                expected.append(side.model.Insert(text));
            if (side.map.Insert(list) != expected)
                Fuzz::fail("Insert of a list gives other keys than the digests");
            texts.append(list);
            keys.append(expected);
            return "Insert of a list";
        }
        case 2:
        case 3:
            Lookup(side, AnyKey());
            return "Lookup";
        case 4:
        case 5: {
            const QByteArray key = AnyKey();
            const bool removed = side.map.Remove(key);
            if (removed != side.model.Remove(key))
                Fuzz::fail("Remove differs from the reference", describe(key));
            // What is left must be found as the reference finds it, from either end.
            Lookup(side, key);
            return "Remove";
        }
        case 6:
            side.map.Clear();
            side.model = Model();
            return "Clear";
        case 7:
            // A copy shares the entries until one side changes.
            other = side;
            return "copy";
        case 8:
            other.map = std::move(side.map);
            other.model = std::move(side.model);
            side.model = Model(); // a map moved from is empty
            return "move";
        case 9:
            side.map.swap(other.map);
            std::swap(side.model, other.model);
            return "swap";
        case 10: {
            // Many entries at once, so that the map grows past its thresholds.
            const int count = data.ConsumeIntegralInRange<int>(0, 400);
            const QString seed = NewText();
            for (int i = 0; i < count && side.model.forward.size() < MaxEntries; ++i)
                Insert(side, seed + QString::number(i));
            return "bulk Insert";
        }
        default: {
            // Many removals by short keys, so that the map shrinks, and look-ups between them.
            const int count = data.ConsumeIntegralInRange<int>(0, 200);
            for (int i = 0; i < count && !keys.isEmpty(); ++i) {
                const QByteArray key =
                    keys.at(data.ConsumeIntegralInRange<qsizetype>(0, keys.size() - 1));
                const QByteArray shortKey = data.ConsumeBool() ? key.left(i % 4) : key.right(i % 4);
                if (side.map.Remove(shortKey) != side.model.Remove(shortKey))
                    Fuzz::fail("Remove differs from the reference", describe(shortKey));
                if (i % 8 == 0)
                    Lookup(side, key.left(i % 7));
            }
            return "bulk Remove";
        }
        }
    }

    FuzzedDataProvider &data;
    Side sides[2];
    QList<QString> texts;
    QList<QByteArray> keys;
};

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    Fuzz::start();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    FuzzedDataProvider data(bytes, size);
    Driver(data).Run();
    return 0;
}
