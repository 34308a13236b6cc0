#include "paint/paintStroke.h"

#include "paint/strokeLimits.h"
#include "paint/toByte.h"

#include "nyxembedded/sRGB.h"

#include <algorithm>
#include <cmath>

namespace nyx::embedded {

namespace {

constexpr float largestRadius = 1e5f;

bool isNumber(Stroke::Point p) { return std::isfinite(p.x) && std::isfinite(p.y); }

Stroke::Point nearby(Stroke::Point p) {
    return {std::clamp(p.x, -farthest, farthest), std::clamp(p.y, -farthest, farthest)};
}

/// Rounds what is not negative; the library's own rounding does not fit into vector registers.
constexpr float half = 0.5f;

constexpr int divideBy255(int x) { return (x + 128 + ((x + 128) >> 8)) >> 8; }

} // namespace

StrokeMask::StrokeMask(int resolution)
    : resolution_(resolution),
      tilesAcross_((resolution + PixelTile::edge - 1) / PixelTile::edge),
      tiles_(static_cast<std::size_t>(tilesAcross_) * static_cast<std::size_t>(tilesAcross_)) {}

void StrokeMask::addDab(Stroke::Point center, float radius, float hardness) {
    // Hard edges are softened over one texel, which also reaches half a texel out.
    float const inner = std::min(hardness * radius, radius - 0.5f);
    float const outer = std::max(radius, inner + 1.0f);
    float const slope = 1.0f / (outer - inner);
    float const edgeOfAll = static_cast<float>(resolution_);
    auto const low = [](float v) { return static_cast<int>(std::max(0.0f, std::floor(v))); };
    auto const high = [edgeOfAll](float v) {
        return static_cast<int>(std::min(edgeOfAll, std::ceil(v)));
    };
    int const left = low(std::min(center.x - outer, edgeOfAll));
    int const right = high(std::max(center.x + outer, 0.0f));
    int const top = low(std::min(center.y - outer, edgeOfAll));
    int const bottom = high(std::max(center.y + outer, 0.0f));

    constexpr int edge = PixelTile::edge;
    for (int tileTop = top / edge * edge; tileTop < bottom; tileTop += edge) {
        for (int tileLeft = left / edge * edge; tileLeft < right; tileLeft += edge) {
            int const number = tileTop / edge * tilesAcross_ + tileLeft / edge;
            auto& tile = tiles_[static_cast<std::size_t>(number)];
            if (!tile) {
                tile = std::make_unique<Tile>();
            }
            int const firstX = std::max(left, tileLeft);
            int const count = std::min(right, tileLeft + edge) - firstX;
            for (int y = std::max(top, tileTop); y < std::min(bottom, tileTop + edge); ++y) {
                int const begin = (y - tileTop) * edge + (firstX - tileLeft);
                std::uint8_t* const row = tile->coverage + begin;
                float const dy = static_cast<float>(y) + 0.5f - center.y;
                float const startX = static_cast<float>(firstX) + 0.5f - center.x;
                for (int i = 0; i < count; ++i) {
                    float const dx = startX + static_cast<float>(i);
                    float const distance = std::sqrt(dx * dx + dy * dy);
                    float const t = std::clamp((outer - distance) * slope, 0.0f, 1.0f);
                    float const smooth = t * t * (3.0f - 2.0f * t);
                    int const covered = static_cast<int>(smooth * 255.0f + half);
                    row[i] = static_cast<std::uint8_t>(std::max<int>(row[i], covered));
                }
            }
        }
    }
}

void StrokeMask::apply(LayerPixels& pixels, nyxColor_rgba const& color, bool erase) const {
    int const alpha = toByte(color.a);
    int const straight[] = {sRGBFromLinear(color.r), sRGBFromLinear(color.g),
                            sRGBFromLinear(color.b), 255};
    for (int row = 0; row < tilesAcross_; ++row) {
        for (int column = 0; column < tilesAcross_; ++column) {
            int const number = row * tilesAcross_ + column;
            Tile const* const mask = tiles_[static_cast<std::size_t>(number)].get();
            if (!mask || (erase && !pixels.tile(column, row))) {
                continue;
            }
            PixelTile& tile = pixels.writableTile(column, row);
            for (int plane = 0; plane < 4; ++plane) {
                std::uint8_t* const texels = tile.planes[plane];
                int const channel = erase ? 0 : straight[plane];
                for (int i = 0; i < PixelTile::texels; ++i) {
                    int const a = divideBy255(mask->coverage[i] * alpha);
                    // a and channel are at most 255, so this is at most 255 * 255.
                    texels[i] =
                        static_cast<std::uint8_t>(divideBy255(channel * a + texels[i] * (255 - a)));
                }
            }
        }
    }
}

std::vector<Stroke::Point> dabCenters(std::vector<Stroke::Point> const& points, float distance) {
    std::vector<Stroke::Point> centers;
    float left = 0; // to the next dab
    Stroke::Point before;
    for (Stroke::Point const& given : points) {
        if (!isNumber(given)) {
            continue;
        }
        Stroke::Point const point = nearby(given);
        if (centers.empty()) {
            centers.push_back(point);
            left = distance;
            before = point;
            continue;
        }
        float const length = std::hypot(point.x - before.x, point.y - before.y);
        float at = left;
        for (; at <= length && centers.size() < mostDabs; at += distance) {
            float const t = at / length;
            centers.push_back(
                {before.x + t * (point.x - before.x), before.y + t * (point.y - before.y)});
        }
        left = at - length;
        before = point;
    }
    return centers;
}

void paintStroke(LayerPixels& pixels, Stroke const& stroke) {
    if (!(stroke.radius > 0) || !std::isfinite(stroke.radius)) {
        return;
    }
    float const hardness = stroke.hardness > 0 ? std::min(stroke.hardness, 1.0f) : 0.0f;
    // Not so close that a large brush takes for ever.
    float const spacing = stroke.spacing > 0.01f ? std::min(stroke.spacing, 10.0f) : 0.01f;
    float const radius = std::min(stroke.radius, largestRadius);
    float const distance = std::max(0.25f, spacing * radius);
    StrokeMask mask(pixels.resolution());
    for (Stroke::Point const& center : dabCenters(stroke.points, distance)) {
        mask.addDab(center, radius, hardness);
    }
    mask.apply(pixels, stroke.color, stroke.erase);
}

} // namespace nyx::embedded
