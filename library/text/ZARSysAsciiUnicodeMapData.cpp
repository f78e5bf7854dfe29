#include "ZARSysAsciiUnicodeMapData.h"

#include <limits>
#include <stdexcept>

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

void ZARSysAsciiUnicodeMapData::Insert(const PackedKey &key, const QString &text)
{
    const Position inForward = forward.Find(Index::FullProbe(key), entries);
    const Position inBackward = backward.Find(Index::FullProbe(backward.Ordered(key)), entries);
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
    if (!Index::MakeProbe(key, false, probe))
        return false;
    position = forward.Find(probe, entries);
    return position.found;
}

bool ZARSysAsciiUnicodeMapData::FindBackward(const QByteArray &key, Position &position) const
{
    Probe probe;
    if (!Index::MakeProbe(key, true, probe))
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
