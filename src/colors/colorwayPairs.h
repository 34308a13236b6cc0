#pragma once

#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"

#include <optional>
#include <vector>

namespace zsg {

/// The two lists of a colorway, equally long: multi-colours, and the active sub-colour of each.
struct ColorwayPairs {
    std::vector<nyx::ColorId> multiColors;
    std::vector<nyx::ColorId> activeSubs;
};

/// Consistent lists in place of those given: the leading pairs as far as both lists go and, when a
/// multi-colour is listed again, the first pair of each in ascending order of multi-colours.
/// Nothing when the lists are consistent as they are.
[[nodiscard]] std::optional<ColorwayPairs> repairedPairs(nyx::Span<nyx::ColorId> multiColors,
                                                         nyx::Span<nyx::ColorId> activeSubs);

/// The pairs, in order, whose multi-colour is not among `removed`. The lists must be equally long.
[[nodiscard]] ColorwayPairs pairsWithout(nyx::Span<nyx::ColorId> multiColors,
                                         nyx::Span<nyx::ColorId> activeSubs,
                                         nyx::Span<nyx::ColorId> removed);

} // namespace zsg
