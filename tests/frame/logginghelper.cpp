// Logs as an application would, in a process of its own: the message handler, the filter
// rules and the message pattern belong to the process. tst_logging runs it once per scenario
// with the environment to test, in a working folder of its own, and reads what it wrote to
// stderr and to the text log. The helper prints the text log's file name on stdout.

#include <ZARSysLogging.h>
#include <ZARSystem.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <cstdio>
#include <thread>
#include <vector>

namespace {

void logEveryCategory(const char *tag)
{
    qCDebug(LOG_CAT_ZAR_DEFAULT, "%s default", tag);
    qCDebug(LOG_CAT_ZAR_PERF, "%s performance", tag);
    qCDebug(LOG_CAT_ZAR_PERFTIMING, "%s timing", tag);
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    app.setApplicationName(QStringLiteral("App"));
    const QString scenario = app.arguments().value(1);

    if (scenario == QLatin1String("categories")) {
        ZARSysLogging::Initialize();
        logEveryCategory("first");
    } else if (scenario == QLatin1String("startup")) {
        // The library's start-up initialises logging unless told otherwise.
        const ZARSysInitContext context;
        if (!_ZARSystemLoaded)
            return 3;
        logEveryCategory("first");
    } else if (scenario == QLatin1String("twice")) {
        // The second call changes the rules in the environment first: it applies them only
        // when the text log's handler is not installed.
        ZARSysLogging::Initialize();
        logEveryCategory("first");
        qputenv("ZARLogRules", "ZAR.Default=false");
        ZARSysLogging::Initialize();
        logEveryCategory("second");
    } else if (scenario == QLatin1String("removed")) {
        // The file is opened for every message, so a removed log is written anew.
        ZARSysLogging::Initialize();
        logEveryCategory("first");
        QFile::remove(ZARSysLogging::getTextLogFilePath());
        logEveryCategory("second");
    } else if (scenario == QLatin1String("unopenable")) {
        // A folder in the way of the log file: messages still reach the previous handler.
        ZARSysLogging::Initialize();
        QDir().mkdir(ZARSysLogging::getTextLogFilePath());
        logEveryCategory("first");
        QDir().rmdir(ZARSysLogging::getTextLogFilePath());
        logEveryCategory("second");
    } else if (scenario == QLatin1String("threads")) {
        ZARSysLogging::Initialize();
        const int messages = app.arguments().value(2).toInt();
        // Standard threads rather than QThread: Qt's own synchronisation is invisible to the
        // thread sanitizer build, which would report QThread's bookkeeping as races.
        std::vector<std::thread> threads;
        for (int t = 0; t < 8; ++t) {
            threads.emplace_back([t, messages] {
                for (int i = 0; i < messages; ++i)
                    qCDebug(LOG_CAT_ZAR_DEFAULT,
                            "thread %d message %d of a line that is long "
                            "enough to be written in more than one piece",
                            t, i);
            });
        }
        for (std::thread &thread : threads)
            thread.join();
    } else {
        std::fprintf(stderr, "unknown scenario\n");
        return 2;
    }
    std::printf("%s\n", qPrintable(ZARSysLogging::getTextLogFilePath()));
    return 0;
}
