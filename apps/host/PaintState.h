#pragma once

#include "host/Arguments.h"

#include "nyxembedded/Stroke.h"
#include "nyxrender/Ids.h"
#include "nyxrender/nyxLayerInfo.h"

#include <string>

namespace zsg {
class IPainter;
class IPainterSurface;
} // namespace zsg

namespace app {

class Host;

/// What the commands of surfaces, layers and painting keep between them.
struct PaintState {
    nyx::SurfaceId surface;                                  ///< the current one
    nyx::embedded::Stroke stroke{{}, 8, 0.8f, {0, 0, 0, 1}}; ///< the plain tip
    bool withBrush = true; ///< the current brush paints, where there is one
};

[[nodiscard]] zsg::IPainter& painter(Host& host);
/// The surface that commands work on: the chosen one, else the first; throws CommandError when
/// there is none.
[[nodiscard]] zsg::IPainterSurface& currentSurface(Host& host);
/// The list index of a layer of the current surface, given as an index or as a name. Throws
/// CommandError.
[[nodiscard]] unsigned takePaintLayer(Host& host, Arguments& arguments);
[[nodiscard]] zsg::IPainterSurface& takeSurface(Host& host, Arguments& arguments);
[[nodiscard]] nyx::ColorBlendMode takeBlendMode(Arguments& arguments);
[[nodiscard]] std::string blendModeName(nyx::ColorBlendMode mode);

} // namespace app
