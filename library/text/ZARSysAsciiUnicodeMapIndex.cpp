#include "ZARSysAsciiUnicodeMapIndex.h"

#include <algorithm>
#include <cstring>

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
// Beyond this the array grows no more, and the runs grow longer instead (2^30 home slots take
// 8 GiB).
constexpr int MaxHomeBits = 30;

int sign(int value)
{
    return (value > 0) - (value < 0);
}

template<typename T>
int compareNumbers(T a, T b)
{
    return (a > b) - (a < b);
}

} // namespace

// How the key of slot compares with the probe over the probe's digits.
inline int ZARSysAsciiUnicodeMapIndex::Compare(const Slot &slot, const Probe &probe,
                                               const EntryStore &entries) const
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
int ZARSysAsciiUnicodeMapIndex::CompareTail(const Slot &slot, const Probe &probe,
                                            const EntryStore &entries) const
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

std::size_t ZARSysAsciiUnicodeMapIndex::Next(std::size_t i, bool isOccupied) const
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

void ZARSysAsciiUnicodeMapIndex::Mark(std::size_t i, bool isOccupied)
{
    const std::uint64_t bit = std::uint64_t(1) << (i % 64);
    if (isOccupied)
        occupied[i / 64] |= bit;
    else
        occupied[i / 64] &= ~bit;
}

void ZARSysAsciiUnicodeMapIndex::AppendEmpty()
{
    if (table.size() % 64 == 0)
        occupied.push_back(0);
    table.push_back(EmptySlot);
}

// Long for a search, and kept so: the branch-free look at the window around the home, the
// gallop and the bisection are tuned together, and their speed is benchmarked.
ZARSysAsciiUnicodeMapIndex::Position
ZARSysAsciiUnicodeMapIndex::Find(const Probe &probe, const EntryStore &entries) const
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

void ZARSysAsciiUnicodeMapIndex::InsertAt(const Position &position, std::uint32_t head,
                                          std::uint32_t entry)
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

void ZARSysAsciiUnicodeMapIndex::EraseAt(const Position &position)
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

void ZARSysAsciiUnicodeMapIndex::Rebuild(int newHomeBits)
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
