# Takes the example plug-in out of the comment of the interface header and makes a header of it, so
# that the example is built and run like everything else.
#
#   extract_example(<interface header> <output header>)
function(extract_example interface output)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${interface})
    file(READ ${interface} text)
    # Semicolons would split the list of lines, so another character stands for them meanwhile.
    string(ASCII 1 semicolon)
    string(REPLACE ";" ${semicolon} text "${text}")
    string(REGEX MATCHALL "///    [^\n]*" lines "${text}")
    list(TRANSFORM lines REPLACE "^///    " "")
    list(JOIN lines "\n" code)
    string(REPLACE ${semicolon} ";" code "${code}")
    set(header "#pragma once

#include \"IOperationPlugin.h\"
#include \"Operation.h\"
#include \"VariableScope.h\"

#include <QDataStream>
#include <QDebug>

${code}
")
    # What has not changed keeps its time, and what includes it is not compiled again.
    set(previous "")
    if(EXISTS ${output})
        file(READ ${output} previous)
    endif()
    if(NOT header STREQUAL previous)
        file(WRITE ${output} "${header}")
    endif()
endfunction()
