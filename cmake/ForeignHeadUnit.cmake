# SPDX-License-Identifier: Apache-2.0
# Builds the plug-in against the libraries of another head unit: AUDIOSETTING_SDK names a folder with that unit's
# headers in include/ (the file names of platform/) and its libraries in lib/: shared ones, under their plain or versioned
# names, or static ones.

if(NOT audiosetting_contract)
    set(audiosetting_contract ${CMAKE_SOURCE_DIR}/platform)
endif()
file(GLOB contract RELATIVE ${audiosetting_contract} ${audiosetting_contract}/*.h)
set(missing "")
foreach(header IN LISTS contract)
    if(NOT EXISTS ${AUDIOSETTING_SDK}/include/${header})
        string(APPEND missing " ${header}")
    endif()
endforeach()
if(missing)
    message(FATAL_ERROR "AUDIOSETTING_SDK: ${AUDIOSETTING_SDK}/include lacks${missing}; platform/ says what they declare")
endif()

# Every class and operation, used as the plug-in may use them.
set(target_type ${CMAKE_TRY_COMPILE_TARGET_TYPE})
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
set(ENV{LC_ALL} C)
try_compile(AUDIOSETTING_SDK_FITS ${CMAKE_BINARY_DIR}/contract ${CMAKE_CURRENT_LIST_DIR}/contract.cpp
    CMAKE_FLAGS -DINCLUDE_DIRECTORIES=${AUDIOSETTING_SDK}/include -DCMAKE_POSITION_INDEPENDENT_CODE=ON
    COMPILE_DEFINITIONS -w
    LINK_LIBRARIES Qt5::Widgets
    OUTPUT_VARIABLE output
    CXX_STANDARD 11
    CXX_STANDARD_REQUIRED ON)
set(CMAKE_TRY_COMPILE_TARGET_TYPE ${target_type})
if(NOT AUDIOSETTING_SDK_FITS)
    string(REGEX MATCH "error: ([^\n]*)\n *([0-9]+ \\|)? *([^\n]*)" first "${output}")
    if(NOT first)
        set(CMAKE_MATCH_1 "${output}")
    endif()
    message(FATAL_ERROR "AUDIOSETTING_SDK: ${AUDIOSETTING_SDK}/include does not allow what platform/ says: "
        "${CMAKE_MATCH_3} (${CMAKE_MATCH_1})")
endif()

# A library that has a plain name is taken under that, and shared before static.
file(GLOB sdk_libraries ${AUDIOSETTING_SDK}/lib/*.so)
file(GLOB versioned ${AUDIOSETTING_SDK}/lib/*.so.*)
foreach(library IN LISTS versioned)
    string(REGEX REPLACE "\\.so\\..*$" ".so" plain ${library})
    if(NOT plain IN_LIST sdk_libraries AND NOT plain IN_LIST versions_taken)
        list(APPEND sdk_libraries ${library})
        list(APPEND versions_taken ${plain})
    endif()
endforeach()
set(AUDIOSETTING_SDK_STATIC OFF)
if(NOT sdk_libraries)
    file(GLOB sdk_libraries ${AUDIOSETTING_SDK}/lib/*.a)
    set(AUDIOSETTING_SDK_STATIC ON)
endif()
if(NOT sdk_libraries)
    message(FATAL_ERROR "AUDIOSETTING_SDK: ${AUDIOSETTING_SDK}/lib holds no library (*.so, *.so.*, *.a)")
endif()

# Of the same kind of processor as what the compiler makes: in ELF's header byte 4 is 32 or 64 bits, 18 the machine.
file(READ ${CMAKE_BINARY_DIR}/CMakeFiles/${CMAKE_VERSION}/CMakeDetermineCompilerABI_CXX.bin own_kind LIMIT 20 HEX)
foreach(library IN LISTS sdk_libraries)
    file(READ ${library} kind LIMIT 20 HEX)
    foreach(place 8 36)
        string(SUBSTRING "${own_kind}" ${place} 2 wanted)
        if(kind MATCHES "^7f454c46")
            string(SUBSTRING ${kind} ${place} 2 found)
            if(NOT found STREQUAL wanted)
                message(FATAL_ERROR "AUDIOSETTING_SDK: ${library} is of another processor or word length than the "
                    "compiler ${CMAKE_CXX_COMPILER}")
            endif()
        endif()
    endforeach()
endforeach()

add_library(headunit_contract INTERFACE)
target_include_directories(headunit_contract INTERFACE ${AUDIOSETTING_SDK}/include)
add_library(headunit_libraries INTERFACE)
if(AUDIOSETTING_SDK_STATIC)
    # Archives may need each other.
    target_link_libraries(headunit_libraries INTERFACE -Wl,--start-group ${sdk_libraries} -Wl,--end-group)
else()
    target_link_libraries(headunit_libraries INTERFACE ${sdk_libraries})
endif()
