#include "ZARSysQuantityTypes.h"

#include "ZARSysDefinedValue.h"
#include "ZARSysRatio.h"
#include "ZARSysUnitCatalog.h"
#include "ZARSysValue.h"

#include <QList>
#include <QMetaType>
#include <QString>

#include <array>
#include <mutex>
#include <utility>

namespace {

using Magnitude = ZARSysValue::Magnitude;

// The six converters of ZARSysDefinedValue<M>. A pair that is registered already is left as
// it is; Qt unregisters the ones registered here when the library is unloaded.
template<Magnitude M>
void registerDefinedValueConverters()
{
    using D = ZARSysDefinedValue<M>;
    QMetaType::registerConverter<D, double>([](const D &v) { return v.GetValue(); });
    QMetaType::registerConverter<D, ZARSysValue>([](const D &v) { return v.ToSysValue(); });
    QMetaType::registerConverter<D, QString>([](const D &v) { return v.ToString(); });
    QMetaType::registerConverter<QString, D>([](const QString &text) {
        const ZARSysValue parsed = ZARSysValue::FromString(text);
        return parsed.GetMagnitude() == M ? D(parsed) : D();
    });
    QMetaType::registerConverter<ZARSysValue, D>([](const ZARSysValue &v) { return D(v); });
    QMetaType::registerConverter<double, D>([](double v) { return D(v); });
}

// Entry m registers the converters of ZARSysDefinedValue<m>, for the magnitudes 1 to Area.
template<std::size_t... I>
constexpr auto definedValueRegistrations(std::index_sequence<I...>)
{
    return std::array<void (*)(), sizeof...(I) + 1> {
        nullptr, &registerDefinedValueConverters<Magnitude(I + 1)>...};
}

constexpr auto definedValueConverters =
    definedValueRegistrations(std::make_index_sequence<ZARSysValue::Area>());

void registerDefinedValueConvertersOf(Magnitude magnitude)
{
    if (magnitude > 0 && std::size_t(magnitude) < definedValueConverters.size())
        definedValueConverters[magnitude]();
}

// Converters between the plain quantity types and text or numbers, for QVariant.
void registerQuantityConverters()
{
    QMetaType::registerConverter<ZARSysValue, QString>(
        [](const ZARSysValue &value) { return value.ToString(); });
    QMetaType::registerConverter<QString, ZARSysValue>(&ZARSysValue::FromString);
    QMetaType::registerConverter<ZARSysRatio, QString>(
        [](const ZARSysRatio &ratio) { return ratio.ToString(); });
    QMetaType::registerConverter<QString, ZARSysRatio>(&ZARSysRatio::FromString);
    QMetaType::registerConverter<ZARSysRatio, double>(
        [](const ZARSysRatio &ratio) { return ratio.GetValue(); });
    QMetaType::registerConverter<double, ZARSysRatio>(
        [](double value) { return ZARSysRatio(value); });
}

// Types that travel in variants and queued connections, under their names. A name that is the
// type's own is not registered again.
void registerQuantityMetaTypes()
{
    qRegisterMetaType<ZARSysValue>("ZARSysValue");
    qRegisterMetaType<ZARSysValue::Unit>("ZARSysValue::Unit");
    qRegisterMetaType<ZARSysValue::Magnitude>("ZARSysValue::Magnitude");
    qRegisterMetaType<ZARSysRatio>("ZARSysRatio");
    qRegisterMetaType<ZARSysRatio::Decoration>("ZARSysRatio::Decoration");
    qRegisterMetaType<QList<double>>("QList<double>");
}

} // namespace

// Defined here rather than with the value: filling the catalogue registers each magnitude's
// typed-value converters right after the magnitude itself.
void ZARSysValue::Initialize()
{
    static std::once_flag filled;
    std::call_once(filled,
                   [] { ZARSysUnitCatalog::Instance().Fill(&registerDefinedValueConvertersOf); });
}

void ZARSysRegisterQuantityTypes()
{
    ZARSysValue::Initialize();
    registerQuantityConverters();
    registerQuantityMetaTypes();
}
