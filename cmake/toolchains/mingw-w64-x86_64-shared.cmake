# Cross-compiles for 64-bit Windows with Debian's mingw-w64 (package g++-mingw-w64-x86-64),
# using the POSIX thread model so that std::thread and std::mutex are available. The compiler's
# runtime (libgcc_s_seh-1.dll, libstdc++-6.dll, libwinpthread-1.dll) stays a set of DLLs shared
# by every module of a process, as Qt's own DLLs need; deploy them beside the executables.
# Executables run through wine.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(ZARSYS_MINGW_TRIPLET x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${ZARSYS_MINGW_TRIPLET}-gcc-posix)
set(CMAKE_CXX_COMPILER ${ZARSYS_MINGW_TRIPLET}-g++-posix)
set(CMAKE_RC_COMPILER ${ZARSYS_MINGW_TRIPLET}-windres)

set(CMAKE_FIND_ROOT_PATH /usr/${ZARSYS_MINGW_TRIPLET})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

find_program(ZARSYS_WINE wine)
if(ZARSYS_WINE)
    set(CMAKE_CROSSCOMPILING_EMULATOR ${ZARSYS_WINE})
endif()
