# Toolchain of the project itself: MinGW-w64 with what dependencies.sh has made for it.
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
set(dependencies ${CMAKE_CURRENT_LIST_DIR}/../../build/mingw-dependencies)
cmake_path(NORMAL_PATH dependencies)
# Qt is used where it is built: as soon as it is configured it can be compiled against.
list(PREPEND CMAKE_FIND_ROOT_PATH
    ${dependencies}/build ${dependencies}/png ${dependencies}/headers)
set(QT_HOST_PATH /usr)
set(ZLIB_USE_STATIC_LIBS ON)
set(CMAKE_CROSSCOMPILING_EMULATOR /usr/lib/wine/wine64)
