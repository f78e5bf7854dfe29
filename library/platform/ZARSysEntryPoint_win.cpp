// The entry point of ZARSystem.dll. Loading the library does nothing beyond its static
// initialisers; the library keeps no per-thread state, so it asks not to be called for every
// thread that starts or ends.

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID /*reserved*/)
{
    if (reason == DLL_PROCESS_ATTACH)
        DisableThreadLibraryCalls(instance);
    return TRUE;
}
