#pragma once

#include "nyxembedded/Image.h"
#include "nyxembedded/LayerPixels.h"
#include "nyxembedded/Stroke.h"
#include "nyxembedded/SurfaceInfo.h"
#include "nyxrender/Export.h"
#include "nyxrender/Ids.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace nyx::embedded {

class SurfacePicture;
class Surfaces;

/// What is painted on the surfaces of a scene. Any thread; each call is atomic. A host paints from
/// tasks on the render thread, after what the library has queued for the layer. Layers are given by
/// their ids, so that it does not matter where they have moved to.
class NYXRENDER_EXPORT Painting {
public:
    explicit Painting(Surfaces& surfaces) : surfaces_(surfaces) {}

    /// A paint surface with one layer; the invalid id for a resolution below 1 or above 16384.
    nyx::SurfaceId addSurface(std::string const& name, int resolution);
    /// In creation order.
    [[nodiscard]] std::vector<nyx::SurfaceId> surfaces() const;
    /// Nothing for an unknown surface.
    [[nodiscard]] std::optional<SurfaceInfo> surface(nyx::SurfaceId id) const;

    /// A snapshot, to be kept for an undo; nothing for an unknown surface or layer.
    [[nodiscard]] std::optional<LayerPixels> pixels(nyx::SurfaceId id, std::uint32_t layer) const;
    /// Puts a snapshot back. False for an unknown surface or layer, and when the surface has
    /// another resolution by now.
    bool setPixels(nyx::SurfaceId id, std::uint32_t layer, LayerPixels pixels);
    /// Paints at once. False for an unknown surface or layer.
    bool paint(nyx::SurfaceId id, std::uint32_t layer, Stroke const& stroke);
    /// The surface's picture: the layers that are visible and not deleted, from the bottom up, each
    /// with its background and blend mode. Empty for an unknown surface. Where the surface is
    /// marked as deleted the picture is what it would be.
    [[nodiscard]] Image composite(nyx::SurfaceId id) const;

    /// `barrier` is called before a layer is named, on the thread that names it. Names are written
    /// at once and by place, while tasks that add or move layers may still wait; a host lets them
    /// run out first (Host does). To be set while no task runs; empty for none.
    void setTaskBarrier(std::function<void()> barrier);

private:
    friend class SurfacePicture;

    Surfaces& surfaces_;
};

} // namespace nyx::embedded
