# Precompiled headers: most of the time of a build is reading the same headers of Qt, the standard
# library and GoogleTest again. Sources name every header that they use all the same: the build of
# packages does without, and so finds what is missing.

# zsg_precompile(<target> library|tests|window): the target's sources start from the headers of that
# kind. Each kind takes 130 to 350 MB on the disk, so the tests of the window have none of their own.
function(zsg_precompile target kind)
    if(NOT ZSG_PRECOMPILE)
        return()
    endif()
    set(pch zsg_precompiled_${kind})
    if(NOT TARGET ${pch})
        set(headers <algorithm> <array> <cmath> <cstdint> <functional> <map> <memory> <optional>
            <ostream> <span> <string> <unordered_map> <vector>
            <QCoreApplication> <QList> <QObject> <QString>)
        # GCC takes a precompiled header only where the options are the same.
        set(libraries Qt6::Core zsg_warnings)
        if(kind STREQUAL "window")
            list(APPEND headers <QtWidgets>)
            list(APPEND libraries Qt6::Widgets)
        endif()
        if(kind STREQUAL "tests")
            list(APPEND headers <gmock/gmock.h> <gtest/gtest.h>)
            list(APPEND libraries GTest::gmock GTest::gtest)
        endif()
        file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/${pch}.cpp CONTENT "")
        add_library(${pch} OBJECT ${PROJECT_BINARY_DIR}/${pch}.cpp)
        target_link_libraries(${pch} PRIVATE ${libraries})
        target_precompile_headers(${pch} PRIVATE ${headers})
    endif()
    target_precompile_headers(${target} REUSE_FROM ${pch})
endfunction()
