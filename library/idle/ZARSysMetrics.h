#ifndef ZARSYSMETRICS_H
#define ZARSYSMETRICS_H

#include <zarsystem_export.h>

#include <QByteArray>
#include <QObject>
#include <QVariant>

/*!
    \class ZARSysMetrics
    \brief Broadcasts usage data: any code reports a named datum, and whoever listens (the
    host's telemetry, typically) receives it.

    \code
    connect(ZARSysMetrics::GetSysMetrics(), &ZARSysMetrics::DataReported, telemetry,
            &Telemetry::record);
    ZARSysMetrics::ReportData("nesting.parts", parts.size());
    \endcode

    The signal is emitted on the reporting thread; receivers elsewhere get it queued.
*/
class ZARSYSTEM_EXPORT ZARSysMetrics : public QObject
{
    Q_OBJECT

public:
    /*! The broadcaster, created on first use and deleted when the process exits. */
    static ZARSysMetrics *GetSysMetrics();
    /*! Emits DataReported(\a key, \a data) on the broadcaster. */
    static void ReportData(const QByteArray &key, const QVariant &data);

Q_SIGNALS:
    /*! Emitted by ReportData() for the datum \a data reported under \a key. */
    void DataReported(const QByteArray &key, const QVariant &data);

private:
    ZARSysMetrics() = default;
    ~ZARSysMetrics() override = default;
    Q_DISABLE_COPY_MOVE(ZARSysMetrics)
};

#endif // ZARSYSMETRICS_H
