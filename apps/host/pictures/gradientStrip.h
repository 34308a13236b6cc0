#pragma once

#include "host/pictures/Picture.h"

namespace zsg {
class ColorGradient;
}

namespace app {

/// A gradient as a strip with its stops below it. Colours blend in linear light; slopes, which
/// only the renderer reads, are not shown. Throws CommandError without stops, and for a stop at no
/// finite place.
[[nodiscard]] Picture gradientStrip(zsg::ColorGradient const& gradient);

} // namespace app
