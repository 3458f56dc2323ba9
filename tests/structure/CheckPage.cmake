# Fails when the reference page is not what oprun writes; scripts/update-docs writes it anew.
#
#   cmake -D OPRUN=... -D PAGE=... -P CheckPage.cmake

set(ENV{LC_ALL} C) # texts of plug-ins as in their sources

execute_process(COMMAND ${OPRUN} docs --icons ../resources/
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
if(result OR errors)
    message(FATAL_ERROR "oprun docs gave ${result}\n${errors}")
endif()
file(READ ${PAGE} page)
if(NOT output STREQUAL page)
    message(FATAL_ERROR "${PAGE} is stale; run scripts/update-docs and read the difference")
endif()
