#include <ZARSysIdleBlockContext.h>
#include <ZARSysIdleManager.h>
#include <ZARSysIdleReporter.h>
#include <ZARSysIdleTask.h>

#include <QLoggingCategory>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

// What happened, in order: the manager's signals ("end", "begin", "fully") and the tasks'
// executions ("run A").
QStringList events;

class Task : public ZARSysIdleTask
{
public:
    explicit Task(const QByteArray &id, std::function<void(Task *)> work = {})
        : id(id)
        , work(std::move(work))
    { }

    void Execute() override
    {
        events.append(u"run "_s + QString::fromLatin1(id));
        flagsWhileRunning = ZARSysIdleManager::GetManager()->GetStatusFlags();
        idleWhileRunning = ZARSysIdleManager::GetManager()->IsIdle();
        if (work)
            work(this);
    }
    QByteArray GetTaskId() override { return id; }

    QByteArray id;
    std::function<void(Task *)> work;
    ZARSysIdleManager::StatusFlags flagsWhileRunning;
    bool idleWhileRunning = true;
};

class Reporter : public ZARSysIdleReporter
{
public:
    using ZARSysIdleReporter::SetIdleStatus;
    using ZARSysIdleReporter::ZARSysIdleReporter;
};

ZARSysIdleManager *manager()
{
    return ZARSysIdleManager::GetManager();
}

// Lets the event loop turn once: each zero-interval timer that is due fires.
void turn()
{
    QCoreApplication::processEvents();
}

// Turns the event loop until nothing more happens.
void settle()
{
    for (int quiet = 0, turns = 0; quiet < 5 && turns < 500; ++turns) {
        const qsizetype before = events.size();
        turn();
        quiet = events.size() == before ? quiet + 1 : 0;
    }
}

// The events as one text, separated by ", ".
QStringList happened(const char *list)
{
    return QString::fromLatin1(list).split(u", "_s);
}

} // namespace

class tst_IdleManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(manager()->IsIdle()); // at once, before any event loop turns
        connect(manager(), &ZARSysIdleManager::IdleBegin, [] { events.append(u"begin"_s); });
        connect(manager(), &ZARSysIdleManager::IdleEnd, [] { events.append(u"end"_s); });
        connect(manager(), &ZARSysIdleManager::FullyIdleBegin, [] { events.append(u"fully"_s); });
        QLoggingCategory::setFilterRules(u"ZAR.Default.debug=true"_s);
    }

    void init()
    {
        settle();
        QVERIFY(manager()->IsIdle());
        QVERIFY(manager()->GetAllQueuedTasks().isEmpty());
        events.clear();
    }

    void tasksRunOnePerTurn()
    {
        QPointer<Task> a = new Task("A");
        auto *b = new Task("B");
        ZARSysIdleManager::StatusFlags flags;
        bool idle = true;
        auto *c = new Task("C", [&](Task *self) {
            flags = self->flagsWhileRunning;
            idle = self->idleWhileRunning;
        });
        manager()->AddTask(a);
        manager()->AddTask(b);
        manager()->AddTask(c);
        QCOMPARE(manager()->GetAllQueuedTasks(), (QList<const ZARSysIdleTask *> {a, b, c}));
        QVERIFY(events.isEmpty()); // nothing before the event loop turns

        turn();
        QCOMPARE(events, happened("end, run A"));
        QVERIFY(a.isNull()); // deleted after running
        QCOMPARE(manager()->GetAllQueuedTasks(), (QList<const ZARSysIdleTask *> {b, c}));
        settle();
        QCOMPARE(events, happened("end, run A, run B, run C, begin, fully"));
        QCOMPARE(flags, ZARSysIdleManager::ReportersIdle | ZARSysIdleManager::TaskRunning);
        QVERIFY(!idle);
    }

    void duplicates()
    {
        // A task is turned away when the last task in the queue has its id: B right after B, but
        // not A after B.
        QPointer<Task> rejected = new Task("B");
        QSignalSpy rejectedStatuses(rejected.data(), &ZARSysIdleTask::ExecutableStatusChanged);
        auto *again = new Task("A");
        QSignalSpy acceptedStatuses(again, &ZARSysIdleTask::ExecutableStatusChanged);
        {
            // Blocked, so that all are queued before any runs.
            const ZARSysIdleBlockContext block;
            manager()->AddTask(new Task("A"));
            manager()->AddTask(new Task("B"));
            QTest::ignoreMessage(QtDebugMsg, "[Idle Task] The task will not run: B");
            manager()->AddTask(rejected);
            manager()->AddTask(again);
            QCOMPARE(manager()->GetAllQueuedTasks().size(), 3);
        }
        QCOMPARE(rejected->GetTaskExecutableStatus(), ZARSysIdleTask::Rejected);
        QCOMPARE(rejectedStatuses.count(), 1);
        QCOMPARE(rejectedStatuses.at(0).at(0).value<ZARSysIdleTask::TaskExecutableStatus>(),
                 ZARSysIdleTask::Rejected);
        QVERIFY(acceptedStatuses.isEmpty());
        settle();
        QCOMPARE(events, happened("end, run A, run B, run A, begin, fully"));
        QTRY_VERIFY(rejected.isNull()); // deleted later
    }

    void taskNotExecutable()
    {
        QPointer<Task> waiting = new Task("W");
        waiting->SetTaskExecutableStatus(ZARSysIdleTask::TaskExecutableStatus(3));
        manager()->AddTask(waiting);
        settle();
        QVERIFY(events.isEmpty());
        QCOMPARE(manager()->GetAllQueuedTasks(), QList<const ZARSysIdleTask *> {waiting});

        // The manager goes busy and idle again around it, fully idle since nothing can run.
        ZARSysIdleBlockContext {}; // begins and ends at once
        settle();
        QCOMPARE(events, happened("end, begin, fully"));

        // A task queued behind it runs; a duplicate check against it does not happen, since it
        // is not executable.
        manager()->AddTask(new Task("W"));
        settle();
        QCOMPARE(events.mid(3), happened("end, run W, begin, fully"));
        QVERIFY(!waiting.isNull());

        // Becoming executable while the manager is idle changes nothing by itself: the task is
        // picked up at the next evaluation that finds the manager not idle.
        events.clear();
        waiting->SetTaskExecutableStatus(ZARSysIdleTask::Executable);
        settle();
        QVERIFY(events.isEmpty());
        ZARSysIdleBlockContext {}; // begins and ends at once
        settle();
        QCOMPARE(events, happened("end, run W, begin, fully"));
        QVERIFY(waiting.isNull());
    }

    void taskAddedByIdleBegin()
    {
        bool added = false;
        const auto connection = connect(manager(), &ZARSysIdleManager::IdleBegin, [&] {
            if (!added) {
                added = true;
                manager()->AddTask(new Task("B"));
            }
        });
        manager()->AddTask(new Task("A"));
        settle();
        disconnect(connection);
        // No FullyIdleBegin while B waited.
        QCOMPARE(events, happened("end, run A, begin, end, run B, begin, fully"));
    }

    void blocks()
    {
        auto block = std::make_unique<ZARSysIdleBlockContext>();
        QCOMPARE(events, happened("end")); // at once
        QVERIFY(!manager()->IsIdle());
        QCOMPARE(manager()->GetStatusFlags(),
                 ZARSysIdleManager::ReportersIdle | ZARSysIdleManager::Blocked);

        // A queued task waits for the block.
        manager()->AddTask(new Task("A"));
        auto inner = std::make_unique<ZARSysIdleBlockContext>();
        settle();
        QCOMPARE(events, happened("end"));

        inner.reset();
        settle();
        QCOMPARE(events, happened("end"));

        block.reset();
        QCOMPARE(events, happened("end")); // becoming idle waits for the event loop
        QCOMPARE(manager()->GetStatusFlags(), ZARSysIdleManager::ReportersIdle);
        settle();
        QCOMPARE(events, happened("end, run A, begin, fully"));

        // A block that begins and ends within one call stack still ends idle time.
        events.clear();
        {
            const ZARSysIdleBlockContext shortBlock;
        }
        QCOMPARE(events, happened("end"));
        settle();
        QCOMPARE(events, happened("end, begin, fully"));
    }

    void executionAlreadyDueIgnoresBlock()
    {
        // Once the evaluation has started the execution of a task, a block that begins before the
        // event loop turns does not hold that one execution back.
        auto block = std::make_unique<ZARSysIdleBlockContext>();
        manager()->AddTask(new Task("A"));
        manager()->AddTask(new Task("B"));
        block.reset();
        turn(); // the evaluation: work is queued, so the execution is due
        QCOMPARE(events, happened("end"));
        block = std::make_unique<ZARSysIdleBlockContext>();
        turn();
        QCOMPARE(events, happened("end, run A"));
        settle();
        QCOMPARE(events, happened("end, run A")); // B waits for the block
        block.reset();
        settle();
        QCOMPARE(events, happened("end, run A, run B, begin, fully"));
    }

    void reporters()
    {
        // Created busy: not idle at once; destroyed without reporting: idle after a turn.
        auto busy = std::make_unique<Reporter>(false);
        QCOMPARE(events, happened("end"));
        QCOMPARE(manager()->GetStatusFlags(), ZARSysIdleManager::StatusFlags());
        busy.reset();
        QCOMPARE(events, happened("end"));
        settle();
        QCOMPARE(events, happened("end, begin, fully"));

        // Reports: busy at once, idle after a turn; repeated reports change nothing.
        events.clear();
        Reporter first;
        Reporter second;
        QCOMPARE(manager()->GetStatusFlags(), ZARSysIdleManager::ReportersIdle);
        QTest::ignoreMessage(QtDebugMsg, "[Idle Status] Report Idle(Idle or Not): false");
        first.SetIdleStatus(false);
        QCOMPARE(events, happened("end"));
        QTest::ignoreMessage(QtDebugMsg, "[Idle Status] Report Idle(Idle or Not): false");
        second.SetIdleStatus(false);
        first.SetIdleStatus(false); // unchanged: counts once
        QTest::ignoreMessage(QtDebugMsg, "[Idle Status] Report Idle(Idle or Not): true");
        first.SetIdleStatus(true);
        settle();
        QCOMPARE(events, happened("end")); // the second is still busy
        QVERIFY(!manager()->GetStatusFlags().testFlag(ZARSysIdleManager::ReportersIdle));
        {
            // Created busy while the manager is busy already: nothing new.
            const Reporter third(false);
        }
        settle();
        QCOMPARE(events, happened("end"));
        QTest::ignoreMessage(QtDebugMsg, "[Idle Status] Report Idle(Idle or Not): true");
        second.SetIdleStatus(true);
        QCOMPARE(events, happened("end"));
        settle();
        QCOMPARE(events, happened("end, begin, fully"));
        QVERIFY(first.IsIdle());
    }

    void taskSurvivesExecution()
    {
        QPointer<Task> task = new Task("A");
        task->SetShouldDeleteAfterExecute(false);
        manager()->AddTask(task);
        settle();
        QCOMPARE(events, happened("end, run A, begin, fully"));
        QVERIFY(!task.isNull());
        QVERIFY(manager()->GetAllQueuedTasks().isEmpty());

        // It can be queued again, and is again kept.
        manager()->AddTask(task);
        settle();
        QCOMPARE(events.count(u"run A"_s), 2);
        QVERIFY(!task.isNull());
        delete task;
    }

    void taskDeletedWhileQueued()
    {
        const ZARSysIdleBlockContext block;
        QPointer<Task> a = new Task("A");
        auto *b = new Task("B");
        manager()->AddTask(a);
        manager()->AddTask(b);
        delete a;
        QCOMPARE(manager()->GetAllQueuedTasks(), QList<const ZARSysIdleTask *> {b});
        // With A gone, B is the last task: another B is a duplicate.
        QTest::ignoreMessage(QtDebugMsg, "[Idle Task] The task will not run: B");
        manager()->AddTask(new Task("B"));
        delete b;
        QVERIFY(manager()->GetAllQueuedTasks().isEmpty());
    }

    void taskDeletingItself()
    {
        manager()->AddTask(new Task("A", [](Task *self) { delete self; }));
        manager()->AddTask(new Task("B"));
        settle();
        QCOMPARE(events, happened("end, run A, run B, begin, fully"));
    }

    void taskDeletedByIdleEnd()
    {
        // A receiver of IdleEnd() that drops pending work, deleting the task about to run.
        QPointer<Task> a = new Task("A");
        const auto connection = connect(manager(), &ZARSysIdleManager::IdleEnd, [&] { delete a; });
        manager()->AddTask(a);
        manager()->AddTask(new Task("B"));
        turn();
        disconnect(connection);
        QVERIFY(a.isNull());
        settle();
        QCOMPARE(events, happened("end, run B, begin, fully"));
    }

    void taskAddingTasks()
    {
        // Work added while a task runs waits for its turn; a nested event loop inside a task does
        // not start another task.
        manager()->AddTask(new Task("A", [](Task *) {
            manager()->AddTask(new Task("B"));
            for (int i = 0; i < 5; ++i)
                turn();
            events.append(u"A done"_s);
        }));
        settle();
        QCOMPARE(events, happened("end, run A, A done, run B, begin, fully"));
    }
};

QTEST_GUILESS_MAIN(tst_IdleManager)
#include "tst_idlemanager.moc"
