#include "ZARSysStackWalker.h"

#include "ZARSysGlobalStatic.h"
#include "ZARSysPlatform.h"
#include "ZARSysStackTracePrivate.h"

ZARSysStackWalker *ZARSysStackWalker::GetStackWalker()
{
    // Never destroyed: traces may still be taken while other static objects are destroyed.
    return ZARSysGlobalStatic<ZARSysStackWalker>::Get([] { return new ZARSysStackWalker; });
}

// Not inlined: the frame skipped is this function's own.
Q_NEVER_INLINE ZARSysStackTrace ZARSysStackWalker::GetStackTrace(int maxFrames,
                                                                 const QString &label)
{
    constexpr int cap = int(ZARSysPlatform::MaxCapturedFrames);
    const int frames = std::min(maxFrames < 1 ? 1000 : maxFrames, cap);
    void *addresses[ZARSysPlatform::MaxCapturedFrames];
    const std::size_t captured = ZARSysPlatform::CaptureStack(1, addresses, std::size_t(frames));
    // The entries are made when they are first asked for: most traces are never read.
    ZARSysStackTrace trace;
    trace.d->label = label;
    trace.d->SetAddresses(addresses, qsizetype(captured));
    return trace;
}
