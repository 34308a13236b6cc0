#include "nyxrender/nyx_warning.h"

#include <cstdarg>
#include <cstdio>

void nyx_warning(char const* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    std::vfprintf(stderr, format, arguments);
    va_end(arguments);
}
