// Work that waits until the application is idle.
//
// Some work is worth doing only when nothing else is going on: refreshing a preview, writing a
// backup, indexing a folder. A module wraps it in a ZARSysIdleTask and queues it with
// ZARSysIdleManager; whatever keeps the application busy says so through a ZARSysIdleReporter.
// Here an importer is busy for three steps of the event loop. The task queued meanwhile waits,
// runs once the importer reports idle, and then the manager announces idle time, which ends
// the program.
//
//   zarsys-idle-task
//
// The program prints what happens in the order it happens. Its exit status is 0 only if the
// task ran, and only after the importer had finished.

#include <ZARSysIdleManager.h>
#include <ZARSysIdleReporter.h>
#include <ZARSysIdleTask.h>
#include <ZARSystem.h>

#include <QCoreApplication>
#include <QTextStream>
#include <QTimer>

namespace {

QTextStream &out()
{
    static QTextStream stream(stdout);
    return stream;
}

int queuedTasks()
{
    return int(ZARSysIdleManager::GetManager()->GetAllQueuedTasks().size());
}

// Imports in steps from the event loop, as a real importer does to keep the interface alive.
// Between its steps the event loop turns, so only the reporter keeps the queued task waiting.
class Importer : public ZARSysIdleReporter
{
public:
    explicit Importer(int steps)
        : steps(steps)
    {
        timer.setInterval(100);
        QObject::connect(&timer, &QTimer::timeout, &timer, [this] { Step(); });
    }

    void Start()
    {
        out() << "Importer starts" << Qt::endl;
        // Takes effect at once: the manager ends idle time before this call returns.
        SetIdleStatus(false);
        timer.start();
    }

    bool IsFinished() const { return done == steps; }

private:
    void Step()
    {
        ++done;
        out() << "  import step " << done << " of " << steps << ", tasks waiting: " << queuedTasks()
              << Qt::endl;
        if (IsFinished()) {
            timer.stop();
            out() << "Importer finished" << Qt::endl;
            // Idle again; the manager notices when the event loop next turns.
            SetIdleStatus(true);
        }
    }

    const int steps;
    int done = 0;
    QTimer timer;
};

// What the program checks at the end.
struct Outcome
{
    bool ran = false;
    bool ranAfterImport = false;
};

// The deferred work. The identifier names what the task does: queuing the same work twice in
// a row is pointless, so the manager refuses the second one.
class RefreshPreview : public ZARSysIdleTask
{
public:
    RefreshPreview(const Importer &importer, Outcome &outcome)
        : importer(importer)
        , outcome(outcome)
    { }

    void Execute() override
    {
        const auto flags = ZARSysIdleManager::GetManager()->GetStatusFlags();
        out() << "Task " << GetTaskId() << " runs (reporters idle: "
              << (flags.testFlag(ZARSysIdleManager::ReportersIdle) ? "yes" : "no")
              << ", task running: "
              << (flags.testFlag(ZARSysIdleManager::TaskRunning) ? "yes" : "no") << ")" << Qt::endl;
        outcome.ran = true;
        outcome.ranAfterImport = importer.IsFinished();
    }

    QByteArray GetTaskId() override { return QByteArrayLiteral("refresh-preview"); }

private:
    const Importer &importer;
    Outcome &outcome;
};

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const ZARSysInitContext context;

    ZARSysIdleManager *manager = ZARSysIdleManager::GetManager();
    QObject::connect(manager, &ZARSysIdleManager::IdleEnd,
                     [] { out() << "Idle time ends" << Qt::endl; });
    QObject::connect(manager, &ZARSysIdleManager::IdleBegin,
                     [] { out() << "Idle time begins" << Qt::endl; });
    // Comes after IdleBegin unless one of its receivers queued more work: the moment when
    // nothing at all is left to do.
    QObject::connect(manager, &ZARSysIdleManager::FullyIdleBegin, &app, [] {
        out() << "Fully idle: nothing left to do" << Qt::endl;
        QCoreApplication::quit();
    });

    Importer importer(3);
    importer.Start();

    // The manager owns queued tasks and deletes each one after it ran (or was refused).
    Outcome outcome;
    auto *task = new RefreshPreview(importer, outcome);
    const QByteArray id = task->GetTaskId();
    manager->AddTask(task);
    out() << "Queued " << id << ", tasks waiting: " << queuedTasks() << Qt::endl;
    auto *duplicate = new RefreshPreview(importer, outcome);
    QObject::connect(duplicate, &ZARSysIdleTask::ExecutableStatusChanged,
                     [](ZARSysIdleTask::TaskExecutableStatus status) {
                         if (status == ZARSysIdleTask::Rejected)
                             out() << "The same task queued again is refused" << Qt::endl;
                     });
    manager->AddTask(duplicate);

    // Should the manager never come to rest, give up rather than hang.
    QTimer::singleShot(10000, &app, [] {
        out() << "Still not idle after 10 s" << Qt::endl;
        QCoreApplication::exit(1);
    });
    if (app.exec() != 0)
        return 1;

    if (!outcome.ran) {
        out() << "FAILED: the task never ran" << Qt::endl;
        return 1;
    }
    if (!outcome.ranAfterImport) {
        out() << "FAILED: the task ran while the importer was busy" << Qt::endl;
        return 1;
    }
    return 0;
}
