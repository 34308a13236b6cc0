#pragma once

#include "host/pictures/Picture.h"

namespace zsg {
class WeavePattern;
}

namespace app {

/// A weaver's draft: dark where the warp lies on top. Small weaves are shown twice each way, so
/// that the joints are seen. Throws CommandError for more than 512 crossings a side.
[[nodiscard]] Picture weaveDraft(zsg::WeavePattern const& weave);

} // namespace app
