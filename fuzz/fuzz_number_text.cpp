// The hand-written reader of values' numbers against what it replaces: the split of a text
// into number and suffix against the regular expression it stands for, and the conversion of
// the number against QStringView::toDouble(). Any difference aborts.

#include "FuzzCommon.h"

#include "ZARSysNumberText.h"

#include <QRegularExpression>

#include <algorithm>
#include <cstring>

namespace {

bool sameBits(double a, double b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

void checkNumber(QStringView number, const QString &text)
{
    if (!sameBits(ZARSysNumberText::toDouble(number), number.toDouble()))
        Fuzz::fail("the number converts otherwise than QStringView::toDouble()", text);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    static const QRegularExpression pattern(QString::fromUtf16(ZARSysNumberText::pattern));

    FuzzedDataProvider data(bytes, size);
    // Texts made mostly of the characters that matter, and texts of any characters.
    QString text;
    if (data.ConsumeBool()) {
        static const char16_t alphabet[] = u"0123456789.-  \t\n\v\f\rmin%\u00a0\u2009\u00e9";
        while (data.remaining_bytes() > 0 && text.size() < 256)
            text.append(
                QChar(alphabet[data.ConsumeIntegralInRange<size_t>(0, std::size(alphabet) - 2)]));
    } else {
        text = Fuzz::text(data, 512);
    }
    if (!text.isValidUtf16())
        return 0; // the library gives malformed text to the pattern itself

    const QRegularExpressionMatch match = pattern.match(text);
    const QStringView view(text);
    const ZARSysNumberText::Split split = ZARSysNumberText::split(view);
    if (split.matched != match.hasMatch())
        Fuzz::fail("the split and the pattern disagree on a match", text);
    if (split.matched) {
        if (split.number != match.capturedView(1) || split.suffix != match.capturedView(2)
            || split.number.data() - view.data() != match.capturedStart(1))
            Fuzz::fail("the split and the pattern find other parts", text);
        checkNumber(split.number, text);
    }
    // Any run of the number's characters, in any order, converts alike.
    const bool numberCharacters = std::all_of(text.cbegin(), text.cend(), [](QChar c) {
        return ZARSysNumberText::isDigit(c.unicode()) || c == u'.' || c == u'-';
    });
    if (numberCharacters)
        checkNumber(text, text);
    return 0;
}
