#pragma once

#include "zsg/painting/IPainterBrush.h"

#include <memory>
#include <string>

namespace app {

class Host;

/// The brush that painting commands use; there is none at first, and none after a scene is loaded.
/// Who shows its parameters keeps it alive until it hears of another one.
struct CurrentBrush {
    std::shared_ptr<zsg::IPainterBrush> brush;
};

/// The current brush; throws CommandError when there is none.
[[nodiscard]] zsg::IPainterBrush& currentBrush(Host& host);

/// A new brush whose fields hold what its nodes say.
[[nodiscard]] std::unique_ptr<zsg::IPainterBrush> freshBrush(Host& host, float size = 20);

/// A new brush with the settings of a preset's file, applied. Throws CommandError.
[[nodiscard]] std::unique_ptr<zsg::IPainterBrush> presetBrush(Host& host, std::string const& path);

} // namespace app
