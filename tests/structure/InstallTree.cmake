# Installs into an empty folder, moves it, and runs a task from there: the programs find their
# library and the plug-in beside themselves, and oprun its probe. The workbench, where there is one,
# draws its window.
#
#   cmake -D BUILD_DIR=... -D WORK_DIR=... -D TASK=... -D WITH_WORKBENCH=... -P InstallTree.cmake

set(ENV{LC_ALL} C) # texts of plug-ins as in their sources

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
# What compiles translations is there wherever the workbench is.
execute_process(COMMAND ${WORK_DIR}/second/bin/oprun --lang en catalog
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
if(WITH_WORKBENCH AND NOT output MATCHES "^Text\n")
    message(FATAL_ERROR "the plug-in from the installed tree speaks no English\n${output}${errors}")
endif()
file(GLOB_RECURSE plugin ${WORK_DIR}/second/*TextOperPlugin.so)
foreach(file examples facts)
    string(REGEX REPLACE "so$" "${file}.json" beside "${plugin}")
    if(NOT EXISTS ${beside})
        message(FATAL_ERROR "the installed tree has no ${beside}")
    endif()
endforeach()
execute_process(COMMAND ${WORK_DIR}/second/bin/oprun validate --only file.loads ${plugin}
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(result)
    message(FATAL_ERROR "oprun validate from the installed tree gave ${result}\n${output}")
endif()

if(WITH_WORKBENCH)
    execute_process(
        COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen XDG_CONFIG_HOME=${WORK_DIR}
                XDG_DATA_HOME=${WORK_DIR} ${WORK_DIR}/second/bin/opworkbench
                --screenshot ${WORK_DIR}/window.png --run ${TASK}
        RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(result OR NOT EXISTS ${WORK_DIR}/window.png)
        message(FATAL_ERROR "opworkbench from the installed tree gave ${result}\n${output}")
    endif()
endif()

set(files share/man/man1/oprun.1 share/bash-completion/completions/oprun
    libexec/operationcore/oprun-probe include/OperationCore/IOperationPlugin.h)
if(WITH_WORKBENCH)
    list(APPEND files share/man/man1/opworkbench.1 share/applications/opworkbench.desktop
        share/icons/hicolor/scalable/apps/opworkbench.svg)
endif()
foreach(file IN LISTS files)
    if(NOT EXISTS ${WORK_DIR}/second/${file})
        message(FATAL_ERROR "the installed tree has no ${file}")
    endif()
endforeach()
