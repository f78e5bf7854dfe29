// The reporter that turns the runs of the benchmarks into the one table of the rows (see
// Bench::Row): collects the rate of every benchmark, shows progress on the standard error,
// and at the end prints each row with both rates, their ratio, the target and whether it was
// met.

#ifndef ZARSYS_TABLEREPORTER_H
#define ZARSYS_TABLEREPORTER_H

#include <benchmark/benchmark.h>

#include <map>
#include <string>

namespace Bench {

class TableReporter : public benchmark::BenchmarkReporter
{
public:
    enum Format { Markdown, Json };

    explicit TableReporter(Format format);

    bool ReportContext(const Context &context) override;
    void ReportRuns(const std::vector<Run> &runs) override;
    void Finalize() override;

    // The number of benchmarks that reported an error instead of a measurement.
    int erroneousRuns() const;

    // What one benchmark measured.
    struct Result
    {
        double rate = 0.0; // items or bytes per second
        bool bytes = false; // whether the rate counts bytes
        std::map<std::string, double> counters; // the benchmark's own counters
        std::string error; // non-empty when the benchmark failed
        bool fromMedian = false; // whether the rate is the median of repetitions
    };

private:
    Format m_format;
    std::string m_machine;
    std::map<std::string, Result> m_results;
};

} // namespace Bench

#endif // ZARSYS_TABLEREPORTER_H
