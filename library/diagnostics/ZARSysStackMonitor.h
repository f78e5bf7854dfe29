#ifndef ZARSYSSTACKMONITOR_H
#define ZARSYSSTACKMONITOR_H

#include <zarsystem_export.h>

#include <ZARSysStackTrace.h>

#include <QList>
#include <QString>

#include <memory>

class ZARSysStackMonitorPrivate;

/*!
    \class ZARSysStackMonitor
    \brief Keeps labelled stack traces, to find out from where something is reached.

    \code
    // Where is the cache rebuilt from?
    ZARSysStackMonitor::GetStackMonitor()->AddTrace(16, u"cache rebuild"_s);
    ...
    for (const ZARSysStackTrace &trace :
         ZARSysStackMonitor::GetStackMonitor()->GetStackTraces(u"cache rebuild"_s))
        qDebug().noquote() << trace.ToSTring(u"%N (%f:%l)"_s, 0);
    \endcode

    Traces accumulate until cleared. Nothing here is synchronised: use the monitor from one
    thread, or under a lock of your own.
*/
class ZARSYSTEM_EXPORT ZARSysStackMonitor
{
public:
    /*! The monitor, created on first use and never destroyed. */
    static ZARSysStackMonitor *GetStackMonitor();

    /*!
        Captures the caller's stack (\a maxFrames as for ZARSysStackWalker::GetStackTrace(); this
        function's frame comes first), keeps it under \a label and returns it.
    */
    ZARSysStackTrace AddTrace(int maxFrames, const QString &label);
    /*! The traces kept under \a label, the most recent first; empty for an unknown label. */
    QList<ZARSysStackTrace> GetStackTraces(const QString &label) const;
    /*! Each label that has traces, once, in no particular order. */
    QList<QString> GetLabels() const;
    /*! Drops the traces of \a label. */
    void ClearTraces(const QString &label);
    /*! Drops all traces. */
    void ClearAllTraces();

private:
    ZARSysStackMonitor();
    ~ZARSysStackMonitor();
    Q_DISABLE_COPY_MOVE(ZARSysStackMonitor)

    std::unique_ptr<ZARSysStackMonitorPrivate> const d;
};

#endif // ZARSYSSTACKMONITOR_H
