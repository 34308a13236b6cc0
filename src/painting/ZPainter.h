#pragma once

#include "zsg/painting/IPainter.h"

#include <unordered_map>
#include <vector>

class nyxRT_api;
class ZTaskQueue;
class ZUndoStack;

namespace zsg {

class IEventQueue;

/// One paint surface object per surface of the renderer's painter. All that it is given is
/// borrowed; only `rtApi` has to be there as soon as there is a painter.
///
/// The surface objects are made here and never destroyed: undo commands that refer to them may
/// outlive the painter. A copy shares them.
class ZPainter : public IPainter {
public:
    ZPainter(nyxPainter* painter, nyxRT_api* rtApi, ZTaskQueue* taskQueue, IEventQueue* eventQueue,
             ZUndoStack* undoStack);
    ZPainter(ZPainter const&);
    ZPainter& operator=(ZPainter const&);
    /// Has the renderer's painter released, once more when somebody has done so before; the
    /// factory takes no harm from that.
    ~ZPainter() override;

    void reload() override;
    [[nodiscard]] std::vector<IPainterSurface*> surfaces() override;
    [[nodiscard]] IPainterSurface* surface(nyx::SurfaceId id) const override;
    nyx::SurfaceId createSurface(int resolution, nyx::SurfaceId source) override;
    nyx::SurfaceId createSurface(int resolution) override;
    void preview(IPainterBrush* brush, unsigned int width, unsigned int height,
                 unsigned char* pixels) override;
    [[nodiscard]] nyxPainter* painter() override;
    bool changeResolution(nyx::SurfaceId id, unsigned int resolution) override;

private:
    void addSurface(nyx::SurfaceId id);

    nyxPainter* painter_;
    nyxRT_api* rtApi_;
    ZTaskQueue* taskQueue_;
    IEventQueue* eventQueue_;
    ZUndoStack* undoStack_;
    std::vector<IPainterSurface*> surfaces_;
    std::unordered_map<nyx::SurfaceId, IPainterSurface*> byId_; ///< the first of an id
};

} // namespace zsg
