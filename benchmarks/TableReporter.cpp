#include "TableReporter.h"

#include "BenchCommon.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>
#include <QSysInfo>
#include <QtGlobal>

#include <cmath>
#include <cstdio>
#include <iostream>
#include <utility>

namespace {

std::vector<Bench::Row> &rowList()
{
    static std::vector<Bench::Row> list;
    return list;
}

std::string printed(const char *format, double value)
{
    char text[64];
    std::snprintf(text, sizeof text, format, value);
    return text;
}

std::string formatRate(double rate, bool bytes)
{
    if (bytes)
        return printed(rate >= 100 * 1048576.0 ? "%.0f MiB/s" : "%.1f MiB/s", rate / 1048576.0);
    if (rate >= 1e6)
        return printed("%.2f M/s", rate / 1e6);
    if (rate >= 1e3)
        return printed("%.1f k/s", rate / 1e3);
    return printed("%.2f /s", rate);
}

// The time one operation takes at rate.
std::string formatCost(double rate)
{
    const double seconds = 1.0 / rate;
    if (seconds < 1e-6)
        return printed("%.1f ns", seconds * 1e9);
    if (seconds < 1e-3)
        return printed("%.2f µs", seconds * 1e6);
    if (seconds < 1.0)
        return printed("%.2f ms", seconds * 1e3);
    return printed("%.2f s", seconds);
}

// The first line of /proc/cpuinfo that names the processor, and the system's name.
std::string machineDescription(int cores)
{
    std::string cpu = "unknown processor";
    QFile cpuinfo(QStringLiteral("/proc/cpuinfo"));
    if (cpuinfo.open(QIODevice::ReadOnly)) {
        const QList<QByteArray> lines = cpuinfo.readAll().split('\n');
        for (const QByteArray &line : lines) {
            if (line.startsWith("model name")) {
                cpu = line.mid(line.indexOf(':') + 1).trimmed().toStdString();
                break;
            }
        }
    }
#if defined(__clang__)
    const std::string compiler = "Clang " __clang_version__;
#elif defined(__GNUC__)
    const std::string compiler = "GCC " __VERSION__;
#else
    const std::string compiler = "unknown compiler";
#endif
    return cpu + ", " + std::to_string(cores) + " cores, "
        + QSysInfo::prettyProductName().toStdString() + ", Qt " + qVersion() + ", " + compiler;
}

} // namespace

void Bench::addRow(Row row)
{
    rowList().push_back(std::move(row));
}

const std::vector<Bench::Row> &Bench::rows()
{
    return rowList();
}

benchmark::internal::Benchmark *Bench::add(const std::string &name,
                                           std::function<void(benchmark::State &)> body)
{
    benchmark::internal::Benchmark *benchmark = benchmark::RegisterBenchmark(
        name.c_str(), [body = std::move(body)](benchmark::State &state) { body(state); });
    // A fixed number of iterations makes the instructions of two runs comparable under a
    // profiler (scripts/bench-instructions).
    if (const int iterations = qEnvironmentVariableIntValue("ZARSYS_BENCH_ITERATIONS"))
        benchmark->Iterations(iterations);
    return benchmark;
}

Bench::TableReporter::TableReporter(Format format)
    : m_format(format)
{ }

bool Bench::TableReporter::ReportContext(const Context &context)
{
    m_machine = machineDescription(context.cpu_info.num_cpus);
    std::fprintf(stderr, "zarsys-benchmarks on %s\n", m_machine.c_str());
    return true;
}

void Bench::TableReporter::ReportRuns(const std::vector<Run> &runs)
{
    for (const Run &run : runs) {
        // With repetitions, the median stands for the benchmark; other aggregates are left out.
        const bool median = run.run_type == Run::RT_Aggregate && run.aggregate_name == "median";
        if (run.run_type == Run::RT_Aggregate && !median)
            continue;
        const std::string name = run.run_name.function_name;
        Result &result = m_results[name];
        if (result.fromMedian && !median)
            continue;
        result = Result();
        result.fromMedian = median;
        if (run.error_occurred) {
            result.error = run.error_message;
            std::fprintf(stderr, "  %-58s error: %s\n", name.c_str(), result.error.c_str());
            continue;
        }
        for (const auto &[counter, value] : run.counters)
            result.counters[counter] = value.value;
        if (const auto bytes = result.counters.find("bytes_per_second");
            bytes != result.counters.end()) {
            result.rate = bytes->second;
            result.bytes = true;
        } else if (const auto items = result.counters.find("items_per_second");
                   items != result.counters.end()) {
            result.rate = items->second;
        } else {
            result.error = "no rate reported";
        }
        // Items (or bytes) per iteration. Rates are counted in processor time, unless the
        // benchmark measures wall-clock time itself ("manual_time", "real_time").
        const double seconds =
            run.run_name.time_type.empty() ? run.cpu_accumulated_time : run.real_accumulated_time;
        const double perIteration =
            run.iterations > 0 ? result.rate * seconds / double(run.iterations) : 0.0;
        std::fprintf(stderr, "  %-58s %s%s, %.0f per iteration\n", name.c_str(),
                     result.error.empty() ? formatRate(result.rate, result.bytes).c_str()
                                          : result.error.c_str(),
                     median ? " (median)" : "", perIteration);
    }
}

int Bench::TableReporter::erroneousRuns() const
{
    int count = 0;
    for (const auto &entry : m_results) {
        if (!entry.second.error.empty())
            ++count;
    }
    return count;
}

void Bench::TableReporter::Finalize()
{
    struct Line
    {
        const Row *row;
        std::string library, reference, ratio, result;
        double ratioValue = std::nan("");
        bool met = false;
    };
    std::vector<Line> lines;
    for (const Row &row : rows()) {
        const auto library = m_results.find(row.library);
        const auto reference = m_results.find(row.reference);
        const bool haveLibrary = library != m_results.end();
        const bool haveReference = reference != m_results.end();
        if (!haveLibrary && !haveReference)
            continue; // filtered out
        Line line {&row, "not run", "not run", "", "", std::nan(""), false};
        const auto show = [&row](const Result &result) {
            if (!result.error.empty())
                return std::string("error");
            return row.goal == Goal::Cost ? formatCost(result.rate)
                                          : formatRate(result.rate, result.bytes);
        };
        if (haveLibrary)
            line.library = show(library->second);
        if (haveReference)
            line.reference = show(reference->second);
        if (haveLibrary && !row.limitedCounter.empty()) {
            const auto counter = library->second.counters.find(row.limitedCounter);
            line.library += counter == library->second.counters.end()
                ? ", growth not measured"
                : printed(", growth %.1f ", counter->second) + row.limitUnit;
        }

        if (!haveLibrary || !haveReference) {
            line.result = "incomplete";
        } else if (!library->second.error.empty() || !reference->second.error.empty()) {
            line.result = "error: "
                + (library->second.error.empty() ? reference->second.error : library->second.error);
        } else {
            const double libraryRate = library->second.rate;
            const double referenceRate = reference->second.rate;
            if (row.goal == Goal::Cost) {
                line.ratioValue = referenceRate / libraryRate;
                line.ratio = printed("%.2fx cost", line.ratioValue);
                line.met = line.ratioValue <= row.target;
            } else {
                line.ratioValue = libraryRate / referenceRate;
                line.ratio = printed("%.2fx", line.ratioValue);
                line.met = line.ratioValue >= row.target;
            }
            if (!row.limitedCounter.empty()) {
                const auto counter = library->second.counters.find(row.limitedCounter);
                line.met = line.met && counter != library->second.counters.end()
                    && counter->second < row.limit;
            }
            line.result = row.goal == Goal::Information ? "" : line.met ? "met" : "MISSED";
        }
        lines.push_back(line);
    }

    std::ostream &out = GetOutputStream();
    if (m_format == Json) {
        QJsonArray array;
        for (const Line &line : lines) {
            const Row &row = *line.row;
            const auto rate = [this](const std::string &name) -> QJsonValue {
                const auto result = m_results.find(name);
                if (result == m_results.end() || !result->second.error.empty())
                    return QJsonValue::Null;
                return result->second.rate;
            };
            QJsonObject object {
                {QStringLiteral("operation"), QString::fromStdString(row.operation)},
                {QStringLiteral("library_benchmark"), QString::fromStdString(row.library)},
                {QStringLiteral("reference"), QString::fromStdString(row.referenceText)},
                {QStringLiteral("reference_benchmark"), QString::fromStdString(row.reference)},
                {QStringLiteral("library_rate"), rate(row.library)},
                {QStringLiteral("reference_rate"), rate(row.reference)},
                {QStringLiteral("ratio"),
                 std::isnan(line.ratioValue) ? QJsonValue(QJsonValue::Null)
                                             : QJsonValue(line.ratioValue)},
                {QStringLiteral("goal"),
                 QString::fromLatin1(row.goal == Goal::Faster     ? "rate at least"
                                         : row.goal == Goal::Cost ? "cost at most"
                                                                  : "none")},
                {QStringLiteral("target"), row.target},
                {QStringLiteral("target_text"), QString::fromStdString(row.targetText)},
                {QStringLiteral("result"), QString::fromStdString(line.result)},
            };
            if (!row.limitedCounter.empty()) {
                const auto result = m_results.find(row.library);
                if (result != m_results.end()) {
                    const auto counter = result->second.counters.find(row.limitedCounter);
                    if (counter != result->second.counters.end())
                        object.insert(QString::fromStdString(row.limitedCounter), counter->second);
                }
            }
            array.append(object);
        }
        const QJsonObject document {{QStringLiteral("machine"), QString::fromStdString(m_machine)},
                                    {QStringLiteral("rows"), array}};
        out << QJsonDocument(document).toJson().toStdString();
        out.flush();
        return;
    }

    out << "Measured on " << m_machine << ". Rates are operations (or bytes) per second of "
        << "processor time, or of wall-clock time where whole runs are timed (hashing the file, "
        << "start-up); the ratio is the library's rate over the reference's, or, where the "
        << "target is a cost, the library's time over the reference's.\n\n";
    out << "| operation | against | library | reference | ratio | target | result |\n";
    out << "|---|---|---|---|---|---|---|\n";
    for (const Line &line : lines) {
        const Row &row = *line.row;
        out << "| " << row.operation << " | " << row.referenceText << " | " << line.library << " | "
            << line.reference << " | " << line.ratio << " | " << row.targetText << " | "
            << line.result << " |\n";
    }
    out.flush();
}
