#ifndef ZARSYSSTACKWALKER_H
#define ZARSYSSTACKWALKER_H

#include <zarsystem_export.h>

#include <ZARSysStackTrace.h>

#include <QString>

/*!
    \class ZARSysStackWalker
    \brief Captures the calling thread's stack as a ZARSysStackTrace.

    Capturing records return addresses only and is cheap; names, files and lines are looked up
    when first read (see ZARSysStackTraceEntry).
*/
class ZARSYSTEM_EXPORT ZARSysStackWalker
{
public:
    /*!
        The walker, created on first use and never destroyed. Make the first call before
        threads race for it; start-up is the natural place.
    */
    static ZARSysStackWalker *GetStackWalker();

    /*!
        Captures up to \a maxFrames frames (62 at most; below 1 means 62) of the caller's stack,
        innermost first and starting in the caller, labelled \a label. May be called from any
        thread.
    */
    ZARSysStackTrace GetStackTrace(int maxFrames, const QString &label);

private:
    ZARSysStackWalker() = default;
    Q_DISABLE_COPY_MOVE(ZARSysStackWalker)
};

#endif // ZARSYSSTACKWALKER_H
