#include "ZARSysPlatform.h"

#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>

#include <dbghelp.h>
#include <objbase.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cwchar>
#include <mutex>
#include <vector>

#ifdef _MSC_VER
#define ZARSYS_NOINLINE __declspec(noinline)
#else
#define ZARSYS_NOINLINE __attribute__((noinline))
#endif

static_assert(sizeof(wchar_t) == sizeof(char16_t), "UTF-16 text is passed to the wide API as is");

namespace ZARSysPlatform {

namespace {

const wchar_t *wide(const std::u16string &text)
{
    return reinterpret_cast<const wchar_t *>(text.c_str());
}

std::u16string fromWide(const wchar_t *text, std::size_t length)
{
    return std::u16string(reinterpret_cast<const char16_t *>(text), length);
}

} // namespace

std::u16string ModuleFileName(const void *address)
{
    if (!address)
        return std::u16string();
    HMODULE module = nullptr;
    if (!GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS
                                | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                            static_cast<LPCWSTR>(address), &module))
        return std::u16string();

    // The call truncates silently and returns the buffer size when the name does not fit, so
    // grow the buffer until it is not filled completely.
    std::vector<wchar_t> buffer(1);
    while (true) {
        const DWORD size = DWORD(buffer.size());
        const DWORD length = GetModuleFileNameW(module, buffer.data(), size);
        if (length == 0)
            return std::u16string();
        if (length < size)
            return fromWide(buffer.data(), length);
        if (size >= 0x8000u * 2) // far beyond the longest path Windows accepts
            return std::u16string();
        buffer.resize(std::size_t(size) * 2);
    }
}

FileVersion ModuleFileVersion(const std::u16string &path)
{
    FileVersion version;
    DWORD handle = 0;
    const DWORD size = GetFileVersionInfoSizeW(wide(path), &handle);
    if (size == 0) {
        version.status = FileVersionStatus::NoVersionInfo;
        return version;
    }
    std::vector<unsigned char> block(size);
    if (!GetFileVersionInfoW(wide(path), 0, size, block.data())) {
        version.status = FileVersionStatus::ReadFailed;
        return version;
    }
    VS_FIXEDFILEINFO *info = nullptr;
    UINT length = 0;
    if (!VerQueryValueW(block.data(), L"\\", reinterpret_cast<void **>(&info), &length) || !info
        || length < sizeof(VS_FIXEDFILEINFO)) {
        version.status = FileVersionStatus::QueryFailed;
        return version;
    }
    version.parts = {HIWORD(info->dwFileVersionMS), LOWORD(info->dwFileVersionMS),
                     HIWORD(info->dwFileVersionLS), LOWORD(info->dwFileVersionLS)};
    version.status = FileVersionStatus::Ok;
    return version;
}

std::optional<std::u16string> ShortPathName(const std::u16string &path)
{
    wchar_t buffer[MAX_PATH];
    const DWORD length = GetShortPathNameW(wide(path), buffer, MAX_PATH);
    // A result that does not fit comes back as the size it would need.
    if (length == 0 || length >= MAX_PATH)
        return std::nullopt;
    return fromWide(buffer, length);
}

bool SetLibraryDirectory(const std::u16string &directory)
{
    return SetDllDirectoryW(wide(directory)) != FALSE;
}

std::optional<std::u16string> ReadEnvironmentVariable(const std::u16string &name)
{
    std::vector<wchar_t> buffer(256);
    while (true) {
        SetLastError(ERROR_SUCCESS);
        const DWORD length =
            GetEnvironmentVariableW(wide(name), buffer.data(), DWORD(buffer.size()));
        if (length == 0) {
            if (GetLastError() == ERROR_ENVVAR_NOT_FOUND)
                return std::nullopt;
            return std::u16string(); // set, but empty
        }
        if (length < buffer.size())
            return fromWide(buffer.data(), length);
        buffer.resize(length); // the size needed, terminator included
    }
}

bool WriteEnvironmentVariable(const std::u16string &name, const std::u16string &value)
{
    return ::SetEnvironmentVariableW(wide(name), wide(value)) != FALSE;
}

std::u16string ExecutableName(const std::u16string &baseName)
{
    return baseName + u".exe";
}

bool FindsQtThroughLibraryFolder()
{
    return true;
}

EnvironmentPathEncoding PathEncodingForEnvironment()
{
    return EnvironmentPathEncoding::Latin1;
}

bool PrependToSearchPath(const std::u16string &folder)
{
    const std::u16string name = u"PATH";
    return WriteEnvironmentVariable(
        name, folder + u';' + ReadEnvironmentVariable(name).value_or(std::u16string()));
}

bool UsesDriveLetterPaths()
{
    return true;
}

std::optional<ProgramCall> FileBrowserSelection(const std::u16string &nativePath, bool isFolder)
{
    return ProgramCall {u"explorer.exe", {isFolder ? nativePath : u"/select," + nativePath}};
}

bool HasStandardOutput()
{
    return GetStdHandle(STD_OUTPUT_HANDLE) != nullptr;
}

bool OpenConsole()
{
    // The streams are reopened even when the process had a console already and AllocConsole()
    // refused to make another.
    const bool opened = AllocConsole() != FALSE;
    FILE *stream = nullptr;
    freopen_s(&stream, "CONOUT$", "w", stdout);
    freopen_s(&stream, "CONOUT$", "w", stderr);
    return opened;
}

bool InitializeCom()
{
    return CoInitialize(nullptr) == S_OK;
}

void UninitializeCom()
{
    CoUninitialize();
}

ZARSYS_NOINLINE std::size_t CaptureStack(std::size_t skip, void **frames, std::size_t capacity)
{
    capacity = std::min(capacity, MaxCapturedFrames);
    if (!frames || capacity == 0 || skip > 0xFFFF)
        return 0;
    // One more to skip: this function's own frame.
    return RtlCaptureStackBackTrace(DWORD(skip + 1), DWORD(capacity), frames, nullptr);
}

FrameSymbol ResolveFrame(const void *returnAddress)
{
    FrameSymbol symbol;
    if (!returnAddress)
        return symbol;
    // The call that the address returns from: one byte before it.
    const DWORD64 pc = DWORD64(reinterpret_cast<std::uintptr_t>(returnAddress)) - 1;
    symbol.imagePath = ModuleFileName(reinterpret_cast<const void *>(std::uintptr_t(pc)));
    const std::u16string::size_type separator = symbol.imagePath.find_last_of(u"\\/");
    symbol.module = separator == std::u16string::npos ? symbol.imagePath
                                                      : symbol.imagePath.substr(separator + 1);

    // DbgHelp is single-threaded; it is set up once, on a process handle of its own so that a
    // host that uses DbgHelp too is not disturbed, and told again about modules loaded since
    // when an address is not found. Neither is destroyed: frames may be resolved at exit.
    static std::mutex *const mutex = new std::mutex;
    const std::lock_guard<std::mutex> lock(*mutex);
    static const HANDLE process = [] {
        HANDLE own = nullptr;
        if (!DuplicateHandle(GetCurrentProcess(), GetCurrentProcess(), GetCurrentProcess(), &own, 0,
                             FALSE, DUPLICATE_SAME_ACCESS))
            return HANDLE(nullptr);
        SymSetOptions(SymGetOptions() | SYMOPT_UNDNAME | SYMOPT_DEFERRED_LOADS | SYMOPT_LOAD_LINES);
        if (!SymInitializeW(own, nullptr, TRUE)) {
            CloseHandle(own);
            return HANDLE(nullptr);
        }
        return own;
    }();
    if (!process)
        return symbol;

    alignas(SYMBOL_INFOW) unsigned char storage[sizeof(SYMBOL_INFOW) + 512 * sizeof(wchar_t)] = {};
    auto *info = reinterpret_cast<SYMBOL_INFOW *>(storage);
    info->SizeOfStruct = sizeof(SYMBOL_INFOW);
    info->MaxNameLen = 512;
    DWORD64 displacement = 0;
    BOOL found = SymFromAddrW(process, pc, &displacement, info);
    if (!found && SymRefreshModuleList(process))
        found = SymFromAddrW(process, pc, &displacement, info);
    // Without debug information DbgHelp names an address after the export before it, which is
    // the wrong function unless the address is the export itself.
    if (found && !((info->Flags & SYMFLAG_EXPORT) && displacement != 0))
        symbol.function = fromWide(info->Name, wcsnlen(info->Name, info->MaxNameLen));

    IMAGEHLP_LINEW64 line = {};
    line.SizeOfStruct = sizeof(line);
    DWORD lineDisplacement = 0;
    if (SymGetLineFromAddrW64(process, pc, &lineDisplacement, &line) && line.FileName) {
        symbol.sourceFile = fromWide(line.FileName, std::wcslen(line.FileName));
        symbol.line = int(line.LineNumber);
        symbol.offsetFromLine = int(lineDisplacement);
    }
    return symbol;
}

} // namespace ZARSysPlatform
