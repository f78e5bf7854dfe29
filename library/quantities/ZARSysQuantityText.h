#ifndef ZARSYSQUANTITYTEXT_H
#define ZARSYSQUANTITYTEXT_H

#include <QString>
#include <QStringView>

class QLocale;

// What values and ratios do alike to text typed in the user's locale before they read it.
namespace ZARSysQuantityText {

// text in the C notation: the locale's group separators removed and its decimal mark made '.'.
// text itself, not a copy, when there is nothing to change.
QString ToCNotation(const QString &text, const QLocale &locale);

// suffix without the Unicode non-characters that pasted text may carry. The result is suffix
// itself when it holds none; otherwise its characters are kept in storage.
QStringView WithoutNonCharacters(QStringView suffix, QString *storage);

} // namespace ZARSysQuantityText

#endif // ZARSYSQUANTITYTEXT_H
