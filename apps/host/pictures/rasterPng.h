#pragma once

#include "host/pictures/shapes.h"

namespace app {

/// The bytes of a .png file with the pixels of an image, whatever the size that it is shown in.
/// Throws CommandError when there is no such file: without pixels, and beyond a million a side.
[[nodiscard]] std::string rasterPng(shape::Raster const& raster);

} // namespace app
