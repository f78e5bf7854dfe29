#include "testgroups.h"

#include <ZARSysException.h>
#include <ZARSysSettingsManager.h>

#include <QPointer>
#include <QSettings>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

// Records the order in which groups are loaded: loading a stored key creates a dynamic
// property, whose change event reaches this filter before the group's own watcher.
class LoadRecorder : public QObject
{
public:
    void watch(ZARSysSettings *group) { group->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::DynamicPropertyChange)
            loaded << static_cast<ZARSysSettings *>(watched)->GetFramework();
        return false;
    }

    QList<QByteArray> loaded;
};

} // namespace

class tst_SettingsManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        QVERIFY(manager());
        QCOMPARE(manager(), ZARSysSettingsManager::GetManager());
        // A fresh manager has no source and no groups.
        QVERIFY(!manager()->GetSource());
        QVERIFY(manager()->GetSettings().isEmpty());
    }

    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(m_dir->isValid());
    }

    void cleanup()
    {
        manager()->SetSource(nullptr);
        QVERIFY(manager()->GetSettings().isEmpty());
        m_dir.reset();
    }

    void registry()
    {
        QVERIFY(!manager()->GetSettings("Test/Two"_ba));
        auto *two = new TwoSettings;
        {
            DerivedSettings derived;
            QCOMPARE(manager()->GetSettings("Test/Two"_ba), two);
            QCOMPARE(manager()->GetSettings("Test/Derived"_ba), &derived);
            const QList<ZARSysSettings *> all = manager()->GetSettings();
            QVERIFY(all.size() == 2 && all.contains(two) && all.contains(&derived));
        }
        QVERIFY(!manager()->GetSettings("Test/Derived"_ba));
        QCOMPARE(manager()->GetSettings(), QList<ZARSysSettings *> {two});

        delete two;
        QVERIFY(!manager()->GetSettings("Test/Two"_ba));
        // The name is free again.
        TwoSettings again;
        QCOMPARE(manager()->GetSettings("Test/Two"_ba), &again);
    }

    void duplicateFrameworkThrows()
    {
        TwoSettings first(QByteArrayLiteral("Shared"));
        try {
            DerivedSettings second(QByteArrayLiteral("Shared"));
            QFAIL("a second group of the same framework was built");
        } catch (const ZARSysException &e) {
            QCOMPARE(e.GetText(), u"Settings for framework already registered"_s);
        }
        QCOMPARE(manager()->GetSettings("Shared"_ba), &first);
        QCOMPARE(manager()->GetSettings().size(), 1);
        // The first group still works.
        manager()->SetSource(newSource());
        QSignalSpy changed(&first, &ZARSysSettings::SettingChanged);
        first.SetValue("zoom"_ba, 2);
        QCOMPARE(changed.count(), 1);
    }

    void setSourceOwnership()
    {
        TwoSettings group;
        QPointer<QSettings> first = newSource(u"first.ini"_s);
        manager()->SetSource(first);
        QCOMPARE(manager()->GetSource(), first.data());

        // The same source again: kept, and every group is loaded once more.
        first->setValue(u"Test/Two/zoom"_s, 11);
        manager()->SetSource(first);
        QVERIFY(first);
        QCOMPARE(group.zoom, 11);

        // A new source replaces and deletes the old one, and the groups load from it.
        QPointer<QSettings> second = newSource(u"second.ini"_s);
        second->setValue(u"Test/Two/zoom"_s, 22);
        manager()->SetSource(second);
        QVERIFY(!first);
        QCOMPARE(manager()->GetSource(), second.data());
        QCOMPARE(group.zoom, 22);

        // No source: the old one is deleted.
        manager()->SetSource(nullptr);
        QVERIFY(!second);
        QVERIFY(!manager()->GetSource());
        // The file kept what was written before the source went away.
        QCOMPARE(std::unique_ptr<QSettings>(newSource(u"second.ini"_s))
                     ->value(u"Test/Two/zoom"_s)
                     .toInt(),
                 22);
    }

    void sourceDeletedElsewhere()
    {
        // Hosts often give the source a parent; the manager must not delete it a second time.
        auto parent = std::make_unique<QObject>();
        QSettings *source = newSource();
        source->setParent(parent.get());
        manager()->SetSource(source);
        TwoSettings group;
        parent.reset();
        QVERIFY(!manager()->GetSource());
        group.SetValue("zoom"_ba, 3); // memory only now
        QCOMPARE(group.zoom, 3);
    }

    void newGroupsAreLoadedOnRequest()
    {
        std::unique_ptr<QSettings>(newSource())->setValue(u"Test/Two/zoom"_s, 4);
        manager()->SetSource(newSource());
        TwoSettings group;
        QCOMPARE(group.zoom, 1);
        manager()->LoadSettings();
        QCOMPARE(group.zoom, 4);
    }

    void loadUninitFollowsRegistrationOrder()
    {
        const QList<QByteArray> names {"C", "A", "E", "B", "D", "F"};
        const std::unique_ptr<QSettings> file(newSource());
        for (const QByteArray &name : names)
            file->setValue(QString::fromLatin1(name + "/key"), 1);
        file->sync();
        std::vector<std::unique_ptr<TwoSettings>> groups;
        LoadRecorder recorder;
        for (const QByteArray &name : names) {
            groups.push_back(std::make_unique<TwoSettings>(name));
            recorder.watch(groups.back().get());
        }
        manager()->SetSource(newSource());
        QCOMPARE(recorder.loaded.size(), names.size());

        // A stored value that differs from the property is what makes a load visible.
        const auto changeStoredValues = [&](int value) {
            for (const QByteArray &name : names)
                manager()->GetSource()->setValue(QString::fromLatin1(name + "/key"), value);
            recorder.loaded.clear();
        };

        // A destroyed group keeps its place in the registration list but is skipped.
        groups.erase(groups.begin() + 2); // "E"
        changeStoredValues(2);
        manager()->LoadUninitSettings();
        QCOMPARE(recorder.loaded, QList<QByteArray>({"C", "A", "B", "D", "F"}));

        // A group registered again under a known name is listed again, at the end.
        groups.push_back(std::make_unique<TwoSettings>("E"_ba));
        recorder.watch(groups.back().get());
        changeStoredValues(3);
        manager()->LoadUninitSettings();
        QCOMPARE(recorder.loaded, QList<QByteArray>({"C", "A", "B", "D", "F", "E"}));
    }

    void unregisterSaves()
    {
        auto *group = new TwoSettings;
        group->SetValue("note"_ba, u"unsaved"_s); // no source yet: memory only
        manager()->SetSource(newSource());
        QVERIFY(!manager()->GetSource()->contains(u"Test/Two/note"_s));

        delete group;
        QCOMPARE(manager()->GetSource()->value(u"Test/Two/note"_s), QVariant(u"unsaved"_s));
    }

    void unloadSavesLeakedGroups()
    {
        const QString ini = m_dir->filePath(u"leak.ini"_s);
        // The helper leaves its group to the manager, which saves it when the library unloads.
        QCOMPARE(runSettingsHelper({u"leak"_s, ini, u"note"_s, u"saved at exit"_s}),
                 u"registered"_s);
        QCOMPARE(runSettingsHelper({u"read"_s, ini, u"note"_s}), u"saved at exit QString"_s);
    }

private:
    ZARSysSettingsManager *manager() const { return ZARSysSettingsManager::GetManager(); }
    QSettings *newSource(const QString &name = u"settings.ini"_s) const
    {
        return new QSettings(m_dir->filePath(name), QSettings::IniFormat);
    }

    std::unique_ptr<QTemporaryDir> m_dir;
};

QTEST_GUILESS_MAIN(tst_SettingsManager)
#include "tst_settingsmanager.moc"
