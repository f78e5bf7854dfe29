#include "ZARSysLibrarySettings.h"

#include "ZARSysException.h"
#include "ZARSysGlobalStatic.h"
#include "ZARSysSettingsManager.h"
#include "ZARSysSettingsPrivate.h"

ZARSysLibrarySettings::ZARSysLibrarySettings(const QByteArray &framework)
    : ZARSysSettings(framework)
{
    // Opened by whichever thread needs it first, but written by the application's thread.
    ZARSysMoveToApplicationThread(this);
    ZARSysSettingsPrivate::LoadStoredSettings(this);
}

ZARSysSettings *ZARSysLibrarySettings::Open(const QByteArray &framework)
{
    try {
        if (ZARSysSettingsManager::GetManager())
            return new ZARSysLibrarySettings(framework);
    } catch (const ZARSysException &) { }
    return nullptr;
}
