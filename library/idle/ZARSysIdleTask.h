#ifndef ZARSYSIDLETASK_H
#define ZARSYSIDLETASK_H

#include <zarsystem_export.h>

#include <QByteArray>
#include <QObject>

#include <memory>

class ZARSysIdleTaskPrivate;

/*!
    \class ZARSysIdleTask
    \brief Work that can wait until the application is idle.

    Subclasses implement Execute(), which does the work, and GetTaskId(), which names what the
    task does: ZARSysIdleManager::AddTask() refuses a task whose identifier equals that of the
    task queued last.

    \code
    class RefreshPreview : public ZARSysIdleTask
    {
    public:
        explicit RefreshPreview(PreviewWidget *view) : view(view) { }
        void Execute() override { if (view) view->refresh(); }
        QByteArray GetTaskId() override { return QByteArrayLiteral("refresh-preview"); }

    private:
        QPointer<PreviewWidget> view;
    };

    ZARSysIdleManager::GetManager()->AddTask(new RefreshPreview(preview));
    \endcode

    A queued task runs only while its status is Executable; a task can hold itself back with
    SetTaskExecutableStatus() and is picked up when it becomes executable again. The manager
    deletes a task after running it unless SetShouldDeleteAfterExecute(false) was called; a
    task that is deleted while queued leaves the queue.
*/
class ZARSYSTEM_EXPORT ZARSysIdleTask : public QObject
{
    Q_OBJECT

public:
    /*! Whether the queue may run a task. */
    enum TaskExecutableStatus : qint32 {
        Executable = 1, //!< The task runs when its turn comes. The default.
        Rejected = 2, //!< ZARSysIdleManager::AddTask() refused the task as a duplicate.
    };
    Q_ENUM(TaskExecutableStatus)

    /*! Constructs an executable task, which waits for ZARSysIdleManager::AddTask(). */
    ZARSysIdleTask();
    /*! Removes the task from the manager's queue if it is still queued. */
    ~ZARSysIdleTask() override;

    /*! Returns the status; Executable unless set otherwise. */
    TaskExecutableStatus GetTaskExecutableStatus() const;
    /*!
        Sets the status and, when it changes, emits ExecutableStatusChanged(). Any value other
        than Executable keeps the task in the queue without running it.
    */
    void SetTaskExecutableStatus(const TaskExecutableStatus &status);

    /*! Whether the manager deletes the task after running it; true unless set otherwise. */
    bool ShouldDeleteAfterExecute() const;
    /*!
        Sets whether the manager deletes the task after running it. With \a shouldDelete false,
        whoever created the task deletes it once it has run.
    */
    void SetShouldDeleteAfterExecute(bool shouldDelete);

    /*! Does the work when the task's turn comes, from the event loop of the manager's thread. */
    virtual void Execute() = 0;
    /*! Names what the task does; two tasks with equal identifiers are duplicates. */
    virtual QByteArray GetTaskId() = 0;

Q_SIGNALS:
    /*! The status changed to \a newStatus. */
    void ExecutableStatusChanged(const ZARSysIdleTask::TaskExecutableStatus &newStatus);

private:
    Q_DISABLE_COPY_MOVE(ZARSysIdleTask)
    friend class ZARSysIdleTaskPrivate;
    std::unique_ptr<ZARSysIdleTaskPrivate> const d;
};

#endif // ZARSYSIDLETASK_H
