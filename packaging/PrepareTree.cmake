# Run by CPack before it makes the packages of what it has installed: man pages and change lists are
# compressed, as Debian wants them, and programs look for libraries where the system does.

# change(PATTERN program...): runs the program on each file whose path fits the pattern.
function(change pattern)
    file(GLOB_RECURSE files ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/*)
    list(FILTER files INCLUDE REGEX "${pattern}")
    foreach(file IN LISTS files)
        execute_process(COMMAND ${ARGN} ${file} RESULT_VARIABLE result OUTPUT_QUIET)
        if(result)
            message(FATAL_ERROR "${ARGN} ${file} gave ${result}")
        endif()
    endforeach()
endfunction()

change("/man1/|/changelog\\.Debian$" gzip -9 --no-name)
change("/bin/op[a-z]+$|/oprun-probe$|/plugins/.*\\.so$" chrpath --delete)
