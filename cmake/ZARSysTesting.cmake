# zarsys_add_test(<name> SOURCES <files...> [LIBRARIES <targets...>] [RUN_SERIAL])
#
# Builds a QtTest executable against the library and registers it with CTest. Tests run
# headless, and with a home and configuration folders inside the build tree, so that nothing a
# test does reaches the user's own settings.
function(zarsys_add_test name)
    cmake_parse_arguments(ARG "RUN_SERIAL" "" "SOURCES;LIBRARIES" ${ARGN})
    qt_add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ZARSystem::ZARSystem Qt6::Test ${ARG_LIBRARIES})
    target_compile_definitions(${name} PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS)

    set(home "${CMAKE_BINARY_DIR}/test-home/${name}")
    file(MAKE_DIRECTORY "${home}")
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;HOME=${home};XDG_CONFIG_HOME=${home}/.config;XDG_DATA_HOME=${home}/.local/share;XDG_CACHE_HOME=${home}/.cache"
        TIMEOUT 120
    )
    if(ARG_RUN_SERIAL)
        set_tests_properties(${name} PROPERTIES RUN_SERIAL TRUE)
    endif()
endfunction()
