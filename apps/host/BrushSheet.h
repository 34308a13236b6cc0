#pragma once

#include "nyxembedded/BrushSettings.h"
#include "nyxembedded/Image.h"

#include <vector>

namespace app {

/// One stroke of each brush side by side, two in a row, on white: a wave with a pen that is pressed
/// hardest in the middle.
[[nodiscard]] nyx::embedded::Image
brushSheet(std::vector<nyx::embedded::BrushSettings> const& brushes);

} // namespace app
