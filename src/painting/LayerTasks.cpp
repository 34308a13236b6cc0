#include "painting/LayerTasks.h"

#include "nyxrender/nyxCustomSurface.h"

#include <utility>

namespace zsg {

LayerTask::LayerTask(std::uint32_t renderIndex, nyxCustomSurface* surface)
    : renderIndex_(renderIndex), surface_(surface) {
    setDeleteOnDone(true);
}

ZAddLayerTask::ZAddLayerTask(std::uint32_t renderIndex, std::uint32_t layerId,
                             nyxCustomSurface* surface, std::string name)
    : LayerTask(renderIndex, surface), layerId_(layerId), name_(std::move(name)) {}

void ZAddLayerTask::run() {
    surface_->add_layer(renderIndex_, layerId_);
    surface_->set_edit_layer(renderIndex_);
    surface_->set_layer_name(renderIndex_, name_.c_str());
}

ZDeleteLayerTask::ZDeleteLayerTask(std::uint32_t renderIndex, nyxCustomSurface* surface,
                                   bool deleted)
    : LayerTask(renderIndex, surface), deleted_(deleted) {}

void ZDeleteLayerTask::run() { surface_->set_layer_deleted(renderIndex_, deleted_); }

ZBlendModeTask::ZBlendModeTask(std::uint32_t renderIndex, nyxCustomSurface* surface,
                               nyx::ColorBlendMode mode)
    : LayerTask(renderIndex, surface), mode_(mode) {}

void ZBlendModeTask::run() { surface_->set_layer_blend_mode(renderIndex_, mode_); }

ZVisibilityLayerTask::ZVisibilityLayerTask(std::uint32_t renderIndex, nyxCustomSurface* surface,
                                           bool visible)
    : LayerTask(renderIndex, surface), visible_(visible) {}

void ZVisibilityLayerTask::run() { surface_->set_layer_visible(renderIndex_, visible_); }

ZMoveLayerTask::ZMoveLayerTask(std::uint32_t from, std::uint32_t to, nyxCustomSurface* surface)
    : LayerTask(from, surface), to_(to) {}

void ZMoveLayerTask::run() { surface_->move_layer(renderIndex_, to_); }

ZBackgroundTask::ZBackgroundTask(std::uint32_t renderIndex, nyxCustomSurface* surface,
                                 nyxColor_rgba const& color)
    : LayerTask(renderIndex, surface), color_(color) {}

void ZBackgroundTask::run() { surface_->set_layer_background(renderIndex_, color_); }

ZEditLayerTask::ZEditLayerTask(std::uint32_t renderIndex, nyxCustomSurface* surface)
    : LayerTask(renderIndex, surface) {}

void ZEditLayerTask::run() { surface_->set_edit_layer(renderIndex_); }

} // namespace zsg
