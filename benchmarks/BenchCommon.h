// What the benchmarks share: the rows of the one table they print (each library operation
// beside its reference), the folders and environment of the run, and a few helpers.
//
// Every benchmark reports a rate through Google Benchmark's items or bytes counters, so that a
// row can set two benchmarks of the same run side by side. Data sets and checks are prepared
// before a benchmark's timed loop, on first use, so that a single pair can be re-run with
// --benchmark_filter without building the others' data.

#ifndef ZARSYS_BENCHCOMMON_H
#define ZARSYS_BENCHCOMMON_H

#include <QLocale>
#include <QProcessEnvironment>
#include <QString>

#include <benchmark/benchmark.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace Bench {

// How a row compares its two benchmarks.
enum class Goal {
    Faster, // the library's rate divided by the reference's is at least the target
    Cost, // the library's cost (time per operation) divided by the reference's is at most it
    Information, // shown without a target
};

// One line of the table.
struct Row
{
    Row(std::string operation, std::string library, std::string referenceText,
        std::string reference, Goal goal, double target, std::string targetText)
        : operation(std::move(operation))
        , library(std::move(library))
        , referenceText(std::move(referenceText))
        , reference(std::move(reference))
        , goal(goal)
        , target(target)
        , targetText(std::move(targetText))
    { }

    // Requires as well that the library's benchmark keeps its counter below limit.
    Row &limitedBy(std::string counter, double counterLimit, std::string unit)
    {
        limitedCounter = std::move(counter);
        limit = counterLimit;
        limitUnit = std::move(unit);
        return *this;
    }

    std::string operation; // what the library does, as the table shows it
    std::string library; // name of the library's benchmark
    std::string referenceText; // what the reference does, as the table shows it
    std::string reference; // name of the reference's benchmark
    Goal goal;
    double target; // the ratio to reach
    std::string targetText; // the target as the table shows it
    // A counter of the library's benchmark that must stay below a limit as well (the memory
    // growth of hashing a file), with its unit; empty when there is none.
    std::string limitedCounter;
    double limit = 0.0;
    std::string limitUnit;
};

// Adds a row to the table; rows are printed in the order they were added.
void addRow(Row row);
const std::vector<Row> &rows();

// Registers a benchmark under name. The body sets items or bytes processed.
benchmark::internal::Benchmark *add(const std::string &name,
                                    std::function<void(benchmark::State &)> body);

// The benchmarks of each area, registered by main() in the order the table lists them.
void registerQuantityBenchmarks();
void registerFilterBenchmarks();
void registerTextBenchmarks();
void registerFileBenchmarks();
void registerDiagnosticsBenchmarks();
void registerEventLoopBenchmarks();
void registerStartupBenchmarks();

// The run's temporary folder (removed at exit), with HOME and the XDG folders inside it.
QString temporaryFolder();

// The environment as it was before the library was started in this process, for the child
// processes: the start-up changes variables such as PATH.
QProcessEnvironment childEnvironment();

// Child processes that measure one first-time cost each and print it in nanoseconds. main()
// runs them when the program is started with the argument childArgument(name).
std::string childArgument(const std::string &name);
int runChild(const std::string &name, int argc, char **argv);

// Switches the library's locale for the life of the object and restores the previous one.
// Switching loads catalogues, so it belongs outside the timed loop.
class LocaleScope
{
public:
    explicit LocaleScope(const char *name);
    ~LocaleScope();
    LocaleScope(const LocaleScope &) = delete;
    LocaleScope &operator=(const LocaleScope &) = delete;

private:
    QLocale m_previous;
};

} // namespace Bench

#endif // ZARSYS_BENCHCOMMON_H
