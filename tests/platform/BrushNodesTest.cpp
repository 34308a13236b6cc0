#include "support/TestScene.h"
#include "support/sourceDir.h"

#include "nyxembedded/BrushSettings.h"
#include "nyxembedded/Warnings.h"
#include "nyxrender/nyxBrush_node.h"
#include "nyxrender/nyxScene.h"
#include "nyxrender/nyxScene_api.h"

#include <QTemporaryDir>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <tuple>
#include <utility>

namespace {

using nyx::painter::nyxBrush_node;
using nyx::painter::nyxBrush_param;

class BrushNodes : public TestScene {
protected:
    BrushNodes() {
        nyx::embedded::setWarningHandler([this](std::string_view text) { warnings += text; });
        std::filesystem::copy_file(sourceDir() + "/examples/brushes/leaf.png", folder / "a.png");
        root = makeRoot();
    }
    ~BrushNodes() override { nyx::embedded::setWarningHandler({}); }

    nyxBrush_node* make(char const* kind) {
        sceneApi().begin_brush_node(kind, -1);
        return sceneApi().end_brush_node();
    }
    nyxBrush_node* makeRoot() {
        stencil = make("nyx.painter.stamp.stencil.image");
        sceneApi().begin_brush_node("nyx.painter.stamp.basic.default", -1);
        sceneApi().set_param("stencil", nyxScene_api::TypeNode, stencil);
        sceneApi().set_param("opacity", nyxScene_api::TypeFloat, 0.5f);
        basic = sceneApi().end_brush_node();
        sceneApi().begin_brush_node("nyx.painter.stamp.brush", -1);
        sceneApi().set_param("basic", nyxScene_api::TypeNode, basic);
        return sceneApi().end_brush_node();
    }
    nyxScene_api& sceneApi() { return *nyx_get_scene_api(scene()); }
    nyx::embedded::BrushSettings settings() {
        return nyx::embedded::brushSettings(*scene(), root).value();
    }
    static nyxBrush_param& param(nyxBrush_node* node, std::string const& name) {
        for (nyxBrush_param* const p : node->params()) {
            if (p->name == name) {
                return *p;
            }
        }
        std::abort();
    }
    /// What the stencil shows after a path was loaded and the renderer was told.
    std::shared_ptr<nyx::embedded::BrushImage const> load(std::string const& path) {
        sceneApi().load_brush_file(param(stencil, "filepath"), path.c_str());
        api()->update_brush_node(stencil);
        return settings().stencil;
    }

    QTemporaryDir const temporary; // of each case its own: they run side by side
    std::filesystem::path const folder = temporary.path().toStdString();
    std::string warnings;
    nyxBrush_node* stencil = nullptr;
    nyxBrush_node* basic = nullptr;
    nyxBrush_node* root = nullptr;
};

TEST_F(BrushNodes, KindsBringTheirParameters) {
    std::ostringstream text;
    for (char const* const kind :
         {"float.solid01", "float.solid01jitter", "float.solidjitter", "stencil.image",
          "color.image", "color.shader", "basic.default", "brush"}) {
        std::string const name = std::string("nyx.painter.stamp.") + kind;
        nyxBrush_node* const node = make(name.c_str());
        ASSERT_NE(node, nullptr) << kind;
        EXPECT_EQ(node->kind(), name);
        text << kind << ':';
        for (nyxBrush_param* const p : node->params()) {
            text << ' ' << p->name;
            if (p->type == nyxScene_api::TypeFloat) {
                text << '=' << p->value.f;
            } else if (p->type == nyxScene_api::TypeColor) {
                text << '=' << p->value.c[0] << ',' << p->value.c[1] << ',' << p->value.c[2];
            }
        }
        text << '\n';
    }
    EXPECT_EQ(text.str(), R"(float.solid01: value=1
float.solid01jitter: value=1 jitter=0
float.solidjitter: value=1 jitter=0
stencil.image: filepath
color.image: filepath
color.shader: color=1,1,1 shader selection texture
basic.default: pen_pressure_mode rotation=0 rotation_jitter=0 spacing_px=1 spacing_world=0.01 )"
                          "spacing_percent=25 opacity=1 hardness=0.8 directional stencil_use_alpha "
                          "camera_projection draw_on_plane adaptive_spacing space mode alpha flow "
                          "size_px size_world stencil\nbrush: color basic\n");
    EXPECT_EQ(make("nyx.painter.stamp.unknown"), nullptr);
    EXPECT_EQ(make(nullptr), nullptr);
    EXPECT_EQ(sceneApi().end_brush_node(), nullptr) << "nothing was begun";
}

TEST_F(BrushNodes, PaintWithWhatTheRendererWasToldOf) {
    EXPECT_EQ(settings().opacity, 0.5f) << "a new node is known";
    param(basic, "opacity").value.f = 0.25f;
    EXPECT_EQ(settings().opacity, 0.5f);
    api()->update_brush_node(root);
    EXPECT_EQ(settings().opacity, 0.5f) << "that was another node";
    api()->update_brush_node(basic);
    EXPECT_EQ(settings().opacity, 0.25f);
    param(root, "basic").value.node = nullptr;
    api()->update_brush_node(root);
    EXPECT_EQ(settings().opacity, 1.0f) << "without the node it is the default";

    sceneApi().begin_brush_node("nyx.painter.stamp.color.shader", -1);
    sceneApi().set_param("color", nyxScene_api::TypeColor, nyxColor{0.25f, 0.5f, 0.75f});
    param(root, "color").value.node = sceneApi().end_brush_node();
    api()->update_brush_node(root);
    auto const [r, g, b] = settings().color;
    EXPECT_EQ(std::tuple(r, g, b), std::tuple(0.25f, 0.5f, 0.75f));

    // Nodes outlive the contents of the scene, and belong to one scene.
    EXPECT_EQ(renderer.loadSceneText(renderer.saveSceneText()), "");
    EXPECT_STREQ(root->kind(), "nyx.painter.stamp.brush");
    nyx::embedded::Renderer other;
    EXPECT_FALSE(nyx::embedded::brushSettings(*other.scene(), root));
    EXPECT_FALSE(nyx::embedded::brushSettings(*scene(), nullptr));
    other.api()->update_brush_node(basic);
    api()->update_brush_node(nullptr);
}

TEST_F(BrushNodes, ImagesAreReadOnceAndAgainWhenTheyChange) {
    auto const leaf = load((folder / "a.png").string());
    ASSERT_NE(leaf, nullptr);
    EXPECT_EQ(load((folder / "a.png").string()), leaf);
    nyxBrush_node* const first = std::exchange(root, makeRoot());
    EXPECT_EQ(load((folder / "a.png").string()), leaf) << "another node of the same image";
    EXPECT_NE(root, first);

    std::filesystem::copy_file(sourceDir() + "/examples/brushes/wood.png", folder / "a.png",
                               std::filesystem::copy_options::overwrite_existing);
    EXPECT_NE(load((folder / "a.png").string()), leaf);
    EXPECT_EQ(load(""), nullptr);
    EXPECT_EQ(param(stencil, "filepath").value.file, nullptr);
    EXPECT_EQ(warnings, "");
}

TEST_F(BrushNodes, WhatCannotBeReadIsWarnedAboutAndLeavesNoImage) {
    std::filesystem::resize_file(folder / "a.png", 300);
    std::ofstream(folder / "text.png") << "not a picture";
    std::string const names = folder.string() + '/';
    std::string const noUtf8 = "\xff.png";
    for (std::string const& path : {names + "a.png", names + "text.png", names + "none.png",
                                    names + noUtf8, noUtf8, folder.string()}) {
        warnings.clear();
        EXPECT_EQ(load(path), nullptr);
        EXPECT_EQ(warnings.substr(0, 11 + path.size()), "nyxrender: " + path);
        EXPECT_STREQ(param(stencil, "filepath").value.file, path.c_str());
    }
    // A size that would take 16 GB, in an otherwise good header.
    warnings.clear();
    std::ofstream(folder / "huge.png", std::ios::binary)
        << std::string("\x89PNG\r\n\x1a\n\0\0\0\rIHDR\0\0\xff\xff\0\0\xff\xff\x08\x06\0\0\0"
                       "\xb6\x05\xd9\x50\0\0\0\0IDAT",
                       41);
    EXPECT_EQ(load((folder / "huge.png").string()), nullptr);
    EXPECT_NE(warnings, "");

    warnings.clear();
    nyxBrush_param stray;
    sceneApi().load_brush_file(stray, "a.png");
    sceneApi().load_brush_file(param(basic, "opacity"), "a.png");
    EXPECT_EQ(std::count(warnings.begin(), warnings.end(), '\n'), 2);
}

} // namespace
