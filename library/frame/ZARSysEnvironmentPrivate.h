#ifndef ZARSYSENVIRONMENTPRIVATE_H
#define ZARSYSENVIRONMENTPRIVATE_H

#include <QList>

// The library's own start-up work, run by the first ZARSysInitContext as the first flagged
// initialiser: logging, the types of variants, Qt's configuration, the loader's search folder,
// the variables of Qt and its web engine (all left alone when flags holds 0), the icon theme
// and the program search path. Failures of the system are ignored. Returns true.
bool ZARSysSetUpEnvironment(const QList<int> &flags);

#endif // ZARSYSENVIRONMENTPRIVATE_H
