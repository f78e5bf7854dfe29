#ifndef ZARSYSSETTINGSMANAGERPRIVATE_H
#define ZARSYSSETTINGSMANAGERPRIVATE_H

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QPointer>
#include <QSettings>

class ZARSysSettings;

class ZARSysSettingsManagerPrivate
{
public:
    // Owned. Guarded, because a host may give the source a QObject parent that deletes it
    // first.
    QPointer<QSettings> source;
    QHash<QByteArray, ZARSysSettings *> groupsByFramework;
    // Every group in the order of registration. Entries are never removed, so a group that is
    // destroyed and registered again appears twice; destroyed groups read as null.
    QList<QPointer<ZARSysSettings>> registrationList;

    // The registered groups, each guarded against destruction while they are walked.
    QList<QPointer<ZARSysSettings>> GuardedGroups() const;
};

#endif // ZARSYSSETTINGSMANAGERPRIVATE_H
