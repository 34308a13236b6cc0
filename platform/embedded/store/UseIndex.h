#pragma once

#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"

#include <map>
#include <set>
#include <unordered_map>

namespace nyx::embedded {

/// Who uses which colour: the materials with the number of their places bound to it, and the
/// multi-colours that list it. Both follow every binding and every change of a list at once, so
/// nobody has to search the scene. Pure bookkeeping, over ids that need not exist.
class UseIndex {
public:
    struct Uses {
        unsigned places = 0;                           ///< of all materials together
        std::map<nyx::MaterialId, unsigned> materials; ///< places of each
        std::set<nyx::ColorId> lists; ///< records that list the colour as a sub-colour
    };

    void bind(nyx::ColorId color, nyx::MaterialId material);
    void unbind(nyx::ColorId color, nyx::MaterialId material);
    /// A record lists these sub-colours. One that is listed twice is listed once.
    void list(nyx::ColorId record, nyx::Span<nyx::ColorId> subColors);
    void unlist(nyx::ColorId record, nyx::Span<nyx::ColorId> subColors);
    /// The record lists `after` instead of `before`. Costs a step per difference, and, when any
    /// sub-colour leaves, one per sub-colour.
    void relist(nyx::ColorId record, nyx::Span<nyx::ColorId> before, nyx::Span<nyx::ColorId> after);

    /// Null for a colour that nobody uses.
    [[nodiscard]] Uses const* uses(nyx::ColorId color) const;

private:
    void dropIfUnused(nyx::ColorId color);

    std::unordered_map<nyx::ColorId, Uses> uses_;
};

} // namespace nyx::embedded
