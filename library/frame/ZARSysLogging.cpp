#include "ZARSysLogging.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QMutex>
#include <QTextStream>

Q_LOGGING_CATEGORY(LOG_CAT_ZAR_DEFAULT, "ZAR.Default")
Q_LOGGING_CATEGORY(LOG_CAT_ZAR_PERF, "ZAR.Performance")
Q_LOGGING_CATEGORY(LOG_CAT_ZAR_PERFTIMING, "ZAR.Performance.Timing")

namespace {

constexpr char messagePattern[] =
    "%{pid} %{threadid} %{time [yyyy-MM-dd HH:mm:ss.zzz]}[%{category}] %{message}";

// The handler that was installed before the library's own; null until Initialize() installs
// the latter, so it also tells whether it has.
QtMessageHandler previousHandler = nullptr;
QString textLogFilePath;
QBasicMutex textLogMutex;

void textLogHandler(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (textLogFilePath.isEmpty())
        return;

    const QMutexLocker locker(&textLogMutex);
    QFile file(textLogFilePath);
    if (file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text)) {
        QTextStream stream(&file);
        stream << qFormatLogMessage(type, context, message) << '\n';
    }
    if (previousHandler)
        previousHandler(type, context, message);
}

// Hands messages back to the previous handler when the library is unloaded or the process
// exits, before the path above is destroyed: Qt's own globals may still log afterwards.
struct HandlerRemover
{
    ~HandlerRemover()
    {
        if (!previousHandler)
            return;
        const QtMessageHandler current = qInstallMessageHandler(previousHandler);
        if (current != textLogHandler) // somebody else's handler is in charge: keep it
            qInstallMessageHandler(current);
    }
} handlerRemover;

} // namespace

void ZARSysLogging::Initialize()
{
    if (previousHandler)
        return;

    QString rules = QString::fromUtf8(qgetenv("ZARLogRules"));
    const QString allCategories = QStringLiteral("ZAR.*=true");

    if (!qEnvironmentVariableIsEmpty("ZAREnableTxtLog")) {
        textLogFilePath =
            QStringLiteral("%1_Nesting_%2.log")
                .arg(QCoreApplication::applicationName(),
                     QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd_hhmmss")));
        qSetMessagePattern(QString::fromLatin1(messagePattern));
        if (rules.isEmpty())
            rules = allCategories;
        previousHandler = qInstallMessageHandler(textLogHandler);
        QLoggingCategory::setFilterRules(rules);
    } else if (!qEnvironmentVariableIsEmpty("ZAREnableZARLog")) {
        qSetMessagePattern(QString::fromLatin1(messagePattern));
        if (rules.isEmpty())
            rules = allCategories;
        QLoggingCategory::setFilterRules(rules);
    } else {
        if (rules.isEmpty())
            rules = QStringLiteral("%1=false")
                        .arg(QLatin1StringView(LOG_CAT_ZAR_PERF().categoryName()));
        QLoggingCategory::setFilterRules(rules);
    }
}

QString ZARSysLogging::getTextLogFilePath()
{
    return textLogFilePath;
}
