#include "ZARSysPlatform_posix.h"
#include "ZARSysPlatform.h"

#define UNW_LOCAL_ONLY
#include <libunwind.h>

#include <cxxabi.h>
#include <dlfcn.h>
#include <link.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <climits>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <memory>
#include <mutex>

namespace ZARSysPlatform {

namespace {

void appendUtf8(std::string &out, char32_t c)
{
    if (c < 0x80) {
        out += char(c);
    } else if (c < 0x800) {
        out += char(0xC0 | (c >> 6));
        out += char(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += char(0xE0 | (c >> 12));
        out += char(0x80 | ((c >> 6) & 0x3F));
        out += char(0x80 | (c & 0x3F));
    } else {
        out += char(0xF0 | (c >> 18));
        out += char(0x80 | ((c >> 12) & 0x3F));
        out += char(0x80 | ((c >> 6) & 0x3F));
        out += char(0x80 | (c & 0x3F));
    }
}

} // namespace

namespace Posix {

std::string toUtf8(const std::u16string &text)
{
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t c = text[i];
        if (c >= 0xD800 && c <= 0xDBFF && i + 1 < text.size() && text[i + 1] >= 0xDC00
            && text[i + 1] <= 0xDFFF) {
            c = 0x10000 + ((c - 0xD800) << 10) + (text[i + 1] - 0xDC00);
            ++i;
        } else if (c >= 0xD800 && c <= 0xDFFF) {
            c = 0xFFFD;
        }
        appendUtf8(out, c);
    }
    return out;
}

std::u16string fromUtf8(const char *text)
{
    std::u16string out;
    const auto *p = reinterpret_cast<const unsigned char *>(text);
    while (*p) {
        const unsigned char lead = *p;
        int length = 0;
        char32_t c = 0;
        if (lead < 0x80) {
            length = 1;
            c = lead;
        } else if (lead >= 0xC2 && lead <= 0xDF) {
            length = 2;
            c = lead & 0x1F;
        } else if (lead >= 0xE0 && lead <= 0xEF) {
            length = 3;
            c = lead & 0x0F;
        } else if (lead >= 0xF0 && lead <= 0xF4) {
            length = 4;
            c = lead & 0x07;
        }
        int i = 1;
        for (; length > 0 && i < length; ++i) {
            if ((p[i] & 0xC0) != 0x80)
                break;
            c = (c << 6) | (p[i] & 0x3F);
        }
        const bool overlong = (length == 3 && c < 0x800) || (length == 4 && c < 0x10000);
        if (length == 0 || i < length || overlong || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) {
            out += char16_t(0xFFFD);
            p += std::max(i, 1);
            continue;
        }
        if (c >= 0x10000) {
            out += char16_t(0xD800 + ((c - 0x10000) >> 10));
            out += char16_t(0xDC00 + ((c - 0x10000) & 0x3FF));
        } else {
            out += char16_t(c);
        }
        p += length;
    }
    return out;
}

} // namespace Posix

using Posix::fromUtf8;
using Posix::toUtf8;

namespace {

// The version numbers in a shared library's file name: "libfoo.so.1.2.3" gives 1, 2, 3, 0.
FileVersion versionFromFileName(const std::string &path)
{
    FileVersion version;
    const std::size_t slash = path.rfind('/');
    const std::string name = path.substr(slash == std::string::npos ? 0 : slash + 1);
    const std::size_t so = name.rfind(".so.");
    if (so == std::string::npos)
        return version;

    std::size_t count = 0;
    std::size_t pos = so + 4;
    while (true) {
        if (count == version.parts.size() || pos >= name.size() || name[pos] < '0'
            || name[pos] > '9')
            return FileVersion();
        unsigned long number = 0;
        while (pos < name.size() && name[pos] >= '0' && name[pos] <= '9') {
            number = number * 10 + unsigned(name[pos] - '0');
            if (number > 0xFFFF)
                return FileVersion();
            ++pos;
        }
        version.parts[count++] = std::uint16_t(number);
        if (pos == name.size())
            break;
        if (name[pos] != '.')
            return FileVersion();
        ++pos;
    }
    version.status = FileVersionStatus::Ok;
    return version;
}

} // namespace

std::u16string ModuleFileName(const void *address)
{
    if (!address)
        return std::u16string();
    Dl_info info = {};
    link_map *map = nullptr;
    if (!dladdr1(address, &info, reinterpret_cast<void **>(&map), RTLD_DL_LINKMAP)
        || !info.dli_fname)
        return std::u16string();

    // The loader names the main program after argv[0], which may be relative or a bare name;
    // its link map entry has an empty name, and the kernel knows the real file.
    if (map && map->l_name && map->l_name[0] == '\0') {
        char buffer[PATH_MAX];
        const ssize_t length = readlink("/proc/self/exe", buffer, sizeof buffer - 1);
        if (length > 0) {
            buffer[length] = '\0';
            return fromUtf8(buffer);
        }
    }
    return fromUtf8(info.dli_fname);
}

FileVersion ModuleFileVersion(const std::u16string &path)
{
    char *real = realpath(toUtf8(path).c_str(), nullptr);
    if (!real)
        return FileVersion();
    const std::string resolved(real);
    std::free(real);
    return versionFromFileName(resolved);
}

std::optional<std::u16string> ShortPathName(const std::u16string &path)
{
    struct stat status;
    if (path.empty() || stat(toUtf8(path).c_str(), &status) != 0)
        return std::nullopt;
    return path;
}

bool SetLibraryDirectory(const std::u16string &)
{
    return true;
}

std::optional<std::u16string> ReadEnvironmentVariable(const std::u16string &name)
{
    const char *value = std::getenv(toUtf8(name).c_str());
    if (!value)
        return std::nullopt;
    return fromUtf8(value);
}

bool WriteEnvironmentVariable(const std::u16string &name, const std::u16string &value)
{
    return setenv(toUtf8(name).c_str(), toUtf8(value).c_str(), 1) == 0;
}

std::u16string ExecutableName(const std::u16string &baseName)
{
    return baseName;
}

bool FindsQtThroughLibraryFolder()
{
    return false;
}

EnvironmentPathEncoding PathEncodingForEnvironment()
{
    return EnvironmentPathEncoding::FileName;
}

bool PrependToSearchPath(const std::u16string &folder)
{
    const std::string bytes = toUtf8(folder);
    const char *current = std::getenv("PATH");
    const std::string path = current ? current : "";
    const std::string value = bytes.empty() || path.empty() ? bytes + path : bytes + ':' + path;
    return setenv("PATH", value.c_str(), 1) == 0;
}

bool UsesDriveLetterPaths()
{
    return false;
}

std::optional<ProgramCall> FileBrowserSelection(const std::u16string &, bool)
{
    return std::nullopt;
}

bool HasStandardOutput()
{
    return true;
}

bool OpenConsole()
{
    return false;
}

bool InitializeCom()
{
    return false;
}

void UninitializeCom() { }

// ThreadSanitizer ends its record of a thread before the thread's specific data is destroyed,
// and the per-thread cache behind unw_backtrace() frees itself there under a lock, which then
// crashes at every thread's exit. Builds with that sanitizer step through the frames instead,
// which needs no cache.
#if defined(__SANITIZE_THREAD__)
#define ZARSYS_STEP_FRAMES
#elif defined(__has_feature)
#if __has_feature(thread_sanitizer)
#define ZARSYS_STEP_FRAMES
#endif
#endif

// Not inlined, so that its own frame is always the first one libunwind reports.
__attribute__((noinline)) std::size_t CaptureStack(std::size_t skip, void **frames,
                                                   std::size_t capacity)
{
    capacity = std::min(capacity, MaxCapturedFrames);
    if (!frames || capacity == 0)
        return 0;

    // unw_backtrace() starts with an address in this function; one frame more to drop. Large
    // skips are served from a heap buffer.
    constexpr std::size_t inlineSkip = 64;
    if (skip > 0xFFFF)
        return 0;
    skip += 1;
    const std::size_t wanted = skip + capacity;
    void *local[inlineSkip + 1 + MaxCapturedFrames];
    void **buffer = local;
    std::unique_ptr<void *[]> heap;
    if (wanted > std::size(local)) {
        heap.reset(new void *[wanted]);
        buffer = heap.get();
    }
#ifdef ZARSYS_STEP_FRAMES
    int captured = 0;
    unw_context_t context;
    unw_cursor_t cursor;
    if (unw_getcontext(&context) == 0 && unw_init_local(&cursor, &context) == 0) {
        do {
            unw_word_t address = 0;
            if (unw_get_reg(&cursor, UNW_REG_IP, &address) < 0 || address == 0)
                break;
            buffer[captured++] = reinterpret_cast<void *>(address);
        } while (std::size_t(captured) < wanted && unw_step(&cursor) > 0);
    }
#else
    const int captured = unw_backtrace(buffer, int(wanted));
#endif
    if (captured <= 0 || std::size_t(captured) <= skip)
        return 0;
    const std::size_t count = std::size_t(captured) - skip;
    std::copy(buffer + skip, buffer + skip + count, frames);
    return count;
}

std::u16string Posix::demangled(const char *name)
{
    if (!name || !*name)
        return std::u16string();
    int status = -1;
    char *readable = abi::__cxa_demangle(name, nullptr, nullptr, &status);
    const std::u16string result = fromUtf8(status == 0 && readable ? readable : name);
    std::free(readable);
    return result;
}

FrameSymbol ResolveFrame(const void *returnAddress)
{
    FrameSymbol symbol;
    if (!returnAddress)
        return symbol;
    // The call that the address returns from: one byte before it.
    const std::uintptr_t pc = reinterpret_cast<std::uintptr_t>(returnAddress) - 1;
    Dl_info info = {};
    if (dladdr(reinterpret_cast<const void *>(pc), &info) && info.dli_fname) {
        symbol.imagePath = ModuleFileName(reinterpret_cast<const void *>(pc));
        const std::u16string::size_type slash = symbol.imagePath.rfind(u'/');
        symbol.module =
            slash == std::u16string::npos ? symbol.imagePath : symbol.imagePath.substr(slash + 1);
        symbol.function = Posix::demangled(info.dli_sname);
    }
    Posix::ResolveFromDebugInformation(pc, symbol);
    return symbol;
}

} // namespace ZARSysPlatform
