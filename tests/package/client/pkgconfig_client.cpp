// Built with nothing but the flags pkg-config gives for ZARSystem.

#include <ZARSysException.h>
#include <ZARSysSettingsManager.h>

#include <cstdio>

int main()
{
    try {
        ZARSysTextFormatException(QStringLiteral("bad token"), 3, 7).raise();
    } catch (const ZARSysTextFormatException &e) {
        if (e.GetText()
            != QLatin1String("An error was found in the file format at line 3 column 7: bad token"))
            return 1;
    }
    if (!ZARSysSettingsManager::GetManager() || ZARSysSettingsManager::GetManager()->GetSource())
        return 1;
    std::puts("client: ok");
    return 0;
}
