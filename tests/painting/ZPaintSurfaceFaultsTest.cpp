// What becomes of edits where something that they need is not there, or refuses.
#include "painting/PaintScene.h"

#include <gtest/gtest.h>

#include <initializer_list>

using namespace zsg;

namespace {

class ZPaintSurfaceFaultsTest : public PaintScene {};

constexpr nyxColor_rgba red{1, 0, 0, 0.5f};

TEST_F(ZPaintSurfaceFaultsTest, changesOnlyTheModelWithoutATaskQueue) {
    withTaskQueue = false;
    nyx::SurfaceId const id = addSurface({"A", "B", "C"});
    IPainterSurface& s = surface(id);
    EXPECT_EQ(trace([&] {
                  s.addLayer(3);
                  s.setLayerDeleted(0, true);
                  s.setLayerBlend(1, nyx::ColorBlendMode::Multiply);
                  s.setLayerVisibility(1, false);
                  s.moveLayer(1, 2);
                  EXPECT_TRUE(s.setLayerBackgroundColor(1, red, true));
                  s.setEditLayer(2);
              }),
              "");
    EXPECT_EQ(list(s), "-A C *~B Layer 1");
    EXPECT_EQ(s.layers()[2].blend_mode, nyx::ColorBlendMode::Multiply);
    EXPECT_EQ(s.layers()[1].background.a, 0.5f);
    EXPECT_EQ(undo.count(), 6);
    EXPECT_EQ(trace([&] { s.setLayerName(1, QStringLiteral("c")); }),
              "set_layer_name 1 2 \"c\"; event 1");
}

TEST_F(ZPaintSurfaceFaultsTest, editsWithoutUndoStack) {
    withUndoStack = false;
    IPainterSurface& s = surface(addSurface({"A", "B"}));
    s.addLayer(0);
    s.moveLayer(0, 2);
    s.setLayerVisibility(1, false);
    EXPECT_EQ(list(s), "*A ~B Layer 1");
}

/// An edit, and what becomes of it.
struct Attempt {
    std::function<void(IPainterSurface&)> edit;
    std::string outcome;
};

// There is nowhere to keep a name then; everything else is as ever.
TEST_F(ZPaintSurfaceFaultsTest, editsWithoutAScene) {
    std::string const one = "queued; refresh 0; event 1; task: ";
    nyx::SurfaceId const id = addSurface({"A", "B"});
    IPainterSurface& s = surface(id);
    renderer.faults().noScene = true;
    for (Attempt const& row : std::initializer_list<Attempt>{
             {[](auto& t) { t.setLayerName(0, QStringLiteral("lost")); }, ""},
             {[](auto& t) { t.setLayerName(0, QString()); }, "set_layer_name 1 1 null; event 1"},
             {[](auto& t) { t.addLayer(2); },
              "queued; event 1; queued; queued; refresh 0; event 1; task: add_layer 1 0 3, "
              "set_edit_layer 1 0, set_layer_name 1 0 \"\"; task: set_layer_deleted 1 0 false; "
              "task: set_edit_layer 1 0"},
             {[](auto& t) { t.setLayerDeleted(1, true); },
              "queued; queued; refresh 0; event 1; task: set_layer_deleted 1 1 true; "
              "task: set_edit_layer 1 2"},
             {[](auto& t) { t.setLayerBlend(0, nyx::ColorBlendMode::Add); },
              one + "set_layer_blend_mode 1 2 4"},
             {[](auto& t) { t.setLayerVisibility(0, false); }, one + "set_layer_visible 1 2 false"},
             {[](auto& t) { t.moveLayer(0, 2); }, one + "move_layer 1 2 0"},
             {[](auto& t) { t.setLayerBackgroundColor(0, red, true); },
              one + "set_layer_background 1 2 1 0 0 0.5"},
         }) {
        EXPECT_EQ(trace([&] { row.edit(s); }), row.outcome);
    }
    renderer.faults().noScene = false;
    EXPECT_EQ(list(s), "*-B  ~");
    EXPECT_EQ(rendererList(id), list(s));
    EXPECT_EQ(undo.count(), 8);
}

// The stack is running a rename, and a listener makes another edit.
TEST_F(ZPaintSurfaceFaultsTest, leavesNothingOfWhatTheUndoStackRefuses) {
    nyx::SurfaceId const id = addSurface({"A", "C"});
    IPainterSurface& s = surface(id);
    for (Attempt const& row : std::initializer_list<Attempt>{
             {[](auto& t) { t.setLayerDeleted(0, true); }, "*B C"},
             {[](auto& t) { t.setLayerBlend(0, nyx::ColorBlendMode::Add); }, "*B C"},
             {[](auto& t) { t.setLayerVisibility(0, false); }, "*B C"},
             {[](auto& t) { t.setLayerName(0, QStringLiteral("D")); }, "*B C"},
             {[](auto& t) { t.moveLayer(0, 1); }, "*B C"},
             {[](auto& t) { EXPECT_TRUE(t.setLayerBackgroundColor(0, red, true)); }, "*B C"},
             {[](auto& t) { t.addLayer(0); }, "-Layer 1 *B C"}, // inserted before it is pushed
         }) {
        onPainted = [&] { row.edit(s); };
        s.setLayerName(0, QStringLiteral("B"));
        EXPECT_EQ(list(s), row.outcome);
        EXPECT_EQ(s.layers()[0].blend_mode, nyx::ColorBlendMode::Normal);
        EXPECT_EQ(s.layers()[0].background, nyxColor_rgba());
    }
    EXPECT_EQ(undo.count(), 7) << "the renames";
    queue.waitIdle();
    EXPECT_EQ(rendererList(id), list(s));
}

} // namespace
