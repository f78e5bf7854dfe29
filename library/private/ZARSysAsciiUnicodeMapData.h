#ifndef ZARSYSASCIIUNICODEMAPDATA_H
#define ZARSYSASCIIUNICODEMAPDATA_H

#include <QByteArray>
#include <QMap>
#include <QSharedData>
#include <QString>

#include <algorithm>

// A key and the end it is compared from. Two keys compare over the length of the shorter one
// only, so a key is equivalent to every longer key that begins with it (compared from the
// start) or ends with it (compared from the end): that is what makes abbreviated keys work.
// Among the keys stored, all 40 digits long, the order is a plain total order; an abbreviated
// key only ever searches.
struct DirectedAsciiKey
{
    QByteArray bytes;
    bool fromEnd = false;

    friend bool operator<(const DirectedAsciiKey &a, const DirectedAsciiKey &b)
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

class ZARSysAsciiUnicodeMapData : public QSharedData
{
public:
    using Map = QMap<DirectedAsciiKey, QString>;

    // The first entry equivalent to key, or end().
    static Map::const_iterator find(const Map &map, const DirectedAsciiKey &key)
    {
        const auto it = map.lowerBound(key);
        return it != map.cend() && !(key < it.key()) ? it : map.cend();
    }

    Map forward; // keys compared from the start
    Map backward; // the same keys, compared from the end
};

#endif // ZARSYSASCIIUNICODEMAPDATA_H
