// The errors of the command-line tool that are not the library's own.

#ifndef ZARSYS_TOOL_ERRORS_H
#define ZARSYS_TOOL_ERRORS_H

#include <QString>

// The exit statuses of zarsys.
enum ExitStatus : int {
    Success = 0,
    Failure = 1, // the library reported an error
    Usage = 2, // the command line was wrong
};

// A mistake on the command line: an unknown option, a missing argument, a unit that does not
// exist. Reported with exit status 2.
struct UsageError
{
    QString message;
};

#endif // ZARSYS_TOOL_ERRORS_H
