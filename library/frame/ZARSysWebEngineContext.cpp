#include "ZARSysWebEngineContext.h"

#include "ZARSysPlatform.h"
#include "ZARSysWebEngineContextPrivate.h"

#include <QDir>

namespace {

QByteArray workbenchShortPath;
QByteArray webEngineProcessPath;

} // namespace

QString ZARSysWebEngineProcessPath(const QString &folder)
{
    return folder + QDir::separator()
        + QString::fromStdU16String(ZARSysPlatform::ExecutableName(u"QtWebEngineProcess"));
}

ZARSysWebEngineContext::ZARSysWebEngineContext()
    : d(std::make_unique<ZARSysWebEngineContextPrivate>())
{
    const QByteArray current = qgetenv(ZARSysWebEngineProcessVariable);
    if (!current.isEmpty() && current != webEngineProcessPath && !webEngineProcessPath.isEmpty()) {
        d->replacedValue = current;
        qputenv(ZARSysWebEngineProcessVariable, webEngineProcessPath);
    }
}

ZARSysWebEngineContext::~ZARSysWebEngineContext()
{
    if (!d->replacedValue.isEmpty() && d->replacedValue != webEngineProcessPath
        && !webEngineProcessPath.isEmpty())
        qputenv(ZARSysWebEngineProcessVariable, d->replacedValue);
}

QString ZARSysWebEngineContext::GetWorkbenchShortPath()
{
    return QString::fromLatin1(workbenchShortPath);
}

void ZARSysWebEngineContext::SetWorkbenchShortPath(const QString &dir)
{
    workbenchShortPath = dir.toLatin1();
    webEngineProcessPath = ZARSysWebEngineProcessPath(dir).toLatin1();
}
