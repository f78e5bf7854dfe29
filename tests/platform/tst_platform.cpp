// The operating-system layer, natively and under wine. The expectations differ only where the
// platforms do: short names, version resources, the library search directory and COM exist
// on Windows alone.

#include "ZARSysPlatform.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#ifdef _WIN32
#include <windows.h>
#endif

namespace P = ZARSysPlatform;
namespace fs = std::filesystem;

extern "C" const void *zarsys_test_versioned();

namespace {

#ifdef _WIN32
constexpr bool onWindows = true;
#else
constexpr bool onWindows = false;
#endif

std::u16string u16(const fs::path &path)
{
    return path.u16string();
}

fs::path ownExecutable()
{
    static int marker;
    return fs::path(P::ModuleFileName(&marker));
}

// A folder of its own under the system's temporary folder, removed at the end of the test.
class TemporaryFolder
{
public:
    TemporaryFolder()
    {
        static int counter;
        path = fs::temp_directory_path()
            / ("zarsys platform test " + std::to_string(std::uintptr_t(this)) + "-"
               + std::to_string(++counter));
        fs::create_directories(path);
    }
    ~TemporaryFolder()
    {
        std::error_code ignored;
        fs::remove_all(path, ignored);
    }
    fs::path path;
};

void touch(const fs::path &path)
{
    std::ofstream(path) << "x";
}

} // namespace

TEST(ModuleFileName, NamesTheTestExecutable)
{
    const fs::path path = ownExecutable();
    ASSERT_FALSE(path.empty());
    EXPECT_TRUE(path.is_absolute()) << path;
    EXPECT_EQ(path.stem(), "tst_platform");
    EXPECT_TRUE(fs::is_regular_file(path)) << path;
}

TEST(ModuleFileName, NamesTheLibraryThatHoldsTheAddress)
{
    const fs::path path(P::ModuleFileName(zarsys_test_versioned()));
    EXPECT_EQ(path.parent_path(), ownExecutable().parent_path());
    // The loader's name for the library: its file name, or on ELF systems its soname.
    const std::string name = path.filename().string();
    EXPECT_EQ(name.rfind(onWindows ? "versioned" : "libversioned.so", 0), 0u) << name;
}

TEST(ModuleFileName, IsEmptyOutsideEveryModule)
{
    const auto heap = std::make_unique<char[]>(64);
    EXPECT_TRUE(P::ModuleFileName(heap.get()).empty());
    EXPECT_TRUE(P::ModuleFileName(nullptr).empty());
}

struct VersionCase
{
    const char *file;
    P::FileVersionStatus status;
    std::array<std::uint16_t, 4> parts;
};

TEST(ModuleFileVersion, ReadsTheVersionOfABuiltLibrary)
{
    const VersionCase cases[] = {
        {VERSIONED_LIBRARY_NAME, P::FileVersionStatus::Ok, {4, 3, 2, 1}},
        {PLAIN_LIBRARY_NAME, P::FileVersionStatus::NoVersionInfo, {}},
        {"missing-library", P::FileVersionStatus::NoVersionInfo, {}},
    };
    for (const VersionCase &c : cases) {
        const fs::path path = ownExecutable().parent_path() / c.file;
        const P::FileVersion version = P::ModuleFileVersion(u16(path));
        EXPECT_EQ(version.status, c.status) << path;
        EXPECT_EQ(version.parts, c.parts) << path;
    }
}

#ifndef _WIN32
// Without version resources the version comes from the name of the real file.
TEST(ModuleFileVersion, ParsesTheSharedLibrarySuffix)
{
    const VersionCase cases[] = {
        {"liba.so.1", P::FileVersionStatus::Ok, {1, 0, 0, 0}},
        {"liba.so.1.2.3", P::FileVersionStatus::Ok, {1, 2, 3, 0}},
        {"liba.so.10.20.30.65535", P::FileVersionStatus::Ok, {10, 20, 30, 65535}},
        {"liba.so.1.2.3.4.5", P::FileVersionStatus::NoVersionInfo, {}},
        {"liba.so.1.65536", P::FileVersionStatus::NoVersionInfo, {}},
        {"liba.so.1a", P::FileVersionStatus::NoVersionInfo, {}},
        {"liba.so.1..2", P::FileVersionStatus::NoVersionInfo, {}},
        {"liba.so.1.", P::FileVersionStatus::NoVersionInfo, {}},
        {"liba.so.", P::FileVersionStatus::NoVersionInfo, {}},
        {"liba.so", P::FileVersionStatus::NoVersionInfo, {}},
        {"liba.1.2.3", P::FileVersionStatus::NoVersionInfo, {}},
    };
    TemporaryFolder folder;
    for (const VersionCase &c : cases) {
        touch(folder.path / c.file);
        const P::FileVersion version = P::ModuleFileVersion(u16(folder.path / c.file));
        EXPECT_EQ(version.status, c.status) << c.file;
        EXPECT_EQ(version.parts, c.parts) << c.file;
    }

    // Links are resolved; the name of the link does not count.
    fs::create_directory(folder.path / "lib.so.9.9");
    fs::create_symlink(folder.path / "liba.so.1.2.3", folder.path / "lib.so.9.9" / "liba.so");
    const P::FileVersion linked = P::ModuleFileVersion(u16(folder.path / "lib.so.9.9/liba.so"));
    EXPECT_EQ(linked.status, P::FileVersionStatus::Ok);
    EXPECT_EQ(linked.parts, (std::array<std::uint16_t, 4> {1, 2, 3, 0}));

    fs::create_symlink(folder.path / "missing.so.1", folder.path / "dangling.so.2");
    EXPECT_EQ(P::ModuleFileVersion(u16(folder.path / "dangling.so.2")).status,
              P::FileVersionStatus::NoVersionInfo);
}
#endif

TEST(ShortPathName, ShortensAnExistingPath)
{
    TemporaryFolder folder;
    const fs::path file = folder.path / "A file with a rather long name.text";
    touch(file);

    const std::optional<std::u16string> shortened = P::ShortPathName(u16(file));
    ASSERT_TRUE(shortened.has_value());
    if (onWindows) {
        const fs::path shortPath(*shortened);
        EXPECT_TRUE(fs::equivalent(shortPath, file)) << shortPath;
        const std::u16string name = shortPath.filename().u16string();
        EXPECT_LE(name.size(), 12u) << shortPath;
        EXPECT_EQ(name.find(u' '), std::u16string::npos) << shortPath;
    } else {
        EXPECT_EQ(*shortened, u16(file));
    }
}

// Thirty levels of ten-letter names: even shortened, the path exceeds MAX_PATH.
TEST(ShortPathName, FailsWhenTheShortFormDoesNotFit)
{
    TemporaryFolder folder;
    fs::path deep = folder.path;
    for (int level = 0; level < 30; ++level)
        deep /= "abcdefghij";
#ifdef _WIN32
    // Only the extended-length form reaches beyond MAX_PATH.
    deep = fs::path(L"\\\\?\\" + deep.wstring());
#endif
    fs::create_directories(deep);
    ASSERT_TRUE(fs::is_directory(deep));

#ifdef _WIN32
    // The system can shorten it, into a larger buffer than the layer's.
    wchar_t large[4096];
    const DWORD length = GetShortPathNameW(deep.c_str(), large, 4096);
    ASSERT_GT(length, DWORD(MAX_PATH));
    ASSERT_LT(length, DWORD(4096));
    EXPECT_FALSE(P::ShortPathName(u16(deep)).has_value());
#else
    EXPECT_EQ(P::ShortPathName(u16(deep)), u16(deep));
#endif
}

TEST(ShortPathName, FailsForAMissingPath)
{
    TemporaryFolder folder;
    EXPECT_FALSE(P::ShortPathName(u16(folder.path / "no such file")).has_value());
    EXPECT_FALSE(P::ShortPathName(std::u16string()).has_value());
}

TEST(Environment, SetsAndReadsVariables)
{
    const std::u16string name = u"ZARSYS_PLATFORM_TEST_VARIABLE";
    EXPECT_FALSE(P::ReadEnvironmentVariable(name).has_value());

    const std::u16string value = u"caf\u00e9 \u65e5\u672c \U0001F600";
    ASSERT_TRUE(P::WriteEnvironmentVariable(name, value));
    EXPECT_EQ(P::ReadEnvironmentVariable(name), value);

    // Longer than the first buffer the Windows half tries.
    const std::u16string longValue(1000, u'x');
    ASSERT_TRUE(P::WriteEnvironmentVariable(name, longValue));
    EXPECT_EQ(P::ReadEnvironmentVariable(name), longValue);
}

// The choices that differ between the platforms, each as the code above relies on it.
TEST(PlatformRules, FollowThePlatform)
{
    EXPECT_EQ(P::ExecutableName(u"helper"), onWindows ? u"helper.exe" : u"helper");
    EXPECT_EQ(P::ExecutableName(u"dir/helper"), onWindows ? u"dir/helper.exe" : u"dir/helper");
    EXPECT_EQ(P::FindsQtThroughLibraryFolder(), onWindows);
    EXPECT_EQ(P::PathEncodingForEnvironment(),
              onWindows ? P::EnvironmentPathEncoding::Latin1
                        : P::EnvironmentPathEncoding::FileName);
    EXPECT_EQ(P::UsesDriveLetterPaths(), onWindows);
}

TEST(FileBrowserSelection, SelectsAFileOrOpensAFolder)
{
    const std::u16string path = onWindows ? u"C:\\data\\caf\u00e9 1.txt" : u"/data/caf\u00e9 1.txt";
    const std::optional<P::ProgramCall> file = P::FileBrowserSelection(path, false);
    const std::optional<P::ProgramCall> folder = P::FileBrowserSelection(path, true);
    if (!onWindows) {
        EXPECT_FALSE(file.has_value());
        EXPECT_FALSE(folder.has_value());
        return;
    }
    ASSERT_TRUE(file.has_value());
    ASSERT_TRUE(folder.has_value());
    EXPECT_EQ(file->program, u"explorer.exe");
    EXPECT_EQ(file->arguments, std::vector<std::u16string> {u"/select," + path});
    EXPECT_EQ(folder->program, u"explorer.exe");
    EXPECT_EQ(folder->arguments, std::vector<std::u16string> {path});
}

namespace {

// The search path as it was before a test, put back afterwards.
class SavedSearchPath
{
public:
    SavedSearchPath()
        : saved(P::ReadEnvironmentVariable(u"PATH"))
    { }
    ~SavedSearchPath()
    {
        if (saved)
            P::WriteEnvironmentVariable(u"PATH", *saved);
    }

private:
    std::optional<std::u16string> saved;
};

void unsetSearchPath()
{
#ifdef _WIN32
    SetEnvironmentVariableW(L"PATH", nullptr);
#else
    unsetenv("PATH");
#endif
}

} // namespace

TEST(PrependToSearchPath, PutsTheFolderFirst)
{
    struct Case
    {
        std::optional<std::u16string> path; // nothing: unset
        std::u16string folder;
        std::u16string windows;
        std::u16string posix;
    };
    const Case cases[] = {
        {u"a;b", u"lib", u"lib;a;b", u"lib:a;b"},
        {std::nullopt, u"lib", u"lib;", u"lib"},
        {u"", u"lib", u"lib;", u"lib"},
        {u"a", u"", u";a", u"a"},
        {u"/usr/bin", u"/opt/caf\u00e9", u"/opt/caf\u00e9;/usr/bin", u"/opt/caf\u00e9:/usr/bin"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(fs::path(c.path.value_or(u"<unset>") + u" + " + c.folder).u8string());
        const SavedSearchPath saved;
        if (c.path)
            ASSERT_TRUE(P::WriteEnvironmentVariable(u"PATH", *c.path));
        else
            unsetSearchPath();
        ASSERT_TRUE(P::PrependToSearchPath(c.folder));
        EXPECT_EQ(P::ReadEnvironmentVariable(u"PATH"), onWindows ? c.windows : c.posix);
    }
}

#ifndef _WIN32
// The other folders' bytes are no text of any encoding: they must pass unchanged.
TEST(PrependToSearchPathBytes, KeepsTheBytesOfTheOtherFolders)
{
    const SavedSearchPath saved;
    ASSERT_EQ(setenv("PATH", "/odd\xff\xfe:/usr/bin", 1), 0);
    ASSERT_TRUE(P::PrependToSearchPath(u"/lib"));
    EXPECT_STREQ(std::getenv("PATH"), "/lib:/odd\xff\xfe:/usr/bin");
}
#endif

#ifdef _WIN32
TEST(Console, TheTestHasStandardOutput)
{
    EXPECT_TRUE(P::HasStandardOutput());
}
#endif

TEST(LibraryDirectory, AddsADirectoryToTheSearch)
{
#ifdef _WIN32
    const std::wstring library = L"" SEARCH_DIR_LIBRARY_NAME;
    EXPECT_EQ(LoadLibraryW(library.c_str()), nullptr);

    const fs::path directory = ownExecutable().parent_path() / "searchdir";
    ASSERT_TRUE(P::SetLibraryDirectory(u16(directory)));
    const HMODULE module = LoadLibraryW(library.c_str());
    EXPECT_NE(module, nullptr);
    if (module) {
        EXPECT_EQ(fs::path(P::ModuleFileName(reinterpret_cast<const void *>(module))),
                  directory / library);
        FreeLibrary(module);
    }
    EXPECT_TRUE(P::SetLibraryDirectory(std::u16string()));
#else
    EXPECT_TRUE(P::SetLibraryDirectory(u"/nonexistent"));
#endif
}

#ifdef _WIN32
TEST(EntryPoint, AcceptsTheProcessAndItsThreads)
{
    const HMODULE module = LoadLibraryW(L"" ENTRY_POINT_LIBRARY_NAME);
    ASSERT_NE(module, nullptr) << "the entry point refused to load";
    std::thread([] {}).join();
    EXPECT_TRUE(FreeLibrary(module));
}
#endif

TEST(Com, InitialisesOncePerThread)
{
    if (!onWindows) {
        EXPECT_FALSE(P::InitializeCom());
        P::UninitializeCom();
        return;
    }
    // Run on a thread of its own: COM's state belongs to the thread.
    std::thread([] {
        EXPECT_TRUE(P::InitializeCom());
        EXPECT_FALSE(P::InitializeCom()); // already initialised: counted, not repeated
        P::UninitializeCom();
        P::UninitializeCom();
        EXPECT_TRUE(P::InitializeCom()); // balanced, so initialised afresh
        P::UninitializeCom();
    }).join();
}

namespace {

#ifdef _WIN32
#define TEST_NOINLINE __declspec(noinline)
#else
#define TEST_NOINLINE __attribute__((noinline))
#endif

struct Captures
{
    std::vector<void *> first;
    std::vector<void *> skipped;
};

TEST_NOINLINE std::vector<void *> capture(std::size_t skip, std::size_t capacity)
{
    std::vector<void *> frames(capacity + 1, nullptr);
    frames.resize(P::CaptureStack(skip, frames.data(), capacity));
    return frames;
}

// Both captures from the same function: they differ in their first frame only.
TEST_NOINLINE void captureTwice(Captures &result)
{
    void *first[P::MaxCapturedFrames];
    void *skipped[P::MaxCapturedFrames];
    result.first.assign(first, first + P::CaptureStack(0, first, P::MaxCapturedFrames));
    result.skipped.assign(skipped, skipped + P::CaptureStack(1, skipped, P::MaxCapturedFrames));
}

volatile std::size_t zero = 0;

TEST_NOINLINE std::size_t captureAtDepth(int depth, std::size_t capacity)
{
    if (depth > 0) {
        const std::size_t count = captureAtDepth(depth - 1, capacity);
        return count + zero; // not a tail call, so every level keeps its frame
    }
    return capture(0, capacity).size();
}

} // namespace

TEST(CaptureStack, StartsInTheCallerAndSkipsAsAsked)
{
    Captures captures;
    captureTwice(captures);
    ASSERT_GE(captures.first.size(), 3u);
    ASSERT_LT(captures.first.size(), P::MaxCapturedFrames) << "the test runs too deep";
    ASSERT_EQ(captures.skipped.size(), captures.first.size() - 1);

    // The first frame is the return address into the function that called CaptureStack; from
    // the caller's caller on, both captures are the same.
    const auto begin = reinterpret_cast<std::uintptr_t>(&captureTwice);
    const auto first = reinterpret_cast<std::uintptr_t>(captures.first[0]);
    EXPECT_GT(first, begin);
    EXPECT_LT(first, begin + 4096);
    for (std::size_t i = 1; i < captures.first.size(); ++i)
        EXPECT_EQ(captures.skipped[i - 1], captures.first[i]) << "frame " << i;

    EXPECT_EQ(fs::path(P::ModuleFileName(captures.first[0])), ownExecutable());
}

TEST(CaptureStack, KeepsWithinTheCaps)
{
    EXPECT_EQ(captureAtDepth(100, 200), P::MaxCapturedFrames);
    EXPECT_EQ(captureAtDepth(100, 10), 10u);
    EXPECT_EQ(captureAtDepth(100, 0), 0u);
    EXPECT_EQ(P::CaptureStack(0, nullptr, 10), 0u);
    EXPECT_EQ(capture(100000, 10).size(), 0u);
    EXPECT_GT(capture(0, 62).size(), 0u);

    std::size_t onThread = 0;
    std::thread([&onThread] { onThread = captureAtDepth(5, 62); }).join();
    EXPECT_GE(onThread, 6u);
    EXPECT_LE(onThread, P::MaxCapturedFrames);
}

namespace {

struct Resolved
{
    P::FrameSymbol symbol;
    int line = 0; // of the call
};

TEST_NOINLINE Resolved resolveCallHere()
{
    void *frame = nullptr;
    Resolved resolved;
    resolved.line = __LINE__ + 1;
    if (P::CaptureStack(0, &frame, 1) == 1)
        resolved.symbol = P::ResolveFrame(frame);
    return resolved;
}

std::string utf8(const std::u16string &text)
{
    return fs::path(text).u8string();
}

} // namespace

TEST(ResolveFrame, NamesTheCallersModule)
{
    const Resolved resolved = resolveCallHere();
    EXPECT_EQ(fs::path(resolved.symbol.imagePath), ownExecutable());
    EXPECT_EQ(fs::path(resolved.symbol.module), ownExecutable().filename());
}

#ifdef ZARSYS_RESOLVES_NAMES
TEST(ResolveFrame, NamesTheCallersFunctionFileAndLine)
{
    const Resolved resolved = resolveCallHere();
    EXPECT_NE(utf8(resolved.symbol.function).find("resolveCallHere"), std::string::npos)
        << utf8(resolved.symbol.function);
#ifdef ZARSYS_HAS_DEBUG_INFO
    EXPECT_EQ(fs::path(resolved.symbol.sourceFile).filename(), fs::path("tst_platform.cpp"))
        << utf8(resolved.symbol.sourceFile);
#ifdef _WIN32
    // Wine's DbgHelp may attribute the call to the line before it.
    EXPECT_LE(std::abs(resolved.symbol.line - resolved.line), 1) << resolved.symbol.line;
#else
    EXPECT_EQ(resolved.symbol.line, resolved.line);
#endif
    EXPECT_GE(resolved.symbol.offsetFromLine, 0);
#endif
}
#endif

TEST(ResolveFrame, KnowsNothingOutsideEveryModule)
{
    const P::FrameSymbol none = P::ResolveFrame(nullptr);
    EXPECT_TRUE(none.function.empty());
    EXPECT_TRUE(none.imagePath.empty());
    EXPECT_EQ(none.line, -1);
    const auto heap = std::make_unique<char[]>(64);
    const P::FrameSymbol data = P::ResolveFrame(heap.get() + 32);
    EXPECT_TRUE(data.imagePath.empty());
    EXPECT_TRUE(data.sourceFile.empty());
    EXPECT_EQ(data.line, -1);
}
