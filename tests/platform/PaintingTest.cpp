#include "nyxembedded/Painting.h"

#include "painting/PaintCommand.h"

#include "nyxembedded/GrowingStroke.h"
#include "nyxembedded/RenderTaskQueue.h"
#include "nyxembedded/Renderer.h"
#include "nyxembedded/SurfacePicture.h"
#include "nyxrender/nyxCustomSurface.h"
#include "nyxrender/nyxPainter.h"
#include "zcore/ZUndoStack.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
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

TEST(StrokeTest, coversDiscsEvenlyAndSurvivesAnyNumbers) {
    LayerPixels pixels(128);
    Stroke soft = dot(64, 64, 40, {1, 0.2158605f, 0, 0.5f});
    soft.hardness = 0.5f;
    paintStroke(pixels, soft);
    EXPECT_EQ(pixels.texel(64, 64), (std::array<std::uint8_t, 4>{128, 64, 0, 128}));
    EXPECT_EQ(pixels.texel(82, 64)[3], 128) << "whole up to half of the radius";
    EXPECT_NEAR(pixels.texel(93, 64)[3], 64, 6) << "half-way down";
    EXPECT_EQ(pixels.texel(105, 64)[3], 0);
    int last = 256;
    for (int x = 64; x < 110; ++x) {
        EXPECT_LE(pixels.texel(x, 64)[3], last);
        last = pixels.texel(x, 64)[3];
    }

    LayerPixels line(128);
    paintStroke(line, {{{20, 20}, {100, 20}, {20, 20}}, 6, 1, {0, 0, 0, 0.5f}});
    for (int x = 18; x < 102; ++x) {
        EXPECT_EQ(line.texel(x, 20)[3], 128) << "overlapping dabs do not add up, " << x;
    }
    Stroke rub = dot(60, 20, 20);
    rub.erase = true;
    paintStroke(line, rub);
    EXPECT_EQ(line.texel(60, 20)[3], 0);
    EXPECT_EQ(line.texel(90, 20)[3], 128);

    LayerPixels empty(64);
    float const inf = std::numeric_limits<float>::infinity(), nan = std::nanf("");
    for (Stroke const& stroke :
         {dot(nan, 3, 5), dot(inf, 3, 5), dot(3, 3, nan), dot(3, 3, inf), dot(3, 3, -1),
          dot(500, 500, 5), dot(-1e30f, 0, 5), Stroke(), dot(3, 3, 5, {1, 1, 1, nan})}) {
        paintStroke(empty, stroke);
        EXPECT_TRUE(empty == LayerPixels(64));
    }
    paintStroke(empty, {{{0, 0}, {1e30f, 10}}, 1e6f, nan, {9, -1, nan, 1}, 0});
    EXPECT_EQ(empty.texel(5, 5), (std::array<std::uint8_t, 4>{255, 0, 0, 255}));
    for (float const far : {3e38f, -3e38f, 1e7f}) { // at the ends nothing must hang
        for (float const radius : {0.3f, 3.4e7f, 3e38f}) {
            paintStroke(empty, {{{-far, 0}, {far, 50}, {50, far}}, radius, 1, {1, 0, 0, 1}});
        }
    }
    LayerPixels none(0);
    paintStroke(none, dot(0, 0, 5));
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

class PaintCommandTest : public testing::Test {
protected:
    std::unique_ptr<example::PaintCommand> command(Stroke stroke, std::uint32_t layer = 1) {
        return std::make_unique<example::PaintCommand>(
            QStringLiteral("Paint"), painting, queue, *renderer.api(), id, layer,
            [stroke](LayerPixels& pixels) { paintStroke(pixels, stroke); });
    }
    LayerPixels pixels() {
        queue.waitIdle();
        return painting.pixels(id, 1).value();
    }

    Renderer renderer;
    Painting& painting = renderer.painting();
    nyx::SurfaceId id = renderer.painting().addSurface("", 256);
    RenderTaskQueue queue{RenderTaskQueue::Mode::Manual};
    ZUndoStack undo;
};

TEST_F(PaintCommandTest, undoPutsBackTheTilesThatAStrokeChanged) {
    auto* const first = command(dot(30, 30, 10)).release();
    undo.push(first);
    EXPECT_EQ(renderer.refreshCount(), 1u);
    EXPECT_EQ(first->bytes(), 0u) << "the render thread has not painted";
    LayerPixels const one = pixels();
    EXPECT_EQ(first->bytes(), sizeof(PixelTile)) << "no tile before, one after";
    auto* const second = command(dot(64, 30, 10, {0, 0, 1, 1})).release();
    undo.push(second);
    LayerPixels const two = pixels();
    EXPECT_FALSE(one == two);
    EXPECT_EQ(second->bytes(), 3 * sizeof(PixelTile));

    undo.undo();
    EXPECT_TRUE(pixels() == one);
    undo.undo();
    EXPECT_TRUE(pixels() == LayerPixels(256));
    undo.redo();
    undo.redo();
    EXPECT_TRUE(pixels() == two);
    EXPECT_TRUE(pixels().tile(0, 0) == two.tile(0, 0)) << "the same tiles, not painted again";
}

// A picture that is kept by parts, through all that changes what a surface looks like.
TEST_F(PaintCommandTest, strokesThatWereSeenWhileMadeAndThePictureOfAllThat) {
    undo.push(command(dot(130, 30, 10)).release());
    LayerPixels const one = pixels();
    Painting const& seen = painting;
    SurfacePicture picture(seen);
    Image shown;
    std::size_t texels = 0;
    auto const update = [&] {
        queue.waitIdle();
        SurfacePicture::Update const made = picture.update(id);
        Image const all = painting.composite(id);
        if (made.isNew) {
            shown = {made.resolution, made.resolution, {}};
            shown.rgba.resize(all.rgba.size());
        }
        texels = 0;
        for (auto const& [x, y, image] : made.parts) {
            for (int row = 0; row < image.height; ++row) {
                std::copy_n(image.rgba.begin() + row * image.width * 4, image.width * 4,
                            shown.rgba.begin() + ((y + row) * shown.width + x) * 4);
            }
            texels += image.rgba.size() / 4;
        }
        EXPECT_TRUE(shown.rgba == all.rgba);
        return made.isNew;
    };
    EXPECT_TRUE(update());
    EXPECT_FALSE(update());
    EXPECT_EQ(texels, 0u);

    BrushSettings brush;
    brush.pixels = true;
    brush.sizePixels.value = 30;
    auto const stroke = std::make_shared<GrowingStroke>(one, brush);
    stroke->add({{100, 30}, {200, 30}});
    ASSERT_TRUE(painting.setPixels(id, 1, stroke->pixels()));
    update();
    EXPECT_EQ(texels, 3u * 64 * 64) << "the tiles under the stroke";
    stroke->add({{200, 200}});
    stroke->end();
    undo.push(std::make_unique<example::PaintCommand>(
                  QStringLiteral("Paint"), painting, queue, *renderer.api(), id, 1u,
                  [stroke](LayerPixels& pixels) { pixels = stroke->pixels(); },
                  [stroke] { return stroke->before(); })
                  .release());
    update();
    undo.undo();
    EXPECT_TRUE(pixels() == one);
    update();
    EXPECT_EQ(texels, 9u * 64 * 64);
    undo.redo();
    EXPECT_TRUE(pixels() == stroke->pixels());
    update();

    nyxCustomSurface* const surface =
        nyx_painter_factory(renderer.scene())->create("svdag_painter")->surface(id);
    surface->add_layer(1, 2);
    update();
    surface->set_layer_background(1, {0, 1, 0, 0.5f});
    update();
    EXPECT_EQ(texels, 256u * 256);
    painting.paint(id, 2, dot(250, 250, 4));
    update();
    EXPECT_EQ(texels, 64u * 64);
    surface->set_layer_blend_mode(1, nyx::ColorBlendMode::Multiply);
    surface->move_layer(0, 1);
    update();
    surface->set_layer_visible(1, false);
    update();
    id = painting.addSurface("", 100); // an edge that no tile ends at
    painting.paint(id, 1, dot(99, 99, 4));
    EXPECT_TRUE(update());
    id = nyx::SurfaceId(77);
    EXPECT_TRUE(update());
}

TEST_F(PaintCommandTest, taskOutlivesItsCommandAndRespectsChanges) {
    undo.push(command(dot(30, 30, 10)).release());
    undo.clear();
    EXPECT_EQ(pixels().texel(30, 30)[0], 255) << "it was queued";
    undo.push(command(dot(30, 30, 10, {0, 1, 0, 1})).release());
    queue.waitIdle();
    undo.push(command(dot(9, 9, 3), 77).release()); // no such layer
    EXPECT_TRUE(undo.undo());
    LayerPixels const before = pixels();
    EXPECT_FALSE(painting.setPixels(id, 1, LayerPixels(128))) << "another resolution";
    EXPECT_FALSE(painting.setPixels(nyx::SurfaceId(9), 1, LayerPixels(256)));
    EXPECT_FALSE(painting.paint(id, 9, dot(1, 1, 1)));
    EXPECT_FALSE(painting.pixels(id, 9).has_value());
    EXPECT_TRUE(painting.composite(nyx::SurfaceId(9)).rgba.empty());
    EXPECT_TRUE(pixels() == before);
    EXPECT_GT(painting.surface(id)->ignoredCalls, 0u);

    ASSERT_TRUE(renderer.loadSceneText(renderer.saveSceneText()).empty());
    undo.undo(); // the surface is another one now, or gone
    queue.waitIdle();
}

} // namespace
