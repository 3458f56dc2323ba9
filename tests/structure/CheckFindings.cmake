# Fails when a check of a task prints anything but what is expected, and with another status than
# findings, or their absence, ask for. Without EXPECTED the task has to be without findings.
#
#   cmake -D TASK=... -D OPRUN=... [-D EXPECTED=...] -P CheckFindings.cmake
#
# After a change that is meant, and a look at the difference: oprun check TASK > EXPECTED

set(ENV{LC_ALL} C) # texts of plug-ins as in their sources

set(expected "no findings\n")
if(EXPECTED)
    file(READ ${EXPECTED} expected)
endif()
set(status 0)
if(NOT expected STREQUAL "no findings\n")
    set(status 1)
endif()

execute_process(COMMAND ${OPRUN} check ${TASK}
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
if(errors OR NOT result EQUAL status)
    message(FATAL_ERROR "the check of ${TASK} gave ${result}, expected ${status}\n${errors}${output}")
endif()
if(NOT output STREQUAL expected)
    # Blocks that are in both are left out of the message. Semicolons would split the list of blocks.
    foreach(side output expected)
        string(REPLACE ";" "," text "${${side}}")
        string(REGEX REPLACE "\n([^ ])" ";\\1" ${side}_blocks "${text}")
    endforeach()
    set(more ${output_blocks})
    list(REMOVE_ITEM more ${expected_blocks})
    set(missing ${expected_blocks})
    list(REMOVE_ITEM missing ${output_blocks})
    list(JOIN more "\n" more)
    list(JOIN missing "\n" missing)
    message(FATAL_ERROR "the check of ${TASK} differs\n--- not expected:\n${more}\n--- missing:\n${missing}")
endif()
