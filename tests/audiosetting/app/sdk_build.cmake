# SPDX-License-Identifier: Apache-2.0
# Builds the plug-in against another head unit's SDK in a fresh folder; an unusable SDK is refused with a reason.

function(configure sdk result output)
    file(REMOVE_RECURSE ${BINARY})
    execute_process(COMMAND ${CMAKE_COMMAND} -S ${SOURCE} -B ${BINARY} -G ${GENERATOR}
            -D CMAKE_BUILD_TYPE=${BUILD_TYPE} -D AUDIOSETTING_SANITIZE=${SANITIZE} -D AUDIOSETTING_WERROR=${WERROR}
            -D AUDIOSETTING_SDK=${sdk}
        RESULT_VARIABLE code OUTPUT_VARIABLE out ERROR_VARIABLE out)
    # Messages are wrapped by the width of the terminal.
    string(REGEX REPLACE "[ \n]+" " " out "${out}")
    set(${result} ${code} PARENT_SCOPE)
    set(${output} "${out}" PARENT_SCOPE)
endfunction()

set(unusable ${BINARY}-unusable)
file(REMOVE_RECURSE ${unusable})
configure(${unusable} code output)
if(code EQUAL 0 OR NOT output MATCHES "include lacks appplugin.h [^;]*audioservice.h [^;]*windowinterface.h")
    message(FATAL_ERROR "An SDK without headers was not refused:\n${output}")
endif()
file(MAKE_DIRECTORY ${unusable}/include)
file(COPY ${SOURCE}/platform/ DESTINATION ${unusable}/include)
file(REMOVE ${unusable}/include/labelbutton.h ${unusable}/include/translator.h)
configure(${unusable} code output)
if(code EQUAL 0 OR NOT output MATCHES "include lacks labelbutton.h translator.h;")
    message(FATAL_ERROR "An SDK that lacks two headers was not refused by their names:\n${output}")
endif()
file(COPY ${SOURCE}/platform/ DESTINATION ${unusable}/include)
configure(${unusable} code output)
if(code EQUAL 0 OR NOT output MATCHES "lib holds no library")
    message(FATAL_ERROR "An SDK without libraries was not refused:\n${output}")
endif()

foreach(name libunit.a libunit.so.1.2)
    file(REMOVE_RECURSE ${unusable}/lib)
    file(MAKE_DIRECTORY ${unusable}/lib)
    file(TOUCH ${unusable}/lib/${name})
    configure(${unusable} code output)
    if(NOT code EQUAL 0)
        message(FATAL_ERROR "An SDK with ${name} was refused:\n${output}")
    endif()
endforeach()

configure(${SDK} code output)
if(NOT code EQUAL 0)
    message(FATAL_ERROR "Cannot configure against ${SDK}:\n${output}")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} --build ${BINARY} --parallel 2 --target audiosetting
    RESULT_VARIABLE code OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(NOT code EQUAL 0)
    message(FATAL_ERROR "Cannot build against ${SDK}:\n${output}")
endif()
