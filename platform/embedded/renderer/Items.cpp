#include "nyxembedded/Items.h"

#include "renderer/upToZero.h"
#include "store/ItemTree.h"
#include "store/LightLayers.h"

namespace nyx::embedded {

nyx::GroupItemId Items::addGroup(std::string const& name, nyx::GroupItemId parent) {
    return items_.add({{}, ItemKind::Group, upToZero(name), parent, {}});
}

nyx::ObjectId Items::addObject(std::string const& name, nyx::GroupItemId parent,
                               nyx::MaterialId material) {
    auto const id = items_.add({{}, ItemKind::Object, upToZero(name), parent, material});
    return nyx::ObjectId(id.toUint());
}

nyx::ObjectId Items::addLight(std::string const& name, nyx::GroupItemId parent) {
    auto const id = items_.add({{}, ItemKind::Light, upToZero(name), parent, {}});
    return nyx::ObjectId(id.toUint());
}

bool Items::setUnlisted(nyx::ObjectId light, bool unlisted) {
    GroupItem* const item = items_.findLight(light);
    if (!item) {
        return false;
    }
    item->record.unlisted = unlisted;
    return true;
}

std::vector<nyx::GroupItemId> Items::ids() const {
    std::vector<nyx::GroupItemId> ids;
    items_.forEach([&](GroupItem const& item) { ids.push_back(item.id()); });
    return ids;
}

nyx::GroupItemId Items::find(std::string const& name) const {
    nyx::GroupItemId found;
    items_.forEach([&](GroupItem const& item) {
        found = !found.isValid() && item.record.name == name ? item.id() : found;
    });
    return found;
}

std::optional<ItemRecord> Items::record(nyx::GroupItemId id) const {
    GroupItem const* const item = items_.find(id);
    return item ? std::optional(item->record) : std::nullopt;
}

nyx::LightLayerId Items::lightLayer(nyx::ObjectId light) const { return layers_.layerOf(light); }

} // namespace nyx::embedded
