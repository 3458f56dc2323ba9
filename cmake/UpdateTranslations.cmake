# Brings the translations in FOLDER up to date with the texts in the sources: adds what is new and
# takes out what is gone. The engine is in English and is translated to Chinese; the window is in
# Chinese and is translated to English, together with what the engine calls things. oprun is in English
# and is translated to Chinese, together with what the engine calls things, which oprun calls as task
# files do. The plug-in is in Chinese and is translated to English.
#
#   cmake [-D FOLDER=...] -P UpdateTranslations.cmake

get_filename_component(SOURCE_DIR ${CMAKE_CURRENT_LIST_DIR} DIRECTORY)
if(NOT FOLDER)
    set(FOLDER ${SOURCE_DIR}/translations)
endif()
find_program(LUPDATE NAMES lupdate-qt5 lupdate PATHS /usr/lib/qt5/bin NO_DEFAULT_PATH)
find_program(LUPDATE NAMES lupdate-qt5 lupdate REQUIRED)

function(update name source_language language)
    # Guesses by likeness would count as translations that nobody has read.
    execute_process(
        COMMAND ${LUPDATE} -silent -I . -I host -locations none -no-obsolete
                -disable-heuristic similartext -disable-heuristic sametext
                -disable-heuristic number
                -source-language ${source_language} -target-language ${language}
                ${ARGN} -ts ${FOLDER}/${name}
        WORKING_DIRECTORY ${SOURCE_DIR}
        RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(result)
        message(FATAL_ERROR "${name}: ${output}")
    endif()
    # For instance a class whose context it does not find.
    if(output)
        message(SEND_ERROR "${name}: ${output}")
    endif()
endfunction()

# Labels and choices stand in class info, where lupdate does not look: writes them into a source of
# their own, in the context of their class, each choice by itself.
function(write_annotations source)
    set(lines "#include <QtGlobal>\n")
    file(GLOB headers ${SOURCE_DIR}/operations/*.h)
    foreach(header IN LISTS headers)
        file(READ ${header} content)
        string(REGEX MATCH "class ([A-Za-z0-9_]+) : public Operation" class "${content}")
        set(class ${CMAKE_MATCH_1})
        string(REGEX MATCHALL "Q_CLASSINFO\\([ \n]*\"(prop|choices)_[A-Za-z0-9_]+\",[ \n]*\"[^\"]*\""
               annotations "${content}")
        foreach(annotation IN LISTS annotations)
            string(REGEX REPLACE "\"$" "" texts "${annotation}")
            string(REGEX REPLACE "^.*\"" "" texts "${texts}")
            if(annotation MATCHES "\"choices_")
                string(REPLACE "|" ";" texts "${texts}")
            endif()
            foreach(text IN LISTS texts)
                string(APPEND lines "QT_TRANSLATE_NOOP(\"${class}\", \"${text}\")\n")
            endforeach()
        endforeach()
    endforeach()
    file(WRITE ${source} "${lines}")
endfunction()

set(ANNOTATIONS ${FOLDER}/annotations.cpp)
write_annotations(${ANNOTATIONS})
update(TextOperPlugin_en.ts zh_CN en operations plugin ${ANNOTATIONS})
file(REMOVE ${ANNOTATIONS})

update(opworkbench_zh.ts en zh_CN refhost/engine)
update(oprun_zh.ts en zh_CN refhost/runner refhost/engine/EngineText.cpp refhost/engine/Problem.cpp)
update(opworkbench_en.ts zh_CN en refhost/workbench refhost/engine/EngineText.cpp)
