function(run)
    execute_process(COMMAND ${ARGV} RESULT_VARIABLE result OUTPUT_VARIABLE output
        ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "failed: ${ARGV}\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

set(prefix ${WORK_DIR}/prefix)
set(build ${WORK_DIR}/build)
file(REMOVE_RECURSE ${prefix} ${build})
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix})
run(${CMAKE_COMMAND} -G Ninja -S ${SOURCE_DIR} -B ${build}
    -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_CXX_COMPILER=${CXX_COMPILER}
    "-DCMAKE_CXX_FLAGS=${CXX_FLAGS}" -DCMAKE_BUILD_TYPE=Debug)
run(${CMAKE_COMMAND} --build ${build})
run(${build}/consumer ${SCENE})
if(NOT output MATCHES "[1-9][0-9]* colours")
    message(FATAL_ERROR "unexpected output: ${output}")
endif()

# The pkg-config file leads to the same headers and libraries.
find_program(PKG_CONFIG pkg-config REQUIRED)
file(GLOB_RECURSE pc ${prefix}/zscenegraph.pc)
cmake_path(GET pc PARENT_PATH pc_dir)
set(ENV{PKG_CONFIG_PATH} ${pc_dir})
execute_process(COMMAND ${PKG_CONFIG} --define-variable=prefix=${prefix} --cflags --libs
    zscenegraph RESULT_VARIABLE result OUTPUT_VARIABLE flags)
if(NOT result EQUAL 0 OR NOT flags MATCHES "-I${prefix}/include" OR NOT flags MATCHES "-lnyxrender")
    message(FATAL_ERROR "zscenegraph.pc is wrong: ${flags}")
endif()
