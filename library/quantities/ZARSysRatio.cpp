#include "ZARSysRatio.h"

#include "ZARSysLibrarySettings.h"
#include "ZARSysLocalizationManager.h"
#include "ZARSysQuantityText.h"

#include <QLocale>
#include <QPointer>

#include <atomic>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double tolerance = 1e-6;
constexpr char16_t permilleSign = u'\u2030';
constexpr char16_t permyriadSign = u'\u2031';

// Set by SetDecoration(); 0 while the setting decides.
std::atomic<int> currentDecoration {ZARSysRatio::InvalidDecoration};

ZARSysSettings *ratioSettings()
{
    // The settings manager deletes the group when the library is unloaded. If a group of that
    // name exists already, the stored decoration cannot be read and per cent applies.
    static const QPointer<ZARSysSettings> settings =
        ZARSysLibrarySettings::Open(QByteArrayLiteral("System/Ratios"));
    return settings.data();
}

// The locale's notation made C notation, without spaces.
QString normalizedNumberText(const QString &text)
{
    QString compact = text;
    compact.remove(u' ');
    return ZARSysQuantityText::ToCNotation(compact,
                                           ZARSysLocalizationManager::GetManager()->GetLocale());
}

// What SetValue() and FromString() share: the number ends at the last digit, and the sign after
// it picks the decoration. fallback is the decoration for an unknown sign (the current one when
// it is invalid), and for no sign at all unless lookUpEmptySuffix makes that None.
double parseRatio(const QString &text, ZARSysRatio::Decoration fallback, bool lookUpEmptySuffix)
{
    const QString normalized = normalizedNumberText(text);
    qsizetype last = normalized.size() - 1;
    while (last >= 0 && !normalized.at(last).isDigit())
        --last;
    if (last < 0)
        return 0.0;

    QString storage;
    const QStringView suffix = ZARSysQuantityText::WithoutNonCharacters(
        QStringView(normalized).sliced(last + 1), &storage);
    ZARSysRatio::Decoration decoration = ZARSysRatio::InvalidDecoration;
    if (lookUpEmptySuffix || !suffix.isEmpty())
        decoration = ZARSysRatio::GetSuffixDecoration(suffix.toString());
    if (decoration == ZARSysRatio::InvalidDecoration)
        decoration = fallback;
    if (decoration == ZARSysRatio::InvalidDecoration)
        decoration = ZARSysRatio::GetCurrentDecoration();

    const double number = QStringView(normalized).first(last + 1).toDouble();
    return number / ZARSysRatio::GetDecorationScale(decoration);
}

} // namespace

double ZARSysRatio::GetValue(Decoration decoration) const
{
    return m_value * GetDecorationScale(decoration);
}

void ZARSysRatio::SetValue(double value, Decoration /*decoration*/)
{
    m_value = value;
}

void ZARSysRatio::SetValue(const QString &text, Decoration decoration)
{
    m_value = parseRatio(text, decoration, true);
}

ZARSysRatio ZARSysRatio::FromString(const QString &text)
{
    return ZARSysRatio(parseRatio(text, InvalidDecoration, false));
}

QString ZARSysRatio::ToString(Decoration decoration) const
{
    const QLocale locale = ZARSysLocalizationManager::GetManager()->GetLocale();
    // Appended in place: no third string for the sum.
    QString text = locale.toString(m_value * GetDecorationScale(decoration), 'g', 6);
    text += GetDecorationSuffix(decoration);
    return text;
}

QString ZARSysRatio::ToString() const
{
    return ToString(GetCurrentDecoration());
}

ZARSysRatio::Decoration ZARSysRatio::GetCurrentDecoration()
{
    if (const int decoration = currentDecoration.load(std::memory_order_relaxed))
        return Decoration(decoration);
    // Not kept: until SetDecoration() every call reads the setting again.
    static const QByteArray key = QByteArrayLiteral("Decoration");
    const ZARSysSettings *settings = ratioSettings();
    return Decoration(settings ? settings->GetValue(key, int(Percentage)).toInt()
                               : int(Percentage));
}

void ZARSysRatio::SetDecoration(Decoration decoration)
{
    currentDecoration.store(decoration, std::memory_order_relaxed);
}

QList<ZARSysRatio::Decoration> ZARSysRatio::GetDecorations()
{
    static const QList<Decoration> decorations = {None, Percentage, Permille, Permyriad};
    return decorations;
}

double ZARSysRatio::GetDecorationScale(Decoration decoration)
{
    switch (decoration) {
    case Percentage:
        return 100;
    case Permille:
        return 1000;
    case Permyriad:
        return 10000;
    case None:
    case InvalidDecoration:
        break;
    }
    return 1;
}

QString ZARSysRatio::GetDecorationSuffix(Decoration decoration)
{
    switch (decoration) {
    case Percentage:
        return QLocale().percent();
    case Permille:
        return QString(QChar(permilleSign));
    case Permyriad:
        return QString(QChar(permyriadSign));
    case None:
    case InvalidDecoration:
        break;
    }
    return QString();
}

QString ZARSysRatio::GetDecorationLabel(Decoration decoration)
{
    switch (decoration) {
    case None:
        return tr("None");
    case Percentage:
        return tr("Percentage (%1)").arg(QLocale().percent(), 0, u' ');
    case Permille:
        return tr("Permille (%1)").arg(QChar(permilleSign), 0, u' ');
    case Permyriad:
        return tr("Permyriad (%1)").arg(QChar(permyriadSign), 0, u' ');
    case InvalidDecoration:
        break;
    }
    return QString();
}

ZARSysRatio::Decoration ZARSysRatio::GetSuffixDecoration(const QString &text)
{
    const QString sign = text.simplified();
    if (sign.isEmpty())
        return None;
    if (sign == QLocale().percent())
        return Percentage;
    if (sign.size() == 1 && sign.at(0) == QChar(permilleSign))
        return Permille;
    if (sign.size() == 1 && sign.at(0) == QChar(permyriadSign))
        return Permyriad;
    return InvalidDecoration;
}

bool ZARSysRatio::operator==(const ZARSysRatio &other) const
{
    return std::abs(m_value - other.m_value) < tolerance;
}

bool ZARSysRatio::operator!=(const ZARSysRatio &other) const
{
    return std::abs(m_value - other.m_value) >= tolerance;
}

bool ZARSysRatio::operator<(const ZARSysRatio &other) const
{
    return m_value < other.m_value - tolerance;
}

bool ZARSysRatio::operator<=(const ZARSysRatio &other) const
{
    return m_value < other.m_value + tolerance;
}

bool ZARSysRatio::operator>(const ZARSysRatio &other) const
{
    return m_value > other.m_value + tolerance;
}

bool ZARSysRatio::operator>=(const ZARSysRatio &other) const
{
    return m_value > other.m_value - tolerance;
}

#include "moc_ZARSysRatio.cpp"
