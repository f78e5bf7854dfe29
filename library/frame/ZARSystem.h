#ifndef ZARSYSTEM_H
#define ZARSYSTEM_H

#include <zarsystem_export.h>

#include <ZARSysCOMInitializer.h>
#include <ZARSysInitContext.h>
#include <ZARSysWebEngineContext.h>

#include <QList>
#include <QString>

#include <functional>

/*!
    \file ZARSystem.h
    \brief Start-up and shut-down of the library, and its version queries.

    A library built on ZARSystem registers its start-up and shut-down callbacks while it is
    loaded, from the initialiser of a namespace-scope variable:

    \code
    static const bool registered = ZARSysRegisterInit([] { MyModule::Initialize(); });
    \endcode

    The host application starts everything by constructing a ZARSysInitContext, which runs
    each callback registered so far once, in registration order; destroying the last context
    runs the shut-down callbacks.
*/

/*!
    The result of the library's own start-up work: false while the library is loaded but not
    yet started, true once the first ZARSysInitContext has run it.
*/
extern ZARSYSTEM_EXPORT bool _ZARSystemLoaded;

/*!
    Appends \a fn to the start-up callbacks called without arguments. They run before the
    flagged ones. Returns false, always: the result only lets the call initialise a variable.
*/
ZARSYSTEM_EXPORT bool ZARSysRegisterInit(const std::function<void()> &fn);

/*!
    Appends \a fn to the start-up callbacks that receive the flags of the ZARSysInitContext
    that runs them. Returns false, always.
*/
ZARSYSTEM_EXPORT bool ZARSysRegisterInit(const std::function<void(const QList<int> &)> &fn);

/*!
    Appends \a fn to the shut-down callbacks, which run when the last ZARSysInitContext is
    destroyed, in registration order (first registered, first run). Returns false, always.
*/
ZARSYSTEM_EXPORT bool ZARSysRegisterTerminate(const std::function<void()> &fn);

/*!
    Replaces the folder under which the library looks for its icon resource file. Initially
    the value of the environment variable "ZARSystemResourcePrefix" when the library was
    loaded, or empty.
*/
ZARSYSTEM_EXPORT void ZARSysSetResourcePrefix(const QString &prefix);

/*!
    The folder under which the library looks for its icon resource file.
*/
ZARSYSTEM_EXPORT QString ZARSysGetResourcePrefix();

/*!
    Makes the library's icon theme available to QIcon: sets the fallback theme to
    "loom-default" unless a fallback theme is set already, and makes ":/icons" the only theme
    search path, replacing any set before. Start-up does not call this.
*/
ZARSYSTEM_EXPORT void ZARSysInitResources();

/*!
    The date the library was built, as "Mmm dd yyyy" ("Feb 13 2026", "Mar  1 2026").
*/
ZARSYSTEM_EXPORT QString ZARSysGetBuildDate();

/*!
    Returns 0.
*/
ZARSYSTEM_EXPORT int ZARSysGetBuildVersion();

/*!
    The file version of the module (library or executable) at \a filePath as four numbers
    joined by dots, such as "1.0.0.0"; empty when the module has none, with a debug message
    that names the failing step.

    On Windows this is the file version of the module's version resource. Elsewhere shared
    libraries carry their version in the name of the real file, so links are resolved and the
    numbers after ".so." are taken, padded to four: libZARSystem.so gives "1.0.0.0".
*/
ZARSYSTEM_EXPORT QString ZARSysGetModuleVersion(const QString &filePath);

#endif // ZARSYSTEM_H
