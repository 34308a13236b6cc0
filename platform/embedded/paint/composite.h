#pragma once

#include "nyxembedded/Image.h"
#include "nyxembedded/LayerPixels.h"
#include "nyxrender/nyxLayerInfo.h"

#include <vector>

namespace nyx::embedded {

/// What compositing has to know of a layer.
struct CompositeLayer {
    nyx::ColorBlendMode mode = nyx::ColorBlendMode::Normal;
    nyxColor_rgba background; ///< lies beneath the pixels; not multiplied by alpha
    LayerPixels pixels;
};

/// Layers of one resolution from the bottom up, each blended into those below it (see blendTile).
/// Big ones are shared between the processors; the result is the same.
[[nodiscard]] Image composite(std::vector<CompositeLayer> const& layers, int resolution);

} // namespace nyx::embedded
