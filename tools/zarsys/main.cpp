// zarsys: the library's services on the command line.
//
// The program starts the library as every host application must (application object,
// ZARSysInitContext, a settings source for ZARSysSettingsManager, a locale for
// ZARSysLocalizationManager) and then runs one subcommand. Exit status: 0 on success, 1 when
// the library reports an error, 2 for a mistake on the command line.

#include "commands.h"
#include "errors.h"

#include <ZARSysException.h>
#include <ZARSysLocalizationManager.h>
#include <ZARSysSettingsManager.h>
#include <ZARSystem.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSettings>
#include <QStandardPaths>

#include <cstdio>
#include <optional>

namespace {

const QCommandLineOption settingsOption(
    QStringLiteral("settings"),
    QStringLiteral("The INI file of the user's settings (default: zarsys.ini in the user's "
                   "configuration folder, made on first use)."),
    QStringLiteral("FILE"));
const QCommandLineOption
    localeOption(QStringLiteral("locale"),
                 QStringLiteral("The language and notation of numbers, such as de_DE (default: the "
                                "system's)."),
                 QStringLiteral("NAME"));

// Where a user who made a mistake on the command line finds out more.
QString helpHint = QStringLiteral("zarsys --help");

QTextStream &out()
{
    static QTextStream stream(stdout);
    return stream;
}

QTextStream &err()
{
    static QTextStream stream(stderr);
    return stream;
}

// \a text broken into lines of at most 79 characters, at spaces.
QString wrapped(const QString &text)
{
    QString result;
    qsizetype lineLength = 0;
    for (const QString &word : text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        if (lineLength > 0 && lineLength + 1 + word.size() > 79) {
            result += QLatin1Char('\n');
            lineLength = 0;
        } else if (lineLength > 0) {
            result += QLatin1Char(' ');
            ++lineLength;
        }
        result += word;
        lineLength += word.size();
    }
    return result;
}

// The parser's help, with "zarsys" and the command in place of the path the program was
// started by.
QString helpText(const QCommandLineParser &parser, const QString &command = QString())
{
    QString text = parser.helpText();
    const QString usage = QStringLiteral("Usage: ") + QCoreApplication::arguments().constFirst();
    if (text.startsWith(usage)) {
        text.replace(0, usage.size(),
                     command.isEmpty() ? QStringLiteral("Usage: zarsys")
                                       : QStringLiteral("Usage: zarsys ") + command);
    }
    return text;
}

QString commandList()
{
    QString text = QStringLiteral("\nCommands:\n");
    qsizetype width = 0;
    for (const Command &command : commands())
        width = std::max(width, (command.name + QLatin1Char(' ') + command.synopsis).size());
    for (const Command &command : commands()) {
        text += QStringLiteral("  ")
            + (command.name + QLatin1Char(' ') + command.synopsis).leftJustified(width + 2)
            + command.summary + QLatin1Char('\n');
    }
    text += QStringLiteral("\nRun \"zarsys COMMAND --help\" for the options of a command.\n");
    return text;
}

// Qt's own help option also offers --help-all, for options that a QCoreApplication program
// does not have.
const QCommandLineOption helpOption({QStringLiteral("h"), QStringLiteral("help")},
                                    QStringLiteral("Displays this help."));

void addCommonOptions(QCommandLineParser &parser)
{
    parser.addOption(helpOption);
    parser.addOption(settingsOption);
    parser.addOption(localeOption);
}

QLocale parseLocale(const QString &name)
{
    const QLocale locale(name);
    // "C.UTF-8" and "POSIX" name the C locale as well.
    const QString base = name.section(QLatin1Char('.'), 0, 0).section(QLatin1Char('@'), 0, 0);
    if (locale.language() == QLocale::C && base != QLatin1String("C")
        && base != QLatin1String("POSIX")) {
        throw UsageError {QStringLiteral("unknown locale \"%1\"; give a name such as en_US or "
                                         "de_DE")
                              .arg(name)};
    }
    return locale;
}

QString defaultSettingsFile()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
    QDir().mkpath(folder);
    const QString path = QDir(folder).filePath(QStringLiteral("zarsys.ini"));
    if (!QFile::exists(path))
        QFile(path).open(QIODevice::WriteOnly);
    return path;
}

// Parses the options before the command. Returns the command's name and arguments, or nothing
// when the options asked only for the version or the help, which are then written.
std::optional<QStringList> parseGlobalOptions(QCommandLineParser &global,
                                              const QStringList &arguments)
{
    global.setApplicationDescription(
        QStringLiteral("The services of the ZARSystem library on the command line."));
    global.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    addCommonOptions(global);
    const QCommandLineOption versionOption = global.addVersionOption();
    global.addPositionalArgument(QStringLiteral("COMMAND"), QStringLiteral("What to do."),
                                 QStringLiteral("COMMAND [ARGUMENTS...]"));
    if (!global.parse(arguments))
        throw UsageError {global.errorText()};
    if (global.isSet(versionOption)) {
        out() << QCoreApplication::applicationName() << ' '
              << QCoreApplication::applicationVersion() << Qt::endl;
        return std::nullopt;
    }
    if (global.isSet(helpOption)) {
        out() << helpText(global) << commandList() << Qt::flush;
        return std::nullopt;
    }
    const QStringList rest = global.positionalArguments();
    if (rest.isEmpty())
        throw UsageError {QStringLiteral("no command given")};
    return rest;
}

const Command &findCommand(const QString &name)
{
    QStringList names;
    for (const Command &candidate : commands()) {
        if (candidate.name == name)
            return candidate;
        names << candidate.name;
    }
    throw UsageError {QStringLiteral("unknown command \"%1\"; the commands are %2")
                          .arg(name, names.join(QStringLiteral(", ")))};
}

// Parses the command's own options and arguments (rest after the command's name). Returns false
// when they asked only for the command's help, which is then written.
bool parseCommandOptions(QCommandLineParser &parser, const Command &command, const QString &program,
                         const QStringList &rest)
{
    parser.setApplicationDescription(wrapped(command.description));
    addCommonOptions(parser);
    if (command.configure)
        command.configure(parser);
    if (!parser.parse(QStringList {program} + rest.mid(1))) {
        QString message = parser.errorText();
        static const QRegularExpression negative(QStringLiteral("-[0-9.,].*"));
        if (rest.indexOf(negative) >= 0 && !rest.contains(QStringLiteral("--"))) {
            if (message.endsWith(QLatin1Char('.')))
                message.chop(1);
            message += QStringLiteral("; put -- before a negative number");
        }
        throw UsageError {message};
    }
    if (parser.isSet(helpOption)) {
        out() << helpText(parser, command.name) << Qt::flush;
        return false;
    }
    const qsizetype count = parser.positionalArguments().size();
    if (count < command.minArguments
        || (command.maxArguments >= 0 && count > command.maxArguments)) {
        throw UsageError {
            QStringLiteral("usage: zarsys %1 %2").arg(command.name, command.synopsis).trimmed()};
    }
    return true;
}

// Starts the library as every host application does, in this order, runs the command and
// writes the settings. Returns the exit status.
int runCommand(const Command &command, const QCommandLineParser &parser, Session &session,
               const QLocale &locale)
{
    const ZARSysInitContext context;
    ZARSysSettingsManager::GetManager()->SetSource(
        new QSettings(session.settingsFile, QSettings::IniFormat));
    ZARSysLocalizationManager::GetManager()->SetLocale(locale);

    int status = command.run(parser, session);
    out().flush();

    // QSettings reports a file it cannot write only when asked. Once it is written, the
    // source is let go: the settings groups would save themselves into it again at exit,
    // rewriting the file even after commands that only read it.
    ZARSysSettingsManager *settings = ZARSysSettingsManager::GetManager();
    settings->GetSource()->sync();
    if (settings->GetSource()->status() != QSettings::NoError) {
        err() << "zarsys: cannot read or write the settings file "
              << QDir::toNativeSeparators(session.settingsFile) << Qt::endl;
        status = Failure;
    }
    settings->SetSource(nullptr);
    return status;
}

int run(const QStringList &arguments)
{
    // The options before the command, then the command's own, which may repeat them.
    QCommandLineParser global;
    const std::optional<QStringList> rest = parseGlobalOptions(global, arguments);
    if (!rest)
        return Success;
    const Command &command = findCommand(rest->constFirst());
    helpHint = QStringLiteral("zarsys %1 --help").arg(command.name);
    QCommandLineParser parser;
    if (!parseCommandOptions(parser, command, arguments.constFirst(), *rest))
        return Success;

    const auto option = [&](const QCommandLineOption &option) -> std::optional<QString> {
        if (parser.isSet(option))
            return parser.value(option);
        if (global.isSet(option))
            return global.value(option);
        return std::nullopt;
    };
    const std::optional<QString> localeName = option(localeOption);
    const QLocale locale = localeName ? parseLocale(*localeName) : QLocale::system();
    const std::optional<QString> settingsFile = option(settingsOption);
    if (settingsFile && settingsFile->isEmpty())
        throw UsageError {QStringLiteral("--settings needs the name of a file")};
    Session session {parser.positionalArguments(),
                     settingsFile ? QFileInfo(*settingsFile).absoluteFilePath()
                                  : defaultSettingsFile(),
                     out(), err()};
    return runCommand(command, parser, session, locale);
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("zarsys"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ZARSYS_VERSION));

    try {
        int status = run(QCoreApplication::arguments());
        // A full disk or a closed pipe must not pass for success.
        out().flush();
        if (out().status() != QTextStream::Ok || std::fflush(stdout) != 0 || std::ferror(stdout)) {
            err() << "zarsys: write error" << Qt::endl;
            status = Failure;
        }
        return status;
    } catch (const UsageError &error) {
        out().flush();
        err() << "zarsys: " << error.message << Qt::endl
              << "Try \"" << helpHint << "\"." << Qt::endl;
        return Usage;
    } catch (const ZARSysException &exception) {
        out().flush();
        err() << "zarsys: " << exception.GetText() << Qt::endl;
        return Failure;
    }
}
