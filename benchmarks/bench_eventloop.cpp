// The event loop: ZARSysIdleManager running batches of idle tasks beside a chain of
// zero-interval single-shot timers, each started by the previous one (QTimer::singleShot(0),
// and for comparison one QTimer object restarted from its own timeout, the kind of timer the
// manager itself uses); and
// ZARSysInterrupt::CheckForInterrupt() at times when no event processing is due beside the
// clock reading it cannot do without.

#include "BenchCommon.h"

#include <ZARSysException.h>
#include <ZARSysIdleManager.h>
#include <ZARSysIdleTask.h>
#include <ZARSysInterrupt.h>

#include <QDateTime>
#include <QEventLoop>
#include <QTimer>

#include <functional>

namespace {

constexpr int batch = 1000;
// A batch that has not finished after this long never will.
constexpr int watchdogMilliseconds = 60000;

// A task that counts its executions.
class CountingTask : public ZARSysIdleTask
{
public:
    CountingTask(int &executions, const QByteArray &id)
        : m_executions(executions)
        , m_id(id)
    { }

    void Execute() override { ++m_executions; }
    QByteArray GetTaskId() override { return m_id; }

private:
    int &m_executions;
    QByteArray m_id;
};

void idleTasks(benchmark::State &state)
{
    ZARSysIdleManager *const manager = ZARSysIdleManager::GetManager();
    if (!manager->IsIdle() || !manager->GetAllQueuedTasks().isEmpty()) {
        state.SkipWithError("the idle manager is busy");
        return;
    }
    QEventLoop loop;
    QObject::connect(manager, &ZARSysIdleManager::FullyIdleBegin, &loop, &QEventLoop::quit);
    QTimer watchdog;
    watchdog.setSingleShot(true);
    bool timedOut = false;
    QObject::connect(&watchdog, &QTimer::timeout, &loop, [&] {
        timedOut = true;
        loop.quit();
    });
    // Two identifiers in turn: a task whose identifier equals the last queued one's would be
    // rejected as a duplicate.
    const QByteArray even = QByteArrayLiteral("even");
    const QByteArray odd = QByteArrayLiteral("odd");
    int executions = 0;
    for (auto _ : state) {
        for (int i = 0; i < batch; ++i)
            manager->AddTask(new CountingTask(executions, i % 2 ? odd : even));
        watchdog.start(watchdogMilliseconds);
        loop.exec();
        if (timedOut) {
            state.SkipWithError("the idle manager did not become idle again");
            return;
        }
    }
    if (executions != state.iterations() * batch) {
        state.SkipWithError("not every task ran");
        return;
    }
    state.SetItemsProcessed(state.iterations() * batch);
}

void timerChain(benchmark::State &state)
{
    QEventLoop loop;
    QTimer timer;
    timer.setSingleShot(true);
    timer.setInterval(0);
    int remaining = 0;
    qint64 fired = 0;
    QObject::connect(&timer, &QTimer::timeout, &loop, [&] {
        ++fired;
        if (--remaining > 0)
            timer.start();
        else
            loop.quit();
    });
    for (auto _ : state) {
        remaining = batch;
        timer.start();
        loop.exec();
    }
    if (fired != state.iterations() * batch) {
        state.SkipWithError("not every timer fired");
        return;
    }
    state.SetItemsProcessed(state.iterations() * batch);
}

// Qt delivers QTimer::singleShot(0, ...) as a queued call (an event posted to the context
// object) rather than through a timer of the event dispatcher.
void singleShotChain(benchmark::State &state)
{
    QEventLoop loop;
    int remaining = 0;
    qint64 fired = 0;
    std::function<void()> step = [&] {
        ++fired;
        if (--remaining > 0)
            QTimer::singleShot(0, &loop, step);
        else
            loop.quit();
    };
    for (auto _ : state) {
        remaining = batch;
        QTimer::singleShot(0, &loop, step);
        loop.exec();
    }
    if (fired != state.iterations() * batch) {
        state.SkipWithError("not every call arrived");
        return;
    }
    state.SetItemsProcessed(state.iterations() * batch);
}

void checkForInterrupt(benchmark::State &state)
{
    try {
        const ZARSysInterruptEnableContext region;
        ZARSysInterrupt::CheckForInterrupt(); // the first check processes events
        for (auto _ : state)
            ZARSysInterrupt::CheckForInterrupt();
    } catch (const ZARSysAbortComputationException &) {
        state.SkipWithError("the computation was interrupted");
        return;
    }
    state.SetItemsProcessed(state.iterations());
}

void currentTime(benchmark::State &state)
{
    for (auto _ : state) {
        const qint64 now = QDateTime::currentMSecsSinceEpoch();
        benchmark::DoNotOptimize(now);
    }
    state.SetItemsProcessed(state.iterations());
}

} // namespace

void Bench::registerEventLoopBenchmarks()
{
    add("IdleManager/tasks, batches of 1000", idleTasks);
    add("Reference.QTimer::singleShot chain/0 ms", singleShotChain);
    add("Reference.QTimer chain/0 ms single-shot", timerChain);
    addRow({"ZARSysIdleManager, tasks run", "IdleManager/tasks, batches of 1000",
            "chain of QTimer::singleShot(0, ...)", "Reference.QTimer::singleShot chain/0 ms",
            Goal::Faster, 0.5, "≥ 0.5x"});
    addRow({"ZARSysIdleManager, tasks run", "IdleManager/tasks, batches of 1000",
            "chain of one 0 ms single-shot QTimer restarted",
            "Reference.QTimer chain/0 ms single-shot", Goal::Information, 0.0, "(for comparison)"});

    add("Interrupt::CheckForInterrupt/nothing due", checkForInterrupt);
    add("Reference.QDateTime::currentMSecsSinceEpoch", currentTime);
    addRow({"ZARSysInterrupt::CheckForInterrupt(), nothing due",
            "Interrupt::CheckForInterrupt/nothing due", "QDateTime::currentMSecsSinceEpoch()",
            "Reference.QDateTime::currentMSecsSinceEpoch", Goal::Cost, 1.5, "≤ 1.5x cost"});
}
