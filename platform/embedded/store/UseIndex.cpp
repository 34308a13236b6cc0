#include "store/UseIndex.h"

namespace nyx::embedded {

void UseIndex::bind(nyx::ColorId color, nyx::MaterialId material) {
    if (color.isValid()) {
        Uses& uses = uses_[color];
        ++uses.places;
        ++uses.materials[material];
    }
}

void UseIndex::unbind(nyx::ColorId color, nyx::MaterialId material) {
    if (!color.isValid()) {
        return;
    }
    Uses& uses = uses_[color];
    --uses.places;
    auto const places = uses.materials.find(material);
    if (--places->second == 0) {
        uses.materials.erase(places);
    }
    dropIfUnused(color);
}

void UseIndex::list(nyx::ColorId record, nyx::Span<nyx::ColorId> subColors) {
    for (nyx::ColorId const sub : subColors) {
        uses_[sub].lists.insert(record);
    }
}

void UseIndex::unlist(nyx::ColorId record, nyx::Span<nyx::ColorId> subColors) {
    for (nyx::ColorId const sub : subColors) {
        if (auto const uses = uses_.find(sub); uses != uses_.end()) {
            uses->second.lists.erase(record);
            dropIfUnused(sub);
        }
    }
}

UseIndex::Uses const* UseIndex::uses(nyx::ColorId color) const {
    auto const uses = uses_.find(color);
    return uses == uses_.end() ? nullptr : &uses->second;
}

void UseIndex::dropIfUnused(nyx::ColorId color) {
    auto const uses = uses_.find(color);
    if (uses->second.places == 0 && uses->second.lists.empty()) {
        uses_.erase(uses);
    }
}

} // namespace nyx::embedded
