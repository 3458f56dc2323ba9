# How the project's own code is compiled: strict warnings and optional sanitizers everywhere; outside
# the tests, where texts are compared all the time, also without Qt's implicit text conversions.

add_library(ProjectWarnings INTERFACE)
add_library(ProjectOptions INTERFACE)

target_link_libraries(ProjectOptions INTERFACE ProjectWarnings)
target_compile_definitions(ProjectOptions INTERFACE
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_KEYWORDS
    QT_NO_FOREACH
    QT_DISABLE_DEPRECATED_BEFORE=0x050F00)

# An index out of range ends a debug build there and then.
target_compile_definitions(ProjectWarnings INTERFACE $<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS>)

if(MSVC)
    target_compile_options(ProjectWarnings INTERFACE
        /utf-8 /W4 $<$<BOOL:${TEXTOPER_WARNINGS_AS_ERRORS}>:/WX>)
else()
    target_compile_options(ProjectWarnings INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion
        $<$<BOOL:${TEXTOPER_WARNINGS_AS_ERRORS}>:-Werror>)
endif()

if(TEXTOPER_SANITIZERS)
    target_compile_options(ProjectWarnings INTERFACE
        -fsanitize=${TEXTOPER_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(ProjectWarnings INTERFACE -fsanitize=${TEXTOPER_SANITIZERS})
endif()

# What is delivered is hardened as Debian's hardening=+all asks for, with protection against stack
# clashes and of the control flow where the compiler and the processor have it. Sanitizers do this work
# themselves. tests/structure/CheckHardening.cmake reads the result back from the files.
include(CheckCXXCompilerFlag)
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
if(UNIX AND NOT APPLE AND NOT TEXTOPER_SANITIZERS)
    foreach(option -fstack-protector-strong -fstack-clash-protection -fcf-protection)
        string(MAKE_C_IDENTIFIER "HAS${option}" known)
        check_cxx_compiler_flag(${option} ${known})
        if(${known})
            target_compile_options(ProjectOptions INTERFACE ${option})
        endif()
    endforeach()
    target_compile_options(ProjectOptions INTERFACE -Werror=format-security)
    # Fortified functions need optimisation. A level that the environment has chosen stays.
    if(NOT CMAKE_CXX_FLAGS MATCHES "_FORTIFY_SOURCE")
        set(OPTIMISED $<OR:$<CONFIG:Release>,$<CONFIG:RelWithDebInfo>,$<CONFIG:MinSizeRel>>)
        target_compile_options(ProjectOptions INTERFACE
            $<${OPTIMISED}:-U_FORTIFY_SOURCE> $<${OPTIMISED}:-D_FORTIFY_SOURCE=2>)
    endif()
    target_link_options(ProjectOptions INTERFACE -Wl,-z,relro -Wl,-z,now)
endif()

# Has moc look through a target again when files that no CMakeLists.txt names are others than the
# last time. Ninja knows of no reason to, and what is new would not link.
function(look_again_for_new_files target)
    set(key ${target}_KNOWN_FILES)
    if(NOT "${${key}}" STREQUAL "${ARGN}")
        file(REMOVE ${CMAKE_CURRENT_BINARY_DIR}/${target}_autogen/timestamp)
    endif()
    set(${key} "${ARGN}" CACHE INTERNAL "The sources of ${target} at the last configuration")
endfunction()

# Lets no symbol of a shared library be left to luck at load time. Clang's sanitizer run-time is
# linked into programs only, so there its symbols have to stay open in libraries.
function(forbid_undefined_symbols target)
    if(UNIX AND NOT APPLE AND NOT (TEXTOPER_SANITIZERS AND CMAKE_CXX_COMPILER_ID MATCHES "Clang"))
        target_link_options(${target} PRIVATE -Wl,--no-undefined)
    endif()
endfunction()
