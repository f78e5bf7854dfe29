#include "ZARSysIdleReporter.h"

#include "ZARSysIdleManager.h"
#include "ZARSysIdleManagerPrivate.h"
#include "ZARSysLogging.h"

class ZARSysIdleReporterPrivate
{
public:
    bool idle = true;
};

ZARSysIdleReporter::ZARSysIdleReporter(bool idle)
    : d(std::make_unique<ZARSysIdleReporterPrivate>())
{
    d->idle = idle;
    ZARSysIdleManager::GetManager()->d_func()->AddReporter(this, idle);
}

ZARSysIdleReporter::~ZARSysIdleReporter()
{
    if (ZARSysIdleManagerPrivate *manager = ZARSysIdleManagerPrivate::Live())
        manager->RemoveReporter(this, d->idle);
}

bool ZARSysIdleReporter::IsIdle() const
{
    return d->idle;
}

void ZARSysIdleReporter::SetIdleStatus(bool idle)
{
    if (d->idle == idle)
        return;
    d->idle = idle;
    qCDebug(LOG_CAT_ZAR_DEFAULT).nospace() << "[Idle Status] Report Idle(Idle or Not): " << idle;
    ZARSysIdleManager::GetManager()->d_func()->ReporterChanged(idle);
}
