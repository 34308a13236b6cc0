#pragma once

#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"
#include "nyxrender/nyxLight_layer_db.h"

#include <memory>

namespace nyx::embedded {

class ItemTree;
class LightLayers;

/// What keeps the light layers of a scene and its lights together: only lights of the scene are in
/// layers, each is in one, and its shader's mask says in which.
class SceneLights {
public:
    SceneLights(ItemTree& items, LightLayers& layers, std::unique_ptr<nyxLight_layer_db> database)
        : items_(items), layers_(layers), database_(std::move(database)) {}

    /// What the renderer's clients are lent.
    [[nodiscard]] nyxLight_layer_db* database() const { return database_.get(); }

    /// What is no light of the scene is left out.
    void put(nyx::Span<nyx::ObjectId> lights, nyx::LightLayerId id);
    /// Puts those that are in the layer into the default one.
    void take(nyx::Span<nyx::ObjectId> lights, nyx::LightLayerId id);
    void markDeleted(nyx::LightLayerId id);
    /// Takes over other layers; lights that they do not know are in the default one.
    void replace(LightLayers const& layers);
    /// Gives the shaders of lights the masks of their layers.
    void follow(LightLayers const& layers, nyx::Span<nyx::ObjectId> lights);

private:
    ItemTree& items_;
    LightLayers& layers_;
    std::unique_ptr<nyxLight_layer_db> database_;
};

} // namespace nyx::embedded
