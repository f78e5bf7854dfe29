#include <ZARSysException.h>
#include <ZARSysInterrupt.h>

#include <QElapsedTimer>
#include <QEvent>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

// Counts the events posted to it.
class Receiver : public QObject
{
public:
    int received = 0;
    std::function<void()> onEvent;

protected:
    bool event(QEvent *event) override
    {
        if (event->type() != QEvent::User)
            return QObject::event(event);
        ++received;
        if (onEvent)
            onEvent();
        return true;
    }
};

void post(Receiver *receiver)
{
    QCoreApplication::postEvent(receiver, new QEvent(QEvent::User));
}

// Whether CheckForInterrupt() throws, and then with which text.
QString check()
{
    try {
        ZARSysInterrupt::CheckForInterrupt();
    } catch (const ZARSysAbortComputationException &e) {
        return e.GetText();
    }
    return QString();
}

// Waits until the next check may process events again.
void letThrottleExpire()
{
    QTest::qSleep(110);
}

} // namespace

class tst_Interrupt : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eventProcessingThrottled()
    {
        Receiver receiver;
        post(&receiver);
        ZARSysInterrupt::CheckForInterrupt(); // outside a region: nothing
        QCOMPARE(receiver.received, 0);
        ZARSysInterrupt::Interrupt(); // outside a region: not remembered

        const ZARSysInterruptEnableContext region;
        QCOMPARE(check(), QString()); // the very first check processes
        QCOMPARE(receiver.received, 1);
        post(&receiver);
        ZARSysInterrupt::CheckForInterrupt(); // within 100 ms: not again
        QCOMPARE(receiver.received, 1);
        letThrottleExpire();
        ZARSysInterrupt::CheckForInterrupt();
        QCOMPARE(receiver.received, 2);
    }

    void init()
    {
        ZARSysInterrupt::SetInterruptEnabled(true);
        letThrottleExpire();
    }

    void interruptFromEventHandler()
    {
        // A computation that checks in a loop, stopped by a handler of an event, as a Cancel
        // button would.
        Receiver cancel;
        cancel.onEvent = [] {
            ZARSysInterrupt::Interrupt();
        };
        int steps = 0;
        QString aborted;
        QElapsedTimer clock;
        clock.start();
        {
            const ZARSysInterruptEnableContext region;
            QTimer::singleShot(150, &cancel, [&cancel] { post(&cancel); });
            try {
                while (clock.elapsed() < 10000) {
                    ++steps;
                    ZARSysInterrupt::CheckForInterrupt();
                }
            } catch (const ZARSysAbortComputationException &e) {
                aborted = e.GetText();
            }
        }
        QCOMPARE(aborted, u"computation aborted"_s);
        QCOMPARE(cancel.received, 1);
        QVERIFY(steps > 1);
        QVERIFY(clock.elapsed() < 10000);
    }

    void requestConsumedByThrow()
    {
        const ZARSysInterruptEnableContext region;
        ZARSysInterrupt::Interrupt();
        QCOMPARE(check(), u"computation aborted"_s);
        QCOMPARE(check(), QString());
        ZARSysInterrupt::Interrupt();
        QCOMPARE(check(), u"computation aborted"_s); // within 100 ms: no processing needed
    }

    void disabled()
    {
        Receiver receiver;
        const ZARSysInterruptEnableContext region;
        ZARSysInterrupt::Interrupt();
        ZARSysInterrupt::SetInterruptEnabled(false);
        post(&receiver);
        QCOMPARE(check(), QString());
        QCOMPARE(receiver.received, 0); // no event processing either

        ZARSysInterrupt::SetInterruptEnabled(true);
        QCOMPARE(check(), u"computation aborted"_s); // the request waited
        QCOMPARE(receiver.received, 1);
    }

    void nestedRegions()
    {
        {
            const ZARSysInterruptEnableContext outer;
            {
                const ZARSysInterruptEnableContext inner;
                ZARSysInterrupt::Interrupt();
            }
            QCOMPARE(check(), u"computation aborted"_s); // kept by the outer region

            ZARSysInterrupt::Interrupt();
        }
        // The outermost region dropped the pending request.
        const ZARSysInterruptEnableContext region;
        QCOMPARE(check(), QString());
    }
};

QTEST_GUILESS_MAIN(tst_Interrupt)
#include "tst_interrupt.moc"
