// ZARSysJsonConverters on every value of any parsed JSON document, and the round trip of what
// they read.

#include "FuzzCommon.h"

#include <ZARSysJsonConverters.h>

#include <QColor>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSize>

#include <cmath>

namespace {

void convert(const QJsonValue &json, int depth)
{
    QColor color;
    if (ZARSysJsonConverters::Convert(json, color) && color.isValid()) {
        QColor again;
        const QJsonValue written = ZARSysJsonConverters::Convert(color);
        if (!ZARSysJsonConverters::Convert(written, again) || again != color)
            Fuzz::fail("a colour does not read back");
    }
    QSize size;
    if (ZARSysJsonConverters::Convert(json, size)) {
        QSize again;
        if (!ZARSysJsonConverters::Convert(ZARSysJsonConverters::Convert(size), again)
            || again != size)
            Fuzz::fail("a size does not read back");
    }
    double number = 0.0;
    if (ZARSysJsonConverters::Convert(json, number)) {
        double again = 1.0;
        if (!ZARSysJsonConverters::Convert(ZARSysJsonConverters::Convert(number), again)
            || !(again == number || (std::isnan(again) && std::isnan(number))))
            Fuzz::fail("a number does not read back");
    }

    // Qt's parser limits the nesting; the walk is bounded all the same.
    if (depth > 64)
        return;
    if (json.isArray()) {
        for (const QJsonValue &element : json.toArray())
            convert(element, depth + 1);
    } else if (json.isObject()) {
        const QJsonObject object = json.toObject();
        for (auto it = object.begin(); it != object.end(); ++it)
            convert(it.value(), depth + 1);
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    Fuzz::start();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    const QJsonDocument document = QJsonDocument::fromJson(
        QByteArray::fromRawData(reinterpret_cast<const char *>(bytes), qsizetype(size)));
    if (document.isArray())
        convert(document.array(), 0);
    else if (document.isObject())
        convert(document.object(), 0);
    return 0;
}
