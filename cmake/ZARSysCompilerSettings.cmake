# Warnings and sanitizers for everything built in this tree.

if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    add_compile_options(-Wall -Wextra -Wpedantic)
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
if(ZARSYS_SANITIZE)
    if(NOT CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
        message(FATAL_ERROR "ZARSYS_SANITIZE needs GCC or Clang")
    endif()
    # Any finding aborts the process, so a test with a finding fails.
    set(ZARSYS_SANITIZER_FLAGS
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_compile_options(${ZARSYS_SANITIZER_FLAGS})
    add_link_options(${ZARSYS_SANITIZER_FLAGS})
endif()
