// The text transformations of ZARSysStringUtilities on any input, with the round trip of the
// ASCII encoding.

#include "FuzzCommon.h"

#include <ZARSysStringUtilities.h>

#include <QJsonArray>
#include <QJsonDocument>

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    Fuzz::start();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    FuzzedDataProvider data(bytes, size);
    const bool escape = data.ConsumeBool();
    const QString text = Fuzz::text(data, 1024);
    const std::string rest = data.ConsumeRemainingBytesAsString();
    const QByteArray raw(rest.data(), qsizetype(rest.size()));

    // Any bytes decode; text of valid UTF-16 survives the round trip exactly.
    (void)ZARSysStringUtilities::DecodeUnicodeFromAscii(raw);
    const QByteArray encoded = ZARSysStringUtilities::EncodeUnicodeToAscii(text);
    for (char c : encoded) {
        if (uchar(c) > 0x7f)
            Fuzz::fail("the encoding is not ASCII", text);
    }
    if (text.isValidUtf16() && ZARSysStringUtilities::DecodeUnicodeFromAscii(encoded) != text)
        Fuzz::fail("decoding the encoding does not give the text back", text);

    (void)ZARSysStringUtilities::DecodeEmbededUnicodeFromAscii(text, escape);
    (void)ZARSysStringUtilities::DecodeEmbededUnicodeFromAscii(QString::fromLatin1(raw), escape);

    const QString escaped = ZARSysStringUtilities::EscapeUnicodeToCodePoint(text);
    for (QChar c : escaped) {
        if (c.unicode() >= 0x100)
            Fuzz::fail("an escaped text still holds a character from U+0100 up", text);
    }
    (void)ZARSysStringUtilities::ConvertUnicodeFromCodePoint(text);
    (void)ZARSysStringUtilities::ConvertUnicodeFromCodePoint(escaped);

    // The escaped text is the body of a JSON string that parses back to the text. Qt's parser
    // drops a byte order mark at the start of a string, so the body gets a character before it.
    const QString json = ZARSysStringUtilities::EscapeForJson(text);
    if (text.isValidUtf16()) {
        const QJsonDocument document =
            QJsonDocument::fromJson(QStringLiteral("[\"x%1\"]").arg(json).toUtf8());
        if (document.array().at(0).toString() != QLatin1Char('x') + text)
            Fuzz::fail("the JSON escape does not parse back to the text", text);
    }
    const QString html = ZARSysStringUtilities::EscapeHtml(text);
    for (QChar c : html) {
        if (c.unicode() >= 128)
            Fuzz::fail("an HTML-escaped text still holds a character from 128 up", text);
    }
    (void)ZARSysStringUtilities::GetSha1HashWithLength(text, int(raw.size()) - 2);
    return 0;
}
