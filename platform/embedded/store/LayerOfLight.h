#pragma once

#include "nyxrender/Ids.h"

#include <array>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace nyx::embedded {

/// Which light is in which light layer: a byte per light, in pages of neighbouring ids. Finding and
/// putting cost the same however many lights there are; a copy costs about a byte per light.
class LayerOfLight {
public:
    /// 0 when the light is in none.
    [[nodiscard]] std::uint8_t find(nyx::ObjectId light) const;
    void put(nyx::ObjectId light, std::uint8_t layer);
    /// The lights of a layer, ascending.
    [[nodiscard]] std::vector<nyx::ObjectId> lights(std::uint8_t layer) const;

private:
    static constexpr std::uint32_t pageSize = 256;
    std::unordered_map<std::uint32_t, std::array<std::uint8_t, pageSize>> pages_;
};

} // namespace nyx::embedded
