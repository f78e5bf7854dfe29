#include "ZARSysPlatform_posix.h"

#include <elfutils/libdwfl.h>
#include <unistd.h>

#include <cstdlib>
#include <mutex>

namespace ZARSysPlatform::Posix {

namespace {

// One description of the process's modules, read when first needed and again when an address
// lies in a module loaded since. libdw is not thread-safe: the mutex guards it.
class DebugInformation
{
public:
    static DebugInformation &Instance()
    {
        // Never destroyed: threads or late destructors may still resolve frames at exit.
        static DebugInformation *const information = new DebugInformation;
        return *information;
    }

    void Resolve(std::uintptr_t pc, FrameSymbol &symbol)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        if (!dwfl)
            return;
        Dwfl_Module *module = dwfl_addrmodule(dwfl, pc);
        if (!module) {
            Report();
            module = dwfl_addrmodule(dwfl, pc);
        }
        if (!module)
            return;
        if (symbol.function.empty())
            symbol.function = demangled(dwfl_module_addrname(module, pc));
        if (Dwfl_Line *line = dwfl_module_getsrc(module, pc)) {
            Dwarf_Addr lineAddress = 0;
            int lineNumber = 0;
            if (const char *file =
                    dwfl_lineinfo(line, &lineAddress, &lineNumber, nullptr, nullptr, nullptr)) {
                symbol.sourceFile = fromUtf8(file);
                symbol.line = lineNumber;
                symbol.offsetFromLine = pc >= lineAddress ? int(pc - lineAddress) : -1;
            }
        }
    }

private:
    DebugInformation()
    {
        static const Dwfl_Callbacks callbacks = {dwfl_linux_proc_find_elf,
                                                 dwfl_standard_find_debuginfo, nullptr, nullptr};
        dwfl = dwfl_begin(&callbacks);
        if (dwfl)
            Report();
    }
    // Separate debug information is looked for on this machine only: with DEBUGINFOD_URLS set,
    // libdw would download it, holding every resolving thread for as long as that takes.
    static int FindDebugInformation(Dwfl_Module *module, void **userData, const char *moduleName,
                                    Dwarf_Addr base, const char *fileName, const char *debugLink,
                                    GElf_Word crc, char **debugInfoFileName)
    {
        const char *servers = std::getenv("DEBUGINFOD_URLS");
        if (servers && *servers)
            return -1;
        return dwfl_standard_find_debuginfo(module, userData, moduleName, base, fileName, debugLink,
                                            crc, debugInfoFileName);
    }

    void Report()
    {
        dwfl_report_begin(dwfl);
        dwfl_linux_proc_report(dwfl, getpid());
        dwfl_report_end(dwfl, nullptr, nullptr);
    }

    std::mutex mutex;
    Dwfl *dwfl = nullptr;
};
} // namespace

void ResolveFromDebugInformation(std::uintptr_t pc, FrameSymbol &symbol)
{
    DebugInformation::Instance().Resolve(pc, symbol);
}

} // namespace ZARSysPlatform::Posix
