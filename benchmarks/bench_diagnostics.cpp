// Diagnostics: capturing a stack trace of 62 frames with ZARSysStackWalker beside glibc's
// backtrace() and libunwind's unw_backtrace() of 32 frames, all at a call depth of more than
// 62 frames; and the text of a trace whose entries were resolved before (the resolution is
// kept with the entries and their copies) beside that of a freshly captured trace of the same
// stack, whose new entries are resolved for the first time.

#include "BenchCommon.h"

#include <ZARSysStackTrace.h>
#include <ZARSysStackWalker.h>

#include <dlfcn.h>
#define UNW_LOCAL_ONLY
#include <libunwind.h>

#include <functional>

namespace {

using BacktraceFunction = int (*)(void **, int);

// glibc's backtrace(), looked up in the C library itself: libunwind, which the library links,
// defines a backtrace() of its own (a weak alias of unw_backtrace()) that the dynamic linker
// finds first, so a plain call would measure libunwind twice.
BacktraceFunction glibcBacktrace()
{
    static const BacktraceFunction function = []() -> BacktraceFunction {
        void *const libc = dlopen("libc.so.6", RTLD_LAZY | RTLD_NOLOAD);
        return libc ? reinterpret_cast<BacktraceFunction>(dlsym(libc, "backtrace")) : nullptr;
    }();
    return function;
}

constexpr int callDepth = 80;
constexpr int walkerFrames = 62;
constexpr int referenceFrames = 32;

// Calls body levels frames further down the stack. The use of levels after the call keeps
// the call from becoming a jump, so that every level keeps its frame.
Q_NEVER_INLINE void atDepth(int levels, const std::function<void()> &body)
{
    if (levels > 0)
        atDepth(levels - 1, body);
    else
        body();
    benchmark::DoNotOptimize(levels);
}

void captureWithWalker(benchmark::State &state)
{
    atDepth(callDepth, [&state] {
        ZARSysStackWalker *const walker = ZARSysStackWalker::GetStackWalker();
        if (walker->GetStackTrace(walkerFrames, QString()).GetNumEntries() != walkerFrames) {
            state.SkipWithError("the walker captures fewer than 62 frames");
            return;
        }
        for (auto _ : state) {
            const ZARSysStackTrace trace = walker->GetStackTrace(walkerFrames, QString());
            benchmark::DoNotOptimize(trace);
        }
        state.SetItemsProcessed(state.iterations());
    });
}

void captureWithGlibc(benchmark::State &state)
{
    const BacktraceFunction backtrace = glibcBacktrace();
    if (!backtrace
        || reinterpret_cast<void *>(backtrace) == reinterpret_cast<void *>(&unw_backtrace)) {
        state.SkipWithError("glibc's backtrace() not found");
        return;
    }
    atDepth(callDepth, [&state, backtrace] {
        void *frames[referenceFrames];
        // The first call loads the unwinder; it is not measured.
        if (backtrace(frames, referenceFrames) != referenceFrames) {
            state.SkipWithError("backtrace() captures fewer than 32 frames");
            return;
        }
        for (auto _ : state) {
            const int captured = backtrace(frames, referenceFrames);
            benchmark::DoNotOptimize(captured);
            benchmark::DoNotOptimize(frames);
        }
        state.SetItemsProcessed(state.iterations());
    });
}

void captureWithLibunwind(benchmark::State &state)
{
    atDepth(callDepth, [&state] {
        void *frames[referenceFrames];
        if (unw_backtrace(frames, referenceFrames) != referenceFrames) {
            state.SkipWithError("unw_backtrace() captures fewer than 32 frames");
            return;
        }
        for (auto _ : state) {
            const int captured = unw_backtrace(frames, referenceFrames);
            benchmark::DoNotOptimize(captured);
            benchmark::DoNotOptimize(frames);
        }
        state.SetItemsProcessed(state.iterations());
    });
}

// Every field that the resolution fills.
const QString traceFormat = QStringLiteral("%N %f:%l+%c %m %i");

bool anyNamed(const ZARSysStackTrace &trace)
{
    for (const ZARSysStackTraceEntry &entry : trace.GetEntries()) {
        if (!entry.GetName().isEmpty())
            return true;
    }
    return false;
}

void firstResolution(benchmark::State &state)
{
    atDepth(callDepth, [&state] {
        ZARSysStackWalker *const walker = ZARSysStackWalker::GetStackWalker();
        // The debug information is read at the first resolution in the process; that is not
        // what is measured here.
        if (!anyNamed(walker->GetStackTrace(walkerFrames, QString()))) {
            state.SkipWithError("no frame gets a name");
            return;
        }
        for (auto _ : state) {
            state.PauseTiming();
            const ZARSysStackTrace trace = walker->GetStackTrace(walkerFrames, QString());
            state.ResumeTiming();
            const QString text = trace.ToSTring(traceFormat, 0);
            benchmark::DoNotOptimize(text);
        }
        state.SetItemsProcessed(state.iterations());
    });
}

void repeatedResolution(benchmark::State &state)
{
    atDepth(callDepth, [&state] {
        const ZARSysStackTrace trace =
            ZARSysStackWalker::GetStackWalker()->GetStackTrace(walkerFrames, QString());
        const QString first = trace.ToSTring(traceFormat, 0);
        for (auto _ : state) {
            const QString text = trace.ToSTring(traceFormat, 0);
            benchmark::DoNotOptimize(text);
        }
        if (trace.ToSTring(traceFormat, 0) != first)
            state.SkipWithError("a trace reads differently the second time");
        state.SetItemsProcessed(state.iterations());
    });
}

} // namespace

void Bench::registerDiagnosticsBenchmarks()
{
    add("StackWalker::GetStackTrace/62 frames", captureWithWalker);
    add("Reference.glibc backtrace/32 frames", captureWithGlibc);
    add("Reference.unw_backtrace/32 frames", captureWithLibunwind);
    addRow({"ZARSysStackWalker::GetStackTrace(62)", "StackWalker::GetStackTrace/62 frames",
            "glibc backtrace(), 32 frames", "Reference.glibc backtrace/32 frames", Goal::Faster,
            5.0, "≥ 5x"});
    addRow({"ZARSysStackWalker::GetStackTrace(62)", "StackWalker::GetStackTrace/62 frames",
            "libunwind unw_backtrace(), 32 frames", "Reference.unw_backtrace/32 frames",
            Goal::Information, 0.0, "(for comparison)"});

    add("StackTrace::ToSTring/62 frames, resolved before", repeatedResolution);
    add("StackTrace::ToSTring/62 frames, first resolution", firstResolution);
    addRow({"ZARSysStackTrace::ToSTring, 62 frames resolved before",
            "StackTrace::ToSTring/62 frames, resolved before",
            "a new trace of the same stack, its entries resolved",
            "StackTrace::ToSTring/62 frames, first resolution", Goal::Faster, 10.0,
            "≥ 10x (cached)"});
}
