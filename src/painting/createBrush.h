#pragma once

#include "nyxrender/Ids.h"

#include <memory>

class nyxRT_api;

namespace zsg {

class IPainterBrush;

/// A brush over a newly made graph of the default kind. `size` is a length that says how big the
/// brush is at first: 5 % of it, in scene units, is the world size, 1 % of it the world spacing.
/// Without a scene, or when the renderer makes no root, the brush has no nodes.
[[nodiscard]] std::unique_ptr<IPainterBrush> createBrush(nyxRT_api* rtApi, float size,
                                                         nyx::MaterialId material);

} // namespace zsg
