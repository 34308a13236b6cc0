#pragma once

#include "nyxembedded/PixelTile.h"
#include "paint/DabMask.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace nyx::embedded {

class LayerPixels;

/// How much of each texel of a layer a stroke has covered so far, in 16 bits, so that many weak
/// dabs add up. Tiles are made where dabs fall.
class StrokeCoverage {
public:
    explicit StrokeCoverage(int resolution);

    /// Each texel under the mask moves towards the dab's cap by the dab's flow; one that is beyond
    /// the cap stays.
    void add(DabMask const& mask, Dab const& dab);
    /// Lays the brush's colour or texture over the layer where it is covered.
    void paintOn(LayerPixels& pixels, BrushSettings const& brush) const;

private:
    struct Tile {
        std::uint16_t cover[PixelTile::texels] = {};
    };

    [[nodiscard]] std::size_t slot(int column, int row) const {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(tilesAcross_) +
               static_cast<std::size_t>(column);
    }

    int resolution_;
    int tilesAcross_;
    std::vector<std::unique_ptr<Tile>> tiles_;
};

} // namespace nyx::embedded
