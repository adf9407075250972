# Packs a game, unzips it with CMake's own program into an empty folder, and plays it there to the end of its walkthrough.
#
#     cmake -DFABULA=... -DGAME=name.fbd -DWORK=... -DSCRIPT=walkthrough.scr -P cmake/PlayPackage.cmake

file(REMOVE_RECURSE "${WORK}")
file(MAKE_DIRECTORY "${WORK}/from" "${WORK}/to")
get_filename_component(folder "${GAME}" DIRECTORY)
get_filename_component(name "${GAME}" NAME)
get_filename_component(base "${GAME}" NAME_WE)
file(COPY "${GAME}" DESTINATION "${WORK}/from")
if(EXISTS "${folder}/pictures/${base}")
    file(COPY "${folder}/pictures/${base}" DESTINATION "${WORK}/from/pictures")
endif()

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE status)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "failed (${status}): ${ARGN}")
    endif()
endfunction()

run("${FABULA}" package "${WORK}/from/${name}" --version 1.0 "${WORK}/1.zip")
run("${FABULA}" package "${WORK}/from/${name}" --version 1.0 "${WORK}/2.zip")
run("${CMAKE_COMMAND}" -E compare_files "${WORK}/1.zip" "${WORK}/2.zip")
run("${CMAKE_COMMAND}" -E chdir "${WORK}/to" "${CMAKE_COMMAND}" -E tar xf "${WORK}/1.zip")
file(REMOVE_RECURSE "${WORK}/from")
run("${FABULA}" test "${WORK}/to/${name}" "${SCRIPT}")
