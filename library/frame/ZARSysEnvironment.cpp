#include "ZARSysEnvironmentPrivate.h"

#include "ZARSysException.h"
#include "ZARSysFileUtilities.h"
#include "ZARSysLogging.h"
#include "ZARSysPlatform.h"
#include "ZARSysQuantityTypes.h"
#include "ZARSysStartupRegistry.h"
#include "ZARSysVariantFilter.h"
#include "ZARSysWebEngineContextPrivate.h"
#include "ZARSystem.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QIcon>
#include <QResource>
#include <QStringList>

#include <memory>

namespace {

// The module's globals, in the order in which they are initialised while the library loads.
const QString fallbackIconTheme = QStringLiteral("loom-default");
const bool startupRegistryReady = (ZARSysStartupRegistry::Instance(), true);
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

// A path for the variables that Qt reads with qgetenv(). Windows gets the short form, which is
// ASCII, so Latin-1 is exact; elsewhere paths are in the file-name encoding.
QByteArray environmentPath(const QString &path)
{
    return ZARSysPlatform::PathEncodingForEnvironment()
            == ZARSysPlatform::EnvironmentPathEncoding::Latin1
        ? path.toLatin1()
        : QFile::encodeName(path);
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

// The folder of the library's file; both empty when the file is not known.
struct LibraryFolder
{
    // In its short form on Windows (free of spaces and non-ASCII characters), or the long one
    // when even the short form cannot be had; backslashes doubled.
    QString shortForm;
    QString longForm;
};

LibraryFolder libraryFolder()
{
    const QString moduleFileName = QString::fromStdU16String(
        ZARSysPlatform::ModuleFileName(static_cast<const void *>(&_ZARSystemLoaded)));
    LibraryFolder folder;
    if (moduleFileName.isEmpty())
        return folder;
    QString shortFileName;
    try {
        shortFileName = ZARSysFileUtilities::CreateShortFilename(moduleFileName);
    } catch (const ZARSysFileException &) {
        shortFileName = moduleFileName;
    }
    folder.shortForm = QFileInfo(shortFileName).absolutePath();
    folder.shortForm.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    folder.longForm = QFileInfo(moduleFileName).absolutePath();
    return folder;
}

// Points Qt's configuration, the loader and Qt's web engine and platform plug-ins at the
// library's folder, where the platform finds them through that folder.
void pointQtAtLibraryFolder(const LibraryFolder &folder)
{
    if (ZARSysPlatform::FindsQtThroughLibraryFolder()) {
        registerQtConfiguration(folder.shortForm);
        ZARSysPlatform::SetLibraryDirectory(folder.longForm.toStdU16String());
    }
    ZARSysWebEngineContext::SetWorkbenchShortPath(folder.shortForm);
    qputenv(ZARSysWebEngineProcessVariable,
            environmentPath(ZARSysWebEngineProcessPath(folder.shortForm)));
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM_PLUGIN_PATH"))
        qputenv("QT_QPA_PLATFORM_PLUGIN_PATH", environmentPath(folder.shortForm));
}

} // namespace

bool ZARSysSetUpEnvironment(const QList<int> &flags)
{
    if (qgetenv("ZARNestExeUT") != "1")
        ZARSysLogging::Initialize();
    ZARSysRegisterQuantityTypes();
    registerTypes();

    // A GUI process on Windows may have no standard output to log to.
    if (!ZARSysPlatform::HasStandardOutput() && qgetenv("ZARModelerDebug") == "1")
        ZARSysPlatform::OpenConsole();

    const LibraryFolder folder = libraryFolder();
    if (!flags.contains(0))
        pointQtAtLibraryFolder(folder);

    // The icon theme; a missing file is not an error.
    const QString prefix = resourcePrefix.isEmpty() ? folder.longForm : resourcePrefix;
    QResource::registerResource(prefix + QDir::separator() + iconResourceFile, QString());

    // Libraries and programs beside this one are found first.
    ZARSysPlatform::PrependToSearchPath(folder.shortForm.toStdU16String());
    return true;
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
