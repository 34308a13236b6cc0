#pragma once

#include "nyxrender/Ids.h"
#include "nyxrender/layerFlags.h"

#include <QString>

#include <optional>
#include <vector>

namespace workbench {

class Scene;

// What a person does to light layers, each one entry of the history. What is refused, or would
// change nothing, leaves none; of a refusal the scene says why.

/// The layer that lights are in that are in no other.
inline constexpr nyx::LightLayerId firstLightLayer{1};

/// All layers of the scene; deleted ones keep their place.
[[nodiscard]] std::vector<nyx::LightLayerId> allLightLayers(Scene const& scene);
[[nodiscard]] bool isDeleted(Scene const& scene, nyx::LightLayerId layer);

/// Why there can be no further layer; nothing when there can.
[[nodiscard]] std::optional<QString> noMoreLightLayers(Scene const& scene);

/// The invalid id when it was refused.
nyx::LightLayerId createLightLayer(Scene& scene);
/// A new, empty layer with the flags of another one and a numbered form of its name.
nyx::LightLayerId cloneLightLayer(Scene& scene, nyx::LightLayerId source);
nyx::LightLayerId moveToNewLightLayer(Scene& scene, std::vector<nyx::ObjectId> const& lights);

void renameLightLayer(Scene& scene, nyx::LightLayerId layer, QString const& name);
void setLightLayerFlag(Scene& scene, nyx::LightLayerId layer, layerFlags flag, bool on);
/// Brings a deleted layer back, without lights.
void deleteOrRestoreLightLayer(Scene& scene, nyx::LightLayerId layer);
/// Each light is in one layer and leaves the one that it was in; undo brings it back there.
void moveLights(Scene& scene, std::vector<nyx::ObjectId> const& lights, nyx::LightLayerId layer);

} // namespace workbench
