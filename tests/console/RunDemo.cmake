# Writes the demonstration's page into WORK_DIR with CONSOLE, and checks that it is whole: a section
# for each script, every picture that was drawn, and nothing that lies elsewhere.
execute_process(
    COMMAND ${SOURCE_DIR}/cmake/demo.sh ${CONSOLE} ${WORK_DIR}
    RESULT_VARIABLE code
    OUTPUT_VARIABLE output
    ERROR_VARIABLE errors)
if(NOT code EQUAL 0 OR errors)
    message(FATAL_ERROR "exit code ${code}:\n${output}\n${errors}")
endif()
file(READ ${WORK_DIR}/index.html page)

function(expect_count what pattern wanted)
    string(REGEX MATCHALL "${pattern}" found "${page}")
    list(LENGTH found count)
    if(NOT count EQUAL wanted)
        message(FATAL_ERROR "${count} ${what} in place of ${wanted}")
    endif()
endfunction()
file(GLOB scripts ${SOURCE_DIR}/examples/scripts/tour.zsg
    ${SOURCE_DIR}/examples/scripts/demo-*.zsg
    ${SOURCE_DIR}/examples/scripts/*-session.zsg)
list(LENGTH scripts script_count)
expect_count("titles" "<h2 id=" ${script_count})
expect_count("links" "<a href=\"#" ${script_count})
file(GLOB pictures ${WORK_DIR}/*.svg ${WORK_DIR}/*.png)
list(LENGTH pictures picture_count)
if(picture_count LESS 10)
    message(FATAL_ERROR "only ${picture_count} pictures were drawn")
endif()
expect_count("pictures" "<img alt=\"[a-z0-9-]+\\.(svg|png)\" src=\"data:" ${picture_count})
expect_count("addresses elsewhere" "(src|href)=\"[^#d]" 0)
