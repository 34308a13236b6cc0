# Every function that platform/include declares, and does not define there, stands in
# docs/embedding.md by its name.
file(READ ${SOURCE_DIR}/docs/embedding.md document)
file(GLOB headers ${SOURCE_DIR}/platform/include/*/*.h)
set(count 0)
foreach(header IN LISTS headers)
    file(READ ${header} text)
    if(NOT text MATCHES "_EXPORT ")
        continue() # all of it is defined in the header
    endif()
    string(REGEX REPLACE "//[^\n]*|#[^\n]*|__attribute__[^\n]*|static_assert[^;]*;" "" text "${text}")
    string(REGEX REPLACE "private:.*" "" text "${text}")
    # Bodies, innermost first; what is left of the head has no semicolon behind it.
    string(REGEX REPLACE "\\)([ a-z]*)(:[^;{]*([{][^{}]*[}][^;{]*)*)?[{][^{}]*[}]" ")#" text "${text}")
    string(REPLACE ";" "!" text "${text}") # not CMake's separator
    string(REGEX MATCHALL "[A-Za-z_]+\\([^!{}#]*\\)[^!{}()#]*!" calls "${text}")
    foreach(call IN LISTS calls)
        string(REGEX REPLACE "\\(.*" "" name "${call}")
        if(name STREQUAL "void")
            continue() # std::function<void()>
        endif()
        math(EXPR count "${count} + 1")
        if(NOT document MATCHES "`([A-Za-z_]+::)?${name}(\\(\\))?`")
            message(SEND_ERROR "${header} declares ${name}, which docs/embedding.md does not name")
        endif()
    endforeach()
endforeach()
if(count LESS 150)
    message(FATAL_ERROR "only ${count} declarations were found")
endif()
