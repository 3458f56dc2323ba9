# Fails when a page does not show what oprun prints: a block with the command line and its output.
#
#   cmake -D OPRUN=... -D PAGE=... -D FOLDER=... -D ARGUMENTS=... -P CheckShown.cmake

set(ENV{LC_ALL} C) # texts of plug-ins as in their sources

separate_arguments(arguments UNIX_COMMAND ${ARGUMENTS})
execute_process(COMMAND ${OPRUN} ${arguments} WORKING_DIRECTORY ${FOLDER}
    OUTPUT_VARIABLE output ERROR_VARIABLE errors)
if(errors)
    message(FATAL_ERROR "oprun ${ARGUMENTS} complains\n${errors}")
endif()
file(READ ${PAGE} page)
string(FIND "${page}" "```console\n$ oprun ${ARGUMENTS}\n${output}```" place)
if(place EQUAL -1)
    message(FATAL_ERROR "${PAGE} does not show what oprun ${ARGUMENTS} prints\n${output}")
endif()
