#pragma once

#include "nyxembedded/BrushSettings.h"
#include "nyxrender/Export.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace nyx::embedded {

class LayerPixels;

/// The movement of a pen over a layer. Lengths are texels, counted from the upper left corner of
/// the upper left texel.
struct BrushStroke {
    struct Point {
        float x = 0, y = 0;
        float pressure = 1; ///< 0 to 1
    };

    std::vector<Point> points; ///< a point that is no number is left out
    float texelsPerUnit = 1;   ///< the length of a scene unit on the layer
    std::uint32_t seed = 1;    ///< of the jitters: the same stroke paints the same picture
};

/// Paints a stroke and says of how many dabs it is made. A dab is at most 4096 texels across, dabs
/// are at least a quarter of a texel and 1 % of their size apart, and a stroke has at most a
/// million of them. A number beyond its range counts as the nearest in it; with a size, flow or
/// opacity of 0 or less nothing is painted. Any thread, one per layer at a time.
///
/// What the nodes know and a flat layer does not have a use for is left out: the projection from a
/// camera and onto a plane. There are no shaders to evaluate either: a brush with a shader, or with
/// a texture that could not be read, paints in its solid colour.
NYXRENDER_EXPORT std::size_t paintBrushStroke(LayerPixels& pixels, BrushSettings const& brush,
                                              BrushStroke const& stroke);

} // namespace nyx::embedded
