#pragma once

#include "host/pictures/Picture.h"

#include "nyxembedded/BrushSettings.h"

namespace app {

struct NamedBrush {
    std::string name;
    nyx::embedded::BrushSettings settings;
};

/// One stroke of each brush side by side, two in a row, on white with its name below: a wave with a
/// pen that is pressed hardest in the middle.
[[nodiscard]] Picture brushSheet(std::vector<NamedBrush> const& brushes);

} // namespace app
