// Looking up magnitudes, units and ratio decorations by the names a user types.

#ifndef ZARSYS_TOOL_NAMES_H
#define ZARSYS_TOOL_NAMES_H

#include <ZARSysRatio.h>
#include <ZARSysValue.h>

#include <QString>
#include <QStringList>

namespace Names {

// The magnitude whose string ("Length") or label, as stored or as translated now, is
// \a text; throws UsageError, with close matches, when none is.
ZARSysValue::Magnitude magnitude(const QString &text);

// The unit whose string ("Inch"), suffix ("in") or current label is \a text, tried in this
// order and case-sensitively as the library compares them; throws UsageError, with close
// matches, when none is.
ZARSysValue::Unit unit(const QString &text);

// The decoration whose name ("Percentage"), sign ("%") or label is \a text; throws
// UsageError when none is.
ZARSysRatio::Decoration decoration(const QString &text);

// The label of \a magnitude in the language of now. Labels are stored translated when the
// catalogue is filled, which is before the language of the command line is chosen.
QString magnitudeLabel(ZARSysValue::Magnitude magnitude);

// "Inch (in)".
QString describe(ZARSysValue::Unit unit);

// The candidates that are close to \a text: equal but for case, a few edits away, or
// starting with it. Best first, at most \a limit of them.
QStringList closeMatches(const QString &text, const QStringList &candidates, int limit = 5);

// The number of single-character insertions, deletions and substitutions that turn \a a
// into \a b.
int editDistance(const QString &a, const QString &b);

} // namespace Names

#endif // ZARSYS_TOOL_NAMES_H
