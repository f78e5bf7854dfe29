#include "ZARSysIdleTask.h"

#include "ZARSysIdleManagerPrivate.h"
#include "ZARSysIdleTaskPrivate.h"

ZARSysIdleTask::ZARSysIdleTask()
    : d(std::make_unique<ZARSysIdleTaskPrivate>())
{
    // The status travels by name in queued connections.
    static const int registered =
        qRegisterMetaType<TaskExecutableStatus>("ZARSysIdleTask::TaskExecutableStatus");
    Q_UNUSED(registered)
}

ZARSysIdleTask::~ZARSysIdleTask()
{
    if (ZARSysIdleManagerPrivate *manager = ZARSysIdleManagerPrivate::Live())
        manager->ForgetTask(this);
}

ZARSysIdleTask::TaskExecutableStatus ZARSysIdleTask::GetTaskExecutableStatus() const
{
    return d->status;
}

void ZARSysIdleTask::SetTaskExecutableStatus(const TaskExecutableStatus &status)
{
    if (d->status == status)
        return;
    d->status = status;
    Q_EMIT ExecutableStatusChanged(status);
}

bool ZARSysIdleTask::ShouldDeleteAfterExecute() const
{
    return d->shouldDeleteAfterExecute;
}

void ZARSysIdleTask::SetShouldDeleteAfterExecute(bool shouldDelete)
{
    d->shouldDeleteAfterExecute = shouldDelete;
}

#include "moc_ZARSysIdleTask.cpp"
