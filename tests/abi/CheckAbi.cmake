# Describes the binary interface of LIBRARY and compares that with the description in BASELINE. Fails,
# with what has changed, unless the only difference is that there is more to call. With UPDATE the new
# description takes the place of the kept one, whatever the difference.
#
#   cmake -D LIBRARY=... -D BASELINE=... -D FOREIGN=... -D WORK_DIR=... -D ABIDW=... -D ABIDIFF=...
#         [-D UPDATE=ON] -P CheckAbi.cmake

get_filename_component(name ${BASELINE} NAME)
set(today ${WORK_DIR}/${name})
execute_process(
    COMMAND ${ABIDW} --suppressions ${FOREIGN} --exported-interfaces-only --no-architecture
            --no-corpus-path --no-comp-dir-path --no-show-locs --no-elf-needed --no-parameter-names
            --type-id-style hash --out-file ${today} ${LIBRARY}
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(result)
    message(FATAL_ERROR "abidw gave ${result}\n${output}")
endif()

# Where the sources stood says nothing.
file(READ ${today} description)
string(REGEX REPLACE "path='[^']*/" "path='" description "${description}")
file(WRITE ${today} "${description}")
# What abidiff says to this, with further options.
function(compare result_variable report_variable)
    execute_process(
        COMMAND ${ABIDIFF} ${ARGN} --no-added-syms --no-corpus-path --no-show-locs
                ${BASELINE} ${today}
        RESULT_VARIABLE result OUTPUT_VARIABLE report ERROR_VARIABLE report)
    set(${result_variable} ${result} PARENT_SCOPE)
    set(${report_variable} "${report}" PARENT_SCOPE)
endfunction()

set(result 0)
set(report "There is no ${name} yet.")
if(EXISTS ${BASELINE})
    compare(result report)
    # Shorter, and in most cases to the point; it is silent about virtual functions that moved.
    compare(ignored summary --leaf-changes-only)
    if(NOT summary MATCHES "Leaf changes summary: 0 ")
        set(report "${summary}")
    endif()
elseif(NOT UPDATE)
    set(result 1)
endif()
if(UPDATE)
    configure_file(${today} ${BASELINE} COPYONLY)
    message("${report}")
elseif(result)
    message("${report}")
    message(FATAL_ERROR "The binary interface of OperationCore is not that of ${name} any more; "
            "plug-ins that are out there would break. See docs/compatibility.md.")
endif()

# Types that nothing leads to are in no description.
foreach(type IEditorRegistry IOperationPlugin Operation PluginManifest VariableScope VarType)
    if(NOT description MATCHES "<(class|enum)-decl name='${type}'[^>]*[^/]>")
        message(FATAL_ERROR "nothing is said about ${type}; the check is none")
    endif()
endforeach()
