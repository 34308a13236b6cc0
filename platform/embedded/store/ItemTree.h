#pragma once

#include "store/GroupItem.h"
#include "store/RecordStore.h"

#include "nyxembedded/ItemRecord.h"
#include "nyxrender/Ids.h"

#include <unordered_map>
#include <vector>

namespace nyx::embedded {

class LightLayers;

/// The groups, objects and lights of a scene: one tree, one row of ids. Main thread.
class ItemTree {
public:
    /// New lights are put into the default one of `layers`.
    explicit ItemTree(LightLayers& layers) : layers_(layers) {}
    ItemTree(ItemTree const&) = delete;
    ItemTree& operator=(ItemTree const&) = delete;

    /// An invalid id in the record means nextId(); the invalid id when it is below that, and when
    /// the record names a parent that does not exist (yet).
    [[nodiscard]] nyx::GroupItemId add(ItemRecord record);
    [[nodiscard]] GroupItem const* find(nyx::GroupItemId id) const {
        return contents_.records.find(id.toUint());
    }
    [[nodiscard]] GroupItem* find(nyx::GroupItemId id) {
        return contents_.records.find(id.toUint());
    }
    /// Null for what is no light.
    [[nodiscard]] GroupItem* findLight(nyx::ObjectId id);
    /// Visits in creation order, so parents come before their children.
    template <class Visit>
    void forEach(Visit&& visit) const {
        contents_.records.forEach(visit);
    }
    [[nodiscard]] nyx::GroupItemId nextId() const {
        return nyx::GroupItemId(contents_.records.nextId());
    }
    void skipIdsBelow(nyx::GroupItemId id) { contents_.records.skipIdsBelow(id.toUint()); }
    /// Those without a parent, in creation order.
    [[nodiscard]] std::vector<nyxGroup_item*> const& topItems() const { return contents_.topItems; }

    /// Whether any object has the material, which need not exist.
    [[nodiscard]] bool isMaterialUsed(nyx::MaterialId material) const {
        return contents_.objectsOfMaterial.contains(material);
    }

    /// Takes over all items of `fresh` in constant time and leaves it with those of this tree. Ids
    /// that this one has given out stay used. The layers of the lights are not taken.
    void takeContents(ItemTree& fresh);

private:
    struct Contents {
        RecordStore<GroupItem> records;
        std::vector<nyxGroup_item*> topItems;
        std::unordered_map<nyx::MaterialId, unsigned> objectsOfMaterial;
    };

    LightLayers& layers_;
    Contents contents_;
};

} // namespace nyx::embedded
