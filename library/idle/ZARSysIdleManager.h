#ifndef ZARSYSIDLEMANAGER_H
#define ZARSYSIDLEMANAGER_H

#include <zarsystem_export.h>

#include <QFlags>
#include <QList>
#include <QObject>

#include <memory>

class ZARSysIdleManagerPrivate;
class ZARSysIdleTask;

/*!
    \class ZARSysIdleManager
    \brief Runs queued ZARSysIdleTask objects, one at a time, while the application is idle.

    The application is idle while no ZARSysIdleReporter is busy, no ZARSysIdleBlockContext
    lives and no task is running. Whatever makes the application busy takes effect at once
    (IdleEnd() is emitted synchronously); becoming idle again is always evaluated when the
    event loop next turns, so that changes made within one call stack settle first. While
    executable tasks are queued, the manager runs them one at a time, each from the event loop
    (a task and the next are separated by an evaluation in between), before it announces idle
    time with IdleBegin() and FullyIdleBegin(). Tasks still queued when the process exits are
    not deleted.

    The manager, its tasks, reporters and blocks belong to the thread of the application
    object; nothing here is thread-safe.
*/
class ZARSYSTEM_EXPORT ZARSysIdleManager : public QObject
{
    Q_OBJECT

public:
    /*! The parts of the manager's state, as GetStatusFlags() reports them. */
    enum StatusFlag {
        ReportersIdle = 0x1, //!< Every reporter is idle (also when there are none).
        Blocked = 0x2, //!< At least one ZARSysIdleBlockContext lives.
        TaskRunning = 0x4, //!< A task is executing.
    };
    /*! A combination of StatusFlag values. */
    Q_DECLARE_FLAGS(StatusFlags, StatusFlag)
    Q_FLAG(StatusFlags)

    /*! The manager, created on first use and destroyed when the process exits. */
    static ZARSysIdleManager *GetManager();

    /*!
        Queues \a task and takes charge of deleting it. A task whose GetTaskId() equals that of
        the last queued task (if that one is executable) is a duplicate: it gets the status
        Rejected and is deleted later, with a debug message in "ZAR.Default". Only the last
        queued task is compared, so A, B, A all run. A null \a task is ignored.
    */
    void AddTask(ZARSysIdleTask *task);

    /*! Whether idle time has begun and not ended. True for a new manager. */
    bool IsIdle() const;
    /*! The manager's state at this moment. */
    StatusFlags GetStatusFlags() const;
    /*! The queued tasks, oldest first; the running task is no longer queued. */
    QList<const ZARSysIdleTask *> GetAllQueuedTasks() const;

    Q_DECLARE_PRIVATE(ZARSysIdleManager)

Q_SIGNALS:
    /*! Idle time begins: nothing is busy or blocked and no executable task is queued. */
    void IdleBegin();
    /*! Idle time ends: a reporter became busy, a block began or a task starts. */
    void IdleEnd();
    /*! Emitted after IdleBegin() unless one of its receivers queued an executable task. */
    void FullyIdleBegin();

private:
    ZARSysIdleManager();
    ~ZARSysIdleManager() override;
    Q_DISABLE_COPY_MOVE(ZARSysIdleManager)

    std::unique_ptr<ZARSysIdleManagerPrivate> const d_ptr;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(ZARSysIdleManager::StatusFlags)

#endif // ZARSYSIDLEMANAGER_H
