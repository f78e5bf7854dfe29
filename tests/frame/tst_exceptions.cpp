#include <ZARSysException.h>

#include <QFuture>
#include <QPromise>
#include <QTest>

#include <exception>
#include <functional>
#include <memory>
#include <thread>
#include <typeinfo>

using namespace Qt::StringLiterals;

namespace {

struct Case
{
    const char *name;
    std::function<void()> thrower;
    QString text;
    const std::type_info &type;
};

// The case of exception class E, thrown as E(arguments...).
template<typename E, typename... Arguments>
Case thrown(const char *name, const QString &text, Arguments... arguments)
{
    return {name, [=] { throw E(arguments...); }, text, typeid(E)};
}

const std::vector<Case> &cases()
{
    static const std::vector<Case> all = {
        thrown<ZARSysException>("base", u"free text"_s, u"free text"_s),
        thrown<ZARSysAbortComputationException>("abort", u"computation aborted"_s),
        thrown<ZARSysNotImplementedException>("not implemented", u"not implemented"_s),
        thrown<ZARSysNullPointerException>("null pointer", u"null pointer"_s),
        thrown<ZARSysOutOfBoundsException>("out of bounds", u"value is out of bounds"_s, 5, 0, 4,
                                           true, false),
        thrown<ZARSysStreamReadException>("stream read", u"stream read error"_s),
        thrown<ZARSysStreamWriteException>("stream write", u"stream write error"_s),
        thrown<ZARSysTextFormatException>(
            "text format", u"An error was found in the file format at line 3 column 7: bad token"_s,
            u"bad token"_s, 3, 7),
        thrown<ZARSysFileException>("file", u"disk full"_s, u"/tmp/a.txt"_s, u"disk full"_s),
        thrown<ZARSysFileNotFoundException>(
            "file not found", u"Could not find the file at the path 'C:/data/part.nst'."_s,
            u"C:/data/part.nst"_s),
        thrown<ZARSysFileOpenException>(
            "file open", u"Could not open the file at the path 'C:/a.txt': Access denied"_s,
            u"C:/a.txt"_s, u"Access denied"_s),
        thrown<ZARSysPrematureEndOfFileException>(
            "premature end", u"The end of the file was reached prematurely."_s, u"/srv/x.bin"_s),
    };
    return all;
}

} // namespace

class tst_Exceptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textRaiseAndClone_data()
    {
        QTest::addColumn<int>("index");
        for (size_t i = 0; i < cases().size(); ++i)
            QTest::newRow(cases()[i].name) << int(i);
    }

    void textRaiseAndClone()
    {
        // The text, the generic what(), and the class kept by raise() and clone().
        QFETCH(int, index);
        const Case &c = cases()[index];
        bool rethrown = false;
        try {
            c.thrower();
            QFAIL("nothing thrown");
        } catch (const ZARSysException &first) {
            QCOMPARE(first.GetText(), c.text);
            QVERIFY(typeid(first) == c.type);
            QCOMPARE(QByteArray(first.what()), QByteArray(std::exception().what()));
            try {
                first.raise();
            } catch (const QException &second) {
                rethrown = true;
                QVERIFY2(typeid(second) == c.type, typeid(second).name());
                QVERIFY(&second != &first);
                QCOMPARE(dynamic_cast<const ZARSysException &>(second).GetText(), c.text);
            }
            const std::unique_ptr<QException> copy(first.clone());
            const QException &cloned = *copy;
            QVERIFY2(typeid(cloned) == c.type, typeid(cloned).name());
            QCOMPARE(dynamic_cast<const ZARSysException &>(cloned).GetText(), c.text);
        }
        QVERIFY(rethrown);
    }

    void substitutionIsDoneOnce()
    {
        // Placeholders in the arguments reach the text as they are.
        const QString path = u"/tmp/%2 %3.txt"_s;
        QCOMPARE(ZARSysTextFormatException(u"%1 and %2"_s, 0, -1).GetText(),
                 u"An error was found in the file format at line 0 column -1: %1 and %2"_s);
        const ZARSysFileOpenException open(path, u"%1%"_s);
        const ZARSysFileNotFoundException notFound(path);
        QCOMPARE(
            (QStringList {open.GetText(), open.GetPath(), notFound.GetText(), notFound.GetPath()}),
            (QStringList {u"Could not open the file at the path '/tmp/%2 %3.txt': %1%"_s, path,
                          u"Could not find the file at the path '/tmp/%2 %3.txt'."_s, path}));
    }

    void outOfBoundsKeepsItsArguments_data()
    {
        // Value, range start and end, whether the start and the end are included.
        QTest::addColumn<QVariantList>("arguments");

        QTest::newRow("closed") << QVariantList {11, 0, 10, true, true};
        QTest::newRow("half open") << QVariantList {u"z"_s, u"a"_s, u"m"_s, true, false};
        QTest::newRow("unbounded") << QVariantList {1, QVariant(), 0, false, true};
    }

    void outOfBoundsKeepsItsArguments()
    {
        QFETCH(QVariantList, arguments);

        const ZARSysOutOfBoundsException original(arguments.at(0), arguments.at(1), arguments.at(2),
                                                  arguments.at(3).toBool(),
                                                  arguments.at(4).toBool());
        const std::unique_ptr<QException> cloned(original.clone());
        const auto *copy = dynamic_cast<const ZARSysOutOfBoundsException *>(cloned.get());
        QVERIFY(copy);
        for (const auto *e : {&original, copy}) {
            QCOMPARE(e->GetText(), u"value is out of bounds"_s);
            QCOMPARE((QVariantList {e->GetValue(), e->GetRangeStart(), e->GetRangeEnd(),
                                    e->IsStartIncluded(), e->IsEndIncluded()}),
                     arguments);
        }
    }

    void fileExceptionsMove()
    {
        ZARSysFileOpenException source(u"/a"_s, u"locked"_s);
        ZARSysFileOpenException moved(std::move(source));
        QCOMPARE(moved.GetPath(), u"/a"_s);
        QCOMPARE(moved.GetText(), u"Could not open the file at the path '/a': locked"_s);
        // The moved-from object stays usable.
        QCOMPARE(source.GetPath(), QString());
        QVERIFY_THROWS_EXCEPTION(ZARSysFileOpenException, source.raise());

        ZARSysFileOpenException target(u"/b"_s, u"missing"_s);
        target = std::move(moved);
        QCOMPARE(target.GetPath(), u"/a"_s);
        QCOMPARE(target.GetText(), u"Could not open the file at the path '/a': locked"_s);

        // Assigning back into a moved-from object revives it.
        source = target;
        QCOMPARE(source.GetPath(), u"/a"_s);

        ZARSysFileException base(u"/c"_s, u"text"_s);
        base = ZARSysFileNotFoundException(u"/d"_s); // slices to the base, keeping path and text
        QCOMPARE(base.GetPath(), u"/d"_s);
        QCOMPARE(base.GetText(), u"Could not find the file at the path '/d'."_s);
        QVERIFY(typeid(base) == typeid(ZARSysFileException));
    }

    void carriedAcrossThreads()
    {
        QPromise<int> promise;
        QFuture<int> future = promise.future();
        // A standard thread, whose join the thread sanitizer build sees (QThread's wait it cannot).
        std::thread worker([&promise] {
            promise.start();
            try {
                throw ZARSysFileOpenException(u"/srv/job.nst"_s, u"Permission denied"_s);
            } catch (const QException &e) {
                promise.setException(e);
            }
            promise.finish();
        });
        worker.join();

        try {
            future.waitForFinished();
            QFAIL("the future did not rethrow");
        } catch (const ZARSysFileOpenException &e) {
            QCOMPARE(e.GetPath(), u"/srv/job.nst"_s);
            QCOMPARE(e.GetText(),
                     u"Could not open the file at the path '/srv/job.nst': Permission denied"_s);
        }
    }
};

QTEST_GUILESS_MAIN(tst_Exceptions)
#include "tst_exceptions.moc"
