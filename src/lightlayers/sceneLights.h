#pragma once

#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"

#include <cstdint>
#include <map>
#include <vector>

class nyxLight_layer_db;
class nyxScene;

namespace zsg {

// What the scene's hierarchy says about lights and their layers. A null scene has no lights.
// Groups may be nested to any depth and share what is in them.

/// The lights among these items and below them, ascending, each once. Unknown items are skipped.
[[nodiscard]] std::vector<nyx::ObjectId> lightsOfItems(nyxScene* scene,
                                                       nyx::Span<nyx::GroupItemId> items);

/// The masks of the shaders of these lights, ascending, each once.
[[nodiscard]] std::vector<std::uint32_t> masksOfItems(nyxScene* scene,
                                                      nyx::Span<nyx::GroupItemId> items);

/// The objects of the scene with this light layer mask, in the order of the hierarchy, without
/// those whose shader answers query 4100.
[[nodiscard]] std::vector<nyx::ObjectId> objectsWithMask(nyxScene* scene, std::uint32_t mask);

/// The lights of every layer that has any, in the order of the hierarchy, without those whose
/// shader answers query 4100.
[[nodiscard]] std::map<nyx::LightLayerId, std::vector<nyx::GroupItemId>>
lightsByLayer(nyxScene* scene, nyxLight_layer_db const& layers);

} // namespace zsg
