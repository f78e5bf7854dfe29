#include "ZARSysException.h"

#include "ZARSysExceptionPrivate.h"

// The members every class of the family defines the same way. raise() and clone() must be
// overridden at every level: a QException caught by reference and thrown again through raise()
// keeps its class only if the most-derived override runs.
#define ZARSYS_DEFINE_EXCEPTION_RAISE(Class)                                                       \
    void Class::raise() const                                                                      \
    {                                                                                              \
        throw *this;                                                                               \
    }                                                                                              \
    QException *Class::clone() const                                                               \
    {                                                                                              \
        return new Class(*this);                                                                   \
    }

// Classes with data of their own define their copies out of line, where the record is complete.
#define ZARSYS_DEFINE_EXCEPTION_COPY(Class)                                                        \
    Class::Class(const Class &) = default;                                                         \
    Class &Class::operator=(const Class &) = default;                                              \
    Class::~Class() = default;                                                                     \
    ZARSYS_DEFINE_EXCEPTION_RAISE(Class)

#define ZARSYS_DEFINE_EXCEPTION_MOVE(Class)                                                        \
    Class::Class(Class &&) noexcept = default;                                                     \
    Class &Class::operator=(Class &&) noexcept = default;

ZARSysException::ZARSysException(const QString &text)
    : d(new ZARSysExceptionPrivate(text))
{ }

// Copying the root only copies a pointer; noexcept, so that the moves of the file exceptions,
// which copy this part, can be noexcept as well.
ZARSysException::ZARSysException(const ZARSysException &) noexcept = default;
ZARSysException &ZARSysException::operator=(const ZARSysException &) noexcept = default;
ZARSysException::~ZARSysException() = default;

void ZARSysException::raise() const
{
    throw *this;
}

QException *ZARSysException::clone() const
{
    return new ZARSysException(*this);
}

QString ZARSysException::GetText() const
{
    return d->text;
}

ZARSysAbortComputationException::ZARSysAbortComputationException()
    : ZARSysException(QStringLiteral("computation aborted"))
{ }

ZARSYS_DEFINE_EXCEPTION_RAISE(ZARSysAbortComputationException)

ZARSysNotImplementedException::ZARSysNotImplementedException()
    : ZARSysException(QStringLiteral("not implemented"))
{ }

ZARSYS_DEFINE_EXCEPTION_RAISE(ZARSysNotImplementedException)

ZARSysNullPointerException::ZARSysNullPointerException()
    : ZARSysException(QStringLiteral("null pointer"))
{ }

ZARSYS_DEFINE_EXCEPTION_RAISE(ZARSysNullPointerException)

ZARSysOutOfBoundsException::ZARSysOutOfBoundsException(const QVariant &value,
                                                       const QVariant &rangeStart,
                                                       const QVariant &rangeEnd, bool startIncluded,
                                                       bool endIncluded)
    : ZARSysException(QStringLiteral("value is out of bounds"))
    , d(new ZARSysOutOfBoundsExceptionPrivate)
{
    d->value = value;
    d->rangeStart = rangeStart;
    d->rangeEnd = rangeEnd;
    d->startIncluded = startIncluded;
    d->endIncluded = endIncluded;
}

ZARSYS_DEFINE_EXCEPTION_COPY(ZARSysOutOfBoundsException)

QVariant ZARSysOutOfBoundsException::GetValue() const
{
    return d->value;
}

QVariant ZARSysOutOfBoundsException::GetRangeStart() const
{
    return d->rangeStart;
}

QVariant ZARSysOutOfBoundsException::GetRangeEnd() const
{
    return d->rangeEnd;
}

bool ZARSysOutOfBoundsException::IsStartIncluded() const
{
    return d->startIncluded;
}

bool ZARSysOutOfBoundsException::IsEndIncluded() const
{
    return d->endIncluded;
}

ZARSysStreamReadException::ZARSysStreamReadException()
    : ZARSysException(QStringLiteral("stream read error"))
{ }

ZARSYS_DEFINE_EXCEPTION_RAISE(ZARSysStreamReadException)

ZARSysStreamWriteException::ZARSysStreamWriteException()
    : ZARSysException(QStringLiteral("stream write error"))
{ }

ZARSYS_DEFINE_EXCEPTION_RAISE(ZARSysStreamWriteException)

// One multi-argument substitution, so that placeholders inside the description are not
// replaced again.
ZARSysTextFormatException::ZARSysTextFormatException(const QString &text, int line, int column)
    : ZARSysException(
        QStringLiteral("An error was found in the file format at line %1 column %2: %3")
            .arg(QString::number(line), QString::number(column), text))
    , d(new ZARSysTextFormatExceptionPrivate)
{
    d->text = text;
    d->line = line;
    d->column = column;
}

ZARSYS_DEFINE_EXCEPTION_COPY(ZARSysTextFormatException)

ZARSysFileException::ZARSysFileException(const QString &path, const QString &text)
    : ZARSysException(text)
    , d(new ZARSysFileExceptionPrivate(path))
{ }

ZARSYS_DEFINE_EXCEPTION_COPY(ZARSysFileException)
ZARSYS_DEFINE_EXCEPTION_MOVE(ZARSysFileException)

QString ZARSysFileException::GetPath() const
{
    // A moved-from object has no block.
    return d ? d->path : QString();
}

ZARSysFileNotFoundException::ZARSysFileNotFoundException(const QString &path)
    : ZARSysFileException(path,
                          QStringLiteral("Could not find the file at the path '%1'.").arg(path))
{ }

ZARSYS_DEFINE_EXCEPTION_RAISE(ZARSysFileNotFoundException)

// The pattern has no %2: the path takes the lowest placeholder, the reason the next one.
ZARSysFileOpenException::ZARSysFileOpenException(const QString &path, const QString &reason)
    : ZARSysFileException(
        path, QStringLiteral("Could not open the file at the path '%1': %3").arg(path, reason))
{ }

ZARSYS_DEFINE_EXCEPTION_RAISE(ZARSysFileOpenException)

ZARSysPrematureEndOfFileException::ZARSysPrematureEndOfFileException(const QString &path)
    : ZARSysFileException(path, QStringLiteral("The end of the file was reached prematurely."))
{ }

ZARSYS_DEFINE_EXCEPTION_RAISE(ZARSysPrematureEndOfFileException)
