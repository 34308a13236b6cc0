# Installs the project, moves the installed tree, and builds and runs a small application against it:
# by its CMake package and by pkg-config, with and without optimisation.
function(run)
    execute_process(COMMAND ${ARGV} RESULT_VARIABLE result OUTPUT_VARIABLE output
        ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "failed: ${ARGV}\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

function(run_consumer program)
    run(${program} ${SCENE})
    if(NOT output STREQUAL "37 colours, version ${VERSION}\n")
        message(FATAL_ERROR "${program}: unexpected output: ${output}")
    endif()
endfunction()

set(prefix ${WORK_DIR}/moved/here)
file(REMOVE_RECURSE ${WORK_DIR})
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK_DIR}/prefix)
file(MAKE_DIRECTORY ${WORK_DIR}/moved)
file(RENAME ${WORK_DIR}/prefix ${prefix})

foreach(config IN ITEMS Debug Release)
    run(${CMAKE_COMMAND} -G Ninja -S ${SOURCE_DIR} -B ${WORK_DIR}/${config}
        -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_CXX_COMPILER=${CXX_COMPILER}
        "-DCMAKE_CXX_FLAGS=${CXX_FLAGS}" -DCMAKE_BUILD_TYPE=${config})
    run(${CMAKE_COMMAND} --build ${WORK_DIR}/${config})
    run_consumer(${WORK_DIR}/${config}/consumer)
endforeach()

find_program(PKG_CONFIG pkg-config REQUIRED)
file(GLOB_RECURSE pc ${prefix}/zscenegraph.pc)
cmake_path(GET pc PARENT_PATH folder)
set(ENV{PKG_CONFIG_PATH} ${folder})
run(${PKG_CONFIG} --cflags --libs nyxembedded)
if(output MATCHES "-std=")
    message(FATAL_ERROR "the language standard is the application's choice: ${output}")
endif()
separate_arguments(flags UNIX_COMMAND "${CXX_FLAGS} ${output}")
cmake_path(GET folder PARENT_PATH libraries)
foreach(optimisation IN ITEMS -O0 -O2)
    set(program ${WORK_DIR}/by_pkg_config${optimisation})
    run(${CXX_COMPILER} -std=c++20 -fPIC ${optimisation} ${SOURCE_DIR}/main.cpp -o ${program}
        ${flags} -Wl,-rpath,${libraries})
    run_consumer(${program})
endforeach()
