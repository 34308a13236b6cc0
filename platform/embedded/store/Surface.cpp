#include "store/Surface.h"

#include "paint/paintStroke.h"
#include "store/StringPool.h"

#include "nyxembedded/Journal.h"

#include <algorithm>
#include <utility>

nyxCustomSurface::~nyxCustomSurface() = default;

namespace nyx::embedded {

using Guard = std::lock_guard<std::mutex>;

Surface::Surface(nyx::SurfaceId id, std::string name, int resolution)
    : id_(id), name_(std::move(name)), resolution_(resolution) {
    insert(0, {LayerInfo{1, {}, {}, false, true, {}}, LayerPixels(resolution)});
}

Surface::Surface(SurfaceInfo const& info, std::vector<Layer> layers)
    : id_(info.id),
      name_(info.name),
      resolution_(info.resolution),
      deleted_(info.deleted),
      editLayer_(info.editLayer) {
    for (Layer& layer : layers) {
        insert(layers_.size(), std::move(layer));
    }
}

void Surface::insert(std::size_t index, Layer layer) {
    if (layers_.size() == layers_.capacity()) {
        layers_.reserve(2 * layers_.size() + 1); // nothing may fail once the layer is known
    }
    auto made = std::make_unique<Layer>(std::move(layer));
    Layer* const inserted = made.get();
    byId_.emplace(inserted->info.id, std::move(made));
    layers_.insert(layers_.begin() + static_cast<std::ptrdiff_t>(index), inserted);
}

void Surface::belongTo(StringPool& strings, Journal& journal,
                       std::function<void()> const& barrier) {
    strings_ = &strings;
    journal_ = &journal;
    barrier_ = &barrier;
}

nyx::SurfaceId Surface::id() const { return id_; }

bool Surface::deleted() const {
    Guard const guard(mutex_);
    return deleted_;
}

void Surface::set_deleted(bool deleted) {
    journal_->write("set_deleted", id_, deleted);
    Guard const guard(mutex_);
    deleted_ = deleted;
}

nyx::Unique_array<nyxLayerInfo> Surface::layers() const {
    Guard const guard(mutex_);
    std::vector<nyxLayerInfo> records;
    records.reserve(layers_.size());
    for (Layer const* const each : layers_) {
        LayerInfo const& layer = each->info;
        records.push_back({layer.mode, layer.deleted, layer.visible, strings_->intern(layer.name),
                           layer.background, layer.id});
    }
    return {records.data(), records.size()};
}

std::uint32_t Surface::edit_layer() const {
    Guard const guard(mutex_);
    return editLayer_;
}

Surface::Layer* Surface::at(std::uint32_t index) {
    if (index < layers_.size()) {
        return layers_[index];
    }
    ++ignoredCalls_;
    return nullptr;
}

Surface::Layer* Surface::withId(std::uint32_t layerId) const {
    auto const found = byId_.find(layerId);
    if (found != byId_.end()) {
        return found->second.get();
    }
    ++ignoredCalls_;
    return nullptr;
}

void Surface::set_edit_layer(std::uint32_t index) {
    journal_->write("set_edit_layer", id_, index);
    Guard const guard(mutex_);
    if (at(index)) {
        editLayer_ = index;
    }
}

void Surface::add_layer(std::uint32_t index, std::uint32_t layer_id) {
    journal_->write("add_layer", id_, index, layer_id);
    Guard const guard(mutex_);
    if (index > layers_.size() || byId_.contains(layer_id)) {
        ++ignoredCalls_;
        return;
    }
    insert(index, {LayerInfo{layer_id, {}, {}, false, true, {}}, LayerPixels(resolution_)});
}

void Surface::move_layer(std::uint32_t from, std::uint32_t to) {
    journal_->write("move_layer", id_, from, to);
    Guard const guard(mutex_);
    if (!at(from) || !at(to)) {
        return;
    }
    auto const place = [this](std::uint32_t index) {
        return layers_.begin() + static_cast<std::ptrdiff_t>(index);
    };
    Layer* const moved = layers_[from];
    if (from < to) {
        std::move(place(from + 1), place(to + 1), place(from));
    } else {
        std::move_backward(place(to), place(from), place(from + 1));
    }
    layers_[to] = moved;
}

void Surface::set_layer_deleted(std::uint32_t index, bool deleted) {
    journal_->write("set_layer_deleted", id_, index, deleted);
    Guard const guard(mutex_);
    if (Layer* const layer = at(index)) {
        layer->info.deleted = deleted;
    }
}

void Surface::set_layer_blend_mode(std::uint32_t index, nyx::ColorBlendMode mode) {
    journal_->write("set_layer_blend_mode", id_, index, static_cast<int>(mode));
    Guard const guard(mutex_);
    if (Layer* const layer = at(index)) {
        layer->info.mode = mode;
    }
}

void Surface::set_layer_visible(std::uint32_t index, bool visible) {
    journal_->write("set_layer_visible", id_, index, visible);
    Guard const guard(mutex_);
    if (Layer* const layer = at(index)) {
        layer->info.visible = visible;
    }
}

void Surface::set_layer_name(std::uint32_t index, char const* name) {
    if (*barrier_) {
        (*barrier_)();
    }
    journal_->write("set_layer_name", id_, index, name);
    Guard const guard(mutex_);
    if (Layer* const layer = at(index)) {
        layer->info.name = name ? name : "";
    }
}

void Surface::set_layer_background(std::uint32_t index, nyxColor_rgba const& color) {
    journal_->write("set_layer_background", id_, index, color.r, color.g, color.b, color.a);
    Guard const guard(mutex_);
    if (Layer* const layer = at(index)) {
        layer->info.background = color;
    }
}

int Surface::resolution() const {
    Guard const guard(mutex_);
    return resolution_;
}

SurfaceInfo Surface::info() const {
    Guard const guard(mutex_);
    SurfaceInfo info{id_, name_, resolution_, deleted_, editLayer_, {}, ignoredCalls_};
    info.layers.reserve(layers_.size());
    for (Layer const* const layer : layers_) {
        info.layers.push_back(layer->info);
    }
    return info;
}

std::vector<Surface::Layer> Surface::layersWithPixels() const {
    Guard const guard(mutex_);
    std::vector<Layer> copies;
    copies.reserve(layers_.size());
    for (Layer const* const layer : layers_) {
        copies.push_back(*layer);
    }
    return copies;
}

std::optional<LayerPixels> Surface::pixels(std::uint32_t layerId) const {
    Guard const guard(mutex_);
    Layer const* const layer = withId(layerId);
    return layer ? std::optional(layer->pixels) : std::nullopt;
}

bool Surface::setPixels(std::uint32_t layerId, LayerPixels pixels) {
    Guard const guard(mutex_);
    Layer* const layer = pixels.resolution() == resolution_ ? withId(layerId) : nullptr;
    if (!layer) {
        return false;
    }
    layer->pixels = std::move(pixels);
    return true;
}

bool Surface::paint(std::uint32_t layerId, Stroke const& stroke) {
    Guard const guard(mutex_);
    Layer* const layer = withId(layerId);
    if (!layer) {
        return false;
    }
    paintStroke(layer->pixels, stroke);
    return true;
}

Surface::Shown Surface::shown() const {
    Guard const guard(mutex_);
    Shown shown;
    shown.resolution = resolution_;
    for (Layer const* const layer : layers_) {
        if (layer->info.visible && !layer->info.deleted) {
            shown.layers.push_back({layer->info.mode, layer->info.background, layer->pixels});
        }
    }
    return shown;
}

bool Surface::resample(int resolution) {
    if (resolution < 1 || resolution > mostTexels) {
        return false;
    }
    Guard const guard(mutex_);
    if (resolution != resolution_) {
        // All or none: memory may run out half-way.
        std::vector<LayerPixels> resampled;
        resampled.reserve(layers_.size());
        for (Layer const* const layer : layers_) {
            resampled.push_back(layer->pixels.resampled(resolution));
        }
        for (std::size_t i = 0; i < layers_.size(); ++i) {
            layers_[i]->pixels = std::move(resampled[i]);
        }
        resolution_ = resolution;
    }
    return true;
}

void Surface::dropPixels() {
    Guard const guard(mutex_);
    for (Layer* const layer : layers_) {
        layer->pixels = LayerPixels(resolution_);
    }
}

} // namespace nyx::embedded
