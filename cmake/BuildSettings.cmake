# SPDX-License-Identifier: Apache-2.0
# Settings that every target shares.

set(AUDIOSETTING_SANITIZE "" CACHE STRING
    "Sanitizers to build with: address (and undefined behaviour), thread (data races), or none where it is empty")
set_property(CACHE AUDIOSETTING_SANITIZE PROPERTY STRINGS "" address thread)

set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_STANDARD 17)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # Paths below the source folder are hashed as relative ones, so that clones share the cache.
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1
        ${CCACHE_PROGRAM})
endif()

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wnull-dereference)
if(AUDIOSETTING_WERROR)
    add_compile_options(-Werror)
endif()
if(AUDIOSETTING_SANITIZE STREQUAL "address")
    set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=undefined)
elseif(AUDIOSETTING_SANITIZE STREQUAL "thread")
    set(sanitizers -fsanitize=thread)
elseif(AUDIOSETTING_SANITIZE)
    message(FATAL_ERROR "AUDIOSETTING_SANITIZE is address or thread, not ${AUDIOSETTING_SANITIZE}")
endif()
if(AUDIOSETTING_SANITIZE)
    # The sanitizers' own code confuses this one warning; the release build gives it.
    add_compile_options(-O1 ${sanitizers} -fno-omit-frame-pointer -Wno-maybe-uninitialized)
    add_link_options(${sanitizers})
else()
    add_link_options(-Wl,--no-undefined -Wl,--as-needed)
endif()
add_compile_definitions(QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING)
