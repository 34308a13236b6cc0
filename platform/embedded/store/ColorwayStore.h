#pragma once

#include "store/RecordStore.h"

#include "nyxembedded/ColorwayRecord.h"
#include "nyxrender/Ids.h"

namespace nyx::embedded {

/// The colorways of a scene, and the settings' choice among them. Main thread.
class ColorwayStore {
public:
    ColorwayStore() = default;
    ColorwayStore(ColorwayStore const&) = delete;
    ColorwayStore& operator=(ColorwayStore const&) = delete;

    /// An invalid id in the record means nextId(); the invalid id when it is below that. Ids in the
    /// record need not exist.
    [[nodiscard]] nyx::ColorwayId add(ColorwayRecord record);
    [[nodiscard]] ColorwayRecord const* find(nyx::ColorwayId id) const {
        return contents_.records.find(id.toUint());
    }
    /// Gives the record values.id all of `values`. True when that changed anything.
    bool update(ColorwayRecord const& values);
    bool remove(nyx::ColorwayId id);
    /// Visits in creation order.
    template <class Visit>
    void forEach(Visit&& visit) const {
        contents_.records.forEach(visit);
    }
    [[nodiscard]] nyx::ColorwayId nextId() const {
        return nyx::ColorwayId(contents_.records.nextId());
    }
    void skipIdsBelow(nyx::ColorwayId id) { contents_.records.skipIdsBelow(id.toUint()); }

    /// Need not exist.
    [[nodiscard]] nyx::ColorwayId active() const { return contents_.active; }
    void setActive(nyx::ColorwayId id) { contents_.active = id; }

    /// Rises when a colorway is made, removed, renamed or flagged differently.
    [[nodiscard]] unsigned revision() const { return revision_; }

    /// Takes over all records of `fresh` and its active colorway in constant time and leaves it
    /// with those of this store. Ids that this one has given out stay used; the revision rises.
    void takeContents(ColorwayStore& fresh);

private:
    struct Contents {
        RecordStore<ColorwayRecord> records;
        nyx::ColorwayId active;
    };

    Contents contents_;
    unsigned revision_ = 1;
};

} // namespace nyx::embedded
