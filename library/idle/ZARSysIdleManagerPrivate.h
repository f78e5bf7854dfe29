#ifndef ZARSYSIDLEMANAGERPRIVATE_H
#define ZARSYSIDLEMANAGERPRIVATE_H

#include "ZARSysIdleManager.h"
#include "ZARSysIdleTask.h"

#include <QList>
#include <QObject>
#include <QTimer>

class ZARSysIdleReporter;

// The state of the idle manager. Tasks, reporters and blocks reach it through the manager;
// their destructors use Live(), which is null once the manager is gone at process exit.
class ZARSysIdleManagerPrivate : public QObject
{
    Q_OBJECT

public:
    explicit ZARSysIdleManagerPrivate(ZARSysIdleManager *owner);
    ~ZARSysIdleManagerPrivate() override;

    static ZARSysIdleManagerPrivate *Live();

    void AddReporter(ZARSysIdleReporter *reporter, bool idle);
    void RemoveReporter(ZARSysIdleReporter *reporter, bool idle);
    void ReporterChanged(bool idle);
    void BeginBlock();
    void EndBlock();
    // A task that is being destroyed leaves the queue and the manager.
    void ForgetTask(ZARSysIdleTask *task);
    // Removes every occurrence of task from the queue; hint is where it probably is.
    void Dequeue(ZARSysIdleTask *task, qsizetype hint);

    bool HasExecutableTask() const;
    // Whether nothing keeps the manager busy: no block, no busy reporter, no running task.
    bool MayBecomeIdle() const;
    // Start the timers unless they are due already.
    void ScheduleCheck();
    void ScheduleExecution();

    ZARSysIdleManager *const owner;
    QList<ZARSysIdleReporter *> reporters;
    bool idle = true;
    int blockCount = 0;
    int busyCount = 0;
    // Cleared when the task is destroyed while it runs.
    ZARSysIdleTask *currentTask = nullptr;
    QList<ZARSysIdleTask *> queue;
    QTimer executeTimer;
    QTimer checkTimer;

public Q_SLOTS:
    void OnExecuteNext();
    void CheckIdleState();
    void OnTaskExecutableStatusChanged(ZARSysIdleTask::TaskExecutableStatus status);
};

#endif // ZARSYSIDLEMANAGERPRIVATE_H
