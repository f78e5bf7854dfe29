# Cross-compiles for 64-bit Windows with Debian's mingw-w64 (package g++-mingw-w64-x86-64),
# using the POSIX thread model so that std::thread and std::mutex are available. Test
# executables run through wine.
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

# The compiler's runtime (libgcc, libstdc++, winpthread) is linked in, so that the executables
# run under wine without the cross toolchain's DLLs on its search path.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static")

find_program(ZARSYS_WINE wine)
if(ZARSYS_WINE)
    set(CMAKE_CROSSCOMPILING_EMULATOR ${ZARSYS_WINE})
endif()

# Debug information in DWARF 4, the version that wine's DbgHelp reads, so that the tests of stack
# frame resolution find names, files and lines under wine.
set(CMAKE_C_FLAGS_INIT "-gdwarf-4")
set(CMAKE_CXX_FLAGS_INIT "-gdwarf-4")
