#include "api/SceneApi.h"

#include "store/BrushGraph.h"
#include "store/BrushKinds.h"
#include "store/ColorStore.h"
#include "store/ColorwayStore.h"
#include "store/Scene.h"

#include <string_view>
#include <utility>

nyxScene_api::~nyxScene_api() = default;

namespace nyx::embedded {

void SceneApi::begin(Making what) {
    making_ = what;
    color_ = {};
    colorway_ = {};
    brushNode_.reset();
}

bool SceneApi::end(Making what) {
    if (std::exchange(making_, Making::Nothing) != what) {
        return false;
    }
    if (scene_.faults().failCreations > 0) {
        --scene_.faults().failCreations;
        return false;
    }
    return true;
}

void SceneApi::begin_color() {
    scene_.journal().write("begin_color");
    begin(Making::Color);
}

nyxColor_record* SceneApi::end_color() {
    scene_.journal().write("end_color");
    return end(Making::Color) ? scene_.colors().lend(scene_.colors().add(std::move(color_)))
                              : nullptr;
}

void SceneApi::begin_colorway() {
    scene_.journal().write("begin_colorway");
    begin(Making::Colorway);
}

nyx::ColorwayId const* SceneApi::end_colorway() {
    scene_.journal().write("end_colorway");
    if (!end(Making::Colorway)) {
        return nullptr;
    }
    lastColorway_ = scene_.colorways().add(std::move(colorway_));
    return lastColorway_.isValid() ? &lastColorway_ : nullptr;
}

void SceneApi::set_param(char const* name, int type, char const* text) {
    scene_.journal().write("set_param", name, type, text);
    if (!name || type != TypeText) {
        return;
    }
    std::string_view const parameter = name;
    std::string const value = text ? text : "";
    if (parameter == "display_name") {
        (making_ == Making::Color ? color_.name : colorway_.name) = value;
    } else if (parameter == "original_name") {
        color_.originalName = value;
    }
}

// A node that is not being made, and a parameter of another type, are as good as unknown.
BrushNode::Param* SceneApi::brushParam(char const* name, int type, int wantedType) {
    return !brushNode_ || !name || type != wantedType ? nullptr : brushNode_->find(name, type);
}

void SceneApi::set_param(char const* name, int type, float value) {
    scene_.journal().write("set_param", name, type, value);
    if (auto* const param = brushParam(name, type, TypeFloat)) {
        param->value.f = value;
    }
}

void SceneApi::set_param(char const* name, int type, nyxColor const& value) {
    scene_.journal().write("set_param", name, type, value.r, value.g, value.b);
    if (auto* const param = brushParam(name, type, TypeColor)) {
        param->value.c[0] = value.r;
        param->value.c[1] = value.g;
        param->value.c[2] = value.b;
    } else if (name && type == TypeColor && std::string_view(name) == "color") {
        color_.value = {value.r, value.g, value.b, 1};
    }
}

void SceneApi::set_param(char const* name, int type, nyx::painter::nyxBrush_node* node) {
    scene_.journal().write("set_param", name, type, node ? node->kind() : nullptr);
    if (auto* const param = brushParam(name, type, TypeNode)) {
        param->value.node = node;
    }
}

void SceneApi::begin_brush_node(char const* kind, int extra) {
    scene_.journal().write("begin_brush_node", kind, extra);
    begin(Making::BrushNode);
    if (BrushKind const* const known = kind ? findBrushKind(kind) : nullptr) {
        brushNode_ = std::make_unique<BrushNode>(*known);
    }
}

nyx::painter::nyxBrush_node* SceneApi::end_brush_node() {
    scene_.journal().write("end_brush_node");
    auto node = std::exchange(brushNode_, nullptr);
    if (!end(Making::BrushNode) || !node) {
        return nullptr;
    }
    node->publish();
    return scene_.brushes().add(std::move(node));
}

void SceneApi::load_brush_file(nyx::painter::nyxBrush_param& parameter, char const* path) {
    scene_.journal().write("load_brush_file", path);
    scene_.brushes().loadFile(parameter, path);
}

} // namespace nyx::embedded
