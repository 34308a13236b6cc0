#include "paint/DabMask.h"

#include <algorithm>
#include <cmath>

namespace nyx::embedded {

namespace {

int partsOfATexel(float diameter) {
    return diameter <= 16 ? 8 : diameter <= 64 ? 4 : diameter <= 256 ? 2 : 1;
}

/// An empty mask over everything within `reach` of a centre at (x, y) in texel (0, 0).
DabMask maskAround(float x, float y, float reach) {
    DabMask mask;
    mask.left = static_cast<int>(std::floor(x - reach));
    mask.top = static_cast<int>(std::floor(y - reach));
    mask.width = static_cast<int>(std::ceil(x + reach)) - mask.left;
    mask.height = static_cast<int>(std::ceil(y + reach)) - mask.top;
    mask.cover.resize(static_cast<std::size_t>(mask.width) * static_cast<std::size_t>(mask.height));
    mask.extents.resize(static_cast<std::size_t>(mask.height));
    return mask;
}

void findExtents(DabMask& mask) {
    for (int y = 0; y < mask.height; ++y) {
        std::uint16_t const* const row = mask.row(y);
        DabMask::Extent extent{0, mask.width};
        while (extent.begin < extent.end && row[extent.begin] == 0) {
            ++extent.begin;
        }
        while (extent.end > extent.begin && row[extent.end - 1] == 0) {
            --extent.end;
        }
        mask.extents[static_cast<std::size_t>(y)] = extent;
    }
}

} // namespace

float DabMasks::Gray::at(int x, int y) const {
    if (x < 0 || y < 0 || x >= width || y >= height) {
        return 0;
    }
    return values[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                  static_cast<std::size_t>(x)];
}

DabMasks::DabMasks(BrushSettings const& brush)
    : hardness_(brush.hardness > 0 ? std::min(brush.hardness, 1.0f) : 0.0f) {
    if (!brush.stencil) {
        return;
    }
    BrushImage const& image = *brush.stencil;
    Gray& shape = shapes_.emplace_back();
    shape.width = image.width;
    shape.height = image.height;
    shape.values.reserve(image.rgba.size() / 4);
    for (std::size_t i = 0; i < image.rgba.size(); i += 4) {
        std::uint8_t const* const p = &image.rgba[i];
        // The weights of the brightness of red, green and blue (Rec. 709), out of 256.
        int const light = (54 * p[0] + 183 * p[1] + 19 * p[2] + 128) >> 8;
        shape.values.push_back(
            static_cast<std::uint8_t>(brush.stencilUseAlpha ? p[3] : (light * p[3] + 127) / 255));
    }
}

// Averaged down to less than twice the dab, so that no part of the image falls between texels.
DabMasks::Gray const& DabMasks::shapeFor(float diameter) {
    std::size_t level = 0;
    while (static_cast<float>(std::max(shapes_[level].width, shapes_[level].height)) >=
           2 * std::max(diameter, 1.0f)) {
        if (++level == shapes_.size()) {
            Gray const& from = shapes_.back();
            Gray half;
            half.width = (from.width + 1) / 2;
            half.height = (from.height + 1) / 2;
            for (int y = 0; y < half.height; ++y) {
                for (int x = 0; x < half.width; ++x) {
                    int const right = std::min(2 * x + 1, from.width - 1);
                    int const below = std::min(2 * y + 1, from.height - 1);
                    half.values.push_back(static_cast<std::uint8_t>(
                        (from.at(2 * x, 2 * y) + from.at(right, 2 * y) + from.at(2 * x, below) +
                         from.at(right, below) + 2) /
                        4));
                }
            }
            shapes_.push_back(std::move(half));
        }
    }
    return shapes_[level];
}

// Wholly covered up to the hardness, then falling smoothly; never steeper than over one texel.
DabMask DabMasks::makeDisc(float diameter, float x, float y) const {
    float const radius = diameter / 2;
    float const inner = std::min(hardness_ * radius, radius - 0.5f);
    float const outer = std::max(radius, inner + 1);
    float const slope = 1 / (outer - inner);
    DabMask mask = maskAround(x, y, outer);
    for (int row = 0; row < mask.height; ++row) {
        std::uint16_t* const out =
            &mask.cover[static_cast<std::size_t>(row) * static_cast<std::size_t>(mask.width)];
        float const dy = static_cast<float>(row + mask.top) + 0.5f - y;
        float const start = static_cast<float>(mask.left) + 0.5f - x;
        for (int i = 0; i < mask.width; ++i) {
            float const dx = start + static_cast<float>(i);
            float const distance = std::sqrt(dx * dx + dy * dy);
            float const t = std::clamp((outer - distance) * slope, 0.0f, 1.0f);
            out[i] = toCover(t * t * (3 - 2 * t));
        }
    }
    return mask;
}

// The image is as large as the dab, its longer side being the diameter.
DabMask DabMasks::makeShape(Dab const& dab, float x, float y) {
    Gray const& shape = shapeFor(dab.diameter);
    // A dab far smaller than a texel covers nothing; its image's coordinates must stay numbers.
    float const scale = static_cast<float>(std::max(shape.width, shape.height)) /
                        std::max(dab.diameter, 1.0f / 256);
    float const cosine = std::cos(dab.angle) * scale;
    float const sine = std::sin(dab.angle) * scale;
    float const middleX = static_cast<float>(shape.width) / 2 - 0.5f;
    float const middleY = static_cast<float>(shape.height) / 2 - 0.5f;
    // Half the diagonal of a square dab, and the texel by which interpolation reaches out.
    DabMask mask = maskAround(x, y, dab.diameter * 0.70711f + 1);
    std::size_t at = 0;
    for (int row = 0; row < mask.height; ++row) {
        float const dy = static_cast<float>(row + mask.top) + 0.5f - y;
        for (int i = 0; i < mask.width; ++i) {
            float const dx = static_cast<float>(i + mask.left) + 0.5f - x;
            float const u = dx * cosine + dy * sine + middleX;
            float const v = dy * cosine - dx * sine + middleY;
            float const left = std::floor(u);
            float const top = std::floor(v);
            float const fx = u - left;
            float const fy = v - top;
            int const ix = static_cast<int>(left);
            int const iy = static_cast<int>(top);
            float const value =
                (shape.at(ix, iy) * (1 - fx) + shape.at(ix + 1, iy) * fx) * (1 - fy) +
                (shape.at(ix, iy + 1) * (1 - fx) + shape.at(ix + 1, iy + 1) * fx) * fy;
            mask.cover[at++] = toCover(std::min(value / 255.0f, 1.0f));
        }
    }
    return mask;
}

DabMask const& DabMasks::mask(Dab const& dab) {
    bool const turns = !shapes_.empty();
    if (dab.diameter != diameter_ || (turns && dab.angle != angle_)) {
        diameter_ = dab.diameter;
        angle_ = dab.angle;
        parts_ = partsOfATexel(diameter_);
        kept_ = {};
    }
    auto const partOf = [this](float position) {
        float const parts = static_cast<float>(parts_);
        return std::min(static_cast<int>((position - std::floor(position)) * parts), parts_ - 1);
    };
    int const px = partOf(dab.x);
    int const py = partOf(dab.y);
    auto const slot = static_cast<std::size_t>(py) * static_cast<std::size_t>(parts_) +
                      static_cast<std::size_t>(px);
    auto& kept = kept_[slot];
    if (!kept) {
        float const x = (static_cast<float>(px) + 0.5f) / static_cast<float>(parts_);
        float const y = (static_cast<float>(py) + 0.5f) / static_cast<float>(parts_);
        kept =
            std::make_unique<DabMask>(turns ? makeShape(dab, x, y) : makeDisc(dab.diameter, x, y));
        findExtents(*kept);
    }
    return *kept;
}

} // namespace nyx::embedded
