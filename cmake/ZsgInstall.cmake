# Install rules, the CMake package and the pkg-config files. What is installed is listed, never
# searched for: a header is promised when it is in a list.
option(ZSG_DEBIAN_LAYOUT "Install as Debian's packages do: folders by architecture, no run paths" OFF)
if(ZSG_DEBIAN_LAYOUT)
    set(CMAKE_INSTALL_LIBDIR lib/${CMAKE_LIBRARY_ARCHITECTURE})
    set(CMAKE_SKIP_INSTALL_RPATH ON)
endif()
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# The components are those of the packages: what runs, what is built against, what is read, and the
# programs.
function(zsg_install_library name)
    install(TARGETS ${name} EXPORT ${name}Targets
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime
            NAMELINK_COMPONENT development
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
        FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)
    install(EXPORT ${name}Targets NAMESPACE ${ARGV1}:: DESTINATION ${package_dir}
        COMPONENT development)
endfunction()

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/zscenegraph)

zsg_install_library(zscenegraph zsg)
install(TARGETS zsg_platform EXPORT zscenegraphTargets)
# The three platform libraries need the declarations, the library needs the three.
install(TARGETS zsg_platform_headers EXPORT platformHeadersTargets
    FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)
install(EXPORT platformHeadersTargets NAMESPACE zsg:: DESTINATION ${package_dir}
    COMPONENT development)
if(ZSG_PLATFORM STREQUAL "embedded")
    # The first three keep the names that adapters of the real libraries have.
    foreach(name IN ITEMS nyxrender zcore ztask nyxembedded)
        zsg_install_library(${name} ${name})
    endforeach()
endif()

configure_package_config_file(cmake/zscenegraphConfig.cmake.in zscenegraphConfig.cmake
    INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(zscenegraphConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES
    ${CMAKE_CURRENT_BINARY_DIR}/zscenegraphConfig.cmake
    ${CMAKE_CURRENT_BINARY_DIR}/zscenegraphConfigVersion.cmake
    DESTINATION ${package_dir} COMPONENT development)

set(pc_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH pc_to_prefix /prefix/${pc_dir} /prefix)
set(pc_files zscenegraph)
if(ZSG_PLATFORM STREQUAL "embedded")
    set(pc_platform " -lzcore -lztask -lnyxrender") # who needs another stands before it
    list(APPEND pc_files nyxembedded)
    if(NOT BUILD_SHARED_LIBS)
        set(pc_requires " libpng")
        set(pc_static " -DZSG_STATIC -DNYXRENDER_STATIC -DZCORE_STATIC -DZTASK_STATIC")
    endif()
endif()
foreach(name IN LISTS pc_files)
    configure_file(cmake/${name}.pc.in ${name}.pc @ONLY)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc DESTINATION ${pc_dir}
        COMPONENT development)
endforeach()

if(UNIX AND BUILD_SHARED_LIBS)
    # gdb loads it with the library, by the library's whole path. CPack packs into /usr whatever the
    # prefix is that was configured.
    set(library_folder ${CMAKE_INSTALL_FULL_LIBDIR})
    if(ZSG_DEBIAN_LAYOUT)
        set(library_folder /usr/${CMAKE_INSTALL_LIBDIR})
    endif()
    install(FILES debugger/zscenegraph_printers.py
        DESTINATION ${CMAKE_INSTALL_DATADIR}/gdb/auto-load${library_folder}
        RENAME libzscenegraph.so.${PROJECT_VERSION}-gdb.py COMPONENT development)
endif()
if(TARGET zsg_translations)
    get_target_property(catalogues zsg_translations CATALOGUES)
    install(FILES ${catalogues} DESTINATION ${CMAKE_INSTALL_DATADIR}/zscenegraph/translations
        COMPONENT runtime)
endif()
# zsg_install_program(<name> <component>): a program of apps/ with its manual page.
function(zsg_install_program name component)
    install(TARGETS ${name} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT ${component})
    string(REPLACE zsg- "" folder ${name})
    set(manual ${CMAKE_CURRENT_SOURCE_DIR}/apps/${folder}/${name}.1)
    if(ZSG_DEBIAN_LAYOUT)
        execute_process(COMMAND gzip -9nc ${manual} OUTPUT_FILE ${name}.1.gz
            WORKING_DIRECTORY ${PROJECT_BINARY_DIR} COMMAND_ERROR_IS_FATAL ANY)
        set(manual ${PROJECT_BINARY_DIR}/${name}.1.gz)
    endif()
    install(FILES ${manual} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT ${component})
endfunction()

if(TARGET zsg-console)
    zsg_install_program(zsg-console tools)
    # Under the names that the scripts use: a copy of the folder is where they run.
    install(DIRECTORY
        examples/brushes examples/cmf examples/data examples/palettes examples/scenes
        examples/scripts
        DESTINATION ${CMAKE_INSTALL_DATADIR}/zscenegraph/examples COMPONENT tools)
endif()
if(TARGET zsg-workbench)
    zsg_install_program(zsg-workbench workbench)
    # Its presets: a window without the tools has them too.
    install(DIRECTORY examples/brushes DESTINATION ${CMAKE_INSTALL_DATADIR}/zscenegraph
        COMPONENT workbench)
    set(desktop ${CMAKE_CURRENT_SOURCE_DIR}/apps/workbench/desktop/zsg-workbench)
    if(TARGET zsg_translations)
        get_target_property(catalogues zsg_translations WORKBENCH_CATALOGUES)
        install(FILES ${catalogues}
            DESTINATION ${CMAKE_INSTALL_DATADIR}/zscenegraph/translations COMPONENT workbench)
    endif()
    foreach(file IN ITEMS
            desktop:applications svg:icons/hicolor/scalable/apps xml:mime/packages)
        string(REGEX REPLACE ":.*" "" ending ${file})
        string(REGEX REPLACE ".*:" "" folder ${file})
        install(FILES ${desktop}.${ending} DESTINATION ${CMAKE_INSTALL_DATADIR}/${folder}
            COMPONENT workbench)
    endforeach()
endif()

set(doc_dir ${CMAKE_INSTALL_DATADIR}/doc/libzscenegraph-doc)
# What the documents link stands where they link it.
install(FILES README.md CONTRIBUTING.md DESTINATION ${doc_dir} COMPONENT documentation)
install(FILES platform/README.md DESTINATION ${doc_dir}/platform COMPONENT documentation)
if(ZSG_DEBIAN_LAYOUT)
    execute_process(COMMAND gzip -9nc ${PROJECT_SOURCE_DIR}/CHANGELOG.md
        OUTPUT_FILE changelog.gz WORKING_DIRECTORY ${PROJECT_BINARY_DIR}
        COMMAND_ERROR_IS_FATAL ANY)
    install(FILES ${PROJECT_BINARY_DIR}/changelog.gz DESTINATION ${doc_dir}
        COMPONENT documentation)
else()
    install(FILES CHANGELOG.md DESTINATION ${doc_dir} COMPONENT documentation)
endif()
install(DIRECTORY docs DESTINATION ${doc_dir} COMPONENT documentation
    PATTERN Doxyfile EXCLUDE
    PATTERN CMakeLists.txt EXCLUDE)
if(ZSG_BUILD_DOCS)
    install(DIRECTORY ${PROJECT_BINARY_DIR}/docs/html DESTINATION ${doc_dir}
        COMPONENT documentation)
endif()
install(DIRECTORY examples/programs examples/painting DESTINATION ${doc_dir}/examples
    COMPONENT documentation)
