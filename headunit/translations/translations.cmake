# SPDX-License-Identifier: Apache-2.0
# Compiles the unit's texts and leaves a source that embeds them in headunit_translations.
# A new language: docs/changing.md.

find_package(Qt5 5.15 REQUIRED COMPONENTS LinguistTools)

set(translations_dir ${CMAKE_CURRENT_LIST_DIR})
set(id_tables headunit_en headunit_de headunit_fr headunit_es headunit_ja)
set(form_tables forms_de forms_fr forms_es forms_ja)

set(qrc "<RCC>\n<qresource prefix=\"/headunit/translations\">\n")
set(qm_files "")
foreach(table IN LISTS id_tables form_tables)
    set(options "")
    if(table IN_LIST id_tables)
        set(options -idbased)
    endif()
    set(qm ${CMAKE_CURRENT_BINARY_DIR}/${table}.qm)
    add_custom_command(OUTPUT ${qm}
        COMMAND Qt5::lrelease -silent ${options} ${translations_dir}/${table}.ts -qm ${qm}
        DEPENDS ${translations_dir}/${table}.ts
        COMMENT "Compiling ${table}.ts"
        VERBATIM)
    list(APPEND qm_files ${qm})
    string(APPEND qrc "<file alias=\"${table}.qm\">${qm}</file>\n")
endforeach()
string(APPEND qrc "</qresource>\n</RCC>\n")

set(qrc_file ${CMAKE_CURRENT_BINARY_DIR}/headunit_translations.qrc)
file(CONFIGURE OUTPUT ${qrc_file} CONTENT "${qrc}" @ONLY)

# Not compressed, so that a table is used where it lies in the library.
set(headunit_translations ${CMAKE_CURRENT_BINARY_DIR}/headunit_translations.cpp)
add_custom_command(OUTPUT ${headunit_translations}
    COMMAND Qt5::rcc --no-compress --name headunit_translations --output ${headunit_translations} ${qrc_file}
    DEPENDS ${qrc_file} ${qm_files}
    COMMENT "Embedding the unit's texts"
    VERBATIM)
