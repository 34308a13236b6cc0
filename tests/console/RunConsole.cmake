# Calls the console with ARGUMENTS in WORK_DIR and checks the exit code (CODE), that all it says
# holds SAYS, and, for a SCRIPT, that its output is <script>.out and each file that it wrote is the
# one of that name in the folder <script>, where those are there.
# What an earlier run left there would be taken for written by this one.
file(REMOVE ${WORK_DIR}/examples)
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})
# Scripts name files by their path in the project, and write into the folder they run in.
file(CREATE_LINK ${SOURCE_DIR}/examples ${WORK_DIR}/examples SYMBOLIC)
if(NOT INPUT)
    set(INPUT /dev/null)
endif()
if(OUTPUT)
    set(output_to OUTPUT_FILE ${OUTPUT})
else()
    set(output_to OUTPUT_VARIABLE output)
endif()
execute_process(
    COMMAND ${EMULATOR} ${CONSOLE} ${ARGUMENTS}
    WORKING_DIRECTORY ${WORK_DIR}
    INPUT_FILE ${INPUT}
    RESULT_VARIABLE code
    ${output_to}
    ERROR_VARIABLE errors)
if(NOT code STREQUAL CODE)
    message(FATAL_ERROR "exit code ${code} in place of ${CODE}:\n${output}\n${errors}")
endif()
string(FIND "${output}${errors}" "${SAYS}" place)
if(place EQUAL -1)
    message(FATAL_ERROR "it did not say \"${SAYS}\":\n${output}\n${errors}")
endif()

function(compare what found wanted_file)
    file(READ ${wanted_file} wanted)
    # Of which version the console says it is.
    string(REGEX REPLACE "\"version\":\"[0-9.]+\"" "\"version\":\"VERSION\"" found "${found}")
    string(REPLACE "${SOURCE_DIR}/" "" found "${found}")
    if(EMULATOR) # the other system's separators of paths
        string(REPLACE "\\" / wanted "${wanted}")
        string(REPLACE "\\" / found "${found}")
    endif()
    if(NOT found STREQUAL wanted)
        file(WRITE ${WORK_DIR}/found "${found}")
        execute_process(COMMAND diff -u ${wanted_file} ${WORK_DIR}/found)
        message(FATAL_ERROR "${what} is not ${wanted_file}")
    endif()
endfunction()
if(SCRIPT)
    if(EXISTS ${SCRIPT}.out)
        compare("the output" "${output}" ${SCRIPT}.out)
    endif()
    file(GLOB pictures ${SCRIPT}/*.svg ${SCRIPT}/*.json ${SCRIPT}/*.gpl)
    foreach(picture IN LISTS pictures)
        cmake_path(GET picture FILENAME name)
        file(READ ${WORK_DIR}/${name} found)
        compare(${name} "${found}" ${picture})
    endforeach()
endif()
