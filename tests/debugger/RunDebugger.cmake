# Stops the program where its values are made, and compares what gdb shows of them.
if(NOT GDB)
    message("skipped: there is no gdb (./dev check installs it)")
    return()
endif()
set(prints "")
foreach(value IN ITEMS id none material weave gradient plain multi text variant size)
    list(APPEND prints -ex "output ${value}" -ex "echo \\n")
endforeach()
execute_process(
    COMMAND ${GDB} -batch -nx -ex "set debuginfod enabled off" -ex "set height 0"
        -ex "source ${PRINTERS}" -ex "break shown" -ex run -ex "echo --\\n" -ex up -ex "echo --\\n"
        ${prints} ${PROGRAM}
    OUTPUT_VARIABLE output ERROR_VARIABLE errors)
if("${output}${errors}" MATCHES "ptrace: |Could not trace")
    message("skipped: gdb may not run programs here")
    return()
endif()
string(REGEX REPLACE ".*--\n" "" output "${output}")
file(READ ${CMAKE_CURRENT_LIST_DIR}/expected.txt wanted)
if(NOT output STREQUAL wanted)
    message(FATAL_ERROR "gdb shows\n${output}in place of\n${wanted}\n${errors}")
endif()
