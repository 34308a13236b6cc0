# Installs the project, and builds and runs the example programs against the installed tree: each
# says what its .out file says.
include(${CMAKE_CURRENT_LIST_DIR}/../support/Run.cmake)

file(REMOVE_RECURSE ${WORK_DIR})
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK_DIR}/prefix)
run(${CMAKE_COMMAND} -G Ninja -S ${SOURCE_DIR} -B ${WORK_DIR}/build -DPROGRAMS=${PROGRAMS}
    -DCMAKE_PREFIX_PATH=${WORK_DIR}/prefix -DCMAKE_CXX_COMPILER=${CXX_COMPILER}
    "-DCMAKE_CXX_FLAGS=${CXX_FLAGS} -Wall -Wextra -Werror")
run(${CMAKE_COMMAND} --build ${WORK_DIR}/build)

file(GLOB sources ${PROGRAMS}/*.cpp)
foreach(source IN LISTS sources)
    cmake_path(GET source STEM name)
    if(name STREQUAL "first_steps")
        continue() # which README.md shows: documents.code and package.consumer
    endif()
    run(${WORK_DIR}/build/${name} ${SCENE} ${WORK_DIR}/saved.json)
    file(READ ${PROGRAMS}/${name}.out expected)
    if(NOT output STREQUAL expected)
        message(FATAL_ERROR "${name} says\n${output}instead of\n${expected}")
    endif()
endforeach()
