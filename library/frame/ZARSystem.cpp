#include "ZARSystem.h"

#include "ZARSysException.h"
#include "ZARSysFileUtilities.h"
#include "ZARSysLogging.h"
#include "ZARSysPlatform.h"
#include "ZARSysQuantityTypes.h"
#include "ZARSysVariantFilter.h"
#include "ZARSystemPrivate.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QIcon>
#include <QResource>
#include <QStringList>

#include <memory>
#include <optional>
#include <string>

bool _ZARSystemLoaded = false;

namespace {

// The module's globals, in the order in which they are initialised while the library loads.
const QString fallbackIconTheme = QStringLiteral("loom-default");
const bool startupRegistryReady = (ZARSysStartupRegistry::instance(), true);
const QString iconResourceFile =
    QStringLiteral("Resources") + QDir::separator() + QStringLiteral("loom-default.rcc");
QString resourcePrefix = qEnvironmentVariable("ZARSystemResourcePrefix");
const QString iconSearchRoot = QStringLiteral(":/icons");

// Types that travel in variants and queued connections, under their names. A name that is the
// type's own is not registered again.
void registerTypes()
{
    qRegisterMetaType<ZARSysVariantFilter>("ZARSysVariantFilter");
}

QString readEnvironment(const QString &name)
{
    const std::optional<std::u16string> value =
        ZARSysPlatform::ReadEnvironmentVariable(name.toStdU16String());
    return value ? QString::fromStdU16String(*value) : QString();
}

void writeEnvironment(const QString &name, const QString &value)
{
    ZARSysPlatform::WriteEnvironmentVariable(name.toStdU16String(), value.toStdU16String());
}

#ifdef Q_OS_WIN
constexpr bool onWindows = true;
#else
constexpr bool onWindows = false;
#endif

// A path for the variables that Qt reads with qgetenv(). Windows gets the short form, which is
// ASCII, so Latin-1 is exact; elsewhere paths are in the file-name encoding.
QByteArray environmentPath(const QString &path)
{
    return onWindows ? path.toLatin1() : QFile::encodeName(path);
}

// Makes the library's folder the prefix of Qt's configuration: the compiled qt.conf in the
// resources gets the folder written over its placeholder and is registered from memory. Qt
// reads resources registered from memory in place, so the bytes are never freed.
void registerQtConfiguration(const QString &moduleDirectory)
{
    QFile file(QStringLiteral(":/qt.conf.rcc"));
    if (!file.open(QIODevice::ReadOnly))
        return;
    auto resource = std::make_unique<QByteArray>(file.readAll());
    if (ZARSysPatchQtConfResource(*resource, moduleDirectory) == ZARSysQtConfPatch::TooLong)
        return;
    const auto *data = reinterpret_cast<const uchar *>(resource.release()->constData());
    QResource::registerResource(data, QString());
}

// The library's own start-up work, run by the first ZARSysInitContext as the first flagged
// initialiser. A flag 0 leaves Qt's configuration, the loader's search folder and the
// variables of Qt and its web engine alone. Failures of the system are ignored.
bool setUpEnvironment(const QList<int> &flags)
{
    if (qgetenv("ZARNestExeUT") != "1")
        ZARSysLogging::Initialize();
    ZARSysRegisterQuantityTypes();
    registerTypes();

    // A GUI process on Windows may have no standard output to log to.
    if (!ZARSysPlatform::HasStandardOutput() && qgetenv("ZARModelerDebug") == "1")
        ZARSysPlatform::OpenConsole();

    // The library's folder, in its short form on Windows (free of spaces and non-ASCII
    // characters). If even the short form cannot be had, the long one serves.
    const QString moduleFileName = QString::fromStdU16String(
        ZARSysPlatform::ModuleFileName(static_cast<const void *>(&_ZARSystemLoaded)));
    QString moduleDirectory;
    QString longModuleDirectory;
    if (!moduleFileName.isEmpty()) {
        QString shortFileName;
        try {
            shortFileName = ZARSysFileUtilities::CreateShortFilename(moduleFileName);
        } catch (const ZARSysFileException &) {
            shortFileName = moduleFileName;
        }
        moduleDirectory = QFileInfo(shortFileName).absolutePath();
        moduleDirectory.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
        longModuleDirectory = QFileInfo(moduleFileName).absolutePath();
    }

    if (!flags.contains(0)) {
        // Windows finds Qt's configuration and the libraries loaded later through the library's
        // folder; elsewhere the installation's library paths do that.
        if (onWindows) {
            registerQtConfiguration(moduleDirectory);
            ZARSysPlatform::SetLibraryDirectory(longModuleDirectory.toStdU16String());
        }
        ZARSysWebEngineContext::SetWorkbenchShortPath(moduleDirectory);
        const QString webEngineProcess = onWindows ? QStringLiteral("QtWebEngineProcess.exe")
                                                   : QStringLiteral("QtWebEngineProcess");
        qputenv("QTWEBENGINEPROCESS_PATH",
                environmentPath(moduleDirectory + QDir::separator() + webEngineProcess));
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM_PLUGIN_PATH"))
            qputenv("QT_QPA_PLATFORM_PLUGIN_PATH", environmentPath(moduleDirectory));
    }

    // The icon theme; a missing file is not an error.
    const QString prefix = resourcePrefix.isEmpty() ? longModuleDirectory : resourcePrefix;
    QResource::registerResource(prefix + QDir::separator() + iconResourceFile, QString());

    // Libraries and programs beside this one are found first.
    if (onWindows) {
        writeEnvironment(QStringLiteral("PATH"),
                         moduleDirectory + QLatin1Char(';')
                             + readEnvironment(QStringLiteral("PATH")));
    } else {
        // The bytes of the other folders are kept as they are, whatever their encoding. An
        // empty element would mean the current folder, so none is added.
        const QByteArray folder = QFile::encodeName(moduleDirectory);
        const QByteArray path = qgetenv("PATH");
        const char separator = char(QDir::listSeparator().unicode());
        qputenv("PATH",
                folder.isEmpty() || path.isEmpty() ? folder + path : folder + separator + path);
    }
    return true;
}

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
