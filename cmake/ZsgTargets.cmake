# How the areas of the library and their tests become targets.

# zsg_add_area(<area> SOURCES ... HEADERS ... [LIBRARIES ...])
# The objects of one area (src/<area>). They go into the shared library and, as they are, into that
# area's tests, which may therefore reach what the shared library hides. HEADERS are the exported
# interface, relative to include/.
function(zsg_add_area area)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;HEADERS;LIBRARIES")
    list(TRANSFORM arg_HEADERS PREPEND ${PROJECT_SOURCE_DIR}/include/)
    set_property(GLOBAL APPEND PROPERTY ZSG_PUBLIC_HEADERS ${arg_HEADERS})
    if(NOT arg_SOURCES)
        return() # interfaces only
    endif()
    set(target zsg_${area}_objects)
    add_library(${target} OBJECT ${arg_SOURCES})
    # Who links the objects must not look for imports, as who links the shared library does.
    target_compile_definitions(${target}
        PRIVATE ZSG_BUILDING_LIBRARY INTERFACE $<$<PLATFORM_ID:Windows>:ZSG_STATIC>)
    target_include_directories(${target} PUBLIC
        ${PROJECT_SOURCE_DIR}/include ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${target}
        PUBLIC zsg_platform Qt6::Core nlohmann_json::nlohmann_json ${arg_LIBRARIES}
        PRIVATE zsg_warnings)
    zsg_precompile(${target} library)
    set_property(GLOBAL APPEND PROPERTY ZSG_AREA_OBJECTS $<TARGET_OBJECTS:${target}>)
endfunction()

# zsg_add_test(<name> [PRECOMPILE <kind>] SOURCES ... LIBRARIES ...)
# A GoogleTest program whose cases become ctest cases.
function(zsg_add_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "PRECOMPILE" "SOURCES;LIBRARIES;LABELS")
    if(NOT arg_PRECOMPILE)
        set(arg_PRECOMPILE tests)
    endif()
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE
        ${arg_LIBRARIES} zsg_test_support zsg_warnings GTest::gmock GTest::gtest)
    zsg_precompile(${name} ${arg_PRECOMPILE})
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60
        PROPERTIES TIMEOUT 300 LABELS "${arg_LABELS}")
endfunction()
