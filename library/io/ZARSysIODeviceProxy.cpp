#include "ZARSysIODeviceProxy.h"

#include <QPointer>

#include <algorithm>
#include <cstring>

class ZARSysIODeviceProxyPrivate
{
public:
    QPointer<QIODevice> device;
    quint32 bytesWritten = 0;
};

ZARSysIODeviceProxy::ZARSysIODeviceProxy()
    : d(std::make_unique<ZARSysIODeviceProxyPrivate>())
{ }

ZARSysIODeviceProxy::ZARSysIODeviceProxy(QIODevice *device)
    : ZARSysIODeviceProxy()
{
    d->device = device;
}

ZARSysIODeviceProxy::~ZARSysIODeviceProxy() = default;

unsigned long long ZARSysIODeviceProxy::GetBytesWritten() const
{
    return d->bytesWritten;
}

void ZARSysIODeviceProxy::ResetStatistics()
{
    d->bytesWritten = 0;
}

bool ZARSysIODeviceProxy::open(OpenMode mode)
{
    return d->device && d->device->open(mode);
}

void ZARSysIODeviceProxy::close()
{
    if (d->device)
        d->device->close();
}

bool ZARSysIODeviceProxy::isSequential() const
{
    return d->device && d->device->isSequential();
}

qint64 ZARSysIODeviceProxy::pos() const
{
    return d->device ? d->device->pos() : 0;
}

qint64 ZARSysIODeviceProxy::size() const
{
    return d->device ? d->device->size() : 0;
}

bool ZARSysIODeviceProxy::seek(qint64 pos)
{
    if (!d->device || !d->device->seek(pos))
        return false;
    // The proxy's own part follows, if it is open: before its next read or write it would
    // otherwise seek the inner device back to where it thinks it stands.
    if (isOpen())
        QIODevice::seek(pos);
    return true;
}

bool ZARSysIODeviceProxy::atEnd() const
{
    return !d->device || d->device->atEnd();
}

bool ZARSysIODeviceProxy::reset()
{
    return d->device && d->device->reset();
}

qint64 ZARSysIODeviceProxy::bytesAvailable() const
{
    return d->device ? d->device->bytesAvailable() : 0;
}

qint64 ZARSysIODeviceProxy::bytesToWrite() const
{
    return d->device ? d->device->bytesToWrite() : 0;
}

bool ZARSysIODeviceProxy::canReadLine() const
{
    return d->device && d->device->canReadLine();
}

bool ZARSysIODeviceProxy::waitForReadyRead(int msecs)
{
    return d->device && d->device->waitForReadyRead(msecs);
}

bool ZARSysIODeviceProxy::waitForBytesWritten(int msecs)
{
    return d->device && d->device->waitForBytesWritten(msecs);
}

qint64 ZARSysIODeviceProxy::readData(char *data, qint64 maxSize)
{
    if (!d->device)
        return -1;
    const QByteArray bytes = d->device->read(maxSize);
    const qint64 count = std::min<qint64>(bytes.size(), maxSize);
    if (count > 0)
        std::memcpy(data, bytes.constData(), size_t(count));
    return count;
}

qint64 ZARSysIODeviceProxy::readLineData(char *data, qint64 maxSize)
{
    if (!d->device)
        return -1;
    if (maxSize <= 0)
        return 0; // readLine(0) would read a whole line, whatever its length
    // readLine(n) keeps room for a terminator and returns at most n - 1 bytes.
    const QByteArray bytes = d->device->readLine(maxSize + 1);
    const qint64 count = std::min<qint64>(bytes.size(), maxSize);
    if (count > 0)
        std::memcpy(data, bytes.constData(), size_t(count));
    return count;
}

qint64 ZARSysIODeviceProxy::writeData(const char *data, qint64 size)
{
    if (!d->device)
        return -1;
    const qint64 written = d->device->write(data, size);
    if (written >= 0)
        d->bytesWritten += quint32(written); // the low 32 bits: the count wraps
    return written;
}

#include "moc_ZARSysIODeviceProxy.cpp"
