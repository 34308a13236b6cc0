#include "api/SceneApi.h"

#include "store/Scene.h"

#include <string_view>
#include <utility>

namespace nyx::embedded {

void SceneApi::begin(Making what) {
    making_ = what;
    color_ = {};
    colorway_ = {};
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
    return end(Making::Color) ? scene_.lendColor(scene_.addColor(std::move(color_))) : nullptr;
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
    lastColorway_ = scene_.addColorway(std::move(colorway_));
    return lastColorway_.isValid() ? &lastColorway_ : nullptr;
}

void SceneApi::set_param(char const* name, int type, char const* text) {
    scene_.journal().write("set_param", name, type, text);
    if (name == nullptr || type != TypeText) {
        return;
    }
    std::string_view const parameter = name;
    std::string const value = text == nullptr ? "" : text;
    if (parameter == "display_name") {
        (making_ == Making::Color ? color_.name : colorway_.name) = value;
    } else if (parameter == "original_name") {
        color_.originalName = value;
    }
}

void SceneApi::set_param(char const* name, int type, float value) {
    scene_.journal().write("set_param", name, type, value); // no record has a float by itself
}

void SceneApi::set_param(char const* name, int type, nyxColor const& value) {
    scene_.journal().write("set_param", name, type, value.r, value.g, value.b);
    if (name != nullptr && type == TypeColor && std::string_view(name) == "color") {
        color_.value = {value.r, value.g, value.b, 1};
    }
}

void SceneApi::set_param(char const* name, int type, nyx::painter::nyxBrush_node*) {
    scene_.journal().write("set_param", name, type); // no record has a node
}

// This renderer knows no kind of brush node, so none comes into being and none has a file.

void SceneApi::begin_brush_node(char const* kind, int extra) {
    scene_.journal().write("begin_brush_node", kind, extra);
    begin(Making::Nothing);
}

nyx::painter::nyxBrush_node* SceneApi::end_brush_node() {
    scene_.journal().write("end_brush_node");
    return nullptr;
}

void SceneApi::load_brush_file(nyx::painter::nyxBrush_param&, char const* path) {
    scene_.journal().write("load_brush_file", path);
}

} // namespace nyx::embedded
