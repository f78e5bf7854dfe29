#ifndef ZARSYSASCIIUNICODEMAPINDEX_H
#define ZARSYSASCIIUNICODEMAPINDEX_H

#include "ZARSysAsciiUnicodeKey.h"

#include <QByteArray>
#include <QString>
#include <QtEndian>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

// One order of the entries of a map: by their keys read from the start, or by their keys read
// from the end. Keeping both is what lets an abbreviated key find an entry by either end.
//
// A key made by the map is always 40 lower-case hex digits, so it is held packed, two digits to
// a byte with the first digit in the high nibble (the raw SHA-1 digest). The digits '0'-'9' and
// 'a'-'f' are in the order of their values, so the order of the texts of such keys, byte by
// byte, is the order of the packed bytes; and the order from the end is that of the packing of
// the reversed digits.
//
// A looked-up key (any bytes, any length) is equivalent to a stored key when it agrees with it
// over the length of the shorter of the two, read from the start or from the end. A stored key
// never holds anything but lower-case hex digits, so a looked-up key with any other byte among
// the ones compared matches nothing in that order.
//
// The index is a sorted array with gaps. Every key has a home slot, its leading bits scaled to
// the array, and sits at its home or, when others got there first, in the run of occupied slots
// that follows it; the keys along the array ascend. Keys are digests, spread evenly, so a key is
// nearly always found within a few slots of its home, at one cache line, and inserting moves
// only the rest of its run. The array is kept at most 13/16 full, doubling as it fills and
// rebuilt smaller when it empties; an empty index holds nothing.
//
// So that a key is always found from its home: no slot between a key's home and its own slot is
// empty. Hence everything after an empty slot lies beyond any key whose home is before it.
class ZARSysAsciiUnicodeMapIndex
{
public:
    using PackedKey = ZARSysAsciiUnicodeKey::Packed;

    // One recorded text. An entry is in one order, the other or both: removal by an abbreviated
    // key may take one entry out of one order and another out of the other.
    struct Entry
    {
        PackedKey key {}; // read from the start
        bool inForward = false;
        bool inBackward = false;
        QString text;
    };

    // The entries, in blocks of a fixed size, so that adding one never moves the others. The
    // indexes hold the numbers of entries and read their keys here.
    class EntryStore
    {
    public:
        Entry &operator[](std::uint32_t i) { return blocks[i >> BlockBits][i & (BlockSize - 1)]; }
        const Entry &operator[](std::uint32_t i) const
        {
            return blocks[i >> BlockBits][i & (BlockSize - 1)];
        }
        std::size_t Size() const
        {
            return blocks.empty() ? 0 : ((blocks.size() - 1) << BlockBits) + blocks.back().size();
        }
        // Adds an empty entry and returns its index.
        std::uint32_t Append()
        {
            const std::size_t index = Size();
            if (blocks.empty() || blocks.back().size() == BlockSize) {
                blocks.emplace_back();
                blocks.back().reserve(BlockSize);
            }
            blocks.back().emplace_back();
            return std::uint32_t(index);
        }

    private:
        static constexpr int BlockBits = 10;
        static constexpr std::size_t BlockSize = std::size_t(1) << BlockBits;
        std::vector<std::vector<Entry>> blocks;
    };

    // How many leading digits of a key an index keeps beside the entry.
    static constexpr int HeadDigits = 8;

    // A key to search for, as digits in the order's reading direction: up to 40 digits, packed
    // like a stored key (the unused nibbles zero), and its first HeadDigits digits as one number.
    struct Probe
    {
        PackedKey packed {};
        int digits = 0;
        std::uint32_t head = 0;
    };

    // Where a search ended: the first slot from which on nothing is below the probe (where the
    // probe would be inserted), and whether an entry there or after agrees with the probe, the
    // first of which is then at match.
    struct Position
    {
        std::size_t slot = 0;
        std::size_t match = 0;
        bool found = false;
    };

    struct Slot
    {
        std::uint32_t head; // the first HeadDigits digits of the key in this order
        std::uint32_t entry; // Empty for an empty slot
    };
    static constexpr std::uint32_t Empty = ~std::uint32_t(0);
    // An empty slot's head is the largest there is, so that no probe's head is below it.
    static constexpr Slot EmptySlot {~std::uint32_t(0), Empty};

    // A probe of the first min(size, 40) bytes of key (fromEnd false) or of its last ones, read
    // backwards (fromEnd true). False when one of them is not a lower-case hex digit: such a
    // key agrees with no stored key in that order.
    static bool MakeProbe(const QByteArray &key, bool fromEnd, Probe &probe);
    // A probe of all 40 digits of a key already in the order's reading direction (Ordered()).
    static Probe FullProbe(const PackedKey &ordered);

    explicit ZARSysAsciiUnicodeMapIndex(bool fromEnd)
        : fromEnd(fromEnd)
    { }

    // The first entry that agrees with the probe over its digits, or where it would go.
    Position Find(const Probe &probe, const EntryStore &entries) const;
    // Asks the processor to fetch where Find() will look first.
    void Prefetch(const Probe &probe) const;
    // Inserts at position.slot, found by Find() with the key of entry.
    void InsertAt(const Position &position, std::uint32_t head, std::uint32_t entry);
    // Erases the entry at position.match.
    void EraseAt(const Position &position);
    std::uint32_t EntryAt(const Position &position) const { return table[position.match].entry; }
    std::size_t Size() const { return count; }

    template<typename Function>
    void ForEach(Function function) const
    {
        for (const Slot &slot : table) {
            if (slot.entry != Empty)
                function(slot.entry);
        }
    }

    // The key of the entry as this order reads it.
    PackedKey Ordered(const PackedKey &key) const;
    std::uint32_t Head(const PackedKey &key) const;

private:
    // How many slots from the home Find() looks at in one go.
    static constexpr std::size_t Window = 8;

    static constexpr std::uint8_t NotADigit = 0xff;
    // The value of every byte as a lower-case hex digit, NotADigit when it is none.
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
    static const DigitTable Digits;

    static std::uint32_t HeadOf(const PackedKey &packed)
    {
        return qFromBigEndian<std::uint32_t>(packed.data());
    }
    static std::uint8_t SwapNibbles(std::uint8_t byte)
    {
        return std::uint8_t((byte << 4) | (byte >> 4));
    }

    int Compare(const Slot &slot, const Probe &probe, const EntryStore &entries) const;
    int CompareTail(const Slot &slot, const Probe &probe, const EntryStore &entries) const;
    std::size_t Home(std::uint32_t head) const { return std::size_t(head >> (32 - homeBits)); }
    // The first occupied (or empty) slot at or after i, or table.size().
    std::size_t Next(std::size_t i, bool isOccupied) const;
    void Mark(std::size_t i, bool isOccupied);
    void AppendEmpty();
    void Rebuild(int newHomeBits);

    bool fromEnd;
    int homeBits = 0; // 2^homeBits home slots
    std::size_t count = 0;
    std::vector<Slot> table; // the home slots and the runs that spill past the last one
    std::vector<std::uint64_t> occupied; // a bit per slot
};

// How the orders read keys, and the prefetch, are defined here in the header, so that the
// insertions and look-ups of the record and of the map, in files of their own, inline them as
// they did when all of it was one file (their speed is benchmarked).

inline constexpr ZARSysAsciiUnicodeMapIndex::DigitTable ZARSysAsciiUnicodeMapIndex::Digits {};

inline bool ZARSysAsciiUnicodeMapIndex::MakeProbe(const QByteArray &key, bool fromEnd, Probe &probe)
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
    probe.head = HeadOf(probe.packed);
    return true;
}

inline ZARSysAsciiUnicodeMapIndex::Probe
ZARSysAsciiUnicodeMapIndex::FullProbe(const PackedKey &ordered)
{
    Probe probe;
    probe.packed = ordered;
    probe.digits = 40;
    probe.head = HeadOf(ordered);
    return probe;
}

inline ZARSysAsciiUnicodeMapIndex::PackedKey
ZARSysAsciiUnicodeMapIndex::Ordered(const PackedKey &key) const
{
    if (!fromEnd)
        return key;
    PackedKey reversed;
    for (std::size_t i = 0; i < reversed.size(); ++i)
        reversed[i] = SwapNibbles(key[key.size() - 1 - i]);
    return reversed;
}

inline std::uint32_t ZARSysAsciiUnicodeMapIndex::Head(const PackedKey &key) const
{
    if (!fromEnd)
        return HeadOf(key);
    // The last 8 digits backwards: the last 4 bytes in reverse, each with its nibbles swapped.
    const std::uint32_t x = qFromLittleEndian<std::uint32_t>(key.data() + 16);
    return ((x & 0x0f0f0f0fU) << 4) | ((x >> 4) & 0x0f0f0f0fU);
}

inline void ZARSysAsciiUnicodeMapIndex::Prefetch(const Probe &probe) const
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

#endif // ZARSYSASCIIUNICODEMAPINDEX_H
