// A long computation on the GUI thread that the user can cancel.
//
// Computations that must see the application's data unchanged (nesting parts on a sheet,
// say) often run on the GUI thread itself. To keep the interface alive, such a computation
// marks itself interruptible with a ZARSysInterruptEnableContext and calls
// ZARSysInterrupt::CheckForInterrupt() now and then: that call processes pending events every
// 100 milliseconds, so timers fire, progress is painted and the Cancel button can be clicked.
// The button's handler calls ZARSysInterrupt::Interrupt(), and the next check throws
// ZARSysAbortComputationException, which unwinds the computation to whoever started it.
//
// Here the computation sums the Leibniz series for pi, a timer prints its progress, and
// another timer stands in for the user who clicks Cancel after MILLISECONDS (default 500).
//
//   zarsys-interruptible-computation [MILLISECONDS]
//
// The exit status is 0 if the computation was interrupted, 1 if it ran to its end.

#include <ZARSysException.h>
#include <ZARSysInterrupt.h>
#include <ZARSystem.h>

#include <QCoreApplication>
#include <QTextStream>
#include <QTimer>

#include <algorithm>

namespace {

QTextStream &out()
{
    static QTextStream stream(stdout);
    return stream;
}

// The state of the computation, kept outside it so that the progress display and whoever
// catches the interruption can read how far it got.
struct Progress
{
    qint64 terms = 0;
    double sum = 0; // of the series 1 - 1/3 + 1/5 - ..., which tends to pi / 4

    double Pi() const { return 4 * sum; }
};

// About ten seconds of work on a desktop machine: far longer than the user waits here.
constexpr qint64 totalTerms = 10'000'000'000;
// Terms between two checks. A check is cheap, but not free; a chunk this size takes well
// under a millisecond, which keeps the interface responsive.
constexpr qint64 chunk = 100'000;

void approximatePi(Progress &progress)
{
    const ZARSysInterruptEnableContext interruptible;
    while (progress.terms < totalTerms) {
        ZARSysInterrupt::CheckForInterrupt(); // may throw ZARSysAbortComputationException
        const qint64 end = std::min(progress.terms + chunk, totalTerms);
        for (qint64 k = progress.terms; k < end; ++k)
            progress.sum += (k % 2 == 0 ? 1.0 : -1.0) / double(2 * k + 1);
        progress.terms = end;
    }
}

QString describe(const Progress &progress)
{
    return QStringLiteral("%1 terms, pi ~ %2").arg(progress.terms).arg(progress.Pi(), 0, 'f', 9);
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    bool ok = args.size() == 1;
    const int cancelAfter = ok ? 500 : args.value(1).toInt(&ok);
    if (!ok || args.size() > 2 || cancelAfter < 0) {
        QTextStream(stderr) << "usage: zarsys-interruptible-computation [MILLISECONDS]" << Qt::endl;
        return 2;
    }
    const ZARSysInitContext context;

    Progress progress;
    // Fires while the computation runs, from the events that CheckForInterrupt() processes.
    QTimer display;
    display.setInterval(100);
    QObject::connect(&display, &QTimer::timeout, &display,
                     [&progress] { out() << "  progress: " << describe(progress) << Qt::endl; });

    // The Cancel button.
    QTimer::singleShot(cancelAfter, &app, [] {
        out() << "Cancel clicked" << Qt::endl;
        ZARSysInterrupt::Interrupt();
    });

    bool interrupted = false;
    // The slot of the button that starts the computation: it runs from the event loop, and
    // it catches the interruption itself, since an exception must not reach Qt's event loop.
    QTimer::singleShot(0, &app, [&] {
        out() << "Computation starts" << Qt::endl;
        display.start();
        try {
            approximatePi(progress);
            out() << "Computation finished: " << describe(progress) << Qt::endl;
        } catch (const ZARSysAbortComputationException &e) {
            interrupted = true;
            out() << "Interrupted (" << e.GetText() << ") after " << describe(progress) << Qt::endl;
        }
        display.stop();
        QCoreApplication::quit();
    });

    app.exec();
    if (!interrupted)
        out() << "The computation was never interrupted." << Qt::endl;
    return interrupted ? 0 : 1;
}
