#include <ZARSysFileWatcher.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QPointer>
#include <QSaveFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

void write(const QString &path, const QByteArray &contents,
           QIODevice::OpenMode mode = QIODevice::WriteOnly)
{
    QFile file(path);
    QVERIFY2(file.open(mode), qPrintable(path));
    file.write(contents);
}

// Dates a file back, so that every change made by the test has a later modification time
// however coarse the file system's clock.
void backdate(const QString &path, int seconds = 3600)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime::currentDateTimeUtc().addSecs(-seconds),
                             QFileDevice::FileModificationTime));
}

// All paths reported by the spy's signals, flattened.
QStringList reported(const QSignalSpy &spy)
{
    QStringList paths;
    for (const QList<QVariant> &arguments : spy)
        paths += arguments.at(0).toStringList();
    return paths;
}

QSet<QString> toSet(const QStringList &paths)
{
    return QSet<QString>(paths.cbegin(), paths.cend());
}

} // namespace

class tst_FileWatcher : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        dir = std::make_unique<QTemporaryDir>();
        QVERIFY(dir->isValid());
        tracked = QDir(dir->path()).absoluteFilePath(u"drawing \u00e9.dxf"_s);
        write(tracked, "first");
        backdate(tracked);
    }

    void onlyExistingFiles()
    {
        ZARSysFileWatcher watcher;
        QVERIFY(!watcher.AddPath(dir->path()));
        QVERIFY(!watcher.AddPath(dir->filePath(u"missing.dxf"_s)));
        QVERIFY(watcher.GetFiles().isEmpty());

        // Relative paths are tracked by their absolute form.
        const QString current = QDir::currentPath();
        QVERIFY(QDir::setCurrent(dir->path()));
        const bool added = watcher.AddPath(u"drawing \u00e9.dxf"_s);
        QVERIFY(QDir::setCurrent(current));
        QVERIFY(added);
        QCOMPARE(watcher.GetFiles(), QList<QString> {tracked});
    }

    void modifications()
    {
        ZARSysFileWatcher watcher;
        QSignalSpy modified(&watcher, &ZARSysFileWatcher::FileModified);
        QSignalSpy deleted(&watcher, &ZARSysFileWatcher::FileDeleted);
        QVERIFY(watcher.AddPath(tracked));

        write(tracked, "second", QIODevice::Append);
        QTRY_VERIFY(!modified.isEmpty());
        QCOMPARE(toSet(reported(modified)), QSet<QString> {tracked});

        // Every later change is a modification again, the file's time of tracking being kept:
        // even a time earlier than the last change's, as long as it is later than that one.
        QTest::qWait(100); // late notifications of the first write
        for (const int secondsBack : {0, 1800}) {
            modified.clear();
            if (secondsBack == 0)
                write(tracked, "third", QIODevice::Append);
            else
                backdate(tracked, secondsBack);
            QTRY_VERIFY(!modified.isEmpty());
            QCOMPARE(toSet(reported(modified)), QSet<QString> {tracked});
            QTest::qWait(100);
        }
        QVERIFY(deleted.isEmpty());
    }

    void deletion()
    {
        const QString other = dir->filePath(u"other.dxf"_s);
        write(other, "other");
        ZARSysFileWatcher watcher;
        QSignalSpy deleted(&watcher, &ZARSysFileWatcher::FileDeleted);
        QVERIFY(watcher.AddPath(tracked));
        QVERIFY(watcher.AddPath(other));

        QVERIFY(QFile::remove(tracked));
        QTRY_VERIFY(!deleted.isEmpty());
        QCOMPARE(deleted.first().first().toStringList(), QStringList {tracked});

        // Still tracked, and not to be removed while it is missing.
        QVERIFY(!watcher.RemovePath(tracked));
        QCOMPARE(toSet(watcher.GetFiles()), (QSet<QString> {tracked, other}));

        // Coming back, it is reported as modified.
        QSignalSpy modified(&watcher, &ZARSysFileWatcher::FileModified);
        write(tracked, "back");
        QTRY_VERIFY(reported(modified).contains(tracked));
    }

    void replacementByRename()
    {
        // Writers that save to a new file and rename it over the old one end the old file's watch;
        // the watcher tracks the new one.
        ZARSysFileWatcher watcher;
        QSignalSpy modified(&watcher, &ZARSysFileWatcher::FileModified);
        QVERIFY(watcher.AddPath(tracked));

        // QSaveFile writes a new file and renames it over the old one, replacing it in one step
        // on every platform (std::rename() does not replace a file on Windows).
        QSaveFile saved(tracked);
        QVERIFY(saved.open(QIODevice::WriteOnly));
        saved.write("replaced");
        QVERIFY(saved.commit());
        QTRY_VERIFY(reported(modified).contains(tracked));

        // Changes of the new file are seen.
        QTest::qWait(100); // the examination a millisecond after the change
        modified.clear();
        write(tracked, "changed again", QIODevice::Append);
        QTRY_VERIFY(reported(modified).contains(tracked));
    }

    void untrackedChangesReportNothing()
    {
        ZARSysFileWatcher watcher;
        QSignalSpy created(&watcher, &ZARSysFileWatcher::FileCreated);
        QSignalSpy modified(&watcher, &ZARSysFileWatcher::FileModified);
        QSignalSpy deleted(&watcher, &ZARSysFileWatcher::FileDeleted);
        QVERIFY(watcher.AddPath(tracked));

        // Changes beside an unchanged tracked file.
        const QString neighbour = dir->filePath(u"neighbour.txt"_s);
        write(neighbour, "new");
        write(neighbour, "more", QIODevice::Append);
        QVERIFY(QFile::remove(neighbour));
        // A change of a file no longer tracked.
        QVERIFY(watcher.RemovePath(tracked));
        QVERIFY(watcher.GetFiles().isEmpty());
        write(tracked, "unwatched", QIODevice::Append);
        QTest::qWait(300);
        QCOMPARE(created.count() + modified.count() + deleted.count(), 0);
    }

    void destroyedWhileExamining()
    {
        // The examination of a file that seems gone waits three seconds; a watcher destroyed
        // meanwhile takes it along.
        auto watcher = std::make_unique<ZARSysFileWatcher>();
        QSignalSpy deleted(watcher.get(), &ZARSysFileWatcher::FileDeleted);
        QVERIFY(watcher->AddPath(tracked));
        QVERIFY(QFile::remove(tracked));
        QTRY_VERIFY(!deleted.isEmpty()); // the folder's notification: the file's is pending
        watcher.reset();
        QTest::qWait(3200);
    }

    void destroyedByReceiver()
    {
        // A receiver may delete the watcher.
        auto *watcher = new ZARSysFileWatcher;
        QPointer<ZARSysFileWatcher> guard = watcher;
        QVERIFY(watcher->AddPath(tracked));
        connect(watcher, &ZARSysFileWatcher::FileModified, [watcher] { delete watcher; });
        write(tracked, "change", QIODevice::Append);
        QTRY_VERIFY(guard.isNull());
    }

private:
    std::unique_ptr<QTemporaryDir> dir;
    QString tracked;
};

QTEST_GUILESS_MAIN(tst_FileWatcher)
#include "tst_filewatcher.moc"
