# For the copies of the project in which mutants are built: most of the time to compile one goes into
# Qt's headers, so the library and the tests of it read them precompiled. The build of the project
# itself does not, since a source could then forget an include.

function(precompile_qt)
    target_precompile_headers(TextOperations PRIVATE <QtCore>)
    get_property(targets DIRECTORY ${PROJECT_SOURCE_DIR}/tests PROPERTY BUILDSYSTEM_TARGETS)
    foreach(target IN LISTS targets)
        get_target_property(libraries ${target} LINK_LIBRARIES)
        if(NOT "TextOperations" IN_LIST libraries)
            continue()
        elseif(first)
            target_precompile_headers(${target} REUSE_FROM ${first})
        else()
            set(first ${target})
            target_precompile_headers(${target} PRIVATE <QtTest>)
        endif()
    endforeach()
endfunction()

# When all targets are known.
cmake_language(DEFER CALL precompile_qt)
