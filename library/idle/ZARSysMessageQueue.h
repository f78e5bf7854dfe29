#ifndef ZARSYSMESSAGEQUEUE_H
#define ZARSYSMESSAGEQUEUE_H

#include <zarsystem_export.h>

#include <QCoreApplication>
#include <QList>
#include <QString>

#include <memory>
#include <utility>

class ZARSysMessageQueuePrivate;

/*!
    \class ZARSysMessageQueue
    \brief Collects the messages of an operation, for a short report to the user afterwards.

    Queues are scope objects that form a stack: Qt's warnings, critical and info messages go
    to the queue constructed last that still lives. Constructing a queue installs its message
    handler for the rest of the process, in place of any other: from then on messages are
    neither printed nor written to the text log, and they are dropped while no queue lives.

    The handler files the messages with duplicates that callers rely on: an info message
    becomes one Information and two Warning entries, a warning two Warning entries, a critical
    message one Warning entry; debug messages are not filed. Error entries come only from
    AddMessage().

    \code
    ZARSysMessageQueue messages;
    importDrawing(path); // its qWarning()s are collected
    if (messages.GetMessageWorstStatus() != ZARSysMessageQueue::Information)
        QMessageBox::warning(window, title, messages.GetSimpleMessageReport());
    \endcode

    Queues are meant for operations on the GUI thread; nothing here is synchronised.
*/
class ZARSYSTEM_EXPORT ZARSysMessageQueue
{
    Q_DECLARE_TR_FUNCTIONS(ZARSysMessageQueue)

public:
    /*! The kinds of message; a higher value is worse. */
    enum Type : qint32 {
        Information = 0,
        Warning = 1,
        Error = 2,
    };

    /*! Installs the message handler and makes this queue the one that receives messages. */
    ZARSysMessageQueue();
    /*! Leaves the stack; the queue below receives messages again. */
    ~ZARSysMessageQueue();

    /*! The queue that receives messages: the one constructed last that still lives, or null. */
    static ZARSysMessageQueue *GetMessageQueue();

    /*! Appends \a text as a message of type \a type. */
    void AddMessage(const QString &text, Type type);
    /*! Returns the messages in arrival order and empties the queue. */
    QList<std::pair<QString, Type>> GetMessages();
    /*! The worst type among the messages; Information for an empty queue. */
    Type GetMessageWorstStatus() const;
    /*!
        One line for each message, in order: a translated "Error: ", "Warning: " or
        "Information: ", the text and a line feed. The queue is not emptied. Empty for an empty
        queue.
    */
    QString GetSimpleMessageReport() const;

private:
    Q_DISABLE_COPY_MOVE(ZARSysMessageQueue)

    std::unique_ptr<ZARSysMessageQueuePrivate> const d;
};

#endif // ZARSYSMESSAGEQUEUE_H
