#pragma once

#include "paint/DabMask.h"

#include "nyxembedded/PixelTile.h"

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
    /// What is done with the texels that are covered.
    enum class Ink { Paint, Erase };
    /// Lays the brush's colour or texture over the layer where it is covered, or takes paint away.
    /// That is done to the tiles of `before` where dabs were added since the last call; the others
    /// of `pixels` stay.
    void paintOn(LayerPixels& pixels, LayerPixels const& before, BrushSettings const& brush,
                 Ink ink);

private:
    struct Tile {
        std::uint16_t cover[PixelTile::texels] = {};
        bool isChanged = false; ///< since the last painting
    };
    struct Place {
        int column, row;
    };
    [[nodiscard]] Tile& changing(int column, int row);

    [[nodiscard]] std::size_t slot(int column, int row) const {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(tilesAcross_) +
               static_cast<std::size_t>(column);
    }

    int resolution_;
    int tilesAcross_;
    std::vector<std::unique_ptr<Tile>> tiles_;
    std::vector<Place> changed_;
};

} // namespace nyx::embedded
