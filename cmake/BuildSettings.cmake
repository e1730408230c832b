# Settings that every target shares.

option(AUDIOSETTING_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)

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
if(AUDIOSETTING_SANITIZE)
    add_compile_options(-O1 -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    # The sanitizers' own code confuses this one warning; the release build gives it.
    add_compile_options(-Wno-maybe-uninitialized)
    add_link_options(-fsanitize=address,undefined)
endif()
if(NOT AUDIOSETTING_SANITIZE)
    add_link_options(-Wl,--no-undefined -Wl,--as-needed)
endif()
add_compile_definitions(QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING)
