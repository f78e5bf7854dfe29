#ifndef ZARSYSASCIIUNICODEMAPDATA_H
#define ZARSYSASCIIUNICODEMAPDATA_H

#include <QByteArray>
#include <QSharedData>
#include <QString>

#include <array>
#include <cstdint>
#include <vector>

// The entries of a map, kept in two orders: by their keys read from the start and by their
// keys read from the end, which is what lets an abbreviated key find an entry by either end.
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

namespace AsciiUnicodeMap {

using PackedKey = std::array<std::uint8_t, 20>;

// One recorded text. An entry is in one order, the other or both: removal by an abbreviated key
// may take one entry out of one order and another out of the other.
struct Entry
{
    PackedKey key {}; // read from the start
    bool inForward = false;
    bool inBackward = false;
    QString text;
};

// The entries, in blocks of a fixed size, so that adding one never moves the others.
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
constexpr int HeadDigits = 8;

// A key to search for, as digits in the order's reading direction: up to 40 digits, packed like
// a stored key (the unused nibbles zero), and its first HeadDigits digits as one number.
struct Probe
{
    PackedKey packed {};
    int digits = 0;
    std::uint32_t head = 0;
};

// Where a search ended: the first slot from which on nothing is below the probe (where the probe
// would be inserted), and whether an entry there or after agrees with the probe, the first of
// which is then at match.
struct Position
{
    std::size_t slot = 0;
    std::size_t match = 0;
    bool found = false;
};

// One order of the entries: a sorted array with gaps. Every key has a home slot, its leading
// bits scaled to the array, and sits at its home or, when others got there first, in the run of
// occupied slots that follows it; the keys along the array ascend. Keys are digests, spread
// evenly, so a key is nearly always found within a few slots of its home, at one cache line, and
// inserting moves only the rest of its run. The array is kept at most 13/16 full, doubling as it
// fills and rebuilt smaller when it empties; an empty index holds nothing.
//
// So that a key is always found from its home: no slot between a key's home and its own slot is
// empty. Hence everything after an empty slot lies beyond any key whose home is before it.
class KeyIndex
{
public:
    struct Slot
    {
        std::uint32_t head; // the first HeadDigits digits of the key in this order
        std::uint32_t entry; // Empty for an empty slot
    };
    static constexpr std::uint32_t Empty = ~std::uint32_t(0);
    // An empty slot's head is the largest there is, so that no probe's head is below it.
    static constexpr Slot EmptySlot {~std::uint32_t(0), Empty};

    explicit KeyIndex(bool fromEnd)
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

} // namespace AsciiUnicodeMap

class ZARSysAsciiUnicodeMapData : public QSharedData
{
public:
    using Entry = AsciiUnicodeMap::Entry;
    using EntryStore = AsciiUnicodeMap::EntryStore;
    using KeyIndex = AsciiUnicodeMap::KeyIndex;
    using PackedKey = AsciiUnicodeMap::PackedKey;
    using Position = AsciiUnicodeMap::Position;
    using Probe = AsciiUnicodeMap::Probe;

    // Records text under key in both orders, replacing the text an entry of the key had.
    void Insert(const PackedKey &key, const QString &text);
    // Asks the processor to fetch where Insert() of key will look.
    void Prefetch(const PackedKey &key) const;
    // The entry that an abbreviated key finds in each order, as Lookup() finds it.
    bool FindForward(const QByteArray &key, Position &position) const;
    bool FindBackward(const QByteArray &key, Position &position) const;
    void EraseForward(const Position &position);
    void EraseBackward(const Position &position);

    EntryStore entries; // in no order; freed ones are reused
    std::vector<std::uint32_t> freeEntries;
    KeyIndex forward {false};
    KeyIndex backward {true};

private:
    std::uint32_t NewEntry();
    void Release(std::uint32_t entry);
};

#endif // ZARSYSASCIIUNICODEMAPDATA_H
