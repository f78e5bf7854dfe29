#include <ZARSysStackMonitor.h>
#include <ZARSysStackTrace.h>
#include <ZARSysStackWalker.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QTest>

#include <thread>

using namespace Qt::StringLiterals;

namespace {

struct Captured
{
    ZARSysStackTrace trace;
    int line = 0; // of the call
};

Q_NEVER_INLINE Captured captureHere(int maxFrames)
{
    Captured captured;
    captured.line = __LINE__ + 1;
    captured.trace = ZARSysStackWalker::GetStackWalker()->GetStackTrace(maxFrames, u"here"_s);
    return captured;
}

volatile int zero = 0;

Q_NEVER_INLINE int depthOfCapture(int depth, int maxFrames)
{
    if (depth > 0)
        return depthOfCapture(depth - 1, maxFrames) + zero; // keeps every frame
    return captureHere(maxFrames).trace.GetNumEntries();
}

} // namespace

class tst_StackTrace : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(ZARSysStackWalker::GetStackWalker());
        QCOMPARE(ZARSysStackWalker::GetStackWalker(), ZARSysStackWalker::GetStackWalker());
    }

    void caps_data()
    {
        QTest::addColumn<int>("maxFrames");
        QTest::addColumn<int>("expected");
        QTest::newRow("0 means the cap") << 0 << 62;
        QTest::newRow("negative means the cap") << -5 << 62;
        QTest::newRow("500") << 500 << 62;
        QTest::newRow("62") << 62 << 62;
        QTest::newRow("1") << 1 << 1;
    }

    void caps()
    {
        QFETCH(int, maxFrames);
        QTEST(depthOfCapture(80, maxFrames), "expected");
    }

    void resolvesTheCaller()
    {
        const Captured captured = captureHere(4);
        QCOMPARE(captured.trace.GetLabel(), u"here"_s);
        QCOMPARE(captured.trace.GetNumEntries(), 4);
        const ZARSysStackTraceEntry first = captured.trace.GetEntry(0);
        QVERIFY(first.IsValid());
        QCOMPARE(QFileInfo(first.GetImagePath()).canonicalFilePath(),
                 QFileInfo(QCoreApplication::applicationFilePath()).canonicalFilePath());
        QCOMPARE(first.GetModuleName(), QFileInfo(first.GetImagePath()).fileName());
#ifdef ZARSYS_RESOLVES_NAMES
        QVERIFY2(first.GetName().contains(u"captureHere"_s), qPrintable(first.GetName()));
        // The next frame is this test function.
        QVERIFY2(captured.trace.GetEntry(1).GetName().contains(u"resolvesTheCaller"_s),
                 qPrintable(captured.trace.GetEntry(1).GetName()));
#endif
#ifdef ZARSYS_HAS_DEBUG_INFO
        QCOMPARE(QFileInfo(first.GetFileName()).fileName(), u"tst_stacktrace.cpp"_s);
        QCOMPARE(first.GetLineNumber(), captured.line);
        QVERIFY(first.GetOffsetFromLine() >= 0);
#endif

        // Shown as a developer would read it.
        qInfo().noquote() << captured.trace.ToSTring(u"%N (%f:%l) in %m"_s, 0);

        // On another thread too.
        int entries = 0;
        std::thread([&entries] { entries = captureHere(10).trace.GetNumEntries(); }).join();
        QVERIFY(entries >= 2);
    }

    void entryFormats_data()
    {
        QTest::addColumn<QString>("format");
        QTest::addColumn<QString>("text");

        QTest::newRow("empty format") << QString() << u" (-1) : "_s;
        QTest::newRow("every token") << u"%N|%c|%l|%f|%m|%i"_s << u"|-1|-1|||"_s;
        QTest::newRow("twice, case-sensitive") << u"%l %l %L %n"_s << u"-1 -1 %L %n"_s;
        QTest::newRow("plain text") << u"frame"_s << u"frame"_s;
    }

    void entryFormats()
    {
        QFETCH(QString, format);
        const ZARSysStackTraceEntry entry;
        QVERIFY(!entry.IsValid());
        QTEST(entry.ToString(format), "text");
    }

    void traceHeading()
    {
        const ZARSysStackTrace boot(u"boot"_s, {ZARSysStackTraceEntry(), ZARSysStackTraceEntry()});
        QCOMPARE(boot.ToSTring(u"%l"_s, 0), u"Stack Trace 'boot' :\n-1\n-1"_s);
        QCOMPARE(boot.ToSTring(u"%l"_s, 1), u"Stack Trace 'boot' :\n-1"_s);
        QCOMPARE(boot.ToSTring(u"%l"_s, 5), u"Stack Trace 'boot' :\n-1\n-1"_s);
        QCOMPARE(boot.ToSTring(u"%l"_s, -1), u"Stack Trace 'boot' :"_s);

        // Without a label: no heading, and no line break before the first entry.
        ZARSysStackTrace plain = boot;
        plain.SetLabel(QString());
        QCOMPARE(plain.ToSTring(u"x"_s, 0), u"x\nx"_s);
        QCOMPARE(boot.GetLabel(), u"boot"_s); // the copy was not affected
        QCOMPARE(ZARSysStackTrace().ToSTring(QString(), 0), QString());
    }

    void sharedResolution()
    {
        // Copies share the resolution, whichever asks first, from whichever thread.
        const ZARSysStackTraceEntry entry = captureHere(1).trace.GetEntry(0);
        QList<ZARSysStackTraceEntry> copies(8, entry);
        QList<QString> names(copies.size());
        std::vector<std::thread> threads;
        for (qsizetype i = 0; i < copies.size(); ++i)
            threads.emplace_back([&, i] { names[i] = copies.at(i).GetName(); });
        for (std::thread &thread : threads)
            thread.join();
        for (const QString &name : names)
            QCOMPARE(name, entry.GetName());
        QCOMPARE(copies.first().GetImagePath(), entry.GetImagePath());
        QVERIFY(!entry.GetImagePath().isEmpty());
    }

    void monitor()
    {
        ZARSysStackMonitor *const monitor = ZARSysStackMonitor::GetStackMonitor();
        QCOMPARE(monitor, ZARSysStackMonitor::GetStackMonitor());
        QVERIFY(monitor->GetStackTraces(u"save"_s).isEmpty());

        const ZARSysStackTrace first = monitor->AddTrace(3, u"save"_s);
        const ZARSysStackTrace second = monitor->AddTrace(0, u"save"_s);
        monitor->AddTrace(1, u"load"_s);
        // The trace begins in AddTrace itself.
        QVERIFY2(first.GetEntry(0).GetName().contains(u"AddTrace"_s),
                 qPrintable(first.GetEntry(0).GetName()));
        QCOMPARE(first.GetNumEntries(), 3);

        const QList<ZARSysStackTrace> saved = monitor->GetStackTraces(u"save"_s);
        QCOMPARE(saved.size(), 2);
        QCOMPARE(saved.at(0).GetNumEntries(), second.GetNumEntries()); // the later one first
        QCOMPARE(saved.at(1).GetLabel(), u"save"_s);
        for (int i = 0; i < first.GetNumEntries(); ++i)
            QCOMPARE(saved.at(1).GetEntry(i).GetAddress(), first.GetEntry(i).GetAddress());
        QList<QString> labels = monitor->GetLabels();
        std::sort(labels.begin(), labels.end());
        QCOMPARE(labels, (QList<QString> {u"load"_s, u"save"_s}));

        monitor->ClearTraces(u"save"_s);
        monitor->ClearTraces(u"unknown"_s);
        QVERIFY(monitor->GetStackTraces(u"save"_s).isEmpty());
        QCOMPARE(monitor->GetLabels(), QList<QString> {u"load"_s});
        monitor->ClearAllTraces();
        QVERIFY(monitor->GetLabels().isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_StackTrace)
#include "tst_stacktrace.moc"
