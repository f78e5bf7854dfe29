// Logging is set up once per process, so every case runs the logging helper with its own
// environment and working folder, and checks what reached stderr (the handler that was there
// before the library's) and the text log.

#include "../testrow.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

const QStringList loggingVariables = {u"ZARLogRules"_s,      u"ZAREnableTxtLog"_s,
                                      u"ZAREnableZARLog"_s,  u"ZARNestExeUT"_s,
                                      u"QT_LOGGING_RULES"_s, u"QT_MESSAGE_PATTERN"_s};

// "<pid> <thread id> [yyyy-MM-dd HH:mm:ss.zzz][<category>] <message>"
const QRegularExpression libraryLine(
    u"^(\\d+) (\\d+) \\[\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d{3}\\]\\[([^\\]]+)\\] (.*)$"_s);

struct Run
{
    bool finished = false;
    qint64 pid = 0;
    QString logPath; // as the helper reported it
    QStringList errorLines;
    QStringList fileLines; // empty when there is no file
    QStringList folderEntries;
};

Run runHelper(const QStringList &arguments, const QStringList &environment)
{
    Run run;
    QTemporaryDir folder;
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    for (const QString &name : loggingVariables)
        variables.remove(name);
    for (const QString &assignment : environment)
        variables.insert(assignment.section(u'=', 0, 0), assignment.section(u'=', 1));

    QProcess helper;
    helper.setProcessEnvironment(variables);
    helper.setWorkingDirectory(folder.path());
    // In text mode, as Windows programs end their lines with CRLF.
    helper.start(QStringLiteral(ZARSYS_LOGGING_HELPER), arguments,
                 QIODevice::ReadWrite | QIODevice::Text);
    run.pid = helper.processId();
    run.finished = helper.waitForFinished(60000) && helper.exitStatus() == QProcess::NormalExit
        && helper.exitCode() == 0;
    run.logPath = QString::fromUtf8(helper.readAllStandardOutput()).trimmed();
    run.errorLines =
        QString::fromUtf8(helper.readAllStandardError()).split(u'\n', Qt::SkipEmptyParts);
    run.folderEntries = QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    if (!run.logPath.isEmpty()) {
        QFile log(folder.filePath(run.logPath));
        if (log.open(QIODevice::ReadOnly | QIODevice::Text))
            run.fileLines = QString::fromUtf8(log.readAll()).split(u'\n', Qt::SkipEmptyParts);
    }
    return run;
}

// Reduces lines in the library's pattern to "<category>: <message>", as Qt's default pattern
// writes them, after checking the process id. Lines in another form come back as they are.
QStringList messages(const QStringList &lines, qint64 pid, bool *allPatterned = nullptr)
{
    QStringList result;
    bool patterned = true;
    for (const QString &line : lines) {
        const QRegularExpressionMatch match = libraryLine.match(line);
        if (match.hasMatch() && match.captured(1) == QString::number(pid)) {
            result.append(match.captured(3) + u": "_s + match.captured(4));
        } else {
            result.append(line);
            patterned = false;
        }
    }
    if (allPatterned)
        *allPatterned = patterned;
    return result;
}

} // namespace

class tst_Logging : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void environment_data()
    {
        QTest::addColumn<QString>("scenario");
        QTest::addColumn<QStringList>("environment");
        QTest::addColumn<bool>("patterned");
        QTest::addColumn<QStringList>("errorOutput");
        // The text log's messages; none when there is no text log.
        QTest::addColumn<QStringList>("file");

        const QString d1 = u"ZAR.Default: first default"_s;
        const QString p1 = u"ZAR.Performance: first performance"_s;
        const QString t1 = u"ZAR.Performance.Timing: first timing"_s;
        const QString d2 = u"ZAR.Default: second default"_s;
        const QString p2 = u"ZAR.Performance: second performance"_s;
        const QString t2 = u"ZAR.Performance.Timing: second timing"_s;
        const QStringList all1 = {d1, p1, t1};
        const QStringList all2 = {d2, p2, t2};
        const QString textLog = u"ZAREnableTxtLog=1"_s;

        addRow("defaults: performance off, its child on", u"categories"_s, QStringList(), false,
               QStringList {d1, t1}, QStringList());
        addRow("text log", u"categories"_s, QStringList {textLog}, true, all1, all1);
        addRow("text log, rules win", u"categories"_s,
               QStringList {textLog, u"ZARLogRules=ZAR.Default=false"_s}, true,
               QStringList {p1, t1}, QStringList {p1, t1});
        addRow("library log", u"categories"_s, QStringList {u"ZAREnableZARLog=yes"_s}, true, all1,
               QStringList());
        addRow("library log, rules win", u"categories"_s,
               QStringList {u"ZAREnableZARLog=1"_s, u"ZARLogRules=ZAR.Performance.Timing=false"_s},
               true, QStringList {d1, p1}, QStringList());
        addRow("rules replace the defaults", u"categories"_s,
               QStringList {u"ZARLogRules=ZAR.Default=false"_s}, false, QStringList {p1, t1},
               QStringList());

        addRow("start-up initialises logging", u"startup"_s, QStringList {textLog}, true, all1,
               all1);
        addRow("start-up in unit tests leaves logging alone", u"startup"_s,
               QStringList {textLog, u"ZARNestExeUT=1"_s}, false, all1, QStringList());
        addRow("start-up, ZARNestExeUT=01", u"startup"_s,
               QStringList {textLog, u"ZARNestExeUT=01"_s}, true, all1, all1);

        addRow("second call with the text log changes nothing", u"twice"_s, QStringList {textLog},
               true, all1 + all2, all1 + all2);
        addRow("second call without the text log applies the environment again", u"twice"_s,
               QStringList(), false, QStringList {d1, t1, p2, t2}, QStringList());

        addRow("removed log is written anew", u"removed"_s, QStringList {textLog}, true,
               all1 + all2, all2);
        addRow("unopenable log loses only the file's copy", u"unopenable"_s, QStringList {textLog},
               true, all1 + all2, all2);
    }

    void environment()
    {
        QFETCH(QString, scenario);
        QFETCH(QStringList, environment);
        QFETCH(QStringList, file);

        const Run run = runHelper({scenario}, environment);
        QVERIFY2(run.finished, qPrintable(run.errorLines.join(u'\n')));

        bool errorPatterned = false;
        QTEST(messages(run.errorLines, run.pid, &errorPatterned), "errorOutput");
        QTEST(errorPatterned, "patterned");

        if (file.isEmpty()) {
            QCOMPARE(run.logPath, QString());
            QCOMPARE(run.folderEntries, QStringList());
            return;
        }
        static const QRegularExpression fileName(u"^App_Nesting_\\d{8}_\\d{6}\\.log$"_s);
        QVERIFY2(fileName.match(run.logPath).hasMatch(), qPrintable(run.logPath));
        QCOMPARE(run.folderEntries, QStringList {run.logPath}); // one file for the whole run
        bool filePatterned = false;
        QCOMPARE(messages(run.fileLines, run.pid, &filePatterned), file);
        QVERIFY(filePatterned);
    }

    // Eight threads log at once: every line arrives whole, none is lost, each thread's lines keep
    // their order, and the previous handler sees the same sequence as the file.
    void eightThreads()
    {
        constexpr int perThread = 2000;
        const Run run =
            runHelper({u"threads"_s, QString::number(perThread)}, {u"ZAREnableTxtLog=1"_s});
        QVERIFY(run.finished);

        bool patterned = false;
        const QStringList fileMessages = messages(run.fileLines, run.pid, &patterned);
        QVERIFY(patterned);
        QCOMPARE(fileMessages.size(), 8 * perThread);
        QCOMPARE(messages(run.errorLines, run.pid), fileMessages);

        static const QRegularExpression line(
            u"^ZAR\\.Default: thread (\\d) message (\\d+) of a line that is long enough to be "
            "written in more than one piece$"_s);
        int next[8] = {};
        for (const QString &message : fileMessages) {
            const QRegularExpressionMatch match = line.match(message);
            QVERIFY2(match.hasMatch(), qPrintable(message));
            const int thread = match.captured(1).toInt();
            QVERIFY(thread < 8);
            QCOMPARE(match.captured(2).toInt(), next[thread]++);
        }
    }
};

QTEST_GUILESS_MAIN(tst_Logging)
#include "tst_logging.moc"
