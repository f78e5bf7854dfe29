#include "ZARSysSettingsManager.h"

#include "ZARSysException.h"
#include "ZARSysGlobalStatic.h"
#include "ZARSysSettings.h"
#include "ZARSysSettingsManagerPrivate.h"

#include <QSettings>

QList<QPointer<ZARSysSettings>> ZARSysSettingsManagerPrivate::GuardedGroups() const
{
    QList<QPointer<ZARSysSettings>> groups;
    groups.reserve(groupsByFramework.size());
    for (ZARSysSettings *group : groupsByFramework)
        groups.append(group);
    return groups;
}

ZARSysSettingsManager::ZARSysSettingsManager()
    : d(std::make_unique<ZARSysSettingsManagerPrivate>())
{ }

ZARSysSettingsManager::~ZARSysSettingsManager()
{
    // Each group's destructor unregisters it and saves it through the source, which therefore
    // goes last. Guarded, since deleting one group may delete another (a child, say).
    const QList<QPointer<ZARSysSettings>> groups = d->GuardedGroups();
    for (const QPointer<ZARSysSettings> &group : groups)
        delete group.data();
    d->groupsByFramework.clear();
    d->registrationList.clear();
    delete d->source.data();
}

ZARSysSettingsManager *ZARSysSettingsManager::GetManager()
{
    // Null once the manager is gone at library unload, so that groups destroyed later (statics
    // of other libraries) do not reach a destroyed object.
    return ZARSysGlobalStatic<ZARSysSettingsManager>::Get(
        [] { return new ZARSysSettingsManager; },
        [](ZARSysSettingsManager *manager) { delete manager; });
}

void ZARSysSettingsManager::RegisterSettings(ZARSysSettings *settings)
{
    const QByteArray framework = settings->GetFramework();
    if (d->groupsByFramework.contains(framework))
        throw ZARSysException(QStringLiteral("Settings for framework already registered"));
    d->groupsByFramework.insert(framework, settings);
    d->registrationList.append(settings);
}

void ZARSysSettingsManager::UnregisterSettings(ZARSysSettings *settings)
{
    // By name only: the stored pointer is not compared with settings.
    if (!d->groupsByFramework.isEmpty())
        d->groupsByFramework.remove(settings->GetFramework());
    settings->Save();
}

QList<ZARSysSettings *> ZARSysSettingsManager::GetSettings() const
{
    return d->groupsByFramework.values();
}

ZARSysSettings *ZARSysSettingsManager::GetSettings(const QByteArray &framework) const
{
    return d->groupsByFramework.value(framework, nullptr);
}

void ZARSysSettingsManager::SetSource(QSettings *source)
{
    if (source != d->source) {
        QSettings *previous = d->source.data();
        d->source = source;
        delete previous;
    }
    LoadSettings();
}

QSettings *ZARSysSettingsManager::GetSource() const
{
    return d->source.data();
}

void ZARSysSettingsManager::LoadSettings()
{
    // Loading runs subclass code that may register or destroy groups.
    const QList<QPointer<ZARSysSettings>> groups = d->GuardedGroups();
    for (const QPointer<ZARSysSettings> &group : groups) {
        if (group)
            group->LoadStoredSettings();
    }
}

void ZARSysSettingsManager::LoadUninitSettings()
{
    const QList<QPointer<ZARSysSettings>> groups = d->registrationList;
    for (const QPointer<ZARSysSettings> &group : groups) {
        if (group)
            group->LoadStoredSettings();
    }
}
