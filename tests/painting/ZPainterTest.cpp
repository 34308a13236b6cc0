#include "painting/ZPainter.h"

#include "nyxrender/nyxCustomSurface.h"
#include "nyxrender/nyxPainter.h"
#include "painting/PaintScene.h"
#include "painting/ZPainterManager.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace zsg;

namespace {

class ZPainterTest : public PaintScene {
protected:
    std::string known() {
        std::string ids;
        for (IPainterSurface* const s : painter().surfaces()) {
            ids += (ids.empty() ? "" : " ") + std::to_string(s->id().toUint());
        }
        return ids;
    }
};

TEST_F(ZPainterTest, findsMakesAndReloadsSurfaces) {
    addSurface({"A"});
    addSurface({"B"});
    EXPECT_EQ(known(), "1 2");
    nyx::SurfaceId const later = renderer.painting().addSurface("", 16);
    EXPECT_EQ(painter().surface(later), nullptr);
    IPainterSurface* const first = painter().surface(nyx::SurfaceId(1));
    EXPECT_EQ(trace([&] { painter().reload(); }), "painter_surfaces");
    EXPECT_EQ(known(), "1 2 3");
    painter().reload();
    EXPECT_EQ(known(), "1 2 3");
    EXPECT_EQ(painter().surface(nyx::SurfaceId(1)), first) << "known ones are left alone";
    painter().surfaces().clear();
    EXPECT_EQ(painter().surfaces().size(), 3u) << "a copy";

    nyx::SurfaceId made;
    EXPECT_EQ(trace([&] { made = painter().createSurface(256); }), "create_surface \"\" 256");
    EXPECT_EQ(made.toUint(), 4u);
    EXPECT_EQ(list(surface(made)), "*") << "one layer without a name";
    EXPECT_EQ(renderer.painting().surface(made)->resolution, 256);
    EXPECT_EQ(trace([&] { EXPECT_TRUE(painter().changeResolution(made, 128)); }),
              "change_resolution 4 128");
    EXPECT_EQ(renderer.painting().surface(made)->resolution, 128);
    EXPECT_FALSE(painter().changeResolution(nyx::SurfaceId(9), 128));
    EXPECT_FALSE(painter().changeResolution(made, 0));
    EXPECT_FALSE(painter().changeResolution(made, 0xFFFFFFFF));

    std::vector<unsigned char> pixels(16, 7);
    painter().preview(nullptr, 2, 2, pixels.data());
    EXPECT_TRUE(std::all_of(pixels.begin(), pixels.end(), [](auto p) { return p == 7; }));
    ZPainter const copy(dynamic_cast<ZPainter&>(painter()));
    EXPECT_EQ(copy.surface(made), painter().surface(made));
}

TEST_F(ZPainterTest, copiesTheStructureOfLayers) {
    nyx::SurfaceId const id = addSurface({"Top", "", "Low"});
    IPainterSurface& source = surface(id);
    source.setLayerBlend(0, nyx::ColorBlendMode::Overlay);
    source.setLayerVisibility(1, false);
    source.setLayerBackgroundColor(2, {1, 0.5f, 0.25f, 1}, true);
    source.setLayerDeleted(2, true);
    int const entries = undo.count();
    EXPECT_EQ(
        trace([&] { EXPECT_EQ(painter().createSurface(64, id).toUint(), 2u); }),
        "create_surface \"\" 64; set_layer_blend_mode 2 0 0; set_layer_deleted 2 0 true; "
        "set_layer_visible 2 0 true; set_layer_name 2 0 \"Low\"; "
        "set_layer_background 2 0 1 0.5 0.25 1; add_layer 2 1 2; set_layer_blend_mode 2 1 0; "
        "set_layer_deleted 2 1 false; set_layer_visible 2 1 false; set_layer_name 2 1 null; "
        "set_layer_background 2 1 0 0 0 0; add_layer 2 2 3; set_layer_blend_mode 2 2 3; "
        "set_layer_deleted 2 2 false; set_layer_visible 2 2 true; set_layer_name 2 2 \"Top\"; "
        "set_layer_background 2 2 0 0 0 0");
    EXPECT_EQ(undo.count(), entries);
    IPainterSurface& copy = surface(nyx::SurfaceId(2));
    EXPECT_EQ(list(copy), "*Top ~ -Low") << "the edit layer is the renderer's number";
    EXPECT_EQ(copy.layers()[0].blend_mode, nyx::ColorBlendMode::Overlay);
    copy.addLayer(0);
    EXPECT_EQ(copy.layers()[0].id, 4u);

    EXPECT_EQ(list(surface(painter().createSurface(64, {}))), "*");
    EXPECT_EQ(list(surface(painter().createSurface(64, nyx::SurfaceId(77)))), "*");
}

TEST_F(ZPainterTest, releasesItsPainterTwiceAndHitsNoOther) {
    std::string const released = trace([&] {
        root();
        endRoot();
    });
    EXPECT_EQ(released, "release_painter; release_painter");
    root();
    EXPECT_EQ(renderer.ledger().painters, 1u);
    nyxPainter* const mine = painter().painter();
    endRoot();
    nyxPainter_factory& factory = *nyx_painter_factory(scene());
    nyxPainter* const other = factory.create("svdag_painter");
    EXPECT_NE(other, mine);
    factory.release(mine);
    EXPECT_EQ(renderer.ledger().painters, 1u);
    EXPECT_FALSE(mine->create_surface("", 64).isValid()) << "released ones do nothing";
    factory.release(other);
    factory.release(nullptr);
    EXPECT_EQ(factory.create("other"), nullptr);
    EXPECT_EQ(factory.create(nullptr), nullptr);
    EXPECT_EQ(renderer.ledger().painters, 0u);
}

TEST_F(ZPainterTest, livesWithRendererFaults) {
    addSurface({"A"});
    renderer.faults().noPainter = true;
    EXPECT_EQ(painter().painter(), nullptr);
    EXPECT_EQ(known(), "");
    painter().reload();
    EXPECT_FALSE(painter().createSurface(64).isValid());
    EXPECT_FALSE(painter().createSurface(64, nyx::SurfaceId(1)).isValid());
    EXPECT_FALSE(painter().changeResolution(nyx::SurfaceId(1), 32));
    endRoot();

    renderer.faults().noPainter = false;
    renderer.faults().noScene = true;
    EXPECT_EQ(painter().painter(), nullptr);
    endRoot();
    renderer.faults().noScene = false;

    renderer.faults().failCreations = 1;
    EXPECT_FALSE(painter().createSurface(64, nyx::SurfaceId(1)).isValid());
    EXPECT_FALSE(painter().createSurface(0).isValid());
    EXPECT_EQ(known(), "1");
    renderer.faults().noScene = true;
    endRoot(); // the factory is gone; the painter stays unreleased
    renderer.faults().noScene = false;
    EXPECT_EQ(renderer.ledger().painters, 1u);

    ZPainterManager bare(nullptr, nullptr, nullptr, nullptr);
    EXPECT_TRUE(bare.painter()->surfaces().empty());
}

} // namespace
