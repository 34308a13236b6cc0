#include "painting/LayerCommands.h"

#include "painting/PaintScene.h"
#include "painting/ZPaintSurface.h"

#include "nyxrender/nyxCustomSurface.h"
#include "nyxrender/nyxPainter.h"

#include <gtest/gtest.h>

using namespace zsg;

namespace {

class LayerCommandsTest : public PaintScene {
protected:
    std::string nameOfNewLayer(std::vector<std::string> const& names) {
        ZPaintSurface& s = dynamic_cast<ZPaintSurface&>(surface(addSurfaceLater(names)));
        ZAddLayerCommand const command(0, &s);
        return s.layerList()[0].name;
    }
    nyx::SurfaceId addSurfaceLater(std::vector<std::string> const& names) {
        nyx::SurfaceId const id = addSurface(names);
        painter().reload();
        return id;
    }
};

TEST_F(LayerCommandsTest, numbersNewLayersAboveTheLargest) {
    std::vector<std::pair<std::vector<std::string>, std::string>> const rows = {
        {{""}, "Layer 1"},
        {{"Layer 1", "Paint", "Layer 4"}, "Layer 5"},
        {{"Layer44"}, "Layer 45"}, // the blank is not asked for
        {{"layer 4", "My Layer 5", "Layers 6", "Layer  7", "Layer 8b"}, "Layer 1"},
        {{"Layer"}, "Layer 1"},
        {{"Layer 2147483647"}, "Layer 2147483648"},
        {{"Layer 2147483648", "Layer 2"}, "Layer 3"}, // no int any more
        {{"Layer -3"}, "Layer 1"},
    };
    for (auto const& [names, expected] : rows) {
        EXPECT_EQ(nameOfNewLayer(names), expected) << names[0];
    }
    IPainterSurface& s = surface(addSurfaceLater({"Layer 2"}));
    s.setLayerDeleted(0, true);
    s.addLayer(0);
    EXPECT_EQ(list(s), "*Layer 3 -Layer 2") << "deleted layers count";
}

TEST_F(LayerCommandsTest, startsIdsAboveTheLargest) {
    nyx::SurfaceId const id = renderer.painting().addSurface("", 64);
    ASSERT_TRUE(id.isValid());
    nyxCustomSurface& custom = *painter().painter()->surface(id);
    custom.add_layer(1, 7);
    custom.add_layer(1, 3);
    endRoot(); // the next one finds the layers
    surface(id).addLayer(0);
    EXPECT_EQ(surface(id).layers()[0].id, 8u);
}

TEST_F(LayerCommandsTest, mergesBackgroundsWhateverTheirLayers) {
    IPainterSurface& s = surface(addSurface({"A", "B"}));
    auto const background = [&](unsigned index) { return s.layers()[index].background.r; };
    s.setLayerBackgroundColor(0, {0.5f, 0, 0, 1}, true);
    s.setLayerBackgroundColor(1, {0.75f, 0, 0, 1}, true);
    ASSERT_EQ(undo.count(), 1);
    undo.undo();
    EXPECT_EQ(background(0), 0.0f);
    EXPECT_EQ(background(1), 0.75f) << "the other layer keeps its colour";
    undo.redo();
    EXPECT_EQ(background(0), 0.75f) << "and redo gives it to this one";
}

TEST_F(LayerCommandsTest, undoOfVisibilitySetsTheOppositeOfTheNewValue) {
    auto& s = dynamic_cast<ZPaintSurface&>(surface(addSurface({"A"})));
    ZLayerVisibilityCommand show(true, 1, &s); // it is visible already
    EXPECT_TRUE(show.redo() && show.undo());
    EXPECT_EQ(list(s), "*~A");
}

} // namespace
