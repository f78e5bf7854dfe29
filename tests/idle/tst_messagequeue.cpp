#include "../testrow.h"

#include <ZARSysMessageQueue.h>
#include <ZARSysMetrics.h>

#include <QSignalSpy>
#include <QTranslator>

using namespace Qt::StringLiterals;

using Messages = QList<std::pair<QString, ZARSysMessageQueue::Type>>;

class tst_MessageQueue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metrics()
    {
        // The first report creates the broadcaster, with nobody listening yet.
        ZARSysMetrics::ReportData("nobody", 1);
        QSignalSpy spy(ZARSysMetrics::GetSysMetrics(), &ZARSysMetrics::DataReported);
        ZARSysMetrics::ReportData("nesting.parts", 42);
        ZARSysMetrics::ReportData("nesting.material", u"steel"_s);
        QCOMPARE(spy.count(), 2);
        QCOMPARE(spy.at(0), (QVariantList {QByteArray("nesting.parts"), QVariant(42)}));
        QCOMPARE(spy.at(1), (QVariantList {QByteArray("nesting.material"), QVariant(u"steel"_s)}));
    }

    void messageTypes_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<Messages>("filed");

        const auto warning = ZARSysMessageQueue::Warning;
        addRow("warning", int(QtWarningMsg), Messages {{u"text"_s, warning}, {u"text"_s, warning}});
        addRow("critical", int(QtCriticalMsg), Messages {{u"text"_s, warning}});
        addRow("info", int(QtInfoMsg),
               Messages {{u"text"_s, ZARSysMessageQueue::Information},
                         {u"text"_s, warning},
                         {u"text"_s, warning}});
        addRow("debug", int(QtDebugMsg), Messages {});
    }

    void messageTypes()
    {
        QFETCH(int, type);

        ZARSysMessageQueue queue;
        QCOMPARE(ZARSysMessageQueue::GetMessageQueue(), &queue);
        qt_message_output(QtMsgType(type), QMessageLogContext(), u"text"_s);
        QTEST(queue.GetMessages(), "filed");
        QVERIFY(queue.GetMessages().isEmpty()); // reading consumed them
    }

    void nestedQueues()
    {
        ZARSysMessageQueue outer;
        qCritical("first");
        {
            ZARSysMessageQueue inner;
            QCOMPARE(ZARSysMessageQueue::GetMessageQueue(), &inner);
            qCritical("second");
            QCOMPARE(inner.GetMessages(), (Messages {{u"second"_s, ZARSysMessageQueue::Warning}}));
        }
        QCOMPARE(ZARSysMessageQueue::GetMessageQueue(), &outer);
        qCritical("third");
        QCOMPARE(outer.GetMessages(),
                 (Messages {{u"first"_s, ZARSysMessageQueue::Warning},
                            {u"third"_s, ZARSysMessageQueue::Warning}}));
    }

    void worstStatusAndReport()
    {
        ZARSysMessageQueue queue;
        QCOMPARE(queue.GetMessageWorstStatus(), ZARSysMessageQueue::Information);
        QCOMPARE(queue.GetSimpleMessageReport(), QString());

        qCritical("y");
        QCOMPARE(queue.GetMessageWorstStatus(), ZARSysMessageQueue::Warning);
        queue.AddMessage(u"z"_s, ZARSysMessageQueue::Error);
        queue.AddMessage(u"b"_s, ZARSysMessageQueue::Information);
        QCOMPARE(queue.GetMessageWorstStatus(), ZARSysMessageQueue::Error);

        const QString report = u"Warning: y\nError: z\nInformation: b\n"_s;
        QCOMPARE(queue.GetSimpleMessageReport(), report);
        QCOMPARE(queue.GetSimpleMessageReport(), report); // not consumed
        QCOMPARE(queue.GetMessages().size(), 3);
        QCOMPARE(queue.GetMessageWorstStatus(), ZARSysMessageQueue::Information);
    }

    void translatedReport()
    {
        QTranslator translator;
        QVERIFY(translator.load(u":/localization/translations/ZARSystem-de_DE.qm"_s));
        QCoreApplication::installTranslator(&translator);
        ZARSysMessageQueue queue;
        queue.AddMessage(u"a"_s, ZARSysMessageQueue::Warning);
        const QString report = queue.GetSimpleMessageReport();
        QCoreApplication::removeTranslator(&translator);
        const QString prefix = translator.translate("ZARSysMessageQueue", "Warning: ");
        QVERIFY(!prefix.isEmpty() && prefix != u"Warning: "_s);
        QCOMPARE(report, prefix + u"a\n"_s);
    }

    void droppedWithoutQueue()
    {
        const auto currentHandler = [] {
            const QtMessageHandler handler = qInstallMessageHandler(nullptr);
            qInstallMessageHandler(handler);
            return handler;
        };
        QtMessageHandler queueHandler = nullptr;
        {
            const ZARSysMessageQueue queue;
            queueHandler = currentHandler();
        }
        // The handler stays installed after the last queue, and drops messages.
        QCOMPARE(ZARSysMessageQueue::GetMessageQueue(), nullptr);
        QVERIFY(currentHandler() == queueHandler);
        qWarning("lost");
        ZARSysMessageQueue queue;
        QVERIFY(queue.GetMessages().isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_MessageQueue)
#include "tst_messagequeue.moc"
