#include "names.h"

#include "errors.h"

#include <QHash>
#include <QMetaEnum>
#include <QSet>

#include <algorithm>
#include <vector>

namespace Names {

namespace {

QString unknown(const QString &what, const QString &text, const QStringList &matches,
                const QString &listing)
{
    QString message = QStringLiteral("unknown %1 \"%2\"").arg(what, text);
    if (!matches.isEmpty())
        message += QStringLiteral("; did you mean %1?").arg(matches.join(QStringLiteral(", ")));
    else
        message += QStringLiteral("; \"%1\" lists them").arg(listing);
    return message;
}

} // namespace

QString magnitudeLabel(ZARSysValue::Magnitude magnitude)
{
    return ZARSysValue::tr(ZARSysValue::GetMagnitudeLabel(magnitude).toUtf8().constData());
}

int editDistance(const QString &a, const QString &b)
{
    // One row of the classic table at a time.
    std::vector<int> row(size_t(b.size()) + 1);
    for (size_t j = 0; j < row.size(); ++j)
        row[j] = int(j);
    for (qsizetype i = 1; i <= a.size(); ++i) {
        int diagonal = row[0];
        row[0] = int(i);
        for (qsizetype j = 1; j <= b.size(); ++j) {
            const int above = row[size_t(j)];
            const int substitution = diagonal + (a.at(i - 1) == b.at(j - 1) ? 0 : 1);
            row[size_t(j)] = std::min({above + 1, row[size_t(j) - 1] + 1, substitution});
            diagonal = above;
        }
    }
    return row.back();
}

QStringList closeMatches(const QString &text, const QStringList &candidates, int limit)
{
    const QString folded = text.toCaseFolded();
    if (folded.isEmpty())
        return {};
    std::vector<std::pair<int, QString>> scored;
    QSet<QString> seen;
    for (const QString &candidate : candidates) {
        if (candidate.isEmpty() || seen.contains(candidate))
            continue;
        seen.insert(candidate);
        const QString other = candidate.toCaseFolded();
        const int distance = editDistance(folded, other);
        // A third of the longer name may be wrong; a name that begins the other counts as
        // close too, just behind the typing mistakes.
        const int allowed = std::max<int>(1, int(std::max(folded.size(), other.size()) / 3));
        const bool prefix = std::min(folded.size(), other.size()) >= 2
            && (other.startsWith(folded) || folded.startsWith(other));
        if (distance <= allowed)
            scored.emplace_back(distance, candidate);
        else if (prefix)
            scored.emplace_back(allowed + 1, candidate);
    }
    std::stable_sort(scored.begin(), scored.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });
    QStringList result;
    for (const auto &entry : scored) {
        if (result.size() == limit)
            break;
        result.append(entry.second);
    }
    return result;
}

QString describe(ZARSysValue::Unit unit)
{
    // A settings file may hold any number as a current unit.
    if (ZARSysValue::GetUnitSuffix(unit).isEmpty())
        return QStringLiteral("unknown unit %1").arg(int(unit));
    return QStringLiteral("%1 (%2)").arg(ZARSysValue::GetUnitString(unit),
                                         ZARSysValue::GetUnitSuffix(unit));
}

ZARSysValue::Magnitude magnitude(const QString &text)
{
    QStringList candidates;
    for (ZARSysValue::Magnitude magnitude : ZARSysValue::GetAllMagnitudes()) {
        if (text == ZARSysValue::GetMagnitudeString(magnitude)
            || text == ZARSysValue::GetMagnitudeLabel(magnitude)
            || text == magnitudeLabel(magnitude))
            return magnitude;
        candidates << ZARSysValue::GetMagnitudeString(magnitude) << magnitudeLabel(magnitude);
    }
    throw UsageError {unknown(QStringLiteral("magnitude"), text, closeMatches(text, candidates),
                              QStringLiteral("zarsys units"))};
}

ZARSysValue::Unit unit(const QString &text)
{
    for (auto lookup : {ZARSysValue::GetUnitFromString, ZARSysValue::GetUnitFromSuffix,
                        ZARSysValue::GetUnitFromLabel}) {
        const ZARSysValue::Unit unit = lookup(text);
        if (unit != ZARSysValue::InvalidUnit)
            return unit;
    }

    // Every name of a unit leads to the unit, which is what the message offers.
    QStringList candidates;
    QHash<QString, ZARSysValue::Unit> units;
    for (ZARSysValue::Unit unit : ZARSysValue::GetAllUnits()) {
        for (const QString &name :
             {ZARSysValue::GetUnitString(unit), ZARSysValue::GetUnitSuffix(unit),
              ZARSysValue::GetUnitLabel(unit)}) {
            candidates << name;
            units.insert(name, unit);
        }
    }
    QStringList matches;
    for (const QString &name : closeMatches(text, candidates, 10)) {
        const QString description = describe(units.value(name));
        if (!matches.contains(description))
            matches << description;
    }
    throw UsageError {
        unknown(QStringLiteral("unit"), text, matches.mid(0, 5), QStringLiteral("zarsys units"))};
}

ZARSysRatio::Decoration decoration(const QString &text)
{
    const QMetaEnum names = QMetaEnum::fromType<ZARSysRatio::Decoration>();
    QStringList candidates;
    for (ZARSysRatio::Decoration decoration : ZARSysRatio::GetDecorations()) {
        const QString name = QString::fromLatin1(names.valueToKey(decoration));
        const QString sign = ZARSysRatio::GetDecorationSuffix(decoration);
        const QString label = ZARSysRatio::GetDecorationLabel(decoration);
        if (text == name || (!sign.isEmpty() && text == sign) || text == label)
            return decoration;
        candidates << name << label;
    }
    throw UsageError {unknown(QStringLiteral("decoration"), text, closeMatches(text, candidates),
                              QStringLiteral("zarsys ratio --help"))};
}

} // namespace Names
