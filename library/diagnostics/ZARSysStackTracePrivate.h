#ifndef ZARSYSSTACKTRACEPRIVATE_H
#define ZARSYSSTACKTRACEPRIVATE_H

#include "ZARSysStackTrace.h"

#include <QList>
#include <QSharedData>
#include <QString>

#include <mutex>
#include <utility>
#include <vector>

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

// A captured trace keeps the addresses of its frames and makes their entries (one record
// each) only when they are asked for: once, by whichever thread asks first. A trace made from
// entries has them from the start.
class ZARSysStackTracePrivate : public QSharedData
{
public:
    ZARSysStackTracePrivate() = default;
    ZARSysStackTracePrivate(const ZARSysStackTracePrivate &other)
        : QSharedData(other)
        , label(other.label)
        , count(other.count)
    {
        setEntries(other.Entries());
    }
    ZARSysStackTracePrivate &operator=(const ZARSysStackTracePrivate &) = delete;

    void setEntries(const QList<ZARSysStackTraceEntry> &list)
    {
        entries = list;
        count = list.size();
        std::call_once(entriesMade, [] {});
    }

    void setAddresses(void *const *frames, qsizetype frameCount)
    {
        addresses.assign(frames, frames + frameCount);
        count = frameCount;
    }

    const QList<ZARSysStackTraceEntry> &Entries() const
    {
        // Made aside and moved in, so that a failure leaves nothing half made for the next
        // call to add to.
        std::call_once(entriesMade, [this] {
            QList<ZARSysStackTraceEntry> made;
            made.reserve(qsizetype(addresses.size()));
            for (void *address : addresses)
                made.append(ZARSysStackTraceEntry(address));
            entries = std::move(made);
        });
        return entries;
    }

    QString label;
    qsizetype count = 0;

private:
    std::vector<void *> addresses;
    mutable std::once_flag entriesMade;
    mutable QList<ZARSysStackTraceEntry> entries;
};

#endif // ZARSYSSTACKTRACEPRIVATE_H
