# Runs an example and fails when it prints anything but what is expected.
#
#   cmake -D NAME=... -D EXPECTED=... -D OPRUN=... -D SCRIPT=... -P CheckExample.cmake

set(ENV{LC_ALL} C) # texts of plug-ins as in their sources

execute_process(COMMAND ${CMAKE_COMMAND} -E env OPRUN=${OPRUN} ${SCRIPT} ${NAME} --strict
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
if(result OR errors)
    message(FATAL_ERROR "the example ${NAME} gave ${result}\n${errors}")
endif()
file(READ ${EXPECTED} expected)
if(NOT output STREQUAL expected)
    message(FATAL_ERROR "the example ${NAME} printed\n${output}\nexpected\n${expected}")
endif()
