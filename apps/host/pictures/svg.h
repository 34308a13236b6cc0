#pragma once

#include "host/pictures/Picture.h"

#include <optional>

namespace app {

/// A picture as SVG text. Without a theme it is light, and dark where the reader's system asks for
/// dark pages.
[[nodiscard]] std::string svg(Picture const& picture, std::optional<Theme> theme = {});

} // namespace app
