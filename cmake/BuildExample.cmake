# cmake -DFABULA=program -DKIND=kind -DSOURCE=file -DGAME=file -P BuildExample.cmake
#
# Makes an adventure from its source, and is silent unless that fails.

execute_process(COMMAND "${FABULA}" import "${KIND}" "${SOURCE}" "${GAME}" --force
                RESULT_VARIABLE result OUTPUT_VARIABLE status ERROR_VARIABLE status)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${status}")
endif()
