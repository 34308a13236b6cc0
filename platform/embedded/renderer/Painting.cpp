#include "nyxembedded/Painting.h"

#include "renderer/upToZero.h"
#include "store/Surfaces.h"

#include "nyxembedded/PixelTile.h"

#include <utility>

namespace nyx::embedded {

nyx::SurfaceId Painting::addSurface(std::string const& name, int resolution) {
    return surfaces_.create(upToZero(name), resolution);
}

std::vector<nyx::SurfaceId> Painting::surfaces() const {
    std::vector<nyx::SurfaceId> ids;
    for (Surface const* const surface : surfaces_.all()) {
        ids.push_back(surface->id());
    }
    return ids;
}

std::optional<SurfaceInfo> Painting::surface(nyx::SurfaceId id) const {
    Surface const* const surface = surfaces_.find(id);
    return surface ? std::optional(surface->info()) : std::nullopt;
}

std::optional<LayerPixels> Painting::pixels(nyx::SurfaceId id, std::uint32_t layer) const {
    Surface const* const surface = surfaces_.find(id);
    return surface ? surface->pixels(layer) : std::nullopt;
}

bool Painting::setPixels(nyx::SurfaceId id, std::uint32_t layer, LayerPixels pixels) {
    Surface* const surface = surfaces_.find(id);
    return surface && surface->setPixels(layer, std::move(pixels));
}

bool Painting::paint(nyx::SurfaceId id, std::uint32_t layer, Stroke const& stroke) {
    Surface* const surface = surfaces_.find(id);
    return surface && surface->paint(layer, stroke);
}

Image Painting::composite(nyx::SurfaceId id) const {
    Surface const* const surface = surfaces_.find(id);
    if (!surface) {
        return {};
    }
    Surface::Shown const shown = surface->shown();
    int const across = (shown.resolution + PixelTile::edge - 1) / PixelTile::edge;
    return nyx::embedded::composite(shown.layers, shown.resolution, {0, 0, across, across});
}

void Painting::setTaskBarrier(std::function<void()> barrier) {
    surfaces_.setTaskBarrier(std::move(barrier));
}

} // namespace nyx::embedded
