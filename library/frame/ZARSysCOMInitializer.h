#ifndef ZARSYSCOMINITIALIZER_H
#define ZARSYSCOMINITIALIZER_H

#include <zarsystem_export.h>

/*!
    \class ZARSysCOMInitializer
    \brief Keeps COM initialised on the GUI thread while at least one guard lives.

    The first guard calls CoInitialize() and the last one to go calls CoUninitialize();
    guards in between only count. The count is not locked: use the guards on one thread, the
    GUI thread. Off Windows there is no COM, and the guards only count.
*/
class ZARSYSTEM_EXPORT ZARSysCOMInitializer
{
public:
    /*! Counts the guard; the first one initialises COM on the calling thread. */
    ZARSysCOMInitializer();
    /*! Uncounts the guard; the last one uninitialises COM. */
    ~ZARSysCOMInitializer();

    // Not copied; its assignment is part of the interface and leaves both scopes as they are.
    ZARSysCOMInitializer(const ZARSysCOMInitializer &) = delete;
    /*!
        Does nothing: both guards stay counted.
    */
    ZARSysCOMInitializer &operator=(const ZARSysCOMInitializer &);
};

#endif // ZARSYSCOMINITIALIZER_H
