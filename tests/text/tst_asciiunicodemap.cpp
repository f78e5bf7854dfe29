#include <ZARSysAsciiUnicodeMap.h>

#include <QCryptographicHash>
#include <QTest>

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

} // namespace

class tst_AsciiUnicodeMap : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keys();
    void lookup_data();
    void lookup();
    void abbreviationsFromBothEnds();
    void moveLeavesUsableMap();
    void remove();
    void removeAbbreviatedKeepsQuirk();
    void copiesAreIndependent();
    void insertList();
};

void tst_AsciiUnicodeMap::keys()
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
    QCOMPARE(
        map.GetStrings(),
        (keys.at(0) == key ? QList<QString> {text, QString()} : QList<QString> {QString(), text}));

    // The key does not depend on the map.
    QCOMPARE(ZARSysAsciiUnicodeMap().Insert(text), key);
}

void tst_AsciiUnicodeMap::lookup_data()
{
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QString>("text");

    // The map holds "text 0" to "text 99".
    const QString a = u"text 7"_s;
    const QByteArray key = sha1(a);
    QTest::newRow("full key") << key << a;
    QTest::newRow("first 6 digits") << key.left(6) << a;
    QTest::newRow("last 6 digits") << key.right(6) << a;
    QTest::newRow("unknown") << QByteArray("zzzzzz") << u"<none> <untouched>"_s;
    QTest::newRow("longer than a key") << key + "0" << a; // compared over the shorter length
    QTest::newRow("bytes above 127") << QByteArray("\xff\xfe") << u"<none> <untouched>"_s;
}

void tst_AsciiUnicodeMap::lookup()
{
    QFETCH(QByteArray, key);
    QFETCH(QString, text);

    ZARSysAsciiUnicodeMap map;
    for (int i = 0; i < 100; ++i)
        map.Insert(u"text %1"_s.arg(i));
    QCOMPARE(::lookup(map, key), text);
}

void tst_AsciiUnicodeMap::abbreviationsFromBothEnds()
{
    // A short key matching the beginning of one key and the end of another finds the one it
    // begins first; the smallest of several beginnings wins.
    ZARSysAsciiUnicodeMap map;
    QMap<QByteArray, QString> byKey;
    for (int i = 0; i < 200; ++i) {
        const QString text = u"entry %1"_s.arg(i);
        byKey.insert(map.Insert(text), text);
    }
    for (const char digit : QByteArray("0123456789abcdef")) {
        const QByteArray prefix(1, digit);
        QString expected;
        for (auto it = byKey.cbegin(); it != byKey.cend() && expected.isEmpty(); ++it) {
            if (it.key().startsWith(prefix))
                expected = it.value();
        }
        QVERIFY(!expected.isEmpty());
        QCOMPARE(::lookup(map, prefix), expected);
    }
    // Found by its end only: the last three digits of a key that begin no key.
    for (auto it = byKey.cbegin(); it != byKey.cend(); ++it) {
        const QByteArray suffix = it.key().right(3);
        bool begins = false;
        for (const QByteArray &key : byKey.keys())
            begins = begins || key.startsWith(suffix);
        if (begins)
            continue;
        QString expected;
        for (auto other = byKey.cbegin(); other != byKey.cend(); ++other) {
            // The first by comparison from the end: the smallest reversed key.
            if (other.key().endsWith(suffix)
                && (expected.isEmpty() || reversed(other.key()) < reversed(sha1(expected))))
                expected = other.value();
        }
        QCOMPARE(::lookup(map, suffix), expected);
        return;
    }
    QFAIL("no key ends in digits that begin no other key");
}

void tst_AsciiUnicodeMap::moveLeavesUsableMap()
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

void tst_AsciiUnicodeMap::remove()
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

void tst_AsciiUnicodeMap::removeAbbreviatedKeepsQuirk()
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

void tst_AsciiUnicodeMap::copiesAreIndependent()
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

void tst_AsciiUnicodeMap::insertList()
{
    ZARSysAsciiUnicodeMap map;
    const QList<QByteArray> keys = map.Insert(QList<QString> {u"x"_s, u"y"_s, u"x"_s});
    QCOMPARE(keys, (QList<QByteArray> {sha1(u"x"_s), sha1(u"y"_s), sha1(u"x"_s)}));
    QCOMPARE(map.GetAllAsciiKeys().size(), 2);
    QVERIFY(map.Insert(QList<QString>()).isEmpty());
}

QTEST_GUILESS_MAIN(tst_AsciiUnicodeMap)
#include "tst_asciiunicodemap.moc"
