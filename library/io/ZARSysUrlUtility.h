#ifndef ZARSYSURLUTILITY_H
#define ZARSYSURLUTILITY_H

#include <zarsystem_export.h>

#include <QString>
#include <QUrl>

/*!
    \class ZARSysUrlUtility
    \brief Local files as URLs in the SDK's convention, and file URLs relative to a document.

    The SDK percent-encodes a local path once more before it becomes a URL, separators and
    drive colon included, and decodes once more on the way back: use FromLocalFile() and
    ToLocalFile() as a pair. GetFilePathFromURL() reads the path of a URL in the same
    convention. Windows drive paths lose the "/" that URLs put before them ("/C:/a" gives
    "C:/a"); elsewhere only such drive paths do, and absolute paths stay absolute.

    \code
    const QUrl url = ZARSysUrlUtility::FromLocalFile(u"/srv/jobs/Blech 2%.dxf"_s);
    ZARSysUrlUtility::ToLocalFile(url); // "/srv/jobs/Blech 2%.dxf"
    \endcode
*/
class ZARSYSTEM_EXPORT ZARSysUrlUtility
{
public:
    /*! The URL of the local file \a path in the SDK's convention. */
    static QUrl FromLocalFile(const QString &path);
    /*!
        The local path of \a url, with native separators; the inverse of FromLocalFile(). A
        name that contains a percent sequence of its own is decoded too.
    */
    static QString ToLocalFile(const QUrl &url);
    /*! The path of \a url, decoded once more, without the "/" before a drive letter. */
    static QString GetFilePathFromURL(const QUrl &url);
    /*!
        The path of \a url resolved against the folder of the path of \a base, cleaned. Empty
        when either path is empty.
    */
    static QString GetAbsoluteFilePathFromURL(const QUrl &base, const QUrl &url);
    /*!
        \a url made absolute: a relative one is resolved against the folder of \a base, as
        written (the folder need not exist, and links in it are not resolved); the process's
        current folder is neither used nor changed. An absolute local-file URL comes back as it
        is; an empty \a url gives an empty URL.
    */
    static QUrl GetLocalFileAbsolutePath(const QUrl &base, const QUrl &url);
    /*!
        \a url relative to the folder of \a base, as a relative URL; \a url itself when no
        relative form exists (another drive) or either path is empty.
    */
    static QUrl GetLocalFileRelativePath(const QUrl &base, const QUrl &url);
};

#endif // ZARSYSURLUTILITY_H
