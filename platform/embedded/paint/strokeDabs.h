#pragma once

#include "nyxembedded/BrushStroke.h"

namespace nyx::embedded {

/// One print of a brush.
struct Dab {
    float x = 0, y = 0;
    float diameter = 0; ///< above 0
    float angle = 0;    ///< of the image, in radians, clockwise
    float flow = 1;     ///< above 0, at most 1, as the cap
    float cap = 1;      ///< what the texels under it are covered at most
};

/// Where a stroke prints its brush, and how. Dabs that would leave no trace are left out.
[[nodiscard]] std::vector<Dab> strokeDabs(BrushSettings const& brush, BrushStroke const& stroke);

} // namespace nyx::embedded
