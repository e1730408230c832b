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

add_library(headunit_contract INTERFACE)
target_include_directories(headunit_contract INTERFACE ${AUDIOSETTING_SDK}/include)
add_library(headunit_libraries INTERFACE)
if(AUDIOSETTING_SDK_STATIC)
    # Archives may need each other.
    target_link_libraries(headunit_libraries INTERFACE -Wl,--start-group ${sdk_libraries} -Wl,--end-group)
else()
    target_link_libraries(headunit_libraries INTERFACE ${sdk_libraries})
endif()
