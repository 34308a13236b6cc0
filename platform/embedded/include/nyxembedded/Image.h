#pragma once

#include <cstdint>
#include <vector>

namespace nyx::embedded {

/// A picture: rows from the top, four bytes per texel: red, green, blue, alpha, the colours
/// multiplied by alpha.
struct Image {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> rgba;
};

} // namespace nyx::embedded
