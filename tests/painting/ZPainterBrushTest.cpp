#include "painting/ZPainterBrush.h"

#include "painting/BrushScene.h"

#include "nyxrender/nyxShader.h"

#include <vector>

namespace zsg {
namespace {

class Painting : public BrushScene {
protected:
    [[nodiscard]] int selected(char const* name) const {
        return parameter(name).value<Enumerable>()->getSelection();
    }
};

TEST_F(Painting, NodeParametersWriteAtOnceAndFieldsOnApply) {
    set("basic_rotation", 45.0f);
    set("basic_directional", true);
    set("basic_pen_pressure_mode", 5);
    set("basic_opacity", 2.5f); // limits are the interface's business
    EXPECT_EQ(node("basic_rotation").f, 45.0f);
    EXPECT_TRUE(node("basic_directional").b);
    EXPECT_EQ(node("basic_pen_pressure_mode").i, 5);
    EXPECT_EQ(node("basic_opacity").f, 2.5f);
    EXPECT_EQ(brush->rotation(), 45.0f);

    parameter("color_color").setColor(ZColorExt(0.25f, 0.5f, 0.75f));
    set("basic_stencil_filepath", QStringLiteral("Blätter.png"));
    set("color_texture_filepath", QStringLiteral("wood.png"));
    set("basic_hardness_percent", 35.0f);
    select("basic_space", 1);
    EXPECT_EQ(node("color_color").c[0], 1.0f);
    EXPECT_EQ(node("basic_hardness").f, 0.8f);
    EXPECT_EQ(node("basic_space").i, 0);

    messages.clear();
    takeJournal();
    brush->applyToNode();
    EXPECT_EQ(takeJournal(), R"(load_brush_file "wood.png"
load_brush_file "Blätter.png"
update_brush_node "nyx.painter.stamp.brush"
update_brush_node "nyx.painter.stamp.color.shader"
update_brush_node "nyx.painter.stamp.color.image"
update_brush_node "nyx.painter.stamp.basic.default"
update_brush_node "nyx.painter.stamp.float.solid01"
update_brush_node "nyx.painter.stamp.float.solid01jitter"
update_brush_node "nyx.painter.stamp.float.solidjitter"
update_brush_node "nyx.painter.stamp.float.solidjitter"
update_brush_node "nyx.painter.stamp.stencil.image")");
    EXPECT_EQ(node("color_color").c[2], 0.75f);
    EXPECT_EQ(node("basic_hardness").f, 0.35f);
    EXPECT_EQ(node("basic_space").i, 1);
    EXPECT_STREQ(node("basic_stencil_filepath").file, "Blätter.png");
    EXPECT_EQ(node("basic_opacity").f, 1.0f) << "the field has the last word";
    EXPECT_EQ(node("basic_pen_pressure_mode").i, 0) << "as it has here";

    set("basic_stencil_filepath", QString());
    brush->applyToNode();
    EXPECT_EQ(takeJournal().substr(0, 45), "load_brush_file \"wood.png\"\nload_brush_file \"\"");
}

TEST_F(Painting, ReadsTheNodesOnlyWhenAsked) {
    EXPECT_EQ(parameter("basic_hardness_percent").value<float>(), 60.0f);
    EXPECT_EQ(parameter("basic_opacity_percent").value<float>(), 100.0f);
    EXPECT_EQ(parameter("color_color").getColor().rgba().r, 0.0f);
    EXPECT_EQ(brush->stencilFilePath(), QString());

    node("basic_hardness").f = 0.6f;
    node("basic_opacity").f = 0.5f;
    node("basic_flow_value").f = 0.25f;
    node("color_color").c[1] = 0.5f;
    node("basic_space").i = 1;
    node("basic_mode").i = 1;
    node("color_selection").i = 2;
    node("color_texture_filepath").file = "Täfelung.png";
    node("basic_stencil_filepath").file = "leaf.png";
    brush->updateFromNode();
    EXPECT_FLOAT_EQ(*parameter("basic_hardness_percent").value<float>(), 60.0f);
    EXPECT_EQ(parameter("basic_opacity_percent").value<float>(), 50.0f);
    EXPECT_EQ(parameter("basic_flow_value_percent").value<float>(), 25.0f);
    nyxColor_rgba const color = parameter("color_color").getColor().rgba();
    EXPECT_EQ(std::tie(color.r, color.g, color.b, color.a),
              std::make_tuple(1.0f, 0.5f, 1.0f, 1.0f));
    EXPECT_EQ(selected("basic_space") * 100 + selected("basic_mode") * 10 +
                  selected("color_selection"),
              112);
    EXPECT_EQ(parameter("color_texture_filepath").value<QString>(), QStringLiteral("Täfelung.png"));
    EXPECT_EQ(brush->stencilFilePath(), QStringLiteral("leaf.png"));

    node("basic_stencil_filepath").file = nullptr;
    brush->updateFromNode();
    EXPECT_EQ(brush->stencilFilePath(), QString());
}

TEST_F(Painting, OfAMultiColorTheActiveOneIsTheNodes) {
    ZColorExt cover;
    cover.setMultiColor(true);
    cover.setColors(std::vector<ZColorExt::ZColorWithId>{{ZColor(1, 0, 0), nyx::ColorId(1)},
                                                         {ZColor(0, 0.5f, 1), nyx::ColorId(2)}});
    cover.setActiveIndex(1);
    parameter("color_color").setColor(cover);
    brush->applyToNode();
    EXPECT_EQ(node("color_color").c[1], 0.5f);
    EXPECT_EQ(node("color_color").c[2], 1.0f);
    node("color_color").c[2] = 0.25f;
    brush->updateFromNode();
    ZColorExt const read = parameter("color_color").getColor();
    EXPECT_TRUE(read.isMultiColor());
    EXPECT_EQ(read.rgba().b, 0.25f);
    EXPECT_EQ(read.subRgba(0).r, 1.0f) << "the other one stays";
}

TEST_F(Painting, PenPressureIsABitEach) {
    for (int bits = 0; bits < 8; ++bits) {
        node("basic_pen_pressure_mode").i = bits | 8;
        brush->updateFromNode();
        EXPECT_EQ(parameter("basic_flow_pen_pressure").value<bool>(), (bits & 1) != 0);
        EXPECT_EQ(parameter("basic_opacity_pen_pressure").value<bool>(), (bits & 2) != 0);
        EXPECT_EQ(parameter("basic_size_pen_pressure").value<bool>(), (bits & 4) != 0);
        brush->applyToNode();
        EXPECT_EQ(node("basic_pen_pressure_mode").i, bits);
    }
}

TEST_F(Painting, ColorSelectionFollowsWhatIsThere) {
    class Shader : public nyxShader {
        std::uint32_t light_layer_mask() const override { return 0; }
        bool info(unsigned) const override { return false; }
    } shader;
    auto const expectSelection = [this](int id) {
        select("color_selection", 1 - id % 2); // whatever was chosen
        brush->applyToNode();
        EXPECT_EQ(selected("color_selection"), id);
        EXPECT_EQ(node("color_selection").i, id);
    };
    expectSelection(0);
    set("color_texture_filepath", QStringLiteral("wood.png"));
    expectSelection(1);
    set("color_shader", static_cast<nyxShader*>(&shader));
    expectSelection(2);
    set("color_texture_filepath", QString());
    expectSelection(2);
    set("color_shader", static_cast<nyxShader*>(nullptr));
    expectSelection(0);
}

TEST_F(Painting, TakesValidParametersOnly) {
    ZPainterBrush own(nullptr, nullptr, {});
    messages.clear();
    Parameter::Builder odd("odd", "Odd");
    EXPECT_FALSE(own.addParameter(Parameter(odd.setValue(nullptr))).isValid());
    EXPECT_EQ(messages, "** Trying to add invalid parameter odd\n");
    EXPECT_FALSE(own.parameter("odd").isValid());

    Parameter::Builder other("basic_mode", "Other");
    EXPECT_TRUE(own.addParameter(Parameter(other.setType(Type::Float))).isValid());
    EXPECT_EQ(own.parameter("basic_mode").displayName(), "Other");
}

} // namespace
} // namespace zsg
