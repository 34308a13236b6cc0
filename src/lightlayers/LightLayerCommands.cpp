#include "lightlayers/LightLayerCommands.h"

#include "zsg/lightlayers/ZLightLayerApi.h"

#include <algorithm>
#include <utility>

namespace zsg {

namespace {

QString filled(QString const& text, std::string const& name) {
    return text.arg(QString::fromStdString(name), 0, QChar(' '));
}

void clearDeletedMark(ILightLayerApi& api, nyx::LightLayerId layer) {
    auto const deleted = static_cast<std::uint32_t>(layerFlags::Deleted);
    api.setFlags(layer, nyx::Flags<layerFlags>::fromBits(api.flags(layer).bits() & ~deleted));
}

// An object and its item have the same number.
std::vector<nyx::GroupItemId> itemsOf(nyx::Span<nyx::ObjectId> objects) {
    std::vector<nyx::GroupItemId> items;
    items.reserve(objects.size());
    for (nyx::ObjectId const object : objects) {
        items.emplace_back(object.toUint());
    }
    return items;
}

} // namespace

ZCreateLightLayerCommand::ZCreateLightLayerCommand(ILightLayerApi* api, std::string name)
    : ZUndoCommand(ZCommandId::CreateLightLayer, tr("Create light layer")),
      api_(api),
      name_(std::move(name)),
      layer_(std::make_shared<nyx::LightLayerId>()) {}

bool ZCreateLightLayerCommand::undo() {
    api_->deleteLayer(*layer_);
    return true;
}

bool ZCreateLightLayerCommand::redo() {
    if (layer_->isValid()) {
        clearDeletedMark(*api_, *layer_);
        return true;
    }
    *layer_ = api_->createLayer(name_);
    if (layer_->isValid()) {
        setText(filled(tr("Create Light Layer (%1)"), api_->layerName(*layer_)));
    }
    return true;
}

ZDeleteLightLayerCommand::ZDeleteLightLayerCommand(ILightLayerApi* api, nyx::LightLayerId layer)
    : ZUndoCommand(ZCommandId::EditLightLayer,
                   filled(tr("Delete Light Layer (%1)"), api->layerName(layer))),
      api_(api),
      layer_(layer) {}

bool ZDeleteLightLayerCommand::undo() {
    clearDeletedMark(*api_, layer_);
    api_->setItemsLightLayer(layer_, itemsOf(lights_));
    return true;
}

bool ZDeleteLightLayerCommand::redo() {
    // What an empty layer is given behind the history's back is thereby saved, too.
    if (lights_.empty()) {
        lights_ = api_->getLayerItems(layer_);
    }
    api_->deleteLayer(layer_);
    return true;
}

ZChangeLightsInLightLayerCommand::ZChangeLightsInLightLayerCommand(
    ILightLayerApi* api, nyx::LightLayerId layer, std::vector<nyx::ObjectId> lights, bool remove)
    : ZUndoCommand(ZCommandId::EditLightLayer, tr("Update light layer")),
      api_(api),
      lights_(std::move(lights)),
      layer_(layer),
      remove_(remove) {}

bool ZChangeLightsInLightLayerCommand::undo() {
    change(!remove_);
    return true;
}

bool ZChangeLightsInLightLayerCommand::redo() {
    change(remove_);
    return true;
}

void ZChangeLightsInLightLayerCommand::change(bool remove) {
    if (remove) {
        api_->removeLights(layer_, lights_);
    } else {
        api_->addLights(layer_, lights_);
    }
}

bool ZChangeLightsInLightLayerCommand::mergeWith(ZUndoCommand const* other) {
    // Commands of other classes have this number, too.
    auto const* const later = dynamic_cast<ZChangeLightsInLightLayerCommand const*>(other);
    if (!later || later->layer_ != layer_ || later->remove_ != remove_) {
        return false;
    }
    lights_.insert(lights_.end(), later->lights_.begin(), later->lights_.end());
    return true;
}

ZSetItemLightLayerCommand::ZSetItemLightLayerCommand(ILightLayerApi* api, nyx::LightLayerId layer,
                                                     std::vector<nyx::GroupItemId> items)
    : ZUndoCommand(ZCommandId::EditLightLayer, tr("Update light layer")),
      api_(api),
      layer_(layer),
      items_(std::move(items)) {}

bool ZSetItemLightLayerCommand::undo() {
    for (auto const& [layer, items] : previous_) {
        api_->setItemsLightLayer(layer, items);
    }
    return true;
}

bool ZSetItemLightLayerCommand::redo() {
    if (std::exchange(firstRun_, false)) {
        previous_ = currentAssignment();
    }
    api_->setItemsLightLayer(layer_, items_);
    return true;
}

/// Which lights of the items are in which layer. Only our own API knows what is below a group;
/// of another one all lights of the layers that the items touch are taken, so that those which
/// move come back and the others stay where they are.
ZSetItemLightLayerCommand::ItemsOfLayers ZSetItemLightLayerCommand::currentAssignment() const {
    if (auto const* const api = dynamic_cast<ZLightLayerApi const*>(api_)) {
        return api->getLayerIdMap(items_);
    }
    std::vector<nyx::LightLayerId> const touched = api_->layersOfItems(items_);
    ItemsOfLayers assignment;
    for (nyx::LightLayerId const layer : api_->layers()) {
        if (std::ranges::binary_search(touched, layer)) {
            std::vector<nyx::GroupItemId> items = itemsOf(api_->getLayerItems(layer));
            if (!items.empty()) {
                assignment.emplace(layer, std::move(items));
            }
        }
    }
    return assignment;
}

} // namespace zsg
