#pragma once

#include "store/Material.h"
#include "store/PlaceIndex.h"
#include "store/PlaceUses.h"
#include "store/RecordStore.h"

#include "nyxrender/Ids.h"

#include <cstdint>
#include <string>

namespace nyx::embedded {

/// The materials of a scene and the bindings of their places. Main thread.
class MaterialStore {
public:
    MaterialStore() = default;
    MaterialStore(MaterialStore const&) = delete;
    MaterialStore& operator=(MaterialStore const&) = delete;

    /// An invalid id in the record means nextId(); the invalid id when it is below that. Colours of
    /// its places need not exist.
    [[nodiscard]] nyx::MaterialId add(MaterialRecord record);
    [[nodiscard]] nyxMaterial const* find(nyx::MaterialId id) const {
        return contents_.records.find(id.toUint());
    }
    [[nodiscard]] nyxMaterial* find(nyx::MaterialId id) {
        return contents_.records.find(id.toUint());
    }
    /// Visits in creation order.
    template <class Visit>
    void forEach(Visit&& visit) const {
        contents_.records.forEach(visit);
    }
    [[nodiscard]] nyx::MaterialId nextId() const {
        return nyx::MaterialId(contents_.records.nextId());
    }
    void skipIdsBelow(nyx::MaterialId id) { contents_.records.skipIdsBelow(id.toUint()); }

    /// Binds a place, which is made when `make` allows it; false for an unknown material or place.
    /// Costs the same however many places the material has.
    bool bindColor(nyx::MaterialId id, std::uint32_t node, std::string const& parameter,
                   nyx::ColorId color, bool make);
    /// The places that are bound to a colour.
    [[nodiscard]] PlaceUses::Uses const& uses(nyx::ColorId color) const {
        return contents_.uses.of(color);
    }

    /// Takes over all records of `fresh` in constant time and leaves it with those of this store.
    /// Ids that this one has given out stay used.
    void takeContents(MaterialStore& fresh);

private:
    struct Contents {
        RecordStore<nyxMaterial> records;
        PlaceIndex places;
        PlaceUses uses;
    };

    [[nodiscard]] MaterialPlace* findPlace(nyxMaterial& material, std::uint32_t node,
                                           std::string const& parameter);

    Contents contents_;
};

} // namespace nyx::embedded
