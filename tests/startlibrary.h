#ifndef STARTLIBRARY_H
#define STARTLIBRARY_H

#include <ZARSysSettingsManager.h>
#include <ZARSystem.h>

#include <QSettings>
#include <QTemporaryDir>

#include <memory>

// Starts the library as a host does, with a settings file of its own in a temporary folder.
// Returns the source.
inline QSettings *startLibrary()
{
    static QTemporaryDir folder;
    static std::unique_ptr<ZARSysInitContext> context;
    if (!context) {
        ZARSysSettingsManager::GetManager()->SetSource(
            new QSettings(folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat));
        context = std::make_unique<ZARSysInitContext>();
    }
    return ZARSysSettingsManager::GetManager()->GetSource();
}

#endif // STARTLIBRARY_H
