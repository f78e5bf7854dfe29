#include "ZARSysSettingsManager.h"

#include "ZARSysException.h"
#include "ZARSysSettings.h"
#include "private/ZARSysSettingsManagerPrivate.h"

#include <QSettings>

namespace {
// Set once the manager is gone at library unload, so that groups destroyed later (statics of
// other libraries) do not reach a destroyed object.
bool managerDestroyed = false;
} // namespace

ZARSysSettingsManager::ZARSysSettingsManager()
    : d(std::make_unique<ZARSysSettingsManagerPrivate>())
{ }

ZARSysSettingsManager::~ZARSysSettingsManager()
{
    // Each group's destructor unregisters it and saves it through the source, which therefore
    // goes last.
    const QList<ZARSysSettings *> groups = d->groupsByFramework.values();
    for (ZARSysSettings *group : groups)
        delete group;
    d->groupsByFramework.clear();
    d->registrationList.clear();
    delete d->source.data();
    managerDestroyed = true;
}

ZARSysSettingsManager *ZARSysSettingsManager::GetManager()
{
    static ZARSysSettingsManager manager;
    return managerDestroyed ? nullptr : &manager;
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
    // A guarded copy: loading runs subclass code that may register or destroy groups.
    QList<QPointer<ZARSysSettings>> groups;
    groups.reserve(d->groupsByFramework.size());
    for (ZARSysSettings *group : std::as_const(d->groupsByFramework))
        groups.append(group);
    for (const QPointer<ZARSysSettings> &group : std::as_const(groups)) {
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
