#pragma once

#include "nyxembedded/PixelTile.h"
#include "nyxrender/Export.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace nyx::embedded {

/// What is painted on a layer: a square of tiles, made when first painted on. A copy is a snapshot:
/// it shares the tiles until either side paints, and costs one handle per tile; nothing as long as
/// nothing was painted. One object may be
/// used by one thread at a time; copies are independent.
///
/// Texels hold eight bits per component, the colours encoded by the curve of sRGB
/// (nyxembedded/sRGB.h), not linear, for which eight bits are too few. They are counted from the
/// upper left corner, tiles likewise.
class NYXRENDER_EXPORT LayerPixels {
public:
    /// Transparent; `resolution` is the edge length in texels, 0 or more.
    explicit LayerPixels(int resolution = 0);

    [[nodiscard]] int resolution() const { return resolution_; }
    /// Tiles per row and column. The last ones may reach over the edge; what lies there stays
    /// transparent.
    [[nodiscard]] int tilesAcross() const { return tilesAcross_; }
    /// How many tiles there are in memory.
    [[nodiscard]] std::size_t tileCount() const;

    // Tiles. Column and row must be within tilesAcross().

    [[nodiscard]] TileHandle const& tile(int column, int row) const {
        return tileIn(slot(column, row));
    }
    [[nodiscard]] PixelTile& writableTile(int column, int row);
    void setTile(int column, int row, TileHandle tile);

    /// Red, green, blue, alpha, multiplied by alpha; transparent outside.
    [[nodiscard]] std::array<std::uint8_t, 4> texel(int x, int y) const;

    /// The same picture at another resolution: averaged when it shrinks, interpolated when it
    /// grows.
    [[nodiscard]] LayerPixels resampled(int resolution) const;

    /// Whether every texel is equal. Shared tiles are not looked at.
    friend NYXRENDER_EXPORT bool operator==(LayerPixels const& a, LayerPixels const& b);

private:
    [[nodiscard]] std::size_t slot(int column, int row) const {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(tilesAcross_) +
               static_cast<std::size_t>(column);
    }
    [[nodiscard]] TileHandle const& tileIn(std::size_t slot) const;
    void makeTable();

    int resolution_;
    int tilesAcross_;
    std::vector<TileHandle> tiles_; ///< empty until one is set: large layers have large tables
};

} // namespace nyx::embedded
