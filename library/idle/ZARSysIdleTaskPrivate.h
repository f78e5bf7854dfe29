#ifndef ZARSYSIDLETASKPRIVATE_H
#define ZARSYSIDLETASKPRIVATE_H

#include "ZARSysIdleTask.h"

class ZARSysIdleTaskPrivate
{
public:
    static ZARSysIdleTaskPrivate *get(ZARSysIdleTask *task) { return task->d.get(); }

    bool shouldDeleteAfterExecute = true;
    ZARSysIdleTask::TaskExecutableStatus status = ZARSysIdleTask::Executable;
    // How often the task stands in the idle manager's queue, so that the manager need not
    // search the queue for a task that is not there.
    int queued = 0;
};

#endif // ZARSYSIDLETASKPRIVATE_H
