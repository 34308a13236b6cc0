# What every target of the project is compiled with.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

if(PROJECT_IS_TOP_LEVEL)
    set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
    set(CMAKE_INSTALL_RPATH "$ORIGIN;$ORIGIN/../lib")
    # One place for everything that is loaded, so that programs start from the build folder.
    set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
    set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
    set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
    find_program(CCACHE_PROGRAM ccache)
    if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
        set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
    endif()
endif()

add_library(zsg_warnings INTERFACE)
if(MSVC)
    # C4251 and C4275: members and bases of exported classes that come from the standard library,
    # which is the same one on both sides.
    target_compile_options(zsg_warnings INTERFACE /W4 /permissive- /utf-8 /wd4251 /wd4275
        /Zc:__cplusplus /Zc:preprocessor /EHsc /bigobj)
    target_compile_definitions(zsg_warnings INTERFACE
        NOMINMAX WIN32_LEAN_AND_MEAN _CRT_SECURE_NO_WARNINGS _USE_MATH_DEFINES)
    if(ZSG_WARNINGS_AS_ERRORS)
        target_compile_options(zsg_warnings INTERFACE /WX)
    endif()
else()
    target_compile_options(zsg_warnings INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Wcast-qual
        -Woverloaded-virtual -Wconversion -Wsign-conversion -Wnull-dereference -Wformat=2
        -Wimplicit-fallthrough -Wextra-semi)
    if(ZSG_WARNINGS_AS_ERRORS)
        target_compile_options(zsg_warnings INTERFACE -Werror)
    endif()
    # GCC's flow analysis guesses wrong at higher optimisation inside Qt and the standard library.
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        target_compile_options(zsg_warnings INTERFACE
            -Wno-null-dereference -Wno-restrict
            "$<$<NOT:$<CONFIG:Debug>>:-Wno-array-bounds;-Wno-maybe-uninitialized>"
            "$<$<NOT:$<CONFIG:Debug>>:-Wno-stringop-overflow;-Wno-stringop-overread>"
            "$<$<NOT:$<CONFIG:Debug>>:-Wno-use-after-free>")
    endif()
endif()

if(ZSG_SANITIZE)
    add_compile_options(-fsanitize=${ZSG_SANITIZE} -fno-omit-frame-pointer
        -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${ZSG_SANITIZE})
endif()
