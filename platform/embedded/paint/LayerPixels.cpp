#include "nyxembedded/LayerPixels.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace nyx::embedded {

namespace {

/// The source texels that make up one texel of the result, and how much each counts.
struct Footprint {
    int first = 0;
    std::vector<float> weights;
};

/// A tent over the source, at least one source texel wide to each side, so that shrinking averages
/// and growing interpolates. The weights of each add up to 1.
std::vector<Footprint> footprints(int from, int to) {
    double const scale = static_cast<double>(from) / to;
    double const reach = std::max(1.0, scale);
    std::vector<Footprint> all(static_cast<std::size_t>(to));
    for (int i = 0; i < to; ++i) {
        double const center = (i + 0.5) * scale - 0.5;
        int const first = std::max(0, static_cast<int>(std::ceil(center - reach)));
        int const last = std::min(from - 1, static_cast<int>(std::floor(center + reach)));
        Footprint& footprint = all[static_cast<std::size_t>(i)];
        footprint.first = first;
        double sum = 0;
        for (int s = first; s <= last; ++s) {
            double const weight = std::max(0.0, 1 - std::abs(s - center) / reach);
            footprint.weights.push_back(static_cast<float>(weight));
            sum += weight;
        }
        for (float& weight : footprint.weights) {
            weight = static_cast<float>(weight / sum);
        }
    }
    return all;
}

/// One row of one plane as numbers, whatever tiles it runs through.
void readRow(LayerPixels const& pixels, int plane, int y, std::vector<float>& row) {
    int const edge = PixelTile::edge;
    for (int column = 0; column < pixels.tilesAcross(); ++column) {
        PixelTile const* const tile = pixels.tile(column, y / edge).get();
        int const count = std::min(edge, pixels.resolution() - column * edge);
        for (int x = 0; x < count; ++x) {
            int const at = column * edge + x;
            row[static_cast<std::size_t>(at)] =
                tile ? static_cast<float>(tile->planes[plane][y % edge * edge + x]) : 0.0f;
        }
    }
}

bool isTransparent(PixelTile const& tile) {
    auto const& alpha = tile.planes[PixelTile::alpha];
    return std::all_of(std::begin(alpha), std::end(alpha), [](auto value) { return value == 0; });
}

bool sameTile(TileHandle const& a, TileHandle const& b) {
    if (a == b) {
        return true;
    }
    if (!a || !b) {
        return isTransparent(*(a ? a : b).get());
    }
    return std::memcmp(a.get(), b.get(), sizeof(PixelTile)) == 0;
}

} // namespace

LayerPixels::LayerPixels(int resolution)
    : resolution_(resolution), tilesAcross_((resolution + PixelTile::edge - 1) / PixelTile::edge) {}

void LayerPixels::makeTable() {
    if (tiles_.empty()) {
        auto const across = static_cast<std::size_t>(tilesAcross_);
        tiles_.resize(across * across);
    }
}

TileHandle const& LayerPixels::tileIn(std::size_t slot) const {
    static TileHandle const none;
    return tiles_.empty() ? none : tiles_[slot];
}

PixelTile& LayerPixels::writableTile(int column, int row) {
    makeTable();
    return tiles_[slot(column, row)].writable();
}

void LayerPixels::setTile(int column, int row, TileHandle tile) {
    makeTable();
    tiles_[slot(column, row)] = std::move(tile);
}

std::size_t LayerPixels::tileCount() const {
    return static_cast<std::size_t>(std::count_if(
        tiles_.begin(), tiles_.end(), [](TileHandle const& tile) { return bool(tile); }));
}

std::array<std::uint8_t, 4> LayerPixels::texel(int x, int y) const {
    if (x < 0 || y < 0 || x >= resolution_ || y >= resolution_) {
        return {};
    }
    int const edge = PixelTile::edge;
    PixelTile const* const found = tile(x / edge, y / edge).get();
    if (!found) {
        return {};
    }
    int const at = y % edge * edge + x % edge;
    return {found->planes[0][at], found->planes[1][at], found->planes[2][at], found->planes[3][at]};
}

LayerPixels LayerPixels::resampled(int resolution) const {
    LayerPixels result(resolution);
    if (tileCount() == 0 || resolution == 0) {
        return result;
    }
    std::vector<Footprint> const prints = footprints(resolution_, resolution);
    auto const size = static_cast<std::size_t>(resolution);
    std::vector<float> source(static_cast<std::size_t>(resolution_));
    std::vector<float> sum(size);
    int const edge = PixelTile::edge;
    // Rows of the source are narrowed once each and kept while any row of the result needs them.
    std::vector<std::vector<float>> narrowed(static_cast<std::size_t>(resolution_));
    for (int plane = 0; plane < 4; ++plane) {
        int done = 0;
        int dropped = 0;
        for (int y = 0; y < resolution; ++y) {
            Footprint const& down = prints[static_cast<std::size_t>(y)];
            int const end = down.first + static_cast<int>(down.weights.size());
            for (; done < end; ++done) {
                readRow(*this, plane, done, source);
                std::vector<float>& row = narrowed[static_cast<std::size_t>(done)];
                row.assign(size, 0.0f);
                for (std::size_t x = 0; x < size; ++x) {
                    auto at = static_cast<std::size_t>(prints[x].first);
                    for (float const weight : prints[x].weights) {
                        row[x] += weight * source[at++];
                    }
                }
            }
            for (; dropped < down.first; ++dropped) {
                narrowed[static_cast<std::size_t>(dropped)] = {};
            }
            std::fill(sum.begin(), sum.end(), 0.0f);
            for (std::size_t k = 0; k < down.weights.size(); ++k) {
                auto const& row = narrowed[static_cast<std::size_t>(down.first) + k];
                for (std::size_t x = 0; x < size; ++x) {
                    sum[x] += down.weights[k] * row[x];
                }
            }
            for (int x = 0; x < resolution; ++x) {
                float const value = std::min(255.0f, sum[static_cast<std::size_t>(x)] + 0.5f);
                if (value >= 1) {
                    result.writableTile(x / edge, y / edge)
                        .planes[plane][y % edge * edge + x % edge] =
                        static_cast<std::uint8_t>(value);
                }
            }
        }
    }
    return result;
}

bool operator==(LayerPixels const& a, LayerPixels const& b) {
    if (a.resolution_ != b.resolution_) {
        return false;
    }
    std::size_t const end = std::max(a.tiles_.size(), b.tiles_.size());
    std::size_t place = 0;
    while (place < end && sameTile(a.tileIn(place), b.tileIn(place))) {
        ++place;
    }
    return place == end;
}

} // namespace nyx::embedded
