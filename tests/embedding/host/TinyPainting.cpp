#include "TinyScene.h"

#include <algorithm>
#include <cstring>

nyxCustomSurface::~nyxCustomSurface() = default;
nyxPainter::~nyxPainter() = default;
nyxPainter_factory::~nyxPainter_factory() = default;

nyx::Unique_array<nyxLayerInfo> TinySurface::layers() const {
    return {layers_.data(), layers_.size()};
}

// Without a lock: this host's tasks run while its main thread waits.
template <class Change>
void TinySurface::change(char const* call, std::uint32_t index, Change const& change) {
    scene_.calls.push_back(std::string(call) + " " + std::to_string(index));
    if (index < layers_.size()) {
        change(layers_[index]);
    }
}

void TinySurface::set_edit_layer(std::uint32_t index) {
    change("set_edit_layer", index, [&](nyxLayerInfo&) { editLayer_ = index; });
}

void TinySurface::add_layer(std::uint32_t index, std::uint32_t layer_id) {
    scene_.calls.push_back("add_layer " + std::to_string(index));
    if (index <= layers_.size()) {
        auto const added = layers_.insert(layers_.begin() + index, nyxLayerInfo());
        added->id = layer_id;
    }
}

void TinySurface::move_layer(std::uint32_t from, std::uint32_t to) {
    change("move_layer", from, [&](nyxLayerInfo const& layer) {
        nyxLayerInfo const moved = layer;
        layers_.erase(layers_.begin() + from);
        layers_.insert(layers_.begin() + std::min<std::ptrdiff_t>(to, std::ssize(layers_)), moved);
    });
}

void TinySurface::set_layer_deleted(std::uint32_t index, bool deleted) {
    change(deleted ? "delete_layer" : "undelete_layer", index,
           [&](nyxLayerInfo& layer) { layer.deleted = deleted; });
}

void TinySurface::set_layer_blend_mode(std::uint32_t index, nyx::ColorBlendMode mode) {
    change("set_layer_blend_mode", index, [&](nyxLayerInfo& layer) { layer.blend_mode = mode; });
}

void TinySurface::set_layer_visible(std::uint32_t index, bool visible) {
    change("set_layer_visible", index, [&](nyxLayerInfo& layer) { layer.visible = visible; });
}

void TinySurface::set_layer_name(std::uint32_t index, char const* name) {
    change("set_layer_name", index, [&](nyxLayerInfo& layer) {
        layer.name = name ? scene_.texts.emplace_back(name).c_str() : nullptr;
    });
}

void TinySurface::set_layer_background(std::uint32_t index, nyxColor_rgba const& color) {
    change("set_layer_background", index, [&](nyxLayerInfo& layer) { layer.background = color; });
}

nyx::Unique_array<nyxPainter_surface> TinyPainter::surfaces() const {
    std::vector<nyxPainter_surface> listed;
    for (TinySurface const& surface : scene_.surfaces) {
        listed.push_back({surface.id(), 1024});
    }
    return {listed.data(), listed.size()};
}

nyx::SurfaceId TinyPainter::create_surface(char const*, int) {
    auto const id = static_cast<std::uint32_t>(scene_.surfaces.size() + 1);
    return scene_.surfaces.emplace_back(scene_, id).id();
}

nyxCustomSurface* TinyPainter::surface(nyx::SurfaceId id) const {
    auto const index = id.toUint() - 1;
    return index < scene_.surfaces.size() ? &scene_.surfaces[index] : nullptr;
}

nyxPainter* nyxScene::create(char const* kind) {
    return std::strcmp(kind, "svdag_painter") == 0 ? &painter : nullptr;
}

nyxPainter_factory* nyx_painter_factory(nyxScene* scene) { return scene; }
