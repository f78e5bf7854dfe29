# Running the Windows build under wine, when the tree is cross-compiled with mingw-w64.
#
# Every test of such a build runs in the environment ZARSYS_WINE_ENVIRONMENT: a wine prefix of
# the build's own (never the user's ~/.wine), no prompts to install wine's Mono or Gecko, no
# debug chatter, and, when the tree links Qt, a search path that holds what a deployment puts
# beside the executables: the library, Qt's DLLs and the compiler's runtime DLLs. Qt's plug-ins
# come from Qt's own folder through QT_PLUGIN_PATH, and the platform plug-ins through
# QT_QPA_PLATFORM_PLUGIN_PATH, which start-up would otherwise point at the library's folder,
# where a deployment keeps them. ZARSYS_WINDOWS_RUNTIME_DIRS lists the folders of that search
# path, for scripts that deploy or run programs by hand.
#
# The CTest fixture "wine" makes the prefix before the first test (ZARSysWinePrefix.cmake) and
# keeps one wine server running until the last test ends, so that not every process starts its
# own. zarsys_wine_test(<test>...) gives tests both; it does nothing in other builds.
set(ZARSYS_WINE_ENVIRONMENT "")

function(zarsys_wine_test)
    if(NOT ZARSYS_WINE_ENVIRONMENT)
        return()
    endif()
    foreach(test IN LISTS ARGN)
        # Wine keeps the host's QT_ variables from Windows programs, and passes WINEQT_ ones on
        # as QT_ instead; so a test's own QT_ variables (the offscreen platform among them) are
        # given in that form as well.
        get_property(environment TEST ${test} PROPERTY ENVIRONMENT)
        set(for_wine "")
        foreach(variable IN LISTS environment)
            if(variable MATCHES "^QT_")
                list(APPEND for_wine "WINE${variable}")
            endif()
        endforeach()
        if(for_wine)
            set_property(TEST ${test} APPEND PROPERTY ENVIRONMENT "${for_wine}")
        endif()
        # Quoted: an unquoted expansion would drop the escapes of WINEPATH's semicolons.
        set_property(TEST ${test} APPEND PROPERTY ENVIRONMENT "${ZARSYS_WINE_ENVIRONMENT}")
        set_property(TEST ${test} APPEND PROPERTY FIXTURES_REQUIRED wine)
    endforeach()
endfunction()

if(NOT (WIN32 AND CMAKE_CROSSCOMPILING))
    return()
endif()

get_filename_component(wine_dir "${CMAKE_CROSSCOMPILING_EMULATOR}" DIRECTORY)
find_program(ZARSYS_WINEBOOT wineboot HINTS "${wine_dir}")
find_program(ZARSYS_WINESERVER wineserver HINTS "${wine_dir}")
if(NOT CMAKE_CROSSCOMPILING_EMULATOR OR NOT ZARSYS_WINEBOOT OR NOT ZARSYS_WINESERVER)
    message(WARNING "wine was not found (package wine64): the Windows tests cannot run")
    return()
endif()

# Qt's variables go in wine's WINEQT_ form (see zarsys_wine_test()).
set(ZARSYS_WINE_ENVIRONMENT
    "WINEPREFIX=${CMAKE_BINARY_DIR}/wine-prefix"
    "WINEDEBUG=-all"
    "WINEDLLOVERRIDES=mscoree,mshtml="
    # Without a console, Qt on Windows sends log messages, and QtTest its results, to the
    # debugger's output rather than to standard error and output, which CTest reads.
    "WINEQT_FORCE_STDERR_LOGGING=1"
    # Under wine, code that PCRE2's JIT compiles faults in every thread but the main one (a
    # program of Qt alone that matches one expression in a second thread shows it), so the
    # tests match without the JIT.
    "WINEQT_ENABLE_REGEXP_JIT=0")

# The folder of a DLL that the cross compiler links against by name.
function(zarsys_runtime_dir out dll)
    execute_process(
        COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${dll}
        OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(NOT IS_ABSOLUTE "${path}" OR NOT EXISTS "${path}")
        find_file(path_${dll} ${dll} PATH_SUFFIXES bin lib)
        set(path "${path_${dll}}")
    endif()
    if(NOT EXISTS "${path}")
        message(FATAL_ERROR "The compiler's runtime library ${dll} was not found")
    endif()
    get_filename_component(dir "${path}" DIRECTORY)
    set(${out} "${dir}" PARENT_SCOPE)
endfunction()

if(TARGET Qt6::Core)
    zarsys_runtime_dir(stdcxx_dir libstdc++-6.dll)
    zarsys_runtime_dir(pthread_dir libwinpthread-1.dll)
    get_target_property(qt_core_dll Qt6::Core IMPORTED_LOCATION_RELEASE)
    if(NOT qt_core_dll)
        get_target_property(qt_core_dll Qt6::Core IMPORTED_LOCATION)
    endif()
    get_filename_component(qt_bin_dir "${qt_core_dll}" DIRECTORY)
    get_filename_component(qt_plugin_dir "${qt_bin_dir}/../plugins" ABSOLUTE)

    set(ZARSYS_WINDOWS_RUNTIME_DIRS
        "${CMAKE_BINARY_DIR}/library" "${qt_bin_dir}" "${stdcxx_dir}" "${pthread_dir}")
    list(REMOVE_DUPLICATES ZARSYS_WINDOWS_RUNTIME_DIRS)

    # Windows paths on wine's drive Z:, which maps the root of the host's file system; a list
    # in one environment variable, so its semicolons are escaped for CTest.
    set(wine_path "")
    foreach(dir IN LISTS ZARSYS_WINDOWS_RUNTIME_DIRS)
        if(wine_path)
            string(APPEND wine_path "\\;")
        endif()
        string(APPEND wine_path "Z:${dir}")
    endforeach()
    list(APPEND ZARSYS_WINE_ENVIRONMENT
        "WINEPATH=${wine_path}"
        "WINEQT_PLUGIN_PATH=Z:${qt_plugin_dir}"
        "WINEQT_QPA_PLATFORM_PLUGIN_PATH=Z:${qt_plugin_dir}/platforms")
endif()

if(BUILD_TESTING)
    set(wine_script "${CMAKE_CURRENT_LIST_DIR}/ZARSysWinePrefix.cmake")
    add_test(NAME wine_start COMMAND ${CMAKE_COMMAND} -DACTION=start
        "-DWINE=${CMAKE_CROSSCOMPILING_EMULATOR}" "-DWINEBOOT=${ZARSYS_WINEBOOT}"
        "-DWINESERVER=${ZARSYS_WINESERVER}" -P "${wine_script}")
    add_test(NAME wine_stop COMMAND ${CMAKE_COMMAND} -DACTION=stop
        "-DWINESERVER=${ZARSYS_WINESERVER}" -P "${wine_script}")
    set_tests_properties(wine_start wine_stop PROPERTIES ENVIRONMENT "${ZARSYS_WINE_ENVIRONMENT}")
    set_tests_properties(wine_start PROPERTIES FIXTURES_SETUP wine TIMEOUT 300)
    set_tests_properties(wine_stop PROPERTIES FIXTURES_CLEANUP wine)
endif()
