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

/// A rectangle of tiles; the ends are the first that do not belong to it.
struct TileArea {
    int left = 0, top = 0;
    int right = 0, bottom = 0;
};

/// Layers of one resolution from the bottom up, each blended into those below it (see blendTile):
/// the texels of an area that lie within the resolution. Big areas are shared between the
/// processors; the result is the same.
[[nodiscard]] Image composite(std::vector<CompositeLayer> const& layers, int resolution,
                              TileArea const& area);

} // namespace nyx::embedded
