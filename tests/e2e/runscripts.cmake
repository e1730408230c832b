# Runs SCRIPTS with HEADUNIT on a unit that is new in FOLDER.
file(REMOVE_RECURSE ${FOLDER})
file(MAKE_DIRECTORY ${FOLDER})
foreach(script IN LISTS SCRIPTS)
    execute_process(COMMAND ${HEADUNIT} --root ${FOLDER}/root --script ${script}
        WORKING_DIRECTORY ${FOLDER} RESULT_VARIABLE result)
    if(NOT result STREQUAL "0")
        message(FATAL_ERROR "${script}: ${result}")
    endif()
endforeach()
