# Language standard, build type, warnings and sanitizers for everything built in this tree,
# including the operating-system layer when it is built on its own.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Build type" FORCE)
endif()

option(ZARSYS_WERROR "Treat compiler warnings as errors" OFF)
option(ZARSYS_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)
option(ZARSYS_FUZZ "Build the fuzz targets in fuzz/ (Clang; turns the sanitizers on)" OFF)
option(ZARSYS_TSAN "Build with ThreadSanitizer" OFF)

if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    add_compile_options(-Wall -Wextra -Wpedantic)
    if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
        # ZARSysVariantFilter has virtual functions and, on purpose, a destructor that is not
        # virtual. Qt's meta-type system destroys a filter through its exact type, which is
        # sound, but Clang warns at every registration of the type.
        add_compile_options(-Wno-delete-non-abstract-non-virtual-dtor)
        # Qt's categorised logging macros take the category alone (qCDebug(category) << ...),
        # which leaves their variadic part empty: standard from C++20 on, and a pedantic
        # warning before.
        add_compile_options(-Wno-gnu-zero-variadic-macro-arguments)
        # Stack traces find the source line of an address through the table of address ranges
        # of the debug information, which Clang leaves out unless asked.
        add_compile_options(-gdwarf-aranges)
    endif()
    if(MINGW)
        # Debug information in DWARF 4, the version that wine's DbgHelp reads, so that stack
        # frames get their names, files and lines under wine.
        add_compile_options($<$<CONFIG:Debug,RelWithDebInfo>:-gdwarf-4>)
    endif()
    if(ZARSYS_WERROR)
        add_compile_options(-Werror)
    endif()
elseif(MSVC)
    add_compile_options(/W4 /permissive-)
    if(ZARSYS_WERROR)
        add_compile_options(/WX)
    endif()
endif()

# The flags are kept in a variable as well: the packaging test builds a client against the
# installed library, and that client needs the same sanitizer runtime.
set(ZARSYS_SANITIZER_FLAGS "")
if(MINGW AND (ZARSYS_SANITIZE OR ZARSYS_FUZZ OR ZARSYS_TSAN))
    message(FATAL_ERROR "mingw-w64 has no sanitizer runtimes: build for Windows without "
        "ZARSYS_SANITIZE, ZARSYS_FUZZ and ZARSYS_TSAN (scripts/test --native-only with them)")
endif()
if(ZARSYS_SANITIZE OR ZARSYS_FUZZ)
    if(NOT CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
        message(FATAL_ERROR "ZARSYS_SANITIZE needs GCC or Clang")
    endif()
    # Any finding aborts the process, so a test with a finding fails.
    set(ZARSYS_SANITIZER_FLAGS
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_compile_options(${ZARSYS_SANITIZER_FLAGS})
    add_link_options(${ZARSYS_SANITIZER_FLAGS})
endif()

# ThreadSanitizer cannot be combined with AddressSanitizer. Qt itself is not instrumented, so
# only what our code does is seen; the tests it runs on use std::thread where they can.
if(ZARSYS_TSAN)
    if(ZARSYS_SANITIZE OR ZARSYS_FUZZ)
        message(FATAL_ERROR "ZARSYS_TSAN cannot be combined with ZARSYS_SANITIZE or ZARSYS_FUZZ")
    endif()
    if(NOT CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
        message(FATAL_ERROR "ZARSYS_TSAN needs GCC or Clang")
    endif()
    set(ZARSYS_SANITIZER_FLAGS -fsanitize=thread -fno-omit-frame-pointer)
    add_compile_options(${ZARSYS_SANITIZER_FLAGS})
    add_link_options(${ZARSYS_SANITIZER_FLAGS})
endif()

# Fuzzing: everything is instrumented for libFuzzer's coverage; the targets themselves link
# libFuzzer's main.
if(ZARSYS_FUZZ)
    if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        message(FATAL_ERROR "ZARSYS_FUZZ needs Clang (-DCMAKE_CXX_COMPILER=clang++)")
    endif()
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# Line and branch coverage with gcov's instrumentation (GCC or Clang in gcov mode); read with
# scripts/coverage.
option(ZARSYS_COVERAGE "Instrument the build for line and branch coverage" OFF)
if(ZARSYS_COVERAGE)
    if(NOT CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
        message(FATAL_ERROR "ZARSYS_COVERAGE needs GCC or Clang")
    endif()
    add_compile_options(--coverage)
    add_link_options(--coverage)
endif()
