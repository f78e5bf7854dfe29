#include "ZARSysIdleBlockContext.h"

#include "ZARSysIdleManager.h"
#include "ZARSysIdleManagerPrivate.h"

ZARSysIdleBlockContext::ZARSysIdleBlockContext()
{
    ZARSysIdleManager::GetManager()->d_func()->BeginBlock();
}

ZARSysIdleBlockContext::~ZARSysIdleBlockContext()
{
    if (ZARSysIdleManagerPrivate *manager = ZARSysIdleManagerPrivate::Live())
        manager->EndBlock();
}
