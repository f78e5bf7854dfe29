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
    /*! Destroys the proxy; the inner device is neither closed nor deleted. */
    ~ZARSysIODeviceProxy() override;

    /*! The bytes written through the proxy since construction or ResetStatistics(). */
    unsigned long long GetBytesWritten() const;
    /*! Sets the count of bytes written to 0. */
    void ResetStatistics();

    /*!
        Opens the inner device in \a mode and returns whether it opened. The proxy's own open
        mode does not change.
    */
    bool open(OpenMode mode) override;
    /*! Closes the inner device. The proxy's own open mode does not change. */
    void close() override;
    /*! Returns whether the inner device is sequential. */
    bool isSequential() const override;
    /*! Returns the position of the inner device. */
    qint64 pos() const override;
    /*! Returns the size of the inner device. */
    qint64 size() const override;
    /*!
        Moves the inner device to \a pos and, when the proxy itself is open, the proxy's own
        position with it. Returns false, moving neither, when the inner device cannot seek there.
    */
    bool seek(qint64 pos) override;
    /*! Returns whether the inner device is at its end. */
    bool atEnd() const override;
    /*!
        Moves the inner device to its start and returns whether it could. Unlike seek(), it leaves
        the proxy's own position where it was.
    */
    bool reset() override;
    /*! Returns the number of bytes the inner device has ready for reading. */
    qint64 bytesAvailable() const override;
    /*! Returns the number of bytes the inner device has still to write. */
    qint64 bytesToWrite() const override;
    /*! Returns whether the inner device can read a complete line. */
    bool canReadLine() const override;
    /*!
        Waits up to \a msecs milliseconds for the inner device to have data to read; returns
        whether it has.
    */
    bool waitForReadyRead(int msecs) override;
    /*!
        Waits up to \a msecs milliseconds until the inner device has written some of its pending
        data; returns whether it has.
    */
    bool waitForBytesWritten(int msecs) override;

protected:
    /*!
        Reads up to \a maxSize bytes from the inner device into \a data and returns how many it
        read. A read error of the inner device gives 0.
    */
    qint64 readData(char *data, qint64 maxSize) override;
    /*!
        Reads a line of at most \a maxSize bytes, its line feed included, from the inner device
        into \a data and returns how many it read.
    */
    qint64 readLineData(char *data, qint64 maxSize) override;
    /*!
        Writes \a size bytes of \a data to the inner device, adds the number it wrote to
        GetBytesWritten() and returns it; -1 on a write error, which counts nothing.
    */
    qint64 writeData(const char *data, qint64 size) override;

private:
    Q_DISABLE_COPY_MOVE(ZARSysIODeviceProxy)
    std::unique_ptr<ZARSysIODeviceProxyPrivate> const d;
};

#endif // ZARSYSIODEVICEPROXY_H
