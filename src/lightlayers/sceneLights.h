#pragma once

#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"

#include <cstdint>
#include <map>
#include <vector>

class nyxGroup_item;
class nyxLight_layer_db;
class nyxScene_hierarchy;

namespace zsg {

// What the scene's hierarchy says about lights and their layers. Groups may be nested to any depth
// and share what is in them. A null hierarchy has no objects.

/// The lights among these items, each alone, and those below the other ones, ascending, each once.
[[nodiscard]] std::vector<nyx::ObjectId> lightsOfItems(nyx::Span<nyxGroup_item*> items);

/// The masks of the shaders of these lights, ascending, each once.
[[nodiscard]] std::vector<std::uint32_t> masksOfItems(nyx::Span<nyxGroup_item*> items);

/// The objects with this light layer mask, in the order of the hierarchy, without
/// those whose shader answers query 4100.
[[nodiscard]] std::vector<nyx::ObjectId> objectsWithMask(nyxScene_hierarchy const* hierarchy,
                                                         std::uint32_t mask);

/// The lights of every layer that has any, in the order of the hierarchy, without those whose
/// shader answers query 4100.
[[nodiscard]] std::map<nyx::LightLayerId, std::vector<nyx::GroupItemId>>
lightsByLayer(nyxScene_hierarchy const* hierarchy, nyxLight_layer_db const& layers);

} // namespace zsg
