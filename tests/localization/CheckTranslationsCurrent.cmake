# Runs scripts/update-translations on copies of the .ts files and fails if that changes them: a
# text was added, changed or removed without running it.
#
#   cmake -DLUPDATE=... -DSOURCE_DIR=... -DWORK_DIR=... -DTS_FILES=a.ts;b.ts -P this file

file(REMOVE_RECURSE "${WORK_DIR}")
file(MAKE_DIRECTORY "${WORK_DIR}")
set(copies)
foreach(ts IN LISTS TS_FILES)
    get_filename_component(name "${ts}" NAME)
    configure_file("${ts}" "${WORK_DIR}/${name}" COPYONLY)
    list(APPEND copies "${WORK_DIR}/${name}")
endforeach()

execute_process(
    COMMAND ${CMAKE_COMMAND} -E env "LUPDATE=${LUPDATE}"
        "${SOURCE_DIR}/scripts/update-translations" ${copies}
    RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "scripts/update-translations failed: ${result}")
endif()

set(stale)
foreach(ts IN LISTS TS_FILES)
    get_filename_component(name "${ts}" NAME)
    file(READ "${ts}" before)
    file(READ "${WORK_DIR}/${name}" after)
    if(NOT before STREQUAL after)
        list(APPEND stale "${name}")
    endif()
endforeach()
if(stale)
    message(FATAL_ERROR "Out of date, run scripts/update-translations: ${stale}")
endif()
list(LENGTH TS_FILES count)
message(STATUS "${count} translation sources are current")
