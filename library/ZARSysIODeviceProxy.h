#ifndef ZARSYSIODEVICEPROXY_H
#define ZARSYSIODEVICEPROXY_H

#include <zarsystem_export.h>

#include <QIODevice>

#include <memory>

class ZARSysIODeviceProxyPrivate;

/*!
    \class ZARSysIODeviceProxy
    \brief A QIODevice in front of another that passes everything through and counts the bytes
    written on the way.

    The proxy does not own the inner device, and forwarding leaves the proxy's own QIODevice
    state alone: open() opens the inner device only. To read or write through the proxy's
    QIODevice functions (write(), read(), QDataStream on the proxy), also put the proxy itself
    in an open mode with QIODevice::open(), unbuffered: a buffered proxy would read ahead into
    a buffer of its own, which the forwarded pos() and atEnd() know nothing about. seek() moves
    the inner device and, when it is open, the proxy's own position along with it.

    \code
    QFile file(path);
    ZARSysIODeviceProxy proxy(&file);
    proxy.open(QIODevice::WriteOnly);                                // opens the file
    proxy.QIODevice::open(QIODevice::WriteOnly | QIODevice::Unbuffered); // and the proxy
    QDataStream(&proxy) << drawing;
    qDebug() << proxy.GetBytesWritten();
    \endcode

    The count is 32 bits wide: it wraps after 4 GiB. Without an inner device, or after it was
    destroyed, every operation fails: open(), seek() and the waits return false, reads and
    writes -1, pos(), size() and the byte counts 0, and atEnd() true, so that reading loops
    end.
*/
class ZARSYSTEM_EXPORT ZARSysIODeviceProxy : public QIODevice
{
    Q_OBJECT

public:
    /*! A proxy without an inner device. */
    ZARSysIODeviceProxy();
    /*! A proxy in front of \a device, which it watches but does not own. */
    explicit ZARSysIODeviceProxy(QIODevice *device);
    ~ZARSysIODeviceProxy() override;

    /*! The bytes written through the proxy since construction or ResetStatistics(). */
    unsigned long long GetBytesWritten() const;
    /*! Sets the count of bytes written to 0. */
    void ResetStatistics();

    bool open(OpenMode mode) override;
    void close() override;
    bool isSequential() const override;
    qint64 pos() const override;
    qint64 size() const override;
    bool seek(qint64 pos) override;
    bool atEnd() const override;
    bool reset() override;
    qint64 bytesAvailable() const override;
    qint64 bytesToWrite() const override;
    bool canReadLine() const override;
    bool waitForReadyRead(int msecs) override;
    bool waitForBytesWritten(int msecs) override;

protected:
    qint64 readData(char *data, qint64 maxSize) override;
    qint64 readLineData(char *data, qint64 maxSize) override;
    qint64 writeData(const char *data, qint64 size) override;

private:
    Q_DISABLE_COPY_MOVE(ZARSysIODeviceProxy)
    std::unique_ptr<ZARSysIODeviceProxyPrivate> const d;
};

#endif // ZARSYSIODEVICEPROXY_H
