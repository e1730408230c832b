# SPDX-License-Identifier: Apache-2.0
# One verb per kind of target, so that every CMakeLists.txt is a list.

# audiosetting_plugin_begin(): starts the plug-in's objects, which audiosetting_part() then fills.
function(audiosetting_plugin_begin)
    add_library(audiosetting_objects OBJECT)
    set_target_properties(audiosetting_objects PROPERTIES
        CXX_STANDARD 11 AUTOMOC ON
        CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
    # Written for Qt 5.3: what later releases call deprecated is all that it has.
    target_compile_definitions(audiosetting_objects PRIVATE QT_NO_DEPRECATED_WARNINGS)
    target_include_directories(audiosetting_objects PUBLIC ${CMAKE_SOURCE_DIR}/audiosetting ${CMAKE_BINARY_DIR}/forms)
    target_link_libraries(audiosetting_objects PUBLIC headunit_contract Qt5::Core Qt5::Gui Qt5::Widgets)

    # Not AUTOUIC: with Ninja it takes a second build until a changed form reaches the objects.
    file(GLOB forms CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/audiosetting/forms/*.ui)
    file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/forms)
    foreach(form IN LISTS forms)
        get_filename_component(name ${form} NAME_WE)
        set(header ${CMAKE_BINARY_DIR}/forms/ui_${name}.h)
        add_custom_command(OUTPUT ${header} COMMAND Qt5::uic -o ${header} ${form} DEPENDS ${form}
            COMMENT "Generating ui_${name}.h" VERBATIM)
        set_source_files_properties(${header} PROPERTIES SKIP_AUTOGEN ON)
        target_sources(audiosetting_objects PRIVATE ${header})
    endforeach()
endfunction()

# audiosetting_part(FILE...): adds a folder's files to the plug-in.
function(audiosetting_part)
    list(TRANSFORM ARGN PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/ OUTPUT_VARIABLE files)
    target_sources(audiosetting_objects PRIVATE ${files})
endfunction()

# audiosetting_plugin_end(): the shared library that ships, and the same objects as a static one for the tests.
# It is a plug-in that hosts load, and a library that they may link for the classes that it exports.
function(audiosetting_plugin_end)
    add_library(audiosetting SHARED)
    target_link_libraries(audiosetting PRIVATE audiosetting_objects headunit_libraries)
    target_include_directories(audiosetting INTERFACE ${CMAKE_SOURCE_DIR}/audiosetting)
    set_target_properties(audiosetting PROPERTIES LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib/plugins)
    add_library(audiosetting_static STATIC EXCLUDE_FROM_ALL $<TARGET_OBJECTS:audiosetting_objects>)
    target_link_libraries(audiosetting_static
        PUBLIC headunit_contract Qt5::Core Qt5::Gui Qt5::Widgets)
    target_include_directories(audiosetting_static PUBLIC
        ${CMAKE_SOURCE_DIR}/audiosetting ${CMAKE_BINARY_DIR}/forms)
endfunction()

# headunit_library(NAME SOURCES FILE... [LINK LIBRARY...]): a library of the reference head unit.
function(headunit_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_library(${name} SHARED ${ARG_SOURCES})
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC headunit_contract Qt5::Core ${ARG_LINK})
endfunction()

# The environment of every test, and its longest time in seconds: a busy machine with a slow disk is no reason to fail.
set(audiosetting_test_timeout 1800)
set(audiosetting_test_environment
    "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;TZ=UTC;QT_LOGGING_RULES=;QT_SCALE_FACTOR=1;\
QT_SCREEN_SCALE_FACTORS=;QT_FONT_DPI=96;LANGUAGE=;QT_MESSAGE_PATTERN=;QT_LOGGING_CONF=;QT_FORCE_STDERR_LOGGING=1;\
QTEST_FUNCTION_TIMEOUT=1800000;DBUS_SYSTEM_BUS_ADDRESS=unix:path=/nonexistent;\
LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/lsan.supp:print_suppressions=0")

# audiosetting_test(NAME SOURCES FILE... [LINK LIBRARY...] [LABELS LABEL...]): a QTest program, run by ctest.
function(audiosetting_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK;LABELS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES} ${CMAKE_SOURCE_DIR}/tests/offscreen.cpp)
    set_target_properties(${name} PROPERTIES AUTOMOC ON RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR} ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(${name} PRIVATE ${ARG_LINK} Qt5::Test)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT ${audiosetting_test_timeout} LABELS "${ARG_LABELS}"
        ENVIRONMENT "${audiosetting_test_environment}")
endfunction()

# audiosetting_page_test(NAME SOURCES FILE... [LABELS LABEL...]): a test of what the plug-in shows, against the
# recording platform and in virtual time. Its main function is PAGE_TEST_MAIN of tests/platform/testmain.h.
function(audiosetting_page_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LABELS" ${ARGN})
    audiosetting_test(${name} SOURCES ${ARG_SOURCES} LABELS ${ARG_LABELS}
        LINK $<LINK_LIBRARY:WHOLE_ARCHIVE,audiosetting_static> pagetest)
endfunction()

# audiosetting_bench(NAME SOURCES FILE... [LINK LIBRARY...]): a program that bench/measure runs.
function(audiosetting_bench name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_executable(bench_${name} ${ARG_SOURCES})
    set_target_properties(bench_${name} PROPERTIES OUTPUT_NAME ${name}
        RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bench)
    target_include_directories(bench_${name} PRIVATE ${CMAKE_SOURCE_DIR})
    target_compile_definitions(bench_${name} PRIVATE AUDIOSETTING_PLUGIN="$<TARGET_FILE:audiosetting>")
    target_link_libraries(bench_${name} PRIVATE virtualtime Qt5::Widgets ${ARG_LINK})
endfunction()
