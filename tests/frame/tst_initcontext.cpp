// Registration and the start-up context. The callback lists and the context count belong to
// the process, so this executable has them to itself, and every test leaves no context alive
// and no callback registered for the next one.

#include <ZARSysException.h>
#include <ZARSysSettings.h>
#include <ZARSysSettingsManager.h>
#include <ZARSystem.h>

#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

QStringList events;

std::function<void()> record(const QString &name)
{
    return [name] {
        events.append(name);
    };
}

std::function<void(const QList<int> &)> recordFlags(const QString &name)
{
    return [name](const QList<int> &flags) {
        QStringList numbers;
        for (int flag : flags)
            numbers.append(QString::number(flag));
        events.append(name + QLatin1Char(':') + numbers.join(QLatin1Char(',')));
    };
}

// A callback that fails the first time it runs and succeeds afterwards.
std::function<void()> failOnce(const QString &name)
{
    auto failed = std::make_shared<bool>(false);
    return [name, failed] {
        events.append(name);
        if (!*failed) {
            *failed = true;
            throw ZARSysException(u"callback failed"_s);
        }
    };
}

} // namespace

class StartupGroup : public ZARSysSettings
{
    Q_OBJECT
    Q_PROPERTY(int level MEMBER level)

public:
    StartupGroup()
        : ZARSysSettings(QByteArrayLiteral("Test/Startup"))
    { }
    ~StartupGroup() override = default;

    int level = 0;
};

class tst_InitContext : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(folder.isValid());
        ZARSysSettingsManager::GetManager()->SetSource(
            new QSettings(folder.filePath(u"settings.ini"_s), QSettings::IniFormat));
        // Nothing runs at load.
        QVERIFY(!_ZARSystemLoaded);
    }

    void init() { events.clear(); }

    void initialisersRunOnceInOrder()
    {
        QSettings *source = ZARSysSettingsManager::GetManager()->GetSource();
        StartupGroup group;

        // The library's own start-up work is the first flagged initialiser: the plain ones run
        // before it, the flagged ones of clients after it.
        const auto recordLoaded = [](const QString &name) {
            return [name] {
                events.append(name + (_ZARSystemLoaded ? u" loaded"_s : u" not loaded"_s));
            };
        };
        ZARSysRegisterInit(recordLoaded(u"plain:"_s));
        ZARSysRegisterInit([recordLoaded](const QList<int> &) { recordLoaded(u"flagged:"_s)(); });
        QCOMPARE(ZARSysRegisterInit(recordFlags(u"F1"_s)), false);
        QCOMPARE(ZARSysRegisterInit(record(u"A"_s)), false);
        QCOMPARE(ZARSysRegisterInit(recordFlags(u"F2"_s)), false);
        QCOMPARE(ZARSysRegisterInit(record(u"B"_s)), false);
        QVERIFY(events.isEmpty());

        source->setValue(u"Test/Startup/level"_s, 5);
        {
            const ZARSysInitContext context({7, 8});
            // The plain ones first, then those with flags, each in registration order.
            QCOMPARE(events,
                     QStringList({u"plain: not loaded"_s, u"A"_s, u"B"_s, u"flagged: loaded"_s,
                                  u"F1:7,8"_s, u"F2:7,8"_s}));
            QCOMPARE(group.level, 5);
            QVERIFY(_ZARSystemLoaded);
        }

        // A second context runs nothing again, but loads the settings again.
        source->setValue(u"Test/Startup/level"_s, 6);
        events.clear();
        {
            const ZARSysInitContext context;
            QVERIFY(events.isEmpty());
            QCOMPARE(group.level, 6);
        }
        QVERIFY(events.isEmpty());
    }

    void laterRegistrationsWaitForTheNextContext()
    {
        std::optional<ZARSysInitContext> outer;
        outer.emplace(QList<int> {1});

        ZARSysRegisterInit(recordFlags(u"F"_s));
        ZARSysRegisterInit(record(u"A"_s));
        QVERIFY(events.isEmpty());
        {
            const ZARSysInitContext inner({2, 0});
            QCOMPARE(events, QStringList({u"A"_s, u"F:2,0"_s}));
        }
        outer.reset();
        QCOMPARE(events.size(), 2);
    }

    void terminatorsRunWhenTheLastContextEnds()
    {
        std::optional<ZARSysInitContext> first(std::in_place);
        std::optional<ZARSysInitContext> second(std::in_place);
        QCOMPARE(ZARSysRegisterTerminate(record(u"T1"_s)), false);
        std::optional<ZARSysInitContext> third(std::in_place);
        ZARSysRegisterTerminate(record(u"T2"_s));

        // Assignment changes nothing: both stay counted.
        *second = *third;
        second.reset();
        first.reset();
        QVERIFY(events.isEmpty());

        // First registered, first run: not the reverse of start-up.
        third.reset();
        QCOMPARE(events, QStringList({u"T1"_s, u"T2"_s}));

        // They ran once and were dropped; a new cycle runs only what is registered anew.
        events.clear();
        ZARSysRegisterTerminate(record(u"T3"_s));
        ZARSysInitContext {}; // begins and ends at once
        QCOMPARE(events, QStringList({u"T3"_s}));
    }

    void failingInitialiserLeavesTheStateAlone()
    {
        ZARSysRegisterInit(record(u"A"_s));
        ZARSysRegisterInit(failOnce(u"X"_s));
        ZARSysRegisterInit(record(u"B"_s));
        ZARSysRegisterTerminate(record(u"T"_s));

        QVERIFY_THROWS_EXCEPTION(ZARSysException, ZARSysInitContext());
        QCOMPARE(events, QStringList({u"A"_s, u"X"_s}));

        // The lists were kept, so everything runs again; and the failed context was not counted,
        // so this one is the last and runs the terminator.
        events.clear();
        {
            const ZARSysInitContext context;
            QCOMPARE(events, QStringList({u"A"_s, u"X"_s, u"B"_s}));
        }
        QCOMPARE(events.last(), u"T"_s);
    }

    void failingTerminatorKeepsTheList()
    {
        ZARSysRegisterTerminate(record(u"T1"_s));
        ZARSysRegisterTerminate(failOnce(u"X"_s));
        ZARSysRegisterTerminate(record(u"T2"_s));

        QVERIFY_THROWS_EXCEPTION(ZARSysException, { const ZARSysInitContext context; });
        QCOMPARE(events, QStringList({u"T1"_s, u"X"_s}));

        // The context was uncounted before the terminators ran, so the next one is the last again.
        events.clear();
        ZARSysInitContext {}; // begins and ends at once
        QCOMPARE(events, QStringList({u"T1"_s, u"X"_s, u"T2"_s}));
    }

    void callbacksMayRegisterCallbacks()
    {
        ZARSysRegisterInit([] {
            events.append(u"A"_s);
            ZARSysRegisterInit(record(u"A2"_s));
        });
        ZARSysRegisterInit([](const QList<int> &) {
            events.append(u"F"_s);
            ZARSysRegisterInit(record(u"P"_s)); // its list has been run through
            ZARSysRegisterInit(recordFlags(u"F2"_s));
        });
        ZARSysRegisterTerminate([] {
            events.append(u"T"_s);
            ZARSysRegisterTerminate(record(u"T2"_s));
        });

        {
            const ZARSysInitContext context({3});
            QCOMPARE(events, QStringList({u"A"_s, u"A2"_s, u"F"_s, u"F2:3"_s}));
        }
        QCOMPARE(events.mid(4), QStringList({u"T"_s, u"T2"_s}));

        events.clear();
        ZARSysInitContext {}; // begins and ends at once
        QCOMPARE(events, QStringList({u"P"_s}));
    }

private:
    QTemporaryDir folder;
};

QTEST_GUILESS_MAIN(tst_InitContext)
#include "tst_initcontext.moc"
