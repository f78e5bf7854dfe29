#include "ZARSysPlatform_posix.h"

namespace ZARSysPlatform::Posix {

// Built without libdw: frames keep what the dynamic loader knows, their modules and exported
// names.
void ResolveFromDebugInformation(std::uintptr_t, FrameSymbol &) { }

} // namespace ZARSysPlatform::Posix
