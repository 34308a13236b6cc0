#pragma once

#include <cstddef>

namespace nyx::embedded {

/// More dabs than any hand makes; keeps a line to somewhere far off from taking hours.
inline constexpr std::size_t mostDabs = 1'000'000;

/// No surface has texels so far off, and sums of such numbers keep their parts of a texel: a point
/// beyond is as good as one there.
inline constexpr float farthest = 1e6f;

} // namespace nyx::embedded
