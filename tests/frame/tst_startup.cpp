// Versions, the resource prefix, the icon theme and the web-engine guard: the free functions
// and guards around start-up. CTest sets "ZARSystemResourcePrefix" for this executable.

#include "../testrow.h"

#include <ZARSysPlatform.h>
#include <ZARSystem.h>

#include <QDate>
#include <QIcon>
#include <QRegularExpression>

#include <optional>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

constexpr char processPathVariable[] = "QTWEBENGINEPROCESS_PATH";

std::optional<QByteArray> processPath()
{
    if (!qEnvironmentVariableIsSet(processPathVariable))
        return std::nullopt;
    return qgetenv(processPathVariable);
}

void setProcessPath(const std::optional<QByteArray> &value)
{
    if (value)
        qputenv(processPathVariable, *value);
    else
        qunsetenv(processPathVariable);
}

// The folder, the native separator, the program's name.
#ifdef Q_OS_WIN
constexpr char libraryProcess[] = "C:/PROGRA~1/ZAR\\QtWebEngineProcess.exe";
#else
constexpr char libraryProcess[] = "C:/PROGRA~1/ZAR/QtWebEngineProcess";
#endif

} // namespace

class tst_Startup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void buildDateAndVersion()
    {
        QCOMPARE(ZARSysGetBuildVersion(), 0);

        // "Mmm dd yyyy" with the day padded by a blank, fixed when the library was built.
        const QString date = ZARSysGetBuildDate();
        static const QRegularExpression form(
            u"^(Jan|Feb|Mar|Apr|May|Jun|Jul|Aug|Sep|Oct|Nov|Dec) [ 1-3][0-9] [0-9]{4}$"_s);
        QVERIFY2(form.match(date).hasMatch(), qPrintable(date));
        const QDate built = QDate::fromString(date.simplified(), u"MMM d yyyy"_s);
        QVERIFY2(built.isValid(), qPrintable(date));
        QVERIFY(built <= QDate::currentDate());
        QCOMPARE(ZARSysGetBuildDate(), date);
    }

    void moduleVersion_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("version");

        const QString version = QStringLiteral(ZARSYS_EXPECTED_MODULE_VERSION);
        addRow("library", QStringLiteral(ZARSYS_LIBRARY_FILE), version);
#ifndef Q_OS_WIN // a DLL is linked through an import library, not a link to the DLL
        addRow("link to the library", QStringLiteral(ZARSYS_LIBRARY_LINK), version);
#endif
        addRow("unversioned file", QCoreApplication::applicationFilePath(), QString());
        addRow("missing file", QCoreApplication::applicationFilePath() + u".missing"_s, QString());
        addRow("empty path", QString(), QString());
    }

    void moduleVersion()
    {
        QFETCH(QString, path);
        QFETCH(QString, version);

        if (version.isEmpty())
            QTest::ignoreMessage(QtDebugMsg, "GetFileVersionInfoSize returned a zero length.");
        QCOMPARE(ZARSysGetModuleVersion(path), version);
    }

    void resourcePrefix()
    {
        // Taken from the environment when the library was loaded.
        QCOMPARE(ZARSysGetResourcePrefix(), u"/opt/zarsys test/prefix"_s);
        ZARSysSetResourcePrefix(u"C:/Program Files/ZAR"_s);
        QCOMPARE(ZARSysGetResourcePrefix(), u"C:/Program Files/ZAR"_s);
        ZARSysSetResourcePrefix(QString());
        QCOMPARE(ZARSysGetResourcePrefix(), QString());
    }

    void initResources_data()
    {
        QTest::addColumn<QString>("fallbackBefore");
        QTest::addColumn<QString>("fallbackAfter");

        addRow("no fallback theme", QString(), u"loom-default"_s);
        addRow("a fallback theme of the application", u"breeze"_s, u"breeze"_s);
    }

    void initResources()
    {
        QFETCH(QString, fallbackBefore);

        QIcon::setFallbackThemeName(fallbackBefore);
        QIcon::setThemeSearchPaths({u"/usr/share/icons"_s, u":/other"_s});
        ZARSysInitResources();
        QTEST(QIcon::fallbackThemeName(), "fallbackAfter");
        QCOMPARE(QIcon::themeSearchPaths(), QStringList {u":/icons"_s});
    }

    void webEngineContextWithoutFolder()
    {
        // Before the library's folder is known, a guard leaves the variable alone.
        QCOMPARE(ZARSysWebEngineContext::GetWorkbenchShortPath(), QString());
        setProcessPath("/opt/other/QtWebEngineProcess");
        {
            const ZARSysWebEngineContext guard;
            QCOMPARE(processPath(), QByteArray("/opt/other/QtWebEngineProcess"));
        }
        QCOMPARE(processPath(), QByteArray("/opt/other/QtWebEngineProcess"));
    }

    void webEngineContext_data()
    {
        QTest::addColumn<std::optional<QByteArray>>("before");
        QTest::addColumn<std::optional<QByteArray>>("inside");

        const QByteArray other("/opt/other/QtWebEngineProcess");
        const std::optional<QByteArray> library(libraryProcess);
        addRow("another process", std::optional(other), library);
        addRow("unset", std::optional<QByteArray>(), std::optional<QByteArray>());
#ifndef Q_OS_WIN // Windows holds no empty variables: setting one to "" removes it.
        addRow("empty", std::optional(QByteArray()), std::optional(QByteArray()));
#endif
        addRow("the library's process", library, library);
    }

    void webEngineContext()
    {
        QFETCH(std::optional<QByteArray>, before);

        ZARSysWebEngineContext::SetWorkbenchShortPath(u"C:/PROGRA~1/ZAR"_s);
        QCOMPARE(ZARSysWebEngineContext::GetWorkbenchShortPath(), u"C:/PROGRA~1/ZAR"_s);

        setProcessPath(before);
        {
            const ZARSysWebEngineContext guard;
            QTEST(processPath(), "inside");
        }
        QCOMPARE(processPath(), before);
    }

    void nestedWebEngineContexts()
    {
        ZARSysWebEngineContext::SetWorkbenchShortPath(u"C:/PROGRA~1/ZAR"_s);
        setProcessPath("/opt/other/QtWebEngineProcess");
        {
            const ZARSysWebEngineContext outer;
            {
                // Finds the library's process in place: nothing to replace, nothing to restore.
                const ZARSysWebEngineContext inner;
                QCOMPARE(processPath(), QByteArray(libraryProcess));
            }
            QCOMPARE(processPath(), QByteArray(libraryProcess));
        }
        QCOMPARE(processPath(), QByteArray("/opt/other/QtWebEngineProcess"));
    }

    void comGuardsCount()
    {
#ifndef Q_OS_WIN
        QSKIP("COM exists only on Windows; elsewhere the guards only count");
#endif
        // Whether COM is free on this thread: a probe that initialises it afresh (and balances
        // that at once) finds no guard holding it.
        const auto comFree = [] {
            const bool fresh = ZARSysPlatform::InitializeCom();
            ZARSysPlatform::UninitializeCom();
            return fresh;
        };
        // On a thread of its own, where nothing else initialised COM.
        QList<bool> seen;
        std::thread([&] {
            seen << comFree();
            {
                ZARSysCOMInitializer outer;
                seen << comFree();
                {
                    ZARSysCOMInitializer inner;
                    inner = outer; // assignment leaves both counted
                }
                seen << comFree(); // the outer guard still holds COM
            }
            seen << comFree();
        }).join();
        QCOMPARE(seen, QList<bool>({true, false, false, true}));
    }
};

QTEST_MAIN(tst_Startup)

#include "tst_startup.moc"
