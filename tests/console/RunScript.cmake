# Runs a script on a scene and compares its output with the file beside the script.
file(MAKE_DIRECTORY ${WORK_DIR})
# Scripts name files by their path in the project, and write into the folder they run in.
file(CREATE_LINK ${SOURCE_DIR}/examples ${WORK_DIR}/examples SYMBOLIC)
execute_process(
    COMMAND ${CONSOLE} ${SCENE} --script ${SCRIPT}
    WORKING_DIRECTORY ${WORK_DIR}
    RESULT_VARIABLE result
    OUTPUT_VARIABLE output
    ERROR_VARIABLE errors)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${SCRIPT} failed (${result}):\n${output}\n${errors}")
endif()
string(REGEX REPLACE "\\.zsg$" ".out" wanted_file ${SOURCE_DIR}/${SCRIPT})
if(EXISTS ${wanted_file})
    file(READ ${wanted_file} wanted)
    if(NOT output STREQUAL wanted)
        file(WRITE ${WORK_DIR}/output ${output})
        execute_process(COMMAND diff -u ${wanted_file} ${WORK_DIR}/output)
        message(FATAL_ERROR "${SCRIPT} printed something else than ${wanted_file}")
    endif()
endif()
