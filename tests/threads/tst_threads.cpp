// What the library promises to threads: values parsed on any thread, one-time
// initialisations that any thread may trigger first, and values shared between threads. Every case
// starts its threads together, so that they race for the first use; the thread sanitizer build runs
// this executable to catch what the results alone would not show.

#include "../startlibrary.h"

#include <ZARSysAsciiUnicodeMap.h>
#include <ZARSysStackTrace.h>
#include <ZARSysStackWalker.h>
#include <ZARSysStringUtilities.h>
#include <ZARSysValue.h>

#include <QTest>

#include <atomic>
#include <functional>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int threadCount = 8;

// Runs work(i) on threadCount threads, released at the same moment.
void race(const std::function<void(int)> &work)
{
    std::atomic<int> ready {0};
    std::atomic<bool> go {false};
    std::vector<std::thread> threads;
    for (int i = 0; i < threadCount; ++i) {
        threads.emplace_back([&, i] {
            ++ready;
            while (!go.load(std::memory_order_acquire))
                std::this_thread::yield();
            work(i);
        });
    }
    while (ready.load() < threadCount)
        std::this_thread::yield();
    go.store(true, std::memory_order_release);
    for (std::thread &thread : threads)
        thread.join();
}

// What work(i) gave on each of the racing threads.
QStringList raced(const std::function<QString(int)> &work)
{
    std::vector<QString> results(threadCount);
    race([&](int i) { results[size_t(i)] = work(i); });
    return QStringList(results.cbegin(), results.cend());
}

} // namespace

class tst_Threads : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The library is started on the main thread, as a host starts it; the cases after that
    // are the first uses of what they race for.

    void initTestCase() { startLibrary(); }

    void valuesParsedEverywhere()
    {
        const QStringList results = raced([](int) {
            const ZARSysValue value = ZARSysValue::FromString(u"2.5 in"_s);
            return QString::number(value.GetValue(ZARSysValue::Millimeter)) + u' '
                + ZARSysValue::GetUnitSuffix(ZARSysValue::Foot);
        });
        QCOMPARE(results, QStringList(threadCount, u"63.5 ft"_s));
    }

    void embeddedPatternFirstUse()
    {
        const QString text = u"Note: "_s
            + QString::fromLatin1(ZARSysStringUtilities::EncodeUnicodeToAscii(u"Grüße – Köln"_s))
            + u" (sent)"_s;
        const QStringList results = raced([&text](int) {
            return ZARSysStringUtilities::DecodeEmbededUnicodeFromAscii(text, false) + u'|'
                + ZARSysStringUtilities::DecodeEmbededUnicodeFromAscii(text, true);
        });
        QCOMPARE(results,
                 QStringList(threadCount,
                             u"Note: Grüße – Köln (sent)|Note: Grüße \\U+2013 Köln (sent)"_s));
    }

    void sharedAsciiUnicodeMap()
    {
        // One map read by every thread at once, while each thread also changes a copy of its own:
        // the copies share the map's data until they change, and no change is seen elsewhere.
        ZARSysAsciiUnicodeMap shared;
        QList<QString> texts;
        for (int i = 0; i < 500; ++i)
            texts.append(u"Blech %1 mm – Edelstahl"_s.arg(i));
        const QList<QByteArray> keys = shared.Insert(texts);

        // Per thread: the entries found in the shared map, and the size of its own copy.
        const QStringList results = raced([&](int i) {
            ZARSysAsciiUnicodeMap own = shared;
            own.Insert(u"thread %1"_s.arg(i));
            own.Remove(keys.at(i));
            int found = 0;
            for (qsizetype k = 0; k < keys.size(); ++k) {
                QString text;
                if (shared.Lookup(keys.at(k).left(8), text) && text == texts.at(k))
                    ++found;
            }
            return u"%1 %2"_s.arg(found).arg(own.GetStrings().size());
        });
        QCOMPARE(results, QStringList(threadCount, u"500 500"_s));
        QCOMPARE(shared.GetStrings().size(), texts.size());
    }

    void malformedTextFirstUse()
    {
        // Malformed UTF-16 goes to the pattern, which is compiled on its first use.
        const QString text = u"12.5 mm"_s + QChar(0xd800);
        const QStringList results = raced([&text](int) {
            return QString::number(ZARSysValue::FromString(text).GetValue(), 'g', 17);
        });
        QCOMPARE(results, QStringList(threadCount, results.first()));
    }

    void sharedStackTrace()
    {
        // A captured trace makes its entries when first asked, by whichever thread comes first;
        // copies detached by a new label keep the same entries.
        const ZARSysStackTrace trace =
            ZARSysStackWalker::GetStackWalker()->GetStackTrace(20, u"t"_s);
        const QStringList results = raced([&trace](int i) {
            ZARSysStackTrace copy = trace;
            if (i % 2 == 0)
                copy.SetLabel(u"copy %1"_s.arg(i));
            return QString::number(copy.GetEntries().size()) + u' '
                + copy.GetEntry(0).ToString(u"%i"_s);
        });
        QCOMPARE(results,
                 QStringList(threadCount,
                             QString::number(trace.GetNumEntries()) + u' '
                                 + trace.GetEntry(0).ToString(u"%i"_s)));
    }
};

QTEST_GUILESS_MAIN(tst_Threads)
#include "tst_threads.moc"
