#include "ZARSysMessageQueue.h"

#include <algorithm>

// The messages of one queue, in arrival order.
class ZARSysMessageQueuePrivate
{
public:
    QList<std::pair<QString, ZARSysMessageQueue::Type>> messages;
};

namespace {

// The live queues, in construction order; the last one receives the messages.
QList<ZARSysMessageQueue *> &stack()
{
    static QList<ZARSysMessageQueue *> queues;
    return queues;
}

// Files a message of Qt into the top queue. The fall-through is deliberate: an info message
// also counts twice as a warning, and a warning twice.
void fileMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    ZARSysMessageQueue *const queue = ZARSysMessageQueue::GetMessageQueue();
    if (!queue)
        return;
    switch (type) {
    case QtInfoMsg:
        queue->AddMessage(text, ZARSysMessageQueue::Information);
        Q_FALLTHROUGH();
    case QtWarningMsg:
        queue->AddMessage(text, ZARSysMessageQueue::Warning);
        Q_FALLTHROUGH();
    case QtCriticalMsg:
        queue->AddMessage(text, ZARSysMessageQueue::Warning);
        break;
    case QtDebugMsg:
    case QtFatalMsg:
        break;
    }
}

} // namespace

ZARSysMessageQueue::ZARSysMessageQueue()
    : d(std::make_unique<ZARSysMessageQueuePrivate>())
{
    qInstallMessageHandler(fileMessage);
    stack().append(this);
}

ZARSysMessageQueue::~ZARSysMessageQueue()
{
    stack().removeAll(this);
}

ZARSysMessageQueue *ZARSysMessageQueue::GetMessageQueue()
{
    const QList<ZARSysMessageQueue *> &queues = stack();
    return queues.isEmpty() ? nullptr : queues.last();
}

void ZARSysMessageQueue::AddMessage(const QString &text, Type type)
{
    d->messages.append({text, type});
}

QList<std::pair<QString, ZARSysMessageQueue::Type>> ZARSysMessageQueue::GetMessages()
{
    return std::exchange(d->messages, {});
}

ZARSysMessageQueue::Type ZARSysMessageQueue::GetMessageWorstStatus() const
{
    Type worst = Information;
    for (const auto &message : std::as_const(d->messages))
        worst = std::max(worst, message.second);
    return worst;
}

QString ZARSysMessageQueue::GetSimpleMessageReport() const
{
    QString report;
    for (const auto &[text, type] : std::as_const(d->messages)) {
        switch (type) {
        case Error:
            report += tr("Error: ");
            break;
        case Warning:
            report += tr("Warning: ");
            break;
        case Information:
            report += tr("Information: ");
            break;
        }
        report += text + QLatin1Char('\n');
    }
    return report;
}
