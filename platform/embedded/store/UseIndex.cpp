#include "store/UseIndex.h"

#include <algorithm>
#include <unordered_set>

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

void UseIndex::relist(nyx::ColorId record, nyx::Span<nyx::ColorId> before,
                      nyx::Span<nyx::ColorId> after) {
    std::size_t const shorter = std::min(before.size(), after.size());
    std::size_t front = 0;
    while (front < shorter && before[front] == after[front]) {
        ++front;
    }
    std::size_t back = 0;
    while (back < shorter - front &&
           before[before.size() - 1 - back] == after[after.size() - 1 - back]) {
        ++back;
    }
    list(record, {after.data() + front, after.size() - front - back});
    nyx::Span<nyx::ColorId> const left{before.data() + front, before.size() - front - back};
    if (left.empty()) {
        return;
    }
    std::unordered_set<nyx::ColorId> const staying(after.begin(), after.end());
    for (nyx::ColorId const& sub : left) {
        if (!staying.contains(sub)) {
            unlist(record, {&sub, 1});
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
