// Files: ZARSysFileUtilities::calculateFileHash() on a 256 MiB file beside the sha1sum program
// on the same file, with the growth of the process's peak memory while it hashes; and the text
// log (one line per message, the file opened and closed each time) beside the same work done
// with raw system calls.

#include "BenchCommon.h"

#include <ZARSysFileUtilities.h>
#include <ZARSysLogging.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QThread>

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <limits>

namespace {

constexpr qint64 mebibyte = 1024 * 1024;
constexpr qint64 hashedSize = 256 * mebibyte;
constexpr int bestOf = 3;

// The file to hash: pseudo-random bytes, written once per run into the run's temporary folder
// (removed with it), flushed to the disk and then read once, so that every measurement reads
// it from the page cache. Empty when it cannot be written.
QString hashedFile()
{
    static const QString path = []() -> QString {
        const QString name = QDir(Bench::temporaryFolder()).filePath(QStringLiteral("hashed.bin"));
        QFile file(name);
        if (!file.open(QIODevice::WriteOnly))
            return QString();
        QByteArray chunk(mebibyte, Qt::Uninitialized);
        quint64 state = 0x9E3779B97F4A7C15u;
        for (qint64 written = 0; written < hashedSize; written += chunk.size()) {
            for (qsizetype i = 0; i < chunk.size(); i += 8) {
                state ^= state << 13; // xorshift64
                state ^= state >> 7;
                state ^= state << 17;
                std::memcpy(chunk.data() + i, &state, 8);
            }
            if (file.write(chunk) != chunk.size())
                return QString();
        }
        if (!file.flush() || ::fsync(file.handle()) != 0)
            return QString();
        file.close();
        QFile reader(name);
        if (!reader.open(QIODevice::ReadOnly))
            return QString();
        while (!reader.read(mebibyte).isEmpty()) { }
        return name;
    }();
    return path;
}

// One run of sha1sum: its wall-clock time and the digest it printed.
struct Sha1sumRun
{
    double seconds = 0.0;
    QByteArray digest; // hexadecimal; empty if sha1sum failed
};

Sha1sumRun runSha1sum(const QString &path)
{
    QProcess process;
    process.setProcessEnvironment(Bench::childEnvironment());
    QElapsedTimer timer;
    timer.start();
    process.start(QStringLiteral("sha1sum"), {path});
    const bool finished = process.waitForFinished(-1);
    Sha1sumRun run;
    run.seconds = double(timer.nsecsElapsed()) / 1e9;
    if (finished && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        run.digest = process.readAllStandardOutput().left(40);
    return run;
}

// Kibibytes of a line of /proc/self/status such as "VmHWM:  1234 kB"; -1 if missing.
qint64 statusKibibytes(const char *field)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    const QByteArray prefix = QByteArray(field) + ':';
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith(prefix))
            return line.mid(prefix.size()).trimmed().split(' ').value(0).toLongLong();
    }
    return -1;
}

// Sets the peak resident size (VmHWM) back to the current one.
bool resetPeakMemory()
{
    QFile clearRefs(QStringLiteral("/proc/self/clear_refs"));
    return clearRefs.open(QIODevice::WriteOnly) && clearRefs.write("5") == 1;
}

void fileHash(benchmark::State &state)
{
    const QString path = hashedFile();
    if (path.isEmpty()) {
        state.SkipWithError("cannot write the file to hash");
        return;
    }
    static const QByteArray expected = runSha1sum(path).digest;
    if (expected.isEmpty() || ZARSysFileUtilities::calculateFileHash(path).toHex() != expected) {
        state.SkipWithError("the digest differs from sha1sum's");
        return;
    }
    double growth = -1.0;
    for (auto _ : state) {
        double best = std::numeric_limits<double>::infinity();
        for (int run = 0; run < bestOf; ++run) {
            const bool peakReset = resetPeakMemory();
            const qint64 before = statusKibibytes("VmRSS");
            QElapsedTimer timer;
            timer.start();
            const QByteArray digest = ZARSysFileUtilities::calculateFileHash(path);
            best = std::min(best, double(timer.nsecsElapsed()) / 1e9);
            benchmark::DoNotOptimize(digest);
            const qint64 peak = statusKibibytes("VmHWM");
            if (peakReset && before >= 0 && peak >= 0)
                growth = std::max(growth, double(peak - before) / 1024.0);
        }
        state.SetIterationTime(best);
    }
    state.SetBytesProcessed(state.iterations() * hashedSize);
    if (growth >= 0.0)
        state.counters["peak growth MiB"] = growth;
}

void sha1sumProgram(benchmark::State &state)
{
    const QString path = hashedFile();
    if (path.isEmpty()) {
        state.SkipWithError("cannot write the file to hash");
        return;
    }
    for (auto _ : state) {
        double best = std::numeric_limits<double>::infinity();
        for (int run = 0; run < bestOf; ++run) {
            const Sha1sumRun result = runSha1sum(path);
            if (result.digest.isEmpty()) {
                state.SkipWithError("sha1sum failed");
                return;
            }
            best = std::min(best, result.seconds);
        }
        state.SetIterationTime(best);
    }
    state.SetBytesProcessed(state.iterations() * hashedSize);
}

// The text log

const QString logMessage = QStringLiteral("nesting: sheet 7 of 12 placed, 84.2% of its area used");

void textLog(benchmark::State &state)
{
    const QString path = QDir::current().absoluteFilePath(ZARSysLogging::getTextLogFilePath());
    if (ZARSysLogging::getTextLogFilePath().isEmpty()) {
        state.SkipWithError("the text log is off");
        return;
    }
    const qint64 before = QFileInfo(path).size();
    qCInfo(LOG_CAT_ZAR_DEFAULT).noquote() << logMessage;
    if (QFileInfo(path).size() <= before) {
        state.SkipWithError("the message did not reach the text log");
        return;
    }
    for (auto _ : state)
        qCInfo(LOG_CAT_ZAR_DEFAULT).noquote() << logMessage;
    state.SetItemsProcessed(state.iterations());
}

// A line as the text log writes it: process, thread, time, category, message.
QByteArray logLine()
{
    return QStringLiteral("%1 %2 [%3][ZAR.Default] %4\n")
        .arg(QCoreApplication::applicationPid())
        .arg(quintptr(QThread::currentThreadId()))
        .arg(QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz")),
             logMessage)
        .toUtf8();
}

void rawLog(benchmark::State &state)
{
    const QByteArray path =
        QFile::encodeName(QDir(Bench::temporaryFolder()).filePath(QStringLiteral("raw.log")));
    const QByteArray line = logLine();
    for (auto _ : state) {
        const int descriptor =
            ::open(path.constData(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0644);
        if (descriptor < 0 || ::write(descriptor, line.constData(), size_t(line.size())) < 0) {
            state.SkipWithError("cannot write the log file");
            break;
        }
        ::close(descriptor);
    }
    state.SetItemsProcessed(state.iterations());
}

} // namespace

void Bench::registerFileBenchmarks()
{
    add("FileUtilities::calculateFileHash/256 MiB", fileHash)->Iterations(1)->UseManualTime();
    add("Reference.sha1sum/256 MiB", sha1sumProgram)->Iterations(1)->UseManualTime();
    addRow(Row("ZARSysFileUtilities::calculateFileHash, 256 MiB",
               "FileUtilities::calculateFileHash/256 MiB", "sha1sum of the same file",
               "Reference.sha1sum/256 MiB", Goal::Faster, 0.9, "≥ 0.9x, growth < 8 MiB")
               .limitedBy("peak growth MiB", 8.0, "MiB"));

    add("Logging/text log message", textLog);
    add("Reference.open+write+close/line", rawLog);
    addRow({"text log, one message", "Logging/text log message",
            "open, write the line, close (system calls)", "Reference.open+write+close/line",
            Goal::Faster, 0.9, "≥ 0.9x"});
}
