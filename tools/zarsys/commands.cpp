#include "commands.h"

#include "errors.h"
#include "names.h"

#include <ZARSysFileUtilities.h>
#include <ZARSysFileWatcher.h>
#include <ZARSysLocalizationManager.h>
#include <ZARSysRatio.h>
#include <ZARSysStackTrace.h>
#include <ZARSysStackWalker.h>
#include <ZARSysStringUtilities.h>
#include <ZARSysValue.h>
#include <ZARSysWebEngineContext.h>
#include <ZARSystem.h>

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QJsonDocument>
#include <QLibraryInfo>
#include <QMetaEnum>
#include <QTime>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

QLocale locale()
{
    return ZARSysLocalizationManager::GetManager()->GetLocale();
}

int integerOption(const QCommandLineParser &parser, const QString &name, int minimum, int maximum)
{
    bool ok = false;
    const int value = parser.value(name).toInt(&ok);
    if (!ok || value < minimum || value > maximum) {
        throw UsageError {QStringLiteral("--%1 takes a whole number from %2 to %3, not \"%4\"")
                              .arg(name)
                              .arg(minimum)
                              .arg(maximum)
                              .arg(parser.value(name))};
    }
    return value;
}

// Numbers too large for a double read as infinity; saying so beats printing "inf".
void checkFinite(double value, const QString &text)
{
    if (!std::isfinite(value))
        throw UsageError {QStringLiteral("\"%1\" is out of range").arg(text)};
}

// Rows of cells printed in columns as wide as their widest cell; the last column is not
// padded.
void printTable(QTextStream &out, const QList<QStringList> &rows, const QString &indent)
{
    QList<qsizetype> widths;
    for (const QStringList &row : rows) {
        for (qsizetype column = 0; column < row.size(); ++column) {
            if (widths.size() <= column)
                widths.append(0);
            widths[column] = std::max(widths.at(column), row.at(column).size());
        }
    }
    for (const QStringList &row : rows) {
        QString line = indent;
        for (qsizetype column = 0; column < row.size(); ++column) {
            const bool last = column + 1 == row.size();
            line += last ? row.at(column) : row.at(column).leftJustified(widths.at(column) + 2);
        }
        out << line << Qt::endl;
    }
}

// units [MAGNITUDE]

void configureUnits(QCommandLineParser &parser)
{
    parser.addPositionalArgument(QStringLiteral("MAGNITUDE"),
                                 QStringLiteral("Only this magnitude, by string or label."),
                                 QStringLiteral("[MAGNITUDE]"));
}

int runUnits(const QCommandLineParser &, Session &session)
{
    QList<ZARSysValue::Magnitude> magnitudes = ZARSysValue::GetAllMagnitudes();
    if (session.arguments.size() == 1)
        magnitudes = {Names::magnitude(session.arguments.constFirst())};

    const QLocale numbers = locale();
    bool first = true;
    for (ZARSysValue::Magnitude magnitude : magnitudes) {
        const ZARSysValue::Unit systemUnit = ZARSysValue::GetMagnitudeSystemUnit(magnitude);
        const ZARSysValue::Unit current = ZARSysValue::GetMagnitudeCurrentUnit(magnitude);
        const QString system = ZARSysValue::GetUnitSuffix(systemUnit);
        if (!first)
            session.out << Qt::endl;
        first = false;
        const QString string = ZARSysValue::GetMagnitudeString(magnitude);
        const QString label = Names::magnitudeLabel(magnitude);
        session.out << string << (label == string ? QString() : QStringLiteral(" (") + label + u')')
                    << ": stored in " << Names::describe(systemUnit) << ", shown in "
                    << Names::describe(current) << Qt::endl;

        QList<QStringList> rows = {{QStringLiteral(" "), QStringLiteral("Unit"),
                                    QStringLiteral("Value"), QStringLiteral("Label"),
                                    QStringLiteral("Suffix"), QStringLiteral("To ") + system,
                                    QStringLiteral("From ") + system, QStringLiteral("Precision")}};
        for (ZARSysValue::Unit unit : ZARSysValue::GetMagnitudeUnits(magnitude)) {
            rows.append({unit == current ? QStringLiteral("*") : QStringLiteral(" "),
                         ZARSysValue::GetUnitString(unit),
                         QStringLiteral("0x") + QString::number(int(unit), 16),
                         ZARSysValue::GetUnitLabel(unit), ZARSysValue::GetUnitSuffix(unit),
                         numbers.toString(ZARSysValue::ConvertToSystemUnit(unit, 1.0), 'g', 12),
                         numbers.toString(ZARSysValue::ConvertFromSystemUnit(1.0, unit), 'g', 12),
                         QString::number(ZARSysValue::GetUnitPrecision(unit))});
        }
        printTable(session.out, rows, QStringLiteral("  "));
    }
    return Success;
}

// convert TEXT [--magnitude M] [--to UNIT] [--format f|g|e] [--precision N] [--json]

void configureConvert(QCommandLineParser &parser)
{
    parser.addPositionalArgument(
        QStringLiteral("TEXT"),
        QStringLiteral("A quantity such as \"12.5mm\" or \"2 in\", in the locale's notation."));
    parser.addOptions({
        {QStringLiteral("magnitude"),
         QStringLiteral("Read TEXT as a quantity of this magnitude; a number without a suffix "
                        "of it is then in its system unit."),
         QStringLiteral("MAGNITUDE")},
        {QStringLiteral("to"),
         QStringLiteral("Show the quantity in this unit instead of the current one."),
         QStringLiteral("UNIT")},
        {QStringLiteral("format"),
         QStringLiteral("Number format: f (fixed), g (shortest, the default) or e (exponent)."),
         QStringLiteral("f|g|e"), QStringLiteral("g")},
        {QStringLiteral("precision"),
         QStringLiteral("Digits after the point (f, e) or significant digits (g); default 6."),
         QStringLiteral("N"), QStringLiteral("6")},
        {QStringLiteral("json"),
         QStringLiteral("Print the library's JSON form: the number in the system unit and the "
                        "suffix of the current unit.")},
    });
}

int runConvert(const QCommandLineParser &parser, Session &session)
{
    const QString text = session.arguments.constFirst();
    ZARSysValue value;
    if (parser.isSet(QStringLiteral("magnitude"))) {
        const ZARSysValue::Magnitude magnitude =
            Names::magnitude(parser.value(QStringLiteral("magnitude")));
        value = ZARSysValue(magnitude, 0.0);
        value.SetValue(text, ZARSysValue::GetMagnitudeSystemUnit(magnitude));
    } else {
        value = ZARSysValue::FromString(text);
        // The library takes the suffix from the first letter on, spaces removed.
        QString suffix = text;
        suffix.remove(QLatin1Char(' '));
        const qsizetype letter = std::distance(
            suffix.cbegin(),
            std::find_if(suffix.cbegin(), suffix.cend(), [](QChar c) { return c.isLetter(); }));
        if (!value.IsValid() && letter < suffix.size())
            Names::unit(suffix.mid(letter)); // throws, with the units it resembles
        if (!value.IsValid()) {
            throw UsageError {QStringLiteral("\"%1\" has no unit suffix that tells its "
                                             "magnitude; add one, or give --magnitude")
                                  .arg(text)};
        }
    }

    checkFinite(value.GetValue(), text);

    if (parser.isSet(QStringLiteral("json"))) {
        for (const char *option : {"to", "format", "precision"}) {
            if (parser.isSet(QLatin1StringView(option))) {
                throw UsageError {QStringLiteral("--json cannot be combined with --%1")
                                      .arg(QString::fromLatin1(option))};
            }
        }
        session.out << QJsonDocument(value.ToJsonObject()).toJson(QJsonDocument::Compact)
                    << Qt::endl;
        return Success;
    }

    ZARSysValue::Unit unit = ZARSysValue::InvalidUnit;
    if (parser.isSet(QStringLiteral("to"))) {
        unit = Names::unit(parser.value(QStringLiteral("to")));
        if (ZARSysValue::GetUnitMagnitude(unit) != value.GetMagnitude()) {
            throw UsageError {
                QStringLiteral("%1 is a unit of %2, not of %3")
                    .arg(Names::describe(unit),
                         ZARSysValue::GetMagnitudeString(ZARSysValue::GetUnitMagnitude(unit)),
                         ZARSysValue::GetMagnitudeString(value.GetMagnitude()))};
        }
    }
    const QString format = parser.value(QStringLiteral("format"));
    if (format != QLatin1String("f") && format != QLatin1String("g")
        && format != QLatin1String("e")) {
        throw UsageError {QStringLiteral("--format takes f, g or e, not \"%1\"").arg(format)};
    }
    const int precision = integerOption(parser, QStringLiteral("precision"), 0, 99);
    session.out << value.ToString(unit, format.at(0).toLatin1(), precision) << Qt::endl;
    return Success;
}

// current-unit MAGNITUDE [UNIT]

void configureCurrentUnit(QCommandLineParser &parser)
{
    parser.addPositionalArgument(QStringLiteral("MAGNITUDE"),
                                 QStringLiteral("The magnitude, by string or label."));
    parser.addPositionalArgument(
        QStringLiteral("UNIT"),
        QStringLiteral("The unit to show quantities of MAGNITUDE in from now on, in every "
                       "program that uses the same settings file."),
        QStringLiteral("[UNIT]"));
}

int runCurrentUnit(const QCommandLineParser &, Session &session)
{
    const QStringList arguments = session.arguments;
    const ZARSysValue::Magnitude magnitude = Names::magnitude(arguments.constFirst());
    if (arguments.size() == 2) {
        const ZARSysValue::Unit unit = Names::unit(arguments.at(1));
        if (ZARSysValue::GetUnitMagnitude(unit) != magnitude) {
            throw UsageError {
                QStringLiteral("%1 is not a unit of %2")
                    .arg(Names::describe(unit), ZARSysValue::GetMagnitudeString(magnitude))};
        }
        ZARSysValue::SetMagnitudeCurrentUnit(magnitude, unit);
    }
    session.out << ZARSysValue::GetMagnitudeString(magnitude) << ": "
                << Names::describe(ZARSysValue::GetMagnitudeCurrentUnit(magnitude)) << Qt::endl;
    return Success;
}

// ratio TEXT [--decoration D]

void configureRatio(QCommandLineParser &parser)
{
    QStringList decorations;
    const QMetaEnum names = QMetaEnum::fromType<ZARSysRatio::Decoration>();
    for (ZARSysRatio::Decoration decoration : ZARSysRatio::GetDecorations())
        decorations << QString::fromLatin1(names.valueToKey(decoration));
    parser.addPositionalArgument(
        QStringLiteral("TEXT"),
        QStringLiteral("A ratio such as \"12.5%\" or \"125‰\"; a number without a sign counts "
                       "in the current decoration (per cent unless changed)."));
    parser.addOption({QStringLiteral("decoration"),
                      QStringLiteral("Show the ratio with this decoration (%1, or its sign) "
                                     "instead of the current one.")
                          .arg(decorations.join(QStringLiteral(", "))),
                      QStringLiteral("D")});
}

int runRatio(const QCommandLineParser &parser, Session &session)
{
    const ZARSysRatio ratio = ZARSysRatio::FromString(session.arguments.constFirst());
    checkFinite(ratio.GetValue(), session.arguments.constFirst());
    if (parser.isSet(QStringLiteral("decoration"))) {
        session.out << ratio.ToString(Names::decoration(parser.value(QStringLiteral("decoration"))))
                    << Qt::endl;
    } else {
        session.out << ratio.ToString() << Qt::endl;
    }
    return Success;
}

// encode TEXT, decode TEXT, decode-embedded TEXT

void configureEncode(QCommandLineParser &parser)
{
    parser.addPositionalArgument(QStringLiteral("TEXT"), QStringLiteral("Any text."));
}

int runEncode(const QCommandLineParser &, Session &session)
{
    session.out << QString::fromLatin1(
        ZARSysStringUtilities::EncodeUnicodeToAscii(session.arguments.constFirst()))
                << Qt::endl;
    return Success;
}

void configureDecode(QCommandLineParser &parser)
{
    parser.addPositionalArgument(QStringLiteral("TEXT"),
                                 QStringLiteral("Text as \"zarsys encode\" writes it."));
}

int runDecode(const QCommandLineParser &, Session &session)
{
    session.out << ZARSysStringUtilities::DecodeUnicodeFromAscii(
        session.arguments.constFirst().toUtf8())
                << Qt::endl;
    return Success;
}

void configureDecodeEmbedded(QCommandLineParser &parser)
{
    parser.addPositionalArgument(QStringLiteral("TEXT"),
                                 QStringLiteral("Text with encoded parts in it."));
    parser.addOption({QStringLiteral("code-points"),
                      QStringLiteral("Write the decoded characters from U+0100 up as \\U+ "
                                     "escapes.")});
}

int runDecodeEmbedded(const QCommandLineParser &parser, Session &session)
{
    session.out << ZARSysStringUtilities::DecodeEmbededUnicodeFromAscii(
        session.arguments.constFirst(), parser.isSet(QStringLiteral("code-points")))
                << Qt::endl;
    return Success;
}

// hash FILE...

void configureHash(QCommandLineParser &parser)
{
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("The files to hash."),
                                 QStringLiteral("FILE..."));
}

int runHash(const QCommandLineParser &, Session &session)
{
    int status = Success;
    for (const QString &path : session.arguments) {
        const QByteArray digest = ZARSysFileUtilities::calculateFileHash(path);
        if (digest.isEmpty()) {
            session.out.flush();
            session.err << "zarsys: " << path << ": cannot be read" << Qt::endl;
            status = Failure;
            continue;
        }
        session.out << QString::fromLatin1(digest.toHex()) << "  " << path << Qt::endl;
    }
    return status;
}

// string KEY

void configureString(QCommandLineParser &parser)
{
    parser.addPositionalArgument(QStringLiteral("KEY"),
                                 QStringLiteral("A key of the string tables, such as "
                                                "\"ZARQuantitiesDemo.label_Units.description\"."));
}

int runString(const QCommandLineParser &, Session &session)
{
    const QString key = session.arguments.constFirst();
    const QString text = ZARSysLocalizationManager::GetManager()->GetString(key);
    if (text.isEmpty()) {
        session.err << "zarsys: no text for the key \"" << key << "\" in " << locale().name()
                    << Qt::endl;
        return Failure;
    }
    session.out << text << Qt::endl;
    return Success;
}

// watch PATH...

void configureWatch(QCommandLineParser &parser)
{
    parser.addPositionalArgument(QStringLiteral("PATH"), QStringLiteral("Existing files."),
                                 QStringLiteral("PATH..."));
}

int runWatch(const QCommandLineParser &, Session &session)
{
    ZARSysFileWatcher watcher;
    QStringList paths = session.arguments;
    paths.removeDuplicates();
    for (const QString &path : paths) {
        if (!watcher.AddPath(path)) {
            session.err << "zarsys: cannot watch " << path
                        << ": not an existing file, or named twice" << Qt::endl;
            return Failure;
        }
    }
    const auto report = [&session](const char *kind) {
        return [&session, kind](const QStringList &changed) {
            const QString time = QTime::currentTime().toString(QStringLiteral("HH:mm:ss.zzz"));
            for (const QString &path : changed)
                session.out << time << ' ' << kind << ' ' << path << Qt::endl;
        };
    };
    QObject::connect(&watcher, &ZARSysFileWatcher::FileCreated, report("created"));
    QObject::connect(&watcher, &ZARSysFileWatcher::FileModified, report("modified"));
    QObject::connect(&watcher, &ZARSysFileWatcher::FileDeleted, report("deleted"));
    session.err << "Watching " << paths.size() << (paths.size() == 1 ? " file" : " files")
                << "; press Ctrl+C to stop." << Qt::endl;
    return QCoreApplication::exec();
}

// trace

void configureTrace(QCommandLineParser &parser)
{
    parser.addOptions({
        {QStringLiteral("depth"), QStringLiteral("At most N frames (1 to 62; the default)."),
         QStringLiteral("N"), QStringLiteral("62")},
        {QStringLiteral("format"),
         QStringLiteral("The line of a frame: %N name, %f source file, %l line, %c offset from "
                        "the line, %m module, %i image path."),
         QStringLiteral("FORMAT"), QStringLiteral("%N (%f:%l) in %m")},
    });
}

int runTrace(const QCommandLineParser &parser, Session &session)
{
    const int depth = integerOption(parser, QStringLiteral("depth"), 1, 62);
    const ZARSysStackTrace trace =
        ZARSysStackWalker::GetStackWalker()->GetStackTrace(depth, QStringLiteral("zarsys trace"));
    session.out << trace.ToSTring(parser.value(QStringLiteral("format")), 0) << Qt::endl;
    return Success;
}

// info

QStringList catalogues()
{
    // "<catalogue>-<locale>.qm", grouped by catalogue.
    QMap<QString, QStringList> locales;
    QDirIterator files(QStringLiteral(":/localization/translations"), {QStringLiteral("*.qm")},
                       QDir::Files);
    while (files.hasNext()) {
        const QString name = QFileInfo(files.next()).completeBaseName();
        const qsizetype dash = name.lastIndexOf(QLatin1Char('-'));
        locales[name.left(dash)].append(name.mid(dash + 1));
    }
    QStringList lines;
    for (auto it = locales.begin(); it != locales.end(); ++it) {
        it->sort();
        lines << it.key() + QStringLiteral(": ") + it->join(QLatin1Char(' '));
    }
    return lines;
}

int runInfo(const QCommandLineParser &, Session &session)
{
    const QString moduleDirectory = ZARSysWebEngineContext::GetWorkbenchShortPath();
    const QFileInfoList libraries =
        QDir(moduleDirectory)
            .entryInfoList({QStringLiteral("libZARSystem.so*"), QStringLiteral("*ZARSystem.dll")},
                           QDir::Files, QDir::Name);
    const QString library = libraries.isEmpty() ? QString() : libraries.constFirst().filePath();
    const QString prefix = ZARSysGetResourcePrefix();
    const QString themeFile = QDir(prefix.isEmpty() ? moduleDirectory : prefix)
                                  .filePath(QStringLiteral("Resources/loom-default.rcc"));
    const bool themeLoaded = QFileInfo::exists(QStringLiteral(":/icons/loom-default/index.theme"));
    const QLocale current = locale();
    const QString none = QStringLiteral("(none)");

    QList<QStringList> rows = {
        {QStringLiteral("zarsys"), QCoreApplication::applicationVersion()},
        {QStringLiteral("Library"),
         library.isEmpty()
             ? none
             : QStringLiteral("%1, version %2").arg(library, ZARSysGetModuleVersion(library))},
        {QStringLiteral("Built"), ZARSysGetBuildDate()},
        {QStringLiteral("Qt"),
         QStringLiteral("%1 (built with %2)")
             .arg(QString::fromLatin1(qVersion()), QStringLiteral(QT_VERSION_STR))},
        {QStringLiteral("Module folder"), moduleDirectory.isEmpty() ? none : moduleDirectory},
        {QStringLiteral("Resource prefix"),
         prefix.isEmpty() ? QStringLiteral("(none: the module folder)") : prefix},
        {QStringLiteral("Icon theme"),
         QStringLiteral("loom-default from %1 (%2)")
             .arg(QDir::toNativeSeparators(themeFile),
                  themeLoaded ? QStringLiteral("loaded") : QStringLiteral("not found"))},
        {QStringLiteral("Settings file"), QDir::toNativeSeparators(session.settingsFile)},
        {QStringLiteral("Locale"),
         current.nativeLanguageName().isEmpty()
             ? current.name()
             : QStringLiteral("%1 (%2)").arg(current.name(), current.nativeLanguageName())},
    };
    const QStringList installed = catalogues();
    for (qsizetype i = 0; i < installed.size(); ++i)
        rows.append({i == 0 ? QStringLiteral("Catalogues") : QString(), installed.at(i)});
    if (installed.isEmpty())
        rows.append({QStringLiteral("Catalogues"), none});
    printTable(session.out, rows, QString());
    return Success;
}

} // namespace

// One entry per command with its help texts: a table, as long as the tool has commands.
const QList<Command> &commands()
{
    static const QList<Command> list = {
        {QStringLiteral("units"), QStringLiteral("[MAGNITUDE]"),
         QStringLiteral("List magnitudes and their units; * marks the current unit."),
         QStringLiteral("Lists the magnitudes and their units: value, string, label, suffix, "
                        "the factors to and from the system unit, and the precision. * marks the "
                        "unit in which quantities of the magnitude are shown."),
         configureUnits, runUnits, 0, 1},
        {QStringLiteral("convert"), QStringLiteral("TEXT"),
         QStringLiteral("Read a quantity and show it in the current or another unit."),
         QStringLiteral("Reads TEXT as the library reads typed quantities and shows it in the "
                        "current unit of its magnitude, or in the unit given with --to. Units "
                        "are named by string (Inch), suffix (in) or label. Text that the library "
                        "cannot read counts as 0."),
         configureConvert, runConvert, 1, 1},
        {QStringLiteral("current-unit"), QStringLiteral("MAGNITUDE [UNIT]"),
         QStringLiteral("Show or change the unit a magnitude is shown in."),
         QStringLiteral("Shows the unit in which quantities of MAGNITUDE are shown, or makes "
                        "UNIT that unit and saves it in the settings file."),
         configureCurrentUnit, runCurrentUnit, 1, 2},
        {QStringLiteral("ratio"), QStringLiteral("TEXT"),
         QStringLiteral("Read a ratio and show it with a decoration."),
         QStringLiteral("Reads TEXT as a ratio and shows it with the current decoration, or "
                        "the one given with --decoration."),
         configureRatio, runRatio, 1, 1},
        {QStringLiteral("encode"), QStringLiteral("TEXT"),
         QStringLiteral("Encode text for channels that take ASCII only."),
         QStringLiteral("Writes TEXT in the library's ASCII encoding: ASCII text stays as it "
                        "is, other text becomes \"$@\" and the Base64 form of its UTF-8 bytes."),
         configureEncode, runEncode, 1, 1},
        {QStringLiteral("decode"), QStringLiteral("TEXT"),
         QStringLiteral("Decode text that \"encode\" wrote."),
         QStringLiteral("Writes the text that TEXT encodes."), configureDecode, runDecode, 1, 1},
        {QStringLiteral("decode-embedded"), QStringLiteral("TEXT"),
         QStringLiteral("Decode the encoded parts within a text."),
         QStringLiteral("Writes TEXT with every encoded part in it decoded."),
         configureDecodeEmbedded, runDecodeEmbedded, 1, 1},
        {QStringLiteral("hash"), QStringLiteral("FILE..."),
         QStringLiteral("Print the SHA-1 digest of files."),
         QStringLiteral("Prints the SHA-1 digest of each FILE in hexadecimal, then its name, "
                        "a line a file. Exits with 1 if a file cannot be read."),
         configureHash, runHash, 1, -1},
        {QStringLiteral("string"), QStringLiteral("KEY"),
         QStringLiteral("Print the text of a key of the string tables."),
         QStringLiteral("Prints the text of KEY in the locale's string table. Exits with 1 if "
                        "there is none."),
         configureString, runString, 1, 1},
        {QStringLiteral("watch"), QStringLiteral("PATH..."),
         QStringLiteral("Report changes of files until interrupted."),
         QStringLiteral("Prints a line with the time, the kind of change (created, modified, "
                        "deleted) and the path for every change of the files, until "
                        "interrupted."),
         configureWatch, runWatch, 1, -1},
        {QStringLiteral("trace"), QString(),
         QStringLiteral("Print a stack trace of zarsys itself."),
         QStringLiteral("Prints a stack trace captured in zarsys, resolved to function names, "
                        "source files and lines as far as the build allows."),
         configureTrace, runTrace, 0, 0},
        {QStringLiteral("info"), QString(),
         QStringLiteral("Show versions, folders, the settings file and the locale."),
         QStringLiteral("Shows the versions of zarsys, the library and Qt, the build date, the "
                        "module folder, the resource prefix, the icon theme, the settings file, "
                        "the locale and the translation catalogues built into the library."),
         nullptr, runInfo, 0, 0},
    };
    return list;
}
