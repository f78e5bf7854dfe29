# zarsys_add_test(<name> SOURCES <files...> [LIBRARIES <targets...>] [RUN_SERIAL] [THREADS])
#
# Builds a QtTest executable against the library and registers it with CTest. Tests run
# headless, and with a home and configuration folders inside the build tree, so that nothing a
# test does reaches the user's own settings. THREADS marks a test whose threads share library
# state: it gets the CTest label "threads" and joins the target thread-tests, which
# scripts/tsan builds and runs under ThreadSanitizer.
set(ZARSYS_TEST_TIMEOUT_SCALE 1 CACHE STRING
    "Factor for the tests' time limits (scripts/memcheck raises it, valgrind being slow)")

if(NOT TARGET thread-tests)
    add_custom_target(thread-tests)
endif()

function(zarsys_add_test name)
    cmake_parse_arguments(ARG "RUN_SERIAL;THREADS" "" "SOURCES;LIBRARIES" ${ARGN})
    qt_add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ZARSystem::ZARSystem Qt6::Test ${ARG_LIBRARIES})
    target_compile_definitions(${name} PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS)

    math(EXPR timeout "120 * ${ZARSYS_TEST_TIMEOUT_SCALE}")
    set(home "${CMAKE_BINARY_DIR}/test-home/${name}")
    file(MAKE_DIRECTORY "${home}")
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;HOME=${home};XDG_CONFIG_HOME=${home}/.config;XDG_DATA_HOME=${home}/.local/share;XDG_CACHE_HOME=${home}/.cache"
        TIMEOUT ${timeout}
    )
    zarsys_wine_test(${name})
    if(ZARSYS_SANITIZE)
        # A claim of more memory than there is must fail as it does without the sanitizer
        # (std::bad_alloc), which some tests of hostile input rely on.
        set_property(TEST ${name} APPEND PROPERTY ENVIRONMENT
            "ASAN_OPTIONS=allocator_may_return_null=1")
    endif()
    if(ARG_RUN_SERIAL)
        set_tests_properties(${name} PROPERTIES RUN_SERIAL TRUE)
    endif()
    if(ARG_THREADS)
        set_tests_properties(${name} PROPERTIES LABELS threads)
        add_dependencies(thread-tests ${name})
    endif()
endfunction()
