#pragma once

#include "nyxrender/Export.h"
#include "nyxrender/nyxColor.h"

#include <vector>

namespace nyx::embedded {

class LayerPixels;

/// A stroke of a round brush along a line. The colour is linear, as all records. Lengths are
/// texels, points are counted from the upper left corner of the upper left texel.
struct Stroke {
    struct Point {
        float x = 0, y = 0;
    };

    std::vector<Point> points; ///< one point makes one dab
    float radius = 8;
    float hardness = 0.8f;           ///< the part of the radius that is covered wholly, 0 to 1
    nyxColor_rgba color{0, 0, 0, 1}; ///< not multiplied by alpha; alpha is that of the whole stroke
    float spacing = 0.15f;           ///< between dabs, as a part of the radius
    bool erase = false;              ///< takes paint away, by the colour's alpha
};

/// Points and radii that are not finite paint nothing; other numbers are brought into their range.
/// Any thread, one per layer at a time.
NYXRENDER_EXPORT void paintStroke(LayerPixels& pixels, Stroke const& stroke);

} // namespace nyx::embedded
