#include "ZARSysInitContext.h"

#include "ZARSysSettingsManager.h"
#include "ZARSysStartupRegistry.h"

namespace {

// Runs the callbacks of list in order, by index: a callback may register more, which then
// run too, and appending may move the list's storage. Returns how many ran.
template<typename Function, typename... Arguments>
qsizetype runAll(QList<Function> &list, const Arguments &...arguments)
{
    qsizetype i = 0;
    for (; i < list.size(); ++i) {
        const Function callback = list.at(i);
        callback(arguments...);
    }
    return i;
}

// Removes the first count callbacks; clear() keeps the capacity and releases a shared copy.
template<typename Function>
void removeRun(QList<Function> &list, qsizetype count)
{
    if (count == list.size())
        list.clear();
    else
        list.remove(0, count);
}

} // namespace

ZARSysInitContext::ZARSysInitContext(const QList<int> &flags)
{
    if (ZARSysSettingsManager *manager = ZARSysSettingsManager::GetManager())
        manager->LoadUninitSettings();

    ZARSysStartupRegistry &registry = ZARSysStartupRegistry::Instance();
    const qsizetype plainRun = runAll(registry.initializers);
    const qsizetype flaggedRun = runAll(registry.flaggedInitializers, flags);

    removeRun(registry.initializers, plainRun);
    removeRun(registry.flaggedInitializers, flaggedRun);
    ++registry.contextCount;
}

ZARSysInitContext::~ZARSysInitContext() noexcept(false)
{
    ZARSysStartupRegistry &registry = ZARSysStartupRegistry::Instance();
    // Unsigned: a destruction without a construction wraps the count around.
    if (registry.contextCount-- != 1)
        return;
    removeRun(registry.terminators, runAll(registry.terminators));
}

ZARSysInitContext &ZARSysInitContext::operator=(const ZARSysInitContext &)
{
    return *this;
}
