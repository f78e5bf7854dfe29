#ifndef ZARSYSSTACKTRACE_H
#define ZARSYSSTACKTRACE_H

#include <zarsystem_export.h>

#include <QExplicitlySharedDataPointer>
#include <QList>
#include <QString>

class ZARSysStackTraceEntryPrivate;
class ZARSysStackTracePrivate;

/*!
    \class ZARSysStackTraceEntry
    \brief One frame of a stack trace: a return address, and what is known of the code there.

    Capturing records the address only. The first time any of the name, file, line, module or
    image path is asked for, the frame is resolved, once, and the result kept in the data that
    all copies of the entry share. On Linux the name (demangled), the source file and the line
    come from the debug information when the library was built with libdw, the module and its
    path from the dynamic loader; on Windows from DbgHelp. What cannot be found stays empty, or
    -1 for numbers.
*/
class ZARSYSTEM_EXPORT ZARSysStackTraceEntry
{
public:
    /*! An invalid entry: address 0, texts empty, numbers -1. */
    ZARSysStackTraceEntry();
    /*! The entry of the return address \a address. */
    explicit ZARSysStackTraceEntry(void *address);
    /*!
        Constructs a copy of \a other. The copies share their data, so that a frame is resolved
        once for all of them.
    */
    ZARSysStackTraceEntry(const ZARSysStackTraceEntry &other);
    /*! Makes this entry share the data of \a other. */
    ZARSysStackTraceEntry &operator=(const ZARSysStackTraceEntry &other);
    ~ZARSysStackTraceEntry();

    /*! Whether the entry has an address. */
    bool IsValid() const;
    /*! The return address. */
    void *GetAddress() const;

    /*! The function's name. */
    QString GetName() const;
    /*! The source file of the call. */
    QString GetFileName() const;
    /*! The file name of the executable or library. */
    QString GetModuleName() const;
    /*! The full path of the executable or library. */
    QString GetImagePath() const;
    /*! The source line of the call, or -1. */
    int GetLineNumber() const;
    /*! The distance in bytes of the call from the start of its line's code, or -1. */
    int GetOffsetFromLine() const;

    /*!
        The entry as text. An empty \a format gives "name (line) : file"; otherwise \a format
        with "%N" replaced by the name, "%c" by the offset from the line, "%l" by the line,
        "%f" by the file, "%m" by the module and "%i" by the image path, in this order.
    */
    QString ToString(const QString &format) const;

private:
    const ZARSysStackTraceEntryPrivate *Resolved() const;

    QExplicitlySharedDataPointer<ZARSysStackTraceEntryPrivate> d;
};

/*!
    \class ZARSysStackTrace
    \brief A labelled list of stack frames, innermost first, as ZARSysStackWalker captures it.

    \code
    const ZARSysStackTrace trace =
        ZARSysStackWalker::GetStackWalker()->GetStackTrace(16, u"save"_s);
    qDebug().noquote() << trace.ToSTring(u"%N (%f:%l)"_s, 0);
    \endcode
*/
class ZARSYSTEM_EXPORT ZARSysStackTrace
{
public:
    /*! An empty trace without a label. */
    ZARSysStackTrace();
    /*! Constructs the trace \a label of the frames \a entries, innermost first. */
    ZARSysStackTrace(const QString &label, const QList<ZARSysStackTraceEntry> &entries);
    /*! Constructs a copy of \a other. */
    ZARSysStackTrace(const ZARSysStackTrace &other);
    /*! Makes this trace a copy of \a other. */
    ZARSysStackTrace &operator=(const ZARSysStackTrace &other);
    ~ZARSysStackTrace();

    /*! The label; empty when the trace has none. */
    QString GetLabel() const;
    /*! Replaces the label by \a label; copies of the trace keep theirs. */
    void SetLabel(const QString &label);
    /*! The frames, innermost first. */
    QList<ZARSysStackTraceEntry> GetEntries() const;
    /*! The frame at \a index, which must be valid. */
    ZARSysStackTraceEntry GetEntry(int index) const;
    /*! The number of frames. */
    int GetNumEntries() const;

    /*!
        The trace as text: a heading "Stack Trace 'label' :" when there is a label, then one line
        per entry in \a format (see ZARSysStackTraceEntry::ToString()), at most \a maxEntries of
        them unless it is 0; a negative \a maxEntries gives the heading alone.
    */
    QString ToSTring(const QString &format, int maxEntries) const;

private:
    friend class ZARSysStackWalker; // makes traces of captured addresses
    QExplicitlySharedDataPointer<ZARSysStackTracePrivate> d;
};

#endif // ZARSYSSTACKTRACE_H
