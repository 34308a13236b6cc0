#include "nyxembedded/LayerPixels.h"

#include "nyxembedded/PixelTile.h"
#include "nyxembedded/Stroke.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <random>

namespace {

using namespace nyx::embedded;

Stroke dot(float x, float y, float radius, nyxColor_rgba color = {1, 0, 0, 1}) {
    return {{{x, y}}, radius, 1, color};
}

TEST(LayerPixelsTest, sharesTilesUntilOneSideWrites) {
    LayerPixels pixels(200);
    EXPECT_EQ(pixels.tilesAcross(), 4);
    EXPECT_EQ(pixels.tileCount(), 0u);
    paintStroke(pixels, dot(64, 64, 10)); // on four tiles
    EXPECT_EQ(pixels.tileCount(), 4u);
    LayerPixels const snapshot = pixels;
    EXPECT_TRUE(snapshot.tile(0, 0) == pixels.tile(0, 0));
    paintStroke(pixels, dot(20, 20, 5, {0, 0, 1, 1}));
    EXPECT_FALSE(snapshot.tile(0, 0) == pixels.tile(0, 0));
    EXPECT_TRUE(snapshot.tile(1, 1) == pixels.tile(1, 1)) << "untouched ones stay shared";
    EXPECT_EQ(snapshot.texel(20, 20)[3], 0);
    EXPECT_EQ(pixels.texel(20, 20), (std::array<std::uint8_t, 4>{0, 0, 255, 255}));
    EXPECT_FALSE(snapshot == pixels);
    pixels.setTile(0, 0, snapshot.tile(0, 0));
    EXPECT_TRUE(snapshot == pixels);
    pixels.setTile(3, 3, TileHandle(PixelTile()));
    EXPECT_TRUE(snapshot == pixels) << "a transparent tile is as good as none";
    EXPECT_EQ(pixels.texel(-1, 0)[3] + pixels.texel(0, 200)[3], 0);
}

// Every texel is the mean of the source under a tent, at least a texel wide to each side.
TEST(LayerPixelsTest, isResampledLikeALoopOverTexels) {
    constexpr int from = 70;
    LayerPixels pixels(from);
    std::mt19937 random(3);
    for (int i = 0; i < from * from; ++i) {
        int const x = i % from, y = i / from;
        if (x < 40 || y < 64) { // a tile stays out
            pixels.writableTile(x / 64, y / 64).planes[2][y % 64 * 64 + x % 64] =
                static_cast<std::uint8_t>(random());
        }
    }
    for (int const to : {1, 33, 69, 70, 71, 140, 200}) {
        LayerPixels const scaled = pixels.resampled(to);
        ASSERT_EQ(scaled.resolution(), to);
        double const reach = std::max(1.0, double{from} / to);
        auto const mean = [&](int at, auto const& source) {
            double const center = (at + 0.5) * from / to - 0.5;
            double sum = 0, weights = 0;
            for (int s = 0; s < from; ++s) {
                double const weight = std::max(0.0, 1 - std::abs(s - center) / reach);
                sum += weight == 0 ? 0 : weight * source(s);
                weights += weight;
            }
            return sum / weights;
        };
        for (int i = 0; i < to * to; i += 1 + to / 7) {
            double const exact = mean(i / to, [&](int y) {
                return mean(i % to, [&](int x) { return 1.0 * pixels.texel(x, y)[2]; });
            });
            ASSERT_NEAR(scaled.texel(i % to, i / to)[2], exact, 0.51) << to << ' ' << i;
        }
    }
    EXPECT_EQ(LayerPixels(64).resampled(128).tileCount(), 0u);
    EXPECT_EQ(pixels.resampled(0).resolution(), 0);
}

} // namespace
