#pragma once

#include "host/pictures/Picture.h"

namespace zsg {
class AnimationCurve;
}

namespace app {

/// A curve with its keys and handles over round axes. Throws CommandError without keys, and for
/// one at no finite place.
[[nodiscard]] Picture curvePlot(zsg::AnimationCurve const& curve);

} // namespace app
