#include "ZARSysStringUtilities.h"

#include <QCryptographicHash>
#include <QFontMetrics>
#include <QJsonArray>
#include <QJsonDocument>
#include <QList>
#include <QStringDecoder>

#include <algorithm>

namespace {

constexpr char marker[] = "$@";

// Compiled once, on first use, by whichever thread comes first.
const QRegularExpression &embeddedEncodingPattern()
{
    static const QRegularExpression pattern(QStringLiteral("((?:\\$@)?\\$@[A-Za-z0-9-_]*)"));
    return pattern;
}

const QRegularExpression &codePointPattern()
{
    static const QRegularExpression pattern(QStringLiteral("\\\\U\\+[0-9A-Fa-f]{4}"));
    return pattern;
}

// UTF-8 read as it is: QString::fromUtf8() would drop a byte order mark at the start, which
// belongs to the text here.
QString readUtf8(QByteArrayView bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    return decoder.decode(bytes);
}

bool isAscii(QStringView text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 128; });
}

// Escapes each code unit from threshold up as prefix, its upper-case hexadecimal value and
// suffix.
QString escapeCodeUnits(const QString &text, char16_t threshold, QLatin1StringView prefix,
                        QLatin1StringView suffix)
{
    QString escaped;
    escaped.reserve(text.size());
    for (const QChar c : text) {
        if (c.unicode() < threshold) {
            escaped.append(c);
        } else {
            escaped.append(prefix);
            escaped.append(QString::number(c.unicode(), 16).toUpper());
            escaped.append(suffix);
        }
    }
    return escaped;
}

} // namespace

QByteArray ZARSysStringUtilities::EncodeUnicodeToAscii(const QString &text)
{
    if (!isAscii(text)) {
        const QByteArray base64 =
            text.toUtf8().toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals);
        QByteArray encoded;
        encoded.reserve(2 + base64.size());
        return encoded.append(marker).append(base64);
    }
    if (text.startsWith(QLatin1StringView(marker))) {
        QByteArray encoded;
        encoded.reserve(2 + text.size());
        return encoded.append(marker).append(text.toLatin1());
    }
    return text.toLatin1();
}

QString ZARSysStringUtilities::DecodeUnicodeFromAscii(const QByteArray &ascii)
{
    if (!ascii.startsWith(marker))
        return readUtf8(ascii);
    const QByteArrayView rest = QByteArrayView(ascii).sliced(2);
    if (rest.startsWith(marker))
        return readUtf8(rest);
    return readUtf8(QByteArray::fromBase64(rest.toByteArray(), QByteArray::Base64UrlEncoding));
}

QString ZARSysStringUtilities::DecodeEmbededUnicodeFromAscii(const QString &text,
                                                             bool escapeToCodePoint)
{
    return RegularExpressReplace(
        text, embeddedEncodingPattern(),
        [escapeToCodePoint](const QRegularExpressionMatch &match, QString &replacement) {
            const QString encoded = match.captured(0);
            if (encoded.startsWith(QLatin1StringView("$@$@"))) {
                replacement = encoded.mid(2);
            } else {
                const QString decoded = DecodeUnicodeFromAscii(encoded.toLatin1());
                replacement = escapeToCodePoint ? EscapeUnicodeToCodePoint(decoded) : decoded;
            }
            return true;
        });
}

QString ZARSysStringUtilities::EscapeUnicodeToCodePoint(const QString &text)
{
    if (text.isEmpty())
        return text;
    return escapeCodeUnits(text, 0x100, QLatin1StringView("\\U+"), QLatin1StringView());
}

QString ZARSysStringUtilities::ConvertUnicodeFromCodePoint(const QString &text)
{
    // Each escape is replaced where it stands, in one pass; a character that a replacement
    // produces never forms a new escape with what follows.
    return RegularExpressReplace(text, codePointPattern(),
                                 [](const QRegularExpressionMatch &match, QString &character) {
                                     const QStringView digits = match.capturedView(0).sliced(3);
                                     character = QChar(char16_t(digits.toUShort(nullptr, 16)));
                                     return true;
                                 });
}

QString ZARSysStringUtilities::EscapeForJson(const QString &text)
{
    QByteArray json = QJsonDocument(QJsonArray {text}).toJson(QJsonDocument::Compact);
    if (json.startsWith("[\""))
        json.remove(0, 2);
    if (json.endsWith("\"]"))
        json.chop(2);
    return readUtf8(json);
}

QString ZARSysStringUtilities::EscapeHtml(const QString &text)
{
    if (text.isEmpty())
        return text;
    return escapeCodeUnits(text, 128, QLatin1StringView("&#x"), QLatin1StringView(";"));
}

QByteArray ZARSysStringUtilities::GetSha1HashWithLength(const QString &text, int length)
{
    QByteArray digest = QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha1).toHex();
    if (length >= 1 && length <= 40)
        digest.truncate(length);
    return digest;
}

QString ZARSysStringUtilities::ComputeSimilarWithString(const QFontMetrics &metrics,
                                                        const QString &reference,
                                                        const QString &text,
                                                        LengthInequalityBehavior behavior,
                                                        const QChar &fill)
{
    // The last character, a surrogate pair counting as one.
    const auto dropLast = [](QString &s) {
        s.chop(s.size() >= 2 && s.back().isLowSurrogate() && s.at(s.size() - 2).isHighSurrogate()
                   ? 2
                   : 1);
    };

    const int target = metrics.horizontalAdvance(reference);
    QString s = text;
    int width = metrics.horizontalAdvance(s);
    if (width > target) {
        // A long text is first narrowed down by halving, so that the character-by-character
        // steps below start close to the cut instead of measuring the text once per character.
        qsizetype fits = 0;
        qsizetype tooWide = s.size();
        while (tooWide - fits > 16) {
            const qsizetype middle = fits + (tooWide - fits) / 2;
            (metrics.horizontalAdvance(s, int(middle)) > target ? tooWide : fits) = middle;
        }
        s.truncate(tooWide);
        width = metrics.horizontalAdvance(s);
        qsizetype before = s.size();
        while (width > target && !s.isEmpty()) {
            before = s.size();
            dropLast(s);
            width = metrics.horizontalAdvance(s);
        }
        if (behavior == WiderKeepingText)
            return width == target ? s : text.left(before);
    }
    if (width < target) {
        // Filled in one go to just below the target, then one fill at a time. A fill that adds
        // no width ends the filling, since it could never reach the target.
        const qsizetype unfilled = s.size();
        const int fillWidth = metrics.horizontalAdvance(fill);
        if (fillWidth > 0)
            s.append(QString(std::max(0, (target - width) / fillWidth - 1), fill));
        width = metrics.horizontalAdvance(s);
        while (width < target) {
            s.append(fill);
            const int wider = metrics.horizontalAdvance(s);
            if (wider <= width) {
                s.chop(1);
                return s;
            }
            width = wider;
        }
        if (behavior == Narrower && s.size() > unfilled)
            dropLast(s);
    }
    return s;
}

QString ZARSysStringUtilities::RegularExpressReplace(
    const QString &text, const QRegularExpression &pattern,
    std::function<bool(const QRegularExpressionMatch &, QString &)> replacer)
{
    struct Replacement
    {
        qint32 start;
        qint32 length;
        QString text;
    };
    QList<Replacement> replacements;
    QRegularExpressionMatchIterator matches = pattern.globalMatch(text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        QString replacement;
        if (replacer(match, replacement)) {
            replacements.append({qint32(match.capturedStart(0)), qint32(match.capturedLength(0)),
                                 std::move(replacement)});
        }
    }
    QString replaced = text;
    for (auto it = replacements.crbegin(); it != replacements.crend(); ++it)
        replaced.replace(it->start, it->length, it->text);
    return replaced;
}
