#include "testgroups.h"

#include <ZARSysSettingsManager.h>

#include <QSettings>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

using KeyList = QList<QByteArray>;

class tst_Settings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(m_dir->isValid());
        m_ini = m_dir->filePath(u"settings.ini"_s);
        ZARSysSettingsManager::GetManager()->SetSource(new QSettings(m_ini, QSettings::IniFormat));
    }

    void cleanup()
    {
        ZARSysSettingsManager::GetManager()->SetSource(nullptr);
        QVERIFY(ZARSysSettingsManager::GetManager()->GetSettings().isEmpty());
        m_dir.reset();
    }

    void setValueWritesThroughOnce_data()
    {
        QTest::addColumn<QByteArray>("key");
        QTest::addColumn<QVariant>("value");
        QTest::newRow("declared") << "zoom"_ba << QVariant(4);
        QTest::newRow("dynamic") << "cutter/speed"_ba << QVariant(2.5);
    }

    void setValueWritesThroughOnce()
    {
        QFETCH(QByteArray, key);
        QFETCH(QVariant, value);
        const QString path = u"Test/Two/"_s + QString::fromLatin1(key);

        TwoSettings group;
        QSignalSpy changed(&group, &ZARSysSettings::SettingChanged);
        group.SetValue(key, value);
        group.SetValue(key, value);

        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.at(0), (QVariantList {key, value}));
        QCOMPARE(group.GetValue(key), value);
        QCOMPARE(source()->value(path), value);
        // Every access leaves the source at its root.
        QCOMPARE(source()->group(), QString());

        // The value is compared with the source's: one it holds already is no change though the
        // property changes, and one it does not hold is a change though the property has it.
        source()->setValue(path, 7);
        group.SetValue(key, 7);
        QCOMPARE(group.GetValue(key), QVariant(7));
        QCOMPARE(changed.count(), 1);
        source()->setValue(path, 8);
        group.SetValue(key, 7);
        QCOMPARE(changed.count(), 2);
        QCOMPARE(source()->value(path), QVariant(7));
    }

    void withoutSourceOnlyMemoryChanges_data()
    {
        QTest::addColumn<QByteArray>("key");
        QTest::newRow("declared") << "title"_ba;
        QTest::newRow("dynamic") << "extra"_ba;
    }

    void withoutSourceOnlyMemoryChanges()
    {
        QFETCH(QByteArray, key);
        ZARSysSettingsManager::GetManager()->SetSource(nullptr);

        TwoSettings group;
        QSignalSpy changed(&group, &ZARSysSettings::SettingChanged);
        QSignalSpy finished(&group, &ZARSysSettings::BatchFinished);
        {
            ZARSysSettingsBatchContext batch(&group);
            group.SetValue(key, u"kept in memory"_s);
            group.Save();
        }
        QCOMPARE(group.GetValue(key), QVariant(u"kept in memory"_s));
        QCOMPARE(changed.count(), 0);
        QCOMPARE(finished.count(), 1);
        QCOMPARE(finished.at(0).at(0).value<KeyList>(), KeyList());

        // Once a source is set, Save() writes what was changed meanwhile.
        ZARSysSettingsManager::GetManager()->SetSource(new QSettings(m_ini, QSettings::IniFormat));
        group.Save();
        QCOMPARE(source()->value(u"Test/Two/"_s + QString::fromLatin1(key)),
                 QVariant(u"kept in memory"_s));
    }

    void setPropertyPersistsDynamicOnly()
    {
        TwoSettings group;
        QSignalSpy changed(&group, &ZARSysSettings::SettingChanged);

        group.setProperty("layer", u"top"_s);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(source()->value(u"Test/Two/layer"_s), QVariant(u"top"_s));

        // A declared property sends no event: nothing is written until Save().
        group.setProperty("zoom", 9);
        QCOMPARE(changed.count(), 1);
        QVERIFY(!source()->contains(u"Test/Two/zoom"_s));

        group.Save();
        QCOMPARE(source()->value(u"Test/Two/zoom"_s), QVariant(9));
        // Save() walks every key, but writes and signals only those that differ from the source:
        // objectName (once, although it is listed twice), zoom and title.
        KeyList signalled;
        for (const QList<QVariant> &args : std::as_const(changed))
            signalled << args.at(0).toByteArray();
        QCOMPARE(signalled, KeyList({"layer", "objectName", "zoom", "title"}));

        changed.clear();
        group.Save();
        QCOMPARE(changed.count(), 0);
    }

    void getKeysRepeatsInheritedProperties()
    {
        TwoSettings two;
        two.setProperty("dyn", true);
        QCOMPARE(two.GetKeys(), KeyList({"dyn", "objectName", "zoom", "title", "objectName"}));

        DerivedSettings derived;
        QCOMPARE(derived.GetKeys(),
                 KeyList({"objectName", "zoom", "title", "ratio", //
                          "objectName", "zoom", "title", //
                          "objectName"}));
    }

    void batchCollectsKeys()
    {
        TwoSettings group;
        QSignalSpy changed(&group, &ZARSysSettings::SettingChanged);
        QSignalSpy finished(&group, &ZARSysSettings::BatchFinished);
        QVERIFY(!group.IsInBatch());
        {
            ZARSysSettingsBatchContext outer(&group);
            group.SetValue("zoom"_ba, 2);
            {
                ZARSysSettingsBatchContext inner(&group);
                group.SetValue("title"_ba, u"plate"_s);
                group.SetValue("zoom"_ba, 3);
                group.SetValue("zoom"_ba, 3); // unchanged: neither signalled nor recorded twice
            }
            QCOMPARE(finished.count(), 0);
            QVERIFY(group.IsInBatch());
            // Changes are announced at once, not at the end of the batch.
            QCOMPARE(changed.count(), 3);
        }
        QVERIFY(!group.IsInBatch());
        QCOMPARE(finished.count(), 1);
        const auto sorted = [&finished](int batch) {
            KeyList keys = finished.at(batch).at(0).value<KeyList>();
            std::sort(keys.begin(), keys.end());
            return keys;
        };
        QCOMPARE(sorted(0), KeyList({"title", "zoom"}));

        // The keys accumulate over the group's batches; changes outside a batch are not recorded.
        group.SetValue("note"_ba, u"outside"_s);
        {
            ZARSysSettingsBatchContext batch(&group);
            group.setProperty("layer", 1);
        }
        {
            ZARSysSettingsBatchContext batch(&group); // nothing changes in this one
        }
        QCOMPARE(finished.count(), 3);
        QCOMPARE(sorted(1), KeyList({"layer", "title", "zoom"}));
        QCOMPARE(sorted(2), sorted(1));
    }

    void batchEdgeCases()
    {
        {
            ZARSysSettingsBatchContext nothing(nullptr); // harmless on both ends
        }
        {
            auto *group = new TwoSettings;
            QSignalSpy finished(group, &ZARSysSettings::BatchFinished);
            {
                ZARSysSettingsBatchContext batch(group);
                QVERIFY(group->IsInBatch());
                delete group; // the context outlives its group
            }
            QCOMPARE(finished.count(), 0);
        }

        // Assignment copies the pointer only: both contexts end a batch on the second group, so
        // the first group's batch stays open.
        TwoSettings first(QByteArrayLiteral("Test/First"));
        TwoSettings second(QByteArrayLiteral("Test/Second"));
        QSignalSpy secondFinished(&second, &ZARSysSettings::BatchFinished);
        {
            ZARSysSettingsBatchContext a(&first);
            ZARSysSettingsBatchContext b(&second);
            a = b;
        }
        QVERIFY(first.IsInBatch());
        QVERIFY(!second.IsInBatch());
        QCOMPARE(secondFinished.count(), 2); // depth 0, then -1: both at or below zero
    }

    void revertToDefaults()
    {
        TwoSettings two;
        two.zoom = 8;
        QSignalSpy announced(&two, &ZARSysSettings::SettingChanged);
        two.RevertToDefaults();
        // The base announces the current values, repetitions included, and changes nothing.
        QCOMPARE(announced.count(), 4);
        QCOMPARE(announced.at(1), (QVariantList {"zoom"_ba, 8}));
        QCOMPARE(announced.at(3).at(0).toByteArray(), "objectName"_ba);
        QCOMPARE(two.zoom, 8);
        QVERIFY(!source()->contains(u"Test/Two/zoom"_s));

        // Invoked as a slot, the override runs.
        DerivedSettings derived;
        derived.SetValue("zoom"_ba, 3);
        derived.SetValue("ratio"_ba, 2.0);
        QSignalSpy reverted(&derived, &ZARSysSettings::SettingChanged);
        QVERIFY(QMetaObject::invokeMethod(&derived, "RevertToDefaults"));
        QCOMPARE(derived.zoom, 1);
        QCOMPARE(derived.ratio, 0.5);
        QCOMPARE(source()->value(u"Test/Derived/zoom"_s), QVariant(1));
        // Three writes (title had never been stored), then the announcement of all eight keys.
        QCOMPARE(reverted.count(), 3 + 8);
    }

    void clearSettingsKeepsDeclared()
    {
        TwoSettings group;
        group.SetValue("zoom"_ba, 4);
        group.SetValue("a"_ba, 1);
        group.SetValue("b"_ba, 2);
        QSignalSpy changed(&group, &ZARSysSettings::SettingChanged);

        // Each dynamic property is removed; like any removed dynamic property, it then reads as
        // an invalid value, which is written through.
        group.ClearSettings();

        QVERIFY(group.dynamicPropertyNames().isEmpty());
        QCOMPARE(group.zoom, 4);
        QCOMPARE(source()->value(u"Test/Two/zoom"_s), QVariant(4));
        QCOMPARE(changed.count(), 2);
        QCOMPARE(changed.at(1), (QVariantList {"b"_ba, QVariant()}));
        for (const char *key : {"a", "b"}) {
            QVERIFY(source()->contains(u"Test/Two/"_s + QLatin1String(key)));
            QVERIFY(!source()->value(u"Test/Two/"_s + QLatin1String(key)).isValid());
        }
        // Removed or unknown, the key reads as the given default.
        QCOMPARE(group.GetValue("a"_ba, 42), QVariant(42));
        QCOMPARE(group.GetValue("unknown"_ba, 42), QVariant(42));
        QCOMPARE(group.GetValue("zoom"_ba, 42), QVariant(4));
    }

    void loadReadsTheWholeGroup()
    {
        ZARSysSettingsManager::GetManager()->SetSource(nullptr);
        {
            QSettings file(m_ini, QSettings::IniFormat);
            file.setValue(u"Test/Two/zoom"_s, 7);
            file.setValue(u"Test/Two/note"_s, u"from disk"_s);
            file.setValue(u"Test/Two/tool/diameter"_s, 6.35);
            file.setValue(u"Test/Other/zoom"_s, 99);
        }

        TwoSettings group;
        QSignalSpy changed(&group, &ZARSysSettings::SettingChanged);
        ZARSysSettingsManager::GetManager()->SetSource(new QSettings(m_ini, QSettings::IniFormat));

        QCOMPARE(group.zoom, 7);
        QCOMPARE(group.GetValue("note"_ba), QVariant(u"from disk"_s));
        QCOMPARE(group.GetValue("tool/diameter"_ba).toDouble(), 6.35);
        KeyList dynamic = group.dynamicPropertyNames();
        std::sort(dynamic.begin(), dynamic.end());
        QCOMPARE(dynamic, KeyList({"note", "tool/diameter"}));
        QCOMPARE(changed.count(), 0);
        QCOMPARE(source()->group(), QString());
    }

    void groupContext()
    {
        QSettings settings(m_dir->filePath(u"group.ini"_s), QSettings::IniFormat);
        {
            ZARSysSettingGroupContext outer(&settings, u"Outer"_s);
            ZARSysSettingGroupContext inner(&settings, u"Inner"_s);
            QCOMPARE(settings.group(), u"Outer/Inner"_s);
            settings.setValue(u"key"_s, 1);
        }
        QCOMPARE(settings.group(), QString());
        QCOMPARE(settings.value(u"Outer/Inner/key"_s), QVariant(1));

        {
            ZARSysSettingGroupContext none(nullptr, u"Ignored"_s);
        }

        // The source may go away while a group is open.
        auto *doomed = new QSettings(m_dir->filePath(u"doomed.ini"_s), QSettings::IniFormat);
        {
            ZARSysSettingGroupContext open(doomed, u"Group"_s);
            delete doomed;
        }
    }

    void persistsAcrossProcesses_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("readBack");
        QTest::newRow("declared int") << u"zoom"_s << u"3"_s << u"3 int"_s;
        QTest::newRow("dynamic text") << u"note"_s << u"Größe 1/2"_s << u"Größe 1/2 QString"_s;
    }

    void persistsAcrossProcesses()
    {
        QFETCH(QString, key);
        QFETCH(QString, value);
        ZARSysSettingsManager::GetManager()->SetSource(nullptr);
        const QString ini = m_dir->filePath(u"shared.ini"_s);

        QCOMPARE(runSettingsHelper({u"write"_s, ini, key, value}), u"1"_s);
        QTEST(runSettingsHelper({u"read"_s, ini, key}), "readBack");
        // Writing the stored value again is no change.
        QCOMPARE(runSettingsHelper({u"write"_s, ini, key, value}), u"0"_s);
    }

private:
    QSettings *source() const { return ZARSysSettingsManager::GetManager()->GetSource(); }

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_ini;
};

QTEST_GUILESS_MAIN(tst_Settings)
#include "tst_settings.moc"
