#ifndef ZARSYSSTARTUPREGISTRY_H
#define ZARSYSSTARTUPREGISTRY_H

#include <QList>
#include <QString>

#include <functional>

// The start-up callbacks and the number of live ZARSysInitContext objects. One per process,
// created while the library is loaded, with the library's own environment set-up routine as
// its first flagged initialiser.
struct ZARSysStartupRegistry
{
    ZARSysStartupRegistry();

    QList<std::function<void()>> initializers;
    QList<std::function<void(const QList<int> &)>> flaggedInitializers;
    QList<std::function<void()>> terminators;
    quint32 contextCount = 0;

    static ZARSysStartupRegistry &Instance();
};

#endif // ZARSYSSTARTUPREGISTRY_H
