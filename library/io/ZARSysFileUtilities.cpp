#include "ZARSysFileUtilities.h"

#include "ZARSysException.h"
#include "ZARSysPlatform.h"

#include <QCryptographicHash>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStringList>
#include <QUrl>

#include <memory>
#include <optional>
#include <string>

QByteArray ZARSysFileUtilities::calculateFileHash(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();

    // Large enough to keep the read calls out of the profile, small enough to stay in cache.
    constexpr qint64 chunkSize = 256 * 1024;
    const std::unique_ptr<char[]> chunk(new char[chunkSize]);
    QCryptographicHash hash(QCryptographicHash::Sha1);
    while (true) {
        const qint64 read = file.read(chunk.get(), chunkSize);
        if (read < 0)
            return QByteArray();
        if (read == 0)
            break;
        hash.addData(QByteArrayView(chunk.get(), read));
    }
    return hash.result();
}

QString ZARSysFileUtilities::CreateSafeFilename(const QString &name, const QChar &replacement,
                                                const QString &moreCharacters)
{
    static constexpr char16_t unsafe[] = u"*?<>|:/\\\"\t";
    QString safe = name;
    for (const char16_t character : unsafe) {
        if (character != u'\0')
            safe.replace(QChar(character), replacement);
    }
    for (const QChar character : moreCharacters)
        safe.replace(character, replacement);
    return safe;
}

QString ZARSysFileUtilities::CreateShortFilename(const QString &path)
{
    const std::optional<std::u16string> shortPath =
        ZARSysPlatform::ShortPathName(path.toStdU16String());
    if (!shortPath)
        throw ZARSysFileException(path, QStringLiteral("could not create short path name"));
    return QString::fromStdU16String(*shortPath);
}

void ZARSysFileUtilities::CopyDirectory(const QString &source, const QString &destination,
                                        bool recursive, bool overwrite)
{
    const QDir sourceDir(source);
    if (!sourceDir.exists())
        throw ZARSysFileException(source, tr("The source folder cannot be found."));
    QDir destinationDir(destination);
    if (!destinationDir.exists())
        destinationDir.mkdir(destinationDir.absolutePath()); // a failure shows when copying

    const QString sourcePrefix = sourceDir.absolutePath() + QDir::separator();
    const QString destinationPrefix = destinationDir.absolutePath() + QDir::separator();

    const QStringList files = sourceDir.entryList(QDir::Files, QDir::Unsorted);
    for (const QString &name : files) {
        const QString target = destinationPrefix + name;
        if (QFile::exists(target)) {
            if (!overwrite)
                continue;
            if (!QFile::remove(target))
                throw ZARSysFileException(target, tr("The existing file cannot be deleted."));
        }
        if (!QFile::copy(sourcePrefix + name, target))
            throw ZARSysFileException(target, tr("Failed to copy the file."));
    }

    if (!recursive)
        return;
    const QStringList folders =
        sourceDir.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted);
    for (const QString &name : folders) {
        CopyDirectory(sourcePrefix + name, destinationDir.absolutePath() + QDir::separator() + name,
                      recursive, overwrite);
    }
}

void ZARSysFileUtilities::LocateFileInFolder(const QString &path)
{
    const bool isFolder = QFileInfo(path).isDir();
    // The browser opens the containing folder with the file selected, or the folder itself.
    if (const std::optional<ZARSysPlatform::ProgramCall> call =
            ZARSysPlatform::FileBrowserSelection(QDir::toNativeSeparators(path).toStdU16String(),
                                                 isFolder)) {
        QStringList arguments;
        for (const std::u16string &argument : call->arguments)
            arguments.append(QString::fromStdU16String(argument));
        QProcess::startDetached(QString::fromStdU16String(call->program), arguments);
        return;
    }
    // No common way to select a file: the containing folder is opened.
    const QString folder = isFolder ? path : QFileInfo(path).absolutePath();
    QDesktopServices::openUrl(QUrl::fromLocalFile(folder));
}
