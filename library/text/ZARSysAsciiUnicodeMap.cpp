#include "ZARSysAsciiUnicodeMap.h"

#include "ZARSysAsciiUnicodeKey.h"
#include "ZARSysAsciiUnicodeMapData.h"

#include <utility>

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

ZARSysAsciiUnicodeMapData *ZARSysAsciiUnicodeMap::Writable()
{
    // A map that was moved from has no block; it starts a new one.
    if (!d)
        d = new ZARSysAsciiUnicodeMapData;
    return d.data(); // detaches
}

QByteArray ZARSysAsciiUnicodeMap::Insert(const QString &text)
{
    const ZARSysAsciiUnicodeKey::Packed key = ZARSysAsciiUnicodeKey::digestOf(text);
    ZARSysAsciiUnicodeMapData *const data = Writable();
    // The slots are fetched while the key is written out.
    data->Prefetch(key);
    QByteArray hex = ZARSysAsciiUnicodeKey::toHex(key);
    data->Insert(key, text);
    return hex;
}

QList<QByteArray> ZARSysAsciiUnicodeMap::Insert(const QList<QString> &texts)
{
    QList<QByteArray> keys;
    keys.reserve(texts.size());
    if (texts.isEmpty())
        return keys;
    ZARSysAsciiUnicodeMapData *const data = Writable();
    // Each text's slots are fetched while the next text is hashed.
    ZARSysAsciiUnicodeKey::Packed next = ZARSysAsciiUnicodeKey::digestOf(texts.first());
    for (qsizetype i = 0; i < texts.size(); ++i) {
        const ZARSysAsciiUnicodeKey::Packed key = next;
        data->Prefetch(key);
        keys.append(ZARSysAsciiUnicodeKey::toHex(key));
        if (i + 1 < texts.size())
            next = ZARSysAsciiUnicodeKey::digestOf(texts.at(i + 1));
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
    ZARSysAsciiUnicodeMapData *const data = Writable();
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
    data.forward.ForEach([&](std::uint32_t entry) {
        keys.append(ZARSysAsciiUnicodeKey::toHex(data.entries[entry].key));
    });
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
