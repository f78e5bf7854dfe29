# Run by CTest with -P; see CMakeLists.txt beside this file.
#
# For a Windows build (cross-compiled), EMULATOR runs the programs (wine), CROSS_ARGS holds the
# options that configure a client for the same target and Qt, and RUNTIME_DIRS the folders of
# Qt's and the compiler's DLLs; list items are separated by '|'.
string(REPLACE "|" ";" cross_args "${CROSS_ARGS}")
string(REPLACE "|" ";" runtime_dirs "${RUNTIME_DIRS}")
if(EMULATOR)
    set(exe ".exe")
    set(library_name "ZARSystem.dll")
else()
    set(exe "")
    set(library_name "libZARSystem.so")
endif()

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE err)
    if(NOT result EQUAL 0)
        string(REPLACE ";" " " command "${ARGN}")
        message(FATAL_ERROR "${command}\nfailed (${result}):\n${out}\n${err}")
    endif()
    set(output "${out}" PARENT_SCOPE)
endfunction()

# Runs a program built for the target, with the library in library_dir on its search path.
function(run_program library_dir program)
    if(EMULATOR)
        set(wine_path "Z:${library_dir}")
        foreach(dir IN LISTS runtime_dirs)
            string(APPEND wine_path ";Z:${dir}")
        endforeach()
        set(ENV{WINEPATH} "${wine_path}")
    else()
        set(ENV{LD_LIBRARY_PATH} "${library_dir}")
    endif()
    run(${EMULATOR} "${program}${exe}" ${ARGN})
    string(REPLACE "\r\n" "\n" output "${output}")
    set(output "${output}" PARENT_SCOPE)
endfunction()

function(expect_ok what text)
    if(NOT text MATCHES "client: ok")
        message(FATAL_ERROR "${what} printed:\n${text}")
    endif()
    message(STATUS "${what}: ok")
endfunction()

set(prefix "${WORK_DIR}/prefix")
file(REMOVE_RECURSE "${WORK_DIR}")
file(MAKE_DIRECTORY "${WORK_DIR}")

run("${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${prefix}")

# Everything a client needs must come from the installed copy, not from this source tree.
file(GLOB_RECURSE installed_headers RELATIVE "${prefix}" "${prefix}/include/*")
message(STATUS "installed headers: ${installed_headers}")
foreach(header ZARSystem.h ZARSysAbstractEnumLocalization.h ZARSysAsciiUnicodeMap.h
        ZARSysCOMInitializer.h
        ZARSysDefinedValue.h ZARSysException.h ZARSysFileUtilities.h ZARSysFileWatcher.h
        ZARSysIdleBlockContext.h
        ZARSysIdleManager.h ZARSysIdleReporter.h ZARSysIdleTask.h ZARSysInitContext.h
        ZARSysInterrupt.h ZARSysIODeviceProxy.h ZARSysJsonConverters.h
        ZARSysLocalizationManager.h ZARSysLogging.h ZARSysMessageQueue.h
        ZARSysMetrics.h ZARSysRatio.h ZARSysResourceManager.h
        ZARSysSettings.h ZARSysSettingsManager.h ZARSysStackMonitor.h ZARSysStackTrace.h
        ZARSysStackWalker.h ZARSysStringUtilities.h ZARSysTemporaryDir.h
        ZARSysUrlUtility.h ZARSysValue.h ZARSysVariantFilter.h
        ZARSysWebEngineContext.h
        zarsystem_export.h)
    if(NOT EXISTS "${prefix}/include/ZARSystem/${header}")
        message(FATAL_ERROR "${header} is not installed")
    endif()
endforeach()
list(FILTER installed_headers INCLUDE REGEX "(Private|Data|NumberText|Platform)\\.h$|/private/")
if(installed_headers)
    message(FATAL_ERROR "private headers were installed")
endif()

# Start-up finds the icon theme in Resources/ beside the library.
file(GLOB_RECURSE installed_libraries "${prefix}/*/${library_name}")
if(NOT installed_libraries)
    message(FATAL_ERROR "${library_name} is not installed")
endif()
foreach(library IN LISTS installed_libraries)
    get_filename_component(library_dir "${library}" DIRECTORY)
    if(NOT EXISTS "${library_dir}/Resources/loom-default.rcc")
        message(FATAL_ERROR "loom-default.rcc is not installed beside ${library}")
    endif()
endforeach()

# The command-line tool runs from the installation, with the installed library.
if(HAVE_ZARSYS)
    if(NOT EXISTS "${prefix}/bin/zarsys${exe}")
        message(FATAL_ERROR "zarsys is not installed")
    endif()
    run_program("${library_dir}" "${prefix}/bin/zarsys"
        --settings "${WORK_DIR}/zarsys.ini" --locale en_US info)
    # Windows reports the folder in its short form, which names the same folder differently.
    if(EMULATOR)
        set(expected "Library +[^\n]*ZARSystem\\.dll, version 1\\.0\\.0\\.0\n")
    else()
        string(REGEX REPLACE "([][+.*()^$?|\\])" "\\\\\\1" folder "${library_dir}")
        set(expected "Module folder    ${folder}\n")
    endif()
    if(NOT output MATCHES "${expected}" OR NOT output MATCHES "Icon theme [^\n]*\\(loaded\\)")
        message(FATAL_ERROR "installed zarsys does not use the installed library:\n${output}")
    endif()
    run_program("${library_dir}" "${prefix}/bin/zarsys"
        --settings "${WORK_DIR}/zarsys.ini" --locale en_US convert 1in)
    if(NOT output STREQUAL "25.4mm\n")
        message(FATAL_ERROR "installed zarsys converts 1in to '${output}'")
    endif()
    message(STATUS "installed zarsys: ok")
endif()

# 1. CMake package.
# A cross build finds packages below its root paths only, which the Qt toolchain extends.
set(client_args -G "${GENERATOR}" ${cross_args}
    "-DCMAKE_CXX_COMPILER=${CXX_COMPILER}" "-DCMAKE_CXX_FLAGS=${CXX_FLAGS}"
    "-DCMAKE_EXE_LINKER_FLAGS=${CXX_FLAGS}" "-DCMAKE_BUILD_TYPE=${BUILD_TYPE}"
    "-DCMAKE_PREFIX_PATH=${prefix}" "-DCMAKE_FIND_PACKAGE_PREFER_CONFIG=ON")
if(EMULATOR)
    list(APPEND client_args "-DQT_ADDITIONAL_PACKAGES_PREFIX_PATH=${prefix}")
endif()
list(GET installed_libraries 0 library)
get_filename_component(library_dir "${library}" DIRECTORY)
run("${CMAKE_COMMAND}" -S "${CLIENT_DIR}" -B "${WORK_DIR}/client-build" ${client_args})
run("${CMAKE_COMMAND}" --build "${WORK_DIR}/client-build")
run_program("${library_dir}" "${WORK_DIR}/client-build/zarsys-package-client" "${WORK_DIR}/client.ini")
expect_ok("find_package client" "${output}")

# 2. pkg-config.
if(PKG_CONFIG)
    file(GLOB_RECURSE pc_files "${prefix}/*/ZARSystem.pc")
    list(LENGTH pc_files count)
    if(NOT count EQUAL 1)
        message(FATAL_ERROR "expected one installed ZARSystem.pc, found: ${pc_files}")
    endif()
    get_filename_component(pc_dir "${pc_files}" DIRECTORY)
    set(ENV{PKG_CONFIG_PATH} "${pc_dir}")
    run("${PKG_CONFIG}" --modversion ZARSystem)
    string(STRIP "${output}" version)
    if(NOT version STREQUAL "1.0.0")
        message(FATAL_ERROR "pkg-config reports version '${version}'")
    endif()
    run("${PKG_CONFIG}" --cflags --libs ZARSystem)
    string(STRIP "${output}" flags)
    separate_arguments(flags UNIX_COMMAND "${flags}")
    separate_arguments(extra UNIX_COMMAND "${CXX_FLAGS}")
    run("${CXX_COMPILER}" -std=c++17 -fPIC ${extra} "${CLIENT_DIR}/pkgconfig_client.cpp"
        -o "${WORK_DIR}/pkgconfig-client${exe}" ${flags})
    run_program("${library_dir}" "${WORK_DIR}/pkgconfig-client")
    expect_ok("pkg-config client" "${output}")
endif()

# 3. The examples, configured as a top-level project of their own: find_package() must give
# them everything, the Qt modules and tools included. The programs check themselves and exit
# with a non-zero status when something is wrong.
if(EXAMPLES_DIR)
    set(examples "${WORK_DIR}/examples-build")
    # The programs go to one folder, as Qt's project set-up does anyway on Windows.
    run("${CMAKE_COMMAND}" -S "${EXAMPLES_DIR}" -B "${examples}" ${client_args}
        "-DCMAKE_RUNTIME_OUTPUT_DIRECTORY=${examples}/bin")
    run("${CMAKE_COMMAND}" --build "${examples}")

    run_program("${library_dir}" "${examples}/bin/zarsys-minimal-host" --locale de_DE)
    if(NOT output MATCHES "Start-up callback of the module ran.*\"30,48cm\" -> 304,8mm")
        message(FATAL_ERROR "minimal-host printed:\n${output}")
    endif()
    run_program("${library_dir}" "${examples}/bin/zarsys-settings-group")
    run_program("${library_dir}" "${examples}/bin/zarsys-idle-task")
    run_program("${library_dir}" "${examples}/bin/zarsys-interruptible-computation")
    set(screenshot "${WORK_DIR}/quantity-editor.png")
    run_program("${library_dir}" "${examples}/bin/zarsys-quantity-editor" --locale de_DE
        --screenshot "${screenshot}")
    if(EXISTS "${screenshot}")
        file(SIZE "${screenshot}" size)
    endif()
    if(NOT size GREATER 0)
        message(FATAL_ERROR "quantity-editor wrote no picture to ${screenshot}")
    endif()
    message(STATUS "examples built against the installed package: ok")
endif()
