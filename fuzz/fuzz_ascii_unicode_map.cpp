// ZARSysAsciiUnicodeMap driven by the input: inserts, look-ups by full and abbreviated keys,
// removals and copies, checked against what the map promises.

#include "FuzzCommon.h"

#include <ZARSysAsciiUnicodeMap.h>

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    Fuzz::start();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    FuzzedDataProvider data(bytes, size);
    ZARSysAsciiUnicodeMap map;
    ZARSysAsciiUnicodeMap copy;
    QList<QByteArray> keys;
    // An abbreviated key may remove different entries from the two orders the map keeps, after
    // which they disagree about the contents; the map's promises hold again after Clear().
    bool removed = false;
    while (data.remaining_bytes() > 0) {
        switch (data.ConsumeIntegralInRange<int>(0, 5)) {
        case 0: {
            const QString text = Fuzz::text(data, 64);
            const QByteArray key = map.Insert(text);
            QString found;
            if (!removed && (!map.Lookup(key, found) || found != text))
                Fuzz::fail("an inserted text is not found by its key", text);
            keys.append(key);
            break;
        }
        case 1: {
            const std::string key = data.ConsumeRandomLengthString(48);
            QString found;
            (void)map.Lookup(QByteArray(key.data(), qsizetype(key.size())), found);
            break;
        }
        case 2:
            if (!keys.isEmpty()) {
                const QByteArray key =
                    keys.at(data.ConsumeIntegralInRange<qsizetype>(0, keys.size() - 1));
                QString found;
                (void)map.Lookup(key.left(data.ConsumeIntegralInRange<int>(0, 40)), found);
            }
            break;
        case 3: {
            const std::string key = data.ConsumeRandomLengthString(48);
            removed |= map.Remove(QByteArray(key.data(), qsizetype(key.size())));
            break;
        }
        case 4:
            copy = map;
            break;
        case 5:
            (void)map.GetAllAsciiKeys();
            (void)map.GetStrings();
            if (data.ConsumeBool()) {
                map.Clear();
                removed = false;
            }
            break;
        }
    }
    (void)copy.GetStrings();
    return 0;
}
