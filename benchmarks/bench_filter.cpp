// Filters: ZARSysVariantFilter::TestValue() over a million values, numeric, typed and by
// regular expression, beside the loops a caller would write without the filter: QVariant::
// toDouble() and a comparison, and QRegularExpression::match() over the texts. Both sides of a
// pair count the values that pass, and the counts must agree.

#include "BenchCommon.h"

#include <ZARSysVariantFilter.h>

#include <QList>
#include <QRegularExpression>
#include <QStringList>
#include <QVariant>

namespace {

constexpr qsizetype valueCount = 1000000;
constexpr double base = 500.0;
constexpr double tolerance = 0.001;

// Numbers from 0 to 1000 in a scattered order, as doubles in variants.
const QList<QVariant> &numbers()
{
    static const QList<QVariant> list = [] {
        QList<QVariant> result;
        result.reserve(valueCount);
        for (qsizetype i = 0; i < valueCount; ++i)
            result.append(double((i * 7919) % 100000) / 100.0);
        return result;
    }();
    return list;
}

// Short texts such as part names, and the same texts in variants.
const QStringList &texts()
{
    static const QStringList list = [] {
        QStringList result;
        result.reserve(valueCount);
        for (qsizetype i = 0; i < valueCount; ++i)
            result.append(QStringLiteral("sheet %1 steel").arg((i * 7919) % 1000003));
        return result;
    }();
    return list;
}

const QList<QVariant> &textVariants()
{
    static const QList<QVariant> list = [] {
        QList<QVariant> result;
        result.reserve(valueCount);
        for (const QString &text : texts())
            result.append(text);
        return result;
    }();
    return list;
}

// What the comparison loop counts; the filters must count the same.
qsizetype passingNumbers()
{
    qsizetype count = 0;
    for (const QVariant &value : numbers())
        count += value.toDouble() - base > tolerance;
    return count;
}

void filterOverNumbers(benchmark::State &state, ZARSysVariantFilter::FilterType type)
{
    const ZARSysVariantFilter filter(base, ZARSysVariantFilter::GreaterThan, tolerance, type);
    const QList<QVariant> &values = numbers();
    const auto run = [&] {
        qsizetype count = 0;
        for (const QVariant &value : values)
            count += filter.TestValue(value);
        return count;
    };
    if (run() != passingNumbers()) {
        state.SkipWithError("the filter passes other values than the comparison loop");
        return;
    }
    for (auto _ : state) {
        const qsizetype count = run();
        benchmark::DoNotOptimize(count);
    }
    state.SetItemsProcessed(state.iterations() * values.size());
}

void comparisonLoop(benchmark::State &state)
{
    const QList<QVariant> &values = numbers();
    for (auto _ : state) {
        qsizetype count = 0;
        for (const QVariant &value : values)
            count += value.toDouble() - base > tolerance;
        benchmark::DoNotOptimize(count);
    }
    state.SetItemsProcessed(state.iterations() * values.size());
}

// A filter for texts that contain "12", as a filter editor makes it.
const QString searched = QStringLiteral("12");

qsizetype matchingTexts()
{
    const QRegularExpression expression(searched);
    qsizetype count = 0;
    for (const QString &text : texts())
        count += expression.match(text).hasMatch();
    return count;
}

void filterOverTexts(benchmark::State &state)
{
    const ZARSysVariantFilter filter = ZARSysVariantFilter::CreateFilter(
        searched, ZARSysVariantFilter::RegularExpressionFilter, ZARSysVariantFilter::Contains, 0.0);
    const QList<QVariant> &values = textVariants();
    const auto run = [&] {
        qsizetype count = 0;
        for (const QVariant &value : values)
            count += filter.TestValue(value);
        return count;
    };
    if (run() != matchingTexts()) {
        state.SkipWithError("the filter passes other texts than the match loop");
        return;
    }
    for (auto _ : state) {
        const qsizetype count = run();
        benchmark::DoNotOptimize(count);
    }
    state.SetItemsProcessed(state.iterations() * values.size());
}

void matchLoop(benchmark::State &state)
{
    const QRegularExpression expression(searched);
    const QStringList &values = texts();
    for (auto _ : state) {
        qsizetype count = 0;
        for (const QString &text : values)
            count += expression.match(text).hasMatch();
        benchmark::DoNotOptimize(count);
    }
    state.SetItemsProcessed(state.iterations() * values.size());
}

} // namespace

void Bench::registerFilterBenchmarks()
{
    const char *const comparisonName = "Reference.toDouble compare loop/1M";
    const char *const comparisonText = "QVariant::toDouble() and compare, loop";
    add(comparisonName, comparisonLoop);
    add("VariantFilter::TestValue/numeric/1M", [](benchmark::State &state) {
        filterOverNumbers(state, ZARSysVariantFilter::NumericFilter);
    });
    addRow({"ZARSysVariantFilter::TestValue, numeric, 1M doubles",
            "VariantFilter::TestValue/numeric/1M", comparisonText, comparisonName, Goal::Faster,
            0.5, "≥ 0.5x"});
    add("VariantFilter::TestValue/typed/1M", [](benchmark::State &state) {
        filterOverNumbers(state, ZARSysVariantFilter::TypedValueFilter);
    });
    addRow({"ZARSysVariantFilter::TestValue, typed, 1M doubles",
            "VariantFilter::TestValue/typed/1M", comparisonText, comparisonName, Goal::Faster, 0.5,
            "≥ 0.5x"});

    const char *const matchName = "Reference.QRegularExpression::match loop/1M";
    add(matchName, matchLoop);
    add("VariantFilter::TestValue/regular expression/1M", filterOverTexts);
    addRow({"ZARSysVariantFilter::TestValue, regular expression, 1M texts",
            "VariantFilter::TestValue/regular expression/1M", "QRegularExpression::match() loop",
            matchName, Goal::Faster, 0.9, "≥ 0.9x"});
}
