#pragma once

#include "nyxembedded/BrushSettings.h"

#include <QImage>

#include <vector>

namespace app {

/// One stroke of each brush side by side, two in a row, on white: a wave with a pen that is pressed
/// hardest in the middle.
[[nodiscard]] QImage brushSheet(std::vector<nyx::embedded::BrushSettings> const& brushes);

} // namespace app
