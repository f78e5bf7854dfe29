#include "ZARSysUrlUtility.h"

#include <QDir>
#include <QFileInfo>

namespace {

QString percentDecoded(const QString &text)
{
    return QUrl::fromPercentEncoding(text.toUtf8());
}

// Whether the "/" at the start of a URL's path is to go: on Windows before anything but a
// second "/" ("/C:/folder" becomes "C:/folder", "//server/share" stays); elsewhere, where a
// leading "/" makes a path absolute, only before a drive letter and colon.
bool dropsLeadingSlash(const QString &path)
{
#ifdef Q_OS_WIN
    return path.size() >= 2 && path.at(0) == u'/' && (path.at(1) != u'/' || path.size() == 2);
#else
    return path.size() >= 3 && path.at(0) == u'/' && path.at(1).isLetter() && path.at(2) == u':';
#endif
}

} // namespace

QUrl ZARSysUrlUtility::FromLocalFile(const QString &path)
{
    const QByteArray encoded = QUrl::toPercentEncoding(QDir::toNativeSeparators(path));
    return QUrl::fromLocalFile(QString::fromLatin1(encoded));
}

QString ZARSysUrlUtility::ToLocalFile(const QUrl &url)
{
    return QDir::toNativeSeparators(percentDecoded(url.toLocalFile()));
}

QString ZARSysUrlUtility::GetFilePathFromURL(const QUrl &url)
{
    QString path = percentDecoded(url.path(QUrl::FullyDecoded));
    if (dropsLeadingSlash(path))
        path.remove(0, 1);
    return path;
}

QString ZARSysUrlUtility::GetAbsoluteFilePathFromURL(const QUrl &base, const QUrl &url)
{
    const QString basePath = GetFilePathFromURL(base);
    const QString path = GetFilePathFromURL(url);
    if (basePath.isEmpty() || path.isEmpty())
        return QString();
    return QDir::cleanPath(QDir(QFileInfo(basePath).absolutePath()).absoluteFilePath(path));
}

QUrl ZARSysUrlUtility::GetLocalFileAbsolutePath(const QUrl &base, const QUrl &url)
{
    const QString basePath = GetFilePathFromURL(base);
    const QString path = url.isRelative() ? url.toString() : ToLocalFile(url);
    if (QDir::isRelativePath(path)) {
        // Resolved against the base's folder, without changing the process's current folder.
        const QString folder = QFileInfo(basePath).absolutePath();
        return FromLocalFile(QDir::cleanPath(QDir(folder).absoluteFilePath(path)));
    }
    return url.isLocalFile() ? url : FromLocalFile(url.toString());
}

QUrl ZARSysUrlUtility::GetLocalFileRelativePath(const QUrl &base, const QUrl &url)
{
    const QString target = ToLocalFile(url);
    const QString basePath = GetFilePathFromURL(base);
    if (target.isEmpty() || basePath.isEmpty())
        return url;
    const QString relative = QDir(QFileInfo(basePath).absolutePath()).relativeFilePath(target);
    if (QDir::toNativeSeparators(relative).compare(target, Qt::CaseInsensitive) == 0)
        return url; // no relative form, as for another drive
    if (!relative.isEmpty())
        return QUrl(relative, QUrl::TolerantMode);
    return url;
}
