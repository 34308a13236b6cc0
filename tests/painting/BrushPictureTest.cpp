#include "painting/BrushScene.h"
#include "support/sourceDir.h"

#include "nyxembedded/BrushStroke.h"
#include "nyxembedded/LayerPixels.h"

namespace zsg {
namespace {

using nyx::embedded::LayerPixels;

/// A brush of 20 texels and what the embedded renderer paints with it.
class BrushPicture : public BrushScene {
protected:
    BrushPicture() { restart(); }

    void restart() {
        brush = createBrush(api(), 20, {});
        brush->updateFromNode();
        select("basic_space", 1);
        set("basic_size_px_value", 20.0f);
        set("color_color", ZColorExt(1, 0, 0));
        brush->applyToNode();
    }
    void setFile(char const* name, char const* file) {
        set(name, QString::fromStdString(sourceDir() + "/examples/brushes/" + file));
    }
    /// A bent stroke with a pen that is pressed by half.
    [[nodiscard]] LayerPixels picture() {
        nyx::embedded::BrushStroke stroke;
        stroke.points = {{30, 30, 0.5f}, {60, 75, 0.5f}, {100, 50, 0.5f}};
        stroke.texelsPerUnit = 12;
        LayerPixels pixels(128);
        auto const settings = nyx::embedded::brushSettings(*scene(), brush->brushNode());
        if (settings) {
            nyx::embedded::paintBrushStroke(pixels, *settings, stroke);
        }
        EXPECT_NE(pixels.tileCount(), 0u);
        return pixels;
    }
};

TEST_F(BrushPicture, ChangesWithEveryParameterOnceItIsApplied) {
    using Action = std::function<void()>;
    auto const number = [this](char const* name, float value) {
        return [this, name, value] { set(name, value); };
    };
    auto const yes = [this](char const* name) { return [this, name] { set(name, true); }; };
    Action const none = [] {};
    Action const worldSpace = [this] { select("basic_space", 0); };
    Action const fixedSpacing = [this] { set("basic_adaptive_spacing", false); };
    Action const worldSpacing = [&] {
        worldSpace();
        fixedSpacing();
    };
    Action const leaf = [this] { setFile("basic_stencil_filepath", "leaf.png"); };
    Action const weak = [this] { set("basic_flow_value_percent", 40.0f); };
    struct Row {
        char const* what;
        Action prepare;
        Action change;
    };
    Row const rows[] = {
        {"size", none, number("basic_size_px_value", 30)},
        {"size jitter", none, number("basic_size_px_jitter", 0.5f)},
        {"world size", worldSpace, number("basic_size_world_value", 2)},
        {"world size jitter", worldSpace, number("basic_size_world_jitter", 0.5f)},
        {"space", none, worldSpace},
        {"spacing in percent", none, number("basic_spacing_percent", 150)},
        {"spacing in pixels", fixedSpacing, number("basic_spacing_px", 30)},
        {"spacing in units", worldSpacing, number("basic_spacing_world", 3)},
        {"adaptive spacing", none, fixedSpacing},
        {"mode", none, [this] { select("basic_mode", 1); }},
        {"hardness", none, number("basic_hardness_percent", 10)},
        {"opacity", none, number("basic_opacity_percent", 50)},
        {"flow", none, weak},
        {"flow jitter", none, number("basic_flow_jitter", 0.9f)},
        {"flow by pressure", none, yes("basic_flow_pen_pressure")},
        {"opacity by pressure", none, yes("basic_opacity_pen_pressure")},
        {"size by pressure", none, yes("basic_size_pen_pressure")},
        {"shape", none, leaf},
        {"shape's alpha", leaf, yes("basic_stencil_use_alpha")},
        {"rotation", leaf, number("basic_rotation", 70)},
        {"rotation jitter", leaf, number("basic_rotation_jitter", 0.5f)},
        {"direction", leaf, yes("basic_directional")},
        {"colour", none, [this] { set("color_color", ZColorExt(0, 0.5f, 1)); }},
        {"texture", none, [this] { setFile("color_texture_filepath", "wood.png"); }},
    };
    for (Row const& row : rows) {
        SCOPED_TRACE(row.what);
        restart();
        row.prepare();
        brush->applyToNode();
        LayerPixels const before = picture();
        row.change();
        EXPECT_TRUE(picture() == before) << "painted with what the renderer was not told of";
        brush->applyToNode();
        EXPECT_FALSE(picture() == before);
    }
}

TEST_F(BrushPicture, StaysWhereTheRendererHasNoUseForAParameterOrAFieldOverrulesIt) {
    LayerPixels const before = picture();
    set("basic_camera_projection", true);
    set("basic_draw_on_plane", true);
    set("basic_opacity", 0.1f);
    set("basic_hardness", 0.1f);
    set("basic_flow_value", 0.1f);
    set("basic_pen_pressure_mode", 7);
    brush->applyToNode();
    EXPECT_TRUE(picture() == before);

    // A file that cannot be read leaves its path in the brush, and the plain shape and colour.
    setFile("basic_stencil_filepath", "no such file.png");
    setFile("color_texture_filepath", "leaves.json");
    brush->applyToNode();
    EXPECT_TRUE(picture() == before);
    brush->updateFromNode();
    EXPECT_EQ(std::count(warnings.begin(), warnings.end(), '\n'), 2) << warnings;
    EXPECT_TRUE(brush->stencilFilePath().endsWith("no such file.png"));
}

} // namespace
} // namespace zsg
