#include "painting/ZPaintSurface.h"

#include "core/postEvent.h"
#include "painting/LayerCommands.h"
#include "painting/LayerTasks.h"
#include "painting/layerIndex.h"
#include "zsg/core/Events.h"

#include "nyxrender/nyxCustomSurface.h"
#include "nyxrender/nyxRT_api.h"
#include "nyxrender/nyx_memory.h"
#include "zcore/ZUndoStack.h"
#include "ztask/ZTaskQueue.h"

#include <algorithm>
#include <utility>

namespace zsg {

ZPaintSurface::ZPaintSurface(nyx::SurfaceId id, nyxCustomSurface* surface, nyxRT_api* rtApi,
                             ZTaskQueue* taskQueue, IEventQueue* eventQueue, ZUndoStack* undoStack)
    : id_(id),
      surface_(surface),
      rtApi_(rtApi),
      deleted_(surface->deleted()),
      taskQueue_(taskQueue),
      eventQueue_(eventQueue),
      undoStack_(undoStack) {
    readFromRenderer();
    for (nyxLayerInfo const& layer : layers_) {
        nextLayerId_ = std::max(nextLayerId_, layer.id);
    }
    ++nextLayerId_;
}

void ZPaintSurface::readFromRenderer() {
    auto const inRenderOrder = surface_->layers();
    layers_.assign(std::make_reverse_iterator(inRenderOrder.end()),
                   std::make_reverse_iterator(inRenderOrder.begin()));
    // Kept as the renderer counts, from the bottom.
    editLayer_ = surface_->edit_layer();
}

nyx::SurfaceId ZPaintSurface::id() { return id_; }

void ZPaintSurface::setDeleted(bool deleted) {
    deleted_ = deleted;
    surface_->set_deleted(deleted);
}

bool ZPaintSurface::deleted() const { return deleted_; }

std::vector<nyxLayerInfo> ZPaintSurface::layers() { return layers_; }

unsigned int ZPaintSurface::nLayers() const { return static_cast<unsigned int>(layers_.size()); }

unsigned int ZPaintSurface::editLayer() const { return editLayer_; }

bool ZPaintSurface::push(std::unique_ptr<ZUndoCommand> command) {
    return undoStack_ ? undoStack_->push(command.release()) : command->redo();
}

void ZPaintSurface::addLayer(int index) {
    unsigned int const at = index < 0 ? 0 : std::min(static_cast<unsigned int>(index), nLayers());
    auto command = std::make_unique<ZAddLayerCommand>(at, this);
    std::uint32_t const layerId = command->layerId();
    // A layer that no undo takes back must not stay: when the push is refused, from inside a
    // running command, or fails.
    auto const takeBack = [&] {
        if (!layers_[layerIndexOf(layers_, layerId)].deleted) {
            setLayerDeletedInternal(layerId, true);
        }
    };
    try {
        if (!push(std::move(command))) {
            takeBack();
        }
    } catch (...) {
        takeBack();
        throw;
    }
}

void ZPaintSurface::setLayerDeleted(unsigned int index, bool deleted) {
    if (index < nLayers() && layers_[index].deleted != deleted) {
        // For either value: what brings a layer back is undo.
        push(std::make_unique<ZDeleteLayerCommand>(layers_[index].id, this));
    }
}

void ZPaintSurface::setLayerBlend(unsigned int index, nyx::ColorBlendMode mode) {
    if (index < nLayers() && layers_[index].blend_mode != mode) {
        push(std::make_unique<ZLayerBlendCommand>(mode, layers_[index].blend_mode,
                                                  layers_[index].id, this));
    }
}

void ZPaintSurface::setLayerVisibility(unsigned int index, bool visible) {
    if (index < nLayers() && layers_[index].visible != visible) {
        push(std::make_unique<ZLayerVisibilityCommand>(visible, layers_[index].id, this));
    }
}

void ZPaintSurface::setLayerName(unsigned int index, QString name) {
    if (index < nLayers()) {
        nyxLayerInfo const& layer = layers_[index];
        push(std::make_unique<ZLayerNameCommand>(std::move(name), QString::fromUtf8(layer.name),
                                                 layer.id, this));
    }
}

void ZPaintSurface::moveLayer(unsigned int from, unsigned int to) {
    if (from != to && from < nLayers() && to < nLayers()) {
        push(std::make_unique<ZMoveLayerCommand>(layers_[from].id, layerIdAt(layers_, from - 1),
                                                 layers_[to].id, this));
    }
}

bool ZPaintSurface::setLayerBackgroundColor(unsigned int index, nyxColor_rgba color,
                                            bool undoable) {
    if (index >= nLayers()) {
        return false;
    }
    nyxLayerInfo const& layer = layers_[index];
    if (color == layer.background) {
        return false;
    }
    if (undoable) {
        push(std::make_unique<ZLayerBackgroundCommand>(color, layer.background, layer.id, this));
    } else {
        setLayerBackgroundColorInternal(layer.id, color);
    }
    return true;
}

void ZPaintSurface::setEditLayer(unsigned int index) {
    if (index == editLayer_) {
        return;
    }
    auto const before = std::exchange(editLayer_, index);
    try {
        queue(std::make_unique<ZEditLayerTask>(renderIndex(index), surface_));
    } catch (...) {
        editLayer_ = before; // so that the next call tries again
        throw;
    }
}

unsigned int ZPaintSurface::addLayerInternal(unsigned int index, std::string name) {
    index = std::min(index, nLayers());
    nyxLayerInfo layer;
    layer.name = keepName(name.c_str());
    if (!layer.name) {
        name.clear(); // the renderer must not know a name that the model has no place for
    }
    layer.id = nextLayerId_++;
    auto const at = static_cast<std::ptrdiff_t>(index);
    layers_.insert(layers_.begin() + at, layer);
    auto const before = std::exchange(editLayer_, index);
    bool queued = false;
    try {
        queued = queue(std::make_unique<ZAddLayerTask>(renderIndex(index), layer.id, surface_,
                                                       std::move(name)));
    } catch (...) {
        editLayer_ = before;
        layers_.erase(layers_.begin() + at); // or all places are off by one in the renderer
        throw;
    }
    if (queued) {
        try {
            postUpdated();
        } catch (...) {
            // The caller never learns the id, so nobody could take the layer back.
            setLayerDeletedInternal(layer.id, true);
            throw;
        }
    }
    return layer.id;
}

void ZPaintSurface::setLayerDeletedInternal(unsigned int id, bool deleted) {
    unsigned int const index = layerIndexOf(layers_, id);
    if (index == noLayer) {
        return;
    }
    layers_[index].deleted = deleted;
    queue(std::make_unique<ZDeleteLayerTask>(renderIndex(index), surface_, deleted));
    auto const isLive = [](nyxLayerInfo const& layer) { return !layer.deleted; };
    auto const here = layers_.begin() + static_cast<std::ptrdiff_t>(index);
    auto const above = std::find_if(std::make_reverse_iterator(here + 1), layers_.rend(), isLive);
    auto const next = above != layers_.rend() ? std::prev(above.base())
                                              : std::find_if(here, layers_.end(), isLive);
    if (next != layers_.end()) {
        editLayer_ = static_cast<unsigned int>(next - layers_.begin());
        queue(std::make_unique<ZEditLayerTask>(renderIndex(editLayer_), surface_));
    }
    if (taskQueue_) {
        refresh();
        postUpdated();
    }
}

void ZPaintSurface::setLayerBlendInternal(unsigned int id, nyx::ColorBlendMode mode) {
    unsigned int const index = layerIndexOf(layers_, id);
    if (index != noLayer) {
        layers_[index].blend_mode = mode;
        changed(std::make_unique<ZBlendModeTask>(renderIndex(index), surface_, mode));
    }
}

void ZPaintSurface::setLayerVisibilityInternal(unsigned int id, bool visible) {
    unsigned int const index = layerIndexOf(layers_, id);
    if (index != noLayer) {
        layers_[index].visible = visible;
        changed(std::make_unique<ZVisibilityLayerTask>(renderIndex(index), surface_, visible));
    }
}

void ZPaintSurface::setLayerBackgroundColorInternal(unsigned int id, nyxColor_rgba color) {
    unsigned int const index = layerIndexOf(layers_, id);
    if (index != noLayer) {
        layers_[index].background = color;
        changed(std::make_unique<ZBackgroundTask>(renderIndex(index), surface_, color));
    }
}

// Takes its text as setLayerName() does. NOLINTNEXTLINE(performance-unnecessary-value-param)
void ZPaintSurface::setLayerNameInternal(unsigned int id, QString name) {
    unsigned int const index = layerIndexOf(layers_, id);
    if (index == noLayer) {
        return;
    }
    char const* const kept = name.isEmpty() ? nullptr : keepName(name.toUtf8().constData());
    if (!kept && !name.isEmpty()) {
        return;
    }
    layers_[index].name = kept;
    // At once, with the place that the layer has here; while tasks wait that add or move layers,
    // the renderer may have another one there.
    surface_->set_layer_name(renderIndex(index), kept);
    postUpdated();
}

void ZPaintSurface::moveLayerInternal(unsigned int id, unsigned int targetId) {
    unsigned int const from = id == noLayer ? 0 : layerIndexOf(layers_, id);
    unsigned int const to = targetId == noLayer ? 0 : layerIndexOf(layers_, targetId);
    if (from >= nLayers() || to >= nLayers()) {
        return;
    }
    auto const at = [this](unsigned int index) {
        return layers_.begin() + static_cast<std::ptrdiff_t>(index);
    };
    auto const move = [&](unsigned int source, unsigned int target) {
        nyxLayerInfo const moved = layers_[source];
        if (source < target) {
            std::move(at(source + 1), at(target + 1), at(source));
        } else {
            std::move_backward(at(target), at(source), at(source + 1));
        }
        layers_[target] = moved;
    };
    move(from, to);
    bool queued = false;
    try {
        queued =
            queue(std::make_unique<ZMoveLayerTask>(renderIndex(from), renderIndex(to), surface_));
    } catch (...) {
        move(to, from); // or the undo moves something else in the renderer
        throw;
    }
    if (queued) {
        refresh();
        postUpdated();
    }
}

void ZPaintSurface::setupLayersAfterClone(std::vector<nyxLayerInfo> const& source) {
    auto const count = static_cast<std::uint32_t>(source.size());
    for (std::uint32_t i = 0; i < count; ++i) {
        if (i > 0) {
            surface_->add_layer(i, nextLayerId_++);
        }
        nyxLayerInfo const& layer = source[renderIndexOf(count, i)];
        surface_->set_layer_blend_mode(i, layer.blend_mode);
        surface_->set_layer_deleted(i, layer.deleted);
        surface_->set_layer_visible(i, layer.visible);
        surface_->set_layer_name(i, layer.name);
        surface_->set_layer_background(i, layer.background);
    }
    readFromRenderer();
}

unsigned int ZPaintSurface::renderIndex(unsigned int index) const {
    return renderIndexOf(layers_.size(), index);
}

bool ZPaintSurface::queue(std::unique_ptr<ZTask> task) {
    if (!taskQueue_) {
        return false;
    }
    taskQueue_->addBlockingRenderTask(task.release());
    return true;
}

void ZPaintSurface::changed(std::unique_ptr<ZTask> task) {
    if (queue(std::move(task))) {
        refresh();
        postUpdated();
    }
}

void ZPaintSurface::refresh() { rtApi_->refresh(0); }

void ZPaintSurface::postUpdated() {
    post(eventQueue_, std::make_unique<PaintLayersUpdatedEvent>(surface_->id()));
}

char const* ZPaintSurface::keepName(char const* name) {
    nyxScene* const scene = rtApi_->scene();
    return scene ? nyx_string_dup(*scene, name) : nullptr;
}

} // namespace zsg
