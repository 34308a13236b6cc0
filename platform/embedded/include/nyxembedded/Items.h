#pragma once

#include "nyxembedded/ItemRecord.h"
#include "nyxrender/Export.h"
#include "nyxrender/Ids.h"

#include <optional>
#include <string>
#include <vector>

namespace nyx::embedded {

class ItemTree;
class LightLayers;

/// The groups, objects and lights of a renderer's scene; Renderer::items() has them. Building
/// notifies nobody. Main thread.
class NYXRENDER_EXPORT Items {
public:
    Items(ItemTree& items, LightLayers const& layers) : items_(items), layers_(layers) {}

    // Names are taken as they are. Nothing is made under an unknown parent, and the result is the
    // invalid id.

    /// A group at the top, or in another group.
    nyx::GroupItemId addGroup(std::string const& name, nyx::GroupItemId parent = {});
    /// An object that has a material, which need not exist, or none.
    nyx::ObjectId addObject(std::string const& name, nyx::GroupItemId parent = {},
                            nyx::MaterialId material = {});
    /// A light in layer 1; Renderer::lightLayers() can put it elsewhere.
    nyx::ObjectId addLight(std::string const& name, nyx::GroupItemId parent = {});
    /// Whether lists of light layers leave the light out: what its shader answers to query 4100.
    /// False for what is no light.
    bool setUnlisted(nyx::ObjectId light, bool unlisted);

    /// In creation order, so parents come before their children.
    [[nodiscard]] std::vector<nyx::GroupItemId> ids() const;
    /// The first of a name; the invalid id when there is none.
    [[nodiscard]] nyx::GroupItemId find(std::string const& name) const;
    /// A copy; nothing for an unknown id.
    [[nodiscard]] std::optional<ItemRecord> record(nyx::GroupItemId id) const;
    /// The invalid id for what is no light.
    [[nodiscard]] nyx::LightLayerId lightLayer(nyx::ObjectId light) const;

private:
    ItemTree& items_;
    LightLayers const& layers_;
};

} // namespace nyx::embedded
