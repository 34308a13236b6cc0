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

namespace {

using namespace nyx::embedded;

Stroke dot(float x, float y, float radius, nyxColor_rgba color = {1, 0, 0, 1}) {
    return {{{x, y}}, radius, 1, color};
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
TEST_F(PaintCommandTest, saysThatAnotherResolutionHasLostWhatItKept) {
    undo.push(command(dot(30, 30, 10)).release());
    undo.push(command(dot(60, 60, 10)).release());
    EXPECT_TRUE(undo.undo());
    queue.waitIdle();
    nyxPainter* const painter = nyx_painter_factory(renderer.scene())->create("svdag_painter");
    ASSERT_TRUE(painter->change_resolution(renderer.scene(), id, 128));
    LayerPixels const before = pixels();
    EXPECT_FALSE(undo.redo());
    EXPECT_FALSE(undo.goTo(0));
    EXPECT_TRUE(pixels() == before);
}

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
