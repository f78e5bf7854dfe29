#include "ZARSysCOMInitializer.h"

#include "ZARSysPlatform.h"

#include <QtGlobal>

namespace {
quint32 comCount = 0;
}

ZARSysCOMInitializer::ZARSysCOMInitializer()
{
    // Whether COM was initialised already does not matter: the guard balances its own call.
    if (comCount == 0)
        ZARSysPlatform::InitializeCom();
    ++comCount;
}

ZARSysCOMInitializer::~ZARSysCOMInitializer()
{
    if (comCount-- == 1)
        ZARSysPlatform::UninitializeCom();
}

ZARSysCOMInitializer &ZARSysCOMInitializer::operator=(const ZARSysCOMInitializer &)
{
    return *this;
}
