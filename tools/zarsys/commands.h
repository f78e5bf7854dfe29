// The subcommands of zarsys.

#ifndef ZARSYS_TOOL_COMMANDS_H
#define ZARSYS_TOOL_COMMANDS_H

#include <QCommandLineParser>
#include <QList>
#include <QLocale>
#include <QString>
#include <QStringList>
#include <QTextStream>

#include <functional>

// What a command works with once the library has started.
struct Session
{
    QStringList arguments; // the positional arguments after the command's name
    QString settingsFile;
    QTextStream &out;
    QTextStream &err;
};

struct Command
{
    QString name;
    QString synopsis; // the arguments, as the list of commands shows them
    QString summary; // one line for the list of commands
    QString description; // the text that --help shows above the options
    // Adds the command's options and positional arguments.
    std::function<void(QCommandLineParser &)> configure;
    // Runs the command and returns the exit status. Throws UsageError for a bad command line
    // and lets the library's exceptions through.
    std::function<int(const QCommandLineParser &, Session &)> run;
    // The number of positional arguments taken: at least, and at most (-1: no limit).
    int minArguments = 0;
    int maxArguments = 0;
};

// The commands, in the order the help lists them.
const QList<Command> &commands();

#endif // ZARSYS_TOOL_COMMANDS_H
