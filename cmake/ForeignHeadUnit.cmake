# Builds the plug-in against the libraries of another head unit: AUDIOSETTING_SDK names a folder with that unit's
# headers in include/ (the file names of platform/) and its shared libraries in lib/.

if(NOT EXISTS ${AUDIOSETTING_SDK}/include/audioservice.h)
    message(FATAL_ERROR "AUDIOSETTING_SDK: ${AUDIOSETTING_SDK}/include holds no audioservice.h; "
        "it must hold the headers that platform/ lists")
endif()
file(GLOB sdk_libraries ${AUDIOSETTING_SDK}/lib/*.so)
if(NOT sdk_libraries)
    message(FATAL_ERROR "AUDIOSETTING_SDK: ${AUDIOSETTING_SDK}/lib holds no shared library")
endif()

add_library(headunit_contract INTERFACE)
target_include_directories(headunit_contract INTERFACE ${AUDIOSETTING_SDK}/include)
add_library(headunit_libraries INTERFACE)
target_link_libraries(headunit_libraries INTERFACE ${sdk_libraries})
