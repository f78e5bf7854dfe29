#ifndef ZARSYSASCIIUNICODEKEY_H
#define ZARSYSASCIIUNICODEKEY_H

#include <QByteArray>
#include <QString>

#include <array>
#include <cstdint>
#include <cstring>

// The keys of ZARSysAsciiUnicodeMap: the SHA-1 digest of a text's UTF-8 form. The map holds a
// key packed, as the raw digest: 40 lower-case hex digits, two to a byte with the first digit
// in the high nibble. Its text is those 40 digits.
namespace ZARSysAsciiUnicodeKey {

using Packed = std::array<std::uint8_t, 20>;

// The key of text: the SHA-1 digest of its UTF-8 form, as QString::toUtf8() gives it.
Packed digestOf(const QString &text);

// The two hex digits of every byte.
struct HexTable
{
    char pair[256][2];
    constexpr HexTable()
        : pair()
    {
        constexpr char hex[] = "0123456789abcdef";
        for (int i = 0; i < 256; ++i) {
            pair[i][0] = hex[i >> 4];
            pair[i][1] = hex[i & 0xf];
        }
    }
};
inline constexpr HexTable Hex;

// The text of key: its 40 lower-case hex digits. Defined here, so that the map's Insert(),
// whose speed is benchmarked, inlines it.
inline QByteArray toHex(const Packed &key)
{
    QByteArray text(40, Qt::Uninitialized);
    char *out = text.data();
    for (const std::uint8_t byte : key) {
        std::memcpy(out, Hex.pair[byte], 2);
        out += 2;
    }
    return text;
}

} // namespace ZARSysAsciiUnicodeKey

#endif // ZARSYSASCIIUNICODEKEY_H
