# Install rules, the CMake package and the pkg-config file.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/zscenegraph)

install(TARGETS zscenegraph EXPORT zscenegraphTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
# The three platform libraries need the declarations, the library needs the three.
install(TARGETS zsg_platform_headers EXPORT platformHeadersTargets)
install(EXPORT platformHeadersTargets NAMESPACE zsg:: DESTINATION ${package_dir})
install(TARGETS zsg_platform EXPORT zscenegraphTargets)
install(DIRECTORY platform/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
    FILES_MATCHING PATTERN "*.h")

if(ZSG_PLATFORM STREQUAL "embedded")
    # The first three keep the names that adapters of the real libraries have.
    foreach(name IN ITEMS nyxrender zcore ztask nyxembedded)
        install(TARGETS ${name} EXPORT ${name}Targets
            LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
            ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
            RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
        install(EXPORT ${name}Targets NAMESPACE ${name}:: DESTINATION ${package_dir})
    endforeach()
    install(DIRECTORY platform/embedded/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
        FILES_MATCHING PATTERN "*.h")
endif()

install(EXPORT zscenegraphTargets NAMESPACE zsg:: DESTINATION ${package_dir})
configure_package_config_file(cmake/zscenegraphConfig.cmake.in zscenegraphConfig.cmake
    INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(zscenegraphConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES
    ${CMAKE_CURRENT_BINARY_DIR}/zscenegraphConfig.cmake
    ${CMAKE_CURRENT_BINARY_DIR}/zscenegraphConfigVersion.cmake
    DESTINATION ${package_dir})

set(pc_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH pc_to_prefix /prefix/${pc_dir} /prefix)
set(pc_files zscenegraph)
if(ZSG_PLATFORM STREQUAL "embedded")
    set(pc_platform " -lnyxrender -lzcore -lztask")
    list(APPEND pc_files nyxembedded)
endif()
foreach(name IN LISTS pc_files)
    configure_file(cmake/${name}.pc.in ${name}.pc @ONLY)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc DESTINATION ${pc_dir})
endforeach()
