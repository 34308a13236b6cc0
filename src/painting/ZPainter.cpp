#include "painting/ZPainter.h"

#include "painting/ZPaintSurface.h"

#include "nyxrender/nyxCustomSurface.h"
#include "nyxrender/nyxPainter.h"
#include "nyxrender/nyxRT_api.h"

namespace zsg {

ZPainter::ZPainter(nyxPainter* painter, nyxRT_api* rtApi, ZTaskQueue* taskQueue,
                   IEventQueue* eventQueue, ZUndoStack* undoStack)
    : painter_(painter),
      rtApi_(rtApi),
      taskQueue_(taskQueue),
      eventQueue_(eventQueue),
      undoStack_(undoStack) {
    if (!painter_) {
        return;
    }
    for (nyxPainter_surface const& found : painter_->surfaces()) {
        addSurface(found.id);
    }
}

ZPainter::ZPainter(ZPainter const&) = default;

ZPainter& ZPainter::operator=(ZPainter const&) = default;

ZPainter::~ZPainter() {
    nyxPainter_factory* const factory = rtApi_ ? nyx_painter_factory(rtApi_->scene()) : nullptr;
    if (factory) {
        factory->release(painter_);
    }
}

void ZPainter::reload() {
    if (!painter_) {
        return;
    }
    for (nyxPainter_surface const& found : painter_->surfaces()) {
        if (!surface(found.id)) {
            addSurface(found.id);
        }
    }
}

void ZPainter::addSurface(nyx::SurfaceId id) {
    nyxCustomSurface* const custom = painter_->surface(id);
    if (!custom) {
        return; // a listed surface that the renderer cannot give; reload() asks again
    }
    if (surfaces_.size() == surfaces_.capacity()) {
        surfaces_.reserve(2 * surfaces_.size() + 8); // nothing is lost when memory runs out
    }
    IPainterSurface*& place = byId_[id]; // so that nothing can fail once the surface is listed
    auto* const added = new ZPaintSurface(id, custom, rtApi_, taskQueue_, eventQueue_, undoStack_);
    surfaces_.push_back(added);
    place = place ? place : added;
}

std::vector<IPainterSurface*> ZPainter::surfaces() { return surfaces_; }

IPainterSurface* ZPainter::surface(nyx::SurfaceId id) const {
    auto const found = byId_.find(id);
    return found == byId_.end() ? nullptr : found->second;
}

nyx::SurfaceId ZPainter::createSurface(int resolution, nyx::SurfaceId source) {
    nyx::SurfaceId const id = createSurface(resolution);
    IPainterSurface* const original = source.isValid() ? surface(source) : nullptr;
    auto* const copy = dynamic_cast<ZPaintSurface*>(surface(id));
    if (original && copy) {
        copy->setupLayersAfterClone(original->layers());
    }
    return id;
}

nyx::SurfaceId ZPainter::createSurface(int resolution) {
    if (!painter_) {
        return {};
    }
    nyx::SurfaceId const id = painter_->create_surface("", resolution);
    if (id.isValid()) {
        addSurface(id);
    }
    return id;
}

void ZPainter::preview(IPainterBrush*, unsigned int, unsigned int, unsigned char*) {}

nyxPainter* ZPainter::painter() { return painter_; }

bool ZPainter::changeResolution(nyx::SurfaceId id, unsigned int resolution) {
    return painter_ && painter_->change_resolution(rtApi_->scene(), id, resolution);
}

} // namespace zsg
