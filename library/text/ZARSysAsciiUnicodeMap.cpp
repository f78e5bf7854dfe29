#include "ZARSysAsciiUnicodeMap.h"

#include "ZARSysAsciiUnicodeMapData.h"

#include <QCryptographicHash>
#include <QtEndian>

#include <algorithm>
#include <cstring>
#include <limits>
#include <stdexcept>
#include <utility>

namespace AsciiUnicodeMap {
namespace {

struct Load
{
    std::size_t numerator;
    std::size_t denominator;
};
// An index doubles when more than MaxLoad of its home slots are taken, and is rebuilt half as
// full as that when fewer than MinLoad are: far apart, so that no run of inserts and removals
// rebuilds it again and again. Up to about four fifths full, runs stay a few slots long.
constexpr Load MaxLoad {13, 16};
constexpr Load MinLoad {1, 16};
constexpr int MinHomeBits = 3;
// How many slots from the home Find() looks at in one go.
constexpr std::size_t Window = 8;
// Beyond this the array grows no more, and the runs grow longer instead (2^30 home slots take
// 8 GiB).
constexpr int MaxHomeBits = 30;

constexpr std::uint8_t NotADigit = 0xff;

struct DigitTable
{
    std::uint8_t value[256];
    constexpr DigitTable()
        : value()
    {
        for (int i = 0; i < 256; ++i)
            value[i] = NotADigit;
        for (int i = 0; i < 10; ++i)
            value['0' + i] = std::uint8_t(i);
        for (int i = 0; i < 6; ++i)
            value['a' + i] = std::uint8_t(10 + i);
    }
};
constexpr DigitTable Digits;

std::uint32_t headOf(const PackedKey &packed)
{
    return qFromBigEndian<std::uint32_t>(packed.data());
}

std::uint8_t swapNibbles(std::uint8_t byte)
{
    return std::uint8_t((byte << 4) | (byte >> 4));
}

// A probe of the first min(size, 40) bytes of key (fromEnd false) or of its last ones, read
// backwards (fromEnd true). False when one of them is not a lower-case hex digit: such a key
// agrees with no stored key in that order.
bool makeProbe(const QByteArray &key, bool fromEnd, Probe &probe)
{
    const int digits = int(std::min<qsizetype>(key.size(), 40));
    probe.packed.fill(0);
    probe.digits = digits;
    probe.head = 0;
    if (digits == 0)
        return true;
    const auto *bytes = reinterpret_cast<const std::uint8_t *>(key.constData());
    const qsizetype first = fromEnd ? key.size() - 1 : 0;
    const qsizetype step = fromEnd ? -1 : 1;
    // Digits are below 16, so any high bit in the values read marks a byte that is none.
    std::uint8_t values = 0;
    for (int i = 0; i < digits; i += 2) {
        const std::uint8_t high = Digits.value[bytes[first + i * step]];
        const std::uint8_t low = i + 1 < digits ? Digits.value[bytes[first + (i + 1) * step]] : 0;
        values |= high | low;
        probe.packed[std::size_t(i / 2)] = std::uint8_t((high << 4) | (low & 0xf));
    }
    if (values >= 16)
        return false;
    probe.head = headOf(probe.packed);
    return true;
}

Probe fullProbe(const PackedKey &ordered)
{
    Probe probe;
    probe.packed = ordered;
    probe.digits = 40;
    probe.head = headOf(ordered);
    return probe;
}

int sign(int value)
{
    return (value > 0) - (value < 0);
}

template<typename T>
int compareNumbers(T a, T b)
{
    return (a > b) - (a < b);
}

struct HexTable
{
    char pair[256][2];
    constexpr HexTable()
        : pair()
    {
        constexpr char hex[] = "0123456789abcdef";
        for (int i = 0; i < 256; ++i) {
            pair[i][0] = hex[i >> 4];
            pair[i][1] = hex[i & 0xf];
        }
    }
};
constexpr HexTable Hex;

QByteArray toHex(const PackedKey &key)
{
    QByteArray text(40, Qt::Uninitialized);
    char *out = text.data();
    for (const std::uint8_t byte : key) {
        std::memcpy(out, Hex.pair[byte], 2);
        out += 2;
    }
    return text;
}

// Writes the UTF-8 form of text to out, which has room for three bytes per code unit, and
// returns its end; or nullptr at a lone surrogate, whose replacement is left to QString.
char *encodeUtf8(const QString &text, char *out)
{
    const auto *in = reinterpret_cast<const char16_t *>(text.constData());
    const char16_t *const end = in + text.size();
    while (in != end) {
        // Four ASCII code units at a time, for the runs of ASCII that most texts are.
        std::uint64_t units;
        while (end - in >= 4
               && (std::memcpy(&units, in, 8), (units & 0xff80ff80ff80ff80ULL) == 0)) {
#if Q_BYTE_ORDER == Q_LITTLE_ENDIAN
            const auto bytes =
                std::uint32_t((units & 0xff) | ((units >> 8) & 0xff00) | ((units >> 16) & 0xff0000)
                              | ((units >> 24) & 0xff000000));
            std::memcpy(out, &bytes, 4);
#else
            for (int i = 0; i < 4; ++i)
                out[i] = char(in[i]);
#endif
            in += 4;
            out += 4;
        }
        if (in == end)
            break;
        const char32_t c = *in++;
        if (!QChar::isSurrogate(c)) {
            // One to three bytes, written without branching on how many: in a text that mixes
            // ASCII and other characters, such a branch goes either way.
            const bool two = c >= 0x80;
            const bool three = c >= 0x800;
            out[0] = char(three ? 0xe0 | (c >> 12) : two ? 0xc0 | (c >> 6) : c);
            out[1] = char(0x80 | ((three ? c >> 6 : c) & 0x3f));
            out[2] = char(0x80 | (c & 0x3f));
            out += 1 + int(two) + int(three);
        } else if (QChar::isHighSurrogate(c) && in != end && QChar::isLowSurrogate(*in)) {
            const char32_t point = QChar::surrogateToUcs4(char16_t(c), *in++);
            *out++ = char(0xf0 | (point >> 18));
            *out++ = char(0x80 | ((point >> 12) & 0x3f));
            *out++ = char(0x80 | ((point >> 6) & 0x3f));
            *out++ = char(0x80 | (point & 0x3f));
        } else {
            return nullptr;
        }
    }
    return out;
}

// The SHA-1 digest of the UTF-8 form of text, as QString::toUtf8() gives it. Short texts of
// well-formed UTF-16 are encoded on the stack and hashed by a hasher kept per thread: the
// allocations of the plain way cost more than the hashing of a short text.
PackedKey digestOf(const QString &text)
{
    thread_local QCryptographicHash perThread(QCryptographicHash::Sha1);
    QCryptographicHash &hasher = perThread; // looked up once
    hasher.reset();

    constexpr qsizetype StackBytes = 768;
    char utf8[StackBytes];
    const char *const end = text.size() <= StackBytes / 3 ? encodeUtf8(text, utf8) : nullptr;
    if (end)
        hasher.addData(QByteArrayView(utf8, end - utf8));
    else
        hasher.addData(text.toUtf8());

    PackedKey key;
    const QByteArrayView digest = hasher.resultView();
    std::memcpy(key.data(), digest.data(), key.size());
    return key;
}

} // namespace

PackedKey KeyIndex::Ordered(const PackedKey &key) const
{
    if (!fromEnd)
        return key;
    PackedKey reversed;
    for (std::size_t i = 0; i < reversed.size(); ++i)
        reversed[i] = swapNibbles(key[key.size() - 1 - i]);
    return reversed;
}

std::uint32_t KeyIndex::Head(const PackedKey &key) const
{
    if (!fromEnd)
        return headOf(key);
    // The last 8 digits backwards: the last 4 bytes in reverse, each with its nibbles swapped.
    const std::uint32_t x = qFromLittleEndian<std::uint32_t>(key.data() + 16);
    return ((x & 0x0f0f0f0fU) << 4) | ((x >> 4) & 0x0f0f0f0fU);
}

// How the key of slot compares with the probe over the probe's digits.
inline int KeyIndex::Compare(const Slot &slot, const Probe &probe, const EntryStore &entries) const
{
    if (probe.digits < HeadDigits) {
        if (probe.digits == 0)
            return 0;
        const int shift = 32 - 4 * probe.digits;
        return compareNumbers(slot.head >> shift, probe.head >> shift);
    }
    if (slot.head != probe.head)
        return compareNumbers(slot.head, probe.head);
    return probe.digits == HeadDigits ? 0 : CompareTail(slot, probe, entries);
}

// Compare() past the digits of the heads, which are equal.
int KeyIndex::CompareTail(const Slot &slot, const Probe &probe, const EntryStore &entries) const
{
    const PackedKey key = Ordered(entries[slot.entry].key);
    const std::size_t bytes = std::size_t(probe.digits / 2);
    constexpr std::size_t headBytes = HeadDigits / 2;
    const int tail =
        std::memcmp(key.data() + headBytes, probe.packed.data() + headBytes, bytes - headBytes);
    if (tail != 0 || probe.digits % 2 == 0)
        return sign(tail);
    return compareNumbers(key[bytes] >> 4, probe.packed[bytes] >> 4);
}

std::size_t KeyIndex::Next(std::size_t i, bool isOccupied) const
{
    const std::size_t size = table.size();
    while (i < size) {
        const std::uint64_t word = isOccupied ? occupied[i / 64] : ~occupied[i / 64];
        if ((word >> (i % 64)) != 0)
            return std::min(size, i + std::size_t(qCountTrailingZeroBits(word >> (i % 64))));
        i = (i / 64 + 1) * 64;
    }
    return size;
}

void KeyIndex::Mark(std::size_t i, bool isOccupied)
{
    const std::uint64_t bit = std::uint64_t(1) << (i % 64);
    if (isOccupied)
        occupied[i / 64] |= bit;
    else
        occupied[i / 64] &= ~bit;
}

void KeyIndex::AppendEmpty()
{
    if (table.size() % 64 == 0)
        occupied.push_back(0);
    table.push_back(EmptySlot);
}

Position KeyIndex::Find(const Probe &probe, const EntryStore &entries) const
{
    Position position;
    const std::size_t size = table.size();
    if (size == 0)
        return position;
    // From the probe's home on come keys below the probe, then keys not below it and empty
    // slots in any mix. Nearly always the first of these is within a few slots of the home;
    // failing that, gallop ahead and bisect, so that a long run costs the logarithm of its
    // length.
    const std::size_t home = Home(probe.head);
    if (probe.digits >= HeadDigits && home + Window <= size) {
        // The common case without a branch to mispredict: the heads around the home differ
        // from the probe's, so the probe goes after the ones below it, and agrees with none.
        // (Empty slots have the largest head, and none after an empty slot can agree.)
        const Slot *const window = table.data() + home;
        std::size_t below = 0;
        bool equal = false;
        for (std::size_t i = 0; i < Window; ++i) {
            below += window[i].head < probe.head;
            equal |= window[i].head == probe.head;
        }
        if (!equal && below < Window) {
            position.slot = position.match = home + below;
            return position;
        }
    }
    const auto below = [&](std::size_t i) {
        return table[i].entry != Empty && Compare(table[i], probe, entries) < 0;
    };
    std::size_t low = home; // [home, low) is below the probe
    std::size_t high = size; // nothing in [high, size) is
    for (int step = 0; step < 4 && low < high; ++step) {
        if (!below(low))
            high = low;
        else
            ++low;
    }
    for (std::size_t stride = 4; low < high; stride *= 2) {
        const std::size_t at = std::min(high - 1, low + stride - 1);
        if (!below(at)) {
            high = at;
            break;
        }
        low = at + 1;
    }
    while (low < high) {
        const std::size_t middle = low + (high - low) / 2;
        if (below(middle))
            low = middle + 1;
        else
            high = middle;
    }
    position.slot = low;
    position.match = low < size && table[low].entry == Empty ? Next(low, true) : low;
    position.found = position.match < size && Compare(table[position.match], probe, entries) == 0;
    return position;
}

void KeyIndex::Prefetch(const Probe &probe) const
{
#if defined(__GNUC__) || defined(__clang__)
    // Both cache lines that the window from the home may span.
    if (!table.empty()) {
        const Slot *const home = table.data() + Home(probe.head);
        __builtin_prefetch(home);
        __builtin_prefetch(home + Window - 1);
    }
#else
    Q_UNUSED(probe);
#endif
}

void KeyIndex::InsertAt(const Position &position, std::uint32_t head, std::uint32_t entry)
{
    std::size_t at = position.slot;
    if (table.empty()) {
        Rebuild(MinHomeBits);
        at = Home(head);
    }
    if (at == table.size())
        AppendEmpty();
    if (table[at].entry != Empty) {
        // Make room by moving the rest of the run one slot on.
        const std::size_t gap = Next(at, false);
        if (gap == table.size())
            AppendEmpty();
        std::copy_backward(table.begin() + std::ptrdiff_t(at), table.begin() + std::ptrdiff_t(gap),
                           table.begin() + std::ptrdiff_t(gap) + 1);
        Mark(gap, true);
    } else {
        Mark(at, true);
    }
    table[at] = Slot {head, entry};
    ++count;
    if (count * MaxLoad.denominator > (MaxLoad.numerator << homeBits) && homeBits < MaxHomeBits)
        Rebuild(homeBits + 1);
}

void KeyIndex::EraseAt(const Position &position)
{
    // Close the gap with the rest of the run, as far as its keys may move towards their homes.
    std::size_t hole = position.match;
    for (std::size_t next = hole + 1;
         next < table.size() && table[next].entry != Empty && Home(table[next].head) <= hole;
         ++next) {
        table[hole] = table[next];
        hole = next;
    }
    table[hole] = EmptySlot;
    Mark(hole, false);
    --count;
    if (count == 0) {
        // Give everything back: an empty index holds nothing.
        homeBits = 0;
        table = {};
        occupied = {};
    } else if (homeBits > MinHomeBits
               && count * MinLoad.denominator < (MinLoad.numerator << homeBits)) {
        int newHomeBits = MinHomeBits;
        while (count * MaxLoad.denominator > (MaxLoad.numerator << newHomeBits) / 2)
            ++newHomeBits;
        Rebuild(newHomeBits);
    }
}

void KeyIndex::Rebuild(int newHomeBits)
{
    const std::vector<Slot> old = std::move(table);
    homeBits = newHomeBits;
    const std::size_t homes = std::size_t(1) << homeBits;
    // Room for a run that spills past the last home, without doubling the array for it.
    table.reserve(homes + homes / 64 + 8);
    table.assign(homes, EmptySlot);
    occupied.assign((homes + 63) / 64, 0);
    // The old slots hold the keys in order: each goes to its home or right after the last.
    std::size_t next = 0;
    for (const Slot &slot : old) {
        if (slot.entry == Empty)
            continue;
        const std::size_t at = std::max(Home(slot.head), next);
        if (at == table.size())
            AppendEmpty();
        table[at] = slot;
        Mark(at, true);
        next = at + 1;
    }
}

} // namespace AsciiUnicodeMap

std::uint32_t ZARSysAsciiUnicodeMapData::NewEntry()
{
    if (!freeEntries.empty()) {
        const std::uint32_t entry = freeEntries.back();
        freeEntries.pop_back();
        return entry;
    }
    if (entries.Size() >= std::numeric_limits<std::uint32_t>::max())
        throw std::length_error("ZARSysAsciiUnicodeMap: too many entries");
    return entries.Append();
}

void ZARSysAsciiUnicodeMapData::Release(std::uint32_t entry)
{
    if (forward.Size() == 0 && backward.Size() == 0) {
        entries = EntryStore();
        freeEntries = {};
        return;
    }
    entries[entry].text = QString();
    freeEntries.push_back(entry);
}

void ZARSysAsciiUnicodeMapData::Prefetch(const PackedKey &key) const
{
    forward.Prefetch(AsciiUnicodeMap::fullProbe(key));
    backward.Prefetch(AsciiUnicodeMap::fullProbe(backward.Ordered(key)));
}

void ZARSysAsciiUnicodeMapData::Insert(const PackedKey &key, const QString &text)
{
    using AsciiUnicodeMap::fullProbe;
    const Position inForward = forward.Find(fullProbe(key), entries);
    const Position inBackward = backward.Find(fullProbe(backward.Ordered(key)), entries);
    std::uint32_t entry;
    if (inForward.found)
        entry = forward.EntryAt(inForward);
    else if (inBackward.found)
        entry = backward.EntryAt(inBackward);
    else
        entry = NewEntry();

    Entry &record = entries[entry];
    record.key = key;
    record.text = text;
    if (!inForward.found) {
        forward.InsertAt(inForward, forward.Head(key), entry);
        record.inForward = true;
    }
    if (!inBackward.found) {
        backward.InsertAt(inBackward, backward.Head(key), entry);
        record.inBackward = true;
    }
}

bool ZARSysAsciiUnicodeMapData::FindForward(const QByteArray &key, Position &position) const
{
    Probe probe;
    if (!AsciiUnicodeMap::makeProbe(key, false, probe))
        return false;
    position = forward.Find(probe, entries);
    return position.found;
}

bool ZARSysAsciiUnicodeMapData::FindBackward(const QByteArray &key, Position &position) const
{
    Probe probe;
    if (!AsciiUnicodeMap::makeProbe(key, true, probe))
        return false;
    position = backward.Find(probe, entries);
    return position.found;
}

void ZARSysAsciiUnicodeMapData::EraseForward(const Position &position)
{
    const std::uint32_t entry = forward.EntryAt(position);
    forward.EraseAt(position);
    entries[entry].inForward = false;
    if (!entries[entry].inBackward)
        Release(entry);
}

void ZARSysAsciiUnicodeMapData::EraseBackward(const Position &position)
{
    const std::uint32_t entry = backward.EntryAt(position);
    backward.EraseAt(position);
    entries[entry].inBackward = false;
    if (!entries[entry].inForward)
        Release(entry);
}

ZARSysAsciiUnicodeMap::ZARSysAsciiUnicodeMap()
    : d(new ZARSysAsciiUnicodeMapData)
{ }

ZARSysAsciiUnicodeMap::ZARSysAsciiUnicodeMap(const ZARSysAsciiUnicodeMap &other) = default;
ZARSysAsciiUnicodeMap::ZARSysAsciiUnicodeMap(ZARSysAsciiUnicodeMap &&other) noexcept = default;
ZARSysAsciiUnicodeMap &
ZARSysAsciiUnicodeMap::operator=(const ZARSysAsciiUnicodeMap &other) = default;
ZARSysAsciiUnicodeMap &
ZARSysAsciiUnicodeMap::operator=(ZARSysAsciiUnicodeMap &&other) noexcept = default;
ZARSysAsciiUnicodeMap::~ZARSysAsciiUnicodeMap() = default;

ZARSysAsciiUnicodeMapData *ZARSysAsciiUnicodeMap::writable()
{
    // A map that was moved from has no block; it starts a new one.
    if (!d)
        d = new ZARSysAsciiUnicodeMapData;
    return d.data(); // detaches
}

QByteArray ZARSysAsciiUnicodeMap::Insert(const QString &text)
{
    const AsciiUnicodeMap::PackedKey key = AsciiUnicodeMap::digestOf(text);
    ZARSysAsciiUnicodeMapData *const data = writable();
    // The slots are fetched while the key is written out.
    data->Prefetch(key);
    QByteArray hex = AsciiUnicodeMap::toHex(key);
    data->Insert(key, text);
    return hex;
}

QList<QByteArray> ZARSysAsciiUnicodeMap::Insert(const QList<QString> &texts)
{
    QList<QByteArray> keys;
    keys.reserve(texts.size());
    if (texts.isEmpty())
        return keys;
    ZARSysAsciiUnicodeMapData *const data = writable();
    // Each text's slots are fetched while the next text is hashed.
    AsciiUnicodeMap::PackedKey next = AsciiUnicodeMap::digestOf(texts.first());
    for (qsizetype i = 0; i < texts.size(); ++i) {
        const AsciiUnicodeMap::PackedKey key = next;
        data->Prefetch(key);
        keys.append(AsciiUnicodeMap::toHex(key));
        if (i + 1 < texts.size())
            next = AsciiUnicodeMap::digestOf(texts.at(i + 1));
        data->Insert(key, texts.at(i));
    }
    return keys;
}

bool ZARSysAsciiUnicodeMap::Lookup(const QByteArray &key, QString &text) const
{
    if (!d)
        return false;
    ZARSysAsciiUnicodeMapData::Position position;
    if (d->FindForward(key, position)) {
        text = d->entries[d->forward.EntryAt(position)].text;
        return true;
    }
    if (d->FindBackward(key, position)) {
        text = d->entries[d->backward.EntryAt(position)].text;
        return true;
    }
    return false;
}

bool ZARSysAsciiUnicodeMap::Remove(const QByteArray &key)
{
    // Searched before detaching: a miss leaves a shared block shared. The copy made by
    // detaching is laid out as the original, so the positions found hold in it.
    if (!d)
        return false;
    ZARSysAsciiUnicodeMapData::Position forward;
    ZARSysAsciiUnicodeMapData::Position backward;
    if (!std::as_const(d)->FindForward(key, forward)
        || !std::as_const(d)->FindBackward(key, backward))
        return false;
    ZARSysAsciiUnicodeMapData *const data = writable();
    data->EraseForward(forward);
    data->EraseBackward(backward);
    return true;
}

void ZARSysAsciiUnicodeMap::Clear()
{
    // A new empty block: cheaper than detaching a shared one only to empty it.
    d = new ZARSysAsciiUnicodeMapData;
}

QList<QByteArray> ZARSysAsciiUnicodeMap::GetAllAsciiKeys() const
{
    QList<QByteArray> keys;
    if (!d)
        return keys;
    const ZARSysAsciiUnicodeMapData &data = *d;
    keys.reserve(qsizetype(data.forward.Size()));
    data.forward.ForEach(
        [&](std::uint32_t entry) { keys.append(AsciiUnicodeMap::toHex(data.entries[entry].key)); });
    return keys;
}

QList<QString> ZARSysAsciiUnicodeMap::GetStrings() const
{
    QList<QString> strings;
    if (!d)
        return strings;
    const ZARSysAsciiUnicodeMapData &data = *d;
    strings.reserve(qsizetype(data.forward.Size()));
    data.forward.ForEach([&](std::uint32_t entry) { strings.append(data.entries[entry].text); });
    return strings;
}
