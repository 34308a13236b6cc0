#include "store/ItemTree.h"

#include "store/LightLayers.h"

#include <utility>

namespace nyx::embedded {

nyx::GroupItemId ItemTree::add(ItemRecord record) {
    GroupItem* const parent = find(record.parent);
    if (record.parent.isValid() && !parent) {
        return {};
    }
    nyx::GroupItemId const id(contents_.records.idFor(record.id.toUint()));
    record.id = id;
    GroupItem* const added = contents_.records.emplace(id.toUint(), std::move(record));
    if (!added) {
        return {};
    }
    (parent ? parent->childItems : contents_.topItems).push_back(added);
    if (added->record.material.isValid()) {
        ++contents_.objectsOfMaterial[added->record.material];
    }
    if (added->is_light()) {
        layers_.put({added->object_id()}, LightLayers::defaultLayer);
        added->lightShader.mask = layers_.mask(LightLayers::defaultLayer);
    }
    return id;
}

GroupItem* ItemTree::findLight(nyx::ObjectId id) {
    GroupItem* const item = find(nyx::GroupItemId(id.toUint()));
    return item && item->is_light() ? item : nullptr;
}

void ItemTree::takeContents(ItemTree& fresh) {
    std::swap(contents_, fresh.contents_);
    skipIdsBelow(fresh.nextId());
}

} // namespace nyx::embedded
