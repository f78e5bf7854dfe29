#ifndef ZARSYSNUMBERTEXT_H
#define ZARSYSNUMBERTEXT_H

#include <QStringView>

#include <charconv>
#include <system_error>

// How values read their text once the locale's notation is turned into the C notation: a
// number, then an optional suffix, as the pattern below splits it. The split is done by hand
// and the number converted with std::from_chars; fuzz/fuzz_number_text.cpp checks both against
// the pattern and QStringView::toDouble() on any input.
namespace ZARSysNumberText {

// \s and \d are ASCII classes here (no Unicode properties), so every other character is part
// of a token.
inline constexpr char16_t pattern[] = u"^\\s*(\\-?\\d*\\.?\\d*)\\s*(\\S+)?\\s*$";

inline bool isSpace(char16_t c)
{
    return c == u' ' || (c >= u'\t' && c <= u'\r');
}

inline bool isDigit(char16_t c)
{
    return c >= u'0' && c <= u'9';
}

struct Split
{
    bool matched = false;
    QStringView number;
    QStringView suffix;
};

// Splits text as the pattern does: the number part is greedy, and a remainder that is not one
// token between spaces fails the whole match however the number part is shortened (giving
// characters back to the suffix only makes it longer). For valid UTF-16; the pattern decides
// what malformed text gives.
inline Split split(QStringView text)
{
    const qsizetype size = text.size();
    const char16_t *c = text.utf16();
    qsizetype i = 0;
    while (i < size && isSpace(c[i]))
        ++i;
    const qsizetype numberStart = i;
    if (i < size && c[i] == u'-')
        ++i;
    while (i < size && isDigit(c[i]))
        ++i;
    if (i < size && c[i] == u'.')
        ++i;
    while (i < size && isDigit(c[i]))
        ++i;
    const qsizetype numberEnd = i;
    while (i < size && isSpace(c[i]))
        ++i;
    const qsizetype suffixStart = i;
    while (i < size && !isSpace(c[i]))
        ++i;
    const qsizetype suffixEnd = i;
    while (i < size && isSpace(c[i]))
        ++i;
    if (i != size)
        return {};
    return {true, text.sliced(numberStart, numberEnd - numberStart),
            text.sliced(suffixStart, suffixEnd - suffixStart)};
}

// The number in the C notation, as QStringView::toDouble() reads it (0 for what it cannot
// read). The usual number is short and ASCII: it is converted without building a string.
inline double toDouble(QStringView number)
{
    constexpr qsizetype maxFast = 64;
    if (number.size() <= maxFast) {
        char buffer[maxFast];
        bool ascii = true;
        for (qsizetype i = 0; i < number.size(); ++i) {
            const char16_t c = number[i].unicode();
            ascii = ascii && c < 0x80;
            buffer[i] = char(c);
        }
        if (ascii) {
            double result = 0;
            const char *end = buffer + number.size();
            const auto [ptr, error] = std::from_chars(buffer, end, result);
            if (error == std::errc() && ptr == end)
                return result;
        }
    }
    // Failed, overflowing or unusual numbers get Qt's own answer.
    return number.toDouble();
}

} // namespace ZARSysNumberText

#endif // ZARSYSNUMBERTEXT_H
