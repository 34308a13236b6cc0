# The zip for Windows: what is installed, with the libraries that it needs and their licences.
install(PROGRAMS ${zsg_runtime_libraries} DESTINATION bin)

# The licences of what is in the zip, as Debian ships them: of the libraries beside the programs, and
# of those that are compiled into them.
set(doc /usr/share/doc)
foreach(pair IN ITEMS
        Qt6Core+libpng:libqt6core6 libgcc+libstdc++:gcc-mingw-w64-base
        libwinpthread:mingw-w64-x86-64-dev zlib:libz-mingw-w64-dev
        nlohmann-json:nlohmann-json3-dev CLI11:libcli11-dev)
    string(REGEX MATCH "^(.*):(.*)$" pair ${pair})
    install(FILES ${doc}/${CMAKE_MATCH_2}/copyright DESTINATION licenses
        RENAME ${CMAKE_MATCH_1}.txt)
endforeach()
foreach(licence IN ITEMS LGPL-3 GPL-2 GPL-3)
    install(FILES /usr/share/common-licenses/${licence} DESTINATION licenses
        RENAME ${licence}.txt)
endforeach()

set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_FILE_NAME zscenegraph-${PROJECT_VERSION}-windows-x64-mingw)
set(CPACK_PACKAGE_CHECKSUM SHA256)
set(CPACK_VERBATIM_VARIABLES ON)
include(CPack)
