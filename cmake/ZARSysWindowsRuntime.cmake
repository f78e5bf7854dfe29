# Running the Windows build under wine, when the tree is cross-compiled with mingw-w64.
#
# Sets ZARSYS_WINE_ENVIRONMENT, the environment every test and example run gets: a wine prefix
# of the build's own (never the user's ~/.wine), no prompts to install wine's Mono or Gecko, no
# debug chatter, and a search path that holds what a deployment puts beside the executables:
# the library, Qt's DLLs and the compiler's runtime DLLs. Qt's plug-ins come from Qt's own
# folder through QT_PLUGIN_PATH, and the platform plug-ins through QT_QPA_PLATFORM_PLUGIN_PATH,
# which start-up would otherwise point at the library's folder, where a deployment keeps them. ZARSYS_WINDOWS_RUNTIME_DIRS lists the folders of that search
# path, for scripts that deploy or run programs by hand.
if(NOT (WIN32 AND CMAKE_CROSSCOMPILING))
    set(ZARSYS_WINE_ENVIRONMENT "")
    return()
endif()

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

# Windows paths on wine's drive Z:, which maps the root of the host's file system; a list in
# one environment variable, so its semicolons are escaped for CTest.
set(wine_path "")
foreach(dir IN LISTS ZARSYS_WINDOWS_RUNTIME_DIRS)
    if(wine_path)
        string(APPEND wine_path "\\;")
    endif()
    string(APPEND wine_path "Z:${dir}")
endforeach()

set(ZARSYS_WINE_PREFIX "${CMAKE_BINARY_DIR}/wine-prefix" CACHE PATH
    "The wine prefix the tests run in")
set(ZARSYS_WINE_ENVIRONMENT
    "WINEPREFIX=${ZARSYS_WINE_PREFIX}"
    "WINEDEBUG=-all"
    "WINEDLLOVERRIDES=mscoree,mshtml="
    "WINEPATH=${wine_path}"
    "QT_PLUGIN_PATH=Z:${qt_plugin_dir}"
    "QT_QPA_PLATFORM_PLUGIN_PATH=Z:${qt_plugin_dir}/platforms")
