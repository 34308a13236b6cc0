#pragma once

#include <cstdint>

namespace nyx {

/// The grid of a woven cloth as the renderer reads it: `numWarp` columns by `numWeft` rows, row
/// after row (cell (x, y) at index y * numWarp + x), 0 = warp on top, 1 = weft on top. `cells` is
/// allocated by whoever owns the record with nyx_malloc_aligned (alignment 32).
struct WeavePattern {
    std::int32_t numWarp = 0;
    std::int32_t numWeft = 0;
    std::int32_t* cells = nullptr;
};

} // namespace nyx
