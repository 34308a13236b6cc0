#pragma once

#include "nyxrender/Ids.h"

#include <vector>

namespace workbench {

/// What has happened to a scene since it was last told. Lists of ids hold each once, ascending.
struct Changes {
    bool everything = false;  ///< another scene: forget all ids
    bool materials = false;   ///< a material, its description or the schema
    bool lightLayers = false; ///< a light layer, or what is in one
    std::vector<nyx::ColorId> colors;
    std::vector<nyx::ColorwayId> colorways;
    std::vector<nyx::SurfaceId> surfaces; ///< painted ones whose layers have changed

    [[nodiscard]] bool isEmpty() const {
        return !everything && !materials && !lightLayers && colors.empty() && colorways.empty() &&
               surfaces.empty();
    }
};

} // namespace workbench
