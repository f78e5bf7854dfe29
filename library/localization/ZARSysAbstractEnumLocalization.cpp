#include "ZARSysAbstractEnumLocalization.h"

#include "ZARSysAbstractEnumLocalizationPrivate.h"
#include "ZARSysException.h"

#include <QHash>
#include <QMultiHash>

using namespace Qt::StringLiterals;

namespace {

struct Registry
{
    QHash<int, std::function<QString(int)>> textFunctions;
    // Values of one type come back newest first.
    QMultiHash<int, int> values;
};

Registry &registry()
{
    static Registry instance;
    return instance;
}

} // namespace

void ZARSysAbstractEnumLocalization::RegisterValueLocalization(
    int type, const QList<int> &values, const std::function<QString(int)> &toText)
{
    Registry &r = registry();
    for (int value : values)
        r.values.insert(type, value);
    r.textFunctions.insert(type, toText);
}

bool ZARSysAbstractEnumLocalization::IsRegistered(int type)
{
    return registry().textFunctions.contains(type);
}

ZARSysAbstractEnumLocalization::ZARSysAbstractEnumLocalization(int type)
    : d(std::make_unique<ZARSysAbstractEnumLocalizationPrivate>(type))
{
    const Registry &r = registry();
    const auto function = r.textFunctions.constFind(type);
    if (function == r.textFunctions.cend())
        throw ZARSysException(u"type has not been registered"_s);

    // Copies: the text function may register more.
    const std::function<QString(int)> toText = *function;
    const QList<int> values = r.values.values(type);
    // Newest first, so for a text shared by several values the one registered first is the
    // last to be inserted and wins.
    for (const int value : values) {
        const QString text = toText(value);
        d->textByValue.insert(value, text);
        d->valueByText.insert(text, value);
    }
}

ZARSysAbstractEnumLocalization::~ZARSysAbstractEnumLocalization() = default;

QList<int> ZARSysAbstractEnumLocalization::GetRegisteredIntegers() const
{
    return d->textByValue.keys();
}

QString ZARSysAbstractEnumLocalization::GetStringFromInteger(int value) const
{
    return d->textByValue.value(value);
}

int ZARSysAbstractEnumLocalization::GetIntegerFromString(const QString &text,
                                                         int defaultValue) const
{
    return d->valueByText.value(text, defaultValue);
}

QString ZARSysAbstractEnumLocalization::IntegerToString(int type, int value)
{
    const Registry &r = registry();
    const auto function = r.textFunctions.constFind(type);
    if (function == r.textFunctions.cend())
        return QString();
    const std::function<QString(int)> toText = *function; // may register more
    return toText(value);
}

int ZARSysAbstractEnumLocalization::StringToInteger(int type, const QString &text)
{
    const Registry &r = registry();
    const auto function = r.textFunctions.constFind(type);
    if (function == r.textFunctions.cend())
        return 0;
    // Copies: the text function may register more.
    const std::function<QString(int)> toText = *function;
    const QList<int> values = r.values.values(type);
    for (const int value : values) {
        if (toText(value) == text)
            return value;
    }
    return 0;
}
