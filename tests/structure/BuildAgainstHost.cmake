# Builds the plug-in as a host vendor would: against a folder of headers and a library file, with
# nothing of the reference host. Fails when that does not give a plug-in, or gives anything else.
#
#   cmake -D SOURCE_DIR=... -D WORK_DIR=... -D LIBRARY=... -D OPRUN=... -D COMPILER=...
#         -P BuildAgainstHost.cmake

set(ENV{LC_ALL} C) # texts of plug-ins as in their sources

file(REMOVE_RECURSE ${WORK_DIR})
file(COPY ${SOURCE_DIR}/host/ DESTINATION ${WORK_DIR}/sdk/include)
file(COPY ${LIBRARY} DESTINATION ${WORK_DIR}/sdk/lib)
get_filename_component(library ${LIBRARY} NAME)

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(result)
        message(FATAL_ERROR "${ARGN} gave ${result}\n${output}")
    endif()
endfunction()

run(${CMAKE_COMMAND} -S ${SOURCE_DIR} -B ${WORK_DIR}/build -G ${GENERATOR}
    -D CMAKE_CXX_COMPILER=${COMPILER} -D CMAKE_BUILD_TYPE=${BUILD_TYPE}
    -D OPERATIONCORE_INCLUDE_DIR=${WORK_DIR}/sdk/include
    -D OPERATIONCORE_LIBRARY=${WORK_DIR}/sdk/lib/${library})
run(${CMAKE_COMMAND} --build ${WORK_DIR}/build)

file(GLOB plugins ${WORK_DIR}/build/plugins/*)
list(FILTER plugins EXCLUDE REGEX "\\.(examples|facts)\\.json$|_[a-z]+\\.qm$")
list(LENGTH plugins count)
if(NOT count EQUAL 1)
    message(FATAL_ERROR "expected one plug-in, there are ${count}: ${plugins}")
endif()
file(GLOB others ${WORK_DIR}/build/bin/* ${WORK_DIR}/build/lib/*)
if(others)
    message(FATAL_ERROR "more than the plug-in was built: ${others}")
endif()
run(${OPRUN} --plugin ${plugins} catalog)

# One of the two alone is a mistake that has to be told.
execute_process(COMMAND ${CMAKE_COMMAND} -S ${SOURCE_DIR} -B ${WORK_DIR}/half -G ${GENERATOR}
    -D OPERATIONCORE_INCLUDE_DIR=${WORK_DIR}/sdk/include
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(NOT result OR NOT output MATCHES "only one of them is set")
    message(FATAL_ERROR "half of a host was accepted\n${output}")
endif()
