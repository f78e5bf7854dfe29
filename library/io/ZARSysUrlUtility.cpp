#include "ZARSysUrlUtility.h"

#include "ZARSysPlatform.h"
#include "ZARSysUrlUtilityPrivate.h"

#include <QDir>
#include <QFileInfo>

namespace {

QString percentDecoded(const QString &text)
{
    return QUrl::fromPercentEncoding(text.toUtf8());
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
    if (ZARSysDropsLeadingSlash(path, ZARSysPlatform::UsesDriveLetterPaths()))
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
    if (path.isEmpty())
        return QUrl();
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
