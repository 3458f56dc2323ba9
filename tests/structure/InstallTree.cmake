# Installs into an empty folder, moves it, and runs a task from there: the programs find their
# library and the plug-in beside themselves, and oprun its probe.
#
#   cmake -D BUILD_DIR=... -D WORK_DIR=... -D TASK=... -P InstallTree.cmake

file(REMOVE_RECURSE ${WORK_DIR})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK_DIR}/first
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(result)
    message(FATAL_ERROR "the installation gave ${result}\n${output}")
endif()
file(RENAME ${WORK_DIR}/first ${WORK_DIR}/second)
execute_process(COMMAND ${WORK_DIR}/second/bin/oprun run ${TASK} --strict
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(result)
    message(FATAL_ERROR "oprun from the installed tree gave ${result}\n${output}")
endif()
file(GLOB_RECURSE plugin ${WORK_DIR}/second/*TextOperPlugin.so)
execute_process(COMMAND ${WORK_DIR}/second/bin/oprun validate --only file.loads ${plugin}
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(result)
    message(FATAL_ERROR "oprun validate from the installed tree gave ${result}\n${output}")
endif()

foreach(file share/man/man1/oprun.1 share/bash-completion/completions/oprun)
    if(NOT EXISTS ${WORK_DIR}/second/${file})
        message(FATAL_ERROR "the installed tree has no ${file}")
    endif()
endforeach()
