#pragma once

#include "nyxembedded/LayerPixels.h"
#include "nyxembedded/Stroke.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace nyx::embedded {

/// How much of each texel a stroke covers. Dabs that overlap count once, where they cover most, so
/// that a stroke is as even as its colour.
class StrokeMask {
public:
    explicit StrokeMask(int resolution);

    /// Covers a disc: wholly up to `hardness` of the radius, falling off to nothing at the radius,
    /// over one texel at least.
    void addDab(Stroke::Point center, float radius, float hardness);
    /// Paints a colour (straight) through the mask, or erases by its alpha.
    void apply(LayerPixels& pixels, nyxColor_rgba const& color, bool erase) const;

private:
    using Coverage = std::uint8_t[PixelTile::texels];
    struct Tile {
        alignas(16) Coverage coverage = {};
    };

    int resolution_;
    int tilesAcross_;
    std::vector<std::unique_ptr<Tile>> tiles_;
};

/// The centres of the dabs along a line: its first point, and then one every `distance`.
[[nodiscard]] std::vector<Stroke::Point> dabCenters(std::vector<Stroke::Point> const& points,
                                                    float distance);

} // namespace nyx::embedded
