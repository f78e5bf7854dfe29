#ifndef ZARSYSASCIIUNICODEMAPDATA_H
#define ZARSYSASCIIUNICODEMAPDATA_H

#include "ZARSysAsciiUnicodeMapIndex.h"

#include <QByteArray>
#include <QSharedData>
#include <QString>

#include <cstdint>
#include <vector>

// The shared record of a map: its entries and the two orders of them, by their keys read from
// the start and by their keys read from the end, which it keeps in step.
class ZARSysAsciiUnicodeMapData : public QSharedData
{
public:
    using Index = ZARSysAsciiUnicodeMapIndex;
    using Entry = Index::Entry;
    using EntryStore = Index::EntryStore;
    using PackedKey = Index::PackedKey;
    using Position = Index::Position;
    using Probe = Index::Probe;

    // Records text under key in both orders, replacing the text an entry of the key had.
    void Insert(const PackedKey &key, const QString &text);
    // Asks the processor to fetch where Insert() of key will look. Defined here, so that the
    // map's Insert() inlines it with the index's Prefetch(): only the heads of the two probes
    // are then worked out.
    void Prefetch(const PackedKey &key) const
    {
        forward.Prefetch(Index::FullProbe(key));
        backward.Prefetch(Index::FullProbe(backward.Ordered(key)));
    }
    // The entry that an abbreviated key finds in each order, as Lookup() finds it.
    bool FindForward(const QByteArray &key, Position &position) const;
    bool FindBackward(const QByteArray &key, Position &position) const;
    void EraseForward(const Position &position);
    void EraseBackward(const Position &position);

    EntryStore entries; // in no order; freed ones are reused
    std::vector<std::uint32_t> freeEntries;
    Index forward {false};
    Index backward {true};

private:
    std::uint32_t NewEntry();
    void Release(std::uint32_t entry);
};

#endif // ZARSYSASCIIUNICODEMAPDATA_H
