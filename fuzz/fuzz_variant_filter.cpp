// ZARSysVariantFilter read from arbitrary bytes: never a crash, and a filter that was read
// writes the same bytes once written and read back.

#include "FuzzCommon.h"

#include <ZARSysException.h>
#include <ZARSysVariantFilter.h>

#include <QDataStream>

namespace {

QByteArray written(const ZARSysVariantFilter &filter, int version)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(version);
    stream << filter;
    return bytes;
}

bool read(const QByteArray &bytes, int version, ZARSysVariantFilter &filter)
{
    QDataStream stream(bytes);
    stream.setVersion(version);
    try {
        stream >> filter;
    } catch (const ZARSysException &) {
        return false;
    }
    return stream.status() == QDataStream::Ok;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    Fuzz::start();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    if (size < 1)
        return 0;
    // Streams of Qt 6 versions: older ones are read by Qt's own readers, which trust what
    // the data claims.
    static const int versions[] = {QDataStream::Qt_6_0, QDataStream::Qt_6_4};
    const int version = versions[bytes[0] % 2];
    const QByteArray data =
        QByteArray::fromRawData(reinterpret_cast<const char *>(bytes + 1), qsizetype(size - 1));

    ZARSysVariantFilter filter;
    if (!read(data, version, filter))
        return 0;
    (void)filter.IsValid();
    (void)filter.TestValue(QVariant(1.5));
    (void)filter.TestValue(QVariant(QStringLiteral("12")));

    const QByteArray first = written(filter, version);
    ZARSysVariantFilter again;
    if (!read(first, version, again))
        Fuzz::fail("a filter that was written does not read back");
    // Read back, it writes the same bytes. Qt's readers normalise some values (an invalid
    // date-time keeps no offset from UTC), so the first round may change them; the form it
    // gives must then be stable. Equality would not do: a NaN anywhere in a filter makes it
    // unequal to any copy of itself.
    const QByteArray second = written(again, version);
    if (second != first) {
        ZARSysVariantFilter third;
        if (!read(second, version, third) || written(third, version) != second)
            Fuzz::fail("a filter read back does not write the same bytes");
    }
    return 0;
}
