# cmake -DFABULA=program -DKIND=kind -DSOURCE=file -DGAME=file [-DPICTURES=folder] -P BuildExample.cmake
#
# Makes an adventure from its source, with the drawings of the folder as its pictures, and is silent unless that
# fails.

execute_process(COMMAND "${FABULA}" import "${KIND}" "${SOURCE}" "${GAME}" --force
                RESULT_VARIABLE result OUTPUT_VARIABLE status ERROR_VARIABLE status)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${status}")
endif()

if(PICTURES)
    execute_process(COMMAND "${FABULA}" draw "${GAME}" --add "${PICTURES}"
                    RESULT_VARIABLE result OUTPUT_VARIABLE status ERROR_VARIABLE status)
    if(NOT result EQUAL 0)
        file(REMOVE "${GAME}")
        message(FATAL_ERROR "${status}")
    endif()
endif()
