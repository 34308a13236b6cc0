#include "painting/createBrush.h"

#include "painting/BrushScene.h"

#include <regex>

namespace zsg {
namespace {

class CreateBrush : public BrushScene {};

TEST_F(CreateBrush, MakesTheDefaultGraph) {
    renderer.setUnitScale(10);
    takeJournal();
    brush = createBrush(api(), 20, nyx::MaterialId(7));
    std::string const calls = std::regex_replace(takeJournal(), std::regex("\nset_param"), "");
    EXPECT_EQ(std::regex_replace(calls, std::regex("nyx.painter.stamp."), "*"),
              R"(nyx_scene_unit_scale
begin_brush_node "*float.solid01" -1 "value" 3 1
end_brush_node
begin_brush_node "*float.solid01jitter" -1 "value" 3 1 "jitter" 3 0
end_brush_node
begin_brush_node "*float.solidjitter" -1 "value" 3 5 "jitter" 3 0
end_brush_node
begin_brush_node "*float.solidjitter" -1 "value" 3 0.1 "jitter" 3 0
end_brush_node
begin_brush_node "*stencil.image" -1
end_brush_node
begin_brush_node "*color.image" -1
end_brush_node
begin_brush_node "*color.shader" -1 "color" 1 1 1 1 "texture" 24 "*color.image"
end_brush_node
begin_brush_node "*basic.default" -1 "spacing_world" 3 0.2 "alpha" 24 "*float.solid01" )"
              R"("flow" 24 "*float.solid01jitter" "size_px" 24 "*float.solidjitter" )"
              R"("size_world" 24 "*float.solidjitter" "stencil" 24 "*stencil.image"
end_brush_node
begin_brush_node "*brush" -1 "color" 24 "*color.shader" "basic" 24 "*basic.default"
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
    renderer.faults().failCreations = 9;
    for (nyxRT_api* const handle : {static_cast<nyxRT_api*>(nullptr), api(), api()}) {
        brush = createBrush(handle, 20, {});
        ASSERT_NE(brush, nullptr);
        EXPECT_EQ(brush->brushNode(), nullptr);
        EXPECT_FALSE(parameter("basic_opacity").isValid());
        brush->applyToNode();
        renderer.faults().noScene = renderer.faults().failCreations == 0;
    }
    renderer.faults() = {};
    renderer.faults().failCreations = 8; // all but the root
    brush = createBrush(api(), 20, {});
    EXPECT_NE(brush->brushNode(), nullptr);
    EXPECT_FALSE(parameter("basic_opacity").isValid());
}

} // namespace
} // namespace zsg
