#include "ZARSysIdleManager.h"

#include "ZARSysGlobalStatic.h"
#include "ZARSysIdleManagerPrivate.h"
#include "ZARSysIdleReporter.h"
#include "ZARSysIdleTask.h"
#include "ZARSysIdleTaskPrivate.h"
#include "ZARSysLogging.h"

#include <QCoreApplication>
#include <QPointer>

namespace {

ZARSysIdleManagerPrivate *liveManager = nullptr;

} // namespace

// The manager's state.

ZARSysIdleManagerPrivate::ZARSysIdleManagerPrivate(ZARSysIdleManager *owner)
    : QObject(owner)
    , owner(owner)
    , executeTimer(this)
    , checkTimer(this)
{
    executeTimer.setInterval(0);
    executeTimer.setSingleShot(true);
    checkTimer.setInterval(0);
    checkTimer.setSingleShot(true);
    connect(&executeTimer, &QTimer::timeout, this, &ZARSysIdleManagerPrivate::OnExecuteNext);
    connect(&checkTimer, &QTimer::timeout, this, &ZARSysIdleManagerPrivate::CheckIdleState);
    liveManager = this;
}

ZARSysIdleManagerPrivate::~ZARSysIdleManagerPrivate()
{
    // The process is exiting. Tasks that never ran are left alone: the code of their
    // destructors may be gone already.
    liveManager = nullptr;
}

ZARSysIdleManagerPrivate *ZARSysIdleManagerPrivate::Live()
{
    return liveManager;
}

bool ZARSysIdleManagerPrivate::MayBecomeIdle() const
{
    return blockCount == 0 && busyCount == 0 && !currentTask;
}

void ZARSysIdleManagerPrivate::ScheduleCheck()
{
    // While something keeps the manager busy, an evaluation would change nothing, so none is
    // scheduled: a busy application is not woken. Nor after the application is gone.
    if (MayBecomeIdle() && !checkTimer.isActive() && QCoreApplication::instance())
        checkTimer.start();
}

void ZARSysIdleManagerPrivate::ScheduleExecution()
{
    if (!executeTimer.isActive())
        executeTimer.start();
}

bool ZARSysIdleManagerPrivate::HasExecutableTask() const
{
    for (const ZARSysIdleTask *task : queue) {
        if (task->GetTaskExecutableStatus() == ZARSysIdleTask::Executable)
            return true;
    }
    return false;
}

void ZARSysIdleManagerPrivate::CheckIdleState()
{
    const bool candidate = MayBecomeIdle();
    if (candidate == idle)
        return;
    executeTimer.stop();
    if (candidate) {
        // Idle time is not announced while there is work to do.
        if (HasExecutableTask()) {
            ScheduleExecution();
            return;
        }
        idle = true;
        Q_EMIT owner->IdleBegin();
        // A receiver of IdleBegin() may have queued work.
        if (!HasExecutableTask())
            Q_EMIT owner->FullyIdleBegin();
    } else {
        idle = false;
        Q_EMIT owner->IdleEnd();
    }
}

void ZARSysIdleManagerPrivate::OnExecuteNext()
{
    ZARSysIdleTask *task = nullptr;
    qsizetype index = 0;
    for (; index < queue.size(); ++index) {
        if (queue.at(index)->GetTaskExecutableStatus() == ZARSysIdleTask::Executable) {
            task = queue.at(index);
            break;
        }
    }
    if (!task) {
        ScheduleCheck();
        return;
    }

    // Receivers of IdleEnd() may delete the task, and the task may delete itself while it
    // runs; either way it leaves the queue and clears the current task on its own.
    currentTask = task;
    CheckIdleState();
    if (currentTask)
        task->Execute();
    if (currentTask) {
        disconnect(task, &ZARSysIdleTask::ExecutableStatusChanged, this,
                   &ZARSysIdleManagerPrivate::OnTaskExecutableStatusChanged);
        Dequeue(task, index);
        if (task->ShouldDeleteAfterExecute())
            delete task;
    }
    currentTask = nullptr;
    ScheduleCheck();
}

void ZARSysIdleManagerPrivate::OnTaskExecutableStatusChanged(
    ZARSysIdleTask::TaskExecutableStatus status)
{
    if (status == ZARSysIdleTask::Executable)
        ScheduleCheck();
}

void ZARSysIdleManagerPrivate::AddReporter(ZARSysIdleReporter *reporter, bool idle)
{
    reporters.append(reporter);
    if (!idle && ++busyCount == 1)
        CheckIdleState();
}

void ZARSysIdleManagerPrivate::RemoveReporter(ZARSysIdleReporter *reporter, bool idle)
{
    reporters.removeAll(reporter);
    if (!idle && --busyCount == 0)
        ScheduleCheck();
}

void ZARSysIdleManagerPrivate::ReporterChanged(bool idle)
{
    if (!idle) {
        if (++busyCount == 1)
            CheckIdleState();
    } else if (--busyCount == 0) {
        ScheduleCheck();
    }
}

void ZARSysIdleManagerPrivate::BeginBlock()
{
    if (++blockCount == 1)
        CheckIdleState();
}

void ZARSysIdleManagerPrivate::EndBlock()
{
    if (--blockCount == 0)
        ScheduleCheck();
}

void ZARSysIdleManagerPrivate::Dequeue(ZARSysIdleTask *task, qsizetype hint)
{
    int &queued = ZARSysIdleTaskPrivate::get(task)->queued;
    if (queued == 1) {
        // Usually still where it was found: at the front.
        queue.removeAt(hint < queue.size() && queue.at(hint) == task ? hint : queue.indexOf(task));
    } else if (queued > 1) {
        queue.removeAll(task);
    }
    queued = 0;
}

void ZARSysIdleManagerPrivate::ForgetTask(ZARSysIdleTask *task)
{
    if (task == currentTask)
        currentTask = nullptr;
    if (ZARSysIdleTaskPrivate::get(task)->queued == 0)
        return; // neither queued nor connected
    disconnect(task, nullptr, this, nullptr);
    Dequeue(task, 0);
}

// The manager.

ZARSysIdleManager::ZARSysIdleManager()
    : d_ptr(std::make_unique<ZARSysIdleManagerPrivate>(this))
{ }

ZARSysIdleManager::~ZARSysIdleManager() = default;

ZARSysIdleManager *ZARSysIdleManager::GetManager()
{
    // Its timers need the event loop of the application's thread, even if another thread
    // asked first.
    return ZARSysGlobalStatic<ZARSysIdleManager>::Get(
        [] {
            auto *manager = new ZARSysIdleManager;
            ZARSysMoveToApplicationThread(manager); // with its state and timers, its children
            return manager;
        },
        [](ZARSysIdleManager *manager) { delete manager; });
}

void ZARSysIdleManager::AddTask(ZARSysIdleTask *task)
{
    Q_D(ZARSysIdleManager);
    if (!task)
        return;
    if (!d->queue.isEmpty()
        && d->queue.last()->GetTaskExecutableStatus() == ZARSysIdleTask::Executable) {
        const QByteArray id = task->GetTaskId();
        if (d->queue.last()->GetTaskId() == id) {
            qCDebug(LOG_CAT_ZAR_DEFAULT).noquote().nospace()
                << "[Idle Task] The task will not run: " << id;
            // A receiver of the status change may delete the task itself.
            const QPointer<ZARSysIdleTask> rejected = task;
            task->SetTaskExecutableStatus(ZARSysIdleTask::Rejected);
            if (rejected)
                task->deleteLater();
            return;
        }
    }
    connect(task, &ZARSysIdleTask::ExecutableStatusChanged, d,
            &ZARSysIdleManagerPrivate::OnTaskExecutableStatusChanged);
    d->queue.append(task);
    ++ZARSysIdleTaskPrivate::get(task)->queued;
    if (d->idle)
        d->ScheduleExecution();
}

bool ZARSysIdleManager::IsIdle() const
{
    return d_func()->idle;
}

ZARSysIdleManager::StatusFlags ZARSysIdleManager::GetStatusFlags() const
{
    Q_D(const ZARSysIdleManager);
    StatusFlags flags;
    bool reportersIdle = true;
    for (const ZARSysIdleReporter *reporter : d->reporters)
        reportersIdle = reportersIdle && reporter->IsIdle();
    flags.setFlag(ReportersIdle, reportersIdle);
    flags.setFlag(Blocked, d->blockCount >= 1);
    flags.setFlag(TaskRunning, d->currentTask != nullptr);
    return flags;
}

QList<const ZARSysIdleTask *> ZARSysIdleManager::GetAllQueuedTasks() const
{
    Q_D(const ZARSysIdleManager);
    return QList<const ZARSysIdleTask *>(d->queue.cbegin(), d->queue.cend());
}

#include "moc_ZARSysIdleManager.cpp"
