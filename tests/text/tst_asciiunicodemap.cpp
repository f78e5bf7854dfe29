#include "../testrow.h"

#include <ZARSysAsciiUnicodeMap.h>

#include <QCryptographicHash>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QByteArray sha1(const QString &text)
{
    return QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha1).toHex();
}

QByteArray reversed(QByteArray bytes)
{
    std::reverse(bytes.begin(), bytes.end());
    return bytes;
}

QString lookup(const ZARSysAsciiUnicodeMap &map, const QByteArray &key)
{
    QString text = u"<untouched>"_s;
    return map.Lookup(key, text) ? text : u"<none> "_s + text;
}

// What Lookup() of key finds among the entries that each order holds: the smallest key (in
// plain byte order, which is digit order) whose first 40 bytes key's first 40 begin, failing
// that the key whose digits read backwards are smallest among those whose last 40 bytes key's
// last 40 end.
QString expectedLookup(const QMap<QByteArray, QString> &byBeginning,
                       const QMap<QByteArray, QString> &byEnd, const QByteArray &key)
{
    for (auto it = byBeginning.cbegin(); it != byBeginning.cend(); ++it) {
        if (it.key().startsWith(key.left(40)))
            return it.value();
    }
    QByteArray best;
    for (auto it = byEnd.cbegin(); it != byEnd.cend(); ++it) {
        if (it.key().endsWith(key.right(40)) && (best.isNull() || reversed(it.key()) < best))
            best = reversed(it.key());
    }
    return best.isNull() ? u"<none> <untouched>"_s : byEnd.value(reversed(best));
}

} // namespace

class tst_AsciiUnicodeMap : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keys()
    {
        ZARSysAsciiUnicodeMap map;
        QCOMPARE(map.Insert(QString()), QByteArray("da39a3ee5e6b4b0d3255bfef95601890afd80709"));
        const QString text = u"Blech 2 mm \u2013 \u4e2d\U0001F600"_s;
        const QByteArray key = map.Insert(text);
        QCOMPARE(key, sha1(text));
        QCOMPARE(map.Insert(text), key); // again: the same key, one entry

        // Keys come in ascending order, strings in the order of their keys.
        const QList<QByteArray> keys = map.GetAllAsciiKeys();
        QCOMPARE(keys.size(), 2);
        QVERIFY(keys.at(0) < keys.at(1));
        QCOMPARE(map.GetStrings(),
                 (keys.at(0) == key ? QList<QString> {text, QString()}
                                    : QList<QString> {QString(), text}));

        // A list: a key for each string, duplicates included, one entry for each.
        ZARSysAsciiUnicodeMap list;
        const QList<QByteArray> listKeys = list.Insert(QList<QString> {u"x"_s, u"y"_s, u"x"_s});
        QCOMPARE(listKeys, (QList<QByteArray> {sha1(u"x"_s), sha1(u"y"_s), sha1(u"x"_s)}));
        QCOMPARE(list.GetAllAsciiKeys().size(), 2);
        QVERIFY(list.Insert(QList<QString>()).isEmpty());
    }

    void lookup_data()
    {
        QTest::addColumn<QByteArray>("key");
        QTest::addColumn<QString>("text");

        // The map holds "text 0" to "text 99"; the next test looks up plain keys and abbreviations.
        const QString a = u"text 7"_s;
        const QByteArray key = sha1(a);
        addRow("unknown", QByteArray("zzzzzz"), u"<none> <untouched>"_s);
        QTest::newRow("longer than a key") << key + "0" << a; // compared over the shorter length
        addRow("bytes above 127", QByteArray("\xff\xfe"), u"<none> <untouched>"_s);
        // Every byte compared must be a lower-case digit; the ones past 40 are not compared.
        addRow("digits then a byte above 127", key.left(5) + "\x80", u"<none> <untouched>"_s);
        addRow("digit with its high bit set", QByteArray(1, char(key.at(0) | 0x80)) + key.mid(1, 5),
               u"<none> <untouched>"_s);
        addRow("upper-case digits", key.toUpper().left(12), u"<none> <untouched>"_s);
        addRow("byte above 127 after a key", key + "\xe9", a);
        QTest::newRow("byte above 127 before a key") << "\xe9" + key << a; // found by its end
    }

    void lookup()
    {
        QFETCH(QByteArray, key);
        QFETCH(QString, text);

        ZARSysAsciiUnicodeMap map;
        for (int i = 0; i < 100; ++i)
            map.Insert(u"text %1"_s.arg(i));
        QCOMPARE(::lookup(map, key), text);
    }

    void abbreviationsAsTheMapGrowsAndShrinks_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("length");

        // Sizes around the points where the map reorganises itself, and abbreviations around the
        // digits it keeps apart from the entries.
        for (const int count : {5, 7, 13, 97, 1600}) {
            for (const int length : {0, 1, 3, 7, 8, 9, 40}) {
                QTest::addRow("%d entries, %d digits", count, length) << count << length;
            }
        }
    }

    void abbreviationsAsTheMapGrowsAndShrinks()
    {
        QFETCH(int, count);
        QFETCH(int, length);

        ZARSysAsciiUnicodeMap map;
        QMap<QByteArray, QString> entries;
        for (int i = 0; i < count; ++i) {
            const QString text = u"entry %1 \u00e4"_s.arg(i);
            entries.insert(map.Insert(text), text);
        }
        const QMap<QByteArray, QString> all = entries;
        const QList<QByteArray> keys = entries.keys();
        const auto check = [&] {
            QCOMPARE(map.GetAllAsciiKeys(), entries.keys());
            QCOMPARE(map.GetStrings(), entries.values());
            for (qsizetype i = 0; i < keys.size(); i += 1 + keys.size() / 40) {
                for (const QByteArray &key : {keys.at(i).left(length), keys.at(i).right(length)})
                    QCOMPARE(::lookup(map, key), expectedLookup(entries, entries, key));
            }
        };
        check();

        // Removing by full keys down to two entries makes the map shrink again. (Removing by an
        // abbreviation, whose matches in the two orders may differ, removeAbbreviatedKeepsQuirk()
        // checks, and the fuzz target against a model.)
        for (qsizetype i = 0; i + 2 < keys.size(); ++i) {
            QVERIFY(map.Remove(keys.at(i)));
            entries.remove(keys.at(i));
            if (i % (1 + count / 50) == 0)
                check();
            if (QTest::currentTestFailed())
                return;
        }
        check();

        // Inserting again restores every entry.
        for (const QString &text : all)
            map.Insert(text);
        entries = all;
        check();
    }

    void moveLeavesUsableMap()
    {
        ZARSysAsciiUnicodeMap map;
        map.Insert(u"a"_s);
        ZARSysAsciiUnicodeMap target = std::move(map);
        QCOMPARE(target.GetStrings(), QList<QString> {u"a"_s});
        // The moved-from map reads as empty and takes new entries.
        QVERIFY(map.GetAllAsciiKeys().isEmpty()); // NOLINT(bugprone-use-after-move)
        QVERIFY(!map.Remove(sha1(u"a"_s)));
        map.Insert(u"b"_s);
        QCOMPARE(map.GetStrings(), QList<QString> {u"b"_s});
    }

    void remove()
    {
        ZARSysAsciiUnicodeMap map;
        QCOMPARE(::lookup(map, QByteArray()), u"<none> <untouched>"_s); // empty map
        const QList<QByteArray> keys = map.Insert(QList<QString> {u"a"_s, u"b"_s, u"c"_s});
        // The empty key finds the smallest key's string.
        const QByteArray smallest = map.GetAllAsciiKeys().first();
        QCOMPARE(::lookup(map, QByteArray()), map.GetStrings().first());
        QCOMPARE(sha1(::lookup(map, QByteArray())), smallest);

        QVERIFY(!map.Remove("zz"));
        QCOMPARE(map.GetAllAsciiKeys().size(), 3);

        QVERIFY(map.Remove(keys.at(1)));
        QCOMPARE(::lookup(map, keys.at(1)), u"<none> <untouched>"_s);
        QCOMPARE(map.GetStrings().size(), 2);
        QVERIFY(!map.Remove(keys.at(1)));

        map.Clear();
        QVERIFY(map.GetAllAsciiKeys().isEmpty());
        QCOMPARE(::lookup(map, keys.at(0)), u"<none> <untouched>"_s);
    }

    void removeAbbreviatedKeepsQuirk()
    {
        // An abbreviated key can match one entry by the beginning of its key and another by the
        // end. Removing by it takes the first from the one order and the second from the other,
        // so afterwards each entry is still found by its full key through the order that kept it.
        ZARSysAsciiUnicodeMap map;
        QString begins;
        QString ends;
        for (int i = 0; begins.isEmpty() || ends.isEmpty(); ++i) {
            const QString text = u"text %1"_s.arg(i);
            const QByteArray key = sha1(text);
            if (key.startsWith('a') && !key.endsWith('a') && begins.isEmpty())
                begins = text;
            else if (key.endsWith('a') && !key.startsWith('a') && ends.isEmpty())
                ends = text;
        }
        map.Insert(QList<QString> {begins, ends});

        QVERIFY(map.Remove("a"));
        // The order by beginnings lost "begins"...
        QCOMPARE(map.GetAllAsciiKeys(), QList<QByteArray> {sha1(ends)});
        // ...and the order by ends lost "ends": both are still found.
        QCOMPARE(::lookup(map, sha1(begins)), begins);
        QCOMPARE(::lookup(map, sha1(ends)), ends);
    }

    void copiesAreIndependent()
    {
        ZARSysAsciiUnicodeMap original;
        const QByteArray a = original.Insert(u"a"_s);
        const ZARSysAsciiUnicodeMap before = original;
        const QByteArray b = original.Insert(u"b"_s);
        QCOMPARE(::lookup(before, b), u"<none> <untouched>"_s);
        QCOMPARE(before.GetAllAsciiKeys(), QList<QByteArray> {a});

        ZARSysAsciiUnicodeMap copy = original;
        copy.Remove(a);
        QCOMPARE(::lookup(original, a), u"a"_s);
        copy.Clear();
        QCOMPARE(original.GetAllAsciiKeys().size(), 2);

        ZARSysAsciiUnicodeMap assigned;
        assigned = original;
        original.Clear();
        QCOMPARE(::lookup(assigned, b), u"b"_s);
    }
};

QTEST_GUILESS_MAIN(tst_AsciiUnicodeMap)
#include "tst_asciiunicodemap.moc"
