#include "api/Painter.h"

#include "store/Scene.h"
#include "store/Surfaces.h"

#include <algorithm>
#include <string_view>

nyxPainter::~nyxPainter() = default;

nyxPainter_factory::~nyxPainter_factory() = default;

namespace nyx::embedded {

nyx::Unique_array<nyxPainter_surface> Painter::surfaces() const {
    if (isReleased()) {
        return {};
    }
    scene_->journal().write("painter_surfaces");
    std::vector<Surface*> const all = scene_->surfaces().all();
    std::vector<nyxPainter_surface> records;
    records.reserve(all.size());
    for (Surface const* const surface : all) {
        records.push_back({surface->id(), surface->resolution()});
    }
    return {records.data(), records.size()};
}

nyx::SurfaceId Painter::create_surface(char const* name, int resolution) {
    if (isReleased()) {
        return {};
    }
    scene_->journal().write("create_surface", name, resolution);
    if (scene_->faults().failCreations > 0) {
        --scene_->faults().failCreations;
        return {};
    }
    return scene_->surfaces().create(name ? name : "", resolution);
}

nyxCustomSurface* Painter::surface(nyx::SurfaceId id) const {
    return isReleased() ? nullptr : scene_->surfaces().find(id);
}

bool Painter::change_resolution(nyxScene* scene, nyx::SurfaceId id, unsigned resolution) {
    if (isReleased() || scene != scene_) {
        return false;
    }
    scene_->journal().write("change_resolution", id, resolution);
    Surface* const surface = scene_->surfaces().find(id);
    return surface && resolution <= static_cast<unsigned>(Surface::mostTexels) &&
           surface->resample(static_cast<int>(resolution));
}

nyxPainter* PainterFactory::create(char const* kind) {
    scene_.journal().write("create_painter", kind);
    if (scene_.faults().noPainter || !kind || std::string_view(kind) != "svdag_painter") {
        return nullptr;
    }
    return painters_.emplace_back(std::make_unique<Painter>(scene_)).get();
}

void PainterFactory::release(nyxPainter* painter) {
    scene_.journal().write("release_painter");
    for (auto const& made : painters_) {
        if (made.get() == painter) {
            made->release();
        }
    }
}

std::size_t PainterFactory::count() const {
    return static_cast<std::size_t>(
        std::count_if(painters_.begin(), painters_.end(),
                      [](auto const& painter) { return !painter->isReleased(); }));
}

} // namespace nyx::embedded

nyxPainter_factory* nyx_painter_factory(nyxScene* scene) {
    return scene ? scene->painterFactory() : nullptr;
}
