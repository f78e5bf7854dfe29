#ifndef ZARSYSPLATFORM_H
#define ZARSYSPLATFORM_H

// The operating-system layer of the library. Every call into Win32 or POSIX goes through
// these functions; the code above converts between Qt's types and the standard ones used here.
// Text is UTF-16 on every platform; the POSIX half converts it to and from UTF-8 at the
// system boundary.
//
// One implementation per platform, chosen by the build: ZARSysPlatform_win.cpp and
// ZARSysPlatform_posix.cpp.

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ZARSysPlatform {

// The full path of the executable or shared library whose image contains address, or an empty
// string when no loaded module contains it.
std::u16string ModuleFileName(const void *address);

// The outcome of reading a module's file version. The failures name the step that failed, so
// that the caller can report it.
enum class FileVersionStatus {
    Ok,
    NoVersionInfo, // no version information at all (or no such file)
    ReadFailed, // the version information could not be read
    QueryFailed, // the version information holds no fixed file version
};

struct FileVersion
{
    FileVersionStatus status = FileVersionStatus::NoVersionInfo;
    // Most significant first: major, minor, patch, build.
    std::array<std::uint16_t, 4> parts = {};
};

// The file version of the module at path.
//
// Windows: the fixed file version of the module's version resource.
// POSIX: shared libraries carry no version resource; their version is in the name of the real
// file, after symbolic links are resolved ("libfoo.so.1.2.3" gives 1.2.3.0). A missing file or
// a name without a ".so.N[.N[.N[.N]]]" suffix gives NoVersionInfo.
FileVersion ModuleFileVersion(const std::u16string &path);

// The short (8.3) form of an existing path, or nothing when the path does not exist or its short
// form does not fit into MAX_PATH (260) units. POSIX has no short names: an existing path comes
// back unchanged.
std::optional<std::u16string> ShortPathName(const std::u16string &path);

// Adds directory to the search path of the loader for libraries loaded later (Windows
// SetDllDirectory; an empty string restores the default search order). POSIX: nothing to do,
// returns true.
bool SetLibraryDirectory(const std::u16string &directory);

// The value of an environment variable as the operating system holds it for the process, or
// nothing when it is not set.
std::optional<std::u16string> ReadEnvironmentVariable(const std::u16string &name);

// Sets an environment variable of the process. Returns false when the system refuses.
bool WriteEnvironmentVariable(const std::u16string &name, const std::u16string &value);

// The file name of the program called baseName: with ".exe" on Windows, unchanged elsewhere.
std::u16string ExecutableName(const std::u16string &baseName);

// Whether Qt's configuration and the libraries loaded later are found through the library's
// own folder, so that the library registers a qt.conf naming that folder and makes it the
// loader's search folder (Windows). Elsewhere the installation's library paths do that.
bool FindsQtThroughLibraryFolder();

// How a path is written into the variables that Qt reads from the environment as bytes.
enum class EnvironmentPathEncoding {
    Latin1, // Windows: the paths given are short (8.3) forms, which are ASCII
    FileName, // the encoding of file names
};
EnvironmentPathEncoding PathEncodingForEnvironment();

// Puts folder in front of the program search path PATH, so that the programs and libraries in
// it are found first. Returns false when the system refuses the new value.
//
// Windows: "folder;PATH" through the wide environment functions; an unset PATH gives "folder;".
// POSIX: the folder's UTF-8 bytes, ':' and the bytes of PATH as they are, whatever their
// encoding; no separator when either is empty, as an empty element would mean the current
// folder.
bool PrependToSearchPath(const std::u16string &folder);

// Whether local paths are rooted in drive letters and shares (Windows), so that the "/" a URL's
// path starts with belongs to no local path unless a second "/" follows ("/C:/folder" is
// "C:/folder", "//server/share" stays). Elsewhere a leading "/" makes a path absolute and goes
// only before a drive letter and colon.
bool UsesDriveLetterPaths();

// A program to start, with its arguments.
struct ProgramCall
{
    std::u16string program;
    std::vector<std::u16string> arguments;
};

// The call that opens the system's file browser at nativePath (native separators) with the
// file selected, or at the folder itself when isFolder: Windows "explorer.exe" with
// "/select,PATH", or "PATH" for a folder. Nothing where the system has no common way to select
// a file; the caller then opens the containing folder.
std::optional<ProgramCall> FileBrowserSelection(const std::u16string &nativePath, bool isFolder);

// Whether the process has a standard output handle. A Windows GUI process started without a
// console has none; a POSIX process always has descriptor 1, so this is true there.
bool HasStandardOutput();

// Opens a console for the process and points the C runtime's stdout and stderr at the console.
// Returns whether a new console was opened. POSIX: nothing to do, returns false.
bool OpenConsole();

// Initialises COM on the calling thread (Windows CoInitialize). Returns true when this call
// initialised it, false when it was initialised already or could not be. POSIX: nothing to do,
// returns false.
bool InitializeCom();

// Balances one InitializeCom() on the calling thread. POSIX: nothing to do.
void UninitializeCom();

// The largest number of frames CaptureStack() returns.
constexpr std::size_t MaxCapturedFrames = 62;

// Captures the return addresses of the calling thread's stack into frames, innermost first, and
// returns how many were written: at most min(capacity, MaxCapturedFrames). frames[0] is the
// return address into the function that called CaptureStack(); skip drops that many frames
// more, so skip 1 starts with the return address into that function's caller. Skips beyond
// 65535 frames capture nothing.
std::size_t CaptureStack(std::size_t skip, void **frames, std::size_t capacity);

// What is known of the code at a return address: empty texts and -1 for what could not be
// found.
struct FrameSymbol
{
    std::u16string function; // demangled where it is a C++ name
    std::u16string sourceFile;
    int line = -1;
    int offsetFromLine = -1; // bytes from the first instruction of the line to the call
    std::u16string module; // the file name of the executable or library
    std::u16string imagePath; // its full path
};

// Resolves a return address as CaptureStack() gives it, describing the call that it returns
// from. Safe to call from any thread; slow the first time (debug information is read), fast
// after.
//
// Windows: DbgHelp. POSIX: the dynamic loader for the module, and for names, source files and
// lines the debug information read with elfutils' libdw when the layer was built with it
// (otherwise only exported names, and no files or lines).
FrameSymbol ResolveFrame(const void *returnAddress);

} // namespace ZARSysPlatform

#endif // ZARSYSPLATFORM_H
