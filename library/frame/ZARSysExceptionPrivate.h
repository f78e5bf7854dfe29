#ifndef ZARSYSEXCEPTIONPRIVATE_H
#define ZARSYSEXCEPTIONPRIVATE_H

#include <QSharedData>
#include <QString>
#include <QVariant>

// Each level of the exception family shares its own block, so copies made by raise() and
// clone() only copy pointers. The blocks are never written after construction.

class ZARSysExceptionPrivate : public QSharedData
{
public:
    explicit ZARSysExceptionPrivate(const QString &text)
        : text(text)
    { }

    QString text;
};

class ZARSysOutOfBoundsExceptionPrivate : public QSharedData
{
public:
    QVariant value;
    QVariant rangeStart;
    QVariant rangeEnd;
    bool startIncluded = true;
    bool endIncluded = true;
};

class ZARSysTextFormatExceptionPrivate : public QSharedData
{
public:
    QString text;
    int line = 0;
    int column = 0;
};

class ZARSysFileExceptionPrivate : public QSharedData
{
public:
    explicit ZARSysFileExceptionPrivate(const QString &path)
        : path(path)
    { }

    QString path;
};

#endif // ZARSYSEXCEPTIONPRIVATE_H
