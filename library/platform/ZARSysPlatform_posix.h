#ifndef ZARSYSPLATFORM_POSIX_H
#define ZARSYSPLATFORM_POSIX_H

// What the POSIX files of the operating-system layer share: text conversion at the system
// boundary and the symbolizer, whose implementation the build picks (with libdw or without).

#include "ZARSysPlatform.h"

#include <cstdint>
#include <string>

namespace ZARSysPlatform::Posix {

// UTF-16 to UTF-8 and back, as the file system and the environment want their text. An
// unpaired surrogate, and each malformed UTF-8 sequence, becomes one U+FFFD.
std::string toUtf8(const std::u16string &text);
std::u16string fromUtf8(const char *text);

// A symbol name made readable where it is a C++ name; empty for none.
std::u16string demangled(const char *name);

// Adds to symbol what the debug information tells of the code at pc: the function when the
// dynamic loader found no name, the source file and line. ZARSysSymbolizer_libdw.cpp reads it
// with libdw; ZARSysSymbolizer_none.cpp adds nothing.
void ResolveFromDebugInformation(std::uintptr_t pc, FrameSymbol &symbol);

} // namespace ZARSysPlatform::Posix

#endif // ZARSYSPLATFORM_POSIX_H
