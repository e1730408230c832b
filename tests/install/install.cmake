# SPDX-License-Identifier: Apache-2.0
# Installs every component, moves the tree, and uses it from where it then stands.

set(first "${WORK}/first place/prefix")
set(prefix "${WORK}/zweiter Ort äöü/prefix")
file(REMOVE_RECURSE "${WORK}/first place" "${WORK}/zweiter Ort äöü" ${WORK}/used)
file(MAKE_DIRECTORY ${WORK}/used)

# run(OUTPUT COMMAND...): the command's output; it must succeed.
function(run output)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE code OUTPUT_VARIABLE out ERROR_VARIABLE out)
    if(NOT code EQUAL 0)
        list(JOIN ARGN " " command)
        message(FATAL_ERROR "${command}\nended with ${code}:\n${out}")
    endif()
    set(${output} "${out}" PARENT_SCOPE)
endfunction()

run(out ${CMAKE_COMMAND} --install ${BUILD} --prefix ${first})
file(MAKE_DIRECTORY "${WORK}/zweiter Ort äöü")
file(RENAME ${first} ${prefix})

file(GLOB_RECURSE binaries ${prefix}/lib*/*.so ${prefix}/lib*/headunit/headunit)
list(LENGTH binaries count)
if(count LESS 10)
    message(FATAL_ERROR "only ${count} programs and libraries are installed: ${binaries}")
endif()
foreach(binary IN LISTS binaries)
    run(dynamic ${READELF} -d ${binary})
    if(dynamic MATCHES "R(UN)?PATH[^\n]*\\[([^\n]*)\\]")
        set(path ${CMAKE_MATCH_2})
        if(binary MATCHES "libaudiosetting\\.so$")
            message(FATAL_ERROR "${binary} looks for libraries in ${path}")
        endif()
        if(NOT path MATCHES "^\\$ORIGIN(:\\$ORIGIN/plugins)?$")
            message(FATAL_ERROR "${binary} looks for libraries outside its own folder: ${path}")
        endif()
    endif()
    if(NOT SANITIZE)
        file(STRINGS ${binary} places REGEX "${SOURCE}|${BUILD}")
        if(places)
            message(FATAL_ERROR "${binary} names the machine that it was built on: ${places}")
        endif()
    endif()
endforeach()

# Found by name, as from a shell, in a folder of no meaning.
set(ENV{PATH} "${prefix}/bin:$ENV{PATH}")
set(ENV{LD_LIBRARY_PATH} "")
run(out ${CMAKE_COMMAND} -E chdir ${WORK}/used headunit --version)
if(NOT out MATCHES "^headunit ${VERSION}\n")
    message(FATAL_ERROR "the installed program says: ${out}")
endif()
file(WRITE ${WORK}/used/look.js "
    open('audiosetting');
    wait(200);
    tap('key_Subwoofer');
    expect(sound().subwooferLevel === 3);
    home();
    wait(200);
    shot('home.png');
    tap('tile_bandadjust');
    wait(200);
    expect('bandadjust', 'visible', true);
    shot('bandadjust.png');
")
# Where it stands makes no difference to what is seen, on dense displays neither.
foreach(scale 1 2)
    foreach(program headunit ${BUILD}/bin/headunit)
        get_filename_component(folder ${program} DIRECTORY)
        string(MAKE_C_IDENTIFIER "shots_${folder}_${scale}" shots)
        file(MAKE_DIRECTORY ${WORK}/used/${shots})
        run(out ${CMAKE_COMMAND} -E chdir ${WORK}/used/${shots}
            ${program} --root ${WORK}/used/${shots}/root --scale ${scale} --script ${WORK}/used/look.js)
        if(out MATCHES "fonts are not|cannot|no band adjust")
            message(FATAL_ERROR "at scale ${scale} ${program} says: ${out}")
        endif()
        list(APPEND shots_${scale} ${WORK}/used/${shots})
    endforeach()
    list(GET shots_${scale} 0 installed)
    list(GET shots_${scale} 1 built)
    foreach(picture home bandadjust)
        run(out ${CMAKE_COMMAND} -E compare_files ${installed}/${picture}.png ${built}/${picture}.png)
    endforeach()
endforeach()
run(out headunit --root ${WORK}/used/root --measure ${WORK}/used/response.csv)
if(NOT EXISTS ${WORK}/used/response.csv)
    message(FATAL_ERROR "the installed unit left no response")
endif()

# The dev component serves who has no source tree: the panel is found, the sample unit builds, and the kit built against
# that unit finds that it keeps the contract and runs the installed plug-in's pages.
if(NOT SANITIZE)
    set(kit ${prefix}/share/audiosettings)
    run(out ${CMAKE_COMMAND} -S ${CONSUMER} -B ${WORK}/used/consumer -G ${GENERATOR} -D CMAKE_PREFIX_PATH=${prefix})
    run(out ${CMAKE_COMMAND} --build ${WORK}/used/consumer)
    run(out ${CMAKE_COMMAND} -S ${kit}/examples/carunit -B ${WORK}/used/carunit -G ${GENERATOR})
    run(out ${CMAKE_COMMAND} --build ${WORK}/used/carunit)
    run(out ${CMAKE_COMMAND} -S ${kit}/conformance -B ${WORK}/used/conformance -G ${GENERATOR}
        -D AUDIOSETTING_SDK=${WORK}/used/carunit/carunit-sdk)
    run(out ${CMAKE_COMMAND} --build ${WORK}/used/conformance)
    run(out ${WORK}/used/conformance/audiosetting-conformance --list)
    if(NOT out MATCHES "eq.band-in-store")
        message(FATAL_ERROR "the installed kit lists: ${out}")
    endif()
    run(out ${WORK}/used/conformance/audiosetting-conformance --only eq.band-in-store)
endif()
