#include "store/ColorwayStore.h"

#include <utility>

namespace nyx::embedded {

nyx::ColorwayId ColorwayStore::add(ColorwayRecord record) {
    nyx::ColorwayId const id(contents_.records.idFor(record.id.toUint()));
    record.id = id;
    if (!contents_.records.emplace(id.toUint(), std::move(record))) {
        return {};
    }
    ++revision_;
    return id;
}

bool ColorwayStore::update(ColorwayRecord const& values) {
    ColorwayRecord* const record = contents_.records.find(values.id.toUint());
    if (!record || *record == values) {
        return false;
    }
    if (record->name != values.name || record->flags != values.flags) {
        ++revision_;
    }
    *record = values;
    return true;
}

bool ColorwayStore::remove(nyx::ColorwayId id) {
    if (!contents_.records.erase(id.toUint())) {
        return false;
    }
    ++revision_;
    return true;
}

void ColorwayStore::takeContents(ColorwayStore& fresh) {
    std::swap(contents_, fresh.contents_);
    skipIdsBelow(fresh.nextId());
    ++revision_;
}

} // namespace nyx::embedded
