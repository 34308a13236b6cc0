#pragma once

#include "store/Surface.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace nyx::embedded {

/// The paint surfaces of a scene, under ids that ascend from 1 and are never used again. Surfaces
/// live as long as this, also when their scene was replaced: tasks on their way may still hold
/// them. Any thread.
class Surfaces {
public:
    Surfaces(StringPool& strings, Journal& journal) : strings_(strings), journal_(journal) {}

    /// The invalid id when the resolution is out of range.
    nyx::SurfaceId create(std::string name, int resolution);
    /// Adds a surface as a scene file tells it; its id must be at least nextId().
    void add(SurfaceInfo const& info, std::vector<Surface::Layer> layers);
    /// Null when unknown.
    [[nodiscard]] Surface* find(nyx::SurfaceId id) const;
    /// In creation order.
    [[nodiscard]] std::vector<Surface*> all() const;
    [[nodiscard]] nyx::SurfaceId nextId() const;
    void skipIdsBelow(nyx::SurfaceId id);
    /// Called before a layer is named.
    void setTaskBarrier(std::function<void()> barrier) { barrier_ = std::move(barrier); }

    /// Takes over the surfaces of `fresh`, which is left with none.
    void takeContents(Surfaces& fresh);

private:
    StringPool& strings_;
    Journal& journal_;
    std::function<void()> barrier_;
    mutable std::mutex mutex_; // over what follows
    std::map<std::uint32_t, std::unique_ptr<Surface>> surfaces_;
    std::vector<std::unique_ptr<Surface>> retired_;
    std::uint32_t nextId_ = 1;
};

} // namespace nyx::embedded
