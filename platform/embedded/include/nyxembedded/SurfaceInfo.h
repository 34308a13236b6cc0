#pragma once

#include "nyxrender/Ids.h"
#include "nyxrender/nyxColor.h"
#include "nyxrender/nyxLayerInfo.h"

#include <cstdint>
#include <string>
#include <vector>

namespace nyx::embedded {

/// A layer of a painted surface.
struct LayerInfo {
    std::uint32_t id = 0;
    std::string name;
    nyx::ColorBlendMode mode = nyx::ColorBlendMode::Normal;
    bool deleted = false;
    bool visible = true;
    nyxColor_rgba background;
};

/// A painted surface with its layers.
struct SurfaceInfo {
    nyx::SurfaceId id;
    std::string name;
    int resolution = 0;
    bool deleted = false;
    std::uint32_t editLayer = 0;   ///< counted from the bottom
    std::vector<LayerInfo> layers; ///< from the bottom up
    unsigned ignoredCalls = 0;     ///< calls with a layer that the surface did not have
};

} // namespace nyx::embedded
