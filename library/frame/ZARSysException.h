#ifndef ZARSYSEXCEPTION_H
#define ZARSYSEXCEPTION_H

#include <zarsystem_export.h>

#include <QException>
#include <QSharedDataPointer>
#include <QString>
#include <QVariant>

class ZARSysExceptionPrivate;
class ZARSysOutOfBoundsExceptionPrivate;
class ZARSysTextFormatExceptionPrivate;
class ZARSysFileExceptionPrivate;

/*!
    \class ZARSysException
    \brief The root of the exceptions that the library throws.

    Every error of the library is reported by throwing an object of this class or of one of its
    subclasses. The message is read with GetText(); what() is the standard library's generic
    text and is not meant for display.

    The class derives from QException, so an exception thrown in a worker thread (Qt Concurrent,
    QPromise) can be carried to another thread and thrown there again with its class intact:
    every subclass overrides raise() and clone().

    Each class keeps its data in an implicitly shared block; copying an exception copies a
    pointer.

    \code
    try {
        stream >> filter;
    } catch (const ZARSysException &e) {
        qWarning() << e.GetText();
    }
    \endcode
*/
class ZARSYSTEM_EXPORT ZARSysException : public QException
{
public:
    /*! Constructs an exception whose message is \a text as given. */
    explicit ZARSysException(const QString &text);
    /*! Constructs a copy of \a other, which shares its data. Never throws. */
    ZARSysException(const ZARSysException &other) noexcept;
    /*! Makes this exception share the data of \a other. Never throws. */
    ZARSysException &operator=(const ZARSysException &other) noexcept;
    ~ZARSysException() override;

    /*! Throws a copy of this exception of its own dynamic class. */
    void raise() const override;
    /*! Returns a heap copy of this exception of its own dynamic class; the caller owns it. */
    QException *clone() const override;
    /*! Returns the message text. */
    virtual QString GetText() const;

private:
    QSharedDataPointer<ZARSysExceptionPrivate> d;
};

/*!
    \class ZARSysAbortComputationException
    \brief Thrown when a computation is interrupted on request; the text is "computation aborted".
*/
class ZARSYSTEM_EXPORT ZARSysAbortComputationException : public ZARSysException
{
public:
    /*! Constructs the exception with the text "computation aborted". */
    ZARSysAbortComputationException();

    /*! Throws a copy of this exception, which keeps its class. */
    void raise() const override;
    /*! Returns a heap copy of this exception, which keeps its class; the caller owns it. */
    QException *clone() const override;
};

/*!
    \class ZARSysNotImplementedException
    \brief Thrown by functions that are not available; the text is "not implemented".
*/
class ZARSYSTEM_EXPORT ZARSysNotImplementedException : public ZARSysException
{
public:
    /*! Constructs the exception with the text "not implemented". */
    ZARSysNotImplementedException();

    /*! Throws a copy of this exception, which keeps its class. */
    void raise() const override;
    /*! Returns a heap copy of this exception, which keeps its class; the caller owns it. */
    QException *clone() const override;
};

/*!
    \class ZARSysNullPointerException
    \brief Thrown when a required pointer is null; the text is "null pointer".
*/
class ZARSYSTEM_EXPORT ZARSysNullPointerException : public ZARSysException
{
public:
    /*! Constructs the exception with the text "null pointer". */
    ZARSysNullPointerException();

    /*! Throws a copy of this exception, which keeps its class. */
    void raise() const override;
    /*! Returns a heap copy of this exception, which keeps its class; the caller owns it. */
    QException *clone() const override;
};

/*!
    \class ZARSysOutOfBoundsException
    \brief Thrown when a value lies outside its permitted range; the text is
    "value is out of bounds".

    The offending value and the range are kept exactly as given to the constructor.
*/
class ZARSYSTEM_EXPORT ZARSysOutOfBoundsException : public ZARSysException
{
public:
    /*!
        Constructs the exception for \a value outside the range from \a rangeStart to
        \a rangeEnd; \a startIncluded and \a endIncluded tell whether the bounds belong to the
        range.
    */
    ZARSysOutOfBoundsException(const QVariant &value, const QVariant &rangeStart,
                               const QVariant &rangeEnd, bool startIncluded, bool endIncluded);
    /*! Constructs a copy of \a other. */
    ZARSysOutOfBoundsException(const ZARSysOutOfBoundsException &other);
    /*! Makes this exception a copy of \a other. */
    ZARSysOutOfBoundsException &operator=(const ZARSysOutOfBoundsException &other);
    ~ZARSysOutOfBoundsException() override;

    /*! Throws a copy of this exception, which keeps its class. */
    void raise() const override;
    /*! Returns a heap copy of this exception, which keeps its class; the caller owns it. */
    QException *clone() const override;

    /*! Returns the value that was out of bounds. */
    QVariant GetValue() const;
    /*! Returns the start of the range. */
    QVariant GetRangeStart() const;
    /*! Returns the end of the range. */
    QVariant GetRangeEnd() const;
    /*! Returns whether the start of the range belongs to it. */
    bool IsStartIncluded() const;
    /*! Returns whether the end of the range belongs to it. */
    bool IsEndIncluded() const;

private:
    QSharedDataPointer<ZARSysOutOfBoundsExceptionPrivate> d;
};

/*!
    \class ZARSysStreamReadException
    \brief Thrown when a stream cannot be read; the text is "stream read error".
*/
class ZARSYSTEM_EXPORT ZARSysStreamReadException : public ZARSysException
{
public:
    /*! Constructs the exception with the text "stream read error". */
    ZARSysStreamReadException();

    /*! Throws a copy of this exception, which keeps its class. */
    void raise() const override;
    /*! Returns a heap copy of this exception, which keeps its class; the caller owns it. */
    QException *clone() const override;
};

/*!
    \class ZARSysStreamWriteException
    \brief Thrown when a stream cannot be written; the text is "stream write error".
*/
class ZARSYSTEM_EXPORT ZARSysStreamWriteException : public ZARSysException
{
public:
    /*! Constructs the exception with the text "stream write error". */
    ZARSysStreamWriteException();

    /*! Throws a copy of this exception, which keeps its class. */
    void raise() const override;
    /*! Returns a heap copy of this exception, which keeps its class; the caller owns it. */
    QException *clone() const override;
};

/*!
    \class ZARSysTextFormatException
    \brief Thrown when text does not follow its format.

    The message is "An error was found in the file format at line %1 column %2: %3" with the
    line, the column and the description filled in.
*/
class ZARSYSTEM_EXPORT ZARSysTextFormatException : public ZARSysException
{
public:
    /*! Constructs the exception for the error \a text found at \a line and \a column. */
    ZARSysTextFormatException(const QString &text, int line, int column);
    /*! Constructs a copy of \a other. */
    ZARSysTextFormatException(const ZARSysTextFormatException &other);
    /*! Makes this exception a copy of \a other. */
    ZARSysTextFormatException &operator=(const ZARSysTextFormatException &other);
    ~ZARSysTextFormatException() override;

    /*! Throws a copy of this exception, which keeps its class. */
    void raise() const override;
    /*! Returns a heap copy of this exception, which keeps its class; the caller owns it. */
    QException *clone() const override;

private:
    QSharedDataPointer<ZARSysTextFormatExceptionPrivate> d;
};

/*!
    \class ZARSysFileException
    \brief The base of the exceptions about a file; it keeps the file's path.

    Objects of the file exceptions can be moved as well as copied. A moved-from object keeps its
    text; its path is empty.
*/
class ZARSYSTEM_EXPORT ZARSysFileException : public ZARSysException
{
public:
    /*! Constructs an exception about the file at \a path whose message is \a text as given. */
    ZARSysFileException(const QString &path, const QString &text);
    /*! Constructs a copy of \a other. */
    ZARSysFileException(const ZARSysFileException &other);
    /*! Constructs the exception from \a other, which keeps its text and loses its path. */
    ZARSysFileException(ZARSysFileException &&other) noexcept;
    /*! Makes this exception a copy of \a other. */
    ZARSysFileException &operator=(const ZARSysFileException &other);
    /*! Moves \a other into this exception; \a other keeps its text and loses its path. */
    ZARSysFileException &operator=(ZARSysFileException &&other) noexcept;
    ~ZARSysFileException() override;

    /*! Throws a copy of this exception, which keeps its class. */
    void raise() const override;
    /*! Returns a heap copy of this exception, which keeps its class; the caller owns it. */
    QException *clone() const override;

    /*! Returns the path given to the constructor. */
    virtual QString GetPath() const;

private:
    QSharedDataPointer<ZARSysFileExceptionPrivate> d;
};

/*!
    \class ZARSysFileNotFoundException
    \brief Thrown when a file does not exist; the text is
    "Could not find the file at the path '%1'." with the path filled in.
*/
class ZARSYSTEM_EXPORT ZARSysFileNotFoundException : public ZARSysFileException
{
public:
    /*! Constructs the exception for the missing file at \a path. */
    explicit ZARSysFileNotFoundException(const QString &path);

    /*! Throws a copy of this exception, which keeps its class. */
    void raise() const override;
    /*! Returns a heap copy of this exception, which keeps its class; the caller owns it. */
    QException *clone() const override;
};

/*!
    \class ZARSysFileOpenException
    \brief Thrown when a file cannot be opened; the text is
    "Could not open the file at the path '<path>': <reason>".
*/
class ZARSYSTEM_EXPORT ZARSysFileOpenException : public ZARSysFileException
{
public:
    /*! Constructs the exception for the file at \a path that could not be opened for \a reason. */
    ZARSysFileOpenException(const QString &path, const QString &reason);

    /*! Throws a copy of this exception, which keeps its class. */
    void raise() const override;
    /*! Returns a heap copy of this exception, which keeps its class; the caller owns it. */
    QException *clone() const override;
};

/*!
    \class ZARSysPrematureEndOfFileException
    \brief Thrown when a file ends before its content is complete; the text is
    "The end of the file was reached prematurely."
*/
class ZARSYSTEM_EXPORT ZARSysPrematureEndOfFileException : public ZARSysFileException
{
public:
    /*! Constructs the exception for the truncated file at \a path. */
    explicit ZARSysPrematureEndOfFileException(const QString &path);

    /*! Throws a copy of this exception, which keeps its class. */
    void raise() const override;
    /*! Returns a heap copy of this exception, which keeps its class; the caller owns it. */
    QException *clone() const override;
};

#endif // ZARSYSEXCEPTION_H
