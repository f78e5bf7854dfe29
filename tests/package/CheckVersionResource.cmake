# Run by CTest with -P: compiles the generated .rc file into an object, decompiles that object
# and checks the version numbers it carries.

file(REMOVE_RECURSE "${WORK_DIR}")
file(MAKE_DIRECTORY "${WORK_DIR}")
execute_process(
    COMMAND "${WINDRES}" -i "${RC_FILE}" -o "${WORK_DIR}/version.o"
    COMMAND_ERROR_IS_FATAL ANY)
execute_process(
    COMMAND "${WINDRES}" -i "${WORK_DIR}/version.o" -O rc
    OUTPUT_VARIABLE decompiled
    COMMAND_ERROR_IS_FATAL ANY)

string(REPLACE "." ", " numbers "${VERSION}")
foreach(expected
        "FILEVERSION ${numbers}, 0"
        "PRODUCTVERSION ${numbers}, 0"
        "VALUE \"FileVersion\", \"${VERSION}.0\""
        "VALUE \"ProductVersion\", \"${VERSION}.0\""
        "VALUE \"OriginalFilename\", \"ZARSystem.dll\"")
    string(FIND "${decompiled}" "${expected}" position)
    if(position EQUAL -1)
        message(FATAL_ERROR "'${expected}' is missing from the version resource:\n${decompiled}")
    endif()
endforeach()
message(STATUS "version resource: ${VERSION}.0")
