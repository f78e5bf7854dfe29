#ifndef ZARSYSLOGGING_H
#define ZARSYSLOGGING_H

#include <zarsystem_export.h>

#include <QLoggingCategory>
#include <QString>

/*!
    \relates ZARSysLogging

    The library's general category, "ZAR.Default". All message types are enabled unless the
    filter rules say otherwise.
*/
ZARSYSTEM_EXPORT const QLoggingCategory &LOG_CAT_ZAR_DEFAULT();

/*!
    \relates ZARSysLogging

    The performance category, "ZAR.Performance". Off by default: the default rules switch it
    off, while its child "ZAR.Performance.Timing" stays on.
*/
ZARSYSTEM_EXPORT const QLoggingCategory &LOG_CAT_ZAR_PERF();

/*!
    \relates ZARSysLogging

    The timing category, "ZAR.Performance.Timing".
*/
ZARSYSTEM_EXPORT const QLoggingCategory &LOG_CAT_ZAR_PERFTIMING();

/*!
    \class ZARSysLogging
    \brief Chooses the logging rules from the environment and optionally mirrors every message
    into a text log file.

    The library's start-up calls Initialize(); clients may call it too. It reads three
    environment variables:

    \list
    \li "ZARLogRules": filter rules in QLoggingCategory::setFilterRules() syntax, UTF-8. When
        set they replace the defaults below.
    \li "ZAREnableTxtLog": any non-empty value turns the text log on. The log is the file
        "<application name>_Nesting_<yyyyMMdd_hhmmss>.log" in the current working directory,
        named once, when Initialize() runs. Every "ZAR." category is switched on.
    \li "ZAREnableZARLog": any non-empty value switches every "ZAR." category on (without the
        text log).
    \endlist

    With neither switch, only "ZAR.Performance" is switched off. With either switch, messages
    are formatted as "<pid> <thread id> [yyyy-MM-dd HH:mm:ss.zzz][<category>] <message>".

    The text log is written by a message handler that opens the file, appends one line and
    closes it again for every message, so the file can be read, moved or deleted while the
    application runs; a file that cannot be opened loses that message silently. The handler
    then passes the message on to the handler that was installed before it. Messages may come
    from any thread: the handler does all of this under one mutex, so lines never interleave.
*/
class ZARSYSTEM_EXPORT ZARSysLogging
{
public:
    ZARSysLogging() = delete;

    /*!
        Applies the environment as described above. Once the text log's handler is installed,
        later calls do nothing; without the text log, every call applies the environment
        afresh. Meant for the main thread during start-up, before other threads log.
    */
    static void Initialize();

    /*!
        The path of the text log file, a file name relative to the current working directory;
        empty when the text log is off.
    */
    static QString getTextLogFilePath();
};

#endif // ZARSYSLOGGING_H
