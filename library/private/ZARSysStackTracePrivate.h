#ifndef ZARSYSSTACKTRACEPRIVATE_H
#define ZARSYSSTACKTRACEPRIVATE_H

#include "ZARSysStackTrace.h"

#include <QList>
#include <QSharedData>
#include <QString>

#include <mutex>

// An entry's address and, once asked for, what is known of the code there. Resolution happens
// at most once, whichever copy or thread asks first; the fields are written under the
// once-flag and only read after it.
class ZARSysStackTraceEntryPrivate : public QSharedData
{
public:
    explicit ZARSysStackTraceEntryPrivate(void *address)
        : address(address)
    { }

    void *const address;
    std::once_flag resolution;
    QString name;
    int offsetFromLine = -1;
    int lineNumber = -1;
    QString fileName;
    QString moduleName;
    QString imagePath;
};

class ZARSysStackTracePrivate : public QSharedData
{
public:
    QString label;
    QList<ZARSysStackTraceEntry> entries;
};

#endif // ZARSYSSTACKTRACEPRIVATE_H
