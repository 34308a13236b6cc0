#include "nyxembedded/Painting.h"
#include "nyxembedded/Renderer.h"
#include "nyxrender/nyxCustomSurface.h"
#include "nyxrender/nyxPainter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace {

using namespace nyx::embedded;
using Mode = nyx::ColorBlendMode;

constexpr int modes = 14;

/// The W3C's blend functions of backdrop and source, both from 0 to 1, and the two sums.
double blend(Mode mode, double b, double s) {
    switch (mode) {
    case Mode::Normal:
        return s;
    case Mode::Multiply:
        return b * s;
    case Mode::Screen:
        return b + s - b * s;
    case Mode::Overlay:
        return blend(Mode::HardLight, s, b);
    case Mode::Add:
        return std::min(1.0, b + s);
    case Mode::Subtract:
        return std::max(0.0, b - s);
    case Mode::Darken:
        return std::min(b, s);
    case Mode::Lighten:
        return std::max(b, s);
    case Mode::ColorDodge:
        return b == 0 ? 0 : s == 1 ? 1 : std::min(1.0, b / (1 - s));
    case Mode::ColorBurn:
        return b == 1 ? 1 : s == 0 ? 0 : 1 - std::min(1.0, (1 - b) / s);
    case Mode::HardLight:
        return s <= 0.5 ? b * 2 * s : blend(Mode::Screen, b, 2 * s - 1);
    case Mode::SoftLight: {
        double const d = b <= 0.25 ? ((16 * b - 12) * b + 4) * b : std::sqrt(b);
        return s <= 0.5 ? b - (1 - 2 * s) * b * (1 - b) : b + (2 * s - 1) * (d - b);
    }
    case Mode::Difference:
        return std::abs(b - s);
    case Mode::Exclusion:
        return b + s - 2 * b * s;
    }
    return s;
}

/// One premultiplied number of the result, not rounded.
double composited(Mode mode, double d, double ab, double s, double as) {
    double const cb = ab == 0 ? 0 : d / ab;
    double const cs = as == 0 ? 0 : s / as;
    return ((1 - ab / 255) * as / 255 * cs + (1 - as / 255) * ab / 255 * cb +
            as * ab / 255 / 255 * blend(mode, cb, cs)) *
           255;
}

class BlendModesTest : public testing::Test {
protected:
    /// A surface whose layers (ids from 1, from the bottom) have these pixels.
    nyx::SurfaceId add(int resolution, std::vector<LayerPixels> const& layers) {
        nyx::SurfaceId const id = renderer.painting().addSurface("", resolution);
        for (std::uint32_t i = 0; i < layers.size(); ++i) {
            if (i > 0) {
                surface(id).add_layer(i, i + 1);
            }
            EXPECT_TRUE(renderer.painting().setPixels(id, i + 1, layers[i]));
        }
        return id;
    }
    nyxCustomSurface& surface(nyx::SurfaceId id) { return *painter->surface(id); }

    Renderer renderer;
    nyxPainter* painter = nyx_painter_factory(renderer.scene())->create("svdag_painter");
};

// 8 alphas and 8 colours of the backdrop by as many of the source: one tile.
TEST_F(BlendModesTest, followTheFormulasForAGridOfColorsAndAlphas) {
    int const steps[] = {0, 1, 63, 127, 128, 192, 254, 255};
    PixelTile backdrop, source;
    for (int i = 0; i < PixelTile::texels; ++i) {
        int const ab = steps[i & 7], as = steps[i >> 6 & 7];
        backdrop.planes[3][i] = static_cast<std::uint8_t>(ab);
        source.planes[3][i] = static_cast<std::uint8_t>(as);
        for (int plane = 0; plane < 3; ++plane) {
            int const cb = steps[((i >> 3) + plane) & 7], cs = steps[((i >> 9) + 3 * plane) & 7];
            backdrop.planes[plane][i] = static_cast<std::uint8_t>((cb * ab + 127) / 255);
            source.planes[plane][i] = static_cast<std::uint8_t>((cs * as + 127) / 255);
        }
    }
    LayerPixels low(64), high(64);
    low.setTile(0, 0, TileHandle(backdrop));
    high.setTile(0, 0, TileHandle(source));
    nyx::SurfaceId const id = add(64, {low, high});
    for (int m = 0; m <= modes; ++m) {
        auto const mode = static_cast<Mode>(m);
        bool const divides =
            mode == Mode::ColorDodge || mode == Mode::ColorBurn || mode == Mode::SoftLight;
        surface(id).set_layer_blend_mode(1, mode);
        Image const image = renderer.painting().composite(id);
        for (int i = 0; i < PixelTile::texels; ++i) {
            double const ab = backdrop.planes[3][i], as = source.planes[3][i];
            auto const at = static_cast<std::size_t>(i) * 4;
            for (int plane = 0; plane < 3; ++plane) {
                double const exact =
                    composited(mode, backdrop.planes[plane][i], ab, source.planes[plane][i], as);
                ASSERT_NEAR(image.rgba[at + static_cast<std::size_t>(plane)], exact,
                            divides ? 0.51 : 0.500001)
                    << "mode " << m << " texel " << i << " plane " << plane;
                ASSERT_LE(image.rgba[at + static_cast<std::size_t>(plane)], image.rgba[at + 3]);
            }
            ASSERT_NEAR(image.rgba[at + 3], as + ab - as * ab / 255, 0.500001);
        }
    }
}

/// Four tiles, of which the last ones reach over the edge: none, transparent, opaque, or noise.
LayerPixels noise(int resolution, std::mt19937& random) {
    LayerPixels pixels(resolution);
    unsigned kinds = static_cast<unsigned>(random());
    for (int tile = 0; tile < 4; ++tile, kinds /= 4) {
        if (kinds % 4 == 0) {
            continue;
        }
        int const left = tile % 2 * PixelTile::edge, top = tile / 2 * PixelTile::edge;
        PixelTile& texels = pixels.writableTile(tile % 2, tile / 2);
        for (int i = 0; i < PixelTile::texels; ++i) {
            auto const bits = static_cast<std::uint32_t>(random());
            bool const isInside =
                left + i % PixelTile::edge < resolution && top + i / PixelTile::edge < resolution;
            unsigned const alpha =
                isInside && kinds % 4 != 1 ? (kinds % 4 == 2 ? 255u : bits & 255u) : 0u;
            texels.planes[3][i] = static_cast<std::uint8_t>(alpha);
            for (int plane = 0; plane < 3; ++plane) {
                texels.planes[plane][i] =
                    static_cast<std::uint8_t>((bits >> (8 * plane + 8) & 255u) * alpha / 255u);
            }
        }
    }
    return pixels;
}

// Random layers of all modes that whole numbers can tell, with backgrounds, hidden and deleted
// ones, against a loop over texels. The last round is big enough to be shared between threads.
TEST_F(BlendModesTest, compositeLikeALoopOverTexels) {
    std::mt19937 random(7);
    auto const below = [&](unsigned n) { return static_cast<int>(random() % n); };
    for (int round = 0; round < 8; ++round) {
        int const resolution = round < 7 ? 100 : 1000;
        std::vector<LayerPixels> layers;
        for (int l = 0; l < 9; ++l) {
            layers.push_back(noise(resolution, random));
        }
        nyx::SurfaceId const id = add(resolution, layers);
        for (std::uint32_t l = 0; l < layers.size(); ++l) {
            Mode const exact[] = {Mode::Normal,    Mode::Multiply,   Mode::Screen,   Mode::Overlay,
                                  Mode::Add,       Mode::Subtract,   Mode::Darken,   Mode::Lighten,
                                  Mode::HardLight, Mode::Difference, Mode::Exclusion};
            surface(id).set_layer_blend_mode(l, exact[below(11)]);
            surface(id).set_layer_visible(l, below(6) != 0);
            surface(id).set_layer_deleted(l, below(6) == 0);
            if (below(3) == 0) {
                surface(id).set_layer_background(
                    l, {0.2158605f, 0.6038273f, 1, below(2) == 0 ? 1 : 0.6f});
            }
        }
        auto const info = renderer.painting().surface(id).value();
        Image const image = renderer.painting().composite(id);
        ASSERT_EQ(image.rgba.size(), static_cast<std::size_t>(resolution * resolution * 4));
        auto const nearest = [](double v) { return std::floor(v + 0.5); };
        for (int i = 0; i < resolution * resolution; i += round < 7 ? 1 : 101) {
            double sum[4] = {};
            for (std::size_t l = 0; l < layers.size(); ++l) {
                if (!info.layers[l].visible || info.layers[l].deleted) {
                    continue;
                }
                auto const top = layers[l].texel(i % resolution, i / resolution);
                auto const& ground = info.layers[l].background;
                double const ga = nearest(ground.a * 255.0);
                double const straight[] = {128 / 255.0, 204 / 255.0, 1, 1}; // in sRGB
                double over[4];
                for (std::size_t p = 0; p < 4; ++p) {
                    double const g = nearest(nearest(straight[p] * 255) * ga / 255);
                    over[p] = nearest(top[p] + g * (1 - top[3] / 255.0));
                }
                double const ab = sum[3], as = over[3];
                for (std::size_t p = 0; p < 3; ++p) {
                    sum[p] =
                        nearest(composited(info.layers[l].mode, sum[p], ab, over[p], as) + 1e-9);
                }
                sum[3] = nearest(as + ab - as * ab / 255);
            }
            for (std::size_t p = 0; p < 4; ++p) {
                ASSERT_EQ(image.rgba[static_cast<std::size_t>(i) * 4 + p], sum[p])
                    << "round " << round << " texel " << i << " plane " << p;
            }
        }
    }
}

} // namespace
