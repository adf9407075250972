# cmake -DFABULA=program -DKIND=kind -DGAME=file -DWORK=folder -DSCRIPTS=a;b -P PlayRoundTrip.cmake
#
# Exports an adventure as a kind, imports that into another, and plays the scripts on it: the transcripts must be those
# of the adventure itself.

file(MAKE_DIRECTORY "${WORK}")
set(source "${WORK}/source")
set(copy "${WORK}/copy.fbd")

function(run)
    execute_process(COMMAND "${FABULA}" ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE text ERROR_VARIABLE text)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "fabula ${ARGN}\n${text}")
    endif()
endfunction()

file(REMOVE "${source}" "${copy}")
run(export ${KIND} "${GAME}" "${source}")
run(import ${KIND} "${source}" "${copy}")
foreach(script ${SCRIPTS})
    run(test "${copy}" "${script}")
endforeach()
