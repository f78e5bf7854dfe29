#include "../testrow.h"

#include <ZARSysPlatform.h>
#include <ZARSystem.h>

#include "ZARSysEnvironmentPrivate.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QResource>
#include <QSettings>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(ZARSysQtConfPatch)

namespace {

// Environment variables for the helper: a value, or unset when null.
using Variables = QMap<QString, QString>;

// One spelling of an existing path: canonical and, on Windows, in its short form, which the
// library reports for its own folder (a canonical path may keep a short name there).
QString canonical(const QString &path)
{
    const QString canonicalPath = QFileInfo(path).canonicalFilePath();
    const std::optional<std::u16string> shortPath =
        ZARSysPlatform::ShortPathName(QDir::toNativeSeparators(canonicalPath).toStdU16String());
    return shortPath ? QDir::fromNativeSeparators(QString::fromStdU16String(*shortPath))
                     : canonicalPath;
}

} // namespace

class tst_Environment : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        moduleDirectory = QFileInfo(QStringLiteral(ZARSYS_LIBRARY_FILE)).absolutePath();
        QVERIFY(QFile::exists(moduleDirectory + u"/Resources/loom-default.rcc"_s));
    }

    void startUp_data()
    {
        QTest::addColumn<QStringList>("flags");
        QTest::addColumn<Variables>("variables");
        // QTWEBENGINEPROCESS_PATH, QT_QPA_PLATFORM_PLUGIN_PATH, PATH and the workbench folder,
        // separated by '|'; %M is the library's folder, %W the web engine's process in it, %S the
        // separator of the search path and %P the search path the helper inherits (on Windows it
        // finds Qt's DLLs through it).
        QTest::addColumn<QString>("expected");

        const QString inherited = qEnvironmentVariable("PATH");
        const QString separator = QDir::listSeparator();
        const Variables clean {{u"PATH"_s, u"/clean"_s + separator + inherited}};
        const Variables preset {{u"PATH"_s, u"/preset"_s + separator + inherited},
                                {u"QTWEBENGINEPROCESS_PATH"_s, u"/preset/web"_s},
                                {u"QT_QPA_PLATFORM_PLUGIN_PATH"_s, u"/preset/plugins"_s}};

        addRow("no flags", QStringList(), clean, u"%W|%M|%M%S/clean%S%P|%M"_s);
        addRow("no flags, variables set", QStringList(), preset,
               u"%W|/preset/plugins|%M%S/preset%S%P|%M"_s);
        addRow("no flags, empty plug-in path", QStringList(),
               Variables {{u"QT_QPA_PLATFORM_PLUGIN_PATH"_s, u""_s}}, u"%W|%M|%M%S%P|%M"_s);
        addRow("flag 0", QStringList {u"0"_s}, clean, u"<unset>|<unset>|%M%S/clean%S%P|"_s);
        addRow("flag 0, variables set", QStringList {u"0"_s}, preset,
               u"/preset/web|/preset/plugins|%M%S/preset%S%P|"_s);
        addRow("flag 0 among others", QStringList {u"3"_s, u"0"_s}, clean,
               u"<unset>|<unset>|%M%S/clean%S%P|"_s);
#ifndef Q_OS_WIN
        // An empty element would stand for the current folder. (A Windows program without a search
        // path does not find Qt's DLLs; tst_platform has the Windows form, "folder;".)
        addRow("no PATH", QStringList(), Variables {{u"PATH"_s, QString()}}, u"%W|%M|%M|%M"_s);
#endif
    }

    void startUp()
    {
        QFETCH(QStringList, flags);
        QFETCH(Variables, variables);
        QFETCH(QString, expected);

        const auto results = runHelper(flags, variables);
        const auto values = [&results](const QStringList &names) {
            QStringList values;
            for (const QString &name : names)
                values.append(results.value(name));
            return values;
        };
        QCOMPARE(values({u"loaded-before"_s, u"loaded"_s, u"filter-type"_s, u"icons"_s}),
                 (QStringList {u"0"_s, u"1"_s, u"1"_s, u"1"_s}));

        // The library reports its folder as the loader found it (on Windows in its short form);
        // compare folders by identity.
        const QString reported = results.value(u"PATH"_s).section(QDir::listSeparator(), 0, 0);
        QCOMPARE(canonical(reported), canonical(moduleDirectory));
        const QString process = reported + QDir::separator()
            + QString::fromStdU16String(ZARSysPlatform::ExecutableName(u"QtWebEngineProcess"));
        QCOMPARE(values({u"QTWEBENGINEPROCESS_PATH"_s, u"QT_QPA_PLATFORM_PLUGIN_PATH"_s, u"PATH"_s,
                         u"workbench"_s}),
                 expected.replace(u"%W"_s, process)
                     .replace(u"%M"_s, reported)
                     .replace(u"%S"_s, QDir::listSeparator())
                     .replace(u"%P"_s, qEnvironmentVariable("PATH"))
                     .split(u'|'));
    }

    void iconResourceFile_data()
    {
        QTest::addColumn<QString>("prefix");
        QTest::addColumn<bool>("registered");

        QVERIFY(QDir(folder.path()).mkpath(u"with theme/Resources"_s));
        QVERIFY(QFile::copy(moduleDirectory + u"/Resources/loom-default.rcc"_s,
                            folder.filePath(u"with theme/Resources/loom-default.rcc"_s)));
        addRow("empty prefix: beside the library", QString(), true);
        addRow("prefix with the file", folder.filePath(u"with theme"_s), true);
        addRow("prefix without the file", folder.path(), false);
    }

    void iconResourceFile()
    {
        QFETCH(QString, prefix);
        QFETCH(bool, registered);

        for (const QStringList &flags : {QStringList(), QStringList {u"0"_s}}) {
            const auto results = runHelper(flags, {{u"ZARSystemResourcePrefix"_s, prefix}});
            QCOMPARE(results.value(u"loaded"_s), u"1"_s); // a missing file is no failure
            QCOMPARE(results.value(u"icons"_s), registered ? u"1"_s : u"0"_s);
        }
    }

    void patchQtConf_data()
    {
        QTest::addColumn<QByteArray>("resource");
        QTest::addColumn<QString>("directory");
        QTest::addColumn<QByteArray>("patched");
        QTest::addColumn<ZARSysQtConfPatch>("result");

        const auto patched = ZARSysQtConfPatch::Patched;
        const auto tooLong = ZARSysQtConfPatch::TooLong;
        addRow("room to spare", "A=XXXXXX\nB"_ba, u"ab"_s, "A=ab\n;XX\nB"_ba, patched);
        addRow("exact fit", "A=XXXX\nB"_ba, u"ab"_s, "A=ab\n;\nB"_ba, patched);
        addRow("one byte short", "A=XXX\nB"_ba, u"ab"_s, "A=XXX\nB"_ba, tooLong);
        addRow("the first run counts", "XX YYXXXXXXXX"_ba, u"a"_s, "XX YYXXXXXXXX"_ba, tooLong);
        addRow("no placeholder", "A=xx"_ba, u"a"_s, "A=xx"_ba, ZARSysQtConfPatch::NoPlaceholder);
        addRow("empty folder", "XXX"_ba, QString(), "\n;X"_ba, patched);
        addRow("Latin-1", "XXXXXXX"_ba, u"C:/\u00dc"_s, "C:/\xdc\n;X"_ba, patched);
        addRow("placeholder at the end", "A=XXXXX"_ba, u"abc"_s, "A=abc\n;"_ba, patched);
    }

    void patchQtConf()
    {
        QFETCH(QByteArray, resource);
        QFETCH(QString, directory);

        QTEST(ZARSysPatchQtConfResource(resource, directory), "result");
        QTEST(resource, "patched");
    }

    void qtConfResource()
    {
        // The library carries a compiled qt.conf whose first 'X' starts the placeholder. (Its
        // resources are there once it is loaded, which this call makes sure of.)
        QCOMPARE(ZARSysGetBuildVersion(), 0);
        QFile file(u":/qt.conf.rcc"_s);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray original = file.readAll();
        const qsizetype start = original.indexOf('X');
        QVERIFY(start > 0);
        QVERIFY(original.mid(start, 1024) == QByteArray(1024, 'X'));

        QByteArray tooLong = original;
        QCOMPARE(ZARSysPatchQtConfResource(tooLong, QString(1023, u'a')),
                 ZARSysQtConfPatch::TooLong);
        QCOMPARE(tooLong, original);

        // Patched as start-up does, it is a resource file whose qt.conf names the folder. It is
        // registered under roots of its own here, so that this process's Qt is not affected (and
        // QSettings, which caches files by name, reads each anew).
        int round = 0;
        for (const QString &directory : {u"C:/PROGRA~1/ZARSYS~1/bin"_s, QString(1022, u'd')}) {
            const QString root = u"/patched%1"_s.arg(++round);
            static QList<QByteArray> keepAlive; // registered data must outlive its registration
            keepAlive.append(original);
            QByteArray &resource = keepAlive.last();
            QCOMPARE(ZARSysPatchQtConfResource(resource, directory), ZARSysQtConfPatch::Patched);
            QCOMPARE(resource.size(), original.size());
            const auto *data = reinterpret_cast<const uchar *>(resource.constData());
            QVERIFY(QResource::registerResource(data, root));
            {
                QSettings conf(u":"_s + root + u"/qt/etc/qt.conf"_s, QSettings::IniFormat);
                QCOMPARE(conf.status(), QSettings::NoError);
                QCOMPARE(conf.allKeys(), QStringList {u"Paths/Prefix"_s});
                QCOMPARE(conf.value(u"Paths/Prefix"_s).toString(), directory);
            }
            QVERIFY(QResource::unregisterResource(data, root));
        }
    }

private:
    QMap<QString, QString> runHelper(const QStringList &flags, const Variables &variables)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const QString &name : {u"QTWEBENGINEPROCESS_PATH"_s, u"QT_QPA_PLATFORM_PLUGIN_PATH"_s,
                                    u"ZARSystemResourcePrefix"_s})
            environment.remove(name);
        environment.insert(u"ZARNestExeUT"_s, u"1"_s); // no log files
        for (auto it = variables.begin(); it != variables.end(); ++it) {
            if (it.value().isNull())
                environment.remove(it.key());
            else
                environment.insert(it.key(), it.value());
        }
        QProcess helper;
        helper.setProcessEnvironment(environment);
        // In text mode, as Windows programs end their lines with CRLF.
        helper.start(QStringLiteral(ZARSYS_ENVIRONMENT_HELPER), flags,
                     QIODevice::ReadWrite | QIODevice::Text);
        if (!helper.waitForFinished(30000) || helper.exitCode() != 0) {
            qWarning() << helper.readAllStandardError();
            return {};
        }
        QMap<QString, QString> results;
        const QStringList lines = QString::fromUtf8(helper.readAllStandardOutput()).split(u'\n');
        for (const QString &line : lines) {
            if (!line.isEmpty())
                results.insert(line.section(u'=', 0, 0), line.section(u'=', 1));
        }
        return results;
    }

    QString moduleDirectory;
    QTemporaryDir folder;
};

QTEST_GUILESS_MAIN(tst_Environment)
#include "tst_environment.moc"
