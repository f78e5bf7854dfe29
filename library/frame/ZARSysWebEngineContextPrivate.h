#ifndef ZARSYSWEBENGINECONTEXTPRIVATE_H
#define ZARSYSWEBENGINECONTEXTPRIVATE_H

#include <QByteArray>
#include <QString>

// The state of one guard.
class ZARSysWebEngineContextPrivate
{
public:
    // The value of the variable that this guard replaced; empty when it replaced none.
    QByteArray replacedValue;
};

// The variable from which the web engine takes the path of its helper process.
inline constexpr char ZARSysWebEngineProcessVariable[] = "QTWEBENGINEPROCESS_PATH";

// The web engine's helper process in folder, as the library starts it.
QString ZARSysWebEngineProcessPath(const QString &folder);

#endif // ZARSYSWEBENGINECONTEXTPRIVATE_H
