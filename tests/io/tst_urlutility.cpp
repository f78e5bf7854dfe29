#include "../testrow.h"

#include <ZARSysException.h>
#include <ZARSysTemporaryDir.h>
#include <ZARSysUrlUtility.h>

#include "ZARSysUrlUtilityPrivate.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QUrl>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

QUrl sdkUrl(const QString &path)
{
    return ZARSysUrlUtility::FromLocalFile(path);
}

// Absolute paths begin with a drive on Windows, where a leading "/" alone is dropped from a URL's
// path; elsewhere with "/".
#ifdef Q_OS_WIN
const QString drive = u"C:"_s;
constexpr bool windows = true;
#else
const QString drive;
constexpr bool windows = false;
#endif

QString absolute(const QString &path)
{
    return drive + path;
}

QString native(const QString &path)
{
    return QDir::toNativeSeparators(path);
}

const QString document = absolute(u"/jobs/one/doc.nest"_s);

QString executableName()
{
    return QFileInfo(QCoreApplication::applicationFilePath()).baseName();
}

} // namespace

class tst_UrlUtility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leadingSlash_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("windows");
        QTest::addColumn<bool>("elsewhere");

        addRow("drive", u"/C:/folder"_s, true, true);
        addRow("lower-case drive", u"/d:/x"_s, true, true);
        addRow("POSIX absolute", u"/srv/x.txt"_s, true, false);
        addRow("UNC", u"//server/share"_s, false, false);
        addRow("two slashes only", u"//"_s, true, false);
        addRow("one slash", u"/"_s, false, false);
        addRow("two characters", u"/a"_s, true, false);
        addRow("non-ASCII letter", u"/\u00e9:/x"_s, true, false);
        addRow("digit", u"/1:/x"_s, true, false);
        addRow("relative", u"C:/x"_s, false, false);
        addRow("empty", QString(), false, false);
    }

    void leadingSlash()
    {
        // Both rule sets, whatever the platform the test runs on.
        QFETCH(QString, path);
        QTEST(ZARSysDropsLeadingSlash(path, true), "windows");
        QTEST(ZARSysDropsLeadingSlash(path, false), "elsewhere");
    }

    void localFileRoundTrip_data()
    {
        QTest::addColumn<QString>("path");

        addRow("spaces", absolute(u"/srv/jobs/Blech 2 mm.dxf"_s));
        addRow("percent sequence", absolute(u"/srv/100%25 done.dxf"_s));
        addRow("stray percent", absolute(u"/srv/a%b.dxf"_s));
        addRow("trailing percent", absolute(u"/srv/50%"_s));
        addRow("URL delimiters", absolute(u"/srv/a#b?c;d:e@f.dxf"_s));
        addRow("non-ASCII", absolute(u"/srv/\u00e9t\u00e9/\u4e2d\u6587 \U0001F600.dxf"_s));
        addRow("relative", u"sub dir/x.dxf"_s);
        addRow("drive form", u"C:/a/b.txt"_s);
    }

    void localFileRoundTrip()
    {
        QFETCH(QString, path);

        const QUrl url = ZARSysUrlUtility::FromLocalFile(path);
        QVERIFY(url.isValid());
        QVERIFY(url.isLocalFile());
        // In the platform's separators.
        QCOMPARE(ZARSysUrlUtility::ToLocalFile(url), native(path));
        QCOMPARE(ZARSysUrlUtility::GetFilePathFromURL(url), native(path));
        // As a document keeps it: in text.
        QCOMPARE(ZARSysUrlUtility::ToLocalFile(QUrl(url.toString())), native(path));
    }

    void toLocalFileOfPlainUrl()
    {
        const QString root = windows ? u"/"_s + drive : QString();
        QCOMPARE(ZARSysUrlUtility::ToLocalFile(QUrl(u"file://"_s + root + u"/srv/x%20y.txt"_s)),
                 native(absolute(u"/srv/x y.txt"_s)));
        // A percent sequence in the name is decoded as well.
        QCOMPARE(ZARSysUrlUtility::ToLocalFile(QUrl::fromLocalFile(absolute(u"/srv/b%20c"_s))),
                 native(absolute(u"/srv/b c"_s)));
        QCOMPARE(ZARSysUrlUtility::ToLocalFile(QUrl(u"https://host/x.txt"_s)), QString());
        QCOMPARE(ZARSysUrlUtility::ToLocalFile(QUrl()), QString());
    }

    void filePathFromUrl_data()
    {
        // The base for GetAbsoluteFilePathFromURL(); none for GetFilePathFromURL().
        QTest::addColumn<QUrl>("base");
        QTest::addColumn<QUrl>("url");
        QTest::addColumn<QString>("path");

        addRow("drive", QUrl(), QUrl::fromLocalFile(u"C:/a/b.txt"_s), u"C:/a/b.txt"_s);
        addRow("drive in text", QUrl(), QUrl(u"file:///d:/x"_s), u"d:/x"_s);
        // Windows drops a leading "/" before anything but a second one; elsewhere it makes the
        // path absolute.
        addRow("POSIX path", QUrl(), QUrl(u"file:///srv/x.txt"_s),
               windows ? u"srv/x.txt"_s : u"/srv/x.txt"_s);
        addRow("digit before a colon", QUrl(), QUrl(u"file:///1:/x"_s),
               windows ? u"1:/x"_s : u"/1:/x"_s);
        addRow("decoded once more", QUrl(), QUrl(u"file:///srv/100%2525"_s),
               windows ? u"srv/100%"_s : u"/srv/100%"_s);
        addRow("SDK URL", QUrl(), sdkUrl(absolute(u"/srv/a b.txt"_s)),
               native(absolute(u"/srv/a b.txt"_s)));
        addRow("relative", QUrl(), QUrl(u"sub/x.txt"_s), u"sub/x.txt"_s);
        addRow("empty", QUrl(), QUrl(), QString());

        const QUrl base = sdkUrl(absolute(u"/a/b/doc.nest"_s));
        addRow("absolute: upwards", base, QUrl(u"../c/d.txt"_s), absolute(u"/a/c/d.txt"_s));
        addRow("absolute: upwards, SDK URL", base, sdkUrl(u"../c/d.txt"_s),
               absolute(u"/a/c/d.txt"_s));
        addRow("absolute: plain base", QUrl::fromLocalFile(absolute(u"/a/b/doc.nest"_s)),
               QUrl(u"d e.txt"_s), absolute(u"/a/b/d e.txt"_s));
        addRow("absolute: cleaned", base, sdkUrl(absolute(u"/x/./y/../z.txt"_s)),
               absolute(u"/x/z.txt"_s));
        addRow("absolute: empty url", base, QUrl(), QString());
    }

    void filePathFromUrl()
    {
        QFETCH(QUrl, base);
        QFETCH(QUrl, url);
        QFETCH(QString, path);
        if (base.isEmpty()) {
            QCOMPARE(ZARSysUrlUtility::GetFilePathFromURL(url), path);
            // Without a base there is no absolute path.
            QCOMPARE(ZARSysUrlUtility::GetAbsoluteFilePathFromURL(base, url), QString());
        } else {
            QCOMPARE(ZARSysUrlUtility::GetAbsoluteFilePathFromURL(base, url), path);
        }
    }

    void localFileAbsolutePath_data()
    {
        QTest::addColumn<QUrl>("url");
        QTest::addColumn<QUrl>("absolute");

        addRow("relative", QUrl(u"sub/x.dxf"_s), sdkUrl(absolute(u"/jobs/one/sub/x.dxf"_s)));
        addRow("upwards", QUrl(u"../two/x.dxf"_s), sdkUrl(absolute(u"/jobs/two/x.dxf"_s)));
        addRow("relative SDK URL", sdkUrl(u"sub/x.dxf"_s),
               sdkUrl(absolute(u"/jobs/one/sub/x.dxf"_s)));
        addRow("absolute SDK URL", sdkUrl(u"/data/x y.dxf"_s), sdkUrl(u"/data/x y.dxf"_s));
        addRow("absolute plain URL", QUrl::fromLocalFile(u"/data/x.dxf"_s),
               QUrl::fromLocalFile(u"/data/x.dxf"_s));
        addRow("absolute path, no scheme", QUrl(u"/data/x.dxf"_s), sdkUrl(u"/data/x.dxf"_s));
    }

    void localFileAbsolutePath()
    {
        QFETCH(QUrl, url);
        QTEST(ZARSysUrlUtility::GetLocalFileAbsolutePath(sdkUrl(document), url), "absolute");
    }

    void absolutePathKeepsCurrentFolder()
    {
        // With folders that exist, so that changing to them would succeed.
        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        QVERIFY(QDir(dir.path()).mkpath(u"one/sub"_s));
        const QString current = QDir::currentPath();
        QCOMPARE(ZARSysUrlUtility::GetLocalFileAbsolutePath(sdkUrl(dir.filePath(u"one/doc.nest"_s)),
                                                            QUrl(u"sub/x.dxf"_s)),
                 sdkUrl(dir.filePath(u"one/sub/x.dxf"_s)));
        QCOMPARE(QDir::currentPath(), current);
    }

    void localFileRelativePath_data()
    {
        QTest::addColumn<QUrl>("base");
        QTest::addColumn<QUrl>("url");
        QTest::addColumn<QUrl>("relative");

        const QUrl base = sdkUrl(document);
        const QUrl sibling = sdkUrl(absolute(u"/jobs/two/x.dxf"_s));
        addRow("sibling folder", base, sibling, QUrl(u"../two/x.dxf"_s));
        addRow("same folder", base, sdkUrl(absolute(u"/jobs/one/x.dxf"_s)), QUrl(u"x.dxf"_s));
        addRow("root", base, sdkUrl(absolute(u"/x.dxf"_s)), QUrl(u"../../x.dxf"_s));
        addRow("plain URLs", QUrl::fromLocalFile(document),
               QUrl::fromLocalFile(absolute(u"/jobs/two/x.dxf"_s)), QUrl(u"../two/x.dxf"_s));
        addRow("empty base", QUrl(), sibling, sibling);
        addRow("empty url", base, QUrl(), QUrl());
    }

    void localFileRelativePath()
    {
        QFETCH(QUrl, base);
        QFETCH(QUrl, url);
        QTEST(ZARSysUrlUtility::GetLocalFileRelativePath(base, url), "relative");
    }

    void relativeRoundTrip_data()
    {
        QTest::addColumn<QString>("path");

        addRow("spaces", absolute(u"/jobs/one/sub dir/x y.dxf"_s));
        addRow("percent sequence", absolute(u"/jobs/two/100%25 done.dxf"_s));
        addRow("hash", absolute(u"/jobs/two/a#b.dxf"_s));
        // Not "a%b.dxf" nor "a:b.dxf": the relative form is URL text, where a stray "%" is
        // escaped and a colon before the first "/" starts a scheme.
        addRow("non-ASCII", absolute(u"/jobs/\u00e9t\u00e9/\u4e2d\u6587 \U0001F600.dxf"_s));
    }

    void relativeRoundTrip()
    {
        QFETCH(QString, path);

        const QUrl base = sdkUrl(document);
        const QUrl relative = ZARSysUrlUtility::GetLocalFileRelativePath(base, sdkUrl(path));
        QVERIFY2(relative.isRelative(), qPrintable(relative.toString()));
        QCOMPARE(ZARSysUrlUtility::GetLocalFileAbsolutePath(base, relative), sdkUrl(path));
    }

    void temporaryDir_data()
    {
        QTest::addColumn<QString>("folder"); // in a scratch folder; empty for the system's
        QTest::addColumn<QString>("name");

        addRow("default", QString(), QString()); // the default constructor
        addRow("system folder, named", QString(), u"zarsys job"_s);
        addRow("missing folder", u"a/b"_s, u"job"_s);
        addRow("missing folder, unnamed", u"a/b"_s, QString());
        addRow("trailing separator", u"a/b/"_s, u"job"_s);
    }

    void temporaryDir()
    {
        QFETCH(QString, folder);
        QFETCH(QString, name);

        QTemporaryDir scratch;
        QVERIFY(scratch.isValid());
        const QString where = folder.isEmpty() ? QString() : scratch.filePath(folder);
        const auto dir = folder.isEmpty() && name.isEmpty()
            ? std::make_unique<ZARSysTemporaryDir>()
            : std::make_unique<ZARSysTemporaryDir>(where, name);
        QVERIFY2(dir->isValid(), qPrintable(dir->errorString()));
        const QFileInfo info(dir->path());
        QVERIFY(info.isDir());
        QCOMPARE(info.absolutePath(), where.isEmpty() ? QDir::tempPath() : QDir::cleanPath(where));
        const QString prefix = name.isEmpty() ? executableName() : name;
        QVERIFY2(info.fileName().startsWith(prefix) && info.fileName().size() > prefix.size(),
                 qPrintable(info.fileName()));
    }

    void temporaryDirFolderNotCreated()
    {
        QTemporaryDir scratch;
        QVERIFY(scratch.isValid());
        QFile file(scratch.filePath(u"file"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        const QString folder = file.fileName() + u"/sub"_s;

        try {
            ZARSysTemporaryDir dir(folder, u"job"_s);
            QFAIL("no exception");
        } catch (const ZARSysFileException &e) {
            QCOMPARE(e.GetText(), u"mkpath failed"_s);
            QVERIFY2(e.GetPath().endsWith(QDir::separator()), qPrintable(e.GetPath()));
            QCOMPARE(QDir::fromNativeSeparators(e.GetPath()), folder + u'/');
        }
    }
};

QTEST_GUILESS_MAIN(tst_UrlUtility)
#include "tst_urlutility.moc"
