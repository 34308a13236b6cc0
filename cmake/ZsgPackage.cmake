# Archives and Debian packages, by CPack: ./dev package.
set(CPACK_PACKAGE_NAME zscenegraph)
set(CPACK_PACKAGE_VENDOR "zscenegraph")
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_SOURCE_GENERATOR TGZ)
set(CPACK_SOURCE_PACKAGE_FILE_NAME zscenegraph-${PROJECT_VERSION})
string(REGEX REPLACE "([][+.*()^$?|\\])" "\\\\\\1" source_folder "${PROJECT_SOURCE_DIR}")
set(CPACK_SOURCE_IGNORE_FILES
    "^${source_folder}/build" "/\\.git/" "/compile_commands\\.json$" "\\.user$")
set(CPACK_PACKAGE_FILE_NAME
    zscenegraph-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR})

set(CPACK_GENERATOR TGZ)
set(CPACK_COMPONENTS_ALL runtime development documentation tools)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "zscenegraph developers <developers@zscenegraph.invalid>"
    CACHE STRING "Who answers for the Debian packages")
set(full_version ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})

# zsg_debian_package(<component> <package> <section> <depends> <text>)
function(zsg_debian_package component package section depends text)
    string(TOUPPER ${component} key)
    set(CPACK_DEBIAN_${key}_PACKAGE_NAME ${package} PARENT_SCOPE)
    set(CPACK_DEBIAN_${key}_PACKAGE_SECTION ${section} PARENT_SCOPE)
    set(CPACK_DEBIAN_${key}_PACKAGE_DEPENDS "${depends}" PARENT_SCOPE)
    set(CPACK_DEBIAN_${key}_DESCRIPTION "${about}\n.\n${text}" PARENT_SCOPE)
    if(NOT ZSG_DEBIAN_LAYOUT)
        return()
    endif()
    set(folder ${CMAKE_INSTALL_DATADIR}/doc/${package})
    install(FILES packaging/debian/copyright DESTINATION ${folder} COMPONENT ${component})
    install(FILES ${PROJECT_BINARY_DIR}/changelog.Debian.gz DESTINATION ${folder}
        COMPONENT ${component})
    # What lintian finds and is meant, each with its reason.
    set(overrides "")
    foreach(file IN ITEMS lintian-overrides lintian-overrides-${component})
        if(EXISTS ${PROJECT_SOURCE_DIR}/packaging/debian/${file})
            file(READ packaging/debian/${file} text)
            string(APPEND overrides "${text}")
        endif()
    endforeach()
    file(CONFIGURE OUTPUT overrides/${package} CONTENT "${overrides}" @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/overrides/${package} COMPONENT ${component}
        DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides)
endfunction()

if(ZSG_DEBIAN_LAYOUT)
    string(TIMESTAMP now "%a, %d %b %Y %H:%M:%S +0000" UTC)
    configure_file(packaging/debian/changelog.in changelog.Debian @ONLY)
    execute_process(COMMAND gzip -9nf changelog.Debian WORKING_DIRECTORY ${PROJECT_BINARY_DIR}
        COMMAND_ERROR_IS_FATAL ANY)
endif()

set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "editing side of a 3D scene")
set(about "Colours, colorways, materials, light layers and 3D painting of the scene
of a rendering application; every change can be undone and is announced.")
# What the packages link is found by dpkg-shlibdeps; of each other they want the very version, as
# the interface may change while the major number is 0.
set(same_version "libzscenegraph0 (= ${full_version})")
zsg_debian_package(runtime libzscenegraph0 libs ""
    "This package has the library and the renderer in memory that it runs on.")
zsg_debian_package(development libzscenegraph-dev libdevel
    "${same_version}, qt6-base-dev, nlohmann-json3-dev"
    "This package has the headers, the CMake package and the pkg-config files.")
zsg_debian_package(documentation libzscenegraph-doc doc ""
    "This package has the documents and the reference of the interface.")
zsg_debian_package(tools zsg-tools graphics "${same_version}"
    "This package has zsg-console, which works on scenes by commands, and\nexamples.")
if(TARGET zsg-workbench) # of its own, so that a console needs no window system
    list(APPEND CPACK_COMPONENTS_ALL workbench)
    zsg_debian_package(workbench zsg-workbench graphics "${same_version}"
        "This package has zsg-workbench, a window that shows and edits scenes.")
    # Qt's own words, such as Cancel.
    set(CPACK_DEBIAN_WORKBENCH_PACKAGE_RECOMMENDS qt6-translations-l10n)
endif()
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS libzscenegraph-doc)
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_ARCHITECTURE all)
foreach(key IN ITEMS RUNTIME TOOLS WORKBENCH)
    set(CPACK_DEBIAN_${key}_DEBUGINFO_PACKAGE ON)
    set(CPACK_DEBIAN_${key}_PACKAGE_SHLIBDEPS ON)
endforeach()
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/lib)

# Whoever links one of the libraries depends on their package; dpkg brings the linker's cache up to
# date by a trigger.
set(shlibs "")
foreach(name IN ITEMS zscenegraph nyxrender zcore ztask nyxembedded)
    string(APPEND shlibs
        "lib${name} ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR} ${same_version}\n")
endforeach()
file(WRITE ${PROJECT_BINARY_DIR}/debian/shlibs "${shlibs}")
file(WRITE ${PROJECT_BINARY_DIR}/debian/triggers "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA
    ${PROJECT_BINARY_DIR}/debian/shlibs ${PROJECT_BINARY_DIR}/debian/triggers)

include(CPack)
