#include "ZARSysQuantityText.h"

#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

QString ZARSysQuantityText::ToCNotation(const QString &text, const QLocale &locale)
{
    // Shares text's characters until something is changed; contains() keeps remove() and
    // replace() from copying them for nothing.
    QString normalized = text;
    const QString group = locale.groupSeparator();
    if (!group.isEmpty() && normalized.contains(group))
        normalized.remove(group);
    const QString decimal = locale.decimalPoint();
    if (!decimal.isEmpty() && decimal != "."_L1 && normalized.contains(decimal))
        normalized.replace(decimal, "."_L1);
    return normalized;
}

QStringView ZARSysQuantityText::WithoutNonCharacters(QStringView suffix, QString *storage)
{
    const auto isNonCharacter = [](QChar c) {
        return c.isNonCharacter();
    };
    if (std::none_of(suffix.cbegin(), suffix.cend(), isNonCharacter))
        return suffix;

    storage->clear();
    for (QChar c : suffix) {
        if (!c.isNonCharacter())
            storage->append(c);
    }
    return *storage;
}
