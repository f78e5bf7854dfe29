#include "ZARSysMetrics.h"

ZARSysMetrics *ZARSysMetrics::GetSysMetrics()
{
    static ZARSysMetrics metrics;
    return &metrics;
}

void ZARSysMetrics::ReportData(const QByteArray &key, const QVariant &data)
{
    Q_EMIT GetSysMetrics()->DataReported(key, data);
}

#include "moc_ZARSysMetrics.cpp"
