#include "painting/ZPainter.h"

#include "painting/PaintScene.h"
#include "painting/ZPainterManager.h"
#include "zsg/painting/IPainterBrush.h"

#include "nyxrender/nyxCustomSurface.h"
#include "nyxrender/nyxPainter.h"

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

// What a scene that was replaced had stays known, and can be edited, but paints nothing.
TEST_F(ZPainterTest, keepsSurfacesThatTheRendererNoLongerHas) {
    nyx::SurfaceId const id = addSurface({"A"});
    IPainterSurface& gone = surface(id);
    ASSERT_EQ(renderer.loadSceneText(R"({"format": "zsg-scene", "version": 1, "surfaces":
                                         [{"id": 5, "resolution": 8, "layers": []}]})"),
              "");
    painter().reload();
    EXPECT_EQ(known(), "1 5");
    EXPECT_EQ(painter().surface(id), &gone);
    gone.addLayer(0);
    gone.setLayerVisibility(1, false);
    undo.undo();
    queue.waitIdle();
    EXPECT_EQ(list(gone), "*Layer 1 A");
    EXPECT_FALSE(renderer.painting().surface(id));
    EXPECT_FALSE(painter().changeResolution(id, 32));
    EXPECT_EQ(list(surface(painter().createSurface(64, id))), "*Layer 1 A") << "still a source";
}

// A painter that makes its surfaces otherwise is asked for copies too.
TEST_F(ZPainterTest, makesCopiesByItsVirtualOperation) {
    struct Doubling : ZPainter {
        using ZPainter::createSurface;
        using ZPainter::ZPainter;
        nyx::SurfaceId createSurface(int resolution) override {
            return ZPainter::createSurface(2 * resolution);
        }
    };
    nyx::SurfaceId const id = addSurface({"A", "B"});
    nyxPainter_factory& factory = *nyx_painter_factory(scene());
    Doubling doubling(factory.create("svdag_painter"), api(), nullptr, nullptr, nullptr);
    IPainter& asInterface = doubling;
    nyx::SurfaceId const copy = asInterface.createSurface(16, id);
    EXPECT_EQ(renderer.painting().surface(copy)->resolution, 32);
    EXPECT_EQ(asInterface.surface(copy)->layers().size(), 2u);
}

TEST_F(ZPainterTest, handsOutBrushes) {
    IPainterManager& manager = *root().painterManager();
    auto const made = manager.createBrush(20, nyx::MaterialId(7));
    ASSERT_NE(made->brushNode(), nullptr);
    EXPECT_EQ(made->materialId(), nyx::MaterialId(7));
    EXPECT_EQ(made->parameter("basic_size_world_value").value<float>(), 1.0f);
    made->parameter("basic_rotation").setValue(30.0f);
    made->parameter("basic_hardness_percent").setValue(10.0f);
    made->applyToNode();
    auto const loaded = manager.loadBrush(made->brushNode(), nyx::MaterialId(8));
    EXPECT_EQ(loaded->brushNode(), made->brushNode());
    EXPECT_EQ(loaded->materialId(), nyx::MaterialId(8));
    EXPECT_EQ(loaded->rotation(), 30.0f) << "of the nodes, which both share";
    EXPECT_EQ(loaded->parameter("basic_hardness_percent").value<float>(), 60.0f) << "not read";
    EXPECT_EQ(manager.loadBrush(nullptr, {})->brushNode(), nullptr);
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
    EXPECT_EQ(root().painterManager()->createBrush(20, {})->brushNode(), nullptr);
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
