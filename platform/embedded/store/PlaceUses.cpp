#include "store/PlaceUses.h"

namespace nyx::embedded {

void PlaceUses::bind(nyx::ColorId color, nyx::MaterialId material) {
    if (color.isValid()) {
        Uses& uses = uses_[color];
        ++uses.places;
        ++uses.materials[material];
    }
}

void PlaceUses::unbind(nyx::ColorId color, nyx::MaterialId material) {
    auto const uses = uses_.find(color);
    if (uses == uses_.end()) {
        return;
    }
    auto const places = uses->second.materials.find(material);
    if (--places->second == 0) {
        uses->second.materials.erase(places);
    }
    if (--uses->second.places == 0) {
        uses_.erase(uses);
    }
}

PlaceUses::Uses const& PlaceUses::of(nyx::ColorId color) const {
    static Uses const none;
    auto const uses = uses_.find(color);
    return uses == uses_.end() ? none : uses->second;
}

} // namespace nyx::embedded
