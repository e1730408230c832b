# SPDX-License-Identifier: Apache-2.0
# Runs SCRIPTS with HEADUNIT on a unit that is new, in a folder of this run, which begins with NAME and stays if it fails.
string(RANDOM LENGTH 8 number)
set(folder ${NAME}-${number})
file(MAKE_DIRECTORY ${folder})
foreach(script IN LISTS SCRIPTS)
    execute_process(COMMAND ${HEADUNIT} --root ${folder}/root --script ${script}
        WORKING_DIRECTORY ${folder} RESULT_VARIABLE result)
    if(NOT result STREQUAL "0")
        message(FATAL_ERROR "${script}: ${result}; what it left is in ${folder}")
    endif()
endforeach()
file(REMOVE_RECURSE ${folder})
