#ifndef ZARSYSWEBENGINECONTEXT_H
#define ZARSYSWEBENGINECONTEXT_H

#include <zarsystem_export.h>

#include <QString>

#include <memory>

class ZARSysWebEngineContextPrivate;

/*!
    \class ZARSysWebEngineContext
    \brief Makes the web engine start its helper process from the library's folder while the
    guard lives.

    The start-up routine records the library's folder with SetWorkbenchShortPath(), which
    makes the helper process path that folder followed by "QtWebEngineProcess.exe" on Windows,
    or "QtWebEngineProcess" elsewhere. A guard constructed while "QTWEBENGINEPROCESS_PATH" is
    set to another, non-empty value points the variable at that path and restores the old value
    when it is destroyed. When the variable is unset or empty, or no folder was recorded, the
    guard changes nothing.
*/
class ZARSYSTEM_EXPORT ZARSysWebEngineContext
{
public:
    /*!
        Points "QTWEBENGINEPROCESS_PATH" at the helper process in the recorded folder when the
        variable holds another, non-empty value.
    */
    ZARSysWebEngineContext();
    /*! Restores the value of "QTWEBENGINEPROCESS_PATH" that the constructor replaced, if any. */
    ~ZARSysWebEngineContext();

    Q_DISABLE_COPY_MOVE(ZARSysWebEngineContext)

    /*!
        The folder given to SetWorkbenchShortPath(); empty until then.
    */
    static QString GetWorkbenchShortPath();

    /*!
        Records \a dir, the library's folder in its short (8.3) form, and derives the helper
        process path from it. Both are kept as Latin-1, as the web engine reads them from the
        environment.
    */
    static void SetWorkbenchShortPath(const QString &dir);

private:
    std::unique_ptr<ZARSysWebEngineContextPrivate> const d;
};

#endif // ZARSYSWEBENGINECONTEXT_H
