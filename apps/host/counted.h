#pragma once

#include <cstddef>
#include <string>

namespace app {

/// "1 colour", "2 colours", "0 colours".
[[nodiscard]] inline std::string counted(std::size_t n, char const* one, char const* many) {
    return std::to_string(n) + ' ' + (n == 1 ? one : many);
}

} // namespace app
