// Quantities read from text: ZARSysValue::SetValue() and FromString() in several locales, and
// formatting what they read.

#include "FuzzCommon.h"

#include <ZARSysValue.h>

#include <cmath>

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    Fuzz::start();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    FuzzedDataProvider data(bytes, size);
    Fuzz::useLocale(data);

    // Any unit number, catalogued or not, and any magnitude.
    const QList<ZARSysValue::Unit> units = ZARSysValue::GetAllUnits();
    const ZARSysValue::Unit unit = data.ConsumeBool()
        ? units.at(data.ConsumeIntegralInRange<qsizetype>(0, units.size() - 1))
        : ZARSysValue::Unit(data.ConsumeIntegral<qint32>());
    const auto magnitude = ZARSysValue::Magnitude(data.ConsumeIntegralInRange<qint32>(-1, 9));
    const char format = "efgx"[data.ConsumeIntegralInRange<int>(0, 3)];
    const int precision = data.ConsumeIntegralInRange<int>(-2, 20);
    const QString text = Fuzz::text(data, 256);

    ZARSysValue value(magnitude, 0.0);
    value.SetValue(text, unit);
    if (value.GetMagnitude() != magnitude)
        Fuzz::fail("SetValue() changed the magnitude", text);
    (void)value.ToString(unit, format, precision);
    (void)value.ToString();
    (void)value.ToJsonObject();

    const ZARSysValue parsed = ZARSysValue::FromString(text);
    (void)parsed.ToString(unit, format, precision);
    (void)(parsed == value);
    if (parsed.IsValid() && value.IsValid() && parsed.GetMagnitude() == value.GetMagnitude()) {
        (void)(parsed < value);
        (void)(parsed >= value);
    }

    // A finite value written with fixed decimals in its own system unit reads back within
    // the rounding of the last decimal.
    if (magnitude > ZARSysValue::InvalidMagnitude && magnitude <= ZARSysValue::Area
        && std::isfinite(value.GetValue()) && std::fabs(value.GetValue()) < 1e12) {
        const ZARSysValue::Unit system = ZARSysValue::GetMagnitudeSystemUnit(magnitude);
        const QString written = value.ToString(system, 'f', 6);
        ZARSysValue reread(magnitude, 0.0);
        reread.SetValue(written, system);
        const double allowed = 1e-6 + 1e-12 * std::fabs(value.GetValue());
        if (!(std::fabs(reread.GetValue() - value.GetValue()) <= allowed))
            Fuzz::fail("a fixed-point text does not read back",
                       text + QStringLiteral(" -> ") + written);
    }
    return 0;
}
