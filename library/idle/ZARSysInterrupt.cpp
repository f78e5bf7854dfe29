#include "ZARSysInterrupt.h"

#include "ZARSysException.h"

#include <QCoreApplication>
#include <QDateTime>

namespace {

// Plain process-wide state: everything here runs on the GUI thread.
bool interruptsEnabled = true;
quint32 regionDepth = 0;
bool interruptRequested = false;
qint64 lastEventProcessing = 0; // milliseconds since the epoch

} // namespace

void ZARSysInterrupt::Interrupt()
{
    if (regionDepth != 0)
        interruptRequested = true;
}

void ZARSysInterrupt::CheckForInterrupt()
{
    if (!interruptsEnabled || regionDepth == 0)
        return;
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    if (now - lastEventProcessing > 100) {
        lastEventProcessing = now;
        QCoreApplication::processEvents();
    }
    if (interruptRequested) {
        interruptRequested = false;
        throw ZARSysAbortComputationException();
    }
}

void ZARSysInterrupt::SetInterruptEnabled(bool enabled)
{
    interruptsEnabled = enabled;
}

ZARSysInterruptEnableContext::ZARSysInterruptEnableContext()
{
    ++regionDepth;
}

ZARSysInterruptEnableContext::~ZARSysInterruptEnableContext()
{
    if (--regionDepth == 0)
        interruptRequested = false;
}
