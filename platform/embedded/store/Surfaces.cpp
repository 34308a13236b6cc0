#include "store/Surfaces.h"

#include <algorithm>
#include <utility>

namespace nyx::embedded {

using Guard = std::lock_guard<std::mutex>;

nyx::SurfaceId Surfaces::create(std::string name, int resolution) {
    Guard const guard(mutex_);
    if (resolution < 1 || resolution > Surface::mostTexels ||
        nextId_ == nyx::SurfaceId::invalidValue) {
        return {};
    }
    nyx::SurfaceId const id(nextId_++);
    auto made = std::make_unique<Surface>(id, std::move(name), resolution);
    made->belongTo(strings_, journal_, barrier_);
    surfaces_.emplace(id.toUint(), std::move(made));
    return id;
}

void Surfaces::add(SurfaceInfo const& info, std::vector<Surface::Layer> layers) {
    Guard const guard(mutex_);
    auto made = std::make_unique<Surface>(info, std::move(layers));
    made->belongTo(strings_, journal_, barrier_);
    surfaces_.emplace(info.id.toUint(), std::move(made));
    nextId_ = std::max(nextId_, info.id.toUint() + 1);
}

Surface* Surfaces::find(nyx::SurfaceId id) const {
    Guard const guard(mutex_);
    auto const found = surfaces_.find(id.toUint());
    return found == surfaces_.end() ? nullptr : found->second.get();
}

std::vector<Surface*> Surfaces::all() const {
    Guard const guard(mutex_);
    std::vector<Surface*> list;
    list.reserve(surfaces_.size());
    for (auto const& [id, surface] : surfaces_) {
        list.push_back(surface.get());
    }
    return list;
}

nyx::SurfaceId Surfaces::nextId() const {
    Guard const guard(mutex_);
    return nyx::SurfaceId(nextId_);
}

void Surfaces::skipIdsBelow(nyx::SurfaceId id) {
    Guard const guard(mutex_);
    nextId_ = std::max(nextId_, id.toUint());
}

void Surfaces::takeContents(Surfaces& fresh) {
    std::scoped_lock const guard(mutex_, fresh.mutex_);
    for (auto& [id, surface] : surfaces_) {
        surface->dropPixels();
        retired_.push_back(std::move(surface));
    }
    surfaces_ = std::exchange(fresh.surfaces_, {});
    for (auto const& [id, surface] : surfaces_) {
        surface->belongTo(strings_, journal_, barrier_);
    }
    nextId_ = std::max(nextId_, fresh.nextId_);
}

} // namespace nyx::embedded
