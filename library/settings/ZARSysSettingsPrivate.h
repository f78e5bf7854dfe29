#ifndef ZARSYSSETTINGSPRIVATE_H
#define ZARSYSSETTINGSPRIVATE_H

#include "ZARSysSettings.h"

#include <QByteArray>
#include <QObject>
#include <QSet>
#include <QString>
#include <QVariant>

class ZARSysSettings;

class ZARSysSettingsPrivate
{
public:
    explicit ZARSysSettingsPrivate(const QByteArray &framework)
        : framework(framework)
        , sourceGroup(QString::fromUtf8(framework))
    { }

    // Lets the property watcher reach the protected write-through of its group.
    static void UpdateSetting(ZARSysSettings *settings, const QByteArray &key,
                              const QVariant &value);
    // Lets the library's own groups load themselves when they are created.
    static void LoadStoredSettings(ZARSysSettings *settings);

    const QByteArray framework;
    // The group in the source that holds this group's keys.
    const QString sourceGroup;
    int batchDepth = 0;
    // Keys written while a batch was open; kept for the group's whole life, so every
    // BatchFinished reports the keys of all batches so far.
    QSet<QByteArray> changedKeys;
};

// Child of every group and its event filter: a dynamic property that changes is written
// through to the source, so setProperty() on a dynamic property persists like SetValue().
class ZARSysSettingsPropertyWatcher : public QObject
{
public:
    explicit ZARSysSettingsPropertyWatcher(ZARSysSettings *settings);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    ZARSysSettings *const m_settings;
};

#endif // ZARSYSSETTINGSPRIVATE_H
