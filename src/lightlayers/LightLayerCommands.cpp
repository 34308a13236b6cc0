#include "lightlayers/LightLayerCommands.h"

#include "core/FirstException.h"
#include "zsg/lightlayers/ZLightLayerApi.h"

#include <algorithm>
#include <set>
#include <utility>

namespace zsg {

namespace {

QString filled(QString const& text, std::string const& name) {
    return text.arg(QString::fromStdString(name), 0, QChar(' '));
}

QString deleteText(ILightLayerApi const* api, nyx::LightLayerId layer) {
    return filled(ZUndoCommand::tr("Delete Light Layer (%1)"),
                  api ? api->layerName(layer) : std::string());
}

void clearDeletedMark(ILightLayerApi& api, nyx::LightLayerId layer) {
    auto const deleted = static_cast<std::uint32_t>(layerFlags::Deleted);
    api.setFlags(layer, nyx::Flags<layerFlags>::fromBits(api.flags(layer).bits() & ~deleted));
}

/// An object and its item have the same number.
std::vector<nyx::GroupItemId> itemsOf(nyx::Span<nyx::ObjectId> objects) {
    std::vector<nyx::GroupItemId> items;
    items.reserve(objects.size());
    for (nyx::ObjectId const object : objects) {
        items.emplace_back(object.toUint());
    }
    return items;
}

} // namespace

LightLayerCommand::LightLayerCommand(GuardedPointer<ILightLayerApi> api, ZCommandId id,
                                     QString const& text)
    : ZUndoCommand(id, text), api_(std::move(api)) {}

bool LightLayerCommand::undo() {
    ILightLayerApi* const api = api_.get();
    if (api) {
        undoIn(*api);
    }
    return api;
}

bool LightLayerCommand::redo() {
    ILightLayerApi* const api = api_.get();
    if (api) {
        redoIn(*api);
    }
    return api;
}

ZCreateLightLayerCommand::ZCreateLightLayerCommand(GuardedPointer<ILightLayerApi> api,
                                                   std::string name)
    : LightLayerCommand(std::move(api), ZCommandId::CreateLightLayer,
                        ZUndoCommand::tr("Create light layer")),
      name_(std::move(name)),
      layer_(std::make_shared<nyx::LightLayerId>()) {}

void ZCreateLightLayerCommand::undoIn(ILightLayerApi& api) { api.deleteLayer(*layer_); }

void ZCreateLightLayerCommand::redoIn(ILightLayerApi& api) {
    if (layer_->isValid()) {
        clearDeletedMark(api, *layer_);
        return;
    }
    *layer_ = api.createLayer(name_);
    if (layer_->isValid()) {
        setText(filled(ZUndoCommand::tr("Create Light Layer (%1)"), api.layerName(*layer_)));
    }
}

ZDeleteLightLayerCommand::ZDeleteLightLayerCommand(GuardedPointer<ILightLayerApi> const& api,
                                                   nyx::LightLayerId layer)
    : LightLayerCommand(api, ZCommandId::EditLightLayer, deleteText(api.get(), layer)),
      layer_(layer) {}

void ZDeleteLightLayerCommand::undoIn(ILightLayerApi& api) {
    // A listener may throw; the lights come back all the same.
    FirstException thrown;
    thrown.keep([&] { clearDeletedMark(api, layer_); });
    thrown.keep([&] { api.setItemsLightLayer(layer_, itemsOf(lights_)); });
    thrown.pass();
}

void ZDeleteLightLayerCommand::redoIn(ILightLayerApi& api) {
    // What an empty layer is given behind the history's back is thereby saved, too.
    if (lights_.empty()) {
        lights_ = api.getLayerItems(layer_);
    }
    api.deleteLayer(layer_);
}

ZChangeLightsInLightLayerCommand::ZChangeLightsInLightLayerCommand(
    GuardedPointer<ILightLayerApi> api, nyx::LightLayerId layer, std::vector<nyx::ObjectId> lights,
    bool remove)
    : LightLayerCommand(std::move(api), ZCommandId::EditLightLayer,
                        ZUndoCommand::tr("Update light layer")),
      lights_(std::move(lights)),
      layer_(layer),
      remove_(remove) {}

void ZChangeLightsInLightLayerCommand::undoIn(ILightLayerApi& api) { change(api, !remove_); }

void ZChangeLightsInLightLayerCommand::redoIn(ILightLayerApi& api) { change(api, remove_); }

void ZChangeLightsInLightLayerCommand::change(ILightLayerApi& api, bool remove) {
    if (remove) {
        api.removeLights(layer_, lights_);
    } else {
        api.addLights(layer_, lights_);
    }
}

bool ZChangeLightsInLightLayerCommand::mergeWith(ZUndoCommand const* other) {
    // Commands of other classes have this number, too.
    auto const* const later = dynamic_cast<ZChangeLightsInLightLayerCommand const*>(other);
    if (!later || !later->hasApiOf(*this) || later->layer_ != layer_ || later->remove_ != remove_) {
        return false;
    }
    lights_.insert(lights_.end(), later->lights_.begin(), later->lights_.end());
    return true;
}

ZSetItemLightLayerCommand::ZSetItemLightLayerCommand(GuardedPointer<ILightLayerApi> api,
                                                     nyx::LightLayerId layer,
                                                     std::vector<nyx::GroupItemId> items)
    : LightLayerCommand(std::move(api), ZCommandId::EditLightLayer,
                        ZUndoCommand::tr("Update light layer")),
      layer_(layer),
      items_(std::move(items)) {}

void ZSetItemLightLayerCommand::undoIn(ILightLayerApi& api) {
    FirstException thrown;
    for (auto const& entry : previous_) {
        thrown.keep([&] { api.setItemsLightLayer(entry.first, entry.second); });
    }
    thrown.pass();
}

void ZSetItemLightLayerCommand::redoIn(ILightLayerApi& api) {
    if (std::exchange(firstRun_, false)) {
        previous_ = currentAssignment(api);
    }
    api.setItemsLightLayer(layer_, items_);
}

// Which of the lights that the items stand for is in which layer. Only our own API tells what is
// below a group; of another one all lights of the layers that the groups touch are taken, so that
// those which move come back and the others stay where they are.
ZSetItemLightLayerCommand::ItemsOfLayers
ZSetItemLightLayerCommand::currentAssignment(ILightLayerApi const& api) const {
    if (auto const* const own = dynamic_cast<ZLightLayerApi const*>(&api)) {
        return own->getLayerIdMap(items_);
    }
    ItemsOfLayers all;
    std::set<nyx::GroupItemId> groups(items_.begin(), items_.end());
    std::set<nyx::GroupItemId> const wanted = groups;
    for (nyx::LightLayerId const layer : api.layers()) {
        all[layer] = itemsOf(api.getLayerItems(layer));
        for (nyx::GroupItemId const item : all[layer]) {
            groups.erase(item);
        }
    }
    std::vector<nyx::LightLayerId> const touched =
        api.layersOfItems(std::vector<nyx::GroupItemId>(groups.begin(), groups.end()));
    for (auto& [layer, items] : all) {
        if (std::ranges::find(touched, layer) == touched.end()) {
            std::erase_if(items, [&](nyx::GroupItemId item) { return !wanted.contains(item); });
        }
    }
    std::erase_if(all, [](auto const& entry) { return entry.second.empty(); });
    return all;
}

} // namespace zsg
