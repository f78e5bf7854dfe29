// The command-line tool, run as a process: output and exit status for good and bad input.

#include "../testrow.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

struct Result
{
    int status = -1;
    QString out;
    QString err;
};

} // namespace

class tst_Zarsys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_home = std::make_unique<QTemporaryDir>();
        QVERIFY(m_home->isValid());
    }

    void commandLine_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("status");
        // The whole of the standard output, or with a leading '~' a regular expression it must
        // match; and a regular expression the standard error must match.
        QTest::addColumn<QString>("out");
        QTest::addColumn<QString>("err");

        // The arguments as one text, separated by '|'.
        const auto row = [](const char *name, const QString &arguments, int status,
                            const QString &out, const QString &err) {
            addRow(name, arguments.split(u'|', Qt::SkipEmptyParts), status, out, err);
        };
        const QString ok = u"^$"_s; // nothing on the standard error
        const QString en = u"--locale|en_US|"_s;
        const QString de = u"--locale|de_DE|"_s;

        row("version", u"--version"_s, 0, u"zarsys 1.0.0\n"_s, ok);
        // The overview lists every command in order; one command's help shows its own options.
        row("help", u"--help"_s, 0,
            u"~(?s)^Usage: zarsys \\[options\\] COMMAND.*\\n  units.*\\n  convert.*\\n  "
            "current-unit.*\\n  ratio.*\\n  encode.*\\n  decode.*\\n  "
            "decode-embedded TEXT.*\\n  hash FILE\\.\\.\\..*\\n  string.*\\n  "
            "watch.*\\n  trace.*\\n  info"_s,
            ok);
        row("command help", u"convert|--help"_s, 0,
            u"~^Usage: zarsys convert \\[options\\] TEXT\\n(.|\\n)*--settings <FILE>(.|\\n)*--to <UNIT>"_s,
            ok);
        row("no command", QString(), 2, QString(), u"no command given"_s);
        row("unknown command", u"frob"_s, 2, QString(),
            u"unknown command \"frob\"(.|\\n)*zarsys --help"_s);
        row("unknown option", u"encode|--frob|x"_s, 2, QString(),
            u"Unknown option 'frob'(.|\\n)*Try \"zarsys encode --help\""_s);
        row("too many arguments", u"encode|a|b"_s, 2, QString(), u"usage: zarsys encode TEXT"_s);
        row("missing argument", u"current-unit"_s, 2, QString(), u"usage: zarsys current-unit"_s);
        row("unknown locale", u"--locale|xx_YY|info"_s, 2, QString(),
            u"unknown locale \"xx_YY\""_s);

        row("convert to current unit", en + u"convert|2.5in"_s, 0, u"63.5mm\n"_s, ok);
        row("convert to unit by string",
            en + u"convert|1in|--to|Millimeter|--format|f|--precision|3"_s, 0, u"25.400mm\n"_s, ok);
        row("convert to unit by label", de + u"convert|2,54cm|--to|Zoll"_s, 0, u"1in\n"_s, ok);
        row("convert with magnitude label", de + u"convert|7|--magnitude|Länge"_s, 0, u"7mm\n"_s,
            ok);
        row("convert negative", en + u"convert|--|-5mm"_s, 0, u"-5mm\n"_s, ok);
        row("convert json", en + u"convert|1in|--json"_s, 0,
            u"{\"unit\":\"mm\",\"value\":25.4}\n"_s, ok);
        row("convert without magnitude", en + u"convert|5"_s, 2, QString(),
            u"\"5\" has no unit suffix(.|\\n)*--magnitude"_s);
        row("convert negative without --", en + u"convert|-5mm"_s, 2, QString(),
            u"put -- before a negative number"_s);
        row("convert to unknown unit", en + u"convert|1in|--to|inches"_s, 2, QString(),
            u"unknown unit \"inches\"; did you mean Inch \\(in\\)"_s);
        row("convert to unit of wrong case", en + u"convert|1in|--to|MM"_s, 2, QString(),
            u"unknown unit \"MM\"; did you mean Millimeter \\(mm\\)"_s);
        row("convert to unknown unit without match", en + u"convert|1in|--to|xyzzy"_s, 2, QString(),
            u"unknown unit \"xyzzy\"; \"zarsys units\" lists them"_s);
        row("convert to unit of other magnitude", en + u"convert|1in|--to|s"_s, 2, QString(),
            u"Second \\(s\\) is a unit of Time, not of Length"_s);
        row("convert with unknown magnitude", en + u"convert|1|--magnitude|Lenght"_s, 2, QString(),
            u"unknown magnitude \"Lenght\"; did you mean Length\\?"_s);
        row("convert with bad format", en + u"convert|1in|--format|x"_s, 2, QString(),
            u"--format takes f, g or e"_s);
        row("convert out of range", en + u"convert|"_s + QString(400, u'9') + u"mm"_s, 2, QString(),
            u"is out of range"_s);
        row("convert with unknown suffix", en + u"convert|2 inch"_s, 2, QString(),
            u"unknown unit \"inch\"; did you mean Inch \\(in\\)"_s);
        row("convert with bad precision", en + u"convert|1in|--precision|-1"_s, 2, QString(),
            u"--precision takes a whole number"_s);
        row("convert json with unit", en + u"convert|1in|--json|--to|mm"_s, 2, QString(),
            u"--json cannot be combined with --to"_s);

        row("current unit", en + u"current-unit|Time"_s, 0, u"Time: Second (s)\n"_s, ok);
        row("current unit of other magnitude", en + u"current-unit|Length|s"_s, 2, QString(),
            u"Second \\(s\\) is not a unit of Length"_s);

        row("ratio", en + u"ratio|12.5%"_s, 0, u"12.5%\n"_s, ok);
        row("ratio by name", en + u"ratio|12.5%|--decoration|Permille"_s, 0, u"125‰\n"_s, ok);
        row("ratio plain", de + u"ratio|12,5%|--decoration|None"_s, 0, u"0,125\n"_s, ok);
        row("ratio out of range", en + u"ratio|"_s + QString(400, u'9'), 2, QString(),
            u"is out of range"_s);
        row("ratio unknown decoration", en + u"ratio|1|--decoration|Percent"_s, 2, QString(),
            u"unknown decoration \"Percent\"; did you mean Percentage"_s);

        row("encode", u"encode|Grüße"_s, 0, u"$@R3LDvMOfZQ\n"_s, ok);
        row("decode", u"decode|$@5p2x5Lqs"_s, 0, u"東京\n"_s, ok);
        row("decode embedded to code points", u"decode-embedded|at $@5p2x5Lqs now|--code-points"_s,
            0, u"at \\U+6771\\U+4EAC now\n"_s, ok);

        row("string", de + u"string|ZARQuantitiesDemo.label_Units.description"_s, 0,
            u"Maßeinheiten\n"_s, ok);
        row("string unknown", en + u"string|No.such.key"_s, 1, QString(),
            u"no text for the key \"No.such.key\" in en_US"_s);

        // The units table: the parts, separated by '|', in this order; with a magnitude given,
        // no other magnitude (Force) is listed.
        const auto table = [](const QString &parts, bool oneMagnitude) {
            QStringList escaped;
            for (const QString &part : parts.split(u'|'))
                escaped << QRegularExpression::escape(part);
            return (oneMagnitude ? u"~(?s)^(?!.*Force).*"_s : u"~(?s)"_s) + escaped.join(u".*"_s);
        };
        row("units", en + u"units|Length"_s, 0,
            table(u"Length: stored in Millimeter (mm), shown in Millimeter (mm)|"
                  "  *  Millimeter  0x100  Millimeter  mm      1 |"
                  "     Inch        0x104  Inch        in      25.4 "_s,
                  true),
            ok);
        row("units, German", de + u"units|Länge"_s, 0,
            table(u"Length (Länge): stored in Millimeter (mm)|"
                  "     Inch        0x104  Zoll        in      25,4 "_s,
                  true),
            ok);
        row("units, all", en + u"units"_s, 0,
            table(u"Length: stored in Millimeter (mm)|  *  Second |Area: stored in"_s, false), ok);
    }

    void commandLine()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, status);
        QFETCH(QString, out);
        QFETCH(QString, err);

        const Result result = run(arguments);
        QVERIFY2(result.err.contains(QRegularExpression(err)), qPrintable(result.err));
        if (out.startsWith(u'~'))
            QVERIFY2(result.out.contains(QRegularExpression(out.mid(1))), qPrintable(result.out));
        else
            QCOMPARE(result.out, out);
        QCOMPARE(result.status, status);
    }

    void currentUnitPersists()
    {
        const QString settings = m_home->filePath(u"units.ini"_s);
        const QStringList common = {u"--settings"_s, settings, u"--locale"_s, u"en_US"_s};

        const Result result = run(common + QStringList {u"current-unit"_s, u"Length"_s, u"in"_s});
        QCOMPARE(result.out, u"Length: Inch (in)\n"_s);
        QCOMPARE(result.status, 0);

        // A second process reads the unit back, and formats in it.
        QCOMPARE(run(common + QStringList {u"current-unit"_s, u"Length"_s}).out,
                 u"Length: Inch (in)\n"_s);
        QCOMPARE(run(common + QStringList {u"convert"_s, u"50.8mm"_s}).out, u"2in\n"_s);
        // Options given after the command count as well.
        QCOMPARE(run({u"convert"_s, u"50.8mm"_s, u"--settings"_s, settings}).out, u"2in\n"_s);

        // Other magnitudes and other files are untouched.
        QCOMPARE(run(common + QStringList {u"convert"_s, u"2min"_s}).out, u"120s\n"_s);
        QCOMPARE(run({u"--locale"_s, u"en_US"_s, u"convert"_s, u"50.8mm"_s}).out, u"50.8mm\n"_s);
    }

    void readingLeavesSettingsAlone()
    {
        // A settings file shared with other programs keeps its comments and layout.
        const QByteArray contents = "; written by hand\n[Other]\nkey = \"hello world\"\n"
                                    "[System]\nUnits\\1 = 999\n";
        QFile file(m_home->filePath(u"shared.ini"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(contents);
        file.close();

        const QStringList common = {u"--settings"_s, file.fileName(), u"--locale"_s, u"en_US"_s};
        // A number that is not a unit of the magnitude is shown for what it is.
        QCOMPARE(run(common + QStringList {u"current-unit"_s, u"Length"_s}).out,
                 u"Length: unknown unit 999\n"_s);
        for (const QString &arguments :
             {u"info"_s, u"units"_s, u"encode x"_s, u"convert 1in --to mm"_s})
            QCOMPARE(run(common + arguments.split(u' ')).status, 0);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), contents);
    }

    void writeError()
    {
        if (!QFile::exists(u"/dev/full"_s))
            QSKIP("needs /dev/full");
        QProcess process;
        process.setProcessEnvironment(environment());
        process.setStandardOutputFile(u"/dev/full"_s);
        process.start(QStringLiteral(ZARSYS_TOOL), {u"encode"_s, u"abc"_s});
        QVERIFY(process.waitForFinished(60000));
        QCOMPARE(process.exitCode(), 1);
        QCOMPARE(process.readAllStandardError(), QByteArray("zarsys: write error\n"));
    }

    void defaultSettingsFile()
    {
#ifdef Q_OS_WIN
        // In the user's local application data, which no variable moves.
        const QString expected =
            QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
            + u"/zarsys/zarsys.ini"_s;
        QFile::remove(expected);
#else
        const QString expected = m_home->filePath(u".config/zarsys/zarsys.ini"_s);
#endif
        QVERIFY(!QFile::exists(expected));
        Result result = run({u"info"_s});
        QCOMPARE(result.status, 0);
        QVERIFY(QFile::exists(expected));
        QVERIFY2(result.out.contains(u"Settings file    "_s + QDir::toNativeSeparators(expected)),
                 qPrintable(result.out));

        QCOMPARE(run({u"current-unit"_s, u"Angle"_s, u"Degree"_s}).status, 0);
        QCOMPARE(run({u"--settings"_s, expected, u"current-unit"_s, u"Angle"_s}).out,
                 u"Angle: Degree (deg)\n"_s);
    }

    void unwritableSettingsFile()
    {
        // A folder of the path is a file, which even root cannot write through.
        QFile blocker(m_home->filePath(u"file"_s));
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        blocker.close();
        const Result result = run({u"--settings"_s, blocker.fileName() + u"/zarsys.ini"_s,
                                   u"current-unit"_s, u"Length"_s, u"in"_s});
        QCOMPARE(result.status, 1);
        QVERIFY2(result.err.contains(u"cannot read or write the settings file"_s),
                 qPrintable(result.err));
    }

    void hash()
    {
        const auto write = [this](const QString &name, const QByteArray &contents) {
            QFile file(m_home->filePath(name));
            if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
                return QString();
            return file.fileName();
        };
        const QString abc = write(u"abc.txt"_s, "abc");
        const QString empty = write(u"empty.txt"_s, QByteArray());
        const QString missing = m_home->filePath(u"missing.txt"_s);

        // A file that cannot be read is reported, and the others are still hashed.
        const Result result = run({u"hash"_s, abc, missing, empty});
        QCOMPARE(result.status, 1);
        QCOMPARE(result.out.split(u'\n', Qt::SkipEmptyParts),
                 (QStringList {u"a9993e364706816aba3e25717850c26c9cd0d89d  "_s + abc,
                               u"da39a3ee5e6b4b0d3255bfef95601890afd80709  "_s + empty}));
        QCOMPARE(result.err, u"zarsys: "_s + missing + u": cannot be read\n"_s);
    }

    void watch()
    {
        QFile file(m_home->filePath(u"watched.txt"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("one\n");
        file.close();

        QProcess process;
        process.setProcessEnvironment(environment());
        // In text mode, as Windows programs end their lines with CRLF.
        process.start(QStringLiteral(ZARSYS_TOOL), {u"watch"_s, file.fileName()},
                      QIODevice::ReadWrite | QIODevice::Text);
        QVERIFY(process.waitForStarted());
        QByteArray err;
        QTRY_VERIFY_WITH_TIMEOUT(
            (err += process.readAllStandardError()).contains("Watching 1 file"), 30000);

        // The modification time has a resolution of a second on some file systems.
        QTest::qWait(1100);
        QVERIFY(file.open(QIODevice::Append));
        file.write("two\n");
        file.close();
        QByteArray out;
        QTRY_VERIFY_WITH_TIMEOUT((out += process.readAllStandardOutput()).contains("modified"),
                                 10000);
        const QRegularExpression line(u"^\\d\\d:\\d\\d:\\d\\d\\.\\d\\d\\d modified "_s
                                      + QRegularExpression::escape(file.fileName()) + u"\\n"_s);
        QVERIFY2(QString::fromUtf8(out).contains(line), out.constData());

        QVERIFY(file.remove());
        QTRY_VERIFY_WITH_TIMEOUT((out += process.readAllStandardOutput()).contains("deleted"),
                                 10000);
        QCOMPARE(process.state(), QProcess::Running);
        process.kill();
        process.waitForFinished();

        const Result missing = run({u"watch"_s, m_home->filePath(u"missing.txt"_s)});
        QCOMPARE(missing.status, 1);
        QVERIFY2(missing.err.contains(u"cannot watch"_s), qPrintable(missing.err));
    }

    void trace()
    {
        Result result = run({u"trace"_s});
        QCOMPARE(result.status, 0);
        QVERIFY2(result.out.startsWith(u"Stack Trace 'zarsys trace' :\n"_s),
                 qPrintable(result.out));
        // The first frame is zarsys's own code ("zarsys.exe" on Windows).
        const QString module = QFileInfo(QStringLiteral(ZARSYS_TOOL)).fileName();
        const QStringList lines = result.out.split(u'\n', Qt::SkipEmptyParts);
        QVERIFY(lines.size() >= 3);
        QVERIFY2(lines.at(1).endsWith(u" in "_s + module), qPrintable(lines.at(1)));

        result = run({u"trace"_s, u"--depth"_s, u"1"_s, u"--format"_s, u"[%m]"_s});
        QCOMPARE(result.out, u"Stack Trace 'zarsys trace' :\n[%1]\n"_s.arg(module));
        result = run({u"trace"_s, u"--depth"_s, u"63"_s});
        QCOMPARE(result.status, 2);
    }

    void info()
    {
        const QString settings = m_home->filePath(u"info.ini"_s);
        const Result result =
            run({u"--settings"_s, settings, u"--locale"_s, u"de_DE"_s, u"info"_s});
        QCOMPARE(result.status, 0);
        // Parts of the report, separated by '|'.
        const QString expected =
            u"zarsys           1.0.0\n|Library          |, version 1.0.0.0\n|Qt               %1|"
            "Icon theme       loom-default from |(loaded)\n|Settings file    %2\n|"
            "Locale           de_DE (Deutsch)\n|Catalogues       ZARSystem: de_DE es_ES|"
            "                 qtbase: de_DE"_s.arg(QString::fromLatin1(qVersion()),
                                                   QDir::toNativeSeparators(settings));
        for (const QString &part : expected.split(u'|'))
            QVERIFY2(result.out.contains(part), qPrintable(part + u"\nnot in\n"_s + result.out));
    }

private:
    QProcessEnvironment environment() const
    {
        // Every run has a home of its own, so a current unit saved by one test is not seen by the
        // next.
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"HOME"_s, m_home->path());
        environment.insert(u"XDG_CONFIG_HOME"_s, m_home->filePath(u".config"_s));
        environment.insert(u"LC_ALL"_s, u"C"_s);
        for (const char *name : {"ZARModelerDebug", "ZARSystemResourcePrefix", "ZAREnableTxtLog",
                                 "ZAREnableZARLog", "ZARLogRules"})
            environment.remove(QString::fromLatin1(name));
        return environment;
    }

    Result run(const QStringList &arguments) const
    {
        QProcess process;
        process.setProcessEnvironment(environment());
        process.start(QStringLiteral(ZARSYS_TOOL), arguments,
                      QIODevice::ReadWrite | QIODevice::Text);
        Result result;
        if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
            return result;
        result.status = process.exitCode();
        result.out = QString::fromUtf8(process.readAllStandardOutput());
        result.err = QString::fromUtf8(process.readAllStandardError());
        return result;
    }

    std::unique_ptr<QTemporaryDir> m_home;
};

QTEST_GUILESS_MAIN(tst_Zarsys)
#include "tst_zarsys.moc"
