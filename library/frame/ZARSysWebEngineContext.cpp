#include "ZARSysWebEngineContext.h"

#include <QByteArray>
#include <QDir>

namespace {

constexpr char processPathVariable[] = "QTWEBENGINEPROCESS_PATH";

#ifdef Q_OS_WIN
constexpr char processName[] = "QtWebEngineProcess.exe";
#else
constexpr char processName[] = "QtWebEngineProcess";
#endif

QByteArray workbenchShortPath;
QByteArray webEngineProcessPath;

} // namespace

ZARSysWebEngineContext::ZARSysWebEngineContext()
    : replacedValue(std::make_unique<QByteArray>())
{
    const QByteArray current = qgetenv(processPathVariable);
    if (!current.isEmpty() && current != webEngineProcessPath && !webEngineProcessPath.isEmpty()) {
        *replacedValue = current;
        qputenv(processPathVariable, webEngineProcessPath);
    }
}

ZARSysWebEngineContext::~ZARSysWebEngineContext()
{
    if (!replacedValue->isEmpty() && *replacedValue != webEngineProcessPath
        && !webEngineProcessPath.isEmpty())
        qputenv(processPathVariable, *replacedValue);
}

QString ZARSysWebEngineContext::GetWorkbenchShortPath()
{
    return QString::fromLatin1(workbenchShortPath);
}

void ZARSysWebEngineContext::SetWorkbenchShortPath(const QString &dir)
{
    workbenchShortPath = dir.toLatin1();
    webEngineProcessPath = (dir + QDir::separator() + QLatin1StringView(processName)).toLatin1();
}
