#include "nyxembedded/BrushSettings.h"

#include "store/BrushGraph.h"
#include "store/Scene.h"

#include <string_view>

namespace nyx::embedded {

namespace {

/// Reads published values along the links of a graph. Missing nodes and values leave what is there.
class Reader {
public:
    Reader(BrushGraph const& graph, nyx::painter::nyxBrush_node const* node)
        : graph_(graph), node_(graph.find(node)) {}

    [[nodiscard]] Reader link(char const* name) const {
        auto const* const value = published(name, nyxScene_api::TypeNode);
        return {graph_, value ? value->node : nullptr};
    }
    void read(char const* name, float& out) const {
        if (auto const* const value = published(name, nyxScene_api::TypeFloat)) {
            out = value->f;
        }
    }
    void read(char const* name, int& out) const {
        if (auto const* const value = published(name, BrushInteger)) {
            out = value->i;
        }
    }
    void read(char const* name, bool& out) const {
        if (auto const* const value = published(name, BrushBoolean)) {
            out = value->b;
        }
    }
    void read(char const* name, nyxColor& out) const {
        if (auto const* const value = published(name, nyxScene_api::TypeColor)) {
            out = {value->c[0], value->c[1], value->c[2]};
        }
    }
    void read(BrushSettings::Jittered& out) const {
        read("value", out.value);
        read("jitter", out.jitter);
    }
    void read(std::shared_ptr<BrushImage const>& out) const {
        if (node_) {
            out = node_->publishedImage();
        }
    }
    [[nodiscard]] bool exists() const { return node_ != nullptr; }

private:
    [[nodiscard]] BrushNode::Param::Value const* published(char const* name, int type) const {
        return node_ ? node_->published(name, type) : nullptr;
    }

    BrushGraph const& graph_;
    BrushNode const* node_;
};

} // namespace

std::optional<BrushSettings> brushSettings(nyxScene& scene,
                                           nyx::painter::nyxBrush_node const* root) {
    Reader const brush(scene.brushes(), root);
    if (!brush.exists()) {
        return std::nullopt;
    }
    BrushSettings s;
    Reader const basic = brush.link("basic");
    int space = 0;
    int mode = 0;
    basic.read("space", space);
    basic.read("mode", mode);
    s.pixels = space == 1;
    s.stamp = mode == 1;
    basic.link("size_px").read(s.sizePixels);
    basic.link("size_world").read(s.sizeWorld);
    basic.read("spacing_px", s.spacingPixels);
    basic.read("spacing_world", s.spacingWorld);
    basic.read("spacing_percent", s.spacingPercent);
    basic.read("adaptive_spacing", s.adaptiveSpacing);
    basic.read("hardness", s.hardness);
    basic.read("opacity", s.opacity);
    basic.link("alpha").read("value", s.alpha);
    basic.link("flow").read(s.flow);
    basic.read("pen_pressure_mode", s.penPressure);
    basic.read("rotation", s.rotation);
    basic.read("rotation_jitter", s.rotationJitter);
    basic.read("directional", s.directional);
    basic.read("stencil_use_alpha", s.stencilUseAlpha);
    basic.link("stencil").read(s.stencil);
    Reader const color = brush.link("color");
    color.read("color", s.color);
    color.read("selection", s.colorSource);
    color.link("texture").read(s.texture);
    return s;
}

} // namespace nyx::embedded
