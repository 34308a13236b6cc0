# Installs the project, moves the installed tree, and does there what README.md says: its program is
# built by the CMake package and by pkg-config, with and without optimisation, and run.
include(${CMAKE_CURRENT_LIST_DIR}/../documents/CodeBlock.cmake)
include(${CMAKE_CURRENT_LIST_DIR}/../support/Run.cmake)

function(run_program program)
    run(${program} ${PROJECT_DIR}/examples/scenes/showroom.json)
    if(NOT output STREQUAL wanted)
        message(FATAL_ERROR "${program} printed\n${output}in place of\n${wanted}")
    endif()
endfunction()

set(prefix ${WORK_DIR}/moved/here)
file(REMOVE_RECURSE ${WORK_DIR})
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK_DIR}/prefix)
file(MAKE_DIRECTORY ${WORK_DIR}/moved)
file(RENAME ${WORK_DIR}/prefix ${prefix})

# What is promised, file by file: a header that slips in is a promise that nobody made.
if(INSTALLED)
    file(GLOB_RECURSE found LIST_DIRECTORIES false RELATIVE ${prefix} ${prefix}/*)
    list(FILTER found EXCLUDE REGEX "^share/(doc|zscenegraph/(brushes|examples))/")
    list(TRANSFORM found REPLACE "Targets-(debug|release|relwithdebinfo|noconfig)" "Targets-CONFIG")
    # Where the debugger's views stand follows the prefix that was configured.
    list(TRANSFORM found REPLACE "gdb/auto-load/.*/" "gdb/auto-load/")
    string(REPLACE ".${VERSION}" ".VERSION" found "${found}")
    file(STRINGS ${INSTALLED} expected)
    set(unexpected ${found})
    list(REMOVE_ITEM unexpected ${expected})
    list(REMOVE_ITEM expected ${found})
    if(unexpected OR expected)
        message(FATAL_ERROR "installed, but not in ${INSTALLED}: ${unexpected}\n"
            "in it, but not installed: ${expected}")
    endif()
endif()

file(READ ${PROJECT_DIR}/README.md text)
set(source ${WORK_DIR}/source)
code_block(block text "${text}" cpp)
file(WRITE ${source}/first_steps.cpp "${block}")
code_block(wanted text "${text}" text)
code_block(block text "${text}" cmake)
file(WRITE ${source}/CMakeLists.txt "${block}")
code_block(command text "${text}" sh)

foreach(config IN ITEMS Debug Release)
    run(${CMAKE_COMMAND} -G Ninja -S ${source} -B ${WORK_DIR}/${config}
        -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_CXX_COMPILER=${CXX_COMPILER}
        "-DCMAKE_CXX_FLAGS=${CXX_FLAGS}" -DCMAKE_BUILD_TYPE=${config})
    run(${CMAKE_COMMAND} --build ${WORK_DIR}/${config})
    run_program(${WORK_DIR}/${config}/first_steps)
endforeach()

find_program(PKG_CONFIG pkg-config REQUIRED)
file(GLOB_RECURSE pc ${prefix}/zscenegraph.pc)
cmake_path(GET pc PARENT_PATH folder)
set(ENV{PKG_CONFIG_PATH} ${folder})
run(${PKG_CONFIG} --cflags --libs nyxembedded)
if(output MATCHES "-std=")
    message(FATAL_ERROR "the language standard is the application's choice: ${output}")
endif()
cmake_path(GET folder PARENT_PATH libraries)
set(ENV{LD_LIBRARY_PATH} ${libraries}) # a moved tree stands in no search path
foreach(optimisation IN ITEMS -O0 -O2)
    string(REPLACE "g++ " "${CXX_COMPILER} ${CXX_FLAGS} ${optimisation} " line "${command}")
    execute_process(COMMAND sh -c "${line}" WORKING_DIRECTORY ${source}
        COMMAND_ERROR_IS_FATAL ANY)
    run_program(${source}/first_steps)
endforeach()
