#include "ZARSysFileWatcher.h"

#include <QDateTime>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QHash>
#include <QMultiHash>
#include <QPointer>
#include <QTimer>

namespace {

bool isExistingFile(const QFileInfo &info)
{
    return info.exists() && info.isFile();
}

} // namespace

class ZARSysFileWatcherPrivate
{
public:
    struct WatchedFile
    {
        QFileInfo info;
        QDateTime modified; // when tracking began; never refreshed
    };

    explicit ZARSysFileWatcherPrivate(ZARSysFileWatcher *q)
        : q(q)
    { }

    bool Track(const QFileInfo &info);
    void OnFileChanged(const QString &path);
    void Examine(const QString &path);
    void OnFolderChanged(const QString &path);

    ZARSysFileWatcher *const q;
    QFileSystemWatcher watcher;
    QHash<QString, WatchedFile> files;
    QMultiHash<QString, QString> filesByFolder;
};

bool ZARSysFileWatcherPrivate::Track(const QFileInfo &info)
{
    const QString file = info.absoluteFilePath();
    const QString folder = info.absolutePath();
    if (!files.contains(file)) {
        files.insert(file, WatchedFile {info, info.lastModified()});
        filesByFolder.insert(folder, file);
    }
    // Both again, since a writer that replaces a file ends the watch of the old one.
    watcher.addPath(folder);
    return watcher.addPath(file);
}

void ZARSysFileWatcherPrivate::OnFileChanged(const QString &path)
{
    // Examined a little later, so that the writer has finished; much later when the file
    // seems gone, by which time its folder has reported the deletion.
    const int delay = isExistingFile(QFileInfo(path)) ? 1 : 3000;
    QTimer::singleShot(delay, q, [this, path] { Examine(path); });
}

void ZARSysFileWatcherPrivate::Examine(const QString &path)
{
    const QFileInfo info(path);
    if (!isExistingFile(info))
        return;
    const QString file = info.absoluteFilePath();
    const auto entry = files.constFind(file);
    if (entry == files.cend())
        return;
    const QDateTime stored = entry->modified;
    const QDateTime now = info.lastModified();
    if (!stored.isValid() && now.isValid()) {
        Q_EMIT q->FileCreated({file});
    } else if (stored < now) {
        const QPointer<ZARSysFileWatcher> alive = q; // a receiver may delete the watcher
        Q_EMIT q->FileModified({file});
        if (alive)
            Track(info);
    }
}

void ZARSysFileWatcherPrivate::OnFolderChanged(const QString &path)
{
    const QFileInfo folderInfo(path);
    if (!folderInfo.exists() || !folderInfo.isDir())
        return;
    const QString folder = folderInfo.absoluteFilePath();

    // Copies: receivers may change what is tracked while this runs.
    QList<std::pair<QString, WatchedFile>> entries;
    for (const QString &file : filesByFolder.values(folder))
        entries.append({file, files.value(file)});
    QStringList created;
    QStringList deleted;
    const QPointer<ZARSysFileWatcher> alive = q; // a receiver may delete the watcher
    for (const auto &[file, entry] : std::as_const(entries)) {
        QFileInfo info = entry.info;
        info.refresh();
        if (info.exists()) {
            const QDateTime now = info.lastModified();
            if (!entry.modified.isValid() && now.isValid()) {
                created.append(file);
                Track(info);
            }
            if (entry.modified != now) {
                Q_EMIT q->FileModified({file});
                if (!alive)
                    return;
            }
        } else {
            deleted.append(file); // and still tracked
        }
    }
    if (!created.isEmpty())
        Q_EMIT q->FileCreated(created);
    if (!deleted.isEmpty() && alive)
        Q_EMIT q->FileDeleted(deleted);
}

ZARSysFileWatcher::ZARSysFileWatcher(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<ZARSysFileWatcherPrivate>(this))
{
    connect(&d->watcher, &QFileSystemWatcher::fileChanged, this,
            [this](const QString &path) { d->OnFileChanged(path); });
    connect(&d->watcher, &QFileSystemWatcher::directoryChanged, this,
            [this](const QString &path) { d->OnFolderChanged(path); });
}

ZARSysFileWatcher::~ZARSysFileWatcher() = default;

bool ZARSysFileWatcher::AddPath(const QString &path)
{
    const QFileInfo info(path);
    if (!isExistingFile(info))
        return false;
    return d->Track(info);
}

bool ZARSysFileWatcher::RemovePath(const QString &path)
{
    const QFileInfo info(path);
    if (!isExistingFile(info))
        return false;
    const QString file = info.absoluteFilePath();
    if (d->files.remove(file))
        d->filesByFolder.remove(info.absolutePath(), file);
    return d->watcher.removePath(file);
}

QList<QString> ZARSysFileWatcher::GetFiles() const
{
    return d->files.keys();
}

#include "moc_ZARSysFileWatcher.cpp"
