# Fails when two headers of what is built for use define a type of the same name. Programs are linked of
# several of its libraries, and a linker takes one type for the other without a word.
#
#   cmake -D SOURCE_DIR=... -P CheckNames.cmake

set(headers)
foreach(folder host operations plugin refhost)
    file(GLOB_RECURSE found ${SOURCE_DIR}/${folder}/*.h)
    list(APPEND headers ${found})
endforeach()
list(LENGTH headers count)
if(count LESS 100)
    message(FATAL_ERROR "${count} headers; the check looks in the wrong place")
endif()

foreach(header IN LISTS headers)
    file(RELATIVE_PATH file ${SOURCE_DIR} ${header})
    # What stands at the beginning of a line is in no other type, and without a semicolon it is defined.
    file(STRINGS ${header} definitions REGEX "^(class|struct|enum) [A-Za-z][^;]*$")
    foreach(definition IN LISTS definitions)
        string(REGEX MATCH "^(enum class|enum|class|struct) (OPERATIONCORE_EXPORT )?([A-Za-z0-9]+)"
               match "${definition}")
        set(name "${CMAKE_MATCH_3}")
        if(DEFINED place_of_${name})
            message(SEND_ERROR "${file}: ${name} is the name of another type, in ${place_of_${name}}")
        endif()
        set(place_of_${name} ${file})
    endforeach()
endforeach()
