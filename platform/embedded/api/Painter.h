#pragma once

#include "nyxrender/nyxPainter.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace nyx::embedded {

/// A painter over the surfaces of a scene. All painters of a scene share them. One that was
/// released has no surfaces and makes none.
class Painter final : public nyxPainter {
public:
    explicit Painter(nyxScene& scene) : scene_(&scene) {}

    [[nodiscard]] nyx::Unique_array<nyxPainter_surface> surfaces() const override;
    nyx::SurfaceId create_surface(char const* name, int resolution) override;
    [[nodiscard]] nyxCustomSurface* surface(nyx::SurfaceId id) const override;
    bool change_resolution(nyxScene* scene, nyx::SurfaceId id, unsigned resolution) override;

    [[nodiscard]] bool isReleased() const { return !scene_; }
    void release() { scene_ = nullptr; }

private:
    nyxScene* scene_;
};

/// Makes the one kind of painter that there is. Released painters keep their place in memory until
/// the factory goes, so that a second release can never hit another painter. Main thread.
class PainterFactory final : public nyxPainter_factory {
public:
    explicit PainterFactory(nyxScene& scene) : scene_(scene) {}

    [[nodiscard]] nyxPainter* create(char const* kind) override;
    void release(nyxPainter* painter) override;

    /// Painters that were made and not released.
    [[nodiscard]] std::size_t count() const;

private:
    nyxScene& scene_;
    std::vector<std::unique_ptr<Painter>> painters_;
};

} // namespace nyx::embedded
