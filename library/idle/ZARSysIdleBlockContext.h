#ifndef ZARSYSIDLEBLOCKCONTEXT_H
#define ZARSYSIDLEBLOCKCONTEXT_H

#include <zarsystem_export.h>

/*!
    \class ZARSysIdleBlockContext
    \brief Keeps ZARSysIdleManager from running tasks while it lives.

    The first live block ends idle time at once (ZARSysIdleManager::IdleEnd() is emitted from
    the constructor); when the last one is destroyed, idleness is evaluated again when the
    event loop next turns.

    \code
    {
        const ZARSysIdleBlockContext block; // no idle task runs in here
        runModalImport();
    }
    \endcode
*/
class ZARSYSTEM_EXPORT ZARSysIdleBlockContext
{
public:
    /*! Blocks idle tasks; the first live block ends idle time at once. */
    ZARSysIdleBlockContext();
    /*! Ends the block; after the last one, idleness is evaluated when the event loop next turns. */
    ~ZARSysIdleBlockContext();

    // Not copied; its assignment is part of the interface and leaves both scopes as they are.
    ZARSysIdleBlockContext(const ZARSysIdleBlockContext &) = delete;
    /*! Does nothing: each block counts once, whatever is assigned to it. */
    ZARSysIdleBlockContext &operator=(const ZARSysIdleBlockContext &) { return *this; }
};

#endif // ZARSYSIDLEBLOCKCONTEXT_H
