#include "painting/ZPainterBrush.h"

#include "painting/BrushScene.h"

#include "nyxrender/nyxShader.h"

#include <QCoreApplication>
#include <QTranslator>

#include <map>
#include <random>
#include <sstream>

namespace zsg {
namespace {

/// A parameter in one line: key, type, label, tool tip, quantity, limits, options.
std::string describe(Parameter const& p) {
    std::ostringstream line;
    line << p.name().toStdString() << '|' << typeName(p.type()) << '|'
         << p.displayName().toStdString() << '|' << p.toolTip().replace('\n', "\\n").toStdString()
         << '|' << static_cast<int>(p.quantity());
    float low = 0, high = 0;
    int lowest = 0, highest = 0;
    if (p.limits(low, high)) {
        line << '|' << low << ".." << high;
    } else if (p.limits(lowest, highest)) {
        line << '|' << lowest << ".." << highest;
    }
    for (auto const& [id, label] : p.value<Enumerable>().value_or(Enumerable())) {
        line << '|' << id << '=' << label.toStdString();
    }
    return line.str();
}

class Painting : public BrushScene {
protected:
    std::string describeAll() const {
        std::map<QString, std::string> sorted;
        for (Parameter const& p : brush->parameters()) {
            EXPECT_TRUE(p.isEnabled());
            EXPECT_EQ(describe(brush->parameter(p.name())), describe(p));
            sorted[p.name()] = describe(p);
        }
        std::string text;
        for (auto const& [name, line] : sorted) {
            text += line + '\n';
        }
        return text;
    }
    void set(char const* name, auto const& value) { parameter(name).setValue(value); }
    void select(char const* name, int id) {
        Enumerable choice = *parameter(name).value<Enumerable>();
        choice.setSelection(id);
        set(name, choice);
    }
    [[nodiscard]] int selected(char const* name) const {
        return parameter(name).value<Enumerable>()->getSelection();
    }
};

TEST_F(Painting, ShowsEveryParameterOfTheTable) {
    std::string const pressure = "\\nRequires a pressure sensitive tablet.|0\n";
    EXPECT_EQ(
        describeAll(),
        "basic_adaptive_spacing|Boolean|Scale with size||0\n"
        "basic_camera_projection|Boolean|Use Camera Projection|"
        "Projects the brush from the camera instead of normal to the object|0\n"
        "basic_directional|Boolean|Follow Path|Rotate the brush with the direction of the "
        "stroke|0\n"
        "basic_draw_on_plane|Boolean|Only Draw on Plane|"
        "Picks a plane from the starting point, to paint in|0\n"
        "basic_flow_jitter|Float|Flow Jitter|"
        "Flow Jitter can be used to create variance in the brush stroke|0|0..1\n"
        "basic_flow_pen_pressure|Boolean|TODO!|Use pen pressure to control flow." +
            pressure +
            "basic_flow_value|Float|Flow|Adjust the flow of the brush|0|0..1\n"
            "basic_flow_value_percent|Float|Flow|Adjust the flow of the brush|7|0..100\n"
            "basic_hardness|Float|Hardness|Adjust the hardness of the brush|0|0..1\n"
            "basic_hardness_percent|Float|Hardness|Adjust the hardness of the brush|7|0..100\n"
            "basic_mode|Enumerable|Paint Mode||0|0=Stroke|1=Stamp\n"
            "basic_opacity|Float|Opacity|Adjust the opacity of the brush|0|0..1\n"
            "basic_opacity_pen_pressure|Boolean|Opacity|Use pen pressure to control opacity." +
            pressure +
            "basic_opacity_percent|Float|Opacity|Adjust the opacity of the brush|7|0..100\n"
            "basic_pen_pressure_mode|Integer|||0|0..7\n"
            "basic_rotation|Float|Angle|Rotate the brush|5|-360..360\n"
            "basic_rotation_jitter|Float|Angle Jitter|"
            "Angle Jitter can be used to create variance in the brush stroke|0|0..1\n"
            "basic_size_pen_pressure|Boolean|TODO!|Use pen pressure to control size." +
            pressure +
            "basic_size_px_jitter|Float|Size Jitter|"
            "Size Jitter can be used to create variance in the brush stroke|0|0..1\n"
            "basic_size_px_value|Float|Size|Adjust the size of the brush|6|0..100000\n"
            "basic_size_world_jitter|Float|Size Jitter|"
            "Size Jitter can be used to create variance in the brush stroke|0|0..1\n"
            "basic_size_world_value|Float|Size|Adjust the size of the brush|1|0..100000\n"
            "basic_space|Enumerable|Space Unit||0|0=Scene Units|1=Pixel\n"
            "basic_spacing_percent|Float|Spacing|Adjust the spacing of the brush|7|1..1000\n"
            "basic_spacing_px|Float|Spacing|Adjust the spacing of the brush|6|0..100000\n"
            "basic_spacing_world|Float|Spacing|Adjust the spacing of the brush|1|0..100000\n"
            "basic_stencil_filepath|String|Brush Shape||0\n"
            "basic_stencil_use_alpha|Boolean|Use alpha||0\n"
            "color_color|Color|Brush Color||0\n"
            "color_selection|Enumerable|Color Selection||0|0=Solid Color|1=Texture|2=Shader\n"
            "color_shader|ShaderBase|Brush Color||0\n"
            "color_texture_filepath|String|Brush Color||0\n");
    EXPECT_FALSE(parameter("basic_opacity ").isValid());
}

TEST_F(Painting, TranslatesTextsButNotPlaceholders) {
    class Brackets : public QTranslator {
        bool isEmpty() const override { return false; }
        QString translate(char const* context, char const* source, char const*,
                          int) const override {
            return qstrcmp(context, "ZPainterBrush") == 0 ? '<' + QString(source) + '>' : QString();
        }
    } brackets;
    QCoreApplication::installTranslator(&brackets);
    brush = createBrush(api(), 20, {});
    QCoreApplication::removeTranslator(&brackets);

    EXPECT_EQ(describe(parameter("basic_pen_pressure_mode")),
              "basic_pen_pressure_mode|Integer|||0|0..7");
    EXPECT_EQ(describe(parameter("basic_size_pen_pressure")),
              "basic_size_pen_pressure|Boolean|TODO!|<Use pen pressure to control "
              "size.\\nRequires a pressure sensitive tablet.>|0");
    EXPECT_EQ(describe(parameter("basic_mode")),
              "basic_mode|Enumerable|<Paint Mode>||0|0=<Stroke>|1=<Stamp>");
}

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
    node("color_color").c[1] = 0.5f;
    node("basic_space").i = 1;
    node("basic_mode").i = 1;
    node("color_selection").i = 2;
    node("color_texture_filepath").file = "Täfelung.png";
    node("basic_stencil_filepath").file = "leaf.png";
    brush->updateFromNode();
    EXPECT_FLOAT_EQ(*parameter("basic_hardness_percent").value<float>(), 60.0f);
    EXPECT_EQ(parameter("basic_opacity_percent").value<float>(), 100.0f);
    EXPECT_EQ(parameter("basic_flow_value_percent").value<float>(), 100.0f);
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
    EXPECT_EQ(own.addParameter(Parameter(other.setType(Type::Float))).displayName(), "Other");
    EXPECT_EQ(own.parameter("basic_mode").displayName(), "Other");
}

} // namespace
} // namespace zsg
