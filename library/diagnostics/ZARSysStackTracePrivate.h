#ifndef ZARSYSSTACKTRACEPRIVATE_H
#define ZARSYSSTACKTRACEPRIVATE_H

#include "ZARSysStackTrace.h"

#include <QList>
#include <QSharedData>
#include <QString>

#include <mutex>
#include <vector>

// An entry's address and, once asked for, what is known of the code there. Resolution happens
// at most once, whichever copy or thread asks first; the fields are written under the
// once-flag and only read after it.
class ZARSysStackTraceEntryPrivate : public QSharedData
{
public:
    explicit ZARSysStackTraceEntryPrivate(void *address);

    void *const address;
    std::once_flag resolution;
    QString name;
    int offsetFromLine = -1;
    int lineNumber = -1;
    QString fileName;
    QString moduleName;
    QString imagePath;
};

// A captured trace keeps the addresses of its frames and makes their entries (one record
// each) only when they are asked for: once, by whichever thread asks first. A trace made from
// entries has them from the start.
class ZARSysStackTracePrivate : public QSharedData
{
public:
    ZARSysStackTracePrivate() = default;
    // Copies the entries (made now if not yet), not the addresses they come from.
    ZARSysStackTracePrivate(const ZARSysStackTracePrivate &other);
    ZARSysStackTracePrivate &operator=(const ZARSysStackTracePrivate &) = delete;

    void SetEntries(const QList<ZARSysStackTraceEntry> &list);
    void SetAddresses(void *const *frames, qsizetype frameCount);
    const QList<ZARSysStackTraceEntry> &Entries() const;

    QString label;
    qsizetype count = 0;

private:
    std::vector<void *> addresses;
    mutable std::once_flag entriesMade;
    mutable QList<ZARSysStackTraceEntry> entries;
};

#endif // ZARSYSSTACKTRACEPRIVATE_H
