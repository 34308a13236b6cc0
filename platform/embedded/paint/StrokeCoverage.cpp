#include "paint/StrokeCoverage.h"

#include "nyxembedded/LayerPixels.h"
#include "nyxembedded/sRGB.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace nyx::embedded {

namespace {

constexpr int edge = PixelTile::edge;

/// `whole` times `part` out of 65535, rounded up: the least part leaves something, and all of it is
/// all. Written so that it fits into vector registers of 16-bit numbers.
inline std::uint16_t partOf(std::uint16_t whole, std::uint16_t part) {
    auto const high = static_cast<std::uint16_t>((std::uint32_t(whole) * part) >> 16);
    auto const low = static_cast<std::uint16_t>(std::uint32_t(whole) * part);
    return static_cast<std::uint16_t>(high + (low != 0 ? 1 : 0));
}

/// `from` moved towards `cap`, which it may be beyond, by a part of what is missing.
inline std::uint16_t moved(std::uint16_t from, std::uint16_t cap, std::uint16_t part) {
    auto const missing = static_cast<std::uint16_t>(from < cap ? cap - from : 0);
    return static_cast<std::uint16_t>(from + partOf(missing, part));
}

void addRow(std::uint16_t* cover, std::uint16_t const* mask, int count, std::uint16_t cap,
            std::uint16_t flow) {
    for (int i = 0; i < count; ++i) {
        cover[i] = moved(cover[i], cap, partOf(mask[i], flow));
    }
}

void addRow(std::uint16_t* cover, std::uint16_t const* mask, int count, std::uint16_t cap) {
    for (int i = 0; i < count; ++i) {
        cover[i] = moved(cover[i], cap, mask[i]);
    }
}

/// `over`, of which `alpha` out of 65535 is there, laid over a premultiplied channel.
std::uint8_t over(std::uint8_t under, unsigned colour, unsigned alpha) {
    // At most 65535 * 255, so that the rounding addition stays within 32 bits.
    return static_cast<std::uint8_t>((colour * alpha + under * (65535u - alpha) + 32767u) / 65535u);
}

} // namespace

StrokeCoverage::StrokeCoverage(int resolution)
    : resolution_(resolution),
      tilesAcross_((resolution + edge - 1) / edge),
      tiles_(static_cast<std::size_t>(tilesAcross_) * static_cast<std::size_t>(tilesAcross_)) {}

StrokeCoverage::Tile& StrokeCoverage::changing(int column, int row) {
    auto& tile = tiles_[slot(column, row)];
    if (!tile) {
        tile = std::make_unique<Tile>();
    }
    if (!tile->isChanged) {
        changed_.push_back({column, row});
        tile->isChanged = true;
    }
    return *tile;
}

void StrokeCoverage::add(DabMask const& mask, Dab const& dab) {
    int const originX = static_cast<int>(std::floor(dab.x)) + mask.left;
    int const originY = static_cast<int>(std::floor(dab.y)) + mask.top;
    std::uint16_t const cap = toCover(dab.cap);
    std::uint16_t const flow = toCover(dab.flow);
    int const top = std::max(originY, 0);
    int const bottom = std::min(originY + mask.height, resolution_);
    for (int y = top; y < bottom; ++y) {
        DabMask::Extent const extent = mask.extents[static_cast<std::size_t>(y - originY)];
        int const end = std::min(originX + extent.end, resolution_);
        std::uint16_t const* const row = mask.row(y - originY);
        for (int x = std::max(originX + extent.begin, 0); x < end;) {
            Tile& tile = changing(x / edge, y / edge);
            int const count = std::min(end - x, edge - x % edge);
            std::uint16_t* const cover = &tile.cover[y % edge * edge + x % edge];
            if (flow == 65535) {
                addRow(cover, row + (x - originX), count, cap);
            } else {
                addRow(cover, row + (x - originX), count, cap, flow);
            }
            x += count;
        }
    }
}

void StrokeCoverage::paintOn(LayerPixels& pixels, LayerPixels const& before,
                             BrushSettings const& brush, Ink ink) {
    bool const erases = ink == Ink::Erase;
    BrushImage const* const texture =
        !erases && brush.colorSource == BrushSettings::TextureColor ? brush.texture.get() : nullptr;
    std::uint8_t const none[] = {0, 0, 0, 0};
    std::uint8_t const paint[] = {sRGBFromLinear(brush.color.r), sRGBFromLinear(brush.color.g),
                                  sRGBFromLinear(brush.color.b), 255};
    std::uint8_t const* const solid = erases ? none : paint;
    for (auto const [column, row] : changed_) {
        Tile& covered = *tiles_[slot(column, row)];
        covered.isChanged = false;
        pixels.setTile(column, row, before.tile(column, row));
        if (erases && !pixels.tile(column, row)) {
            continue;
        }
        PixelTile& tile = pixels.writableTile(column, row);
        for (int i = 0; i < PixelTile::texels; ++i) {
            unsigned alpha = covered.cover[i];
            if (alpha == 0) {
                continue;
            }
            std::uint8_t const* color = solid;
            if (texture) {
                color = texture->at((column * edge + i % edge) % texture->width,
                                    (row * edge + i / edge) % texture->height);
                alpha = alpha * color[3] / 255u;
            }
            for (int plane = 0; plane < PixelTile::alpha; ++plane) {
                tile.planes[plane][i] = over(tile.planes[plane][i], color[plane], alpha);
            }
            auto& tileAlpha = tile.planes[PixelTile::alpha][i];
            tileAlpha = over(tileAlpha, erases ? 0 : 255, alpha);
        }
    }
    changed_.clear();
}

} // namespace nyx::embedded
