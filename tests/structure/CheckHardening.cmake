# Reads from the delivered files how they were hardened: relocations that are read-only once the file
# is loaded, and resolved at once; programs that are position independent; stack protectors; fortified
# functions; on x86-64 also targets of indirect jumps and probes of large stack frames.
#
#   cmake -D "FILES=..." -D READELF=... -D OBJDUMP=... -P CheckHardening.cmake
#
# FILES are paths separated by "|".

function(require file text pattern what)
    if(NOT text MATCHES "${pattern}")
        message(SEND_ERROR "${file}: no ${what}")
    endif()
endfunction()

function(read_with output file)
    execute_process(COMMAND ${ARGN} ${file}
        RESULT_VARIABLE result OUTPUT_VARIABLE text ERROR_VARIABLE errors)
    if(result)
        message(FATAL_ERROR "${ARGN} ${file} gave ${result}\n${errors}")
    endif()
    set(${output} "${text}" PARENT_SCOPE)
endfunction()

function(check_code file header is_program)
    if(NOT header MATCHES "X86-64")
        return()
    endif()
    read_with(code ${file} ${OBJDUMP} -d --no-show-raw-insn)
    string(REGEX MATCHALL "endbr64" targets "${code}")
    list(LENGTH targets count)
    # The start-up code that comes with the compiler has some of its own.
    if(count LESS 20)
        message(SEND_ERROR "${file}: no targets of indirect jumps are marked")
    endif()
    # Only a frame of more than a page is probed; the programs have some.
    if(is_program)
        require(${file} "${code}" "or[bwlq]? +\\$0x0,\\(%rsp\\)" "probe of a large stack frame")
    endif()
endfunction()

function(check_file file)
    read_with(header ${file} ${READELF} -hW)
    read_with(segments ${file} ${READELF} -lW)
    read_with(dynamic ${file} ${READELF} -dW)
    read_with(symbols ${file} ${READELF} -W --dyn-syms)
    set(is_program OFF)
    if(segments MATCHES "INTERP")
        set(is_program ON)
        require(${file} "${dynamic}" "Flags:[^\n]* PIE" "position independent program")
    endif()
    require(${file} "${segments}" "GNU_RELRO" "read-only relocations")
    require(${file} "${dynamic}" "BIND_NOW|Flags:[^\n]* NOW" "immediate binding")
    require(${file} "${symbols}" "__stack_chk_fail" "stack protector")
    # The fortified forms take the place of these at every call.
    if(symbols MATCHES " (v?f?printf|v?snprintf)@")
        message(SEND_ERROR "${file}: ${CMAKE_MATCH_1} is not fortified")
    endif()
    if(symbols MATCHES "_chk@")
        set(fortified ON PARENT_SCOPE)
    endif()
    check_code(${file} "${header}" ${is_program})
endfunction()

string(REPLACE "|" ";" FILES "${FILES}")
set(fortified OFF)
foreach(file IN LISTS FILES)
    check_file(${file})
endforeach()
if(NOT fortified)
    message(SEND_ERROR "no file calls a fortified function")
endif()
