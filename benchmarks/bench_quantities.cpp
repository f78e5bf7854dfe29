// Quantities: reading and writing ZARSysValue and ZARSysRatio, and typed values through
// QVariant, beside the references they are measured against:
//
// - a regular-expression chain that does the least a reader of "12.5 mm" must do: match number
//   and suffix, QString::toDouble, a QHash look-up of the suffix's factor, a multiplication;
// - UDUNITS-2 reading "25.4 mm" and converting it to millimetres;
// - QLocale::toString(double, 'g', 6) alone, the formatting inside ToString();
// - the direct calls that a QVariant conversion of a typed value stands for.
//
// Every operation is checked for its result once before it is timed.

#include "BenchCommon.h"

#include <ZARSysDefinedValue.h>
#include <ZARSysRatio.h>
#include <ZARSysValue.h>

#include <QHash>
#include <QLocale>
#include <QRegularExpression>
#include <QVariant>

#include <udunits2.h>

#include <algorithm>
#include <cmath>

namespace {

bool nearlyEqual(double a, double b)
{
    return std::fabs(a - b) <= 1e-9 * std::max(1.0, std::fabs(b));
}

void skip(benchmark::State &state, const QString &message)
{
    state.SkipWithError(message.toUtf8().constData());
}

// References

// The pattern is the one ZARSysValue documents for its input; it is compiled and optimised
// once, outside the loop, as a reader would keep it.
void regularExpressionChain(benchmark::State &state)
{
    const QRegularExpression pattern(QStringLiteral(R"(^\s*(\-?\d*\.?\d*)\s*(\S+)?\s*$)"));
    pattern.optimize();
    const QHash<QString, double> factors {
        {QStringLiteral("mm"), 1.0},   {QStringLiteral("cm"), 10.0},
        {QStringLiteral("m"), 1000.0}, {QStringLiteral("km"), 1e6},
        {QStringLiteral("in"), 25.4},  {QStringLiteral("ft"), 304.8},
        {QStringLiteral("yd"), 914.4}, {QStringLiteral("mi"), 1609344.0},
    };
    const QString text = QStringLiteral("12.5 mm");
    const auto read = [&] {
        const QRegularExpressionMatch match = pattern.match(text);
        const double number = match.captured(1).toDouble();
        return number * factors.value(match.captured(2), 1.0);
    };
    if (!nearlyEqual(read(), 12.5))
        return skip(state, QStringLiteral("the chain does not read 12.5 mm"));
    for (auto _ : state) {
        const double millimetres = read();
        benchmark::DoNotOptimize(millimetres);
    }
    state.SetItemsProcessed(state.iterations());
}

// The unit system of UDUNITS-2 with its own database, read once and kept until the process
// ends.
struct UnitSystem
{
    ut_system *system = nullptr;
    ut_unit *millimetre = nullptr;
};

const UnitSystem &unitSystem()
{
    static const UnitSystem units = [] {
        UnitSystem result;
        ut_set_error_message_handler(ut_ignore);
        result.system = ut_read_xml(nullptr);
        if (result.system)
            result.millimetre = ut_parse(result.system, "mm", UT_ASCII);
        return result;
    }();
    return units;
}

void udunitsParseAndConvert(benchmark::State &state)
{
    const UnitSystem &units = unitSystem();
    if (!units.millimetre)
        return skip(state, QStringLiteral("UDUNITS-2 cannot read its unit database"));
    const auto read = [&units] {
        ut_unit *const unit = ut_parse(units.system, "25.4 mm", UT_ASCII);
        cv_converter *const converter = unit ? ut_get_converter(unit, units.millimetre) : nullptr;
        const double millimetres = converter ? cv_convert_double(converter, 1.0) : std::nan("");
        cv_free(converter);
        ut_free(unit);
        return millimetres;
    };
    if (!nearlyEqual(read(), 25.4))
        return skip(state, QStringLiteral("UDUNITS-2 does not read 25.4 mm"));
    for (auto _ : state) {
        const double millimetres = read();
        benchmark::DoNotOptimize(millimetres);
    }
    state.SetItemsProcessed(state.iterations());
}

void localeToString(benchmark::State &state)
{
    const QLocale locale(QStringLiteral("en_US"));
    double number = 12.5;
    if (locale.toString(number, 'g', 6) != QStringLiteral("12.5"))
        return skip(state, QStringLiteral("QLocale does not write 12.5"));
    for (auto _ : state) {
        benchmark::DoNotOptimize(number);
        const QString text = locale.toString(number, 'g', 6);
        benchmark::DoNotOptimize(text);
    }
    state.SetItemsProcessed(state.iterations());
}

// The library: values

// A text as users type it, with the locale it is typed in and what it must read as.
struct QuantityInput
{
    const char *label; // in the benchmark's name
    const char *note; // after the operation in the table
    const char *locale;
    const char16_t *text;
    double setValueResult; // SetValue(text, Millimeter) on a length, in millimetres
    double fromStringResult; // FromString(text)
};

const QuantityInput quantityInputs[] = {
    {"12.5 mm", "", "en_US", u"12.5 mm", 12.5, 12.5},
    {"1in", "", "en_US", u"1in", 25.4, 25.4},
    {"3,5 cm in de_DE", " in de_DE", "de_DE", u"3,5 cm", 35.0, 35.0},
    {"garbage", ", garbage", "en_US", u"abc?!", 0.0, 0.0},
};

void valueSetValue(benchmark::State &state, const QuantityInput &input)
{
    const Bench::LocaleScope locale(input.locale);
    const QString text = QString::fromUtf16(input.text);
    ZARSysValue value(ZARSysValue::Length, 0.0);
    value.SetValue(text, ZARSysValue::Millimeter);
    if (!nearlyEqual(value.GetValue(), input.setValueResult))
        return skip(state, QStringLiteral("SetValue() reads %1").arg(value.GetValue()));
    for (auto _ : state) {
        value.SetValue(text, ZARSysValue::Millimeter);
        benchmark::DoNotOptimize(value);
    }
    state.SetItemsProcessed(state.iterations());
}

void valueFromString(benchmark::State &state, const QuantityInput &input)
{
    const Bench::LocaleScope locale(input.locale);
    const QString text = QString::fromUtf16(input.text);
    const ZARSysValue first = ZARSysValue::FromString(text);
    if (!nearlyEqual(first.GetValue(), input.fromStringResult))
        return skip(state, QStringLiteral("FromString() reads %1").arg(first.GetValue()));
    for (auto _ : state) {
        const ZARSysValue value = ZARSysValue::FromString(text);
        benchmark::DoNotOptimize(value);
    }
    state.SetItemsProcessed(state.iterations());
}

void valueToString(benchmark::State &state)
{
    ZARSysValue value(ZARSysValue::Length, 12.5);
    if (value.ToString() != QStringLiteral("12.5mm"))
        return skip(state, QStringLiteral("ToString() writes ") + value.ToString());
    for (auto _ : state) {
        benchmark::DoNotOptimize(value);
        const QString text = value.ToString();
        benchmark::DoNotOptimize(text);
    }
    state.SetItemsProcessed(state.iterations());
}

// The library: typed values through QVariant, and the direct calls

using Length = ZARSysDefinedValue<ZARSysValue::Length>;

void variantToString(benchmark::State &state)
{
    const QVariant variant = QVariant::fromValue(Length(12.5));
    if (variant.toString() != QStringLiteral("12.5mm"))
        return skip(state, QStringLiteral("the variant converts to ") + variant.toString());
    for (auto _ : state) {
        const QString text = variant.toString();
        benchmark::DoNotOptimize(text);
    }
    state.SetItemsProcessed(state.iterations());
}

void directToString(benchmark::State &state)
{
    Length value(12.5);
    for (auto _ : state) {
        benchmark::DoNotOptimize(value);
        const QString text = value.ToString();
        benchmark::DoNotOptimize(text);
    }
    state.SetItemsProcessed(state.iterations());
}

void variantToDouble(benchmark::State &state)
{
    const QVariant variant = QVariant::fromValue(Length(12.5));
    if (variant.toDouble() != 12.5)
        return skip(state, QStringLiteral("the variant converts to %1").arg(variant.toDouble()));
    for (auto _ : state) {
        const double number = variant.toDouble();
        benchmark::DoNotOptimize(number);
    }
    state.SetItemsProcessed(state.iterations());
}

void plainVariantToDouble(benchmark::State &state)
{
    const QVariant variant(12.5);
    for (auto _ : state) {
        const double number = variant.toDouble();
        benchmark::DoNotOptimize(number);
    }
    state.SetItemsProcessed(state.iterations());
}

void directGetValue(benchmark::State &state)
{
    Length value(12.5);
    for (auto _ : state) {
        benchmark::DoNotOptimize(value); // read the value anew each time
        const double number = value.GetValue();
        benchmark::DoNotOptimize(number);
    }
    state.SetItemsProcessed(state.iterations());
}

// The library: ratios

struct RatioInput
{
    const char *label; // in the benchmark's name
    const char *note; // after the operation in the table
    const char *locale;
    const char16_t *text;
    double fraction; // FromString(text), with per cent the current decoration
};

const RatioInput ratioInputs[] = {
    {"50%", "", "en_US", u"50%", 0.5},
    {"12.5", ", per cent current", "en_US", u"12.5", 0.125},
    {"3,5 per mille in de_DE", " in de_DE", "de_DE", u"3,5\u2030", 0.0035},
    {"garbage", ", garbage", "en_US", u"abc?!", 0.0},
};

void ratioFromString(benchmark::State &state, const RatioInput &input)
{
    const Bench::LocaleScope locale(input.locale);
    const QString text = QString::fromUtf16(input.text);
    const ZARSysRatio first = ZARSysRatio::FromString(text);
    if (!nearlyEqual(first.GetValue(), input.fraction))
        return skip(state, QStringLiteral("FromString() reads %1").arg(first.GetValue()));
    for (auto _ : state) {
        const ZARSysRatio ratio = ZARSysRatio::FromString(text);
        benchmark::DoNotOptimize(ratio);
    }
    state.SetItemsProcessed(state.iterations());
}

void ratioToString(benchmark::State &state)
{
    ZARSysRatio ratio(0.125);
    if (ratio.ToString() != QStringLiteral("12.5%"))
        return skip(state, QStringLiteral("ToString() writes ") + ratio.ToString());
    for (auto _ : state) {
        benchmark::DoNotOptimize(ratio);
        const QString text = ratio.ToString();
        benchmark::DoNotOptimize(text);
    }
    state.SetItemsProcessed(state.iterations());
}

const char *const regexChainName = "Reference.RegexChain/12.5 mm";
const char *const regexChainText = "regex + toDouble + QHash + multiply, \"12.5 mm\"";
const char *const udunitsName = "Reference.UDUNITS2/25.4 mm";
const char *const udunitsText = "UDUNITS-2 parse + convert, \"25.4 mm\"";
const char *const localeName = "Reference.QLocale::toString/12.5";
const char *const localeText = "QLocale::toString(12.5, 'g', 6)";

std::string utf8(const char16_t *text)
{
    return QString::fromUtf16(text).toStdString();
}

// The two rows of a reader: against the chain and against UDUNITS-2.
void addReaderRows(const std::string &operation, const std::string &benchmark)
{
    Bench::addRow({operation, benchmark, regexChainText, regexChainName, Bench::Goal::Faster, 1.0,
                   "≥ 1.0x (aim 3x)"});
    Bench::addRow(
        {operation, benchmark, udunitsText, udunitsName, Bench::Goal::Faster, 3.0, "≥ 3x"});
}

} // namespace

void Bench::registerQuantityBenchmarks()
{
    add(regexChainName, regularExpressionChain);
    add(udunitsName, udunitsParseAndConvert);
    add(localeName, localeToString);

    for (const QuantityInput &input : quantityInputs) {
        const std::string name = std::string("Value::SetValue/") + input.label;
        add(name, [&input](benchmark::State &state) { valueSetValue(state, input); });
        addReaderRows("ZARSysValue::SetValue(\"" + utf8(input.text) + "\", mm)" + input.note, name);
    }
    for (const QuantityInput &input : quantityInputs) {
        const std::string name = std::string("Value::FromString/") + input.label;
        add(name, [&input](benchmark::State &state) { valueFromString(state, input); });
        addReaderRows("ZARSysValue::FromString(\"" + utf8(input.text) + "\")" + input.note, name);
    }
    add("Value::ToString/12.5 mm", valueToString);
    addRow({"ZARSysValue::ToString() of 12.5 mm", "Value::ToString/12.5 mm", localeText, localeName,
            Goal::Faster, 0.8, "≥ 0.8x"});

    add("DefinedValue/QVariant::toString", variantToString);
    add("Reference.DefinedValue/ToString", directToString);
    addRow({"QVariant(ZARSysDefinedValue<Length>).toString()", "DefinedValue/QVariant::toString",
            "ToString() called directly", "Reference.DefinedValue/ToString", Goal::Faster, 0.6,
            "≥ 0.6x"});
    add("DefinedValue/QVariant::toDouble", variantToDouble);
    add("Reference.DefinedValue/GetValue", directGetValue);
    addRow({"QVariant(ZARSysDefinedValue<Length>).toDouble()", "DefinedValue/QVariant::toDouble",
            "GetValue() called directly", "Reference.DefinedValue/GetValue", Goal::Faster, 0.6,
            "≥ 0.6x"});
    add("Reference.QVariant(double)::toDouble", plainVariantToDouble);
    addRow({"QVariant(ZARSysDefinedValue<Length>).toDouble()", "DefinedValue/QVariant::toDouble",
            "QVariant(double).toDouble()", "Reference.QVariant(double)::toDouble",
            Goal::Information, 0.0, "(for comparison)"});

    for (const RatioInput &input : ratioInputs) {
        const std::string name = std::string("Ratio::FromString/") + input.label;
        add(name, [&input](benchmark::State &state) { ratioFromString(state, input); });
        addReaderRows("ZARSysRatio::FromString(\"" + utf8(input.text) + "\")" + input.note, name);
    }
    add("Ratio::ToString/12.5%", ratioToString);
    addRow({"ZARSysRatio::ToString() of 0.125", "Ratio::ToString/12.5%", localeText, localeName,
            Goal::Faster, 0.8, "≥ 0.8x"});
}
