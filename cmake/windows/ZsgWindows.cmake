# What only a Windows build has: version resources, and the libraries that programs need beside
# them.

# zsg_add_version_resource(<target> <description>): what the properties of the file show, and for
# a program what it asks of the system.
function(zsg_add_version_resource target description)
    if(NOT WIN32)
        return()
    endif()
    string(REPLACE . , numbers ${PROJECT_VERSION})
    set(resource ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
    set(manifest "")
    get_target_property(type ${target} TYPE)
    if(type STREQUAL "EXECUTABLE")
        set(file ${PROJECT_SOURCE_DIR}/cmake/windows/program.manifest)
        if(MSVC) # whose linker merges it with its own
            target_sources(${target} PRIVATE ${file})
        else()
            set(manifest "CREATEPROCESS_MANIFEST_RESOURCE_ID RT_MANIFEST \"${file}\"")
        endif()
    endif()
    configure_file(${PROJECT_SOURCE_DIR}/cmake/windows/version.rc.in ${resource} @ONLY)
    target_sources(${target} PRIVATE ${resource})
endfunction()

if(NOT (MINGW AND CMAKE_CROSSCOMPILING AND PROJECT_IS_TOP_LEVEL))
    return()
endif()

set(CMAKE_SHARED_LIBRARY_PREFIX "") # nyxrender.dll, imported by libnyxrender.dll.a

# The stack of a thread that Visual C++ links, so that what passes here needs no larger one.
add_link_options(-Wl,--stack,1048576)

# Windows looks for libraries beside the program and knows no other place by itself.
get_filename_component(qt_root ${Qt6_DIR}/../../.. ABSOLUTE)
set(zsg_runtime_libraries ${qt_root}/bin/Qt6Core.dll)
foreach(name IN ITEMS libstdc++-6 libgcc_s_seh-1 libwinpthread-1)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${name}.dll
        OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE)
    list(APPEND zsg_runtime_libraries ${path})
endforeach()
add_custom_target(zsg_runtime ALL
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}
    COMMAND ${CMAKE_COMMAND} -E copy_if_different
        ${zsg_runtime_libraries} ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
