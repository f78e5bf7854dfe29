#include "../testrow.h"

#include <ZARSysStringUtilities.h>

#include <QFontMetrics>

#include <functional>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(ZARSysStringUtilities::LengthInequalityBehavior)

using Utilities = ZARSysStringUtilities;

class tst_StringUtilities : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void encode_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("ascii");
        QTest::addColumn<bool>("encoding"); // false: only decodes to the text

        addRow("ASCII", u"abc"_s, QByteArray("abc"), true);
        addRow("empty", QString(), QByteArray(), true);
        addRow("marker at the start", u"$@abc"_s, QByteArray("$@$@abc"), true);
        addRow("marker elsewhere", u"a$@bc"_s, QByteArray("a$@bc"), true);
        addRow("e acute", u"\u00e9"_s, QByteArray("$@w6k"), true);
        // UTF-8 F4 8F BF BF: "+/" in the standard alphabet, "-_" in the URL-safe one.
        addRow("URL-safe alphabet", u"\U0010FFFF"_s, QByteArray("$@9I-_vw"), true);
        addRow("marker with non-ASCII", u"$@\u00e9"_s, QByteArray("$@JEDDqQ"), true);
        // A byte order mark at the start is part of the text and must come back.
        addRow("byte order mark", u"\ufeff"_s, QByteArray("$@77u_"), true);

        addRow("padded", u"\u00e9"_s, QByteArray("$@w6k="), false);
        addRow("invalid characters ignored", u"\u00e9"_s, QByteArray("$@w6!k"), false);
        addRow("bare marker", QString(), QByteArray("$@"), false);
        addRow("UTF-8 without marker", u"\u00e9"_s, QByteArray("\xc3\xa9"), false);
        addRow("byte order mark without marker", u"\ufeffx"_s, QByteArray("\xef\xbb\xbfx"), false);
    }

    void encode()
    {
        QFETCH(QString, text);
        QFETCH(QByteArray, ascii);
        QFETCH(bool, encoding);
        if (encoding)
            QCOMPARE(Utilities::EncodeUnicodeToAscii(text), ascii);
        QCOMPARE(Utilities::DecodeUnicodeFromAscii(ascii), text);
    }

    void decodeEmbedded_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("plain");
        QTest::addColumn<QString>("escaped");

        addRow("Latin", u"name $@w6k end"_s, u"name \u00e9 end"_s, u"name \u00e9 end"_s);
        addRow("CJK", u"$@5Lit.txt"_s, u"\u4e2d.txt"_s, u"\\U+4E2D.txt"_s);
        addRow("two encodings", u"$@w6k/$@5Lit"_s, u"\u00e9/\u4e2d"_s, u"\u00e9/\\U+4E2D"_s);
        addRow("doubled marker", u"x $@$@abc y"_s, u"x $@abc y"_s, u"x $@abc y"_s);
        addRow("bare marker vanishes", u"a $@ b"_s, u"a  b"_s, u"a  b"_s);
        addRow("no encoding", u"plain"_s, u"plain"_s, u"plain"_s);
    }

    void decodeEmbedded()
    {
        QFETCH(QString, text);
        QTEST(Utilities::DecodeEmbededUnicodeFromAscii(text, false), "plain");
        QTEST(Utilities::DecodeEmbededUnicodeFromAscii(text, true), "escaped");
    }

    void codePoints_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("escaped");
        QTest::addColumn<QString>("converted"); // ConvertUnicodeFromCodePoint(escaped)

        addRow("below 0x100", u"\u00e9"_s, u"\u00e9"_s, u"\u00e9"_s);
        addRow("en dash", u"\u2013"_s, u"\\U+2013"_s, u"\u2013"_s);
        addRow("beyond the BMP", u"a\U0001F600b"_s, u"a\\U+D83D\\U+DE00b"_s, u"a\U0001F600b"_s);
        // Short escapes do not convert back; this asymmetry is intended.
        addRow("short escape", u"\u0100"_s, u"\\U+100"_s, u"\\U+100"_s);
        addRow("short escape, hex digit after", u"\u0100A"_s, u"\\U+100A"_s, u"\u100A"_s);
        addRow("empty", QString(), QString(), QString());
    }

    void codePoints()
    {
        QFETCH(QString, text);
        QFETCH(QString, escaped);
        QCOMPARE(Utilities::EscapeUnicodeToCodePoint(text), escaped);
        QTEST(Utilities::ConvertUnicodeFromCodePoint(escaped), "converted");

        // The "U" is case-sensitive, the digits are not.
        QCOMPARE(Utilities::ConvertUnicodeFromCodePoint(u"\\u+2013 \\U+00e9\\U+00E9"_s),
                 u"\\u+2013 \u00e9\u00e9"_s);
    }

    void escapes_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("json");
        QTest::addColumn<QString>("html");

        addRow("quote", u"a\"b"_s, u"a\\\"b"_s, u"a\"b"_s);
        addRow("markup", u"<\u00e9>&"_s, u"<\u00e9>&"_s, u"<&#xE9;>&"_s);
        addRow("control characters", u"\n\t\u0001"_s, u"\\n\\t\\u0001"_s, u"\n\t\u0001"_s);
        addRow("backslash and beyond the BMP", u"\\\U0001F600"_s, u"\\\\\U0001F600"_s,
               u"\\&#xD83D;&#xDE00;"_s);
        addRow("leading byte order mark", u"\ufeffa"_s, u"\ufeffa"_s, u"&#xFEFF;a"_s);
        addRow("empty", QString(), QString(), QString());
    }

    void escapes()
    {
        QFETCH(QString, text);
        QTEST(Utilities::EscapeForJson(text), "json");
        QTEST(Utilities::EscapeHtml(text), "html");
    }

    void sha1_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("length");
        QTest::addColumn<QByteArray>("digest");

        const QByteArray abc("a9993e364706816aba3e25717850c26c9cd0d89d");
        addRow("8 digits", u"abc"_s, 8, QByteArray("a9993e36"));
        addRow("40", u"abc"_s, 40, abc);
        addRow("0 gives all", u"abc"_s, 0, abc);
        addRow("41 gives all", u"abc"_s, 41, abc);
        addRow("negative gives all", u"abc"_s, -3, abc);
        addRow("UTF-8 of the text", u"\u00e9"_s, 40,
               QByteArray("bf15be717ac1b080b4f1c456692825891ff5073d"));
    }

    void sha1()
    {
        QFETCH(QString, text);
        QFETCH(int, length);
        QTEST(Utilities::GetSha1HashWithLength(text, length), "digest");
    }

    void regularExpressReplace()
    {
        const QRegularExpression number(u"\\d+"_s);
        // Replacements of other lengths, applied from the last match back, and a declined match.
        const QString replaced = Utilities::RegularExpressReplace(
            u"a1 b22 c333"_s, number, [](const QRegularExpressionMatch &match, QString &text) {
                if (match.captured(0) == u"22"_s)
                    return false;
                text = u"<"_s + QString::number(match.captured(0).size()) + u">"_s;
                return true;
            });
        QCOMPARE(replaced, u"a<1> b22 c<3>"_s);

        // An empty replacer fails at the first match only.
        QCOMPARE(Utilities::RegularExpressReplace(u"none"_s, number, {}), u"none"_s);
        QVERIFY_THROWS_EXCEPTION(std::bad_function_call,
                                 Utilities::RegularExpressReplace(u"a1"_s, number, {}));
    }

    void similarWidth_data()
    {
        QTest::addColumn<ZARSysStringUtilities::LengthInequalityBehavior>("behavior");
        addRow("narrower", Utilities::Narrower);
        addRow("wider keeping text", Utilities::WiderKeepingText);
        addRow("wider", Utilities::Wider);
        addRow("unknown acts as wider", Utilities::LengthInequalityBehavior(7));
    }

    void similarWidth()
    {
        QFETCH(ZARSysStringUtilities::LengthInequalityBehavior, behavior);
        const QFontMetrics metrics(QFont(u"Sans"_s, 12));
        const auto width = [&](const QString &s) {
            return metrics.horizontalAdvance(s);
        };
        const QString reference = u"Reference text"_s;
        const int target = width(reference);
        const QChar fill(u'.');
        QVERIFY(width(fill) > 0);

        // Short text: filled up to about the reference's width.
        const QString shortText = u"ab"_s;
        const QString filled =
            Utilities::ComputeSimilarWithString(metrics, reference, shortText, behavior, fill);
        QVERIFY(filled.startsWith(shortText));
        QCOMPARE(filled.mid(shortText.size()), QString(filled.size() - shortText.size(), fill));
        if (behavior == Utilities::Narrower) {
            QVERIFY(width(filled) < target);
            QVERIFY(width(filled + fill) >= target);
        } else {
            QVERIFY(width(filled) >= target);
            QVERIFY(width(filled.chopped(1)) < target);
        }

        // Long text: cut, and then filled or not.
        const QString longText = u"A much longer text than the reference"_s;
        const QString cut =
            Utilities::ComputeSimilarWithString(metrics, reference, longText, behavior, fill);
        if (behavior == Utilities::WiderKeepingText) {
            QVERIFY(longText.startsWith(cut));
            QVERIFY(width(cut) >= target);
            QVERIFY(width(cut.chopped(1)) < target);
        } else if (behavior == Utilities::Narrower) {
            QVERIFY(width(cut) <= target);
            QVERIFY(width(cut + fill) > target);
        } else {
            QVERIFY(width(cut) >= target);
        }

        // As wide as the reference: unchanged.
        QCOMPARE(Utilities::ComputeSimilarWithString(metrics, reference, reference, behavior, fill),
                 reference);
    }

    void similarWidthZeroWidthFill()
    {
        // A fill that adds no width (a combining mark) cannot reach the reference's width: the text
        // comes back unfilled instead of the call never returning.
        const QFontMetrics metrics(QFont(u"Sans"_s, 12));
        const QChar combining(u'\u0301');
        QCOMPARE(metrics.horizontalAdvance(combining), 0);
        for (const auto behavior : {Utilities::Narrower, Utilities::Wider}) {
            QCOMPARE(Utilities::ComputeSimilarWithString(metrics, u"Reference"_s, u"a"_s, behavior,
                                                         combining),
                     u"a"_s);
        }

        // Long texts are cut as short ones are.
        const QString reference = u"Reference"_s;
        const QString longText(100000, u'x');
        const QString cut = Utilities::ComputeSimilarWithString(metrics, reference, longText,
                                                                Utilities::WiderKeepingText, u'.');
        QVERIFY(metrics.horizontalAdvance(cut) >= metrics.horizontalAdvance(reference));
        QVERIFY(metrics.horizontalAdvance(cut.chopped(1)) < metrics.horizontalAdvance(reference));
    }
};

QTEST_MAIN(tst_StringUtilities)
#include "tst_stringutilities.moc"
