#include "store/SceneLights.h"

#include "store/ItemTree.h"
#include "store/LightLayers.h"

namespace nyx::embedded {

void SceneLights::put(nyx::Span<nyx::ObjectId> lights, nyx::LightLayerId id) {
    std::uint32_t const mask = layers_.mask(id);
    if (mask == 0) {
        return;
    }
    for (nyx::ObjectId const light : lights) {
        if (GroupItem* const item = items_.findLight(light)) {
            layers_.put(nyx::Span<nyx::ObjectId>(&light, 1), id);
            item->lightShader.mask = mask;
        }
    }
}

void SceneLights::take(nyx::Span<nyx::ObjectId> lights, nyx::LightLayerId id) {
    layers_.take(lights, id);
    follow(layers_, lights);
}

void SceneLights::markDeleted(nyx::LightLayerId id) { follow(layers_, layers_.markDeleted(id)); }

void SceneLights::replace(LightLayers const& layers) {
    LightLayers const source = layers;
    layers_ = LightLayers::forScene();
    for (nyx::LightLayerId const id : source.ids()) {
        layers_.add({}, id);
        layers_.setName(id, source.find(id)->name);
        layers_.setFlags(id, source.find(id)->flags);
    }
    layers_.setEnvironmentMask(source.environmentMask());
    items_.forEach([&](GroupItem const& item) {
        if (item.is_light()) {
            nyx::ObjectId const light = item.object_id();
            nyx::LightLayerId const layer = source.layerOf(light);
            put({light}, layer.isValid() ? layer : LightLayers::defaultLayer);
        }
    });
}

void SceneLights::follow(LightLayers const& layers, nyx::Span<nyx::ObjectId> lights) {
    for (nyx::ObjectId const light : lights) {
        if (GroupItem* const item = items_.findLight(light)) {
            item->lightShader.mask = layers.mask(layers.layerOf(light));
        }
    }
}

} // namespace nyx::embedded
