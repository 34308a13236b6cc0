#include "painting/ZPaintSurface.h"

#include "painting/PaintScene.h"

#include "nyxrender/nyxCustomSurface.h"

#include <QCoreApplication>
#include <QTranslator>
#include <gtest/gtest.h>

using namespace zsg;

namespace {

class ZPaintSurfaceTest : public PaintScene {};

constexpr nyxColor_rgba red{1, 0, 0, 0.5f};

/// Shows every text behind its context; the names of new layers stay as they are.
class Contexts : public QTranslator {
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(char const* context, char const* source, char const*,
                                    int) const override {
        return qstrcmp(context, "QObject") == 0 ? QString() : QString(context) + ": " + source;
    }
};

// One block of text: what each edit, its undo and its redo queue, call and announce.
TEST_F(ZPaintSurfaceTest, tellsRendererAndListenersOfEachEditInOrder) {
    Contexts contexts;
    QCoreApplication::installTranslator(&contexts);
    nyx::SurfaceId const id = addSurface({"Top", "Mid", "Low"});
    IPainterSurface& s = surface(id);
    struct Row {
        std::function<void()> edit;
        std::string text;
        std::string done, undone;
        std::string before{}; ///< what only the first time does
    };
    std::string const toggled = "queued; queued; refresh 0; event 1; ";
    std::string const one = "queued; refresh 0; event 1; task: set_layer_";
    std::string const moved = "queued; refresh 0; event 1; task: move_layer ";
    std::vector<Row> const rows = {
        {[&] { s.addLayer(1); }, "ZAddLayerCommand: 3D Paint add layer",
         "task: set_layer_deleted 1 2 false; task: set_edit_layer 1 2",
         toggled + "task: set_layer_deleted 1 2 true; task: set_edit_layer 1 3",
         "queued; event 1; " + toggled +
             R"(task: add_layer 1 2 4, set_edit_layer 1 2, set_layer_name 1 2 "Layer 1"; )"},
        {[&] { s.setLayerDeleted(3, true); }, "ZDeleteLayerCommand: 3D Paint delete layer",
         toggled + "task: set_layer_deleted 1 0 true; task: set_edit_layer 1 1",
         toggled + "task: set_layer_deleted 1 0 false; task: set_edit_layer 1 0"},
        {[&] { s.setLayerBlend(0, nyx::ColorBlendMode::Screen); },
         "ZLayerBlendCommand: 3D Paint change layer blend mode", one + "blend_mode 1 3 2",
         one + "blend_mode 1 3 0"},
        {[&] { s.setLayerVisibility(2, false); },
         "ZLayerVisibilityCommand: 3D Paint change layer visibility", one + "visible 1 1 false",
         one + "visible 1 1 true"},
        {[&] { s.setLayerName(2, QStringLiteral("Größe")); },
         "ZLayerNameCommand: 3D Paint change layer name", "set_layer_name 1 1 \"Größe\"; event 1",
         "set_layer_name 1 1 \"Mid\"; event 1"},
        {[&] { s.setLayerName(2, QString()); }, "ZLayerNameCommand: 3D Paint change layer name",
         "set_layer_name 1 1 null; event 1", "set_layer_name 1 1 \"Größe\"; event 1"},
        {[&] { s.moveLayer(3, 0); }, "ZMoveLayerCommand: 3D Paint move layer", moved + "1 0 3",
         moved + "1 3 0"},
        {[&] { EXPECT_TRUE(s.setLayerBackgroundColor(1, red, true)); },
         "ZLayerBackgroundCommand: 3D Paint change layer background",
         one + "background 1 2 1 0 0 0.5", one + "background 1 2 0 0 0 0"},
    };
    for (Row const& row : rows) {
        SCOPED_TRACE(row.text);
        int const entries = undo.count();
        EXPECT_EQ(trace(row.edit), row.before + row.done);
        ASSERT_EQ(undo.count(), entries + 1);
        EXPECT_EQ(undo.text(entries).toStdString(), row.text);
        std::string const before = rendererList(id);
        EXPECT_EQ(trace([&] { undo.undo(); }), row.undone);
        EXPECT_EQ(trace([&] { undo.redo(); }), (row.before.empty() ? "" : toggled) + row.done);
        EXPECT_EQ(rendererList(id), before);
    }
    QCoreApplication::removeTranslator(&contexts);
    EXPECT_EQ(list(s), rendererList(id));
    EXPECT_EQ(renderer.painting().surface(id)->ignoredCalls, 0u);

    // Without an entry.
    EXPECT_EQ(trace([&] { s.setEditLayer(3); }), "queued; task: set_edit_layer 1 0");
    EXPECT_EQ(trace([&] { s.setEditLayer(3); }), "");
    EXPECT_EQ(trace([&] { s.setEditLayer(9); }), "queued; task: set_edit_layer 1 4294967290");
    EXPECT_EQ(s.editLayer(), 9u) << "any index is taken";
    EXPECT_EQ(trace([&] { s.setDeleted(true); }), "set_deleted 1 true");
    EXPECT_TRUE(s.deleted());
    EXPECT_EQ(trace([&] { EXPECT_TRUE(s.setLayerBackgroundColor(0, red, false)); }),
              one + "background 1 3 1 0 0 0.5");
    EXPECT_EQ(undo.count(), static_cast<int>(rows.size()));
}

// As it stands in the renderer, also the edit layer, which counts from the other end there.
TEST_F(ZPaintSurfaceTest, beginsWithWhatTheRendererSays) {
    nyx::SurfaceId const id = addSurface({"A", "B", "C", "D"});
    surface(id).setEditLayer(1); // counts from the top: 2 from the bottom
    surface(id).setDeleted(true);
    happened(); // drains the queue
    endRoot();
    EXPECT_EQ(surface(id).editLayer(), 2u);
    EXPECT_TRUE(surface(id).deleted());
}

TEST_F(ZPaintSurfaceTest, pushesNothingWhereNothingChanges) {
    IPainterSurface& s = surface(addSurface({"Top", "Low"}));
    EXPECT_EQ(trace([&] {
                  s.setLayerDeleted(2, true);
                  s.setLayerDeleted(0, false);
                  s.setLayerBlend(2, nyx::ColorBlendMode::Add);
                  s.setLayerBlend(0, nyx::ColorBlendMode::Normal);
                  s.setLayerVisibility(2, false);
                  s.setLayerVisibility(0, true);
                  s.setLayerName(2, QStringLiteral("x"));
                  s.moveLayer(0, 0);
                  s.moveLayer(0, 2);
                  s.moveLayer(2, 0);
                  EXPECT_FALSE(s.setLayerBackgroundColor(2, red, true));
                  EXPECT_FALSE(s.setLayerBackgroundColor(0, {}, false));
              }),
              "");
    EXPECT_EQ(undo.count(), 0);
    s.setLayerName(0, QStringLiteral("Top"));
    EXPECT_EQ(undo.count(), 1) << "an equal name is an edit";
    for (nyxColor_rgba const& other :
         {red, {1, 0.5f, 0, 0.5f}, {1, 0.5f, 1, 0.5f}, {1, 0.5f, 1, 1}}) {
        EXPECT_TRUE(s.setLayerBackgroundColor(0, other, false)) << "each part counts";
        EXPECT_FALSE(s.setLayerBackgroundColor(0, other, true));
    }
}

TEST_F(ZPaintSurfaceTest, addsAtAnEndWhateverTheIndex) {
    IPainterSurface& s = surface(addSurface({"A"}));
    s.addLayer(-5);
    EXPECT_EQ(list(s), "*Layer 1 A");
    s.addLayer(1000);
    EXPECT_EQ(list(s), "Layer 1 A *Layer 2");
}

TEST_F(ZPaintSurfaceTest, namesTheRenderersLayerAtOnceEvenIfItIsAnotherOne) {
    nyx::SurfaceId const id = addSurface({"A", "B"});
    IPainterSurface& s = surface(id);
    s.moveLayer(0, 1);
    s.setLayerName(0, QStringLiteral("b")); // the model's top; the renderer still has A there
    EXPECT_EQ(rendererList(id), "b *B");
    queue.waitIdle();
    EXPECT_EQ(list(s), "*b A");
    EXPECT_EQ(rendererList(id), "B *b") << "the name went to the other layer and moved with it";
}

TEST_F(ZPaintSurfaceTest, ignoresUnknownIdsAndKeepsCommandsUsableAfterTheRoot) {
    nyx::SurfaceId const id = addSurface({"A", "B", "C"});
    auto& s = dynamic_cast<ZPaintSurface&>(surface(id));
    EXPECT_EQ(trace([&] {
                  s.setLayerDeletedInternal(9, true);
                  s.setLayerBlendInternal(9, nyx::ColorBlendMode::Add);
                  s.setLayerVisibilityInternal(9, false);
                  s.setLayerNameInternal(9, QStringLiteral("x"));
                  s.setLayerBackgroundColorInternal(9, red);
                  s.moveLayerInternal(9, 1);
                  s.moveLayerInternal(1, 9);
              }),
              "");
    s.moveLayerInternal(0xFFFFFFFF, 1);
    EXPECT_EQ(list(s), "*B C A") << "the topmost, to where C (id 1) is";
    s.moveLayerInternal(1, 0xFFFFFFFF);
    EXPECT_EQ(list(s), "*C B A");
    ZPaintSurface const copy = s;
    EXPECT_EQ(copy.nLayers(), 3u);

    s.setLayerVisibility(0, false);
    endRoot();
    s.setLayerVisibilityInternal(1, true); // as a command does that was not cleared
    EXPECT_EQ(list(s), "*C B A");
    queue.waitIdle();
}

} // namespace
