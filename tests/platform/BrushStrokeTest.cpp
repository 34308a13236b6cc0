#include "nyxembedded/BrushStroke.h"

#include "nyxembedded/GrowingStroke.h"
#include "nyxembedded/LayerPixels.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace nyx::embedded {
namespace {

BrushSettings pixelBrush(float diameter) {
    BrushSettings brush;
    brush.pixels = true;
    brush.sizePixels.value = diameter;
    brush.color = {1, 0.2158605f, 0}; // 128 in sRGB
    return brush;
}

BrushStroke strokeAlong(std::vector<BrushStroke::Point> points) {
    BrushStroke stroke;
    stroke.points = std::move(points);
    return stroke;
}

TEST(BrushStroke, ADabIsASmoothDisc) {
    struct Row {
        float diameter, hardness, x, y; // centres on the grid that dabs of that size keep to
    };
    for (auto const [diameter, hardness, x, y] :
         {Row{0.5f, 1, 20.0625f, 20.0625f}, Row{9, 0, 20.4375f, 30.9375f},
          Row{40, 0.5f, 64.125f, 60.875f}, Row{120, 1, 50.25f, 3.75f},
          Row{300, 0.25f, 64.5f, 127.5f}, Row{40, 0.9f, 0.125f, 128.125f}}) {
        BrushSettings brush = pixelBrush(diameter);
        brush.hardness = hardness;
        LayerPixels pixels(128);
        EXPECT_EQ(paintBrushStroke(pixels, brush, strokeAlong({{x, y}})), 1u);
        float const radius = diameter / 2;
        float const inner = std::min(hardness * radius, radius - 0.5f);
        float const outer = std::max(radius, inner + 1);
        for (int row = 0; row < 128; ++row) {
            for (int column = 0; column < 128; ++column) {
                float const distance = std::hypot(static_cast<float>(column) + 0.5f - x,
                                                  static_cast<float>(row) + 0.5f - y);
                float const t = std::clamp((outer - distance) / (outer - inner), 0.0f, 1.0f);
                float const alpha = 255 * t * t * (3 - 2 * t);
                auto const texel = pixels.texel(column, row);
                ASSERT_NEAR(texel[3], alpha, 0.51f) << diameter << ' ' << column << ' ' << row;
                ASSERT_NEAR(texel[0], alpha, 0.51f);
                ASSERT_NEAR(texel[1], alpha * 128 / 255, 0.51f);
                ASSERT_EQ(texel[2], 0);
            }
        }
    }
}

TEST(BrushStroke, FlowAddsUpToTheOpacityAndNoFurther) {
    for (float const flow : {0.003f, 0.1f, 0.5f, 1.0f}) {
        for (float const opacity : {0.25f, 1.0f}) {
            for (int const dabs : {1, 2, 5, 300}) {
                BrushSettings brush = pixelBrush(20);
                brush.hardness = 1;
                brush.flow.value = flow;
                brush.opacity = opacity;
                brush.alpha = 0.8f;
                brush.stamp = true;
                LayerPixels pixels(64);
                std::vector<BrushStroke::Point> const points(static_cast<std::size_t>(dabs),
                                                             {30, 30});
                paintBrushStroke(pixels, brush, strokeAlong(points));
                float const expected =
                    255 * 0.8f * opacity * (1 - std::pow(1 - flow, static_cast<float>(dabs)));
                EXPECT_NEAR(pixels.texel(30, 30)[3], expected, 1.5f)
                    << flow << ' ' << opacity << ' ' << dabs;
            }
        }
    }
}

TEST(BrushStroke, LiesOverWhatIsThere) {
    BrushSettings brush = pixelBrush(20);
    LayerPixels pixels(64);
    paintBrushStroke(pixels, brush, strokeAlong({{30, 30}}));
    brush.color = {0, 0, 1};
    brush.opacity = 0.5f;
    paintBrushStroke(pixels, brush, strokeAlong({{30, 30}}));
    using Texel = std::array<std::uint8_t, 4>;
    EXPECT_EQ(pixels.texel(30, 30), (Texel{127, 64, 128, 255}));
    EXPECT_EQ(pixels.tileCount(), 1u) << "tiles are made only where there is paint";
}

TEST(BrushStroke, SpacesItsDabsInThreeUnits) {
    BrushSettings brush = pixelBrush(20);
    brush.spacingPercent = 50;
    brush.spacingPixels = 4;
    brush.sizeWorld.value = 2;
    brush.spacingWorld = 0.5f;
    BrushStroke line = strokeAlong({{10, 10}, {110, 10}});
    line.texelsPerUnit = 5;
    LayerPixels pixels(128);
    auto const dabs = [&] { return paintBrushStroke(pixels, brush, line); };
    EXPECT_EQ(dabs(), 11u); // every 10 texels
    brush.pixels = false;
    EXPECT_EQ(dabs(), 21u); // 2 units are 10 texels, half of that
    brush.adaptiveSpacing = false;
    EXPECT_EQ(dabs(), 41u); // half a unit is 2.5 texels
    brush.pixels = true;
    EXPECT_EQ(dabs(), 26u); // 4 texels
    // Where a line is given by more points, the dabs stay where they are.
    LayerPixels whole(128), parts(128);
    paintBrushStroke(whole, brush, line);
    line.points = {{10, 10}, {11, 10}, {11, 10}, {60, 10}, {61.5f, 10}, {110, 10}};
    paintBrushStroke(parts, brush, line);
    EXPECT_TRUE(whole == parts);
    brush.stamp = true;
    EXPECT_EQ(dabs(), 6u);
}

TEST(BrushStroke, PressureScalesWhatItShall) {
    BrushSettings brush = pixelBrush(40);
    brush.hardness = 1;
    brush.stamp = true;
    auto const paint = [&](int bits, float pressure) {
        brush.penPressure = bits;
        LayerPixels pixels(64);
        paintBrushStroke(pixels, brush, strokeAlong({{32.1f, 32.1f, pressure}}));
        return pixels;
    };
    EXPECT_EQ(paint(0, 0.5f).texel(48, 32)[3], 255);
    EXPECT_EQ(paint(BrushSettings::SizePressure, 0.5f).texel(48, 32)[3], 0);
    EXPECT_EQ(paint(BrushSettings::SizePressure, 0.5f).texel(38, 32)[3], 255);
    EXPECT_EQ(paint(BrushSettings::FlowPressure, 0.5f).texel(48, 32)[3], 128);
    EXPECT_EQ(paint(BrushSettings::OpacityPressure, 0.25f).texel(48, 32)[3], 64);
    EXPECT_EQ(paint(3, 0.5f).texel(48, 32)[3], 64);
    EXPECT_EQ(paint(7, 0).tileCount(), 0u);
    EXPECT_TRUE(paint(7, 9) == paint(7, 1));
}

TEST(BrushStroke, JittersAreTheSeedsAndOnlyEverLessen) {
    BrushSettings brush = pixelBrush(10);
    brush.sizePixels.jitter = 1;
    brush.flow.jitter = 1;
    BrushStroke line = strokeAlong({{10, 64}, {118, 64}});
    auto const paint = [&] {
        LayerPixels pixels(128);
        paintBrushStroke(pixels, brush, line);
        return pixels;
    };
    LayerPixels const first = paint();
    EXPECT_TRUE(paint() == first);
    line.seed = 2;
    EXPECT_FALSE(paint() == first);
    brush.sizePixels.jitter = 0;
    brush.flow.jitter = 0;
    LayerPixels const full = paint();
    for (int x = 0; x < 128; ++x) {
        ASSERT_LE(first.texel(x, 64)[3], full.texel(x, 64)[3] + 1);
    }
}

TEST(BrushStroke, GrowsInPortionsToWhatItIsAtOnce) {
    std::mt19937 random(7);
    auto const part = [&random](float of) {
        return of * static_cast<float>(random() % 1000) / 1000;
    };
    for (int bits = 0; bits < 8; ++bits) {
        BrushSettings brush = pixelBrush(18);
        brush.directional = (bits & 1) != 0;
        brush.stamp = (bits & 2) != 0;
        brush.flow = {0.4f, (bits & 4) != 0 ? 0.5f : 0.0f};
        brush.sizePixels.jitter = brush.rotationJitter = brush.flow.jitter;
        brush.penPressure = BrushSettings::SizePressure | BrushSettings::FlowPressure;
        LayerPixels before(200);
        paintBrushStroke(before, pixelBrush(50), strokeAlong({{20, 20}, {180, 150}}));
        GrowingStroke growing(before, brush, GrowingStroke::Ink::Paint, 1, 9);
        BrushStroke whole;
        whole.seed = 9;
        std::vector<BrushStroke::Point> portion;
        for (int i = 0; i < 60; ++i) {
            portion.push_back({part(200), part(200), part(1)});
            whole.points.push_back(portion.back());
            if (random() % 4 == 0) {
                growing.add(portion);
                portion.clear();
            }
        }
        growing.add(portion);
        growing.end();
        LayerPixels atOnce = before;
        paintBrushStroke(atOnce, brush, whole);
        EXPECT_TRUE(growing.pixels() == atOnce) << bits;
        EXPECT_TRUE(growing.before() == before);
    }
    // A dab shows at once, and the tiles that it does not touch are those of before.
    LayerPixels blank(200);
    blank.writableTile(3, 3).planes[PixelTile::alpha][0] = 255;
    GrowingStroke dot(blank, pixelBrush(10));
    dot.add({{10, 10}});
    EXPECT_EQ(dot.pixels().texel(10, 10)[3], 255);
    EXPECT_TRUE(dot.pixels().tile(3, 3) == blank.tile(3, 3));
    EXPECT_EQ(dot.pixels().tileCount(), 2u);

    // Erasing takes away what painting gives, and makes no tiles.
    BrushSettings half = pixelBrush(10);
    half.opacity = 0.5f;
    GrowingStroke erasing(dot.pixels(), half, GrowingStroke::Ink::Erase);
    erasing.add({{10, 10}, {190, 10}});
    EXPECT_EQ(erasing.pixels().texel(10, 10), (std::array<std::uint8_t, 4>{127, 64, 0, 127}));
    EXPECT_EQ(erasing.pixels().tileCount(), 2u);
}

TEST(BrushStroke, OddNumbersEndWell) {
    constexpr float inf = std::numeric_limits<float>::infinity();
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    LayerPixels pixels(70);
    for (float const value : {0.0f, -5.0f, 1e-30f, 1e30f, 3e38f, inf, -inf, nan}) {
        for (float BrushSettings::*const member :
             {&BrushSettings::spacingPercent, &BrushSettings::hardness, &BrushSettings::opacity,
              &BrushSettings::rotation, &BrushSettings::rotationJitter}) {
            BrushSettings brush = pixelBrush(8);
            brush.*member = value;
            paintBrushStroke(pixels, brush, strokeAlong({{5, 5}, {70, 80}}));
        }
        BrushSettings brush = pixelBrush(std::min(value, 100.0f));
        brush.flow.value = value;
        brush.sizePixels.jitter = value;
        BrushStroke stroke = strokeAlong({{value, 5, value}, {5, value, value}, {60, 60, value}});
        stroke.texelsPerUnit = value;
        EXPECT_LE(paintBrushStroke(pixels, brush, stroke), 1'000'000u);
        brush.pixels = false;
        paintBrushStroke(pixels, brush, stroke);
    }
    EXPECT_EQ(pixels.texel(69, 69)[3] + pixels.texel(70, 70)[3], pixels.texel(69, 69)[3]);
    EXPECT_EQ(paintBrushStroke(pixels, pixelBrush(8), {}), 0u);
    LayerPixels none(0);
    paintBrushStroke(none, pixelBrush(8), strokeAlong({{0, 0}, {9, 9}}));
}

} // namespace
} // namespace nyx::embedded
