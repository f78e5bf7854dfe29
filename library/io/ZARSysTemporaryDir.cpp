#include "ZARSysTemporaryDir.h"

#include "ZARSysException.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace {

QString folderTemplate(const QString &folder, const QString &name)
{
    QString dir = QDir::toNativeSeparators(folder.isEmpty() ? QDir::tempPath() : folder);
    if (!dir.endsWith(QDir::separator()))
        dir += QDir::separator();
    if (!QDir(dir).exists() && !QDir().mkpath(dir))
        throw ZARSysFileException(dir, QStringLiteral("mkpath failed"));
    return dir
        + (name.isEmpty() ? QFileInfo(QCoreApplication::applicationFilePath()).baseName() : name);
}

} // namespace

ZARSysTemporaryDir::ZARSysTemporaryDir() = default;

ZARSysTemporaryDir::ZARSysTemporaryDir(const QString &folder, const QString &name)
    : QTemporaryDir(folderTemplate(folder, name))
{ }

ZARSysTemporaryDir::~ZARSysTemporaryDir() = default;
