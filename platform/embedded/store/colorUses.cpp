#include "store/colorUses.h"

#include "store/ColorStore.h"
#include "store/ItemTree.h"
#include "store/MaterialStore.h"
#include "store/Scene.h"

#include <algorithm>

namespace nyx::embedded {

namespace {

/// Visits the multi-colours other than `color` itself that list it. The flag is asked now because a
/// borrower may write it at any time.
template <class Visit>
void forEachMultiListing(ColorStore const& colors, nyx::ColorId color, Visit const& visit) {
    for (nyx::ColorId const list : colors.listing(color)) {
        if (list != color && colors.find(list)->isMulti()) {
            visit(list);
        }
    }
}

} // namespace

unsigned referenceCount(nyxScene const& scene, nyx::ColorId color) {
    MaterialStore const& materials = scene.materials();
    if (!scene.colors().find(color)) {
        return 0;
    }
    unsigned count = materials.uses(color).places;
    forEachMultiListing(scene.colors(), color,
                        [&](nyx::ColorId list) { count += materials.uses(list).places; });
    return count;
}

std::vector<nyx::MaterialId> materialsUsing(nyxScene const& scene, nyx::ColorId color, bool direct,
                                            bool throughMulti, bool unassigned) {
    std::vector<nyx::MaterialId> materials;
    if (!scene.colors().find(color)) {
        return materials;
    }
    auto const collect = [&](nyx::ColorId bound) {
        for (auto const& [material, places] : scene.materials().uses(bound).materials) {
            if (unassigned || scene.items().isMaterialUsed(material)) {
                materials.push_back(material);
            }
        }
    };
    if (direct) {
        collect(color);
    }
    if (throughMulti) {
        forEachMultiListing(scene.colors(), color, collect);
        std::sort(materials.begin(), materials.end());
        materials.erase(std::unique(materials.begin(), materials.end()), materials.end());
    }
    return materials;
}

} // namespace nyx::embedded
