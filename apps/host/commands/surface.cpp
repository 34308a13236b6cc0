// Painted surfaces.

#include "host/Command.h"
#include "host/CommandResult.h"
#include "host/Host.h"
#include "host/PaintState.h"
#include "host/counted.h"
#include "host/printable.h"
#include "zsg/painting/IPainter.h"
#include "zsg/painting/IPainterSurface.h"

#include "nyxembedded/Painting.h"

#include <ostream>

namespace app {

namespace {

void list(Host& host, Arguments&) {
    auto const surfaces = painter(host).surfaces();
    beginResultList(host);
    for (zsg::IPainterSurface* const surface : surfaces) {
        auto const info = host.renderer().painting().surface(surface->id());
        addResult(host, [&] {
            return nlohmann::ordered_json{{"id", surface->id().toUint()},
                                          {"name", info ? info->name : ""},
                                          {"resolution", info ? info->resolution : 0},
                                          {"layers", surface->layers().size()},
                                          {"current", surface == &currentSurface(host)},
                                          {"deleted", surface->deleted()}};
        });
        host.out() << (surface == &currentSurface(host) ? "  * " : "    ")
                   << surface->id().toUint();
        if (info) {
            host.out() << ' ' << printable(info->name) << (info->name.empty() ? "" : ", ")
                       << info->resolution << " x " << info->resolution;
        }
        host.out() << ", " << counted(surface->layers().size(), "layer", "layers")
                   << (surface->deleted() ? ", deleted" : "") << '\n';
    }
}

void make(Host& host, Arguments& arguments) {
    int const resolution = arguments.integer("a resolution in texels");
    bool const isCopy = !arguments.empty();
    nyx::SurfaceId const source(isCopy ? arguments.number("the id of a surface") : ~0u);
    arguments.done();
    host.taskQueue().waitIdle();
    nyx::SurfaceId const id = isCopy ? painter(host).createSurface(resolution, source)
                                     : painter(host).createSurface(resolution);
    if (!id.isValid()) {
        throw CommandError("the renderer makes no such surface");
    }
    host.sceneState<PaintState>().surface = id;
    host.out() << "  surface " << id.toUint() << '\n';
}

void use(Host& host, Arguments& arguments) {
    zsg::IPainterSurface& surface = takeSurface(host, arguments);
    arguments.done();
    host.sceneState<PaintState>().surface = surface.id();
}

template <bool deleted>
void setDeleted(Host& host, Arguments& arguments) {
    zsg::IPainterSurface& surface = takeSurface(host, arguments);
    arguments.done();
    surface.setDeleted(deleted);
}

void resolution(Host& host, Arguments& arguments) {
    zsg::IPainterSurface& surface = takeSurface(host, arguments);
    unsigned const texels = arguments.number("a resolution in texels");
    arguments.done();
    host.taskQueue().waitIdle();
    if (!painter(host).changeResolution(surface.id(), texels)) {
        throw CommandError("the renderer does not take that resolution");
    }
}

void reload(Host& host, Arguments&) { painter(host).reload(); }

constexpr Command table[] = {
    {"surface list", "", "list the surfaces, * marks the current one", "surface list", list},
    {"surface new", "TEXELS [SURFACE]", "make one, with the layers of another, and use it",
     "surface new 512", make},
    {"surface use", "SURFACE", "the one that layer, paint and picture work on", "surface use 1",
     use},
    {"surface delete", "SURFACE", "mark it as deleted (no undo)", "surface delete 1",
     setDeleted<true>},
    {"surface restore", "SURFACE", "bring a deleted one back (no undo)", "surface restore 1",
     setDeleted<false>},
    {"surface resolution", "SURFACE TEXELS", "resample what is painted (no undo)",
     "surface resolution 1 256", resolution},
    {"surface reload", "", "take up what the renderer has made by itself", "surface reload",
     reload},
};

} // namespace

Family surfaceFamily() { return {"painted surfaces", table}; }

} // namespace app
