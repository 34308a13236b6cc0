#include "values/IORLayouts.h"

#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size);

/// Both layouts read any bytes, and find at most one sample per line.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::string_view const text(reinterpret_cast<char const*>(data), size);
    std::ostringstream messages;
    std::size_t lines = 1;
    for (char const c : text) {
        lines += c == '\n' ? 1u : 0u;
    }
    if (zsg::readIORPairs(text, messages).size() > lines ||
        zsg::readIORTable(text, messages).size() > lines) {
        std::abort();
    }
    return 0;
}
