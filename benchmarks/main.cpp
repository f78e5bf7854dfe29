// zarsys-benchmarks: each library operation beside a reference, measured in the same run, and
// one table of the results.
//
// The program starts the library as a host application does (application object,
// ZARSysInitContext with the text log on, a settings file, the locale en_US), with its home,
// configuration, logs and data files in a temporary folder that is removed at exit. It then
// runs the benchmarks that Google Benchmark's options select (--benchmark_filter,
// --benchmark_min_time, --benchmark_repetitions, --benchmark_out, ...) and prints the table
// as Markdown, or as JSON with --benchmark_format=json. Progress goes to the standard error.
//
//   zarsys-benchmarks [--benchmark_filter=REGEX] [--benchmark_format=console|json] ...
//
// Started with a child argument (see Bench::childArgument()), it measures one first-time cost
// in its own process instead and prints it.

#include "BenchCommon.h"
#include "TableReporter.h"

#include <ZARSysLocalizationManager.h>
#include <ZARSysSettingsManager.h>
#include <ZARSystem.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include <fcntl.h>
#include <spawn.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <memory>

namespace {

QTemporaryDir *runFolder = nullptr;
QProcessEnvironment environmentBeforeStart;

// The text log hands every message on to this handler. The benchmarks' own log messages stop
// here, so that the text log is measured and not the terminal; anything more serious than
// information is shown.
void consoleHandler(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtDebugMsg || type == QtInfoMsg)
        return;
    std::fprintf(stderr, "%s\n", message.toLocal8Bit().constData());
}

// A home of the run's own, so that nothing reads or writes the user's, and the switches of the
// library's logging in a known state.
void prepareEnvironment(const QString &folder)
{
    const auto set = [&](const char *name, const char *subfolder) {
        const QString path = folder + QLatin1Char('/') + QLatin1String(subfolder);
        QDir().mkpath(path);
        qputenv(name, QFile::encodeName(path));
    };
    set("HOME", "home");
    set("XDG_CONFIG_HOME", "home/.config");
    set("XDG_DATA_HOME", "home/.local/share");
    set("XDG_CACHE_HOME", "home/.cache");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    for (const char *name : {"ZARLogRules", "ZAREnableTxtLog", "ZAREnableZARLog", "ZARNestExeUT",
                             "ZARModelerDebug", "QT_MESSAGE_PATTERN"}) {
        qunsetenv(name);
    }
}

// Removes folder once this process has ended, however it ends: a shell waits for the end of a
// pipe whose writing end only this process holds (it is closed in every program this one
// starts), then removes the folder. A run that is interrupted or crashes thus leaves neither
// the file it hashes nor its logs behind; a normal end removes the folder itself.
void removeWhenEnded(const QString &folder)
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
        return;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[0], STDIN_FILENO);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    QByteArray path = QFile::encodeName(folder);
    char shell[] = "sh";
    char option[] = "-c";
    char script[] = "cat; rm -rf -- \"$0\"";
    char *const arguments[] = {shell, option, script, path.data(), nullptr};
    pid_t pid = 0;
    posix_spawnp(&pid, "sh", &actions, nullptr, arguments, environ);
    posix_spawn_file_actions_destroy(&actions);
    ::close(ends[0]);
    // ends[1] stays open until the process ends.
}

} // namespace

QString Bench::temporaryFolder()
{
    return runFolder ? runFolder->path() : QDir::tempPath();
}

QProcessEnvironment Bench::childEnvironment()
{
    return environmentBeforeStart;
}

Bench::LocaleScope::LocaleScope(const char *name)
    : m_previous(ZARSysLocalizationManager::GetManager()->GetLocale())
{
    const QLocale locale(QString::fromLatin1(name));
    if (locale != m_previous)
        ZARSysLocalizationManager::GetManager()->SetLocale(locale);
}

Bench::LocaleScope::~LocaleScope()
{
    if (ZARSysLocalizationManager::GetManager()->GetLocale() != m_previous)
        ZARSysLocalizationManager::GetManager()->SetLocale(m_previous);
}

int main(int argc, char **argv)
{
    for (const char *child : {"init-context", "register-converters"}) {
        if (argc >= 2 && Bench::childArgument(child) == argv[1])
            return Bench::runChild(child, argc, argv);
    }

    // Read before Google Benchmark takes its options out of the list.
    bool json = false;
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--benchmark_format=json") == 0)
            json = true;
    }

    // Google Benchmark ends the program itself for --help, before anything is made.
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;

    QTemporaryDir folder(QDir::tempPath() + QStringLiteral("/zarsys-bench-XXXXXX"));
    if (!folder.isValid()) {
        std::fprintf(stderr, "zarsys-benchmarks: cannot make a temporary folder in %s\n",
                     QDir::tempPath().toLocal8Bit().constData());
        return 1;
    }
    runFolder = &folder;
    removeWhenEnded(folder.path());
    prepareEnvironment(folder.path());
    environmentBeforeStart = QProcessEnvironment::systemEnvironment();

    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("zarsys-benchmarks"));

    // The text log writes into the current folder, so that is the run's log folder.
    const QString logFolder = folder.filePath(QStringLiteral("log"));
    QDir().mkpath(logFolder);
    QDir::setCurrent(logFolder);
    qInstallMessageHandler(consoleHandler);
    qputenv("ZAREnableTxtLog", "1");
    const auto context = std::make_unique<ZARSysInitContext>();
    qunsetenv("ZAREnableTxtLog");
    ZARSysSettingsManager::GetManager()->SetSource(new QSettings(
        folder.filePath(QStringLiteral("zarsys-benchmarks.ini")), QSettings::IniFormat));
    ZARSysLocalizationManager::GetManager()->SetLocale(QLocale(QStringLiteral("en_US")));

    Bench::registerQuantityBenchmarks();
    Bench::registerFilterBenchmarks();
    Bench::registerTextBenchmarks();
    Bench::registerFileBenchmarks();
    Bench::registerDiagnosticsBenchmarks();
    Bench::registerEventLoopBenchmarks();
    Bench::registerStartupBenchmarks();

    Bench::TableReporter reporter(json ? Bench::TableReporter::Json
                                       : Bench::TableReporter::Markdown);
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();

    // The settings groups would otherwise save themselves at exit into a folder that is gone.
    ZARSysSettingsManager::GetManager()->SetSource(nullptr);
    QDir::setCurrent(QDir::tempPath());
    // Missed targets are results; only a benchmark that could not measure fails the run.
    return reporter.erroneousRuns() > 0 ? 1 : 0;
}
