#pragma once

#include "zsg/Export.h"

#include "nyxrender/Ids.h"

#include <vector>

class nyxPainter;

namespace zsg {

class IPainterBrush;
class IPainterSurface;

/// The painted surfaces of the scene. Main thread only. What it returns is borrowed; a surface
/// object is never destroyed, because undo commands refer to it.
///
/// Without a renderer painter (no scene, or a renderer that cannot paint) there are no surfaces and
/// none can be made.
class ZSG_EXPORT IPainter {
public:
    virtual ~IPainter();

    /// Takes up surfaces that the renderer has and this does not know yet, behind the others. Known
    /// ones are left alone, also those that the renderer no longer has.
    virtual void reload() = 0;
    /// A copy of the list, in the order in which they were found or created.
    [[nodiscard]] virtual std::vector<IPainterSurface*> surfaces() = 0;
    /// Null for an unknown id.
    [[nodiscard]] virtual IPainterSurface* surface(nyx::SurfaceId id) const = 0;

    /// Makes a surface with the layer structure of `source` (names, blend modes, flags and
    /// backgrounds; not what is painted). An unknown source gives a plain new surface. Not
    /// undoable. The invalid id when the renderer makes none.
    virtual nyx::SurfaceId createSurface(int resolution, nyx::SurfaceId source) = 0;
    /// Makes a surface with one layer. The renderer says what the resolution means; for the
    /// embedded one it is the edge length in texels.
    virtual nyx::SurfaceId createSurface(int resolution) = 0;

    /// Leaves the pixels untouched: brush previews are drawn by the application.
    virtual void preview(IPainterBrush* brush, unsigned int width, unsigned int height,
                         unsigned char* pixels) = 0;
    /// The renderer's painter, null when there is none.
    [[nodiscard]] virtual nyxPainter* painter() = 0;
    /// Whether the renderer changed the resolution. Not undoable, not announced.
    virtual bool changeResolution(nyx::SurfaceId id, unsigned int resolution) = 0;

protected:
    IPainter();
    IPainter(IPainter const&);
    IPainter& operator=(IPainter const&);
};

} // namespace zsg
