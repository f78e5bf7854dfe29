#ifndef ZARSYSFILEWATCHER_H
#define ZARSYSFILEWATCHER_H

#include <zarsystem_export.h>

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

class ZARSysFileWatcherPrivate;

/*!
    \class ZARSysFileWatcher
    \brief Watches individual files and reports when they are modified or deleted.

    The watcher sits on QFileSystemWatcher and watches each file and the folder that holds it.
    A change of a file is examined a millisecond after Qt reports it (three seconds when the
    file seems gone), so that its writer has finished; a change of a folder is examined at once.
    Each file is compared with its modification time when tracking began, which is never
    refreshed: every change after that, however many, is reported as a modification, through
    the file's own notification and through its folder's. Deletions found in a folder come as
    one list per notification. A deleted file stays tracked and comes back as modified.

    \code
    auto *watcher = new ZARSysFileWatcher(this);
    connect(watcher, &ZARSysFileWatcher::FileModified, this, &Editor::reloadFiles);
    watcher->AddPath(drawingPath);
    \endcode

    Paths in signals are absolute. The object needs the event loop of its thread.
*/
class ZARSYSTEM_EXPORT ZARSysFileWatcher : public QObject
{
    Q_OBJECT

public:
    /*! Constructs a watcher that tracks no files, with the parent \a parent. */
    explicit ZARSysFileWatcher(QObject *parent = nullptr);
    ~ZARSysFileWatcher() override;

    /*!
        Starts tracking the existing file \a path and returns whether Qt took up the watch of
        it: false, tracking nothing, for a folder or a missing file, and false for a file that
        is watched already. Tracking a file again keeps the modification time taken the first
        time.
    */
    bool AddPath(const QString &path);
    /*!
        Stops tracking the existing file \a path and returns whether Qt stopped watching it.
        Returns false for a file that no longer exists, which then stays tracked.
    */
    bool RemovePath(const QString &path);
    /*! The absolute paths of the tracked files, in no particular order. */
    QList<QString> GetFiles() const;

Q_SIGNALS:
    /*! Tracked files with no modification time before came back. */
    void FileCreated(const QStringList &paths);
    /*! A tracked file differs from when tracking began. */
    void FileModified(const QStringList &paths);
    /*! Tracked files of one folder are gone. */
    void FileDeleted(const QStringList &paths);

private:
    Q_DISABLE_COPY_MOVE(ZARSysFileWatcher)
    std::unique_ptr<ZARSysFileWatcherPrivate> const d;
};

#endif // ZARSYSFILEWATCHER_H
