# Builds the library over the adapters of host/ and compares what a session on them prints.
include(${CMAKE_CURRENT_LIST_DIR}/../support/Run.cmake)

run(${CMAKE_COMMAND} -G Ninja -S ${CMAKE_CURRENT_LIST_DIR}/host -B ${WORK_DIR}
    -DZSCENEGRAPH_DIR=${SOURCE_DIR} -DCMAKE_CXX_COMPILER=${CXX_COMPILER}
    -DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER})
run(${CMAKE_COMMAND} --build ${WORK_DIR} --target host)
run(${WORK_DIR}/host)
file(READ ${CMAKE_CURRENT_LIST_DIR}/host/expected.txt wanted)
if(NOT output STREQUAL wanted)
    message(FATAL_ERROR "the session prints\n${output}in place of\n${wanted}")
endif()
