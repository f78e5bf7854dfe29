#include "ZARSystem.h"

#include "ZARSysEnvironmentPrivate.h"
#include "ZARSysGlobalStatic.h"
#include "ZARSysPlatform.h"
#include "ZARSysStartupRegistry.h"

#include <QDebug>
#include <QDir>

bool _ZARSystemLoaded = false;

ZARSysStartupRegistry::ZARSysStartupRegistry()
{
    flaggedInitializers.append(
        [](const QList<int> &flags) { _ZARSystemLoaded = ZARSysSetUpEnvironment(flags); });
}

ZARSysStartupRegistry &ZARSysStartupRegistry::Instance()
{
    // Created on first use, so registrations from any static initialiser find it ready, and
    // destroyed with the library's other static objects when the library is unloaded. Nothing
    // registers or counts contexts after that.
    return *ZARSysGlobalStatic<ZARSysStartupRegistry>::Get(
        [] { return new ZARSysStartupRegistry; },
        [](ZARSysStartupRegistry *registry) { delete registry; });
}

bool ZARSysRegisterInit(const std::function<void()> &fn)
{
    ZARSysStartupRegistry::Instance().initializers.append(fn);
    return false;
}

bool ZARSysRegisterInit(const std::function<void(const QList<int> &)> &fn)
{
    ZARSysStartupRegistry::Instance().flaggedInitializers.append(fn);
    return false;
}

bool ZARSysRegisterTerminate(const std::function<void()> &fn)
{
    ZARSysStartupRegistry::Instance().terminators.append(fn);
    return false;
}

QString ZARSysGetBuildDate()
{
    return QStringLiteral(__DATE__);
}

int ZARSysGetBuildVersion()
{
    return 0;
}

QString ZARSysGetModuleVersion(const QString &filePath)
{
    using Status = ZARSysPlatform::FileVersionStatus;
    const ZARSysPlatform::FileVersion version =
        ZARSysPlatform::ModuleFileVersion(QDir::toNativeSeparators(filePath).toStdU16String());
    switch (version.status) {
    case Status::Ok:
        return QStringLiteral("%1.%2.%3.%4")
            .arg(version.parts[0])
            .arg(version.parts[1])
            .arg(version.parts[2])
            .arg(version.parts[3]);
    case Status::NoVersionInfo:
        qDebug("GetFileVersionInfoSize returned a zero length.");
        break;
    case Status::ReadFailed:
        qDebug("GetFileVersionInfo failed");
        break;
    case Status::QueryFailed:
        qDebug("VerQueryValue failed");
        break;
    }
    return QString();
}
