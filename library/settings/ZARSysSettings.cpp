#include "ZARSysSettings.h"

#include "ZARSysException.h"
#include "ZARSysSettingsManager.h"
#include "ZARSysSettingsPrivate.h"

#include <QCoreApplication>
#include <QDynamicPropertyChangeEvent>
#include <QEvent>
#include <QMetaObject>
#include <QMetaProperty>
#include <QSettings>

ZARSysSettingsPropertyWatcher::ZARSysSettingsPropertyWatcher(ZARSysSettings *settings)
    : QObject(settings)
    , m_settings(settings)
{ }

bool ZARSysSettingsPropertyWatcher::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::DynamicPropertyChange)
        return QObject::eventFilter(watched, event);

    const QByteArray name = static_cast<QDynamicPropertyChangeEvent *>(event)->propertyName();
    // A removed property reads as an invalid variant, which is written through as well.
    ZARSysSettingsPrivate::UpdateSetting(m_settings, name, m_settings->property(name.constData()));
    return true;
}

void ZARSysSettingsPrivate::UpdateSetting(ZARSysSettings *settings, const QByteArray &key,
                                          const QVariant &value)
{
    settings->UpdateSetting(key, value);
}

void ZARSysSettingsPrivate::LoadStoredSettings(ZARSysSettings *settings)
{
    settings->LoadStoredSettings();
}

ZARSysSettings::ZARSysSettings(const QByteArray &framework)
    : d(std::make_unique<ZARSysSettingsPrivate>(framework))
{
    if (ZARSysSettingsManager *manager = ZARSysSettingsManager::GetManager())
        manager->RegisterSettings(this);
    installEventFilter(new ZARSysSettingsPropertyWatcher(this));
}

ZARSysSettings::~ZARSysSettings()
{
    if (ZARSysSettingsManager *manager = ZARSysSettingsManager::GetManager())
        manager->UnregisterSettings(this);
}

QByteArray ZARSysSettings::GetFramework() const
{
    return d->framework;
}

QList<QByteArray> ZARSysSettings::GetKeys() const
{
    QList<QByteArray> keys = dynamicPropertyNames();
    // Each level lists its inherited properties too; the repetitions are wanted, since
    // RevertToDefaults() announces a key once per listing.
    for (const QMetaObject *mo = metaObject(); mo && mo != &QObject::staticMetaObject;
         mo = mo->superClass()) {
        const int count = mo->propertyCount();
        for (int i = 0; i < count; ++i)
            keys.append(QByteArray(mo->property(i).name()));
    }
    return keys;
}

QVariant ZARSysSettings::GetValue(const QByteArray &key, const QVariant &defaultValue) const
{
    const QVariant value = property(key.constData());
    return value.isValid() ? value : defaultValue;
}

void ZARSysSettings::SetValue(const QByteArray &key, const QVariant &value)
{
    // For a dynamic property the watcher has already written the value through and the explicit
    // update below finds it stored; for a declared property no event is sent and the update is
    // what persists it.
    setProperty(key.constData(), value);
    UpdateSetting(key, value);
}

void ZARSysSettings::UpdateSetting(const QByteArray &key, const QVariant &value)
{
    const ZARSysSettingsManager *manager = ZARSysSettingsManager::GetManager();
    QSettings *source = manager ? manager->GetSource() : nullptr;
    if (!source)
        return;

    ZARSysSettingGroupContext group(source, d->sourceGroup);
    const QString sourceKey = QString::fromLatin1(key);
    if (source->value(sourceKey) == value)
        return;

    source->setValue(sourceKey, value);
    Q_EMIT SettingChanged(key, value);
    if (d->batchDepth > 0)
        d->changedKeys.insert(key);
}

void ZARSysSettings::Save() const
{
    const ZARSysSettingsManager *manager = ZARSysSettingsManager::GetManager();
    if (!manager || !manager->GetSource())
        return;

    // UpdateSetting() is not const, but saving changes only the source and signals.
    auto *self = const_cast<ZARSysSettings *>(this);
    const QList<QByteArray> keys = GetKeys();
    for (const QByteArray &key : keys)
        self->UpdateSetting(key, property(key.constData()));
}

void ZARSysSettings::LoadStoredSettings()
{
    const ZARSysSettingsManager *manager = ZARSysSettingsManager::GetManager();
    const QPointer<QSettings> source = manager ? manager->GetSource() : nullptr;
    if (!source)
        return;

    const QString &sourceGroup = d->sourceGroup;
    QStringList keys;
    {
        ZARSysSettingGroupContext group(source, sourceGroup);
        keys = source->allKeys();
    }
    // Setting a property can run arbitrary code (a subclass setter, a signal), so the group is
    // opened per key and the source is at its root whenever that happens.
    for (const QString &key : std::as_const(keys)) {
        if (!source) // deleted by what the previous key ran
            return;
        QVariant value;
        {
            ZARSysSettingGroupContext group(source, sourceGroup);
            value = source->value(key);
        }
        setProperty(key.toLatin1().constData(), value);
    }
}

void ZARSysSettings::ClearSettings()
{
    const QList<QByteArray> names = dynamicPropertyNames();
    for (const QByteArray &name : names)
        setProperty(name.constData(), QVariant());
}

void ZARSysSettings::RevertToDefaults()
{
    const QList<QByteArray> keys = GetKeys();
    for (const QByteArray &key : keys)
        Q_EMIT SettingChanged(key, GetValue(key, QVariant()));
}

bool ZARSysSettings::IsInBatch() const
{
    return d->batchDepth > 0;
}

ZARSysSettingsBatchContext::ZARSysSettingsBatchContext(ZARSysSettings *settings)
    : m_settings(settings)
{
    if (m_settings)
        ++m_settings->d->batchDepth;
}

ZARSysSettingsBatchContext::~ZARSysSettingsBatchContext()
{
    if (!m_settings)
        return;
    if (--m_settings->d->batchDepth <= 0)
        Q_EMIT m_settings->BatchFinished(m_settings->d->changedKeys.values());
}

ZARSysSettingsBatchContext &
ZARSysSettingsBatchContext::operator=(const ZARSysSettingsBatchContext &other) = default;

ZARSysSettingGroupContext::ZARSysSettingGroupContext(QSettings *settings, const QString &group)
    : m_settings(settings)
    , m_group(group)
{
    if (m_settings)
        m_settings->beginGroup(m_group);
}

ZARSysSettingGroupContext::~ZARSysSettingGroupContext()
{
    if (m_settings)
        m_settings->endGroup();
}

#include "moc_ZARSysSettings.cpp"
