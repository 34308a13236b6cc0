#pragma once

#include <algorithm>
#include <cstdint>

namespace nyx::embedded {

/// A part of 1 as a byte: to the nearest, cut off at 0 and 255; NaN gives 0.
[[nodiscard]] inline std::uint8_t toByte(float part) {
    constexpr float half = 0.5f; // the library's own rounding does not fit into vector registers
    return part > 0 ? static_cast<std::uint8_t>(std::min(part, 1.0f) * 255.0f + half)
                    : std::uint8_t{0};
}

} // namespace nyx::embedded
