#include <ZARSysException.h>
#include <ZARSysTemporaryDir.h>
#include <ZARSysUrlUtility.h>

#include "ZARSysUrlUtilityPrivate.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

QUrl sdkUrl(const QString &path)
{
    return ZARSysUrlUtility::FromLocalFile(path);
}

const QString document = u"/jobs/one/doc.nest"_s;

QString executableName()
{
    return QFileInfo(QCoreApplication::applicationFilePath()).baseName();
}

} // namespace

class tst_UrlUtility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leadingSlash_data();
    void leadingSlash();
    void init();
    void localFileRoundTrip_data();
    void localFileRoundTrip();
    void toLocalFileOfPlainUrl();
    void filePathFromUrl_data();
    void filePathFromUrl();
    void localFileAbsolutePath_data();
    void localFileAbsolutePath();
    void absolutePathKeepsCurrentFolder();
    void localFileRelativePath_data();
    void localFileRelativePath();
    void relativeRoundTrip_data();
    void relativeRoundTrip();
    void temporaryDir_data();
    void temporaryDir();
    void temporaryDirFolderNotCreated();
};

void tst_UrlUtility::leadingSlash_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("windows");
    QTest::addColumn<bool>("elsewhere");

    QTest::newRow("drive") << u"/C:/folder"_s << true << true;
    QTest::newRow("lower-case drive") << u"/d:/x"_s << true << true;
    QTest::newRow("POSIX absolute") << u"/srv/x.txt"_s << true << false;
    QTest::newRow("UNC") << u"//server/share"_s << false << false;
    QTest::newRow("two slashes only") << u"//"_s << true << false;
    QTest::newRow("one slash") << u"/"_s << false << false;
    QTest::newRow("two characters") << u"/a"_s << true << false;
    QTest::newRow("non-ASCII letter") << u"/\u00e9:/x"_s << true << false;
    QTest::newRow("digit") << u"/1:/x"_s << true << false;
    QTest::newRow("relative") << u"C:/x"_s << false << false;
    QTest::newRow("empty") << QString() << false << false;
}

void tst_UrlUtility::leadingSlash()
{
    // Both rule sets, whatever the platform the test runs on.
    QFETCH(QString, path);
    QTEST(ZARSysDropsLeadingSlash(path, true), "windows");
    QTEST(ZARSysDropsLeadingSlash(path, false), "elsewhere");
}

void tst_UrlUtility::init()
{
#ifdef Q_OS_WIN
    // The URL cases use POSIX paths; on Windows a leading "/" goes before any path.
    const QByteArray function(QTest::currentTestFunction());
    if (!function.startsWith("temporaryDir") && function != "leadingSlash")
        QSKIP("POSIX paths");
#endif
}

void tst_UrlUtility::localFileRoundTrip_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("spaces") << u"/srv/jobs/Blech 2 mm.dxf"_s;
    QTest::newRow("percent sequence") << u"/srv/100%25 done.dxf"_s;
    QTest::newRow("stray percent") << u"/srv/a%b.dxf"_s;
    QTest::newRow("trailing percent") << u"/srv/50%"_s;
    QTest::newRow("URL delimiters") << u"/srv/a#b?c;d:e@f.dxf"_s;
    QTest::newRow("non-ASCII") << u"/srv/\u00e9t\u00e9/\u4e2d\u6587 \U0001F600.dxf"_s;
    QTest::newRow("relative") << u"sub dir/x.dxf"_s;
    QTest::newRow("drive form") << u"C:/a/b.txt"_s;
}

void tst_UrlUtility::localFileRoundTrip()
{
    QFETCH(QString, path);

    const QUrl url = ZARSysUrlUtility::FromLocalFile(path);
    QVERIFY(url.isValid());
    QVERIFY(url.isLocalFile());
    QCOMPARE(ZARSysUrlUtility::ToLocalFile(url), path);
    QCOMPARE(ZARSysUrlUtility::GetFilePathFromURL(url), path);
    // As a document keeps it: in text.
    QCOMPARE(ZARSysUrlUtility::ToLocalFile(QUrl(url.toString())), path);
}

void tst_UrlUtility::toLocalFileOfPlainUrl()
{
    QCOMPARE(ZARSysUrlUtility::ToLocalFile(QUrl(u"file:///srv/x%20y.txt"_s)), u"/srv/x y.txt"_s);
    // A percent sequence in the name is decoded as well.
    QCOMPARE(ZARSysUrlUtility::ToLocalFile(QUrl::fromLocalFile(u"/srv/b%20c"_s)), u"/srv/b c"_s);
    QCOMPARE(ZARSysUrlUtility::ToLocalFile(QUrl(u"https://host/x.txt"_s)), QString());
    QCOMPARE(ZARSysUrlUtility::ToLocalFile(QUrl()), QString());
}

void tst_UrlUtility::filePathFromUrl_data()
{
    QTest::addColumn<QUrl>(
        "base"); // for GetAbsoluteFilePathFromURL(); none for GetFilePathFromURL()
    QTest::addColumn<QUrl>("url");
    QTest::addColumn<QString>("path");

    QTest::newRow("drive") << QUrl() << QUrl::fromLocalFile(u"C:/a/b.txt"_s) << u"C:/a/b.txt"_s;
    QTest::newRow("drive in text") << QUrl() << QUrl(u"file:///d:/x"_s) << u"d:/x"_s;
    QTest::newRow("POSIX path stays absolute")
        << QUrl() << QUrl(u"file:///srv/x.txt"_s) << u"/srv/x.txt"_s;
    QTest::newRow("digit before a colon") << QUrl() << QUrl(u"file:///1:/x"_s) << u"/1:/x"_s;
    QTest::newRow("SDK URL") << QUrl() << sdkUrl(u"/srv/a b.txt"_s) << u"/srv/a b.txt"_s;
    QTest::newRow("decoded once more")
        << QUrl() << QUrl(u"file:///srv/100%2525"_s) << u"/srv/100%"_s;
    QTest::newRow("relative") << QUrl() << QUrl(u"sub/x.txt"_s) << u"sub/x.txt"_s;
    QTest::newRow("empty") << QUrl() << QUrl() << QString();

    const QUrl base = sdkUrl(u"/a/b/doc.nest"_s);
    QTest::newRow("absolute: upwards") << base << QUrl(u"../c/d.txt"_s) << u"/a/c/d.txt"_s;
    QTest::newRow("absolute: upwards, SDK URL")
        << base << sdkUrl(u"../c/d.txt"_s) << u"/a/c/d.txt"_s;
    QTest::newRow("absolute: plain base")
        << QUrl::fromLocalFile(u"/a/b/doc.nest"_s) << QUrl(u"d e.txt"_s) << u"/a/b/d e.txt"_s;
    QTest::newRow("absolute: cleaned") << base << sdkUrl(u"/x/./y/../z.txt"_s) << u"/x/z.txt"_s;
    QTest::newRow("absolute: empty url") << base << QUrl() << QString();
}

void tst_UrlUtility::filePathFromUrl()
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

void tst_UrlUtility::localFileAbsolutePath_data()
{
    QTest::addColumn<QUrl>("url");
    QTest::addColumn<QUrl>("absolute");

    QTest::newRow("relative") << QUrl(u"sub/x.dxf"_s) << sdkUrl(u"/jobs/one/sub/x.dxf"_s);
    QTest::newRow("upwards") << QUrl(u"../two/x.dxf"_s) << sdkUrl(u"/jobs/two/x.dxf"_s);
    QTest::newRow("relative SDK URL") << sdkUrl(u"sub/x.dxf"_s) << sdkUrl(u"/jobs/one/sub/x.dxf"_s);
    QTest::newRow("absolute SDK URL") << sdkUrl(u"/data/x y.dxf"_s) << sdkUrl(u"/data/x y.dxf"_s);
    QTest::newRow("absolute plain URL")
        << QUrl::fromLocalFile(u"/data/x.dxf"_s) << QUrl::fromLocalFile(u"/data/x.dxf"_s);
    QTest::newRow("absolute path, no scheme") << QUrl(u"/data/x.dxf"_s) << sdkUrl(u"/data/x.dxf"_s);
}

void tst_UrlUtility::localFileAbsolutePath()
{
    QFETCH(QUrl, url);
    QTEST(ZARSysUrlUtility::GetLocalFileAbsolutePath(sdkUrl(document), url), "absolute");
}

void tst_UrlUtility::absolutePathKeepsCurrentFolder()
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

void tst_UrlUtility::localFileRelativePath_data()
{
    QTest::addColumn<QUrl>("base");
    QTest::addColumn<QUrl>("url");
    QTest::addColumn<QUrl>("relative");

    const QUrl base = sdkUrl(document);
    const QUrl sibling = sdkUrl(u"/jobs/two/x.dxf"_s);
    QTest::newRow("sibling folder") << base << sibling << QUrl(u"../two/x.dxf"_s);
    QTest::newRow("same folder") << base << sdkUrl(u"/jobs/one/x.dxf"_s) << QUrl(u"x.dxf"_s);
    QTest::newRow("root") << base << sdkUrl(u"/x.dxf"_s) << QUrl(u"../../x.dxf"_s);
    QTest::newRow("plain URLs") << QUrl::fromLocalFile(document)
                                << QUrl::fromLocalFile(u"/jobs/two/x.dxf"_s)
                                << QUrl(u"../two/x.dxf"_s);
    QTest::newRow("empty base") << QUrl() << sibling << sibling;
    QTest::newRow("empty url") << base << QUrl() << QUrl();
}

void tst_UrlUtility::localFileRelativePath()
{
    QFETCH(QUrl, base);
    QFETCH(QUrl, url);
    QTEST(ZARSysUrlUtility::GetLocalFileRelativePath(base, url), "relative");
}

void tst_UrlUtility::relativeRoundTrip_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("spaces") << u"/jobs/one/sub dir/x y.dxf"_s;
    QTest::newRow("percent sequence") << u"/jobs/two/100%25 done.dxf"_s;
    QTest::newRow("hash") << u"/jobs/two/a#b.dxf"_s;
    // Not "a%b.dxf" nor "a:b.dxf": the relative form is URL text, where a stray "%" is
    // escaped and a colon before the first "/" starts a scheme.
    QTest::newRow("non-ASCII") << u"/jobs/\u00e9t\u00e9/\u4e2d\u6587 \U0001F600.dxf"_s;
}

void tst_UrlUtility::relativeRoundTrip()
{
    QFETCH(QString, path);

    const QUrl base = sdkUrl(document);
    const QUrl relative = ZARSysUrlUtility::GetLocalFileRelativePath(base, sdkUrl(path));
    QVERIFY2(relative.isRelative(), qPrintable(relative.toString()));
    QCOMPARE(ZARSysUrlUtility::GetLocalFileAbsolutePath(base, relative), sdkUrl(path));
}

void tst_UrlUtility::temporaryDir_data()
{
    QTest::addColumn<QString>("folder"); // in a scratch folder; empty for the system's
    QTest::addColumn<QString>("name");

    QTest::newRow("default") << QString() << QString(); // the default constructor
    QTest::newRow("system folder, named") << QString() << u"zarsys job"_s;
    QTest::newRow("missing folder") << u"a/b"_s << u"job"_s;
    QTest::newRow("missing folder, unnamed") << u"a/b"_s << QString();
    QTest::newRow("trailing separator") << u"a/b/"_s << u"job"_s;
}

void tst_UrlUtility::temporaryDir()
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

void tst_UrlUtility::temporaryDirFolderNotCreated()
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

QTEST_GUILESS_MAIN(tst_UrlUtility)
#include "tst_urlutility.moc"
