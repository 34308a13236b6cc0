#include "painting/layerIndex.h"

#include <algorithm>

namespace zsg {

std::uint32_t layerIndexOf(std::vector<nyxLayerInfo> const& layers, std::uint32_t id) {
    auto const found = std::find_if(layers.begin(), layers.end(),
                                    [id](nyxLayerInfo const& layer) { return layer.id == id; });
    return found == layers.end() ? noLayer : static_cast<std::uint32_t>(found - layers.begin());
}

std::uint32_t layerIdAt(std::vector<nyxLayerInfo> const& layers, std::uint32_t index) {
    return index < layers.size() ? layers[index].id : noLayer;
}

} // namespace zsg
