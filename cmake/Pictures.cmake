# SPDX-License-Identifier: Apache-2.0
# Pictures: SVG sources, rendered at build time, embedded in a target as a Qt resource.

find_program(PYTHON3_PROGRAM python3 REQUIRED)
set(PICTURES_SOURCE_DIR ${CMAKE_SOURCE_DIR}/audiosetting/resources)
set(PICTURES_RENDERER ${CMAKE_SOURCE_DIR}/tools/render_pictures.py)
set(PICTURES_CODE_DIR ${CMAKE_CURRENT_LIST_DIR})

# headunit_pictures(TARGET TABLE file DENSE file.rcc): adds the table's pictures to a target of the same CMakeLists.txt.
#
# A line of the table is: prefix/name source state width height, with sources below the table's folder and the states of
# resources/palette/. Each source is one build step, so that a changed drawing renders its own family only.
# The pictures below a line [first] that the first screen shows at rest lie together in memory, apart from those that only
# a finger, Defeat or another screen ([later]) brings up: a start then reads half as much of the file.
# The pictures for dense displays (name@2x.png) go to the file DENSE, which the target maps at start when the display
# needs them; it must stand in the same folder as the program or library.
function(headunit_pictures target)
    cmake_parse_arguments(ARG "" "TABLE;DENSE" "" ${ARGN})
    get_filename_component(table ${ARG_TABLE} ABSOLUTE)
    get_filename_component(folder ${table} DIRECTORY)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${table})
    set(out ${CMAKE_CURRENT_BINARY_DIR}/${target}_pictures)
    file(GLOB palette CONFIGURE_DEPENDS ${PICTURES_SOURCE_DIR}/palette/*)

    set(sources "")
    set(files "")
    set(packs "")
    # Brackets would make one list element of several lines, semicolons (in comments) several of one.
    file(READ ${table} lines)
    string(REPLACE ";" "," lines "${lines}")
    string(REGEX REPLACE "\\[([a-z]+)\\]" "pack=\\1" lines "${lines}")
    string(REGEX MATCHALL "[^\n]+" lines "${lines}")
    list(FILTER lines EXCLUDE REGEX "^#")
    foreach(line IN LISTS lines)
        if(line MATCHES "^pack=([a-z]+)$")
            set(screen ${CMAKE_MATCH_1})
            continue()
        endif()
        if(NOT line MATCHES "^([a-z0-9_]+/[A-Za-z0-9_]+) +([A-Za-z0-9_./]+) +([a-z+]+) +([0-9]+) +([0-9]+)$")
            message(FATAL_ERROR "${table}: not a picture: ${line}")
        endif()
        set(name ${CMAKE_MATCH_1})
        set(source ${CMAKE_MATCH_2})
        set(state ${CMAKE_MATCH_3})
        set(row ${name},${CMAKE_MATCH_3},${CMAKE_MATCH_4},${CMAKE_MATCH_5})
        if(name IN_LIST names)
            message(FATAL_ERROR "${table}: ${name} stands twice")
        endif()
        list(APPEND names ${name})
        set(pack ${screen})
        if(state MATCHES "^[pd]")
            set(pack later)
        endif()
        if(NOT pack IN_LIST packs)
            list(APPEND packs ${pack})
        endif()
        list(APPEND names_${pack} ${name})
        list(APPEND sources ${source})
        list(APPEND rows_${source} ${row})
        list(APPEND files_${source} ${out}/${name}.png ${out}/${name}@2x.png)
    endforeach()

    list(REMOVE_DUPLICATES sources)
    foreach(source IN LISTS sources)
        add_custom_command(OUTPUT ${files_${source}}
            COMMAND ${PYTHON3_PROGRAM} -I -S ${PICTURES_RENDERER} --source ${folder}/${source}.svg
                --palette ${PICTURES_SOURCE_DIR}/palette --out ${out} ${rows_${source}}
            DEPENDS ${folder}/${source}.svg ${palette} ${PICTURES_RENDERER}
            COMMENT "Rendering ${source}.svg" VERBATIM)
        list(APPEND files ${files_${source}})
    endforeach()

    set(archives "")
    set(symbols "")
    set(pack_files "")
    foreach(pack IN LISTS packs)
        headunit_picture_archive(${out}/${pack}.rcc "" "${names_${pack}}" "${files}" ${out})
        list(APPEND pack_files ${out}/${pack}.rcc)
        string(APPEND archives "PICTURE_ARCHIVE(${target}_${pack}, \"${out}/${pack}.rcc\")\n")
        string(APPEND symbols "${target}_${pack}, ")
    endforeach()
    headunit_picture_archive(${ARG_DENSE} "@2x" "${names}" "${files}" ${out})
    get_filename_component(dense ${ARG_DENSE} NAME)
    file(WRITE ${out}/${target}_pictures.cpp.new "#include \"${PICTURES_CODE_DIR}/embeddedpictures.h\"

${archives}
namespace {
const unsigned char *const archives[] = {${symbols}nullptr};
const EmbeddedPictures pictures(archives, \"${dense}\");
}  // namespace
")
    configure_file(${out}/${target}_pictures.cpp.new ${out}/${target}_pictures.cpp COPYONLY)
    set_source_files_properties(${out}/${target}_pictures.cpp PROPERTIES
        OBJECT_DEPENDS "${pack_files};${ARG_DENSE}" SKIP_AUTOGEN ON)
    target_sources(${target} PRIVATE ${out}/${target}_pictures.cpp ${PICTURES_CODE_DIR}/embeddedpictures.cpp
        ${PICTURES_CODE_DIR}/embeddedpictures.h)
    target_link_libraries(${target} PRIVATE ${CMAKE_DL_LIBS})
    add_custom_target(${target}_pictures DEPENDS ${pack_files} ${ARG_DENSE})
    set_target_properties(${target}_pictures PROPERTIES PICTURE_PACKS "${pack_files}")
    add_dependencies(${target} ${target}_pictures)
endfunction()

# headunit_picture_archive(FILE SUFFIX NAMES FILES FOLDER): one .rcc file of every name with that suffix.
function(headunit_picture_archive archive suffix names files folder)
    set(qrc "<RCC>\n")
    foreach(name IN LISTS names)
        get_filename_component(prefix ${name} DIRECTORY)
        get_filename_component(file ${name} NAME)
        string(APPEND qrc "    <qresource prefix=\"/${prefix}\"><file alias=\"${file}${suffix}.png\">"
            "${name}${suffix}.png</file></qresource>\n")
    endforeach()
    string(APPEND qrc "</RCC>\n")
    get_filename_component(archive_name ${archive} NAME_WE)
    set(description ${folder}/${archive_name}${suffix}.qrc)
    file(GENERATE OUTPUT ${description} CONTENT "${qrc}")
    get_filename_component(archive_folder ${archive} DIRECTORY)
    # Version 1 is what Qt 5.3 reads, and it holds no file times. Old releases write no other.
    set(format "")
    if(NOT Qt5Core_VERSION VERSION_LESS 5.13)
        set(format --format-version 1)
    endif()
    add_custom_command(OUTPUT ${archive}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${archive_folder}
        COMMAND Qt5::rcc --binary --no-compress ${format} --output ${archive} ${description}
        DEPENDS ${files} ${description}
        COMMENT "Packing pictures: ${archive_name}${suffix}" VERBATIM)
endfunction()
