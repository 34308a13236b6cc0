#include "painting/brushTable.h"

#include "painting/BrushScene.h"

#include <QCoreApplication>
#include <QTranslator>

#include <map>
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

class BrushTable : public BrushScene {
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
};

TEST_F(BrushTable, ShowsEveryParameterOfTheTable) {
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

TEST_F(BrushTable, TranslatesTextsButNotPlaceholders) {
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

} // namespace
} // namespace zsg
