#pragma once

#include "host/metalSamples.h"
#include "host/pictures/Picture.h"

namespace app {

/// n and k over the wavelength, and the reflectance with an axis of its own. A figure that is not
/// finite leaves a gap. Throws CommandError when fewer than two places are left to draw.
[[nodiscard]] Picture metalPlot(std::vector<MetalSample> const& samples);

} // namespace app
