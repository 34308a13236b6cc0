#pragma once

#include "nyxrender/Ids.h"

#include <map>
#include <unordered_map>

namespace nyx::embedded {

/// Which materials have places bound to a colour, and how many. It follows every binding at once,
/// so nobody has to search the scene. Pure bookkeeping, over ids that need not exist.
class PlaceUses {
public:
    struct Uses {
        unsigned places = 0;                           ///< of all materials together
        std::map<nyx::MaterialId, unsigned> materials; ///< places of each
    };

    void bind(nyx::ColorId color, nyx::MaterialId material);
    void unbind(nyx::ColorId color, nyx::MaterialId material);

    /// Valid until the next change.
    [[nodiscard]] Uses const& of(nyx::ColorId color) const;

private:
    std::unordered_map<nyx::ColorId, Uses> uses_; ///< none without places
};

} // namespace nyx::embedded
