#ifndef ZARSYSIDLEREPORTER_H
#define ZARSYSIDLEREPORTER_H

#include <zarsystem_export.h>

#include <QtGlobal>

#include <memory>

class ZARSysIdleReporterPrivate;

/*!
    \class ZARSysIdleReporter
    \brief A part of the application that tells ZARSysIdleManager whether it is busy.

    While any reporter is busy, the manager is not idle and runs no task. A subclass reports
    with SetIdleStatus(); becoming busy takes effect at once, becoming idle again when the
    event loop next turns. A reporter that is destroyed while busy counts as idle from then on.

    \code
    class Importer : public ZARSysIdleReporter
    {
    public:
        void Start() { SetIdleStatus(false); ... }
        void Finished() { SetIdleStatus(true); }
    };
    \endcode

    Reporters belong to the thread of the idle manager.
*/
class ZARSYSTEM_EXPORT ZARSysIdleReporter
{
public:
    /*! Registers the reporter with the idle manager, idle or (\a idle false) busy. */
    explicit ZARSysIdleReporter(bool idle = true);
    /*! Unregisters the reporter; a busy one counts as idle from then on. */
    virtual ~ZARSysIdleReporter();

    /*! Whether the reporter is idle. */
    bool IsIdle() const;

protected:
    /*! Reports the reporter idle or (\a idle false) busy. */
    void SetIdleStatus(bool idle);

private:
    Q_DISABLE_COPY_MOVE(ZARSysIdleReporter)

    std::unique_ptr<ZARSysIdleReporterPrivate> const d;
};

#endif // ZARSYSIDLEREPORTER_H
