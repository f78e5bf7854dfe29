# Cross-compiles for 64-bit Windows with Debian's mingw-w64 (see mingw-w64-x86_64-shared.cmake),
# with the compiler's runtime (libgcc, libstdc++, winpthread) linked into every module, so that
# the executables run under wine without the cross toolchain's DLLs on the search path. Only for
# Qt-free code: modules that link Qt share the runtime DLLs with it instead.
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64-x86_64-shared.cmake)

set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static")
