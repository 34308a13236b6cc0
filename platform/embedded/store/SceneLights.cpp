#include "store/SceneLights.h"

#include "store/LightLayers.h"
#include "store/Scene.h"

namespace nyx::embedded {

namespace {

GroupItem* lightOf(nyxScene& scene, nyx::ObjectId id) {
    GroupItem* const item = scene.item(nyx::GroupItemId(id.toUint()));
    return item != nullptr && item->is_light() ? item : nullptr;
}

} // namespace

void SceneLights::put(nyx::Span<nyx::ObjectId> lights, nyx::LightLayerId id) {
    LightLayers& layers = scene_.lightLayers();
    std::uint32_t const mask = layers.mask(id);
    if (mask == 0) {
        return;
    }
    for (nyx::ObjectId const light : lights) {
        if (GroupItem* const item = lightOf(scene_, light)) {
            layers.put(nyx::Span<nyx::ObjectId>(&light, 1), id);
            item->lightShader.mask = mask;
        }
    }
}

void SceneLights::take(nyx::Span<nyx::ObjectId> lights, nyx::LightLayerId id) {
    scene_.lightLayers().take(lights, id);
    follow(scene_.lightLayers(), lights);
}

void SceneLights::markDeleted(nyx::LightLayerId id) {
    follow(scene_.lightLayers(), scene_.lightLayers().markDeleted(id));
}

void SceneLights::replace(LightLayers const& layers) {
    LightLayers const source = layers;
    LightLayers& own = scene_.lightLayers();
    own = LightLayers::forScene();
    for (nyx::LightLayerId const id : source.ids()) {
        own.add({}, id);
        own.setName(id, source.find(id)->name);
        own.setFlags(id, source.find(id)->flags);
    }
    own.setEnvironmentMask(source.environmentMask());
    scene_.forEachItem([&](GroupItem const& item) {
        if (item.is_light()) {
            nyx::ObjectId const light = item.object_id();
            nyx::LightLayerId const layer = source.layerOf(light);
            put({light}, layer.isValid() ? layer : LightLayers::defaultLayer);
        }
    });
}

void SceneLights::follow(LightLayers const& layers, nyx::Span<nyx::ObjectId> lights) {
    for (nyx::ObjectId const light : lights) {
        if (GroupItem* const item = lightOf(scene_, light)) {
            item->lightShader.mask = layers.mask(layers.layerOf(light));
        }
    }
}

} // namespace nyx::embedded
