// Start-up: the first ZARSysInitContext of a process, constructed after the application object,
// beside 50 QMetaType::registerConverter() calls; and the whole run of "zarsys info" beside a
// bare QCoreApplication program. A first-time cost happens once per process, so each one is
// measured in child processes (this program started again with a child argument, or the two
// programs), and the median of several children is reported. The children get the
// environment the benchmarks started with: a temporary home, the offscreen platform.

#include "BenchCommon.h"

#include <ZARSystem.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QMetaType>
#include <QProcess>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <utility>
#include <vector>

namespace {

constexpr int childRuns = 15;
constexpr int processRuns = 21;
constexpr int convertersRegistered = 50;

// Types of their own for the reference's converters: a converter is registered only once per
// pair of types.
template<int N>
struct Probe
{
    double value = 0.0;
};

template<int... N>
void registerProbeConverters(std::integer_sequence<int, N...>)
{
    (QMetaType::registerConverter<Probe<N>, double>(
         [](const Probe<N> &probe) { return probe.value; }),
     ...);
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// Runs program with arguments to its end; its wall-clock time in seconds, or -1 when it
// failed. Its standard output is kept in output.
double runProcess(const QString &program, const QStringList &arguments, QByteArray *output)
{
    QProcess process;
    process.setProcessEnvironment(Bench::childEnvironment());
    QElapsedTimer timer;
    timer.start();
    process.start(program, arguments);
    if (!process.waitForFinished(-1) || process.exitStatus() != QProcess::NormalExit
        || process.exitCode() != 0) {
        return -1.0;
    }
    const double seconds = double(timer.nsecsElapsed()) / 1e9;
    if (output)
        *output = process.readAllStandardOutput();
    return seconds;
}

// The median of what childRuns children measured of the first-time cost child.
void firstTimeCost(benchmark::State &state, const std::string &child)
{
    for (auto _ : state) {
        std::vector<double> seconds;
        for (int run = 0; run < childRuns; ++run) {
            QByteArray output;
            const QString program = QCoreApplication::applicationFilePath();
            const QString argument = QString::fromStdString(Bench::childArgument(child));
            const bool ran = runProcess(program, {argument}, &output) >= 0.0;
            bool ok = false;
            const double nanoseconds = output.trimmed().toDouble(&ok);
            if (!ran || !ok || nanoseconds <= 0.0) {
                state.SkipWithError("a child process failed");
                return;
            }
            seconds.push_back(nanoseconds / 1e9);
        }
        state.SetIterationTime(median(seconds));
    }
    state.SetItemsProcessed(state.iterations());
}

// The median wall-clock time of processRuns runs of program, after one that fills the caches
// (and, for zarsys, makes its settings file).
void processStart(benchmark::State &state, const QString &program, const QStringList &arguments)
{
    if (program.isEmpty()) {
        state.SkipWithError("not built (ZARSYS_BUILD_TOOLS is off)");
        return;
    }
    if (runProcess(program, arguments, nullptr) < 0.0) {
        state.SkipWithError("the program failed");
        return;
    }
    for (auto _ : state) {
        std::vector<double> seconds;
        for (int run = 0; run < processRuns; ++run) {
            const double time = runProcess(program, arguments, nullptr);
            if (time < 0.0) {
                state.SkipWithError("the program failed");
                return;
            }
            seconds.push_back(time);
        }
        state.SetIterationTime(median(seconds));
    }
    state.SetItemsProcessed(state.iterations());
}

} // namespace

std::string Bench::childArgument(const std::string &name)
{
    return "--zarsys-benchmarks-child=" + name;
}

int Bench::runChild(const std::string &name, int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    using Clock = std::chrono::steady_clock;
    const Clock::time_point start = Clock::now();
    Clock::time_point end;
    if (name == "init-context") {
        const ZARSysInitContext context;
        end = Clock::now();
    } else if (name == "register-converters") {
        registerProbeConverters(std::make_integer_sequence<int, convertersRegistered>());
        end = Clock::now();
    } else {
        return 2;
    }
    std::printf("%lld\n",
                static_cast<long long>(
                    std::chrono::duration_cast<std::chrono::nanoseconds>(end - start).count()));
    return 0;
}

void Bench::registerStartupBenchmarks()
{
    add("Startup/first ZARSysInitContext",
        [](benchmark::State &state) { firstTimeCost(state, "init-context"); })
        ->Iterations(1)
        ->UseManualTime();
    add("Reference.Startup/50 registerConverter calls",
        [](benchmark::State &state) { firstTimeCost(state, "register-converters"); })
        ->Iterations(1)
        ->UseManualTime();
    addRow({"first ZARSysInitContext of a process", "Startup/first ZARSysInitContext",
            "50 QMetaType::registerConverter() calls",
            "Reference.Startup/50 registerConverter calls", Goal::Cost, 10.0, "≤ 10x cost"});

#ifdef ZARSYS_BENCH_ZARSYS
    const QString zarsys = QStringLiteral(ZARSYS_BENCH_ZARSYS);
#else
    const QString zarsys;
#endif
    add("Startup/process zarsys info",
        [zarsys](benchmark::State &state) {
            processStart(state, zarsys, {QStringLiteral("info")});
        })
        ->Iterations(1)
        ->UseManualTime();
    add("Reference.Startup/process bare QCoreApplication",
        [](benchmark::State &state) {
            processStart(state, QStringLiteral(ZARSYS_BENCH_BARE_APPLICATION), {});
        })
        ->Iterations(1)
        ->UseManualTime();
    addRow({"whole process: zarsys info", "Startup/process zarsys info",
            "a bare QCoreApplication program", "Reference.Startup/process bare QCoreApplication",
            Goal::Cost, 1.5, "≤ 1.5x cost"});
}
