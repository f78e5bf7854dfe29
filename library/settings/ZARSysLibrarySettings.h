#ifndef ZARSYSLIBRARYSETTINGS_H
#define ZARSYSLIBRARYSETTINGS_H

#include "ZARSysSettings.h"

// A group of the library's own ("System/Units", "System/Ratios"), opened by name when first
// needed. Unlike a module's group it may be created after the host has set the source, so it
// loads what the source holds at once; later sources are loaded by the manager as usual. The
// manager deletes it when the library is unloaded.
class ZARSysLibrarySettings : public ZARSysSettings
{
public:
    explicit ZARSysLibrarySettings(const QByteArray &framework);

    // The group, or null when there is no settings manager (the library is being unloaded) or
    // a group of that name is registered already.
    static ZARSysSettings *Open(const QByteArray &framework);
};

#endif // ZARSYSLIBRARYSETTINGS_H
