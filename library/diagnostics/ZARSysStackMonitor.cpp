#include "ZARSysStackMonitor.h"

#include "ZARSysGlobalStatic.h"
#include "ZARSysStackWalker.h"

#include <QMultiHash>

class ZARSysStackMonitorPrivate
{
public:
    QMultiHash<QString, ZARSysStackTrace> traces;
};

ZARSysStackMonitor::ZARSysStackMonitor()
    : d(std::make_unique<ZARSysStackMonitorPrivate>())
{ }

ZARSysStackMonitor::~ZARSysStackMonitor() = default;

ZARSysStackMonitor *ZARSysStackMonitor::GetStackMonitor()
{
    // Never destroyed, like the walker it takes its traces from.
    return ZARSysGlobalStatic<ZARSysStackMonitor>::Get([] { return new ZARSysStackMonitor; });
}

// Not inlined, so that the frame that the trace begins with is this function's.
Q_NEVER_INLINE ZARSysStackTrace ZARSysStackMonitor::AddTrace(int maxFrames, const QString &label)
{
    const ZARSysStackTrace trace =
        ZARSysStackWalker::GetStackWalker()->GetStackTrace(maxFrames, label);
    d->traces.insert(label, trace);
    return trace;
}

QList<ZARSysStackTrace> ZARSysStackMonitor::GetStackTraces(const QString &label) const
{
    return d->traces.values(label); // the most recently inserted first
}

QList<QString> ZARSysStackMonitor::GetLabels() const
{
    return d->traces.uniqueKeys();
}

void ZARSysStackMonitor::ClearTraces(const QString &label)
{
    d->traces.remove(label);
}

void ZARSysStackMonitor::ClearAllTraces()
{
    d->traces.clear();
}
