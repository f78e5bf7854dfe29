#include "ZARSystem.h"

#include "ZARSysLogging.h"
#include "ZARSysPlatform.h"
#include "ZARSysRatio.h"
#include "ZARSysValue.h"
#include "private/ZARSystemPrivate.h"

#include <QDebug>
#include <QDir>
#include <QIcon>

bool _ZARSystemLoaded = false;

namespace {

// Converters between the plain quantity types and text or numbers, for QVariant.
void registerQuantityConverters()
{
    QMetaType::registerConverter<ZARSysValue, QString>(
        [](const ZARSysValue &value) { return value.ToString(); });
    QMetaType::registerConverter<QString, ZARSysValue>(&ZARSysValue::FromString);
    QMetaType::registerConverter<ZARSysRatio, QString>(
        [](const ZARSysRatio &ratio) { return ratio.ToString(); });
    QMetaType::registerConverter<QString, ZARSysRatio>(&ZARSysRatio::FromString);
    QMetaType::registerConverter<ZARSysRatio, double>(
        [](const ZARSysRatio &ratio) { return ratio.GetValue(); });
    QMetaType::registerConverter<double, ZARSysRatio>(
        [](double value) { return ZARSysRatio(value); });
}

// Types that travel in variants and queued connections, under their names. A name that is the
// type's own is not registered again.
void registerQuantityTypes()
{
    qRegisterMetaType<ZARSysValue>("ZARSysValue");
    qRegisterMetaType<ZARSysValue::Unit>("ZARSysValue::Unit");
    qRegisterMetaType<ZARSysValue::Magnitude>("ZARSysValue::Magnitude");
    qRegisterMetaType<ZARSysRatio>("ZARSysRatio");
    qRegisterMetaType<ZARSysRatio::Decoration>("ZARSysRatio::Decoration");
    qRegisterMetaType<QList<double>>("QList<double>");
}

// The library's own start-up work, run by the first ZARSysInitContext as the first flagged
// initialiser. Its flags concern the process environment, which is not prepared here.
bool setUpEnvironment(const QList<int> & /*flags*/)
{
    if (qgetenv("ZARNestExeUT") != "1")
        ZARSysLogging::Initialize();
    ZARSysValue::Initialize();
    registerQuantityConverters();
    registerQuantityTypes();
    return true;
}

// The module's globals, in the order in which they are initialised while the library loads.
const QString fallbackIconTheme = QStringLiteral("loom-default");
const bool startupRegistryReady = (ZARSysStartupRegistry::instance(), true);
const QString iconResourceFile =
    QStringLiteral("Resources") + QDir::separator() + QStringLiteral("loom-default.rcc");
QString resourcePrefix = qEnvironmentVariable("ZARSystemResourcePrefix");
const QString iconSearchRoot = QStringLiteral(":/icons");

} // namespace

ZARSysStartupRegistry::ZARSysStartupRegistry()
{
    flaggedInitializers.append(
        [](const QList<int> &flags) { _ZARSystemLoaded = setUpEnvironment(flags); });
}

ZARSysStartupRegistry &ZARSysStartupRegistry::instance()
{
    // Created on first use, so registrations from any static initialiser find it ready.
    static ZARSysStartupRegistry registry;
    return registry;
}

bool ZARSysRegisterInit(const std::function<void()> &fn)
{
    ZARSysStartupRegistry::instance().initializers.append(fn);
    return false;
}

bool ZARSysRegisterInit(const std::function<void(const QList<int> &)> &fn)
{
    ZARSysStartupRegistry::instance().flaggedInitializers.append(fn);
    return false;
}

bool ZARSysRegisterTerminate(const std::function<void()> &fn)
{
    ZARSysStartupRegistry::instance().terminators.append(fn);
    return false;
}

void ZARSysSetResourcePrefix(const QString &prefix)
{
    resourcePrefix = prefix;
}

QString ZARSysGetResourcePrefix()
{
    return resourcePrefix;
}

void ZARSysInitResources()
{
    if (QIcon::fallbackThemeName().isEmpty())
        QIcon::setFallbackThemeName(fallbackIconTheme);
    QIcon::setThemeSearchPaths(QStringList {iconSearchRoot});
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
