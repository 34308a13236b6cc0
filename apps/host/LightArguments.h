#pragma once

#include "host/Arguments.h"

#include "nyxrender/Ids.h"

#include <nlohmann/json_fwd.hpp>

#include <string>
#include <vector>

namespace zsg {
class ILightLayerApi;
class ILightLayerController;
} // namespace zsg

namespace app {

class Host;

// Words that name light layers, lights and items: an id, or a name. "=77" is taken as it is. They
// throw CommandError when there is no such thing.

/// Deleted layers have names and ids, too.
nyx::LightLayerId takeLayer(Host& host, Arguments& arguments);
/// All remaining words, at least one.
std::vector<nyx::GroupItemId> takeItems(Host& host, Arguments& arguments);
std::vector<nyx::ObjectId> takeLights(Host& host, Arguments& arguments);

/// The scene's light layers. The working copy is filled at the first use.
zsg::ILightLayerApi& lightLayers(Host& host);
zsg::ILightLayerController& lightLayerController(Host& host);

/// "2 Accent", with the flags when there are any.
std::string layerLine(Host& host, nyx::LightLayerId layer);
/// The same as data: id, name, flags.
nlohmann::ordered_json layerResult(Host& host, nyx::LightLayerId layer);
/// "24 Key Light".
std::string itemLine(Host& host, nyx::GroupItemId item);

} // namespace app
