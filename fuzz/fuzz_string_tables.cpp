// String tables loaded by ZARSysLocalizationManager::LoadString() from arbitrary files.

#include "FuzzCommon.h"

#include <QFile>
#include <QHash>

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    Fuzz::start();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    static QTemporaryDir *folder = new QTemporaryDir;
    static const QString path = folder->filePath(QStringLiteral("table.json"));
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            Fuzz::fail("cannot write the table file", path);
        file.write(reinterpret_cast<const char *>(bytes), qint64(size));
    }

    QHash<QString, QString> table;
    table.insert(QStringLiteral("kept"), QStringLiteral("from before"));
    ZARSysLocalizationManager::GetManager()->LoadString(QDir(folder->path()), table);
    // Loading adds and replaces; it never removes.
    if (!table.contains(QStringLiteral("kept")))
        Fuzz::fail("loading a table removed an entry");
    return 0;
}
