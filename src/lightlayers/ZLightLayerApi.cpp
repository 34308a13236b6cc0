#include "zsg/lightlayers/ZLightLayerApi.h"

#include "core/postEvent.h"
#include "lightlayers/sceneLights.h"
#include "zsg/core/Events.h"

#include "nyxrender/nyxGroup_item.h"
#include "nyxrender/nyxRT_api.h"
#include "nyxrender/nyxScene_hierarchy.h"

#include <algorithm>
#include <iostream>
#include <memory>

namespace zsg {

namespace {

constexpr nyx::LightLayerId firstLayer{1};

/// What change_layer_lights() is to do.
constexpr int add = 0;
constexpr int remove = 1;

nyxLight_layer_db* databaseOf(nyxScene const* scene) {
    return scene ? nyx_light_layer_db_get(*scene) : nullptr;
}

/// The databases see the text up to its first NUL, so that is what counts as empty here.
bool isEmpty(std::string const& name) { return *name.c_str() == '\0'; }

/// Unknown ones are skipped.
std::vector<nyxGroup_item*> itemsOf(nyxScene* scene, nyx::Span<nyx::GroupItemId> ids) {
    std::vector<nyxGroup_item*> items;
    items.reserve(ids.size());
    for (nyx::GroupItemId const id : ids) {
        if (nyxGroup_item* const item = nyx_group_item_from_id(scene, id)) {
            items.push_back(item);
        }
    }
    return items;
}

std::string textOf(char const* text) { return text ? text : ""; }

} // namespace

ILightLayerApi::ILightLayerApi() = default;
ILightLayerApi::~ILightLayerApi() = default;

ZLightLayerApi::ZLightLayerApi(IEventQueue* eventQueue, nyxRT_api* rtApi)
    : eventQueue_(eventQueue),
      rtApi_(rtApi),
      sceneLayers_(databaseOf(scene())),
      environmentMask_(sceneLayers_ ? sceneLayers_->environment_light_mask() : 0) {}

ZLightLayerApi::~ZLightLayerApi() = default;

nyxScene* ZLightLayerApi::scene() const { return rtApi_ ? rtApi_->scene() : nullptr; }

void ZLightLayerApi::postUpdated(nyx::LightLayerId layer) {
    post(eventQueue_, std::make_unique<LightLayerUpdatedEvent>(layer));
}

void ZLightLayerApi::sync() {
    if (!sceneLayers_) {
        sceneLayers_ = databaseOf(scene());
    }
    workingLayers_.sync(sceneLayers_);
    if (sceneLayers_) {
        environmentMask_ = sceneLayers_->environment_light_mask();
    }
    post(eventQueue_, std::make_unique<LightLayerSyncedEvent>());
}

unsigned int ZLightLayerApi::layerCount() const { return workingLayers_.get_layer_count(); }

nyx::Unique_array<nyx::LightLayerId> ZLightLayerApi::layers() const {
    return workingLayers_.get_layers();
}

nyx::Unique_array<nyx::ObjectId> ZLightLayerApi::lights(nyx::LightLayerId layer) const {
    return workingLayers_.get_lights(layer);
}

bool ZLightLayerApi::contains(nyx::LightLayerId layer, nyx::ObjectId light) const {
    return workingLayers_.contains(layer, light);
}

nyx::Flags<layerFlags> ZLightLayerApi::flags(nyx::LightLayerId layer) const {
    return workingLayers_.flags(layer);
}

std::string ZLightLayerApi::layerName(nyx::LightLayerId layer) const {
    return textOf(workingLayers_.get_layer_name(layer));
}

// The scene is asked for what the hierarchy says, and only its own database knows the masks that
// stand there: the working copy may be behind.

std::vector<nyx::LightLayerId>
ZLightLayerApi::layersOfItems(nyx::Span<nyx::GroupItemId> items) const {
    std::vector<nyx::LightLayerId> layers;
    if (!sceneLayers_) {
        return layers;
    }
    for (std::uint32_t const mask : masksOfItems(itemsOf(scene(), items))) {
        nyx::LightLayerId const layer = sceneLayers_->layer_id_from_mask(mask);
        if (layer.isValid()) {
            layers.push_back(layer);
        }
    }
    std::ranges::sort(layers);
    layers.erase(std::unique(layers.begin(), layers.end()), layers.end());
    return layers;
}

std::vector<nyx::ObjectId> ZLightLayerApi::getLayerItems(nyx::LightLayerId layer) const {
    std::uint32_t const mask = sceneLayers_ ? sceneLayers_->layer_bitmask(layer) : 0;
    // An unknown layer has no mask, and neither has an object that is no light.
    return mask ? objectsWithMask(nyx_scene_hierarchy_get(scene()), mask)
                : std::vector<nyx::ObjectId>();
}

std::map<nyx::LightLayerId, std::vector<nyx::GroupItemId>> ZLightLayerApi::getLayerIdMap() const {
    return sceneLayers_ ? lightsByLayer(nyx_scene_hierarchy_get(scene()), *sceneLayers_)
                        : std::map<nyx::LightLayerId, std::vector<nyx::GroupItemId>>();
}

std::map<nyx::LightLayerId, std::vector<nyx::GroupItemId>>
ZLightLayerApi::getLayerIdMap(nyx::Span<nyx::GroupItemId> items) const {
    auto map = getLayerIdMap();
    std::vector<nyx::ObjectId> const wanted = lightsOfItems(itemsOf(scene(), items));
    for (auto entry = map.begin(); entry != map.end();) {
        std::erase_if(entry->second, [&](nyx::GroupItemId id) {
            return !std::ranges::binary_search(wanted, nyx::ObjectId(id.toUint()));
        });
        entry = entry->second.empty() ? map.erase(entry) : std::next(entry);
    }
    return map;
}

nyx::LightLayerId ZLightLayerApi::createLayer(std::string name) {
    if (isEmpty(name) || !sceneLayers_) {
        return {};
    }
    std::string const unique = sceneLayers_->find_unique_name(name.c_str());
    nyx::LightLayerId const id = sceneLayers_->create_layer(unique.c_str(), nyx::LightLayerId());
    if (id.isValid()) {
        try {
            workingLayers_.create_layer(unique.c_str(), id);
            postUpdated(id);
        } catch (...) {
            discard(id);
            throw;
        }
    }
    return id;
}

nyx::LightLayerId ZLightLayerApi::cloneLayer(nyx::LightLayerId source) {
    if (!sceneLayers_) {
        return {};
    }
    nyx::LightLayerId const id = sceneLayers_->create_layer("dummy", nyx::LightLayerId());
    if (id.isValid()) {
        try {
            workingLayers_.create_layer("dummy", id);
            workingLayers_.clone_layer(id, source);
            sceneLayers_->clone_layer(id, source);
            postUpdated(id);
        } catch (...) {
            discard(id);
            throw;
        }
    }
    return id;
}

void ZLightLayerApi::discard(nyx::LightLayerId layer) {
    workingLayers_.delete_layer(layer);
    if (nyxScene* const target = scene()) {
        sceneLayers_->delete_n_remap_layer(*target, layer);
    } else {
        sceneLayers_->delete_layer(layer);
    }
}

void ZLightLayerApi::deleteLayer(nyx::LightLayerId layer) {
    workingLayers_.delete_layer(layer);
    nyxScene* const target = scene();
    if (sceneLayers_ && target) {
        sceneLayers_->delete_n_remap_layer(*target, layer);
    }
    postUpdated(layer);
}

void ZLightLayerApi::setLayerName(nyx::LightLayerId layer, std::string name) {
    if (isEmpty(name) || name.c_str() == layerName(layer)) {
        return;
    }
    if (sceneLayers_) {
        std::string const unique = sceneLayers_->find_unique_name(name.c_str());
        workingLayers_.set_layer_name(layer, unique.c_str());
        sceneLayers_->set_layer_name(layer, unique.c_str());
    }
    postUpdated(layer);
}

void ZLightLayerApi::addLights(nyx::LightLayerId layer, nyx::Span<nyx::ObjectId> lights) {
    workingLayers_.add_lights(lights, layer);
    if (rtApi_) {
        rtApi_->change_layer_lights(layer, lights, add);
    }
    postUpdated(layer);
}

void ZLightLayerApi::removeLights(nyx::LightLayerId layer, nyx::Span<nyx::ObjectId> lights) {
    workingLayers_.remove_lights(lights, layer);
    if (rtApi_) {
        rtApi_->change_layer_lights(layer, lights, remove);
    }
    postUpdated(layer);
}

void ZLightLayerApi::setFlags(nyx::LightLayerId layer, nyx::Flags<layerFlags> flags) {
    workingLayers_.set_flags(layer, flags);
    if (rtApi_) {
        rtApi_->set_layer_flags(layer, flags);
    }
    postUpdated(layer);
}

// The working copy is left as it is here; it learns of the lights at the next sync().
void ZLightLayerApi::setItemsLightLayer(nyx::LightLayerId layer,
                                        nyx::Span<nyx::GroupItemId> items) {
    if (rtApi_) {
        rtApi_->assign_layer_lights(layer, lightsOfItems(itemsOf(scene(), items)));
    }
    postUpdated(layer);
}

void ZLightLayerApi::moveLightsToNewLayer(nyx::Span<nyx::ObjectId> lights) {
    std::vector<nyx::ObjectId> kept;
    if (sceneLayers_) {
        std::ranges::copy_if(lights, std::back_inserter(kept), [this](nyx::ObjectId light) {
            return sceneLayers_->contains(firstLayer, light);
        });
    }
    if (kept.empty()) {
        return;
    }
    // They are in it already; but so the renderer and the listeners of layer 1 hear of the move.
    addLights(firstLayer, kept);
    nyx::LightLayerId const layer = createLayer("New Layer");
    if (layer.isValid()) {
        addLights(layer, kept);
    }
}

// As text first: the stream may be set to other bases and groupings.
void ZLightLayerApi::dump() const {
    auto const ids = layers();
    std::string text;
    auto const number = [&text](std::uint32_t n) { text += std::to_string(n); };
    auto const heading = [&](nyx::LightLayerId id) {
        text += "Layer ID: ";
        number(id.toUint());
        text += ", Name: " + layerName(id) + '\n';
    };
    for (nyx::LightLayerId const id : ids) {
        heading(id);
    }
    text += "Environment Light Mask: ";
    number(environmentMask_);
    text += "\nLight Layers:\n";
    for (nyx::LightLayerId const id : ids) {
        text += "  ";
        heading(id);
        text += "    Flags: ";
        number(flags(id).bits());
        text += "\n    Lights: ";
        for (nyx::ObjectId const light : lights(id)) {
            number(light.toUint());
            text += ' ';
        }
        text += '\n';
    }
    std::cout.write(text.data(), static_cast<std::streamsize>(text.size()));
}

} // namespace zsg
