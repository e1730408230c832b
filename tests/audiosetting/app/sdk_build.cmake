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

# refused(WHAT EXPECTED): the SDK in ${unusable} is refused with a line that matches.
function(refused what expected)
    configure(${unusable} code output)
    if(code EQUAL 0 OR NOT output MATCHES "${expected}")
        message(FATAL_ERROR "An SDK with ${what} was not refused by its name:\n${output}")
    endif()
endfunction()

# altered(HEADER FROM TO): a header of the unusable SDK in other words.
function(altered header from to)
    file(READ ${SOURCE}/platform/${header} text)
    string(REPLACE "${from}" "${to}" changed "${text}")
    if(changed STREQUAL text)
        message(FATAL_ERROR "${header} has no ${from}")
    endif()
    file(WRITE ${unusable}/include/${header} "${changed}")
endfunction()

altered(labelbutton.h "LabelButton" "LabelKey")
refused("a class missing" "does not allow what platform/ says: [^;]*LabelButton")
file(COPY ${SOURCE}/platform/labelbutton.h DESTINATION ${unusable}/include)
altered(horizontalslider.h "void setValue(int value);" "void setValue(const QWidget &value);")
refused("another signature" "does not allow what platform/ says: object.setValue.arg<int>")
altered(horizontalslider.h "void valueChanged(int index, int value);" "void valueChanged(int value);")
refused("another signal" "does not allow what platform/ says: [^;]*HorizontalSlider::valueChanged")
file(COPY ${SOURCE}/platform/horizontalslider.h DESTINATION ${unusable}/include)

file(GLOB library ${SDK}/lib/*.so)
list(GET library 0 library)
file(REMOVE_RECURSE ${unusable}/lib)
file(MAKE_DIRECTORY ${unusable}/lib)
foreach(place_and_byte "4 1" "18 3")  # 32 bits, and an old processor
    separate_arguments(place_and_byte)
    list(GET place_and_byte 0 place)
    list(GET place_and_byte 1 byte)
    execute_process(COMMAND sh -c "cp '${library}' '${unusable}/lib/libunit.so' && printf '\\00${byte}' |
        dd of='${unusable}/lib/libunit.so' bs=1 seek=${place} conv=notrunc 2>/dev/null" COMMAND_ERROR_IS_FATAL ANY)
    refused("a library of another kind" "libunit.so is of another processor or word length")
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
