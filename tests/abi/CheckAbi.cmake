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
foreach(type IEditorRegistry IOperationPlugin Operation PluginManifest VariableScope VarType)
    if(NOT description MATCHES "<(class|enum)-decl name='${type}'[^>]*[^/]>")
        message(FATAL_ERROR "nothing is said about ${type}; the check is none")
    endif()
endforeach()

if(NOT EXISTS ${BASELINE})
    set(report "There is no ${name} yet.")
    set(result 4)
else()
    execute_process(
        COMMAND ${ABIDIFF} --no-added-syms --no-corpus-path --no-show-locs ${BASELINE} ${today}
        RESULT_VARIABLE result OUTPUT_VARIABLE report ERROR_VARIABLE report)
endif()
if(UPDATE)
    configure_file(${today} ${BASELINE} COPYONLY)
    message("${report}")
elseif(result)
    message("${report}")
    message(FATAL_ERROR "The binary interface of OperationCore is not that of ${name} any more; "
            "plug-ins that are out there would break. See docs/compatibility.md.")
endif()
