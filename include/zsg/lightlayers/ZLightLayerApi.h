#pragma once

#include "zsg/lightlayers/ILightLayerApi.h"

#include "nyxrender/nyxLight_layer_db.h"

#include <cstdint>
#include <map>

class nyxRT_api;
class nyxScene;

namespace zsg {

class IEventQueue;

/// The light layers of the scene of a run-time API.
class ZSG_EXPORT ZLightLayerApi final : public ILightLayerApi {
public:
    /// Without a queue nothing is posted. Both are borrowed, as is the database of the scene that
    /// the API has now; where there is none yet, sync() looks for it again.
    ZLightLayerApi(IEventQueue* eventQueue, nyxRT_api* rtApi);
    ~ZLightLayerApi() override;

    void sync() override;
    nyx::LightLayerId cloneLayer(nyx::LightLayerId source) override;
    [[nodiscard]] unsigned int layerCount() const override;
    [[nodiscard]] nyx::Unique_array<nyx::LightLayerId> layers() const override;
    [[nodiscard]] nyx::Unique_array<nyx::ObjectId> lights(nyx::LightLayerId layer) const override;
    [[nodiscard]] std::vector<nyx::LightLayerId>
    layersOfItems(nyx::Span<nyx::GroupItemId> items) const override;
    [[nodiscard]] bool contains(nyx::LightLayerId layer, nyx::ObjectId light) const override;
    [[nodiscard]] std::vector<nyx::ObjectId> getLayerItems(nyx::LightLayerId layer) const override;
    nyx::LightLayerId createLayer(std::string name) override;
    void deleteLayer(nyx::LightLayerId layer) override;
    void setLayerName(nyx::LightLayerId layer, std::string name) override;
    [[nodiscard]] std::string layerName(nyx::LightLayerId layer) const override;
    void moveLightsToNewLayer(nyx::Span<nyx::ObjectId> lights) override;
    void setItemsLightLayer(nyx::LightLayerId layer, nyx::Span<nyx::GroupItemId> items) override;
    void addLights(nyx::LightLayerId layer, nyx::Span<nyx::ObjectId> lights) override;
    void removeLights(nyx::LightLayerId layer, nyx::Span<nyx::ObjectId> lights) override;
    void setFlags(nyx::LightLayerId layer, nyx::Flags<layerFlags> flags) override;
    [[nodiscard]] nyx::Flags<layerFlags> flags(nyx::LightLayerId layer) const override;
    void dump() const override;

    /// The lights of every layer that has any, in the scene as it is now and in the order of its
    /// hierarchy. Left out are lights whose shader answers query 4100 and lights whose mask names
    /// no layer. Costs one walk over the whole scene.
    [[nodiscard]] std::map<nyx::LightLayerId, std::vector<nyx::GroupItemId>> getLayerIdMap() const;

    /// The part of getLayerIdMap() that setItemsLightLayer() would move.
    [[nodiscard]] std::map<nyx::LightLayerId, std::vector<nyx::GroupItemId>>
    getLayerIdMap(nyx::Span<nyx::GroupItemId> items) const;

private:
    [[nodiscard]] nyxScene* scene() const;
    void postUpdated(nyx::LightLayerId layer);
    /// Takes back a layer whose making failed: the caller never learns the id.
    void discard(nyx::LightLayerId layer);

    IEventQueue* eventQueue_;
    nyxRT_api* rtApi_;
    nyxLight_layer_db* sceneLayers_;
    std::uint32_t environmentMask_;
    nyxLight_layer_db workingLayers_;
};

} // namespace zsg
