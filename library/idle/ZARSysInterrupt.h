#ifndef ZARSYSINTERRUPT_H
#define ZARSYSINTERRUPT_H

#include <zarsystem_export.h>

#include <QtGlobal>

/*!
    \class ZARSysInterrupt
    \brief Cooperative interruption of long computations on the GUI thread.

    A computation marks itself interruptible with a ZARSysInterruptEnableContext and calls
    CheckForInterrupt() at convenient points. The call keeps the user interface alive by
    processing pending events at most every 100 milliseconds; when an event handler has called
    Interrupt() meanwhile, it throws ZARSysAbortComputationException.

    \code
    // In the computation:
    const ZARSysInterruptEnableContext interruptible;
    for (const Part &part : parts) {
        ZARSysInterrupt::CheckForInterrupt(); // may throw ZARSysAbortComputationException
        nest(part);
    }

    // In the Cancel button's slot:
    ZARSysInterrupt::Interrupt();
    \endcode

    The state is process-wide and not synchronised: computation, events and handler all run
    on the GUI thread.
*/
class ZARSYSTEM_EXPORT ZARSysInterrupt
{
public:
    /*!
        Asks the running computation to stop. Outside an interruptible region the call does
        nothing; the request is not remembered for a later region.
    */
    static void Interrupt();

    /*!
        Inside an interruptible region and with interruption enabled: processes pending events
        if the last processing here was more than 100 milliseconds ago, then, if interruption
        was requested, consumes the request and throws ZARSysAbortComputationException.
        Otherwise returns at once.
    */
    static void CheckForInterrupt();

    /*!
        Enables or disables interruption for the whole process; enabled initially. While it is
        disabled, CheckForInterrupt() neither processes events nor throws, and a pending request
        waits.
    */
    static void SetInterruptEnabled(bool enabled);
};

/*!
    \class ZARSysInterruptEnableContext
    \brief Marks an interruptible region while it lives. Regions nest; the end of the
    outermost one drops a request that was not consumed.
*/
class ZARSYSTEM_EXPORT ZARSysInterruptEnableContext
{
public:
    /*! Enters an interruptible region. */
    ZARSysInterruptEnableContext();
    /*! Leaves the region; leaving the outermost one drops a request that was not consumed. */
    ~ZARSysInterruptEnableContext();

    Q_DISABLE_COPY_MOVE(ZARSysInterruptEnableContext)
};

#endif // ZARSYSINTERRUPT_H
