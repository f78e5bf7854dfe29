#include <ZARSysIODeviceProxy.h>

#include <QBuffer>
#include <QRegularExpression>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

// Several answers as one list, to compare at once.
template<typename... Values>
QList<qint64> numbers(Values... values)
{
    return {qint64(values)...};
}

// The proxy's open() opens the inner device only; reading or writing through the proxy's own
// QIODevice functions also needs the proxy itself in an open mode, unbuffered, so that its
// own part does not read ahead of the positions that the inner device reports.
void openBoth(ZARSysIODeviceProxy &proxy, QIODevice::OpenMode mode)
{
    QVERIFY(proxy.open(mode));
    QVERIFY(proxy.QIODevice::open(mode | QIODevice::Unbuffered));
}

const QByteArray lines = "line one\nline two\n"_ba;

// Takes any write and reports the next of the given counts as written, however many bytes came.
class ReportingDevice : public QIODevice
{
public:
    QList<qint64> reports;

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *, qint64) override { return reports.takeFirst(); }
};

} // namespace

class tst_IODeviceProxy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void countsWrites()
    {
        QBuffer buffer;
        {
            ZARSysIODeviceProxy proxy(&buffer);
            openBoth(proxy, QIODevice::WriteOnly);
            QCOMPARE(proxy.write("0123456789"), 10);
            QCOMPARE(proxy.write("abcde"_ba), 5);
            QCOMPARE(buffer.data(), "0123456789abcde"_ba);

            buffer.write("direct"); // not through the proxy
            QCOMPARE(proxy.GetBytesWritten(), 15ULL);
            proxy.ResetStatistics();
            QCOMPARE(proxy.GetBytesWritten(), 0ULL);
            QCOMPARE(proxy.write("xy"), 2);
            QCOMPARE(proxy.GetBytesWritten(), 2ULL);
        }
        // The proxy neither owns nor closes its device.
        QVERIFY(buffer.isOpen());
        QCOMPARE(buffer.data(), "0123456789abcdedirectxy"_ba);
    }

    void countOf_data()
    {
        QTest::addColumn<QList<qint64>>("reports"); // by the inner device, one a write
        QTest::addColumn<qulonglong>("counted");

        QTest::newRow("nothing written") << QList<qint64> {0} << 0ULL;
        QTest::newRow("failures") << QList<qint64> {7, -1, 3} << 10ULL;
        QTest::newRow("just below 4 GiB") << QList<qint64> {0xFFFF'FFFF} << 0xFFFF'FFFFULL;
        // The count keeps the low 32 bits.
        QTest::newRow("beyond 32 bits") << QList<qint64> {0x1'0000'0005} << 5ULL;
        QTest::newRow("wraps") << QList<qint64> {0xFFFF'FFFF, 0xFFFF'FFFF} << 0xFFFF'FFFEULL;
    }

    void countOf()
    {
        QFETCH(QList<qint64>, reports);

        ReportingDevice device;
        device.reports = reports;
        ZARSysIODeviceProxy proxy(&device);
        openBoth(proxy, QIODevice::WriteOnly);
        for (const qint64 report : reports)
            QCOMPARE(proxy.write("x"), report);
        QTEST(proxy.GetBytesWritten(), "counted");
    }

    void positions()
    {
        QBuffer buffer;
        ZARSysIODeviceProxy proxy(&buffer);
        openBoth(proxy, QIODevice::ReadWrite);
        QVERIFY(!proxy.isSequential());

        QCOMPARE(proxy.write("0123456789"), 10);
        QCOMPARE(numbers(proxy.size(), proxy.pos(), proxy.atEnd()), numbers(10, 10, true));
        QCOMPARE(proxy.bytesToWrite(), buffer.bytesToWrite());

        QVERIFY(proxy.seek(4));
        QCOMPARE(numbers(buffer.pos(), proxy.pos(), proxy.atEnd(), proxy.bytesAvailable()),
                 numbers(4, 4, false, 6));

        // Writing goes on where the inner device stands.
        QCOMPARE(proxy.write("ab"), 2);
        QCOMPARE(buffer.data(), "0123ab6789"_ba);
        QCOMPARE(numbers(proxy.pos(), proxy.size()), numbers(6, 10));

        // The inner device moved directly.
        QVERIFY(buffer.seek(8));
        QCOMPARE(numbers(proxy.pos(), proxy.bytesAvailable()), numbers(8, 2));

        QVERIFY(proxy.reset());
        QCOMPARE(numbers(buffer.pos(), proxy.pos(), proxy.atEnd()), numbers(0, 0, false));
    }

    void readThrough()
    {
        QBuffer buffer;
        buffer.setData(lines);
        ZARSysIODeviceProxy proxy(&buffer);
        openBoth(proxy, QIODevice::ReadWrite);

        QVERIFY(proxy.canReadLine());
        QCOMPARE(proxy.read(5), "line "_ba);
        // What was read is gone, what was not is still to come.
        QCOMPARE(proxy.pos(), 5);
        QCOMPARE(proxy.bytesAvailable(), lines.size() - 5);
        QVERIFY(!proxy.atEnd());
        QCOMPARE(proxy.readLine(), "one\n"_ba);
        QCOMPARE(proxy.readAll(), "line two\n"_ba);
        QVERIFY(proxy.atEnd());
        QVERIFY(proxy.readLine().isEmpty());
        QVERIFY(proxy.read(1).isEmpty());
        QCOMPARE(proxy.GetBytesWritten(), 0ULL);

        // seek() moves the inner device and the proxy's own position, so reads and writes through
        // the proxy continue where it says.
        QVERIFY(proxy.seek(0));
        QCOMPARE(proxy.read(4), "line"_ba);
        QVERIFY(proxy.seek(5));
        QCOMPARE(buffer.pos(), 5);
        QCOMPARE(proxy.readLine(), "one\n"_ba);
        QVERIFY(proxy.seek(proxy.size()));
        QCOMPARE(proxy.write("end"), 3);
        QCOMPARE(buffer.data(), lines + "end");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"seek"_s));
        QVERIFY(!proxy.seek(-1));
    }

    void longLine()
    {
        // Lines longer than the chunks in which QIODevice reads them come through whole.
        const QByteArray line = QByteArray(40000, 'x') + '\n';
        QBuffer buffer;
        buffer.setData(line + "next\n");
        ZARSysIODeviceProxy proxy(&buffer);
        openBoth(proxy, QIODevice::ReadOnly);
        QCOMPARE(proxy.readLine(), line);
        char two[2];
        QCOMPARE(proxy.readLine(two, sizeof two), 1);
        QCOMPARE(two[0], 'n');
    }

    void withoutInnerDevice_data()
    {
        QTest::addColumn<bool>("destroyed");

        QTest::newRow("never had one") << false;
        QTest::newRow("destroyed") << true;
    }

    void withoutInnerDevice()
    {
        QFETCH(bool, destroyed);

        std::unique_ptr<ZARSysIODeviceProxy> proxy;
        unsigned long long counted = 0;
        if (destroyed) {
            auto *inner = new QBuffer;
            proxy = std::make_unique<ZARSysIODeviceProxy>(inner);
            openBoth(*proxy, QIODevice::ReadWrite);
            QCOMPARE(proxy->write("abc"), 3);
            counted = 3;
            delete inner;
        } else {
            proxy = std::make_unique<ZARSysIODeviceProxy>();
            QVERIFY(proxy->QIODevice::open(QIODevice::ReadWrite));
        }

        // Every query fails or reports nothing; atEnd() holds, so reading loops end.
        QCOMPARE(numbers(proxy->open(QIODevice::ReadOnly), proxy->isSequential(), proxy->seek(0),
                         proxy->reset(), proxy->canReadLine(), proxy->waitForReadyRead(0),
                         proxy->waitForBytesWritten(0), proxy->atEnd()),
                 numbers(0, 0, 0, 0, 0, 0, 0, 1));
        char data[8];
        QCOMPARE(numbers(proxy->pos(), proxy->size(), proxy->bytesAvailable(),
                         proxy->bytesToWrite(), proxy->write("xyz"), proxy->read(data, 3),
                         proxy->readLine(data, sizeof data)),
                 numbers(0, 0, 0, 0, -1, -1, -1));
        QCOMPARE(proxy->GetBytesWritten(), counted);
        proxy->close();
    }
};

QTEST_GUILESS_MAIN(tst_IODeviceProxy)
#include "tst_iodeviceproxy.moc"
