// Ratios read from text: ZARSysRatio::SetValue() and FromString() in several locales.

#include "FuzzCommon.h"

#include <ZARSysRatio.h>

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    Fuzz::start();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    FuzzedDataProvider data(bytes, size);
    Fuzz::useLocale(data);
    const auto decoration = ZARSysRatio::Decoration(data.ConsumeIntegralInRange<qint32>(-1, 5));
    const QString text = Fuzz::text(data, 256);

    ZARSysRatio ratio;
    ratio.SetValue(text, decoration);
    (void)ratio.ToString(decoration);
    (void)ratio.GetValue(decoration);
    const ZARSysRatio parsed = ZARSysRatio::FromString(text);
    (void)parsed.ToString();
    (void)(parsed == ratio);
    (void)(parsed < ratio);
    (void)ZARSysRatio::GetSuffixDecoration(text);
    return 0;
}
