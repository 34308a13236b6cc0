#include "painting/BrushScene.h"

#include "nyxrender/nyxRT_api.h"

namespace zsg {
namespace {

using nyx::painter::nyxBrush_node;

class BrushGaps : public BrushScene {};

TEST_F(BrushGaps, AMissingNodeParameterCostsOnlyItself) {
    HandMadeNode root, basic;
    root.link("basic", &basic);
    auto& opacity = basic.add("opacity", nyxScene_api::TypeFloat);
    basic.add("rotation", nyxScene_api::TypeFloat);
    auto& pressure = basic.add("pen_pressure_mode", 0);
    messages.clear();
    ZPainterBrush gap(&root, api(), {});
    EXPECT_EQ(std::ranges::count(messages, '\n'), 17);
    EXPECT_NE(messages.find("Could not find bep for basic_stencil_use_alpha\n"), std::string::npos);
    EXPECT_EQ(gap.parameters().size(), 15);
    EXPECT_FALSE(gap.parameter("basic_stencil_use_alpha").isValid());
    gap.parameter("basic_opacity_percent").setValue(40.0f);
    gap.parameter("basic_hardness_percent").setValue(30.0f);
    gap.parameter("basic_size_pen_pressure").setValue(true);
    gap.applyToNode();
    EXPECT_EQ(opacity.value.f, 0.4f);
    EXPECT_EQ(pressure.value.i, 4) << "behind what is missing";
    opacity.value.f = 0.5f;
    pressure.value.i = 1;
    gap.updateFromNode();
    EXPECT_EQ(gap.parameter("basic_opacity_percent").value<float>(), 50.0f);
    EXPECT_EQ(gap.parameter("basic_hardness_percent").value<float>(), 30.0f) << "it keeps that";
    EXPECT_EQ(gap.parameter("basic_size_pen_pressure").value<bool>(), false);
}

TEST_F(BrushGaps, AnEmptyRootLeavesTheFields) {
    HandMadeNode root;
    for (nyxBrush_node* const node :
         {static_cast<nyxBrush_node*>(&root), static_cast<nyxBrush_node*>(nullptr)}) {
        messages.clear();
        ZPainterBrush empty(node, api(), {});
        EXPECT_EQ(std::ranges::count(messages, '\n'), 20);
        EXPECT_TRUE(messages.starts_with("Could not find bep for basic_pen_pressure_mode\n"
                                         "Could not find bep for color_shader\n"
                                         "Could not find bep for basic_rotation\n"));
        EXPECT_EQ(empty.parameters().size(), 12);
        takeJournal();
        empty.applyToNode();
        empty.updateFromNode();
        EXPECT_EQ(takeJournal(), node ? "update_brush_node \"made by hand\"" : "");
        EXPECT_EQ(empty.rotation(), 0.0f);
        EXPECT_EQ(empty.stencilFilePath(), QString());
        EXPECT_EQ(empty.parameter("basic_hardness_percent").value<float>(), 60.0f);
    }
}

TEST_F(BrushGaps, WithoutASceneTheNodesStillGetTheFields) {
    takeJournal();
    renderer.faults().noScene = true;
    set("basic_opacity_percent", 40.0f);
    brush->applyToNode();
    EXPECT_EQ(node("basic_opacity").f, 0.4f);
    std::string const journal = takeJournal();
    EXPECT_NE(journal.find("update_brush_node"), std::string::npos);
    EXPECT_EQ(journal.find("load_brush_file"), std::string::npos);
}

} // namespace
} // namespace zsg
