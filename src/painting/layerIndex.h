#pragma once

#include "nyxrender/nyxLayerInfo.h"

#include <cstddef>
#include <cstdint>
#include <vector>

// The three ways to say which layer, and how to get from one to the other:
//   list index    position in a surface's list, 0 is the top; what the user interface says
//   layer id      the stable number in the layer's record; what undo commands keep
//   render index  the renderer's position, 0 is the bottom; what render tasks carry
namespace zsg {

/// No layer: neither an index nor an id.
inline constexpr std::uint32_t noLayer = 0xFFFFFFFFu;

/// The list index of the first layer with that id, or noLayer.
[[nodiscard]] std::uint32_t layerIndexOf(std::vector<nyxLayerInfo> const& layers, std::uint32_t id);

/// The id of the layer at a list index, or noLayer when there is none; so also for the index above
/// the top, which 0 - 1 gives.
[[nodiscard]] std::uint32_t layerIdAt(std::vector<nyxLayerInfo> const& layers, std::uint32_t index);

/// The render index of a list index among `count` layers, and the other way round. An index out of
/// range gives one out of range.
[[nodiscard]] constexpr std::uint32_t renderIndexOf(std::size_t count, std::uint32_t index) {
    return static_cast<std::uint32_t>(count) - 1u - index;
}

} // namespace zsg
