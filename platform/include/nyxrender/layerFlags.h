#pragma once

#include <cstdint>

/// Bits of a light layer.
enum class layerFlags : std::uint32_t {
    None = 0,
    Inverted = 0x1, ///< the layer is edited by what it leaves out
    Deleted = 0x10, ///< kept, but no longer listed
};
