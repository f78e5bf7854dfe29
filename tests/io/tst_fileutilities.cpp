#include "../testrow.h"

#include <ZARSysException.h>
#include <ZARSysFileUtilities.h>

#include <QCryptographicHash>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

void writeFile(const QString &path, const QByteArray &contents)
{
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(path));
    QCOMPARE(file.write(contents), contents.size());
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<missing>");
}

// Every file under folder, with its contents, by relative path.
QMap<QString, QByteArray> tree(const QString &folder)
{
    QMap<QString, QByteArray> files;
    const QDir root(folder);
    const QStringList names = root.entryList(QDir::Files | QDir::Hidden);
    for (const QString &name : names)
        files.insert(name, readFile(root.filePath(name)));
    const QStringList folders = root.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &name : folders) {
        const auto below = tree(root.filePath(name));
        for (auto it = below.begin(); it != below.end(); ++it)
            files.insert(name + u'/' + it.key(), it.value());
    }
    return files;
}

template<typename F>
QString fileExceptionText(F &&call, QString *path = nullptr)
{
    try {
        call();
    } catch (const ZARSysFileException &e) {
        if (path)
            *path = e.GetPath();
        return e.GetText();
    }
    return u"<no exception>"_s;
}

} // namespace

class UrlRecorder : public QObject
{
    Q_OBJECT

public:
    QList<QUrl> urls;

public Q_SLOTS:
    void open(const QUrl &url) { urls.append(url); }
};

class tst_FileUtilities : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        dir = std::make_unique<QTemporaryDir>();
        QVERIFY(dir->isValid());
    }

    void hash_data()
    {
        QTest::addColumn<QByteArray>("contents");

        addRow("empty", QByteArray());
        addRow("text", QByteArray("abc"));
        QByteArray large(3 * 1024 * 1024 + 7, Qt::Uninitialized);
        for (qsizetype i = 0; i < large.size(); ++i)
            large[i] = char((i * 7919) >> 3);
        addRow("several chunks and a remainder", large);
    }

    void hash()
    {
        QFETCH(QByteArray, contents);
        const QString path = dir->filePath(u"file name with spaces \u00e9.bin"_s);
        writeFile(path, contents);
        const QByteArray digest = ZARSysFileUtilities::calculateFileHash(path);
        QCOMPARE(digest.size(), 20);
        QCOMPARE(digest, QCryptographicHash::hash(contents, QCryptographicHash::Sha1));
    }

    void hashOfUnreadable()
    {
        QVERIFY(ZARSysFileUtilities::calculateFileHash(dir->filePath(u"missing"_s)).isNull());
        QVERIFY(ZARSysFileUtilities::calculateFileHash(dir->path()).isNull());
        QVERIFY(ZARSysFileUtilities::calculateFileHash(QString()).isNull());
    }

    void safeFilename_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QChar>("replacement");
        QTest::addColumn<QString>("more");
        QTest::addColumn<QString>("safe");

        addRow("reserved", u"a:b*c?.txt"_s, QChar(u'_'), QString(), u"a_b_c_.txt"_s);
        addRow("more characters", u"a:b*c?.txt"_s, QChar(u'_'), u"."_s, u"a_b_c__txt"_s);
        addRow("every reserved character", u"*?<>|:/\\\"\t"_s, QChar(u'-'), QString(),
               u"----------"_s);
        addRow("others stay", u"CON \n\r.. "_s, QChar(u'_'), QString(), u"CON \n\r.. "_s);
        addRow("non-ASCII kept and replaced", u"\u00e9t\u00e9 \U0001F600.txt"_s, QChar(u'#'),
               u"\u00e9"_s, u"#t# \U0001F600.txt"_s);
        addRow("case-sensitive", u"aAbB"_s, QChar(u'_'), u"ab"_s, u"_A_B"_s);
        addRow("empty", QString(), QChar(u'_'), u"x"_s, QString());
    }

    void safeFilename()
    {
        QFETCH(QString, name);
        QFETCH(QChar, replacement);
        QFETCH(QString, more);
        QTEST(ZARSysFileUtilities::CreateSafeFilename(name, replacement, more), "safe");
    }

    void shortFilename()
    {
        const QString existing = dir->filePath(u"a long folder name"_s);
        QVERIFY(QDir().mkdir(existing));
#ifdef Q_OS_WIN
        // The short form names the same folder (if 8.3 names are enabled, in fewer characters).
        const QString shortened = ZARSysFileUtilities::CreateShortFilename(existing);
        QVERIFY(shortened.size() <= existing.size());
        // (Its canonical form may stay short, so a file made through one name is looked for
        // through the other.)
        QVERIFY(QFile(existing + u"/marker"_s).open(QIODevice::WriteOnly));
        QVERIFY(QFileInfo::exists(shortened + u"/marker"_s));
#else
        // Only Windows shortens; elsewhere an existing path comes back as it is.
        QCOMPARE(ZARSysFileUtilities::CreateShortFilename(existing), existing);
#endif

        const QString missing = dir->filePath(u"missing"_s);
        QString path;
        QCOMPARE(
            fileExceptionText([&] { ZARSysFileUtilities::CreateShortFilename(missing); }, &path),
            u"could not create short path name"_s);
        QCOMPARE(path, missing);
    }

    void copyDirectory_data()
    {
        QTest::addColumn<bool>("recursive");
        QTest::addColumn<bool>("overwrite");
        // The files of the copy as relative path=contents, separated by '|'.
        QTest::addColumn<QString>("expected");

        const QString deep = u"|sub/d.txt=new d|sub/deeper/f.txt=new f"_s;
        addRow("flat, keep existing", false, false,
               u"a.txt=new a|b.txt=old b|c.txt=old c|sub/e.txt=old e"_s);
        addRow("flat, overwrite", false, true,
               u"a.txt=new a|b.txt=new b|c.txt=old c|sub/e.txt=old e"_s);
        addRow("recursive, keep existing", true, false,
               u"a.txt=new a|b.txt=old b|c.txt=old c|sub/e.txt=old e"_s + deep);
        addRow("recursive, overwrite", true, true,
               u"a.txt=new a|b.txt=new b|c.txt=old c|sub/e.txt=new e"_s + deep);
    }

    void copyDirectory()
    {
        QFETCH(bool, recursive);
        QFETCH(bool, overwrite);
        QFETCH(QString, expected);

        const QDir root(dir->path());
        for (const QString &folder : {u"source/sub/deeper"_s, u"source/empty"_s, u"copy/sub"_s})
            QVERIFY(root.mkpath(folder));
        const QString files = u"source/a.txt=new a|source/b.txt=new b|source/.hidden=hidden|"
                              "source/sub/d.txt=new d|source/sub/e.txt=new e|"
                              "source/sub/deeper/f.txt=new f|copy/b.txt=old b|copy/c.txt=old c|"
                              "copy/sub/e.txt=old e"_s;
        for (const QString &file : files.split(u'|'))
            writeFile(root.filePath(file.section(u'=', 0, 0)), file.section(u'=', 1).toUtf8());
        const auto sourceBefore = tree(root.filePath(u"source"_s));

        ZARSysFileUtilities::CopyDirectory(root.filePath(u"source"_s), root.filePath(u"copy"_s),
                                           recursive, overwrite);

        QMap<QString, QByteArray> wanted;
        for (const QString &file : expected.split(u'|'))
            wanted.insert(file.section(u'=', 0, 0), file.section(u'=', 1).toUtf8());
        QCOMPARE(tree(root.filePath(u"copy"_s)), wanted);
        QCOMPARE(root.exists(u"copy/empty"_s), recursive);
        QCOMPARE(tree(root.filePath(u"source"_s)), sourceBefore);
    }

    void copyDirectoryErrors()
    {
        const QDir root(dir->path());
        QString path;
        // The text of the exception of copying the folder "from" to "to", both under root.
        const auto copyError = [&](const QString &from, const QString &to, bool recursive,
                                   bool overwrite) {
            return fileExceptionText(
                [&] {
                    ZARSysFileUtilities::CopyDirectory(root.filePath(from), root.filePath(to),
                                                       recursive, overwrite);
                },
                &path);
        };

        // A missing source is reported before anything is created.
        QCOMPARE(copyError(u"missing"_s, u"target"_s, true, true),
                 u"The source folder cannot be found."_s);
        QCOMPARE(path, root.filePath(u"missing"_s));
        QVERIFY(!root.exists(u"target"_s));

        QVERIFY(root.mkpath(u"source/sub"_s));
        writeFile(root.filePath(u"source/a.txt"_s), "a");
        writeFile(root.filePath(u"source/sub/b.txt"_s), "b");

        // A folder where a file is to go cannot be deleted as a file.
        QVERIFY(root.mkpath(u"blocked/a.txt/inside"_s));
        QCOMPARE(copyError(u"source"_s, u"blocked"_s, false, true),
                 u"The existing file cannot be deleted."_s);
        QCOMPARE(QDir::fromNativeSeparators(path), root.filePath(u"blocked/a.txt"_s));
        // Without overwriting, it is skipped.
        QCOMPARE(copyError(u"source"_s, u"blocked"_s, false, false), u"<no exception>"_s);

        // Only one level of the destination is created.
        QCOMPARE(copyError(u"source"_s, u"no/such/folder"_s, false, false),
                 u"Failed to copy the file."_s);
        QCOMPARE(QDir::fromNativeSeparators(path), root.filePath(u"no/such/folder/a.txt"_s));

        // Files come before subfolders, and a failure stops where it stands: a file in the way of
        // the subfolder fails the copy after the folder's own files were copied.
        QVERIFY(root.mkpath(u"partial"_s));
        writeFile(root.filePath(u"partial/sub"_s), "in the way");
        QCOMPARE(copyError(u"source"_s, u"partial"_s, true, false), u"Failed to copy the file."_s);
        QCOMPARE(readFile(root.filePath(u"partial/a.txt"_s)), QByteArray("a"));
    }

    void locateFileInFolder()
    {
#ifdef Q_OS_WIN
        QSKIP("Windows starts the file browser itself with the file selected, not through a URL "
              "handler; the platform layer's tests check that call");
#endif
        UrlRecorder recorder;
        QDesktopServices::setUrlHandler(u"file"_s, &recorder, "open");

        const QDir root(dir->path());
        QVERIFY(root.mkpath(u"with space/%41 \u00e9"_s));
        const QString folder = root.filePath(u"with space/%41 \u00e9"_s);
        const QString file = folder + u"/x.txt"_s;
        writeFile(file, "x");

        ZARSysFileUtilities::LocateFileInFolder(file);
        ZARSysFileUtilities::LocateFileInFolder(folder);
        ZARSysFileUtilities::LocateFileInFolder(folder + u"/not yet there.txt"_s);
        QDesktopServices::unsetUrlHandler(u"file"_s);

        const QUrl folderUrl = QUrl::fromLocalFile(folder);
        QCOMPARE(recorder.urls, (QList<QUrl> {folderUrl, folderUrl, folderUrl}));
        QCOMPARE(recorder.urls.first().toLocalFile(), folder);
    }

private:
    std::unique_ptr<QTemporaryDir> dir;
};

QTEST_MAIN(tst_FileUtilities)
#include "tst_fileutilities.moc"
