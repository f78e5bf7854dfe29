#include "ZARSysAsciiUnicodeKey.h"

#include <QCryptographicHash>

#include <cstring>

namespace {

// Writes the UTF-8 form of text to out, which has room for three bytes per code unit, and
// returns its end; or nullptr at a lone surrogate, whose replacement is left to QString.
char *encodeUtf8(const QString &text, char *out)
{
    const auto *in = reinterpret_cast<const char16_t *>(text.constData());
    const char16_t *const end = in + text.size();
    while (in != end) {
        // Four ASCII code units at a time, for the runs of ASCII that most texts are.
        std::uint64_t units;
        while (end - in >= 4
               && (std::memcpy(&units, in, 8), (units & 0xff80ff80ff80ff80ULL) == 0)) {
#if Q_BYTE_ORDER == Q_LITTLE_ENDIAN
            const auto bytes =
                std::uint32_t((units & 0xff) | ((units >> 8) & 0xff00) | ((units >> 16) & 0xff0000)
                              | ((units >> 24) & 0xff000000));
            std::memcpy(out, &bytes, 4);
#else
            for (int i = 0; i < 4; ++i)
                out[i] = char(in[i]);
#endif
            in += 4;
            out += 4;
        }
        if (in == end)
            break;
        const char32_t c = *in++;
        if (!QChar::isSurrogate(c)) {
            // One to three bytes, written without branching on how many: in a text that mixes
            // ASCII and other characters, such a branch goes either way.
            const bool two = c >= 0x80;
            const bool three = c >= 0x800;
            out[0] = char(three ? 0xe0 | (c >> 12) : two ? 0xc0 | (c >> 6) : c);
            out[1] = char(0x80 | ((three ? c >> 6 : c) & 0x3f));
            out[2] = char(0x80 | (c & 0x3f));
            out += 1 + int(two) + int(three);
        } else if (QChar::isHighSurrogate(c) && in != end && QChar::isLowSurrogate(*in)) {
            const char32_t point = QChar::surrogateToUcs4(char16_t(c), *in++);
            *out++ = char(0xf0 | (point >> 18));
            *out++ = char(0x80 | ((point >> 12) & 0x3f));
            *out++ = char(0x80 | ((point >> 6) & 0x3f));
            *out++ = char(0x80 | (point & 0x3f));
        } else {
            return nullptr;
        }
    }
    return out;
}

} // namespace

// The SHA-1 digest of the UTF-8 form of text, as QString::toUtf8() gives it. Short texts of
// well-formed UTF-16 are encoded on the stack and hashed by a hasher kept per thread: the
// allocations of the plain way cost more than the hashing of a short text.
ZARSysAsciiUnicodeKey::Packed ZARSysAsciiUnicodeKey::digestOf(const QString &text)
{
    thread_local QCryptographicHash perThread(QCryptographicHash::Sha1);
    QCryptographicHash &hasher = perThread; // looked up once
    hasher.reset();

    constexpr qsizetype StackBytes = 768;
    char utf8[StackBytes];
    const char *const end = text.size() <= StackBytes / 3 ? encodeUtf8(text, utf8) : nullptr;
    if (end)
        hasher.addData(QByteArrayView(utf8, end - utf8));
    else
        hasher.addData(text.toUtf8());

    Packed key;
    const QByteArrayView digest = hasher.resultView();
    std::memcpy(key.data(), digest.data(), key.size());
    return key;
}
