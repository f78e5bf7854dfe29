# The CTest fixture of a Windows build's tests under wine (see ZARSysWindowsRuntime.cmake).
#
#   cmake -DACTION=start -DWINE=... -DWINEBOOT=... -DWINESERVER=... -P ZARSysWinePrefix.cmake
#   cmake -DACTION=stop -DWINESERVER=... -P ZARSysWinePrefix.cmake
#
# WINEPREFIX comes from the environment. "start" makes the prefix the first time, with wine's
# null display driver, which creates windows without an X server: Qt's event dispatcher and the
# widgets' native windows then work headless, as the offscreen platform expects. It then starts
# a wine server, and wine's services, that stay until "stop".
if(NOT DEFINED ENV{WINEPREFIX})
    message(FATAL_ERROR "WINEPREFIX is not set")
endif()
set(prefix "$ENV{WINEPREFIX}")

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output
        ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        string(REPLACE ";" " " command "${ARGN}")
        message(FATAL_ERROR "'${command}' failed (${result}):\n${output}")
    endif()
endfunction()

if(ACTION STREQUAL "start")
    if(NOT EXISTS "${prefix}/.zarsys-ready")
        message(STATUS "Creating the wine prefix ${prefix}")
        run(${WINEBOOT} --init)
        run(${WINE} reg add "HKCU\\Software\\Wine\\Drivers" /v Graphics /d null /f)
        run(${WINESERVER} --wait)
        file(TOUCH "${prefix}/.zarsys-ready")
    endif()
    # The server detaches itself, and the first program of a session starts wine's own
    # services, which stay as long as the server: their output must not hold CTest's pipes
    # open, or the first test would not end until the last.
    execute_process(COMMAND ${WINESERVER} --persistent
        OUTPUT_FILE /dev/null ERROR_FILE /dev/null)
    execute_process(COMMAND ${WINE} cmd /c exit
        INPUT_FILE /dev/null OUTPUT_FILE /dev/null ERROR_FILE /dev/null)
elseif(ACTION STREQUAL "stop")
    execute_process(COMMAND ${WINESERVER} --kill OUTPUT_QUIET ERROR_QUIET)
else()
    message(FATAL_ERROR "ACTION must be start or stop")
endif()
