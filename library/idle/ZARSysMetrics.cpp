#include "ZARSysMetrics.h"

#include "ZARSysGlobalStatic.h"

ZARSysMetrics *ZARSysMetrics::GetSysMetrics()
{
    return ZARSysGlobalStatic<ZARSysMetrics>::Get([] { return new ZARSysMetrics; },
                                                  [](ZARSysMetrics *metrics) { delete metrics; });
}

void ZARSysMetrics::ReportData(const QByteArray &key, const QVariant &data)
{
    Q_EMIT GetSysMetrics()->DataReported(key, data);
}

#include "moc_ZARSysMetrics.cpp"
