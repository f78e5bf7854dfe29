#include "ZARSysIdleManager.h"

#include "ZARSysIdleReporter.h"
#include "ZARSysIdleTask.h"
#include "ZARSysLogging.h"
#include "private/ZARSysIdleManagerPrivate.h"

#include <QCoreApplication>

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
    liveManager = nullptr;
    // Tasks that never ran are the manager's to delete, unless they asked to be kept.
    while (!queue.isEmpty()) {
        ZARSysIdleTask *const task = queue.takeFirst();
        queue.removeAll(task);
        disconnect(task, nullptr, this, nullptr);
        if (task->ShouldDeleteAfterExecute())
            delete task;
    }
}

ZARSysIdleManagerPrivate *ZARSysIdleManagerPrivate::live()
{
    return liveManager;
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
    const bool candidate = blockCount == 0 && busyCount == 0 && !currentTask;
    if (candidate == idle)
        return;
    executeTimer.stop();
    if (candidate) {
        // Idle time is not announced while there is work to do.
        if (HasExecutableTask()) {
            executeTimer.start();
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
    for (ZARSysIdleTask *queued : std::as_const(queue)) {
        if (queued->GetTaskExecutableStatus() == ZARSysIdleTask::Executable) {
            task = queued;
            break;
        }
    }
    if (!task) {
        checkTimer.start();
        return;
    }

    currentTask = task;
    CheckIdleState();
    task->Execute();

    // The task may have destroyed itself; it then left the queue on its own.
    if (currentTask) {
        disconnect(task, &ZARSysIdleTask::ExecutableStatusChanged, this,
                   &ZARSysIdleManagerPrivate::OnTaskExecutableStatusChanged);
        queue.removeAll(task);
        if (task->ShouldDeleteAfterExecute()) {
            currentTask = nullptr;
            delete task;
        }
    }
    currentTask = nullptr;
    checkTimer.start();
}

void ZARSysIdleManagerPrivate::OnTaskExecutableStatusChanged(
    ZARSysIdleTask::TaskExecutableStatus status)
{
    if (status == ZARSysIdleTask::Executable)
        checkTimer.start();
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
        checkTimer.start();
}

void ZARSysIdleManagerPrivate::ReporterChanged(bool idle)
{
    if (!idle) {
        if (++busyCount == 1)
            CheckIdleState();
    } else if (--busyCount == 0) {
        checkTimer.start();
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
        checkTimer.start();
}

void ZARSysIdleManagerPrivate::ForgetTask(ZARSysIdleTask *task)
{
    disconnect(task, nullptr, this, nullptr);
    queue.removeAll(task);
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
    static ZARSysIdleManager manager;
    static const bool placed = [] {
        if (const QCoreApplication *app = QCoreApplication::instance())
            manager.moveToThread(app->thread()); // with its state and timers, its children
        return true;
    }();
    Q_UNUSED(placed)
    return &manager;
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
            task->SetTaskExecutableStatus(ZARSysIdleTask::Rejected);
            task->deleteLater();
            return;
        }
    }
    connect(task, &ZARSysIdleTask::ExecutableStatusChanged, d,
            &ZARSysIdleManagerPrivate::OnTaskExecutableStatusChanged);
    d->queue.append(task);
    if (d->idle)
        d->executeTimer.start();
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
    flags.setFlag(TaskRunning, !d->currentTask.isNull());
    return flags;
}

QList<const ZARSysIdleTask *> ZARSysIdleManager::GetAllQueuedTasks() const
{
    Q_D(const ZARSysIdleManager);
    return QList<const ZARSysIdleTask *>(d->queue.cbegin(), d->queue.cend());
}

#include "moc_ZARSysIdleManager.cpp"
