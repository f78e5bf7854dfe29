#include "ZARSysAsciiUnicodeMap.h"

#include "ZARSysStringUtilities.h"
#include "private/ZARSysAsciiUnicodeMapData.h"

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
    const QByteArray key = ZARSysStringUtilities::GetSha1HashWithLength(text, 40);
    ZARSysAsciiUnicodeMapData *const data = writable();
    data->forward.insert(DirectedAsciiKey {key, false}, text);
    data->backward.insert(DirectedAsciiKey {key, true}, text);
    return key;
}

QList<QByteArray> ZARSysAsciiUnicodeMap::Insert(const QList<QString> &texts)
{
    QList<QByteArray> keys;
    keys.reserve(texts.size());
    for (const QString &text : texts)
        keys.append(Insert(text));
    return keys;
}

bool ZARSysAsciiUnicodeMap::Lookup(const QByteArray &key, QString &text) const
{
    if (!d)
        return false;
    using Data = ZARSysAsciiUnicodeMapData;
    auto it = Data::find(d->forward, DirectedAsciiKey {key, false});
    if (it != d->forward.cend()) {
        text = it.value();
        return true;
    }
    it = Data::find(d->backward, DirectedAsciiKey {key, true});
    if (it != d->backward.cend()) {
        text = it.value();
        return true;
    }
    return false;
}

bool ZARSysAsciiUnicodeMap::Remove(const QByteArray &key)
{
    using Data = ZARSysAsciiUnicodeMapData;
    ZARSysAsciiUnicodeMapData *const data = writable();
    const auto forward = Data::find(data->forward, DirectedAsciiKey {key, false});
    const auto backward = Data::find(data->backward, DirectedAsciiKey {key, true});
    if (forward == data->forward.cend() || backward == data->backward.cend())
        return false;
    data->forward.erase(forward);
    data->backward.erase(backward);
    return true;
}

void ZARSysAsciiUnicodeMap::Clear()
{
    ZARSysAsciiUnicodeMapData *const data = writable();
    data->forward.clear();
    data->backward.clear();
}

QList<QByteArray> ZARSysAsciiUnicodeMap::GetAllAsciiKeys() const
{
    QList<QByteArray> keys;
    if (!d)
        return keys;
    keys.reserve(d->forward.size());
    for (auto it = d->forward.cbegin(); it != d->forward.cend(); ++it)
        keys.append(it.key().bytes);
    return keys;
}

QList<QString> ZARSysAsciiUnicodeMap::GetStrings() const
{
    return d ? d->forward.values() : QList<QString>();
}
