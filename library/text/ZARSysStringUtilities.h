#ifndef ZARSYSSTRINGUTILITIES_H
#define ZARSYSSTRINGUTILITIES_H

#include <zarsystem_export.h>

#include <QByteArray>
#include <QChar>
#include <QRegularExpression>
#include <QString>

#include <functional>

class QFontMetrics;

/*!
    \class ZARSysStringUtilities
    \brief Text transformations for channels that take ASCII only, and for JSON, HTML and
    on-screen widths.

    The ASCII encoding ("$@" encoding) turns any text into ASCII and back: text that is ASCII
    already stays as it is; other text becomes the marker "$@" followed by the URL-safe Base64
    form of its UTF-8 bytes, without padding. ASCII text that begins with the marker has the
    marker doubled.

    \code
    ZARSysStringUtilities::EncodeUnicodeToAscii(u"abc"_s);   // "abc"
    ZARSysStringUtilities::EncodeUnicodeToAscii(u"é"_s);     // "$@w6k"
    ZARSysStringUtilities::EncodeUnicodeToAscii(u"$@abc"_s); // "$@$@abc"
    ZARSysStringUtilities::DecodeEmbededUnicodeFromAscii(u"name $@w6k end"_s, false);
                                                              // "name é end"
    \endcode

    All functions are reentrant.
*/
class ZARSYSTEM_EXPORT ZARSysStringUtilities
{
public:
    /*! How ComputeSimilarWithString() treats the reference width. */
    enum LengthInequalityBehavior : qint32 {
        Narrower = 0, //!< Never wider than the reference: padding stops one fill short.
        WiderKeepingText = 1, //!< Never narrower; a long text is cut to the shortest prefix that
                              //!< is at least as wide, without fill.
        Wider = 2, //!< Never narrower; a long text is cut to fit and then filled.
    };

    /*! Returns the ASCII encoding of \a text; empty for empty text. */
    static QByteArray EncodeUnicodeToAscii(const QString &text);

    /*!
        Returns the text that \a ascii encodes. Text without the marker at its start is read
        as UTF-8 as it is; a doubled marker loses one marker; otherwise what follows the marker
        is decoded as URL-safe Base64, padded or not, and characters outside its alphabet are
        ignored.
    */
    static QString DecodeUnicodeFromAscii(const QByteArray &ascii);

    /*!
        Returns \a text with every encoding embedded in it (a marker and the run of Base64
        characters after it) decoded; a doubled marker loses one marker. With
        \a escapeToCodePoint, the decoded text is passed through EscapeUnicodeToCodePoint(). A
        marker with nothing after it decodes to nothing and vanishes.
    */
    static QString DecodeEmbededUnicodeFromAscii(const QString &text, bool escapeToCodePoint);

    /*!
        Returns \a text with each UTF-16 code unit from 0x100 up written as "\U+" and its
        upper-case hexadecimal value without leading zeros: U+4E2D gives "\U+4E2D", U+0100
        gives "\U+100", and a character beyond the Basic Multilingual Plane two escapes.
    */
    static QString EscapeUnicodeToCodePoint(const QString &text);

    /*!
        Returns \a text with each escape of exactly four hexadecimal digits ("\U+2013", digits
        of either case, "U" upper-case) replaced by its character. Shorter escapes, which
        EscapeUnicodeToCodePoint() writes for code units below 0x1000, are not converted back.
        Text that is not valid UTF-16 (a lone surrogate) is returned unchanged, as regular
        expressions do not search it; the same holds for DecodeEmbededUnicodeFromAscii().
    */
    static QString ConvertUnicodeFromCodePoint(const QString &text);

    /*! Returns \a text escaped as the body of a JSON string, without the quotes. */
    static QString EscapeForJson(const QString &text);

    /*!
        Returns \a text with each code unit from 128 up written as a character reference
        ("é" gives "&#xE9;"). Markup characters (<, >, &, quotes) are not escaped.
    */
    static QString EscapeHtml(const QString &text);

    /*!
        Returns the first \a length lower-case hexadecimal digits of the SHA-1 digest of the
        UTF-8 bytes of \a text; all 40 when \a length is below 1 or above 40.
    */
    static QByteArray GetSha1HashWithLength(const QString &text, int length);

    /*!
        Returns \a text cut or filled with \a fill to about the width of \a reference in
        \a metrics, as \a behavior says. A text exactly as wide as the reference comes back
        unchanged. Filling stops when a \a fill adds no width (a fill without width, or a text
        whose measured width stops growing), so the result may then stay narrower.
    */
    static QString ComputeSimilarWithString(const QFontMetrics &metrics, const QString &reference,
                                            const QString &text, LengthInequalityBehavior behavior,
                                            const QChar &fill);

    /*!
        Returns \a text with matches of \a pattern replaced. For each match, in order,
        \a replacer receives the match and an empty string; when it returns true, the string it
        filled in replaces the match. An empty \a replacer throws std::bad_function_call at the
        first match.
    */
    static QString
    RegularExpressReplace(const QString &text, const QRegularExpression &pattern,
                          std::function<bool(const QRegularExpressionMatch &, QString &)> replacer);
};

#endif // ZARSYSSTRINGUTILITIES_H
