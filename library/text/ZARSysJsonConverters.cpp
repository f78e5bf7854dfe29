#include "ZARSysJsonConverters.h"

#include <QJsonObject>

#include <cmath>
#include <limits>

QJsonValue ZARSysJsonConverters::Convert(const QColor &color)
{
    return QJsonObject {{QStringLiteral("r"), color.red()},
                        {QStringLiteral("g"), color.green()},
                        {QStringLiteral("b"), color.blue()},
                        {QStringLiteral("a"), color.alpha()}};
}

QJsonValue ZARSysJsonConverters::Convert(const QSize &size)
{
    return QJsonObject {{QStringLiteral("w"), size.width()}, {QStringLiteral("h"), size.height()}};
}

QJsonValue ZARSysJsonConverters::Convert(double value)
{
    return std::isnan(value) ? QJsonValue(QJsonValue::Null) : QJsonValue(value);
}

bool ZARSysJsonConverters::Convert(const QJsonValue &json, QColor &color)
{
    const QJsonObject object = json.toObject();
    if (object.size() != 4 || !object.contains(QLatin1StringView("r"))
        || !object.contains(QLatin1StringView("g")) || !object.contains(QLatin1StringView("b"))
        || !object.contains(QLatin1StringView("a")))
        return false;
    color.setRgb(
        object.value(QLatin1StringView("r")).toInt(), object.value(QLatin1StringView("g")).toInt(),
        object.value(QLatin1StringView("b")).toInt(), object.value(QLatin1StringView("a")).toInt());
    return true;
}

bool ZARSysJsonConverters::Convert(const QJsonValue &json, QSize &size)
{
    const QJsonObject object = json.toObject();
    if (object.size() != 2 || !object.contains(QLatin1StringView("w"))
        || !object.contains(QLatin1StringView("h")))
        return false;
    size = QSize(object.value(QLatin1StringView("w")).toInt(),
                 object.value(QLatin1StringView("h")).toInt());
    return true;
}

bool ZARSysJsonConverters::Convert(const QJsonValue &json, double &value)
{
    if (json.isNull()) {
        value = std::numeric_limits<double>::quiet_NaN();
        return true;
    }
    if (!json.isDouble())
        return false;
    value = json.toDouble();
    return true;
}
