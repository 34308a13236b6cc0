#include "painting/createBrush.h"

#include "painting/BrushScene.h"

namespace zsg {
namespace {

class CreateBrush : public BrushScene {};

TEST_F(CreateBrush, MakesTheDefaultGraph) {
    renderer.setUnitScale(10);
    takeJournal();
    brush = createBrush(api(), 20, nyx::MaterialId(7));
    EXPECT_EQ(takeJournal(), R"(nyx_scene_unit_scale
begin_brush_node "nyx.painter.stamp.float.solid01" -1
set_param "value" 3 1
end_brush_node
begin_brush_node "nyx.painter.stamp.float.solid01jitter" -1
set_param "value" 3 1
set_param "jitter" 3 0
end_brush_node
begin_brush_node "nyx.painter.stamp.float.solidjitter" -1
set_param "value" 3 5
set_param "jitter" 3 0
end_brush_node
begin_brush_node "nyx.painter.stamp.float.solidjitter" -1
set_param "value" 3 0.1
set_param "jitter" 3 0
end_brush_node
begin_brush_node "nyx.painter.stamp.stencil.image" -1
end_brush_node
begin_brush_node "nyx.painter.stamp.color.image" -1
end_brush_node
begin_brush_node "nyx.painter.stamp.color.shader" -1
set_param "color" 1 1 1 1
set_param "texture" 24 "nyx.painter.stamp.color.image"
end_brush_node
begin_brush_node "nyx.painter.stamp.basic.default" -1
set_param "spacing_world" 3 0.2
set_param "alpha" 24 "nyx.painter.stamp.float.solid01"
set_param "flow" 24 "nyx.painter.stamp.float.solid01jitter"
set_param "size_px" 24 "nyx.painter.stamp.float.solidjitter"
set_param "size_world" 24 "nyx.painter.stamp.float.solidjitter"
set_param "stencil" 24 "nyx.painter.stamp.stencil.image"
end_brush_node
begin_brush_node "nyx.painter.stamp.brush" -1
set_param "color" 24 "nyx.painter.stamp.color.shader"
set_param "basic" 24 "nyx.painter.stamp.basic.default"
end_brush_node)");
    EXPECT_EQ(brush->materialId(), nyx::MaterialId(7));
    EXPECT_STREQ(brush->brushNode()->kind(), "nyx.painter.stamp.brush");
    EXPECT_EQ(brush->parameters().size(), 32) << messages;
}

TEST_F(CreateBrush, SizesFollowTheUnitScaleAndNoneCountsAsOne) {
    EXPECT_EQ(parameter("basic_size_world_value").value<float>(), 1.0f);
    EXPECT_EQ(parameter("basic_spacing_world").value<float>(), 0.2f);
    EXPECT_EQ(parameter("basic_size_px_value").value<float>(), 5.0f);
    renderer.setUnitScale(0.01);
    brush = createBrush(api(), 20, {});
    EXPECT_EQ(parameter("basic_size_world_value").value<float>(), 100.0f);
    EXPECT_EQ(parameter("basic_spacing_world").value<float>(), 0.2f);
}

TEST_F(CreateBrush, ComesWithoutNodesWhereTheRendererMakesNone) {
    auto const expectNoNodes = [this](nyxRT_api* handle) {
        brush = createBrush(handle, 20, {});
        ASSERT_NE(brush, nullptr);
        EXPECT_EQ(brush->brushNode(), nullptr);
        EXPECT_FALSE(parameter("basic_opacity").isValid());
        EXPECT_EQ(parameter("basic_opacity_percent").value<float>(), 100.0f);
        brush->updateFromNode();
        brush->applyToNode();
    };
    expectNoNodes(nullptr);
    renderer.faults().failCreations = 9;
    expectNoNodes(api());
    renderer.faults().noScene = true;
    expectNoNodes(api());
    renderer.faults().noScene = false;

    renderer.faults().failCreations = 8; // all but the root
    brush = createBrush(api(), 20, {});
    EXPECT_NE(brush->brushNode(), nullptr);
    EXPECT_FALSE(parameter("basic_opacity").isValid());
}

} // namespace
} // namespace zsg
