#ifndef ZARSYSINITCONTEXT_H
#define ZARSYSINITCONTEXT_H

#include <zarsystem_export.h>

#include <QList>

/*!
    \class ZARSysInitContext
    \brief Starts the library while it lives: the host application constructs one at start-up
    and destroys it at the end.

    Construction loads the stored values of every registered settings group (each time), then
    runs every start-up callback registered with ZARSysRegisterInit() since the last
    construction, once each and in registration order: first those without arguments, then
    those that take the \a flags. The first of the latter is the library's own start-up work;
    a \a flags list that contains 0 tells it to leave the process environment alone. Other
    values belong to the libraries that registered the callbacks.

    Contexts nest; only destroying the last one runs the callbacks of
    ZARSysRegisterTerminate(), in registration order. Callbacks registered after a context was
    built wait for the next construction.

    An exception thrown by a callback leaves the constructor or destructor. The context is then
    not counted (constructor), and the callbacks stay registered, so the next context runs
    them all again, including those that had run already. The destructor therefore may throw.
    Callbacks may register more callbacks, and none is lost: one that this construction can
    still reach (appended to a list not yet run through) runs in it, the others at the next.
*/
class ZARSYSTEM_EXPORT ZARSysInitContext
{
public:
    /*!
        Loads the stored values of the settings groups, then runs the start-up callbacks that
        have not run yet, giving \a flags to those that take flags.
    */
    explicit ZARSysInitContext(const QList<int> &flags = QList<int>());
    /*! Runs the shut-down callbacks when this is the last live context; may throw. */
    ~ZARSysInitContext() noexcept(false);

    // Not copied; its assignment is part of the interface and leaves both scopes as they are.
    ZARSysInitContext(const ZARSysInitContext &) = delete;
    /*!
        Does nothing: both contexts stay counted.
    */
    ZARSysInitContext &operator=(const ZARSysInitContext &);
};

#endif // ZARSYSINITCONTEXT_H
