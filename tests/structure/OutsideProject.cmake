# Goes the way of an author from outside: installs the build into a home folder of its own, checks what
# find_package and the headers give there, runs every shell command that the page for authors tells them
# to run, in one go, and holds what the page shows against what oprun prints then.
#
#   cmake -D SOURCE_DIR=... -D BUILD_DIR=... -D WORK_DIR=... -D PAGE=... -D PLUGIN_DIR=... -D GENERATOR=...
#         -D BUILD_TYPE=... -D COMPILER=... -D LAUNCHER=... -D FLAGS=... -D SANITIZERS=...
#         -P OutsideProject.cmake

include(${CMAKE_CURRENT_LIST_DIR}/PageBlocks.cmake)

set(home ${WORK_DIR}/home)
set(prefix ${home}/operations)
set(flags "${FLAGS} -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror")
if(SANITIZERS)
    string(APPEND flags
        " -fsanitize=${SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer")
endif()

# run(name command...): runs the command as the author does; his tools take what concerns this build
# from the environment. Gives its output.
function(run output_name)
    execute_process(
        COMMAND ${CMAKE_COMMAND} -E env HOME=${home} LC_ALL=C CXX=${COMPILER} CXXFLAGS=${flags}
                CMAKE_GENERATOR=${GENERATOR} CMAKE_BUILD_TYPE=${BUILD_TYPE}
                CMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER} ${ARGN}
        WORKING_DIRECTORY ${SOURCE_DIR}
        RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
    if(result)
        message(FATAL_ERROR "${ARGN} gave ${result}\n${output}\n${errors}")
    endif()
    set(${output_name} "${output}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE ${WORK_DIR})
run(ignored ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK_DIR}/first)
file(MAKE_DIRECTORY ${home})
file(RENAME ${WORK_DIR}/first ${prefix})

run(ignored ${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/outside -B ${WORK_DIR}/headers
    -D CMAKE_PREFIX_PATH=${prefix} -D HOST_FOLDER=${SOURCE_DIR}/host)
run(ignored ${CMAKE_COMMAND} --build ${WORK_DIR}/headers)

page_blocks(${PAGE} sh commands)
set(script "set -eu\n")
foreach(i RANGE 1 ${commands_COUNT})
    string(APPEND script "${commands_${i}}")
endforeach()
# The plug-in's own page has the same commands, only fewer.
page_blocks(${SOURCE_DIR}/examples/plugin/README.md sh fewer)
string(REPLACE "\n" ";" lines "${fewer_1}")
foreach(line IN LISTS lines)
    string(FIND "${script}" "\n${line}\n" place)
    if(line AND place EQUAL -1)
        message(SEND_ERROR "examples/plugin/README.md: \"${line}\" is not in ${PAGE}")
    endif()
endforeach()
string(REPLACE "lib/operationcore/plugins" "${PLUGIN_DIR}" script "${script}")
file(WRITE ${WORK_DIR}/commands.sh "${script}")
run(ignored bash ${WORK_DIR}/commands.sh)

# One of the commands takes over texts that are new in the sources.
file(READ ${home}/count/CountPlugin_en.ts texts)
file(READ ${SOURCE_DIR}/examples/plugin/CountPlugin_en.ts known_texts)
if(NOT texts STREQUAL known_texts)
    message(SEND_ERROR "CountPlugin_en.ts is not up to date with the texts in the sources")
endif()

# What the author has installed beside what was there works with it, and everything with it is there.
foreach(file CountPlugin.so CountPlugin_en.qm CountPlugin.examples.json)
    if(NOT EXISTS ${prefix}/${PLUGIN_DIR}/${file})
        message(SEND_ERROR "the commands have not installed ${file}")
    endif()
endforeach()
run(output ${prefix}/bin/oprun run ${SOURCE_DIR}/examples/plugin/log-errors.json --strict
    --print report)
if(NOT output STREQUAL "errors: 2\n")
    message(SEND_ERROR "the task with steps of both plug-ins gave\n${output}")
endif()

# Blocks of the page that begin with a command line show what it prints.
page_blocks(${PAGE} console shown)
foreach(i RANGE 1 ${shown_COUNT})
    string(FIND "${shown_${i}}" "\n" line_end)
    string(SUBSTRING "${shown_${i}}" 0 ${line_end} line)
    if(NOT line MATCHES "^\\$ oprun (.*)$")
        message(FATAL_ERROR "${PAGE}: \"${line}\"; expected a command line of oprun")
    endif()
    run(output bash -c "cd ~/count && ~/operations/bin/oprun ${CMAKE_MATCH_1}")
    if(NOT "$ oprun ${CMAKE_MATCH_1}\n${output}" STREQUAL "${shown_${i}}")
        message(SEND_ERROR "${PAGE} does not show what oprun ${CMAKE_MATCH_1} prints\n${output}")
    endif()
endforeach()
