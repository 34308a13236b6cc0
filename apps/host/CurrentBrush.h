#pragma once

#include "zsg/painting/IPainterBrush.h"

#include <memory>

namespace app {

class Host;

/// The brush that painting commands use; there is none at first, and none after a scene is loaded.
struct CurrentBrush {
    std::unique_ptr<zsg::IPainterBrush> brush;
};

/// The current brush; throws CommandError when there is none.
[[nodiscard]] zsg::IPainterBrush& currentBrush(Host& host);

/// A new brush whose fields hold what its nodes say.
[[nodiscard]] std::unique_ptr<zsg::IPainterBrush> freshBrush(Host& host, float size = 20);

} // namespace app
