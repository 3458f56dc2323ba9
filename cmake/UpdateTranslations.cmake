# Brings the translations in FOLDER up to date with the texts in the sources: adds what is new and
# takes out what is gone. The engine is in English and is translated to Chinese; the window is in
# Chinese and is translated to English, together with what the engine calls things.
#
#   cmake [-D FOLDER=...] -P UpdateTranslations.cmake

cmake_path(GET CMAKE_CURRENT_LIST_DIR PARENT_PATH SOURCE_DIR)
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
        OUTPUT_VARIABLE output ERROR_VARIABLE output
        COMMAND_ERROR_IS_FATAL ANY)
    # For instance a class whose context it does not find.
    if(output)
        message(SEND_ERROR "${name}: ${output}")
    endif()
endfunction()

update(opworkbench_zh.ts en zh_CN refhost/engine)
update(opworkbench_en.ts zh_CN en refhost/workbench refhost/engine/EngineText.cpp)
